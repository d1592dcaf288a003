<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en">
<context>
    <name>AboutBox</name>
    <message>
        <source>About Quorvel</source>
        <translation>Quorvel について</translation>
    </message>
    <message>
        <source>Quorvel %1</source>
        <translation>Quorvel %1</translation>
    </message>
    <message>
        <source>Sends Morse code through a WinKeyer USB keyer.

Free software under the MIT licence, made with Qt %1.</source>
        <translation>WinKeyer USB キーヤーを通してモールス符号を送信します。

MIT ライセンスのフリーソフトウェアです。Qt %1 で作られています。</translation>
    </message>
</context>
<context>
    <name>AlertBox</name>
    <message>
        <source>Takes keys when you have stopped typing for a second</source>
        <translation>1 秒間入力がないとキーを受け付けます</translation>
    </message>
</context>
<context>
    <name>AnswerNotice</name>
    <message>
        <source>Ask again</source>
        <translation>もう一度問い合わせる</translation>
    </message>
    <message>
        <source>The keyer on %1 does not answer. Look at its power, its cable, and whether this is its port.</source>
        <translation>%1 のキーヤーが応答しません。電源とケーブル、そしてこのポートで正しいかを確かめてください。</translation>
    </message>
    <message>
        <source>Nothing has come from the keyer on %1 for 10 s, though a character is on its way to it. It may have started anew.</source>
        <translation>文字を送っている途中なのに、%1 のキーヤーから 10 秒間何も届いていません。再起動したのかもしれません。</translation>
    </message>
</context>
<context>
    <name>BoundControl</name>
    <message>
        <source>on</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>off</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>Reset “%1” to its default, %2</source>
        <translation>「%1」を既定値の %2 に戻す</translation>
    </message>
    <message>
        <source>Reset %1 to %2</source>
        <translation>%1 を %2 に戻す</translation>
    </message>
    <message>
        <source>stored: %1</source>
        <translation>保存値: %1</translation>
    </message>
    <message>
        <source>%1 to %2, default %3</source>
        <translation>%1 ～ %2、既定値 %3</translation>
    </message>
    <message>
        <source>Default: %1</source>
        <translation>既定値: %1</translation>
    </message>
    <message>
        <source>%1. It stays until it is changed here.</source>
        <translation>%1。ここで変更するまでそのままです。</translation>
    </message>
</context>
<context>
    <name>BoundNumber</name>
    <message>
        <source>%1 will become %2.</source>
        <translation>%1 は %2 になります。</translation>
    </message>
    <message>
        <source>“%1” is not a number. It stays at %2.</source>
        <translation>「%1」は数ではありません。%2 のままです。</translation>
    </message>
    <message>
        <source>%1 is out of range: %2 to %3. It stays at %4.</source>
        <translation>%1 は範囲外です: %2 ～ %3。%4 のままです。</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Usage: quorvel [options]
Sends Morse code through a WinKeyer USB keyer.

Options:
  -h, --help     Shows this text.
  -v, --version  Shows the version.
  --check-ports  Tells what is in the way of each serial port.
      --ask-keyer PORT
                 Behind that: asks the keyer on this port, too.

The toolkit&apos;s own options, such as -platform and -style, work too. The guide is under Help.
</source>
        <translation>使い方: quorvel [オプション]
WinKeyer USB キーヤーを通してモールス符号を送信します。

オプション:
  -h, --help     この説明を表示します。
  -v, --version  バージョンを表示します。
  --check-ports  各シリアルポートの障害を表示します。
      --ask-keyer PORT
                 その後に付けると、このポートのキーヤーにも問い合わせます。

-platform や -style など、ツールキットのオプションも使えます。ガイドは「ヘルプ」にあります。
</translation>
    </message>
</context>
<context>
    <name>ConnectionStrip</name>
    <message>
        <source>Not connected: nothing is sent, and what you type now is forgotten when a keyer is connected.</source>
        <translation>未接続: 何も送信されません。いま入力したものは、キーヤーが接続されると忘れられます。</translation>
    </message>
    <message>
        <source>Choose port…</source>
        <translation>ポートを選ぶ…</translation>
    </message>
    <message>
        <source>Choose port</source>
        <translation>ポートを選ぶ</translation>
    </message>
    <message>
        <source>Check ports…</source>
        <translation>ポートを調べる…</translation>
    </message>
    <message>
        <source>Check ports</source>
        <translation>ポートを調べる</translation>
    </message>
    <message>
        <source>The computer goes to sleep: nothing is sent now, and what you enter waits until you take Pause off.</source>
        <translation>コンピューターがスリープします: いまは何も送信されません。入力したものは、一時停止をオフにするまで待ちます。</translation>
    </message>
</context>
<context>
    <name>FileSaving</name>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 を書き込めません: %2</translation>
    </message>
</context>
<context>
    <name>FirstSteps</name>
    <message>
        <source>First steps</source>
        <translation>はじめに</translation>
    </message>
    <message>
        <source>Choose port…</source>
        <translation>ポートを選ぶ…</translation>
    </message>
    <message>
        <source>Choose port</source>
        <translation>ポートを選ぶ</translation>
    </message>
    <message>
        <source>Your call sign</source>
        <translation>自局コールサイン</translation>
    </message>
    <message>
        <source>Sent for each ` in a message</source>
        <translation>メッセージ中の ` ごとに送信されます</translation>
    </message>
    <message>
        <source>Enter your own call sign.</source>
        <translation>自局のコールサインを入力してください。</translation>
    </message>
    <message>
        <source>Press F1 to send CQ, or type. Esc stops at once.</source>
        <translation>F1 を押すと CQ を送信します。入力しても送信できます。Esc ですぐに止まります。</translation>
    </message>
    <message>
        <source>Try without a keyer</source>
        <translation>キーヤーなしで試す</translation>
    </message>
    <message>
        <source>Starts a keyer made of software, which keys nothing on the air</source>
        <translation>ソフトウェアのキーヤーを起動します。電波は出ません</translation>
    </message>
    <message>
        <source>Check ports…</source>
        <translation>ポートを調べる…</translation>
    </message>
    <message>
        <source>Check ports</source>
        <translation>ポートを調べる</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Close first steps</source>
        <translation>「はじめに」を閉じる</translation>
    </message>
    <message>
        <source>Connected to %1.</source>
        <translation>%1 に接続しました。</translation>
    </message>
    <message>
        <source>Plug the keyer in, and say Yes to its port. If it was plugged in before, choose its port.</source>
        <translation>キーヤーを接続し、そのポートに「はい」と答えてください。すでに接続されていたら、そのポートを選んでください。</translation>
    </message>
    <message>
        <source>Step %1, done</source>
        <translation>手順 %1、済み</translation>
    </message>
    <message>
        <source>Step %1</source>
        <translation>手順 %1</translation>
    </message>
    <message>
        <source>Plug the keyer in, and say Yes to its port. If it was plugged in before, choose its port. What you type until then is not sent, and is forgotten.</source>
        <translation>キーヤーを接続し、そのポートに「はい」と答えてください。すでに接続されていたら、そのポートを選んでください。それまでに入力したものは送信されず、忘れられます。</translation>
    </message>
</context>
<context>
    <name>Guide</name>
    <message>
        <source>en</source>
        <extracomment>The folder of docs/guide that is in this language; as it is where there is none.</extracomment>
        <translation>ja</translation>
    </message>
</context>
<context>
    <name>GuideButton</name>
    <message>
        <source>Guide to these settings</source>
        <translation>この設定のガイド</translation>
    </message>
    <message>
        <source>Opens the guide where these settings are explained.</source>
        <translation>この設定を説明しているところでガイドを開きます。</translation>
    </message>
</context>
<context>
    <name>GuideWindow</name>
    <message>
        <source>Quorvel Guide</source>
        <translation>Quorvel ガイド</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Searches all chapters (Ctrl+F). Enter goes to the next place.</source>
        <translation>すべての章を検索します (Ctrl+F)。Enter で次の箇所に進みます。</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>目次</translation>
    </message>
    <message>
        <source>Places found</source>
        <translation>見つかった箇所</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>見つかりません</translation>
    </message>
    <message>
        <source>Places found: %1</source>
        <translation>見つかった箇所: %1</translation>
    </message>
    <message>
        <source>Place %1 of %2</source>
        <translation>%2 箇所中 %1 番目</translation>
    </message>
    <message>
        <source>The first %1 places</source>
        <translation>最初の %1 か所</translation>
    </message>
</context>
<context>
    <name>KeyGuard</name>
    <message>
        <source>The key guard does not run: should Quorvel crash or hang while tune is on, the key stays down. Install Quorvel again.</source>
        <translation>キーガードが動いていません。チューン中に Quorvel が異常終了したり固まったりすると、キーダウンのままになります。Quorvel を再インストールしてください。</translation>
    </message>
    <message>
        <source>Quorvel did not react for %1 s while tune was on, and the key was let go of.</source>
        <translation>チューン中に Quorvel が %1 秒間反応しなかったので、キーを上げました。</translation>
    </message>
</context>
<context>
    <name>KeyboardView</name>
    <message>
        <source>Not connected: nothing is sent</source>
        <translation>未接続: 何も送信されません</translation>
    </message>
    <message>
        <source>Nothing waits to be sent</source>
        <translation>送信待ちの文字はありません</translation>
    </message>
    <message>
        <source>Characters still to be sent: %1</source>
        <translation>送信待ちの文字数: %1</translation>
    </message>
</context>
<context>
    <name>KeyedWavePicture</name>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>plain</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>as set</source>
        <translation>設定値</translation>
    </message>
</context>
<context>
    <name>KeyedWaveView</name>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>Dit %1, dah %2, gap %3, letter space %4</source>
        <translation>短点 %1、長点 %2、間隔 %3、文字間隔 %4</translation>
    </message>
    <message>
        <source>%1, first element %2 longer</source>
        <translation>%1、最初の符号 %2 延長</translation>
    </message>
    <message>
        <source>&amp;Picture at</source>
        <translation>表示速度(&amp;P)</translation>
    </message>
    <message>
        <source> wpm</source>
        <translation> wpm</translation>
    </message>
    <message>
        <source>Keyed wave of %1</source>
        <translation>%1 の送信波形</translation>
    </message>
    <message>
        <source>The letters %1 as they are keyed with these settings, in front of plain keying at the same speed. The lines of the grid are one dit apart.</source>
        <translation>この設定で送る %1 の文字。後ろは同じ速度の標準の符号です。目盛り線の間隔は短点 1 つ分です。</translation>
    </message>
    <message>
        <source>The keyer&apos;s speed pot is at this speed, and the picture follows it.</source>
        <translation>キーヤーの速度つまみがこの速度で、図はそれに従います。</translation>
    </message>
    <message>
        <source>The speed that the picture is drawn for. It follows the keyer&apos;s speed pot once the keyer is connected.</source>
        <translation>図を描く速度です。キーヤーが接続されると、その速度つまみに従います。</translation>
    </message>
</context>
<context>
    <name>KeyerNotice</name>
    <message>
        <source>Not connected</source>
        <translation>未接続</translation>
    </message>
</context>
<context>
    <name>KeyerStatusLine</name>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>, </source>
        <translation>、</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation>%1。%2</translation>
    </message>
    <message>
        <source>The machine sleeps: %1 is closed</source>
        <translation>コンピューターはスリープ中: %1 は閉じています</translation>
    </message>
    <message>
        <source>Transmitting on %1: tune is on</source>
        <translation>%1 で送信中: チューンがオンです</translation>
    </message>
    <message>
        <source>Connected to %1, waiting for the keyer&apos;s first byte</source>
        <translation>%1 に接続、キーヤーの最初のバイトを待っています</translation>
    </message>
    <message>
        <source>Connected to %1: idle</source>
        <translation>%1 に接続: 待機中</translation>
    </message>
    <message>
        <source>Connected to %1: sending</source>
        <translation>%1 に接続: 送信中</translation>
    </message>
    <message>
        <source>Connected to %1: break-in (paddle)</source>
        <translation>%1 に接続: ブレークイン (パドル)</translation>
    </message>
    <message>
        <source>Connected to %1: buffer full</source>
        <translation>%1 に接続: バッファー満杯</translation>
    </message>
    <message>
        <source>Connected to %1: paused</source>
        <translation>%1 に接続: 一時停止中</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>未接続</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>一時停止中</translation>
    </message>
    <message>
        <source>high-speed CW</source>
        <translation>高速 CW</translation>
    </message>
    <message>
        <source>beacon again in %1 s</source>
        <translation>ビーコンまで %1 秒</translation>
    </message>
    <message>
        <source>beacon on</source>
        <translation>ビーコンオン</translation>
    </message>
</context>
<context>
    <name>KeyingRecord</name>
    <message>
        <source>Quorvel ended while it was sending. The rest was not sent, and the key is up.</source>
        <translation>送信中に Quorvel が終了しました。残りは送信されず、キーは上がっています。</translation>
    </message>
    <message>
        <source>Quorvel ended while tune was on. The key may have stayed down; it has been let go of now.</source>
        <translation>チューン中に Quorvel が終了しました。キーダウンのままだったかもしれません。いまキーを上げました。</translation>
    </message>
    <message>
        <source>The keyer was unplugged while tune was on. The key may have stayed down; it has been let go of now.</source>
        <translation>チューン中にキーヤーが抜かれました。キーダウンのままだったかもしれません。いまキーを上げました。</translation>
    </message>
</context>
<context>
    <name>LoggerSocket</name>
    <message>
        <source>Loggers: there is no such port</source>
        <translation>ロガー: そのようなポートはありません</translation>
    </message>
    <message>
        <source>Loggers: port %1</source>
        <translation>ロガー: ポート %1</translation>
    </message>
    <message>
        <source>Loggers: port %1 cannot be had: %2</source>
        <translation>ロガー: ポート %1 を使えません: %2</translation>
    </message>
    <message>
        <source>Loggers: port %1 is taken by %2</source>
        <translation>ロガー: ポート %1 は %2 が使っています</translation>
    </message>
    <message>
        <source>Loggers: port %1, last from port %2</source>
        <translation>ロガー: ポート %1、最後はポート %2 から</translation>
    </message>
    <message>
        <source>Loggers: port %1, last from %2</source>
        <translation>ロガー: ポート %1、最後は %2 から</translation>
    </message>
</context>
<context>
    <name>MBPreferencesController</name>
    <message>
        <source>Preferences</source>
        <translation>設定</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Quorvel</source>
        <translation>Quorvel</translation>
    </message>
    <message>
        <source>Message 1</source>
        <translation>メッセージ 1</translation>
    </message>
    <message>
        <source>Message 2</source>
        <translation>メッセージ 2</translation>
    </message>
    <message>
        <source>Message 3</source>
        <translation>メッセージ 3</translation>
    </message>
    <message>
        <source>Message 4</source>
        <translation>メッセージ 4</translation>
    </message>
    <message>
        <source>Message 5</source>
        <translation>メッセージ 5</translation>
    </message>
    <message>
        <source>Message 6</source>
        <translation>メッセージ 6</translation>
    </message>
    <message>
        <source>Message 7</source>
        <translation>メッセージ 7</translation>
    </message>
    <message>
        <source>Message 8</source>
        <translation>メッセージ 8</translation>
    </message>
    <message>
        <source>&amp;Their call</source>
        <translation>相手局(&amp;T)</translation>
    </message>
    <message>
        <source>Their call</source>
        <translation>相手局</translation>
    </message>
    <message>
        <source>The other station&apos;s call sign; ~ in a message stands for it</source>
        <translation>相手局のコールサイン。メッセージ中の ~ がこれを表します</translation>
    </message>
    <message>
        <source>&amp;Number</source>
        <translation>番号(&amp;N)</translation>
    </message>
    <message>
        <source>Decrement serial number</source>
        <translation>シリアル番号を減らす</translation>
    </message>
    <message>
        <source>One less</source>
        <translation>1 つ減らす</translation>
    </message>
    <message>
        <source>−</source>
        <translation>−</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>シリアル番号</translation>
    </message>
    <message>
        <source>The number of this contact; # in a message stands for it</source>
        <translation>この交信の番号。メッセージ中の # がこれを表します</translation>
    </message>
    <message>
        <source>Increment serial number</source>
        <translation>シリアル番号を増やす</translation>
    </message>
    <message>
        <source>One more</source>
        <translation>1 つ増やす</translation>
    </message>
    <message>
        <source>+</source>
        <translation>+</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Stop sending at once and forget the text</source>
        <translation>すぐに送信をやめ、文を忘れます</translation>
    </message>
    <message>
        <source>Tune</source>
        <translation>チューン</translation>
    </message>
    <message>
        <source>Key the transmitter steadily</source>
        <translation>送信機を連続してキーイングします</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>Hold the text back</source>
        <translation>文の送信を止めておきます</translation>
    </message>
    <message>
        <source>High-speed CW</source>
        <translation>高速 CW</translation>
    </message>
    <message>
        <source>Send at the high speed of the preferences</source>
        <translation>設定にある高速で送信します</translation>
    </message>
    <message>
        <source>Beacon</source>
        <translation>ビーコン</translation>
    </message>
    <message>
        <source>Repeat the next message until stopped</source>
        <translation>次のメッセージを停止するまで繰り返します</translation>
    </message>
    <message>
        <source>Keyer status</source>
        <translation>キーヤーの状態</translation>
    </message>
    <message>
        <source>What the keyer is doing</source>
        <translation>キーヤーがしていること</translation>
    </message>
    <message>
        <source>Characters that are still to be sent</source>
        <translation>まだ送信されていない文字</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>速度</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Send</source>
        <translation>送信(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Keyer</source>
        <translation>キーヤー(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Contact</source>
        <translation>交信(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>設定(&amp;P)…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>切り取り(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>すべて選択(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>停止(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;High-speed CW</source>
        <translation>高速 CW(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Their Call</source>
        <translation>相手局(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Keyboard</source>
        <translation>キーボード(&amp;K)</translation>
    </message>
    <message>
        <source>Ne&amp;xt Contact</source>
        <translation>次の交信(&amp;X)</translation>
    </message>
    <message>
        <source>&amp;Wipe Their Call</source>
        <translation>相手局を消す(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Increment Serial Number</source>
        <translation>シリアル番号を増やす(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Decrement Serial Number</source>
        <translation>シリアル番号を減らす(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Guide</source>
        <translation>ガイド(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;About Quorvel</source>
        <translation>Quorvel について(&amp;A)</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source> %1 s</source>
        <translation> %1 秒</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation>キーボード</translation>
    </message>
    <message>
        <source>What is typed here is sent</source>
        <translation>ここに入力したものが送信されます</translation>
    </message>
    <message>
        <source>Tune was let go of after %1 s.</source>
        <translation>%1 秒たったのでチューンを止めました。</translation>
    </message>
    <message>
        <source>Type here to send</source>
        <translation>ここに入力すると送信されます</translation>
    </message>
    <message>
        <source>Not connected: nothing is sent</source>
        <translation>未接続: 何も送信されません</translation>
    </message>
    <message>
        <source>What you send waits for the paddle to be free: Esc drops it</source>
        <translation>送信するものはパドルが空くのを待っています: Esc で取り消し</translation>
    </message>
    <message>
        <source>Typing here sends again: End goes to the end</source>
        <translation>ここに入力すると再び送信します: End で末尾へ</translation>
    </message>
    <message>
        <source>. </source>
        <translation>。</translation>
    </message>
    <message>
        <source>TRANSMITTING – Quorvel</source>
        <translation>送信中 – Quorvel</translation>
    </message>
    <message>
        <source>Whether the speed is the knob&apos;s, or set from the computer</source>
        <translation>速度がつまみのものか、コンピューターで設定したものか</translation>
    </message>
    <message>
        <source>The speed; a click goes back to that of the keyer&apos;s knob</source>
        <translation>速度。クリックするとキーヤーのつまみの速度に戻ります</translation>
    </message>
    <message>
        <source>&amp;Faster</source>
        <translation>速く(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Slower</source>
        <translation>遅く(&amp;S)</translation>
    </message>
    <message>
        <source>A Little Faster</source>
        <translation>少し速く</translation>
    </message>
    <message>
        <source>A Little Slower</source>
        <translation>少し遅く</translation>
    </message>
    <message>
        <source>Speed of the &amp;Knob</source>
        <translation>つまみの速度(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Check Ports…</source>
        <translation>ポートを調べる(&amp;C)…</translation>
    </message>
    <message>
        <source>&amp;Try Without a Keyer</source>
        <translation>キーヤーなしで試す(&amp;T)</translation>
    </message>
    <message>
        <source>Check ports…</source>
        <translation>ポートを調べる…</translation>
    </message>
    <message>
        <source>Check ports</source>
        <translation>ポートを調べる</translation>
    </message>
    <message>
        <source>&amp;Accept Text from Loggers</source>
        <translation>ロガーの文を受け付ける(&amp;A)</translation>
    </message>
    <message>
        <source>⚠ TRANSMITTING: tune is on. Press Esc to let go.</source>
        <translation>⚠ 送信中: チューンがオンです。Esc で止まります。</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>やり直す</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>貼り付け</translation>
    </message>
    <message>
        <source>W&amp;indow</source>
        <translation>表示(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Sent</source>
        <translation>送信済み(&amp;S)</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
</context>
<context>
    <name>MemoryGauge</name>
    <message>
        <source>Keyer memory</source>
        <translation>キーヤーのメモリー</translation>
    </message>
    <message>
        <source>How the six messages share the keyer&apos;s memory, a byte a character. One byte always stays free.</source>
        <translation>6 つのメッセージがキーヤーのメモリーを分け合う様子。1 文字 1 バイトで、1 バイトは常に空きます。</translation>
    </message>
    <message>
        <source>%1 of %2 bytes used</source>
        <translation>%2 バイト中 %1 バイト使用</translation>
    </message>
    <message>
        <source>%1; left out: %2</source>
        <translation>%1、入らないもの: %2</translation>
    </message>
    <message>
        <source>, </source>
        <translation>、</translation>
    </message>
</context>
<context>
    <name>MessageButton</name>
    <message>
        <source>waits for the paddle</source>
        <translation>パドル待ち</translation>
    </message>
</context>
<context>
    <name>MessageButtons</name>
    <message>
        <source>Message %1: %2</source>
        <translation>メッセージ %1: %2</translation>
    </message>
    <message>
        <source>Waits for the paddle: %1</source>
        <translation>パドル待ち: %1</translation>
    </message>
    <message>
        <source>%1  %2</source>
        <translation>%1  %2</translation>
    </message>
</context>
<context>
    <name>ModeSwitches</name>
    <message>
        <source>High-speed CW needs a keyer, and none is connected</source>
        <translation>高速 CW にはキーヤーが必要ですが、接続されていません</translation>
    </message>
</context>
<context>
    <name>NamedProfile</name>
    <message>
        <source>a version 2 keyer, firmware 23</source>
        <translation>バージョン 2 のキーヤー、ファームウェア 23</translation>
    </message>
    <message>
        <source>echoes after the letter space, &quot;|&quot; too; keys &quot;?&quot; for what has no Morse</source>
        <translation>文字間隔の後でエコーし、「|」もエコーする。モールス符号のない文字には「?」を送る</translation>
    </message>
    <message>
        <source>never echoes the text, whatever the host has set</source>
        <translation>ホストの設定にかかわらず、文をエコーしない</translation>
    </message>
    <message>
        <source>sends a status byte after the version byte</source>
        <translation>バージョンバイトの後に状態バイトを送る</translation>
    </message>
    <message>
        <source>sends the last echo and the idle status back to back</source>
        <translation>最後のエコーと待機状態を続けて送る</translation>
    </message>
    <message>
        <source>the same, the idle status first</source>
        <translation>同じく、ただし待機状態が先</translation>
    </message>
    <message>
        <source>asks for a pause at 21 waiting bytes, and again for every more</source>
        <translation>待ちが 21 バイトになると一時停止を求め、1 バイト増えるごとにまた求める</translation>
    </message>
    <message>
        <source>drops the key in mid-letter when the buffer is cleared</source>
        <translation>バッファーが消されると文字の途中でもキーを上げる</translation>
    </message>
    <message>
        <source>restarts when the port is opened and is deaf for 1.3 s</source>
        <translation>ポートが開かれると再起動し、1.3 秒間受け付けない</translation>
    </message>
    <message>
        <source>beeps for half a second before it obeys its first command</source>
        <translation>最初のコマンドに従う前に 0.5 秒間ビープを鳴らす</translation>
    </message>
    <message>
        <source>throws a loaded memory away without a word</source>
        <translation>書き込まれたメモリーを黙って捨てる</translation>
    </message>
    <message>
        <source>reports break-in by a single C2 first</source>
        <translation>ブレークインをまず 1 つの C2 で知らせる</translation>
    </message>
    <message>
        <source>is idle for the host until the paddle has keyed for 160 ms</source>
        <translation>パドルで 160 ms 送るまで、ホストには待機中と見える</translation>
    </message>
    <message>
        <source>keys a letter once more that a pause came into</source>
        <translation>途中で一時停止した文字をもう一度送る</translation>
    </message>
    <message>
        <source>echoes the letter that the paddle cut before the break-in</source>
        <translation>パドルで切られた文字を、ブレークインより先にエコーする</translation>
    </message>
    <message>
        <source>keys what waited when the paddle has rested, unless the host clears it</source>
        <translation>ホストが消さないかぎり、待っていた文をパドルが止まった後に送る</translation>
    </message>
    <message>
        <source>stays at the last speed when the host gives it back to the knob</source>
        <translation>ホストが速度をつまみに戻しても、最後の速度のままでいる</translation>
    </message>
    <message>
        <source>reports the knob to a host, and does not obey it</source>
        <translation>つまみの位置をホストに知らせるだけで、それには従わない</translation>
    </message>
    <message>
        <source>asks for a pause by C1, without the bit for busy</source>
        <translation>送信中のビットなしの C1 で一時停止を求める</translation>
    </message>
    <message>
        <source>takes a push-button in the midst of text for a break-in</source>
        <translation>文の途中で押されたボタンをブレークインとみなす</translation>
    </message>
    <message>
        <source>ends a tune for the paddle, a letter or a message, without a word</source>
        <translation>パドル、文字、メッセージがあると、黙ってチューンを終える</translation>
    </message>
    <message>
        <source>swallows a tune that begins in the midst of text</source>
        <translation>文の途中で始まるチューンを無視する</translation>
    </message>
    <message>
        <source>says and does nothing for 0.44 s behind its version byte</source>
        <translation>バージョンバイトの後 0.44 秒間は何も言わず何もしない</translation>
    </message>
    <message>
        <source>swallows text for 0.1 s after the buffer was cleared</source>
        <translation>バッファーが消された後 0.1 秒間は文を無視する</translation>
    </message>
    <message>
        <source>reports press and release of a push-button together, at the release</source>
        <translation>押しボタンを押したことと離したことを、離したときにまとめて知らせる</translation>
    </message>
</context>
<context>
    <name>NamedTrouble</name>
    <message>
        <source>bytes that do not arrive</source>
        <translation>届かないバイト</translation>
    </message>
    <message>
        <source>bytes that arrive twice</source>
        <translation>2 度届くバイト</translation>
    </message>
    <message>
        <source>bytes of which a bit is wrong</source>
        <translation>1 ビットが誤っているバイト</translation>
    </message>
    <message>
        <source>each byte is up to so much late, by chance</source>
        <translation>各バイトが最大でこれだけ不規則に遅れる</translation>
    </message>
    <message>
        <source>each byte is so much late, as over a network</source>
        <translation>ネットワーク越しのように、各バイトがこれだけ遅れる</translation>
    </message>
    <message>
        <source>the host gets what has come as often as this, in one read</source>
        <translation>届いたものをこの間隔でまとめて、ホストが 1 回で読む</translation>
    </message>
    <message>
        <source>no character from the keyer arrives</source>
        <translation>キーヤーからの文字がまったく届かない</translation>
    </message>
    <message>
        <source>nobody takes what the host sends</source>
        <translation>ホストが送るものを誰も受け取らない</translation>
    </message>
    <message>
        <source>the keyer starts anew so long after the port was opened</source>
        <translation>ポートが開かれてからこの時間の後に、キーヤーが再起動する</translation>
    </message>
    <message>
        <source>the port goes so long after it was opened, and comes back; the keyer keeps its power</source>
        <translation>ポートが開かれてからこの時間の後に消え、また現れる。キーヤーの電源は切れない</translation>
    </message>
</context>
<context>
    <name>NoticeStrip</name>
    <message>
        <source>Close notice</source>
        <translation>通知を閉じる</translation>
    </message>
    <message>
        <source>Close this notice</source>
        <translation>この通知を閉じます</translation>
    </message>
</context>
<context>
    <name>PortCheckCommand</name>
    <message>
        <source>%1 is not asked: it is not there, or not free.</source>
        <translation>%1 には問い合わせません: ないか、空いていません。</translation>
    </message>
    <message>
        <source>The keyer on %1</source>
        <translation>%1 のキーヤー</translation>
    </message>
</context>
<context>
    <name>PortCheckWindow</name>
    <message>
        <source>Check Ports</source>
        <translation>ポートを調べる</translation>
    </message>
    <message>
        <source>What is in the way of each port, and what to do about it. Looking opens no port. Commands are for a terminal.</source>
        <translation>各ポートの障害と対処。調べるだけではポートを開きません。コマンドは端末で実行します。</translation>
    </message>
    <message>
        <source>Ports</source>
        <translation>ポート</translation>
    </message>
    <message>
        <source>Check &amp;again</source>
        <translation>もう一度調べる(&amp;A)</translation>
    </message>
    <message>
        <source>Copy &amp;report</source>
        <translation>結果をコピー(&amp;R)</translation>
    </message>
</context>
<context>
    <name>PortEntryView</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>コマンド</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Copy command</source>
        <translation>コマンドをコピー</translation>
    </message>
    <message>
        <source>Ask the keyer</source>
        <translation>キーヤーに問い合わせる</translation>
    </message>
    <message>
        <source>Opens the port for a moment, and has a keyer send a character back. Nothing is keyed by it; but opening raises the lines DTR and RTS, which key a transmitter that is wired to them.</source>
        <translation>ポートを少しの間開き、キーヤーに 1 文字を送り返させます。これで送信されるものはありません。ただし、開くと DTR と RTS の線が上がり、そこに配線された送信機をキーイングします。</translation>
    </message>
    <message>
        <source>Asking…</source>
        <translation>問い合わせ中…</translation>
    </message>
</context>
<context>
    <name>PortJudge</name>
    <message>
        <source>USB device %1:%2</source>
        <translation>USB 機器 %1:%2</translation>
    </message>
    <message>
        <source>You may not open it yet: you are a member of the group %1, but this session began before that.</source>
        <translation>まだ開けません: グループ %1 のメンバーですが、このセッションはその前に始まりました。</translation>
    </message>
    <message>
        <source>Log out, and log in again.</source>
        <translation>ログアウトして、ログインし直してください。</translation>
    </message>
    <message>
        <source>You may not open it: the members of the group %1 may.</source>
        <translation>開けません: グループ %1 のメンバーなら開けます。</translation>
    </message>
    <message>
        <source>Become a member, then log out and log in again:</source>
        <translation>メンバーになり、ログアウトしてログインし直してください:</translation>
    </message>
    <message>
        <source>You may not open it: root alone may.</source>
        <translation>開けません: 開けるのは root だけです。</translation>
    </message>
    <message>
        <source>See who may:</source>
        <translation>誰が開けるかを見てください:</translation>
    </message>
    <message>
        <source>Whoever sits at this machine may as well, but this session is not the one at its screen.</source>
        <translation>このコンピューターの前にいる人も開けますが、このセッションはその画面のものではありません。</translation>
    </message>
    <message>
        <source>With Quorvel&apos;s package installed, whoever sits at the machine may as well: pull the adapter out and plug it in again.</source>
        <translation>Quorvel のパッケージがインストールされていれば、コンピューターの前にいる人も開けます: アダプターを抜いて挿し直してください。</translation>
    </message>
    <message>
        <source>It has just gone.</source>
        <translation>たったいまなくなりました。</translation>
    </message>
    <message>
        <source>Plug it in again, and use another cable or socket if it goes by itself.</source>
        <translation>挿し直してください。ひとりでになくなるなら、別のケーブルか差し込み口を使ってください。</translation>
    </message>
    <message>
        <source>Another program has it open: %1.</source>
        <translation>別のプログラムが開いています: %1。</translation>
    </message>
    <message>
        <source>End that program. This shows all that have it, those of other users too:</source>
        <translation>そのプログラムを終了してください。次のコマンドは、ほかの利用者のものも含めて、開いているものをすべて表示します:</translation>
    </message>
    <message>
        <source>The service for modems, ModemManager, may send its questions to this port when it is plugged in, and a keyer may key them.</source>
        <translation>モデムのサービス ModemManager が、接続時にこのポートへ問い合わせを送ることがあり、キーヤーがそれをキーイングするかもしれません。</translation>
    </message>
    <message>
        <source>Keep it away with this rule, then plug the adapter in again:</source>
        <translation>この規則で近づけないようにして、アダプターを挿し直してください:</translation>
    </message>
    <message>
        <source>The service for braille displays, brltty, takes this chip for one of them, and may take the port away.</source>
        <translation>点字ディスプレイのサービス brltty が、このチップを点字ディスプレイとみなし、ポートを取ってしまうことがあります。</translation>
    </message>
    <message>
        <source>If nobody here reads braille, remove the service:</source>
        <translation>ここで点字を読む人がいなければ、サービスを削除してください:</translation>
    </message>
    <message>
        <source>The adapter gathers what it receives for %1 ms, which could not be lowered: the paddle&apos;s break-in and the echo come late.</source>
        <translation>アダプターが受信したものを %1 ms の間ためます。短くできませんでした: パドルのブレークインとエコーが遅れます。</translation>
    </message>
    <message>
        <source>Lower it until the adapter is plugged in again:</source>
        <translation>アダプターを挿し直すまで短くします:</translation>
    </message>
    <message>
        <source>Many a board with this chip starts anew when its port is opened. Quorvel asks such a keyer again after 2 s.</source>
        <translation>このチップを使う基板には、ポートが開かれると再起動するものが多くあります。Quorvel はそのようなキーヤーに 2 秒後にもう一度問い合わせます。</translation>
    </message>
    <message>
        <source>A board of this kind leaves its program when a port at 1200 baud is closed, which is a keyer&apos;s speed.</source>
        <translation>この種の基板は、1200 ボーのポートが閉じられるとプログラムから抜けます。キーヤーの速度がそれです。</translation>
    </message>
    <message>
        <source>Pull it out and plug it in again after Quorvel has left it.</source>
        <translation>Quorvel が離れた後で、抜いて挿し直してください。</translation>
    </message>
    <message>
        <source>It is open, and nothing answers.</source>
        <translation>開いていますが、何も応答しません。</translation>
    </message>
    <message>
        <source>Is it the keyer&apos;s port? Has the keyer power? A keyer that another program has set to a speed other than 1200 baud keeps it until it has been without power.</source>
        <translation>キーヤーのポートですか? キーヤーに電源は入っていますか? 別のプログラムが 1200 ボー以外の速度にしたキーヤーは、電源が切られるまでその速度のままです。</translation>
    </message>
    <message>
        <source>It is open, and the keyer answers.</source>
        <translation>開いていて、キーヤーが応答しています。</translation>
    </message>
    <message>
        <source>Quorvel has it open.</source>
        <translation>Quorvel が開いています。</translation>
    </message>
    <message>
        <source>Nothing is in the way. Whether a keyer is on it, only asking tells.</source>
        <translation>障害はありません。キーヤーがあるかどうかは、問い合わせないと分かりません。</translation>
    </message>
    <message>
        <source>%1, the port chosen last</source>
        <translation>%1、最後に選んだポート</translation>
    </message>
    <message>
        <source>It is plugged in, but no driver has taken it.</source>
        <translation>接続されていますが、どのドライバーも受け持っていません。</translation>
    </message>
    <message>
        <source>Have the kernel load its driver. If there is none, the system may have been updated since it was started: start it anew.</source>
        <translation>カーネルにドライバーを読み込ませてください。ドライバーがなければ、起動後にシステムが更新されたのかもしれません: 再起動してください。</translation>
    </message>
    <message>
        <source>A program has taken it away from its driver: %1.</source>
        <translation>プログラムがドライバーから取り上げました: %1。</translation>
    </message>
    <message>
        <source>End that program, then plug the adapter in again.</source>
        <translation>そのプログラムを終了し、アダプターを挿し直してください。</translation>
    </message>
    <message>
        <source>It was taken away from its driver, it seems by the service for braille displays, brltty, which takes the chip for one of them.</source>
        <translation>ドライバーから取り上げられました。点字ディスプレイのサービス brltty が、このチップを点字ディスプレイとみなしたようです。</translation>
    </message>
    <message>
        <source>If nobody here reads braille, remove the service, then plug the adapter in again:</source>
        <translation>ここで点字を読む人がいなければ、サービスを削除し、アダプターを挿し直してください:</translation>
    </message>
    <message>
        <source>A program of another user has taken it away from its driver.</source>
        <translation>ほかの利用者のプログラムがドライバーから取り上げました。</translation>
    </message>
    <message>
        <source>See which programs use USB devices directly:</source>
        <translation>どのプログラムが USB 機器を直接使っているかを見てください:</translation>
    </message>
    <message>
        <source>%1 in USB socket %2</source>
        <translation>USB 差し込み口 %2 の %1</translation>
    </message>
    <message>
        <source>The driver %1 has taken it, which makes no port of it.</source>
        <translation>ドライバー %1 が受け持ちましたが、ポートになりません。</translation>
    </message>
    <message>
        <source>Have that driver let go of all its devices, then plug the adapter in again:</source>
        <translation>そのドライバーにすべての機器を放させ、アダプターを挿し直してください:</translation>
    </message>
    <message>
        <source>It is not there.</source>
        <translation>ありません。</translation>
    </message>
    <message>
        <source>Plug the keyer in. If it is, it has another name now, as after a change of adapter: choose that in File &gt; Preferences…, General.</source>
        <translation>キーヤーを接続してください。接続してあれば、アダプターを替えた後のように名前が変わっています: ファイル &gt; 設定… の「一般」でそれを選んでください。</translation>
    </message>
    <message>
        <source>USB adapters</source>
        <translation>USB アダプター</translation>
    </message>
    <message>
        <source>No USB serial adapter is there.</source>
        <translation>USB シリアルアダプターがありません。</translation>
    </message>
    <message>
        <source>Plug the keyer in. If it is, try another socket and another cable: many a cable charges only. This shows what is plugged in:</source>
        <translation>キーヤーを接続してください。接続してあれば、別の差し込み口と別のケーブルを試してください: 充電しかできないケーブルがよくあります。次のコマンドは接続されているものを表示します:</translation>
    </message>
    <message>
        <source>This machine</source>
        <translation>このコンピューター</translation>
    </message>
    <message>
        <source>udev does not run: what is plugged in now goes unnoticed, and may be opened by root alone.</source>
        <translation>udev が動いていません: いま接続したものに気付かず、root しか開けません。</translation>
    </message>
    <message>
        <source>Start it:</source>
        <translation>起動してください:</translation>
    </message>
    <message>
        <source>A keyer answers on it.</source>
        <translation>キーヤーが応答します。</translation>
    </message>
    <message>
        <source>Something answers on it, but not as a keyer does at 1200 baud.</source>
        <translation>何かが応答しますが、1200 ボーのキーヤーとは違います。</translation>
    </message>
    <message>
        <source>It is another device&apos;s port, or the keyer has been set to another speed by another program: take its power away for a moment.</source>
        <translation>別の機器のポートか、別のプログラムがキーヤーを別の速度にしました: 少しの間キーヤーの電源を切ってください。</translation>
    </message>
    <message>
        <source>Nothing answers on it.</source>
        <translation>何も応答しません。</translation>
    </message>
    <message>
        <source>Is it the keyer&apos;s port? Has the keyer power?</source>
        <translation>キーヤーのポートですか? キーヤーに電源は入っていますか?</translation>
    </message>
    <message>
        <source>It could not be opened.</source>
        <translation>開けませんでした。</translation>
    </message>
    <message>
        <source>Check the ports again.</source>
        <translation>もう一度ポートを調べてください。</translation>
    </message>
</context>
<context>
    <name>PortReport</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>注意</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>問題</translation>
    </message>
</context>
<context>
    <name>PreferencesGeneralPane</name>
    <message>
        <source>My &amp;call</source>
        <translation>自局コールサイン(&amp;C)</translation>
    </message>
    <message>
        <source>My call</source>
        <translation>自局コールサイン</translation>
    </message>
    <message>
        <source>Your own call sign: letters, digits and the slash. It is sent for each ` in a message.</source>
        <translation>自局のコールサイン: 英字、数字、スラッシュ。メッセージ中の ` ごとに送信されます。</translation>
    </message>
    <message>
        <source>&amp;Serial port</source>
        <translation>シリアルポート(&amp;S)</translation>
    </message>
    <message>
        <source>Serial port</source>
        <translation>シリアルポート</translation>
    </message>
    <message>
        <source>Where the keyer is plugged in. Choosing a port connects at once, also the same one again; leaving the old one takes two seconds.</source>
        <translation>キーヤーが接続されているところ。ポートを選ぶと、同じポートでもすぐに接続します。前のポートを離れるのに 2 秒かかります。</translation>
    </message>
    <message>
        <source>%1 (not present)</source>
        <translation>%1 (ありません)</translation>
    </message>
    <message>
        <source>Tune: &amp;let go after</source>
        <translation>チューンの自動停止(&amp;L)</translation>
    </message>
    <message>
        <source>Tune: let go after</source>
        <translation>チューンの自動停止</translation>
    </message>
    <message>
        <source>How long Tune may key the transmitter down before it lets go by itself. The strip in the main window counts the seconds.</source>
        <translation>チューンが自動で止まるまでに送信機をキーイングできる時間。メイン画面の帯が秒数を表示します。</translation>
    </message>
    <message>
        <source>Accept text from loggers</source>
        <translation>ロガーの文を受け付ける</translation>
    </message>
    <message>
        <source>Whether logging programs of this machine may send through Quorvel. You and the paddle come before them.</source>
        <translation>このコンピューターのログソフトが Quorvel を通して送信できるかどうか。操作者とパドルが優先されます。</translation>
    </message>
    <message>
        <source>&amp;Accept text from loggers</source>
        <translation>ロガーの文を受け付ける(&amp;A)</translation>
    </message>
    <message>
        <source>Loggers&apos; &amp;port</source>
        <translation>ロガーのポート(&amp;P)</translation>
    </message>
    <message>
        <source>Loggers&apos; port</source>
        <translation>ロガーのポート</translation>
    </message>
    <message>
        <source>The UDP port of this machine on which loggers are heard. Nearly all of them send to 6789.</source>
        <translation>ロガーを受け付ける、このコンピューターの UDP ポート。ほとんどのロガーは 6789 に送ります。</translation>
    </message>
    <message>
        <source>Characters a&amp;head</source>
        <translation>先に送る文字数(&amp;H)</translation>
    </message>
    <message>
        <source>Characters ahead</source>
        <translation>先に送る文字数</translation>
    </message>
    <message>
        <source>How many characters may be with the keyer before it has echoed the first. 1 is right for a keyer at this machine; over a network, more keep the spaces exact.</source>
        <translation>キーヤーが最初の 1 文字を返す前に、何文字まで送っておいてよいか。このコンピューターにつないだキーヤーなら 1。ネットワーク越しでは、多くすると間隔が正確に保たれます。</translation>
    </message>
</context>
<context>
    <name>PreferencesGeneralViewController</name>
    <message>
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>Changing the serial port...</source>
        <translation>シリアルポートを変更しています...</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>未接続</translation>
    </message>
    <message>
        <source>No serial port is present. Plug the keyer in.</source>
        <translation>シリアルポートがありません。キーヤーを接続してください。</translation>
    </message>
    <message>
        <source>Connected to %1; the keyer has not answered yet</source>
        <translation>%1 に接続。キーヤーはまだ応答していません</translation>
    </message>
    <message>
        <source>Connected to %1</source>
        <translation>%1 に接続</translation>
    </message>
</context>
<context>
    <name>PreferencesMessagesPane</name>
    <message>
        <source>Label of the button</source>
        <translation>ボタンの名前</translation>
    </message>
    <message>
        <source>Text to send</source>
        <translation>送信する文</translation>
    </message>
    <message>
        <source>Message &amp;1</source>
        <translation>メッセージ &amp;1</translation>
    </message>
    <message>
        <source>Message 1 label</source>
        <translation>メッセージ 1 の名前</translation>
    </message>
    <message>
        <source>What the message&apos;s button in the main window says.</source>
        <translation>メイン画面のメッセージボタンに表示される名前。</translation>
    </message>
    <message>
        <source>Message 1</source>
        <translation>メッセージ 1</translation>
    </message>
    <message>
        <source>What is sent by the message&apos;s button, and by F1.</source>
        <translation>メッセージボタンと F1 で送信する文。</translation>
    </message>
    <message>
        <source>Message &amp;2</source>
        <translation>メッセージ &amp;2</translation>
    </message>
    <message>
        <source>Message 2 label</source>
        <translation>メッセージ 2 の名前</translation>
    </message>
    <message>
        <source>Message 2</source>
        <translation>メッセージ 2</translation>
    </message>
    <message>
        <source>What is sent by the message&apos;s button, and by F2.</source>
        <translation>メッセージボタンと F2 で送信する文。</translation>
    </message>
    <message>
        <source>Message &amp;3</source>
        <translation>メッセージ &amp;3</translation>
    </message>
    <message>
        <source>Message 3 label</source>
        <translation>メッセージ 3 の名前</translation>
    </message>
    <message>
        <source>Message 3</source>
        <translation>メッセージ 3</translation>
    </message>
    <message>
        <source>What is sent by the message&apos;s button, and by F3.</source>
        <translation>メッセージボタンと F3 で送信する文。</translation>
    </message>
    <message>
        <source>Message &amp;4</source>
        <translation>メッセージ &amp;4</translation>
    </message>
    <message>
        <source>Message 4 label</source>
        <translation>メッセージ 4 の名前</translation>
    </message>
    <message>
        <source>Message 4</source>
        <translation>メッセージ 4</translation>
    </message>
    <message>
        <source>What is sent by the message&apos;s button, and by F4.</source>
        <translation>メッセージボタンと F4 で送信する文。</translation>
    </message>
    <message>
        <source>Message &amp;5</source>
        <translation>メッセージ &amp;5</translation>
    </message>
    <message>
        <source>Message 5 label</source>
        <translation>メッセージ 5 の名前</translation>
    </message>
    <message>
        <source>Message 5</source>
        <translation>メッセージ 5</translation>
    </message>
    <message>
        <source>What is sent by the message&apos;s button, and by F5.</source>
        <translation>メッセージボタンと F5 で送信する文。</translation>
    </message>
    <message>
        <source>Message &amp;6</source>
        <translation>メッセージ &amp;6</translation>
    </message>
    <message>
        <source>Message 6 label</source>
        <translation>メッセージ 6 の名前</translation>
    </message>
    <message>
        <source>Message 6</source>
        <translation>メッセージ 6</translation>
    </message>
    <message>
        <source>What is sent by the message&apos;s button, and by F6.</source>
        <translation>メッセージボタンと F6 で送信する文。</translation>
    </message>
    <message>
        <source>Message &amp;7</source>
        <translation>メッセージ &amp;7</translation>
    </message>
    <message>
        <source>Message 7 label</source>
        <translation>メッセージ 7 の名前</translation>
    </message>
    <message>
        <source>Message 7</source>
        <translation>メッセージ 7</translation>
    </message>
    <message>
        <source>What is sent by the message&apos;s button, and by F7.</source>
        <translation>メッセージボタンと F7 で送信する文。</translation>
    </message>
    <message>
        <source>Message &amp;8</source>
        <translation>メッセージ &amp;8</translation>
    </message>
    <message>
        <source>Message 8 label</source>
        <translation>メッセージ 8 の名前</translation>
    </message>
    <message>
        <source>Message 8</source>
        <translation>メッセージ 8</translation>
    </message>
    <message>
        <source>What is sent by the message&apos;s button, and by F8.</source>
        <translation>メッセージボタンと F8 で送信する文。</translation>
    </message>
    <message>
        <source>&amp;Beacon interval</source>
        <translation>ビーコン間隔(&amp;B)</translation>
    </message>
    <message>
        <source>Beacon interval</source>
        <translation>ビーコン間隔</translation>
    </message>
    <message>
        <source>How long the beacon is silent before it sends its message again.</source>
        <translation>ビーコンが次にメッセージを送るまで黙っている時間。</translation>
    </message>
    <message>
        <source> s</source>
        <translation> 秒</translation>
    </message>
</context>
<context>
    <name>PreferencesMessagesViewController</name>
    <message>
        <source>Messages</source>
        <translation>メッセージ</translation>
    </message>
    <message>
        <source>their call</source>
        <translation>相手局</translation>
    </message>
    <message>
        <source>their call (%1)</source>
        <translation>相手局 (%1)</translation>
    </message>
    <message>
        <source>In a text, ` stands for your call (%1), # for the serial number (%2), and ~ for %3. Between % and ^ the keyer sends high-speed CW, { joins the next two letters to one sign, and | is half a dit of space.</source>
        <translation>文の中で、` は自局コールサイン (%1)、# はシリアル番号 (%2)、~ は%3を表します。% と ^ の間は高速 CW で送信し、{ は次の 2 文字をつなげて 1 つの符号にし、| は短点半分の間隔です。</translation>
    </message>
</context>
<context>
    <name>PreferencesWinKeyerPane</name>
    <message>
        <source>Groups of settings</source>
        <translation>設定のグループ</translation>
    </message>
    <message>
        <source>&amp;Keying</source>
        <translation>キーイング(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Weighting</source>
        <translation>ウェイト(&amp;W)</translation>
    </message>
    <message>
        <source>Above 0 elements grow and the gaps after them shrink, for a heavier sound; below 0 it is lighter.</source>
        <translation>0 より大きいと符号が長く間隔が短くなり、重い音になります。0 より小さいと軽くなります。</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Dah/dit &amp;ratio</source>
        <translation>長短点比(&amp;R)</translation>
    </message>
    <message>
        <source>How many dits long a dah is: 3 is the standard, more gives a swing.</source>
        <translation>長点が短点いくつ分か。3 が標準で、大きくするとスイングがかかります。</translation>
    </message>
    <message>
        <source> : 1</source>
        <translation> : 1</translation>
    </message>
    <message>
        <source>&amp;Compensation</source>
        <translation>補正(&amp;C)</translation>
    </message>
    <message>
        <source>Added to every element and taken from the gap after it, for a transmitter that clips elements.</source>
        <translation>各符号を延ばし、その分だけ後の間隔を縮めます。符号が欠ける送信機のためです。</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>First &amp;extension</source>
        <translation>先頭延長(&amp;E)</translation>
    </message>
    <message>
        <source>Added once to the first element after receiving, for a transmitter that swallows its start.</source>
        <translation>受信後の最初の符号を 1 回だけ延ばします。出だしが欠ける送信機のためです。</translation>
    </message>
    <message>
        <source>&amp;Farnsworth speed</source>
        <translation>ファーンズワース速度(&amp;F)</translation>
    </message>
    <message>
        <source>While the speed is below this, letters are keyed at this speed and only the gaps between them are slow.</source>
        <translation>速度がこれより遅いとき、文字はこの速度で送り、文字の間隔だけを遅くします。</translation>
    </message>
    <message>
        <source> wpm</source>
        <translation> wpm</translation>
    </message>
    <message>
        <source>Leaves six dits between words in place of seven.</source>
        <translation>語間隔を短点 7 つ分でなく 6 つ分にします。</translation>
    </message>
    <message>
        <source>C&amp;ontest spacing</source>
        <translation>コンテスト間隔(&amp;O)</translation>
    </message>
    <message>
        <source>Padd&amp;le</source>
        <translation>パドル(&amp;L)</translation>
    </message>
    <message>
        <source>Key &amp;mode</source>
        <translation>キーモード(&amp;M)</translation>
    </message>
    <message>
        <source>A squeeze: iambic B adds an element at its end, A none; ultimatic repeats one; a bug leaves the dahs to you.</source>
        <translation>両方を押すと、B は最後に 1 符号加え、A は加えません。アルティマティックは一方を反復。バグの長点は手動です。</translation>
    </message>
    <message>
        <source>Ultimatic pr&amp;iority</source>
        <translation>優先するパドル(&amp;I)</translation>
    </message>
    <message>
        <source>Which paddle wins while both are closed: with Normal, the one closed last. Needs the key mode Ultimatic.</source>
        <translation>両方のパドルが閉じているとき優先される側。「通常」では後から閉じた側です。アルティマティックのときに有効です。</translation>
    </message>
    <message>
        <source>Remembers a paddle that is touched while another element is still being keyed.</source>
        <translation>ほかの符号を送っている間に触れたパドルを覚えておきます。</translation>
    </message>
    <message>
        <source>Dit/dah memor&amp;y</source>
        <translation>短点/長点メモリー(&amp;Y)</translation>
    </message>
    <message>
        <source>S&amp;witchpoint</source>
        <translation>切替点(&amp;W)</translation>
    </message>
    <message>
        <source>Switchpoint</source>
        <translation>切替点</translation>
    </message>
    <message>
        <source>From when in an element a touch counts for the next. Needs the memory.</source>
        <translation>符号のどこから、触れたパドルを次の符号とするか。メモリーが必要です。</translation>
    </message>
    <message>
        <source> % of a dit</source>
        <translation> % (短点)</translation>
    </message>
    <message>
        <source>Dits on the right paddle and dahs on the left, as for a left-handed operator.</source>
        <translation>左利きの人のように、右のパドルを短点、左のパドルを長点にします。</translation>
    </message>
    <message>
        <source>Swap &amp;paddles</source>
        <translation>パドル入れ替え(&amp;P)</translation>
    </message>
    <message>
        <source>A pause of more than a dit between letters on the paddle becomes a full letter space.</source>
        <translation>パドルで送る文字の間に短点より長い間があると、正しい文字間隔にします。</translation>
    </message>
    <message>
        <source>A&amp;utospace</source>
        <translation>オートスペース(&amp;U)</translation>
    </message>
    <message>
        <source>The watchdog ends keying after 128 dits or dahs in a row, as from a paddle that is stuck. On here, nothing does.</source>
        <translation>ウォッチドッグは短点か長点が 128 続くと送信を止めます。オンにすると、パドルが引っ掛かっても止まりません。</translation>
    </message>
    <message>
        <source>Disable watchdo&amp;g</source>
        <translation>ウォッチドッグ無効(&amp;G)</translation>
    </message>
    <message>
        <source>Echo to the computer</source>
        <translation>コンピューターへのエコー</translation>
    </message>
    <message>
        <source>The keyer tells the computer what you key on the paddle.</source>
        <translation>パドルで送った文字をキーヤーがコンピューターに知らせます。</translation>
    </message>
    <message>
        <source>Paddle e&amp;cho-back</source>
        <translation>パドルエコー(&amp;C)</translation>
    </message>
    <message>
        <source>The keyer reports each character that it has keyed. Off, the gaps between letters grow, and PTT may fall in them.</source>
        <translation>送った文字をキーヤーが 1 つずつ知らせます。オフにすると文字間隔が延び、その間に PTT が切れることがあります。</translation>
    </message>
    <message>
        <source>Serial &amp;echo-back</source>
        <translation>シリアルエコー(&amp;E)</translation>
    </message>
    <message>
        <source>Leave serial echo-back on: without it, what the computer sends has longer gaps between its letters.</source>
        <translation>シリアルエコーはオンのままにしてください。オフだと、コンピューターからの送信は文字間隔が長くなります。</translation>
    </message>
    <message>
        <source>&amp;Sidetone and outputs</source>
        <translation>音と出力(&amp;S)</translation>
    </message>
    <message>
        <source>Sidetone</source>
        <translation>サイドトーン</translation>
    </message>
    <message>
        <source>The keyer sounds what it keys.</source>
        <translation>キーヤーが送る符号を音で聞かせます。</translation>
    </message>
    <message>
        <source>Sidetone o&amp;n</source>
        <translation>サイドトーンオン(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Pitch</source>
        <translation>音程(&amp;P)</translation>
    </message>
    <message>
        <source>Pitch of the sidetone, for your ears only: it is not heard on the air. Needs the sidetone on.</source>
        <translation>サイドトーンの音程。自分に聞こえるだけで、電波には乗りません。サイドトーンオンのときに有効です。</translation>
    </message>
    <message>
        <source>Sounds what you key on the paddle, and is silent while the computer sends. Needs the sidetone on.</source>
        <translation>パドルで送るときだけ鳴り、コンピューターの送信中は黙ります。サイドトーンオンのときに有効です。</translation>
    </message>
    <message>
        <source>&amp;Only for the paddle</source>
        <translation>パドルのときだけ(&amp;O)</translation>
    </message>
    <message>
        <source>Key outputs</source>
        <translation>キー出力</translation>
    </message>
    <message>
        <source>Keys the transmitter on output 1.</source>
        <translation>出力 1 の送信機をキーイングします。</translation>
    </message>
    <message>
        <source>Key output &amp;1</source>
        <translation>キー出力 &amp;1</translation>
    </message>
    <message>
        <source>Keys the transmitter on output 2.</source>
        <translation>出力 2 の送信機をキーイングします。</translation>
    </message>
    <message>
        <source>Key output &amp;2</source>
        <translation>キー出力 &amp;2</translation>
    </message>
    <message>
        <source>Both are off: no transmitter is keyed.</source>
        <translation>両方ともオフです: どの送信機もキーイングされません。</translation>
    </message>
    <message>
        <source>PTT</source>
        <translation>PTT</translation>
    </message>
    <message>
        <source>Switches the transmitter over before keying and back after it, in place of break-in by the radio itself.</source>
        <translation>無線機のブレークインの代わりに、キーイングの前に送信へ、後で受信へ切り替えます。</translation>
    </message>
    <message>
        <source>PTT &amp;enabled</source>
        <translation>PTT オン(&amp;E)</translation>
    </message>
    <message>
        <source>Lead-&amp;in</source>
        <translation>送信前の待ち(&amp;I)</translation>
    </message>
    <message>
        <source>Wait between switching to transmit and the first element, for relays and amplifiers. Needs PTT enabled.</source>
        <translation>送信への切り替えから最初の符号までの待ち時間。リレーやアンプのためです。PTT オンのときに有効です。</translation>
    </message>
    <message>
        <source>&amp;Tail</source>
        <translation>送信後の保持(&amp;T)</translation>
    </message>
    <message>
        <source>How long the transmitter stays on after text from the computer, beyond a letter space. Needs PTT enabled.</source>
        <translation>コンピューターからの文の後、文字間隔を超えて送信のままにする時間。PTT オンのときに有効です。</translation>
    </message>
    <message>
        <source>Paddle &amp;hang</source>
        <translation>パドル後の保持(&amp;H)</translation>
    </message>
    <message>
        <source>How long the transmitter stays on after the paddle: short to hear sooner, long to spare the relay. Needs PTT enabled.</source>
        <translation>パドルの後に送信のままにする時間。短いと早く聞け、長いとリレーをいたわれます。PTT オンのときに有効です。</translation>
    </message>
    <message>
        <source>word spaces</source>
        <translation>語間隔</translation>
    </message>
    <message>
        <source>Spee&amp;d</source>
        <translation>速度(&amp;D)</translation>
    </message>
    <message>
        <source>Speed pot</source>
        <translation>速度つまみ</translation>
    </message>
    <message>
        <source>Lo&amp;west speed</source>
        <translation>最低速度(&amp;W)</translation>
    </message>
    <message>
        <source>Speed with the pot turned fully down.</source>
        <translation>つまみを左いっぱいに回したときの速度。</translation>
    </message>
    <message>
        <source>&amp;Range</source>
        <translation>範囲(&amp;R)</translation>
    </message>
    <message>
        <source>Speed added with the pot turned fully up. With more than 31 wpm its topmost readings are not shown.</source>
        <translation>つまみを右いっぱいに回したときに加わる速度。31 wpm を超えると最上部の値は表示されません。</translation>
    </message>
    <message>
        <source>High-speed CW</source>
        <translation>高速 CW</translation>
    </message>
    <message>
        <source>Ra&amp;te</source>
        <translation>速さ(&amp;T)</translation>
    </message>
    <message>
        <source>Letters a minute while high-speed CW is on, as for meteor scatter. Holds from when it is next switched on.</source>
        <translation>高速 CW の 1 分あたりの文字数。流星散乱通信などに使います。次にオンにしたときから有効です。</translation>
    </message>
    <message>
        <source>St&amp;andalone</source>
        <translation>単独動作(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Command speed</source>
        <translation>コマンド速度(&amp;C)</translation>
    </message>
    <message>
        <source>Speed at which the keyer, working alone, answers what you set by paddle. Reaches it with Save to keyer.</source>
        <translation>単独動作中のキーヤーが、パドルからの設定に答える速度。「キーヤーに保存」で届きます。</translation>
    </message>
    <message>
        <source>A touch of the paddle breaks off a message that the keyer sends from its memory. Reaches the keyer with Save to keyer.</source>
        <translation>パドルに触れると、キーヤーのメモリーから送信中のメッセージを中断します。「キーヤーに保存」で届きます。</translation>
    </message>
    <message>
        <source>&amp;Message break</source>
        <translation>メッセージの中断(&amp;M)</translation>
    </message>
    <message>
        <source>Serial numbers that the keyer counts by itself are sent short, as T for 0. Reaches the keyer with Save to keyer.</source>
        <translation>キーヤーが自分で数えるシリアル番号を、0 を T とするなど短く送ります。「キーヤーに保存」で届きます。</translation>
    </message>
    <message>
        <source>C&amp;ut serial numbers</source>
        <translation>短縮シリアル番号(&amp;U)</translation>
    </message>
</context>
<context>
    <name>PreferencesWinKeyerViewController</name>
    <message>
        <source>WinKeyer</source>
        <translation>WinKeyer</translation>
    </message>
    <message>
        <source>The keyer&apos;s memory could not be written.</source>
        <translation>キーヤーのメモリーに書き込めませんでした。</translation>
    </message>
    <message>
        <source>Check that the keyer is connected.</source>
        <translation>キーヤーが接続されているか確かめてください。</translation>
    </message>
</context>
<context>
    <name>QuorvelDelegate</name>
    <message>
        <source>The WinKeyer using serial port %1 has been unplugged.</source>
        <translation>シリアルポート %1 の WinKeyer が抜かれました。</translation>
    </message>
    <message>
        <source>Plug it back in, or choose another serial port in General preferences.</source>
        <translation>接続し直すか、設定の「一般」で別のシリアルポートを選んでください。</translation>
    </message>
    <message>
        <source>The serial port %1 has been plugged in.</source>
        <translation>シリアルポート %1 が接続されました。</translation>
    </message>
    <message>
        <source>Try to use this port to communicate with a WinKeyer?</source>
        <translation>このポートを使って WinKeyer と通信してみますか?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>No</source>
        <translation>いいえ</translation>
    </message>
</context>
<context>
    <name>RegisterWords</name>
    <message>
        <source>on</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>off</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1 WPM</source>
        <translation>%1 WPM</translation>
    </message>
    <message>
        <source>%1 WPM, from the knob</source>
        <translation>%1 WPM、つまみから</translation>
    </message>
    <message>
        <source>%1; %2 WPM for now</source>
        <translation>%1、今は %2 WPM</translation>
    </message>
    <message>
        <source>iambic A</source>
        <translation>アイアンビック A</translation>
    </message>
    <message>
        <source>ultimatic</source>
        <translation>アルティマティック</translation>
    </message>
    <message>
        <source>bug</source>
        <translation>バグキー</translation>
    </message>
    <message>
        <source>iambic B</source>
        <translation>アイアンビック B</translation>
    </message>
    <message>
        <source>dah</source>
        <translation>長点</translation>
    </message>
    <message>
        <source>dit</source>
        <translation>短点</translation>
    </message>
    <message>
        <source>the last one closed</source>
        <translation>最後に閉じた接点</translation>
    </message>
    <message>
        <source>%1 Hz, for the paddle only</source>
        <translation>%1 Hz、パドルのときだけ</translation>
    </message>
    <message>
        <source>%1 Hz</source>
        <translation>%1 Hz</translation>
    </message>
    <message>
        <source>%1 to %2 WPM</source>
        <translation>%1～%2 WPM</translation>
    </message>
    <message>
        <source>1 and 2</source>
        <translation>1 と 2</translation>
    </message>
    <message>
        <source>none</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>速度</translation>
    </message>
    <message>
        <source>Knob&apos;s range</source>
        <translation>つまみの範囲</translation>
    </message>
    <message>
        <source>Farnsworth</source>
        <translation>ファーンズワース</translation>
    </message>
    <message>
        <source>Weighting</source>
        <translation>ウェイト</translation>
    </message>
    <message>
        <source>Dah to dit</source>
        <translation>長短点比</translation>
    </message>
    <message>
        <source>%1 to 1</source>
        <translation>%1 対 1</translation>
    </message>
    <message>
        <source>Key compensation</source>
        <translation>補正</translation>
    </message>
    <message>
        <source>First extension</source>
        <translation>先頭延長</translation>
    </message>
    <message>
        <source>Word space</source>
        <translation>語間</translation>
    </message>
    <message>
        <source>%1 dits</source>
        <translation>%1 短点分</translation>
    </message>
    <message>
        <source>Paddle keying</source>
        <translation>パドルの方式</translation>
    </message>
    <message>
        <source>Ultimatic priority</source>
        <translation>優先するパドル</translation>
    </message>
    <message>
        <source>Paddle swapped</source>
        <translation>パドル入れ替え</translation>
    </message>
    <message>
        <source>Paddle memory</source>
        <translation>パドルの記憶</translation>
    </message>
    <message>
        <source>after %1 dit lengths</source>
        <translation>短点 %1 個分の後</translation>
    </message>
    <message>
        <source>Paddle watchdog</source>
        <translation>パドルの監視</translation>
    </message>
    <message>
        <source>Autospace</source>
        <translation>自動スペース</translation>
    </message>
    <message>
        <source>Paddle echo</source>
        <translation>パドルエコー</translation>
    </message>
    <message>
        <source>Serial echo</source>
        <translation>シリアルエコー</translation>
    </message>
    <message>
        <source>Sidetone</source>
        <translation>サイドトーン</translation>
    </message>
    <message>
        <source>Key outputs</source>
        <translation>キー出力</translation>
    </message>
    <message>
        <source>PTT</source>
        <translation>PTT</translation>
    </message>
    <message>
        <source>Lead-in</source>
        <translation>送信前の待ち</translation>
    </message>
    <message>
        <source>Tail</source>
        <translation>送信後の保持</translation>
    </message>
    <message>
        <source>Hang time</source>
        <translation>パドル後の保持</translation>
    </message>
    <message>
        <source>word space and %1 dits</source>
        <translation>語間と短点 %1 個分</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>RunTable</name>
    <message>
        <source>the record is damaged</source>
        <translation>記録が壊れています</translation>
    </message>
</context>
<context>
    <name>RunText</name>
    <message>
        <source>UTC</source>
        <translation>UTC</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>速度</translation>
    </message>
    <message>
        <source>Sent by</source>
        <translation>送信元</translation>
    </message>
    <message>
        <source>How it ended</source>
        <translation>終わり方</translation>
    </message>
    <message>
        <source>%1 LPM</source>
        <translation>%1 字/分</translation>
    </message>
    <message>
        <source>%1 WPM</source>
        <translation>%1 WPM</translation>
    </message>
    <message>
        <source>Typed</source>
        <translation>入力</translation>
    </message>
    <message>
        <source>F%1 %2</source>
        <translation>F%1 %2</translation>
    </message>
    <message>
        <source>Push-button %1 %2</source>
        <translation>押しボタン %1 %2</translation>
    </message>
    <message>
        <source>Beacon</source>
        <translation>ビーコン</translation>
    </message>
    <message>
        <source>Logger, port %1</source>
        <translation>ロガー、ポート %1</translation>
    </message>
    <message>
        <source>Logger %1</source>
        <translation>ロガー %1</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>送信済み</translation>
    </message>
    <message>
        <source>Stopped at character %1</source>
        <translation>%1 文字目で停止</translation>
    </message>
    <message>
        <source>Broken in on at character %1</source>
        <translation>%1 文字目で割り込み</translation>
    </message>
    <message>
        <source>Link lost at character %1</source>
        <translation>%1 文字目で接続が切れた</translation>
    </message>
</context>
<context>
    <name>ScopeWords</name>
    <message>
        <source>PTT</source>
        <translation>PTT</translation>
    </message>
    <message>
        <source>dit %1</source>
        <translation>短点 %1</translation>
    </message>
    <message>
        <source>dah %1</source>
        <translation>長点 %1</translation>
    </message>
    <message>
        <source>space %1</source>
        <translation>間隔 %1</translation>
    </message>
    <message>
        <source>letter space %1</source>
        <translation>字間 %1</translation>
    </message>
    <message>
        <source>word space %1</source>
        <translation>語間 %1</translation>
    </message>
    <message>
        <source>pause %1</source>
        <translation>休止 %1</translation>
    </message>
    <message>
        <source>elements and spaces: %1</source>
        <translation>短点・長点と間隔: %1 個</translation>
    </message>
    <message>
        <source>Click and drag to measure, or use the arrow keys.</source>
        <translation>測るには、クリックしてドラッグするか、矢印キーを使います。</translation>
    </message>
    <message>
        <source>One cursor is set.</source>
        <translation>カーソルが 1 本あります。</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>%1 ms: %2</source>
        <translation>%1 ms: %2</translation>
    </message>
</context>
<context>
    <name>SentRecord</name>
    <message>
        <source>What you send cannot be recorded in %1: %2.</source>
        <translation>送信したものを %1 に記録できません: %2。</translation>
    </message>
    <message>
        <source>The record of what was sent was damaged. It is kept as %1, and a new one has been begun.</source>
        <translation>送信の記録が壊れていました。%1 として残し、新しい記録を始めました。</translation>
    </message>
</context>
<context>
    <name>SentWindow</name>
    <message>
        <source>Sent</source>
        <translation>送信済み</translation>
    </message>
    <message>
        <source>&amp;Find:</source>
        <translation>検索(&amp;F):</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Words, a call sign, a key, a logger or a date</source>
        <translation>言葉、コールサイン、キー、ロガー、日付</translation>
    </message>
    <message>
        <source>&amp;Keep a record of what is sent, for</source>
        <translation>送信したものを記録する、期間(&amp;K)</translation>
    </message>
    <message>
        <source>How long what is sent is kept</source>
        <translation>送信の記録を残す期間</translation>
    </message>
    <message>
        <source>&amp;Make Message</source>
        <translation>メッセージにする(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Save as CSV…</source>
        <translation>CSV で保存(&amp;S)…</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>閉じる(&amp;L)</translation>
    </message>
    <message>
        <source>%1 sent</source>
        <translation>送信 %1 件</translation>
    </message>
    <message>
        <source>%1 found</source>
        <translation>%1 件見つかりました</translation>
    </message>
    <message>
        <source>The newest %1 found</source>
        <translation>新しいほうから %1 件</translation>
    </message>
    <message>
        <source>Sends the text of the chosen line, as if it were typed</source>
        <translation>選んだ行の文を、入力したのと同じように送ります</translation>
    </message>
    <message>
        <source>No keyer is connected</source>
        <translation>キーヤーがつながっていません</translation>
    </message>
    <message>
        <source>Puts the text of the chosen line under a message key</source>
        <translation>選んだ行の文をメッセージキーに入れます</translation>
    </message>
    <message>
        <source>F&amp;%1  %2</source>
        <translation>F&amp;%1  %2</translation>
    </message>
    <message>
        <source>Replace the text of F%1?</source>
        <translation>F%1 の文を置き換えますか？</translation>
    </message>
    <message>
        <source>It is “%1” now, and will be “%2”.</source>
        <translation>今は「%1」で、「%2」になります。</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>置き換える</translation>
    </message>
    <message>
        <source>Save as CSV</source>
        <translation>CSV で保存</translation>
    </message>
    <message>
        <source>Values separated by commas (*.csv)</source>
        <translation>コンマ区切りの値 (*.csv)</translation>
    </message>
    <message>
        <source>sent.csv</source>
        <translation>sent.csv</translation>
    </message>
    <message>
        <source>Saved as %1</source>
        <translation>%1 に保存しました</translation>
    </message>
    <message>
        <source>Not saved: %1</source>
        <translation>保存できません: %1</translation>
    </message>
    <message>
        <source>Send Again</source>
        <translation>もう一度送信</translation>
    </message>
    <message>
        <source>Saved as %1, without %2 that could not be read</source>
        <translation>%1 に保存しました（読み取れなかった %2 件を除く）</translation>
    </message>
</context>
<context>
    <name>Setting</name>
    <message>
        <source>Off</source>
        <translation>しない</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Iambic B</source>
        <translation>アイアンビック B</translation>
    </message>
    <message>
        <source>Iambic A</source>
        <translation>アイアンビック A</translation>
    </message>
    <message>
        <source>Ultimatic</source>
        <translation>アルティマティック</translation>
    </message>
    <message>
        <source>Bug</source>
        <translation>バグ</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>通常</translation>
    </message>
    <message>
        <source>Dashes</source>
        <translation>長点</translation>
    </message>
    <message>
        <source>Dots</source>
        <translation>短点</translation>
    </message>
    <message>
        <source>Exchange</source>
        <translation>ナンバー</translation>
    </message>
    <message>
        <source>Acknowledge</source>
        <translation>了解</translation>
    </message>
    <message>
        <source>My Call</source>
        <translation>自局</translation>
    </message>
    <message>
        <source>Their Call</source>
        <translation>相手局</translation>
    </message>
    <message>
        <source>Again</source>
        <translation>再送要求</translation>
    </message>
    <message>
        <source>%1 lpm</source>
        <translation>%1 字/分</translation>
    </message>
    <message>
        <source>1 month</source>
        <translation>1 か月</translation>
    </message>
    <message>
        <source>3 months</source>
        <translation>3 か月</translation>
    </message>
    <message>
        <source>1 year</source>
        <translation>1 年</translation>
    </message>
    <message>
        <source>5 years</source>
        <translation>5 年</translation>
    </message>
</context>
<context>
    <name>SettingBinder</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>SettingsFileAlert</name>
    <message>
        <source>You may not read %1. It was left as it is, and what you choose now is stored in %2.</source>
        <translation>%1 を読む権限がありません。ファイルはそのままで、これから選ぶものは %2 に保存されます。</translation>
    </message>
    <message>
        <source>, </source>
        <translation>、</translation>
    </message>
    <message>
        <source>Your settings could not be read.</source>
        <translation>設定を読めませんでした。</translation>
    </message>
    <message>
        <source>Your settings cannot be stored.</source>
        <translation>設定を保存できません。</translation>
    </message>
    <message>
        <source>A quotation mark in %1 is not closed.</source>
        <translation>%1 の引用符が閉じていません。</translation>
    </message>
    <message>
        <source>%1 is a pipe or a device.</source>
        <translation>%1 はパイプかデバイスです。</translation>
    </message>
    <message>
        <source>%1 is much too large to be settings.</source>
        <translation>%1 は設定としては大きすぎます。</translation>
    </message>
    <message>
        <source>There is something in %1 that is no setting.</source>
        <translation>%1 に設定でないものがあります。</translation>
    </message>
    <message>
        <source>The file could not be put aside. It was left as it is, and what you choose now is stored in %1.</source>
        <translation>ファイルを退避できませんでした。ファイルはそのままで、これから選ぶものは %1 に保存されます。</translation>
    </message>
    <message>
        <source>Nothing of it is lost: it is now %1. The lines that could be read are in use.</source>
        <translation>何も失われていません: いまは %1 にあります。読めた行は使われます。</translation>
    </message>
    <message>
        <source>Nothing of it is lost: it is now %1. Quorvel starts with the settings of a new installation.</source>
        <translation>何も失われていません: いまは %1 にあります。Quorvel は新しくインストールしたときの設定で始まります。</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2. What is not stored holds until you quit, and is lost then unless it can be stored before: %3.</source>
        <translation>%1 に書き込めません: %2。保存されていないものは終了するまで有効ですが、それまでに保存できなければ失われます: %3。</translation>
    </message>
    <message>
        <source>Nothing of it is lost: it is now %1. Of what cannot be read, the last settings hold, and have been stored anew.</source>
        <translation>何も失われていません: いまは %1 にあります。読めないものについては最後の設定が有効で、保存し直されました。</translation>
    </message>
    <message>
        <source>Your settings were damaged by another program.</source>
        <translation>別のプログラムが設定を壊しました。</translation>
    </message>
    <message>
        <source>%1 … (%2 in all)</source>
        <translation>%1 …(全部で %2)</translation>
    </message>
</context>
<context>
    <name>SleepNotice</name>
    <message>
        <source>The computer went to sleep, which stopped the sending.</source>
        <translation>コンピューターがスリープし、送信が止まりました。</translation>
    </message>
    <message>
        <source>What you entered meanwhile waits: take Pause off to send it, or press Esc to drop it.</source>
        <translation>その間に入力したものは待っています: 送信するには一時停止をオフに、取り消すには Esc を押してください。</translation>
    </message>
</context>
<context>
    <name>SpeedLabel</name>
    <message>
        <source>%1 LPM</source>
        <translation>%1 字/分</translation>
    </message>
    <message>
        <source>%1 WPM</source>
        <translation>%1 WPM</translation>
    </message>
    <message>
        <source>– WPM</source>
        <translation>– WPM</translation>
    </message>
    <message>
        <source>set here</source>
        <translation>ここで設定</translation>
    </message>
    <message>
        <source>knob</source>
        <translation>つまみ</translation>
    </message>
    <message>
        <source>%1, set here</source>
        <translation>%1、ここで設定</translation>
    </message>
</context>
<context>
    <name>SpokenChanges</name>
    <message>
        <source>%1: on</source>
        <translation>%1: オン</translation>
    </message>
    <message>
        <source>%1: off</source>
        <translation>%1: オフ</translation>
    </message>
    <message>
        <source>Break-in: what waited was dropped</source>
        <translation>ブレークイン: 待っていたものは取り消されました</translation>
    </message>
</context>
<context>
    <name>StandaloneMessages</name>
    <message>
        <source>Message &amp;1</source>
        <translation>メッセージ &amp;1</translation>
    </message>
    <message>
        <source>What the keyer sends from its own memory as message 1. Tokens are not filled in.</source>
        <translation>キーヤーが自分のメモリーからメッセージ 1 として送る文。記号は置き換えられません。</translation>
    </message>
    <message>
        <source>Send 1</source>
        <translation>1 を送信</translation>
    </message>
    <message>
        <source>Message &amp;2</source>
        <translation>メッセージ &amp;2</translation>
    </message>
    <message>
        <source>What the keyer sends from its own memory as message 2. Tokens are not filled in.</source>
        <translation>キーヤーが自分のメモリーからメッセージ 2 として送る文。記号は置き換えられません。</translation>
    </message>
    <message>
        <source>Send 2</source>
        <translation>2 を送信</translation>
    </message>
    <message>
        <source>Message &amp;3</source>
        <translation>メッセージ &amp;3</translation>
    </message>
    <message>
        <source>What the keyer sends from its own memory as message 3. Tokens are not filled in.</source>
        <translation>キーヤーが自分のメモリーからメッセージ 3 として送る文。記号は置き換えられません。</translation>
    </message>
    <message>
        <source>Send 3</source>
        <translation>3 を送信</translation>
    </message>
    <message>
        <source>Message &amp;4</source>
        <translation>メッセージ &amp;4</translation>
    </message>
    <message>
        <source>What the keyer sends from its own memory as message 4. Tokens are not filled in.</source>
        <translation>キーヤーが自分のメモリーからメッセージ 4 として送る文。記号は置き換えられません。</translation>
    </message>
    <message>
        <source>Send 4</source>
        <translation>4 を送信</translation>
    </message>
    <message>
        <source>Message &amp;5</source>
        <translation>メッセージ &amp;5</translation>
    </message>
    <message>
        <source>What the keyer sends from its own memory as message 5. Tokens are not filled in.</source>
        <translation>キーヤーが自分のメモリーからメッセージ 5 として送る文。記号は置き換えられません。</translation>
    </message>
    <message>
        <source>Send 5</source>
        <translation>5 を送信</translation>
    </message>
    <message>
        <source>Message &amp;6</source>
        <translation>メッセージ &amp;6</translation>
    </message>
    <message>
        <source>What the keyer sends from its own memory as message 6. Tokens are not filled in.</source>
        <translation>キーヤーが自分のメモリーからメッセージ 6 として送る文。記号は置き換えられません。</translation>
    </message>
    <message>
        <source>Send 6</source>
        <translation>6 を送信</translation>
    </message>
    <message>
        <source>Loading the keyer&apos;s memory</source>
        <translation>キーヤーのメモリーに書き込み中</translation>
    </message>
    <message>
        <source>The serial line takes two and a half seconds for the whole memory.</source>
        <translation>シリアル回線では、メモリー全体に 2.5 秒かかります。</translation>
    </message>
    <message>
        <source>Loading the keyer&apos;s memory: %p%</source>
        <translation>キーヤーのメモリーに書き込み中: %p%</translation>
    </message>
    <message>
        <source>Sa&amp;ve to keyer</source>
        <translation>キーヤーに保存(&amp;V)</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>「%1」</translation>
    </message>
    <message>
        <source>Cannot hold %1</source>
        <translation>%1 は入れられません</translation>
    </message>
    <message>
        <source>Does not fit</source>
        <translation>入りきりません</translation>
    </message>
    <message>
        <source>Ends at %1</source>
        <translation>%1 で終わります</translation>
    </message>
    <message>
        <source>No Morse for %1</source>
        <translation>%1 の符号はありません</translation>
    </message>
    <message>
        <source>The keyer&apos;s memory has no place for %1. Nothing can be saved while it is in this message.</source>
        <translation>キーヤーのメモリーには %1 を置けません。このメッセージにある間は何も保存できません。</translation>
    </message>
    <message>
        <source>The memory has no room for this message, which is left out when you save. Characters too many: %1.</source>
        <translation>このメッセージの場所がメモリーになく、保存するときに省かれます。多すぎる文字数: %1。</translation>
    </message>
    <message>
        <source>The keyer takes %1 for the end of the message: it sends nothing behind it, and the sign itself is cut short.</source>
        <translation>キーヤーは %1 をメッセージの終わりとみなします: その後は何も送らず、この符号自体も途中で切れます。</translation>
    </message>
    <message>
        <source>%1 has no Morse code: the keyer sends nothing in its place. Tokens are not filled in here.</source>
        <translation>%1 にはモールス符号がありません: キーヤーは代わりに何も送りません。ここでは記号は置き換えられません。</translation>
    </message>
    <message>
        <source>Message %1 holds %2, which has no Morse code. Take it out and save again.</source>
        <translation>メッセージ %1 に、モールス符号のない %2 があります。取り除いて保存し直してください。</translation>
    </message>
    <message>
        <source>Message %1: %2</source>
        <translation>メッセージ %1: %2</translation>
    </message>
    <message>
        <source>Connect the keyer to save and to send.</source>
        <translation>保存と送信には、キーヤーを接続してください。</translation>
    </message>
    <message>
        <source>The keyer&apos;s memory is being loaded.</source>
        <translation>キーヤーのメモリーに書き込み中です。</translation>
    </message>
    <message>
        <source>Writes these messages and all settings into the keyer&apos;s own memory, for work without a computer. It takes two and a half seconds.</source>
        <translation>コンピューターなしで使うために、これらのメッセージとすべての設定をキーヤー自身のメモリーに書き込みます。2.5 秒かかります。</translation>
    </message>
    <message>
        <source>Has the keyer send this message as it was last saved.</source>
        <translation>最後に保存したこのメッセージをキーヤーに送信させます。</translation>
    </message>
</context>
<context>
    <name>TuneSwitch</name>
    <message>
        <source>Tune needs a keyer, and none is connected</source>
        <translation>チューンにはキーヤーが必要ですが、接続されていません</translation>
    </message>
    <message>
        <source>The keyer&apos;s memory is being loaded</source>
        <translation>キーヤーのメモリーに書き込み中です</translation>
    </message>
</context>
<context>
    <name>TuneWarning</name>
    <message>
        <source>%1 s, lets go in %2 s</source>
        <translation>%1 秒、あと %2 秒で止まります</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 秒</translation>
    </message>
    <message>
        <source>Tune is off</source>
        <translation>チューンはオフです</translation>
    </message>
</context>
<context>
    <name>TypingWatch</name>
    <message>
        <source>%1 – takes keys when you have stopped typing</source>
        <translation>%1 – 入力をやめるとキーを受け付けます</translation>
    </message>
</context>
<context>
    <name>VirtualKeyer</name>
    <message>
        <source>the system has no watches left; openings of the port are noticed late</source>
        <translation>システムに監視の余裕がありません。ポートが開かれたことに遅れて気付きます</translation>
    </message>
    <message>
        <source>Plugged in as %1 (%2)</source>
        <translation>%1 として接続しました (%2)</translation>
    </message>
    <message>
        <source>a running virtual keyer already holds the name %1</source>
        <translation>動作中の仮想キーヤーがすでに %1 の名前を使っています</translation>
    </message>
    <message>
        <source>the directory %1 belongs to another user</source>
        <translation>ディレクトリー %1 は別の利用者のものです</translation>
    </message>
    <message>
        <source>%1 is in the way and no virtual keyer made it</source>
        <translation>%1 が邪魔をしていますが、仮想キーヤーが作ったものではありません</translation>
    </message>
    <message>
        <source>cannot write the registers %1: %2</source>
        <translation>レジスターを %1 に書けません: %2</translation>
    </message>
    <message>
        <source>cannot write the transcript %1</source>
        <translation>記録を %1 に書けません</translation>
    </message>
    <message>
        <source>a running virtual keyer (process %1) already holds the name %2</source>
        <translation>動作中の仮想キーヤー (プロセス %1) がすでに %2 の名前を使っています</translation>
    </message>
    <message>
        <source>The virtual keyer does not run: %1</source>
        <translation>仮想キーヤーが動いていません: %1</translation>
    </message>
    <message>
        <source>cannot read the script %1: %2</source>
        <translation>スクリプト %1 を読めません: %2</translation>
    </message>
    <message>
        <source>a profile that --help lists</source>
        <translation>--help に載っているプロファイル</translation>
    </message>
    <message>
        <source>%1:%2: &quot;%3&quot; is not understood; possible is: %4</source>
        <translation>%1:%2: 「%3」は解釈できません。書き方: %4</translation>
    </message>
    <message>
        <source>%1:%2: expected %3, but it is %4</source>
        <translation>%1:%2: %3 のはずが %4 です</translation>
    </message>
    <message>
        <source>%1:%2: not done before the end</source>
        <translation>%1:%2: 終了までに実行されませんでした</translation>
    </message>
    <message>
        <source>No window can be shown. What is keyed is printed here, until Ctrl+C.</source>
        <translation>ウィンドウを表示できません。送出した文字は Ctrl+C までここに表示されます。</translation>
    </message>
    <message>
        <source>cannot write the sound %1</source>
        <translation>音声 %1 を書き込めません</translation>
    </message>
</context>
<context>
    <name>VirtualKeyerCommandLine</name>
    <message>
        <source>The kind of keyer, or several of them, separated by commas:</source>
        <translation>キーヤーの種類。複数のときはコンマで区切ります:</translation>
    </message>
    <message>
        <source>Writes a line for every event, with its time in ms, to %1.</source>
        <translation>出来事ごとに、ms 単位の時刻を付けて 1 行を %1 に書きます。</translation>
    </message>
    <message>
        <source>Keeps %1 up to date with the keyer&apos;s registers, and the settings and messages of its memory: lines of a name and a value. Each change replaces the file as a whole.</source>
        <translation>キーヤーのレジスターと、そのメモリーの設定とメッセージを %1 に書き続けます。各行は名前と値です。変わるたびにファイル全体を置き換えます。</translation>
    </message>
    <message>
        <source>Where the speed pot stands, %1 to %2 words per minute, %3 by default. It counts within the range that the host has set, 10 to 25 at power-up.</source>
        <translation>速度つまみの位置。毎分 %1 ～ %2 語で、既定値は %3 です。ホストが設定した範囲に収まり、電源投入時は 10 ～ 25 です。</translation>
    </message>
    <message>
        <source>The serial port&apos;s name, %1 by default. The port is a link in quorvel/ports in the runtime directory.</source>
        <translation>シリアルポートの名前。既定値は %1 です。ポートはランタイムディレクトリーの quorvel/ports にあるリンクです。</translation>
    </message>
    <message>
        <source>Unknown profile &apos;%1&apos;; --help lists them.</source>
        <translation>「%1」という種類はありません。--help で一覧を表示します。</translation>
    </message>
    <message>
        <source>The speed is %1 to %2 words per minute, not &apos;%3&apos;.</source>
        <translation>速度は毎分 %1 ～ %2 語で、「%3」ではありません。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot name a serial port: a name has 1 to 200 characters, no slash, and does not begin with a dot.</source>
        <translation>「%1」はシリアルポートの名前にできません: 名前は 1 ～ 200 文字で、スラッシュを含まず、ピリオドで始まりません。</translation>
    </message>
    <message>
        <source>The transcript needs a file name.</source>
        <translation>記録にはファイル名が必要です。</translation>
    </message>
    <message>
        <source>The registers need a file name.</source>
        <translation>レジスターにはファイル名が必要です。</translation>
    </message>
    <message>
        <source>A Morse keyer made of software: it plugs itself in as a serial port, obeys the host
program that opens it, and prints what it keys to standard output.</source>
        <translation>ソフトウェアでできたモールスキーヤーです。自分をシリアルポートとして接続し、
それを開いたホストプログラムに従い、送った符号を標準出力に書きます。</translation>
    </message>
    <message>
        <source>Shows this text.</source>
        <translation>この説明を表示します。</translation>
    </message>
    <message>
        <source>Shows the version.</source>
        <translation>バージョンを表示します。</translation>
    </message>
    <message>
        <source>Unexpected argument &apos;%1&apos;.</source>
        <translation>余分な引数「%1」があります。</translation>
    </message>
    <message>
        <source>Standard input works the paddle: &quot;.&quot; and &quot;-&quot; each close a contact, and anything else opens both.</source>
        <translation>標準入力でパドルを操作します。「.」と「-」はそれぞれ接点を閉じ、それ以外の文字は両方を開きます。</translation>
    </message>
    <message>
        <source>Shows no window.</source>
        <translation>ウィンドウを表示しません。</translation>
    </message>
    <message>
        <source>Saves the sidetone to %1, a WAV file.</source>
        <translation>サイドトーンを WAV ファイル %1 に保存します。</translation>
    </message>
    <message>
        <source>Works the keyer as %1 says, &quot;-&quot; for standard input, and ends with it; the exit status is 3 if what it expects did not happen. Lines of it are: %2</source>
        <translation>%1 のとおりにキーヤーを操作し (標準入力は「-」)、その終わりで終了します。期待したことが起きなければ終了ステータスは 3 です。行の書き方: %2</translation>
    </message>
    <message>
        <source>The script&apos;s time passes as fast as it can, and no port is plugged in.</source>
        <translation>スクリプトの時間をできるだけ速く進め、ポートは接続しません。</translation>
    </message>
    <message>
        <source>The script needs a file name.</source>
        <translation>スクリプトにはファイル名が必要です。</translation>
    </message>
    <message>
        <source>Only a script can be fast.</source>
        <translation>速く進められるのはスクリプトだけです。</translation>
    </message>
    <message>
        <source>Standard input is either the script or the paddle.</source>
        <translation>標準入力はスクリプトかパドルのどちらか一方です。</translation>
    </message>
    <message>
        <source>The sound needs a file name.</source>
        <translation>音声にはファイル名が必要です。</translation>
    </message>
    <message>
        <source>SHARE</source>
        <translation>割合</translation>
    </message>
    <message>
        <source>SECONDS</source>
        <translation>秒</translation>
    </message>
    <message>
        <source>What is wrong with the line, or several such things, separated by commas; a number may be left out:</source>
        <translation>回線の不調を 1 つ、またはコンマで区切っていくつか。数は省ける:</translation>
    </message>
    <message>
        <source>Has chance do the same to the line as it did with this number, 1 by default.</source>
        <translation>この数のときと同じ偶然を回線に起こす。既定値は 1。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no trouble; --help lists them.</source>
        <translation>「%1」という不調はありません。一覧は --help で出ます。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no seed: a whole number, not below 0.</source>
        <translation>「%1」はシードになりません。0 以上の整数です。</translation>
    </message>
</context>
<context>
    <name>WaitingLabel</name>
    <message>
        <source>%1 waiting</source>
        <translation>待ち %1</translation>
    </message>
</context>
<context>
    <name>WinKeyerUsb</name>
    <message>
        <source>%1 WPM</source>
        <translation>%1 WPM</translation>
    </message>
    <message>
        <source>Giving up and closing connection to keyer.</source>
        <translation>あきらめてキーヤーとの接続を閉じます。</translation>
    </message>
    <message>
        <source>See AMSerialErrors.h</source>
        <translation>AMSerialErrors.h を参照してください</translation>
    </message>
    <message>
        <source>There is no port defined for the WinKeyer.</source>
        <translation>WinKeyer のポートが決められていません。</translation>
    </message>
    <message>
        <source>Choose a serial port other than None in the General Preferences pane. Or, plug in a cable to your WinKeyer USB.</source>
        <translation>設定の「一般」で「なし」以外のシリアルポートを選ぶか、WinKeyer USB のケーブルを接続してください。</translation>
    </message>
    <message>
        <source>The WinKeyer serial port %1 is not available.</source>
        <translation>WinKeyer のシリアルポート %1 は使えません。</translation>
    </message>
    <message>
        <source>Confirm that the WinKeyer is connected to the selected port, and that no other application is using that port. Also confirm that the FDTI driver is installed. Obtain the appropriate Mac OS X driver at https://ftdichip.com/drivers/.</source>
        <translation>選んだポートに WinKeyer が接続されていて、ほかのアプリケーションがそのポートを使っていないことを確かめてください。FDTI ドライバーがインストールされていることも確かめてください。適切な Mac OS X 用ドライバーは https://ftdichip.com/drivers/ にあります。</translation>
    </message>
    <message>
        <source>Unable to open the WinKeyer serial port %1.</source>
        <translation>WinKeyer のシリアルポート %1 を開けません。</translation>
    </message>
    <message>
        <source>Confirm that the USB-Serial device is connected and active.</source>
        <translation>USB シリアル機器が接続され、動作していることを確かめてください。</translation>
    </message>
    <message>
        <source>WinKeyer sync failed with AMSerial code: </source>
        <translation>WinKeyer の同期に失敗しました。AMSerial コード: </translation>
    </message>
    <message>
        <source>WinKeyer echo test Admin command failed with AMSerial code: </source>
        <translation>WinKeyer の Admin エコーテストコマンドに失敗しました。AMSerial コード: </translation>
    </message>
    <message>
        <source>WinKeyer Host Open Admin command failed.</source>
        <translation>WinKeyer の Admin Host Open コマンドに失敗しました。</translation>
    </message>
    <message>
        <source>WinKeyer returned unsupported version: %1.</source>
        <translation>WinKeyer が対応していないバージョンを返しました: %1。</translation>
    </message>
    <message>
        <source>Confirm that the WinKeyer version is between 20 and 23.</source>
        <translation>WinKeyer のバージョンが 20 ～ 23 であることを確かめてください。</translation>
    </message>
    <message>
        <source>WinKeyer Set WinKeyer 2 Mode Admin command failed.</source>
        <translation>WinKeyer の Admin Set WinKeyer 2 Mode コマンドに失敗しました。</translation>
    </message>
    <message>
        <source>WinKeyer Host Close Admin command failed with AMSerial code: </source>
        <translation>WinKeyer の Admin Host Close コマンドに失敗しました。AMSerial コード: </translation>
    </message>
</context>
<context>
    <name>WireWords</name>
    <message>
        <source>space</source>
        <translation>空白</translation>
    </message>
    <message>
        <source>Leave the speed to the knob</source>
        <translation>速度をつまみに任せる</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>再開</translation>
    </message>
    <message>
        <source>Key up</source>
        <translation>キーアップ</translation>
    </message>
    <message>
        <source>In the buffer: PTT off</source>
        <translation>バッファー内: PTT オフ</translation>
    </message>
    <message>
        <source>No Farnsworth</source>
        <translation>ファーンズワースなし</translation>
    </message>
    <message>
        <source>none</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>dit</source>
        <translation>短点</translation>
    </message>
    <message>
        <source>dah</source>
        <translation>長点</translation>
    </message>
    <message>
        <source>both</source>
        <translation>両方</translation>
    </message>
    <message>
        <source>Buffer: overwrite at %1</source>
        <translation>バッファー: %1 から上書き</translation>
    </message>
    <message>
        <source>Buffer: append at %1</source>
        <translation>バッファー: %1 から追加</translation>
    </message>
    <message>
        <source>Buffer: insert %1 nulls</source>
        <translation>バッファー: ヌルを %1 個挿入</translation>
    </message>
    <message>
        <source>Buffer: move %1, unknown</source>
        <translation>バッファー: 移動 %1、不明</translation>
    </message>
    <message>
        <source>In the buffer: high speed, %1 WPM</source>
        <translation>バッファー内: 高速、%1 WPM</translation>
    </message>
    <message>
        <source>Set the tone: %1</source>
        <translation>音の設定: %1</translation>
    </message>
    <message>
        <source>Set speed %1 WPM</source>
        <translation>速度を設定: %1 WPM</translation>
    </message>
    <message>
        <source>Set weighting %1 %</source>
        <translation>ウェイトを設定: %1 %</translation>
    </message>
    <message>
        <source>Set PTT lead/tail %1, %2 ms</source>
        <translation>PTT の待ちと保持を設定: %1、%2 ms</translation>
    </message>
    <message>
        <source>Set the knob&apos;s range %1 to %2 WPM</source>
        <translation>つまみの範囲を設定: %1～%2 WPM</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>Ask for the knob</source>
        <translation>つまみの問い合わせ</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>バックスペース</translation>
    </message>
    <message>
        <source>Set the pins: %1</source>
        <translation>ピンの設定: %1</translation>
    </message>
    <message>
        <source>Clear buffer</source>
        <translation>バッファーを空にする</translation>
    </message>
    <message>
        <source>Key down</source>
        <translation>キーダウン</translation>
    </message>
    <message>
        <source>Set high speed %1 WPM</source>
        <translation>高速を設定: %1 WPM</translation>
    </message>
    <message>
        <source>Set Farnsworth %1 WPM</source>
        <translation>ファーンズワースを設定: %1 WPM</translation>
    </message>
    <message>
        <source>Set the mode: %1</source>
        <translation>モードの設定: %1</translation>
    </message>
    <message>
        <source>Load defaults: %1</source>
        <translation>初期値の読み込み: %1</translation>
    </message>
    <message>
        <source>Set first extension %1 ms</source>
        <translation>先頭延長を設定: %1 ms</translation>
    </message>
    <message>
        <source>Set key compensation %1 ms</source>
        <translation>補正を設定: %1 ms</translation>
    </message>
    <message>
        <source>Set paddle memory %1 (50: a dit)</source>
        <translation>パドルの記憶を設定: %1 (50 で短点 1 個)</translation>
    </message>
    <message>
        <source>Null</source>
        <translation>ヌル</translation>
    </message>
    <message>
        <source>Paddle by the host: %1</source>
        <translation>ホストによるパドル: %1</translation>
    </message>
    <message>
        <source>Ask for the status</source>
        <translation>ステータスの問い合わせ</translation>
    </message>
    <message>
        <source>Buffer: to its beginning</source>
        <translation>バッファー: 先頭へ</translation>
    </message>
    <message>
        <source>Set dah to dit %1 (50: 3 to 1)</source>
        <translation>長短点比を設定: %1 (50 で 3 対 1)</translation>
    </message>
    <message>
        <source>In the buffer: PTT on</source>
        <translation>バッファー内: PTT オン</translation>
    </message>
    <message>
        <source>In the buffer: key down, %1 s</source>
        <translation>バッファー内: キーダウン、%1 秒</translation>
    </message>
    <message>
        <source>In the buffer: wait, %1 s</source>
        <translation>バッファー内: 待ち、%1 秒</translation>
    </message>
    <message>
        <source>In the buffer: merge %1</source>
        <translation>バッファー内: 結合 %1</translation>
    </message>
    <message>
        <source>In the buffer: %1 WPM</source>
        <translation>バッファー内: %1 WPM</translation>
    </message>
    <message>
        <source>In the buffer: key output %1</source>
        <translation>バッファー内: キー出力 %1</translation>
    </message>
    <message>
        <source>In the buffer: the speed that was set</source>
        <translation>バッファー内: 設定した速度</translation>
    </message>
    <message>
        <source>In the buffer: null</source>
        <translation>バッファー内: ヌル</translation>
    </message>
    <message>
        <source>Calibrate</source>
        <translation>校正</translation>
    </message>
    <message>
        <source>Reset the keyer</source>
        <translation>キーヤーのリセット</translation>
    </message>
    <message>
        <source>Open the keyer</source>
        <translation>キーヤーを開く</translation>
    </message>
    <message>
        <source>Close the keyer</source>
        <translation>キーヤーを閉じる</translation>
    </message>
    <message>
        <source>Echo test %1</source>
        <translation>エコーテスト %1</translation>
    </message>
    <message>
        <source>Ask for the paddle A/D</source>
        <translation>パドルの A/D 値の問い合わせ</translation>
    </message>
    <message>
        <source>Ask for the speed A/D</source>
        <translation>速度の A/D 値の問い合わせ</translation>
    </message>
    <message>
        <source>Ask for all values</source>
        <translation>すべての値の問い合わせ</translation>
    </message>
    <message>
        <source>Debug</source>
        <translation>デバッグ</translation>
    </message>
    <message>
        <source>Ask for the calibration</source>
        <translation>校正値の問い合わせ</translation>
    </message>
    <message>
        <source>Version 1 status</source>
        <translation>バージョン 1 のステータス</translation>
    </message>
    <message>
        <source>Version 2 status</source>
        <translation>バージョン 2 のステータス</translation>
    </message>
    <message>
        <source>Ask for the memory</source>
        <translation>メモリーの問い合わせ</translation>
    </message>
    <message>
        <source>Load the memory</source>
        <translation>メモリーの読み込み</translation>
    </message>
    <message>
        <source>Play message %1</source>
        <translation>メッセージ %1 を再生</translation>
    </message>
    <message>
        <source>Load X1MODE %1</source>
        <translation>X1MODE の読み込み: %1</translation>
    </message>
    <message>
        <source>Line at 9600 baud</source>
        <translation>回線 9600 ボー</translation>
    </message>
    <message>
        <source>Line at 1200 baud</source>
        <translation>回線 1200 ボー</translation>
    </message>
    <message>
        <source>Admin command %1, unknown</source>
        <translation>管理コマンド %1、不明</translation>
    </message>
    <message>
        <source>text %1</source>
        <translation>テキスト %1</translation>
    </message>
    <message>
        <source>wait</source>
        <translation>待ち</translation>
    </message>
    <message>
        <source>key down</source>
        <translation>キーダウン</translation>
    </message>
    <message>
        <source>busy</source>
        <translation>送出中</translation>
    </message>
    <message>
        <source>break-in</source>
        <translation>ブレークイン</translation>
    </message>
    <message>
        <source>XOFF</source>
        <translation>XOFF</translation>
    </message>
    <message>
        <source>status: %1</source>
        <translation>ステータス: %1</translation>
    </message>
    <message>
        <source>idle</source>
        <translation>待機中</translation>
    </message>
    <message>
        <source>push-buttons: %1</source>
        <translation>押しボタン: %1</translation>
    </message>
    <message>
        <source>open, version %1</source>
        <translation>開いた、バージョン %1</translation>
    </message>
    <message>
        <source>echo test %1</source>
        <translation>エコーテスト %1</translation>
    </message>
    <message>
        <source>values: %1</source>
        <translation>値: %1</translation>
    </message>
    <message>
        <source>memory, %1 bytes</source>
        <translation>メモリー、%1 バイト</translation>
    </message>
    <message>
        <source>answer %1</source>
        <translation>応答 %1</translation>
    </message>
    <message>
        <source>discarded by the keyer</source>
        <translation>キーヤーが破棄</translation>
    </message>
    <message>
        <source>lost, the keyer is starting</source>
        <translation>喪失、キーヤーは起動中</translation>
    </message>
    <message>
        <source>unfinished command</source>
        <translation>未完のコマンド</translation>
    </message>
    <message>
        <source>the keyer starts anew</source>
        <translation>キーヤーが起動し直す</translation>
    </message>
    <message>
        <source>echo %1</source>
        <translation>エコー %1</translation>
    </message>
    <message>
        <source>knob: %1 WPM</source>
        <translation>つまみ: %1 WPM</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Quorvel is running already, and does not answer. End it, then start it again.</source>
        <translation>Quorvel はすでに動いていて、応答しません。終了させてから、もう一度起動してください。</translation>
    </message>
</context>
<context>
    <name>virtualkeyer::KeyerWindow</name>
    <message>
        <source>Virtual keyer</source>
        <translation>仮想キーヤー</translation>
    </message>
    <message>
        <source>Plugged in as %1</source>
        <translation>%1 として接続中</translation>
    </message>
    <message>
        <source>Plugged in</source>
        <translation>接続中</translation>
    </message>
    <message>
        <source>Pulls the adapter and plugs it in again. Without it the keyer has no power, and forgets its host.</source>
        <translation>アダプターを抜き差しします。抜くとキーヤーは電源を失い、ホストを忘れます。</translation>
    </message>
    <message>
        <source>Speed knob</source>
        <translation>速度つまみ</translation>
    </message>
    <message>
        <source>Counts within the range that the host has set, and only while the host leaves the speed to it.</source>
        <translation>ホストが設定した範囲内で、ホストが速度を任せている間だけ効きます。</translation>
    </message>
    <message>
        <source>%1 WPM</source>
        <translation>%1 WPM</translation>
    </message>
    <message>
        <source>Push-buttons</source>
        <translation>押しボタン</translation>
    </message>
    <message>
        <source>The host hears of them once it has asked for version 2 status.</source>
        <translation>ホストがバージョン 2 のステータスを要求すると、ホストに伝わります。</translation>
    </message>
    <message>
        <source>Push-button %1</source>
        <translation>押しボタン %1</translation>
    </message>
    <message>
        <source>Registers</source>
        <translation>レジスター</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>メモリー</translation>
    </message>
    <message>
        <source>Kind of keyer</source>
        <translation>キーヤーの種類</translation>
    </message>
    <message>
        <source>Keyed text</source>
        <translation>送出したテキスト</translation>
    </message>
    <message>
        <source>What is keyed, by the host or the paddle, is read back here from the key line.</source>
        <translation>ホストやパドルが送出したものを、キー線から読み取ってここに表示します。</translation>
    </message>
    <message>
        <source>Record a script</source>
        <translation>スクリプトを記録</translation>
    </message>
    <message>
        <source>Writes down what is done here, for --script to do again: press once more to save it.</source>
        <translation>ここでの操作を書き留め、--script で再現できるようにします。もう一度押すと保存します。</translation>
    </message>
    <message>
        <source>Save the script</source>
        <translation>スクリプトの保存</translation>
    </message>
    <message>
        <source>Sidetone</source>
        <translation>サイドトーン</translation>
    </message>
    <message>
        <source>How loud this machine plays what is keyed; the host sets the pitch.</source>
        <translation>送出した音をこのパソコンで鳴らす音量です。音の高さはホストが決めます。</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>音量</translation>
    </message>
    <message>
        <source>No sound device: it is silent.</source>
        <translation>音声デバイスがないため無音です。</translation>
    </message>
    <message>
        <source>Scope</source>
        <translation>オシロスコープ</translation>
    </message>
    <message>
        <source>Line log</source>
        <translation>回線の記録</translation>
    </message>
    <message>
        <source>Practice</source>
        <translation>練習</translation>
    </message>
</context>
<context>
    <name>virtualkeyer::KindList</name>
    <message>
        <source>Kinds of keyer</source>
        <translation>キーヤーの種類一覧</translation>
    </message>
</context>
<context>
    <name>virtualkeyer::Lamp</name>
    <message>
        <source>%1: on</source>
        <translation>%1: オン</translation>
    </message>
    <message>
        <source>%1: off</source>
        <translation>%1: オフ</translation>
    </message>
</context>
<context>
    <name>virtualkeyer::LampRow</name>
    <message>
        <source>Key</source>
        <translation>キー</translation>
    </message>
    <message>
        <source>PTT</source>
        <translation>PTT</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>送出中</translation>
    </message>
    <message>
        <source>Break-in</source>
        <translation>ブレークイン</translation>
    </message>
    <message>
        <source>XOFF</source>
        <translation>XOFF</translation>
    </message>
    <message>
        <source>Wait</source>
        <translation>待ち</translation>
    </message>
    <message>
        <source>The transmitter would be keyed. Nothing here is on the air.</source>
        <translation>送信機がキーイングされる状態です。ここからは何も送信されません。</translation>
    </message>
    <message>
        <source>The transmitter would be switched on.</source>
        <translation>送信機がオンになる状態です。</translation>
    </message>
    <message>
        <source>The host&apos;s text, the paddle or the tune command keys.</source>
        <translation>ホストのテキスト、パドル、チューンのいずれかが送出中です。</translation>
    </message>
    <message>
        <source>The paddle has the key, and the host&apos;s text has gone.</source>
        <translation>パドルが送出し、ホストのテキストは破棄されました。</translation>
    </message>
    <message>
        <source>The buffer is nearly full; the host has to wait.</source>
        <translation>バッファーがほぼ満杯で、ホストは待つ必要があります。</translation>
    </message>
    <message>
        <source>A wait or a key-down of the host&apos;s, with a time of its own, or a tune.</source>
        <translation>ホストが指定した時間の待ちやキーダウン、またはチューンです。</translation>
    </message>
</context>
<context>
    <name>virtualkeyer::MessageList</name>
    <message>
        <source>Play %1</source>
        <translation>%1 を再生</translation>
    </message>
    <message>
        <source>Play message %1</source>
        <translation>メッセージ %1 を再生</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>空</translation>
    </message>
    <message>
        <source>Message %1: %2</source>
        <translation>メッセージ %1: %2</translation>
    </message>
</context>
<context>
    <name>virtualkeyer::PaddlePanel</name>
    <message>
        <source>Paddle</source>
        <translation>パドル</translation>
    </message>
    <message>
        <source>Dit (F)</source>
        <translation>短点 (F)</translation>
    </message>
    <message>
        <source>Dah (J)</source>
        <translation>長点 (J)</translation>
    </message>
    <message>
        <source>Hold a button, or the keys F and J; both at once for a squeeze.</source>
        <translation>ボタン、または F と J のキーを押し続けます。両方同時でスクイーズになります。</translation>
    </message>
    <message>
        <source>Dit paddle</source>
        <translation>短点パドル</translation>
    </message>
    <message>
        <source>Dah paddle</source>
        <translation>長点パドル</translation>
    </message>
</context>
<context>
    <name>virtualkeyer::PracticePage</name>
    <message>
        <source>Text to be sent</source>
        <translation>送るテキスト</translation>
    </message>
    <message>
        <source>Letters that work the paddle are letters while this has the keyboard; Enter begins, and hands them back.</source>
        <translation>この欄に入力している間、パドルのキーは文字になります。Enter で始まり、パドルに戻ります。</translation>
    </message>
    <message>
        <source>Begin anew</source>
        <translation>最初から</translation>
    </message>
    <message>
        <source>X for A: X was sent instead of A. No A: A was left out. And X: X was one too many.</source>
        <translation>A の代わりに X: A ではなく X を送りました。A なし: A が抜けました。余分な X: X が余分です。</translation>
    </message>
    <message>
        <source>Lengths in dits</source>
        <translation>短点を単位とした長さ</translation>
    </message>
    <message>
        <source>Element</source>
        <translation>要素</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>送出数</translation>
    </message>
    <message>
        <source>Ideal</source>
        <translation>理想</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>平均</translation>
    </message>
    <message>
        <source>From half to 1.5 of the ideal</source>
        <translation>理想の半分から 1.5 倍まで</translation>
    </message>
    <message>
        <source>Dit</source>
        <translation>短点</translation>
    </message>
    <message>
        <source>Dah</source>
        <translation>長点</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>間隔</translation>
    </message>
    <message>
        <source>Letter space</source>
        <translation>字間</translation>
    </message>
    <message>
        <source>Word space</source>
        <translation>語間</translation>
    </message>
    <message>
        <source>Right: %1 of %2</source>
        <translation>正解: %2 のうち %1</translation>
    </message>
    <message>
        <source>space</source>
        <translation>空白</translation>
    </message>
    <message>
        <source>%1 for %2</source>
        <translation>%2 の代わりに %1</translation>
    </message>
    <message>
        <source>no %1</source>
        <translation>%1 なし</translation>
    </message>
    <message>
        <source>and %1</source>
        <translation>余分な %1</translation>
    </message>
    <message>
        <source>Send the text with the paddle.</source>
        <translation>パドルでテキストを送ってください。</translation>
    </message>
</context>
<context>
    <name>virtualkeyer::RegisterTable</name>
    <message>
        <source>Registers</source>
        <translation>レジスター</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>レジスター</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>値</translation>
    </message>
</context>
<context>
    <name>virtualkeyer::ScopePage</name>
    <message>
        <source>Place in the last ten minutes</source>
        <translation>直近 10 分間での位置</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>Pause the scope</source>
        <translation>オシロスコープを一時停止</translation>
    </message>
    <message>
        <source>Closer</source>
        <translation>拡大</translation>
    </message>
    <message>
        <source>Less time, closer</source>
        <translation>短い時間を拡大</translation>
    </message>
    <message>
        <source>Wider</source>
        <translation>縮小</translation>
    </message>
    <message>
        <source>More time, wider</source>
        <translation>長い時間を縮小</translation>
    </message>
    <message>
        <source>Picture…</source>
        <translation>画像…</translation>
    </message>
    <message>
        <source>Save a picture</source>
        <translation>画像の保存</translation>
    </message>
    <message>
        <source>Table…</source>
        <translation>表…</translation>
    </message>
    <message>
        <source>Save a table of the last ten minutes</source>
        <translation>直近 10 分間の表の保存</translation>
    </message>
    <message>
        <source>Save a table</source>
        <translation>表の保存</translation>
    </message>
</context>
<context>
    <name>virtualkeyer::ScopeView</name>
    <message>
        <source>Scope of key and PTT</source>
        <translation>キーと PTT のオシロスコープ</translation>
    </message>
    <message>
        <source>Arrows move the first cursor, with Shift the second, with Ctrl from edge to edge. + and - zoom, the space bar pauses; Page Up, Page Down, Home and End go through the last ten minutes.</source>
        <translation>矢印キーで 1 本目のカーソル、Shift を加えると 2 本目が動き、Ctrl を加えるとエッジからエッジへ動きます。+ と - で拡大と縮小、スペースキーで一時停止、Page Up、Page Down、Home、End で直近 10 分間を移動します。</translation>
    </message>
</context>
<context>
    <name>virtualkeyer::WireLog</name>
    <message>
        <source>Host</source>
        <translation>ホスト</translation>
    </message>
    <message>
        <source>Keyer</source>
        <translation>キーヤー</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>秒</translation>
    </message>
    <message>
        <source>Said by</source>
        <translation>発言者</translation>
    </message>
    <message>
        <source>In words</source>
        <translation>内容</translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation>バイト</translation>
    </message>
</context>
<context>
    <name>virtualkeyer::WireLogPage</name>
    <message>
        <source>Said by</source>
        <translation>発言者</translation>
    </message>
    <message>
        <source>Host and keyer</source>
        <translation>ホストとキーヤー</translation>
    </message>
    <message>
        <source>The host alone</source>
        <translation>ホストのみ</translation>
    </message>
    <message>
        <source>The keyer alone</source>
        <translation>キーヤーのみ</translation>
    </message>
    <message>
        <source>Filter of the log</source>
        <translation>記録の絞り込み</translation>
    </message>
    <message>
        <source>Words or bytes</source>
        <translation>言葉またはバイト</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>消去</translation>
    </message>
    <message>
        <source>Empty the log</source>
        <translation>記録を消去</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>保存…</translation>
    </message>
    <message>
        <source>Save the log</source>
        <translation>記録の保存</translation>
    </message>
    <message>
        <source>Saves what is shown, with all its bytes.</source>
        <translation>表示中のものを、すべてのバイトとともに保存します。</translation>
    </message>
    <message>
        <source>Log of the line</source>
        <translation>回線の記録</translation>
    </message>
</context>
</TS>
