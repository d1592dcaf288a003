<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>AboutBox</name>
    <message>
        <source>About Quorvel</source>
        <translation>Über Quorvel</translation>
    </message>
    <message>
        <source>Quorvel %1</source>
        <translation>Quorvel %1</translation>
    </message>
    <message>
        <source>Sends Morse code through a WinKeyer USB keyer.

Free software under the MIT licence, made with Qt %1.</source>
        <translation>Sendet Morsezeichen über einen WinKeyer-USB-Keyer.

Freie Software unter der MIT-Lizenz, erstellt mit Qt %1.</translation>
    </message>
</context>
<context>
    <name>AlertBox</name>
    <message>
        <source>Takes keys when you have stopped typing for a second</source>
        <translation>Nimmt Tasten an, wenn Sie eine Sekunde nicht getippt haben</translation>
    </message>
</context>
<context>
    <name>AnswerNotice</name>
    <message>
        <source>Ask again</source>
        <translation>Nochmals fragen</translation>
    </message>
    <message>
        <source>The keyer on %1 does not answer. Look at its power, its cable, and whether this is its port.</source>
        <translation>Der Keyer an %1 antwortet nicht. Prüfen Sie Stromversorgung und Kabel, und ob dies sein Port ist.</translation>
    </message>
    <message>
        <source>Nothing has come from the keyer on %1 for 10 s, though a character is on its way to it. It may have started anew.</source>
        <translation>Vom Keyer an %1 ist seit 10 s nichts gekommen, obwohl ein Zeichen zu ihm unterwegs ist. Vielleicht hat er neu gestartet.</translation>
    </message>
</context>
<context>
    <name>BoundControl</name>
    <message>
        <source>on</source>
        <translation>ein</translation>
    </message>
    <message>
        <source>off</source>
        <translation>aus</translation>
    </message>
    <message>
        <source>Reset “%1” to its default, %2</source>
        <translation>„%1“ auf den Standard zurücksetzen: %2</translation>
    </message>
    <message>
        <source>Reset %1 to %2</source>
        <translation>%1 auf %2 zurücksetzen</translation>
    </message>
    <message>
        <source>stored: %1</source>
        <translation>gespeichert: %1</translation>
    </message>
    <message>
        <source>%1 to %2, default %3</source>
        <translation>%1 bis %2, Standard %3</translation>
    </message>
    <message>
        <source>Default: %1</source>
        <translation>Standard: %1</translation>
    </message>
    <message>
        <source>%1. It stays until it is changed here.</source>
        <translation>%1. Das bleibt so, bis es hier geändert wird.</translation>
    </message>
</context>
<context>
    <name>BoundNumber</name>
    <message>
        <source>%1 will become %2.</source>
        <translation>%1 wird zu %2.</translation>
    </message>
    <message>
        <source>“%1” is not a number. It stays at %2.</source>
        <translation>„%1“ ist keine Zahl. Es bleibt bei %2.</translation>
    </message>
    <message>
        <source>%1 is out of range: %2 to %3. It stays at %4.</source>
        <translation>%1 liegt außerhalb des Bereichs: %2 bis %3. Es bleibt bei %4.</translation>
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
        <translation>Aufruf: quorvel [Optionen]
Sendet Morsezeichen über einen WinKeyer-USB-Keyer.

Optionen:
  -h, --help     Zeigt diesen Text.
  -v, --version  Zeigt die Version.
  --check-ports  Sagt, was jedem seriellen Port im Weg steht.
      --ask-keyer PORT
                 Dahinter: fragt auch den Keyer an diesem Port.

Die eigenen Optionen des Toolkits wie -platform und -style gelten auch. Die Anleitung ist unter Hilfe.
</translation>
    </message>
</context>
<context>
    <name>ConnectionStrip</name>
    <message>
        <source>Not connected: nothing is sent, and what you type now is forgotten when a keyer is connected.</source>
        <translation>Nicht verbunden: Es wird nichts gesendet, und was Sie jetzt tippen, ist vergessen, sobald ein Keyer verbunden ist.</translation>
    </message>
    <message>
        <source>Choose port…</source>
        <translation>Port wählen…</translation>
    </message>
    <message>
        <source>Choose port</source>
        <translation>Port wählen</translation>
    </message>
    <message>
        <source>Check ports…</source>
        <translation>Ports prüfen…</translation>
    </message>
    <message>
        <source>Check ports</source>
        <translation>Ports prüfen</translation>
    </message>
    <message>
        <source>The computer goes to sleep: nothing is sent now, and what you enter waits until you take Pause off.</source>
        <translation>Der Rechner geht schlafen: Jetzt wird nichts gesendet, und was Sie eingeben, wartet, bis Sie Pause ausschalten.</translation>
    </message>
</context>
<context>
    <name>FileSaving</name>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
</context>
<context>
    <name>FirstSteps</name>
    <message>
        <source>First steps</source>
        <translation>Erste Schritte</translation>
    </message>
    <message>
        <source>Choose port…</source>
        <translation>Port wählen…</translation>
    </message>
    <message>
        <source>Choose port</source>
        <translation>Port wählen</translation>
    </message>
    <message>
        <source>Your call sign</source>
        <translation>Ihr Rufzeichen</translation>
    </message>
    <message>
        <source>Sent for each ` in a message</source>
        <translation>Wird für jedes ` in einer Nachricht gesendet</translation>
    </message>
    <message>
        <source>Enter your own call sign.</source>
        <translation>Geben Sie Ihr eigenes Rufzeichen ein.</translation>
    </message>
    <message>
        <source>Press F1 to send CQ, or type. Esc stops at once.</source>
        <translation>Drücken Sie F1 für CQ, oder tippen Sie. Esc stoppt sofort.</translation>
    </message>
    <message>
        <source>Try without a keyer</source>
        <translation>Ohne Keyer probieren</translation>
    </message>
    <message>
        <source>Starts a keyer made of software, which keys nothing on the air</source>
        <translation>Startet einen Keyer aus Software, der keinen Sender tastet</translation>
    </message>
    <message>
        <source>Check ports…</source>
        <translation>Ports prüfen…</translation>
    </message>
    <message>
        <source>Check ports</source>
        <translation>Ports prüfen</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Close first steps</source>
        <translation>Erste Schritte schließen</translation>
    </message>
    <message>
        <source>Connected to %1.</source>
        <translation>Mit %1 verbunden.</translation>
    </message>
    <message>
        <source>Plug the keyer in, and say Yes to its port. If it was plugged in before, choose its port.</source>
        <translation>Stecken Sie den Keyer ein, und sagen Sie Ja zu seinem Port. War er schon eingesteckt, wählen Sie seinen Port.</translation>
    </message>
    <message>
        <source>Step %1, done</source>
        <translation>Schritt %1, erledigt</translation>
    </message>
    <message>
        <source>Step %1</source>
        <translation>Schritt %1</translation>
    </message>
    <message>
        <source>Plug the keyer in, and say Yes to its port. If it was plugged in before, choose its port. What you type until then is not sent, and is forgotten.</source>
        <translation>Stecken Sie den Keyer ein, und sagen Sie Ja zu seinem Port. War er schon eingesteckt, wählen Sie seinen Port. Was Sie bis dahin tippen, wird nicht gesendet und ist vergessen.</translation>
    </message>
</context>
<context>
    <name>Guide</name>
    <message>
        <source>en</source>
        <extracomment>The folder of docs/guide that is in this language; as it is where there is none.</extracomment>
        <translation>de</translation>
    </message>
</context>
<context>
    <name>GuideButton</name>
    <message>
        <source>Guide to these settings</source>
        <translation>Anleitung zu diesen Einstellungen</translation>
    </message>
    <message>
        <source>Opens the guide where these settings are explained.</source>
        <translation>Öffnet die Anleitung dort, wo diese Einstellungen erklärt sind.</translation>
    </message>
</context>
<context>
    <name>GuideWindow</name>
    <message>
        <source>Quorvel Guide</source>
        <translation>Quorvel-Anleitung</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suche</translation>
    </message>
    <message>
        <source>Searches all chapters (Ctrl+F). Enter goes to the next place.</source>
        <translation>Sucht in allen Kapiteln (Strg+F). Enter geht zur nächsten Stelle.</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>Places found</source>
        <translation>Gefundene Stellen</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Nichts gefunden</translation>
    </message>
    <message>
        <source>Places found: %1</source>
        <translation>Gefundene Stellen: %1</translation>
    </message>
    <message>
        <source>Place %1 of %2</source>
        <translation>Stelle %1 von %2</translation>
    </message>
    <message>
        <source>The first %1 places</source>
        <translation>Die ersten %1 Stellen</translation>
    </message>
</context>
<context>
    <name>KeyGuard</name>
    <message>
        <source>The key guard does not run: should Quorvel crash or hang while tune is on, the key stays down. Install Quorvel again.</source>
        <translation>Der Tastenwächter läuft nicht: Sollte Quorvel beim Abstimmen abstürzen oder hängen, bleibt die Taste unten. Installieren Sie Quorvel neu.</translation>
    </message>
    <message>
        <source>Quorvel did not react for %1 s while tune was on, and the key was let go of.</source>
        <translation>Quorvel hat beim Abstimmen %1 s lang nicht reagiert, und die Taste wurde losgelassen.</translation>
    </message>
</context>
<context>
    <name>KeyboardView</name>
    <message>
        <source>Not connected: nothing is sent</source>
        <translation>Nicht verbunden: Es wird nichts gesendet</translation>
    </message>
    <message>
        <source>Nothing waits to be sent</source>
        <translation>Es wartet nichts auf das Senden</translation>
    </message>
    <message>
        <source>Characters still to be sent: %1</source>
        <translation>Noch zu sendende Zeichen: %1</translation>
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
        <translation>neutral</translation>
    </message>
    <message>
        <source>as set</source>
        <translation>eingestellt</translation>
    </message>
</context>
<context>
    <name>KeyedWaveView</name>
    <message>
        <source>%1 ms</source>
        <translation>%1&#xa0;ms</translation>
    </message>
    <message>
        <source>Dit %1, dah %2, gap %3, letter space %4</source>
        <translation>Punkt %1, Strich %2, Pause %3, Buchstabenabstand %4</translation>
    </message>
    <message>
        <source>%1, first element %2 longer</source>
        <translation>%1, erstes Element %2 länger</translation>
    </message>
    <message>
        <source>&amp;Picture at</source>
        <translation>&amp;Bild bei</translation>
    </message>
    <message>
        <source> wpm</source>
        <translation> wpm</translation>
    </message>
    <message>
        <source>Keyed wave of %1</source>
        <translation>Getastete Welle von %1</translation>
    </message>
    <message>
        <source>The letters %1 as they are keyed with these settings, in front of plain keying at the same speed. The lines of the grid are one dit apart.</source>
        <translation>Die Buchstaben %1, wie sie mit diesen Einstellungen getastet werden, vor neutraler Tastung mit gleichem Tempo. Die Rasterlinien liegen einen Punkt auseinander.</translation>
    </message>
    <message>
        <source>The keyer&apos;s speed pot is at this speed, and the picture follows it.</source>
        <translation>Das Tempo-Poti des Keyers steht auf diesem Tempo, und das Bild folgt ihm.</translation>
    </message>
    <message>
        <source>The speed that the picture is drawn for. It follows the keyer&apos;s speed pot once the keyer is connected.</source>
        <translation>Das Tempo, für das das Bild gezeichnet ist. Es folgt dem Tempo-Poti, sobald der Keyer verbunden ist.</translation>
    </message>
</context>
<context>
    <name>KeyerNotice</name>
    <message>
        <source>Not connected</source>
        <translation>Nicht verbunden</translation>
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
        <translation>, </translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>The machine sleeps: %1 is closed</source>
        <translation>Der Rechner schläft: %1 ist geschlossen</translation>
    </message>
    <message>
        <source>Transmitting on %1: tune is on</source>
        <translation>Sender getastet über %1: Abstimmen ist ein</translation>
    </message>
    <message>
        <source>Connected to %1, waiting for the keyer&apos;s first byte</source>
        <translation>Mit %1 verbunden, warte auf das erste Byte des Keyers</translation>
    </message>
    <message>
        <source>Connected to %1: idle</source>
        <translation>Mit %1 verbunden: bereit</translation>
    </message>
    <message>
        <source>Connected to %1: sending</source>
        <translation>Mit %1 verbunden: sendet</translation>
    </message>
    <message>
        <source>Connected to %1: break-in (paddle)</source>
        <translation>Mit %1 verbunden: BK (Paddle)</translation>
    </message>
    <message>
        <source>Connected to %1: buffer full</source>
        <translation>Mit %1 verbunden: Puffer voll</translation>
    </message>
    <message>
        <source>Connected to %1: paused</source>
        <translation>Mit %1 verbunden: angehalten</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Nicht verbunden</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>angehalten</translation>
    </message>
    <message>
        <source>high-speed CW</source>
        <translation>High-Speed-CW</translation>
    </message>
    <message>
        <source>beacon again in %1 s</source>
        <translation>Bake wieder in %1 s</translation>
    </message>
    <message>
        <source>beacon on</source>
        <translation>Bake ein</translation>
    </message>
</context>
<context>
    <name>KeyingRecord</name>
    <message>
        <source>Quorvel ended while it was sending. The rest was not sent, and the key is up.</source>
        <translation>Quorvel endete mitten im Senden. Der Rest wurde nicht gesendet, und die Taste ist oben.</translation>
    </message>
    <message>
        <source>Quorvel ended while tune was on. The key may have stayed down; it has been let go of now.</source>
        <translation>Quorvel endete beim Abstimmen. Die Taste kann unten geblieben sein; jetzt wurde sie losgelassen.</translation>
    </message>
    <message>
        <source>The keyer was unplugged while tune was on. The key may have stayed down; it has been let go of now.</source>
        <translation>Der Keyer wurde beim Abstimmen ausgesteckt. Die Taste kann unten geblieben sein; jetzt wurde sie losgelassen.</translation>
    </message>
</context>
<context>
    <name>LoggerSocket</name>
    <message>
        <source>Loggers: there is no such port</source>
        <translation>Logger: diesen Port gibt es nicht</translation>
    </message>
    <message>
        <source>Loggers: port %1</source>
        <translation>Logger: Port %1</translation>
    </message>
    <message>
        <source>Loggers: port %1 cannot be had: %2</source>
        <translation>Logger: Port %1 ist nicht zu bekommen: %2</translation>
    </message>
    <message>
        <source>Loggers: port %1 is taken by %2</source>
        <translation>Logger: Port %1 ist belegt von %2</translation>
    </message>
    <message>
        <source>Loggers: port %1, last from port %2</source>
        <translation>Logger: Port %1, zuletzt von Port %2</translation>
    </message>
    <message>
        <source>Loggers: port %1, last from %2</source>
        <translation>Logger: Port %1, zuletzt von %2</translation>
    </message>
</context>
<context>
    <name>MBPreferencesController</name>
    <message>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
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
        <translation>Nachricht 1</translation>
    </message>
    <message>
        <source>Message 2</source>
        <translation>Nachricht 2</translation>
    </message>
    <message>
        <source>Message 3</source>
        <translation>Nachricht 3</translation>
    </message>
    <message>
        <source>Message 4</source>
        <translation>Nachricht 4</translation>
    </message>
    <message>
        <source>Message 5</source>
        <translation>Nachricht 5</translation>
    </message>
    <message>
        <source>Message 6</source>
        <translation>Nachricht 6</translation>
    </message>
    <message>
        <source>Message 7</source>
        <translation>Nachricht 7</translation>
    </message>
    <message>
        <source>Message 8</source>
        <translation>Nachricht 8</translation>
    </message>
    <message>
        <source>&amp;Their call</source>
        <translation>&amp;Gegenstation</translation>
    </message>
    <message>
        <source>Their call</source>
        <translation>Gegenstation</translation>
    </message>
    <message>
        <source>The other station&apos;s call sign; ~ in a message stands for it</source>
        <translation>Das Rufzeichen der Gegenstation; ~ in einer Nachricht steht dafür</translation>
    </message>
    <message>
        <source>&amp;Number</source>
        <translation>&amp;Nummer</translation>
    </message>
    <message>
        <source>Decrement serial number</source>
        <translation>Laufende Nummer vermindern</translation>
    </message>
    <message>
        <source>One less</source>
        <translation>Eins weniger</translation>
    </message>
    <message>
        <source>−</source>
        <translation>−</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Laufende Nummer</translation>
    </message>
    <message>
        <source>The number of this contact; # in a message stands for it</source>
        <translation>Die Nummer dieses QSOs; # in einer Nachricht steht dafür</translation>
    </message>
    <message>
        <source>Increment serial number</source>
        <translation>Laufende Nummer erhöhen</translation>
    </message>
    <message>
        <source>One more</source>
        <translation>Eins mehr</translation>
    </message>
    <message>
        <source>+</source>
        <translation>+</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>Stop sending at once and forget the text</source>
        <translation>Sofort aufhören zu senden und den Text vergessen</translation>
    </message>
    <message>
        <source>Tune</source>
        <translation>Abstimmen</translation>
    </message>
    <message>
        <source>Key the transmitter steadily</source>
        <translation>Den Sender dauernd tasten</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Hold the text back</source>
        <translation>Den Text zurückhalten</translation>
    </message>
    <message>
        <source>High-speed CW</source>
        <translation>HSCW</translation>
    </message>
    <message>
        <source>Send at the high speed of the preferences</source>
        <translation>Mit dem hohen Tempo aus den Einstellungen senden</translation>
    </message>
    <message>
        <source>Beacon</source>
        <translation>Bake</translation>
    </message>
    <message>
        <source>Repeat the next message until stopped</source>
        <translation>Die nächste Nachricht wiederholen, bis gestoppt wird</translation>
    </message>
    <message>
        <source>Keyer status</source>
        <translation>Zustand des Keyers</translation>
    </message>
    <message>
        <source>What the keyer is doing</source>
        <translation>Was der Keyer gerade tut</translation>
    </message>
    <message>
        <source>Characters that are still to be sent</source>
        <translation>Zeichen, die noch zu senden sind</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Send</source>
        <translation>&amp;Senden</translation>
    </message>
    <message>
        <source>&amp;Keyer</source>
        <translation>&amp;Keyer</translation>
    </message>
    <message>
        <source>&amp;Contact</source>
        <translation>&amp;QSO</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>&amp;Einstellungen…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Ausschneiden</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>Alles au&amp;swählen</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Stopp</translation>
    </message>
    <message>
        <source>&amp;High-speed CW</source>
        <translation>&amp;High-Speed-CW (HSCW)</translation>
    </message>
    <message>
        <source>&amp;Their Call</source>
        <translation>&amp;Gegenstation</translation>
    </message>
    <message>
        <source>&amp;Keyboard</source>
        <translation>&amp;Tastatur</translation>
    </message>
    <message>
        <source>Ne&amp;xt Contact</source>
        <translation>&amp;Nächstes QSO</translation>
    </message>
    <message>
        <source>&amp;Wipe Their Call</source>
        <translation>Rufzeichen &amp;löschen</translation>
    </message>
    <message>
        <source>&amp;Increment Serial Number</source>
        <translation>Laufende Nummer er&amp;höhen</translation>
    </message>
    <message>
        <source>&amp;Decrement Serial Number</source>
        <translation>Laufende Nummer &amp;vermindern</translation>
    </message>
    <message>
        <source>&amp;Guide</source>
        <translation>&amp;Anleitung</translation>
    </message>
    <message>
        <source>&amp;About Quorvel</source>
        <translation>&amp;Über Quorvel</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source> %1 s</source>
        <translation> %1 s</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation>Tastatur</translation>
    </message>
    <message>
        <source>What is typed here is sent</source>
        <translation>Was hier getippt wird, wird gesendet</translation>
    </message>
    <message>
        <source>Tune was let go of after %1 s.</source>
        <translation>Abstimmen wurde nach %1 s beendet.</translation>
    </message>
    <message>
        <source>Type here to send</source>
        <translation>Zum Senden hier tippen</translation>
    </message>
    <message>
        <source>Not connected: nothing is sent</source>
        <translation>Nicht verbunden: Es wird nichts gesendet</translation>
    </message>
    <message>
        <source>What you send waits for the paddle to be free: Esc drops it</source>
        <translation>Was Sie senden, wartet auf das freie Paddle: Esc verwirft es</translation>
    </message>
    <message>
        <source>Typing here sends again: End goes to the end</source>
        <translation>Hier Getipptes sendet erneut: Ende springt ans Ende</translation>
    </message>
    <message>
        <source>. </source>
        <translation>. </translation>
    </message>
    <message>
        <source>TRANSMITTING – Quorvel</source>
        <translation>SENDER GETASTET – Quorvel</translation>
    </message>
    <message>
        <source>Whether the speed is the knob&apos;s, or set from the computer</source>
        <translation>Ob das Tempo das des Knopfes ist, oder vom Rechner gesetzt</translation>
    </message>
    <message>
        <source>The speed; a click goes back to that of the keyer&apos;s knob</source>
        <translation>Das Tempo; ein Klick kehrt zu dem des Knopfes am Keyer zurück</translation>
    </message>
    <message>
        <source>&amp;Faster</source>
        <translation>&amp;Schneller</translation>
    </message>
    <message>
        <source>&amp;Slower</source>
        <translation>&amp;Langsamer</translation>
    </message>
    <message>
        <source>A Little Faster</source>
        <translation>Etwas schneller</translation>
    </message>
    <message>
        <source>A Little Slower</source>
        <translation>Etwas langsamer</translation>
    </message>
    <message>
        <source>Speed of the &amp;Knob</source>
        <translation>Tempo vom &amp;Knopf</translation>
    </message>
    <message>
        <source>&amp;Check Ports…</source>
        <translation>&amp;Ports prüfen…</translation>
    </message>
    <message>
        <source>&amp;Try Without a Keyer</source>
        <translation>&amp;Ohne Keyer probieren</translation>
    </message>
    <message>
        <source>Check ports…</source>
        <translation>Ports prüfen…</translation>
    </message>
    <message>
        <source>Check ports</source>
        <translation>Ports prüfen</translation>
    </message>
    <message>
        <source>&amp;Accept Text from Loggers</source>
        <translation>&amp;Text von Loggern annehmen</translation>
    </message>
    <message>
        <source>⚠ TRANSMITTING: tune is on. Press Esc to let go.</source>
        <translation>⚠ SENDER GETASTET: Abstimmen ist ein. Esc lässt los.</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>W&amp;indow</source>
        <translation>&amp;Fenster</translation>
    </message>
    <message>
        <source>&amp;Sent</source>
        <translation>&amp;Gesendetes</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
</context>
<context>
    <name>MemoryGauge</name>
    <message>
        <source>Keyer memory</source>
        <translation>Speicher des Keyers</translation>
    </message>
    <message>
        <source>How the six messages share the keyer&apos;s memory, a byte a character. One byte always stays free.</source>
        <translation>Wie sich die sechs Nachrichten den Speicher des Keyers teilen, ein Byte je Zeichen. Ein Byte bleibt immer frei.</translation>
    </message>
    <message>
        <source>%1 of %2 bytes used</source>
        <translation>%1 von %2 Byte belegt</translation>
    </message>
    <message>
        <source>%1; left out: %2</source>
        <translation>%1; ausgelassen: %2</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
</context>
<context>
    <name>MessageButton</name>
    <message>
        <source>waits for the paddle</source>
        <translation>wartet auf das Paddle</translation>
    </message>
</context>
<context>
    <name>MessageButtons</name>
    <message>
        <source>Message %1: %2</source>
        <translation>Nachricht %1: %2</translation>
    </message>
    <message>
        <source>Waits for the paddle: %1</source>
        <translation>Wartet auf das Paddle: %1</translation>
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
        <translation>High-Speed-CW braucht einen Keyer, und es ist keiner verbunden</translation>
    </message>
</context>
<context>
    <name>NamedProfile</name>
    <message>
        <source>a version 2 keyer, firmware 23</source>
        <translation>ein Keyer der Version 2, Firmware 23</translation>
    </message>
    <message>
        <source>echoes after the letter space, &quot;|&quot; too; keys &quot;?&quot; for what has no Morse</source>
        <translation>Echo erst nach dem Buchstabenabstand, auch für &quot;|&quot;; tastet &quot;?&quot; für alles ohne Morsezeichen</translation>
    </message>
    <message>
        <source>never echoes the text, whatever the host has set</source>
        <translation>kein Echo des Textes, was auch immer der Host eingestellt hat</translation>
    </message>
    <message>
        <source>sends a status byte after the version byte</source>
        <translation>sendet ein Statusbyte nach dem Versionsbyte</translation>
    </message>
    <message>
        <source>sends the last echo and the idle status back to back</source>
        <translation>sendet das letzte Echo und den Ruhestatus unmittelbar nacheinander</translation>
    </message>
    <message>
        <source>the same, the idle status first</source>
        <translation>dasselbe, den Ruhestatus zuerst</translation>
    </message>
    <message>
        <source>asks for a pause at 21 waiting bytes, and again for every more</source>
        <translation>bittet bei 21 wartenden Bytes um eine Pause, und bei jedem weiteren wieder</translation>
    </message>
    <message>
        <source>drops the key in mid-letter when the buffer is cleared</source>
        <translation>lässt mitten im Buchstaben los, wenn der Puffer geleert wird</translation>
    </message>
    <message>
        <source>restarts when the port is opened and is deaf for 1.3 s</source>
        <translation>startet beim Öffnen des Ports neu und ist 1,3 s lang taub</translation>
    </message>
    <message>
        <source>beeps for half a second before it obeys its first command</source>
        <translation>piept eine halbe Sekunde, bevor er dem ersten Befehl gehorcht</translation>
    </message>
    <message>
        <source>throws a loaded memory away without a word</source>
        <translation>verwirft einen geladenen Speicher wortlos</translation>
    </message>
    <message>
        <source>reports break-in by a single C2 first</source>
        <translation>meldet BK zuerst mit einem einzelnen C2</translation>
    </message>
    <message>
        <source>is idle for the host until the paddle has keyed for 160 ms</source>
        <translation>ist für den Host bereit, bis das Paddle 160 ms getastet hat</translation>
    </message>
    <message>
        <source>keys a letter once more that a pause came into</source>
        <translation>tastet einen Buchstaben noch einmal, in den eine Pause fiel</translation>
    </message>
    <message>
        <source>echoes the letter that the paddle cut before the break-in</source>
        <translation>Echo des Buchstabens, den das Paddle abgeschnitten hat, vor der BK-Meldung</translation>
    </message>
    <message>
        <source>keys what waited when the paddle has rested, unless the host clears it</source>
        <translation>tastet, was wartete, wenn das Paddle ruht, falls der Host es nicht löscht</translation>
    </message>
    <message>
        <source>stays at the last speed when the host gives it back to the knob</source>
        <translation>bleibt bei der letzten Geschwindigkeit, wenn der Host sie dem Knopf zurückgibt</translation>
    </message>
    <message>
        <source>reports the knob to a host, and does not obey it</source>
        <translation>meldet den Knopf dem Host und gehorcht ihm nicht</translation>
    </message>
    <message>
        <source>asks for a pause by C1, without the bit for busy</source>
        <translation>bittet mit C1 um eine Pause, ohne das Bit für beschäftigt</translation>
    </message>
    <message>
        <source>takes a push-button in the midst of text for a break-in</source>
        <translation>hält einen Taster mitten im Text für BK</translation>
    </message>
    <message>
        <source>ends a tune for the paddle, a letter or a message, without a word</source>
        <translation>beendet das Abstimmen wortlos für das Paddle, einen Buchstaben oder eine Nachricht</translation>
    </message>
    <message>
        <source>swallows a tune that begins in the midst of text</source>
        <translation>verschluckt ein Abstimmen, das mitten im Text beginnt</translation>
    </message>
    <message>
        <source>says and does nothing for 0.44 s behind its version byte</source>
        <translation>sagt und tut nach seinem Versionsbyte 0,44 s lang nichts</translation>
    </message>
    <message>
        <source>swallows text for 0.1 s after the buffer was cleared</source>
        <translation>verschluckt 0,1 s lang Text, nachdem der Puffer geleert wurde</translation>
    </message>
    <message>
        <source>reports press and release of a push-button together, at the release</source>
        <translation>meldet Drücken und Loslassen eines Tasters zusammen, beim Loslassen</translation>
    </message>
</context>
<context>
    <name>NamedTrouble</name>
    <message>
        <source>bytes that do not arrive</source>
        <translation>Bytes, die nicht ankommen</translation>
    </message>
    <message>
        <source>bytes that arrive twice</source>
        <translation>Bytes, die doppelt ankommen</translation>
    </message>
    <message>
        <source>bytes of which a bit is wrong</source>
        <translation>Bytes, in denen ein Bit falsch ist</translation>
    </message>
    <message>
        <source>each byte is up to so much late, by chance</source>
        <translation>jedes Byte kommt zufällig bis zu so viel später</translation>
    </message>
    <message>
        <source>each byte is so much late, as over a network</source>
        <translation>jedes Byte kommt so viel später, wie über ein Netz</translation>
    </message>
    <message>
        <source>the host gets what has come as often as this, in one read</source>
        <translation>der Host bekommt so oft, was gekommen ist, mit einem Lesen</translation>
    </message>
    <message>
        <source>no character from the keyer arrives</source>
        <translation>kein Zeichen des Keyers kommt an</translation>
    </message>
    <message>
        <source>nobody takes what the host sends</source>
        <translation>niemand nimmt, was der Host sendet</translation>
    </message>
    <message>
        <source>the keyer starts anew so long after the port was opened</source>
        <translation>der Keyer startet so lange nach dem Öffnen des Ports neu</translation>
    </message>
    <message>
        <source>the port goes so long after it was opened, and comes back; the keyer keeps its power</source>
        <translation>der Port verschwindet so lange nach seinem Öffnen und kommt wieder; der Keyer behält seinen Strom</translation>
    </message>
</context>
<context>
    <name>NoticeStrip</name>
    <message>
        <source>Close notice</source>
        <translation>Hinweis schließen</translation>
    </message>
    <message>
        <source>Close this notice</source>
        <translation>Diesen Hinweis schließen</translation>
    </message>
</context>
<context>
    <name>PortCheckCommand</name>
    <message>
        <source>%1 is not asked: it is not there, or not free.</source>
        <translation>%1 wird nicht gefragt: nicht vorhanden oder nicht frei.</translation>
    </message>
    <message>
        <source>The keyer on %1</source>
        <translation>Der Keyer an %1</translation>
    </message>
</context>
<context>
    <name>PortCheckWindow</name>
    <message>
        <source>Check Ports</source>
        <translation>Ports prüfen</translation>
    </message>
    <message>
        <source>What is in the way of each port, and what to do about it. Looking opens no port. Commands are for a terminal.</source>
        <translation>Was jedem Port im Weg steht, und was zu tun ist. Das Nachsehen öffnet keinen Port. Befehle sind für ein Terminal.</translation>
    </message>
    <message>
        <source>Ports</source>
        <translation>Ports</translation>
    </message>
    <message>
        <source>Check &amp;again</source>
        <translation>Nochmals &amp;prüfen</translation>
    </message>
    <message>
        <source>Copy &amp;report</source>
        <translation>&amp;Bericht kopieren</translation>
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
        <translation>Befehl</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copy command</source>
        <translation>Befehl kopieren</translation>
    </message>
    <message>
        <source>Ask the keyer</source>
        <translation>Den Keyer fragen</translation>
    </message>
    <message>
        <source>Opens the port for a moment, and has a keyer send a character back. Nothing is keyed by it; but opening raises the lines DTR and RTS, which key a transmitter that is wired to them.</source>
        <translation>Öffnet den Port kurz und lässt einen Keyer ein Zeichen zurücksenden. Dabei wird nichts getastet; aber das Öffnen hebt die Leitungen DTR und RTS, die einen daran angeschlossenen Sender tasten.</translation>
    </message>
    <message>
        <source>Asking…</source>
        <translation>Frage…</translation>
    </message>
</context>
<context>
    <name>PortJudge</name>
    <message>
        <source>USB device %1:%2</source>
        <translation>USB-Gerät %1:%2</translation>
    </message>
    <message>
        <source>You may not open it yet: you are a member of the group %1, but this session began before that.</source>
        <translation>Sie dürfen ihn noch nicht öffnen: Sie gehören zur Gruppe %1, aber diese Sitzung begann davor.</translation>
    </message>
    <message>
        <source>Log out, and log in again.</source>
        <translation>Melden Sie sich ab und wieder an.</translation>
    </message>
    <message>
        <source>You may not open it: the members of the group %1 may.</source>
        <translation>Sie dürfen ihn nicht öffnen: Die Mitglieder der Gruppe %1 dürfen es.</translation>
    </message>
    <message>
        <source>Become a member, then log out and log in again:</source>
        <translation>Werden Sie Mitglied, dann melden Sie sich ab und wieder an:</translation>
    </message>
    <message>
        <source>You may not open it: root alone may.</source>
        <translation>Sie dürfen ihn nicht öffnen: Nur root darf es.</translation>
    </message>
    <message>
        <source>See who may:</source>
        <translation>Sehen Sie nach, wer darf:</translation>
    </message>
    <message>
        <source>Whoever sits at this machine may as well, but this session is not the one at its screen.</source>
        <translation>Wer an diesem Rechner sitzt, darf es auch, aber diese Sitzung ist nicht die an seinem Bildschirm.</translation>
    </message>
    <message>
        <source>With Quorvel&apos;s package installed, whoever sits at the machine may as well: pull the adapter out and plug it in again.</source>
        <translation>Mit dem Paket von Quorvel darf es auch, wer am Rechner sitzt: Ziehen Sie den Adapter heraus, und stecken Sie ihn wieder ein.</translation>
    </message>
    <message>
        <source>It has just gone.</source>
        <translation>Er ist gerade verschwunden.</translation>
    </message>
    <message>
        <source>Plug it in again, and use another cable or socket if it goes by itself.</source>
        <translation>Stecken Sie ihn wieder ein, und nehmen Sie ein anderes Kabel oder eine andere Buchse, wenn er von selbst verschwindet.</translation>
    </message>
    <message>
        <source>Another program has it open: %1.</source>
        <translation>Ein anderes Programm hat ihn offen: %1.</translation>
    </message>
    <message>
        <source>End that program. This shows all that have it, those of other users too:</source>
        <translation>Beenden Sie dieses Programm. Dies zeigt alle, die ihn haben, auch die anderer Benutzer:</translation>
    </message>
    <message>
        <source>The service for modems, ModemManager, may send its questions to this port when it is plugged in, and a keyer may key them.</source>
        <translation>Der Dienst für Modems, ModemManager, kann diesem Port beim Einstecken seine Fragen senden, und ein Keyer kann sie tasten.</translation>
    </message>
    <message>
        <source>Keep it away with this rule, then plug the adapter in again:</source>
        <translation>Halten Sie ihn mit dieser Regel fern, dann stecken Sie den Adapter neu ein:</translation>
    </message>
    <message>
        <source>The service for braille displays, brltty, takes this chip for one of them, and may take the port away.</source>
        <translation>Der Dienst für Braillezeilen, brltty, hält diesen Chip für eine davon und kann den Port wegnehmen.</translation>
    </message>
    <message>
        <source>If nobody here reads braille, remove the service:</source>
        <translation>Wenn hier niemand Braille liest, entfernen Sie den Dienst:</translation>
    </message>
    <message>
        <source>The adapter gathers what it receives for %1 ms, which could not be lowered: the paddle&apos;s break-in and the echo come late.</source>
        <translation>Der Adapter sammelt %1 ms lang, was er empfängt, und das ließ sich nicht senken: BK vom Paddle und Echo kommen spät.</translation>
    </message>
    <message>
        <source>Lower it until the adapter is plugged in again:</source>
        <translation>Senken Sie es, bis der Adapter neu eingesteckt wird:</translation>
    </message>
    <message>
        <source>Many a board with this chip starts anew when its port is opened. Quorvel asks such a keyer again after 2 s.</source>
        <translation>Manche Platine mit diesem Chip startet neu, wenn ihr Port geöffnet wird. Quorvel fragt einen solchen Keyer nach 2 s noch einmal.</translation>
    </message>
    <message>
        <source>A board of this kind leaves its program when a port at 1200 baud is closed, which is a keyer&apos;s speed.</source>
        <translation>Eine Platine dieser Art verlässt ihr Programm, wenn ein Port mit 1200 Baud geschlossen wird, dem Tempo eines Keyers.</translation>
    </message>
    <message>
        <source>Pull it out and plug it in again after Quorvel has left it.</source>
        <translation>Ziehen Sie sie heraus, und stecken Sie sie wieder ein, nachdem Quorvel sie verlassen hat.</translation>
    </message>
    <message>
        <source>It is open, and nothing answers.</source>
        <translation>Er ist offen, und nichts antwortet.</translation>
    </message>
    <message>
        <source>Is it the keyer&apos;s port? Has the keyer power? A keyer that another program has set to a speed other than 1200 baud keeps it until it has been without power.</source>
        <translation>Ist es der Port des Keyers? Hat der Keyer Strom? Ein Keyer, den ein anderes Programm auf ein anderes Tempo als 1200 Baud gesetzt hat, behält es, bis er ohne Strom war.</translation>
    </message>
    <message>
        <source>It is open, and the keyer answers.</source>
        <translation>Er ist offen, und der Keyer antwortet.</translation>
    </message>
    <message>
        <source>Quorvel has it open.</source>
        <translation>Quorvel hat ihn offen.</translation>
    </message>
    <message>
        <source>Nothing is in the way. Whether a keyer is on it, only asking tells.</source>
        <translation>Nichts steht im Weg. Ob ein Keyer daran ist, sagt nur das Fragen.</translation>
    </message>
    <message>
        <source>%1, the port chosen last</source>
        <translation>%1, der zuletzt gewählte Port</translation>
    </message>
    <message>
        <source>It is plugged in, but no driver has taken it.</source>
        <translation>Er ist eingesteckt, aber kein Treiber hat ihn übernommen.</translation>
    </message>
    <message>
        <source>Have the kernel load its driver. If there is none, the system may have been updated since it was started: start it anew.</source>
        <translation>Lassen Sie den Kernel seinen Treiber laden. Gibt es keinen, wurde das System vielleicht seit seinem Start aktualisiert: Starten Sie es neu.</translation>
    </message>
    <message>
        <source>A program has taken it away from its driver: %1.</source>
        <translation>Ein Programm hat ihn seinem Treiber weggenommen: %1.</translation>
    </message>
    <message>
        <source>End that program, then plug the adapter in again.</source>
        <translation>Beenden Sie dieses Programm, dann stecken Sie den Adapter neu ein.</translation>
    </message>
    <message>
        <source>It was taken away from its driver, it seems by the service for braille displays, brltty, which takes the chip for one of them.</source>
        <translation>Er wurde seinem Treiber weggenommen, anscheinend vom Dienst für Braillezeilen, brltty, der den Chip für eine davon hält.</translation>
    </message>
    <message>
        <source>If nobody here reads braille, remove the service, then plug the adapter in again:</source>
        <translation>Wenn hier niemand Braille liest, entfernen Sie den Dienst, dann stecken Sie den Adapter neu ein:</translation>
    </message>
    <message>
        <source>A program of another user has taken it away from its driver.</source>
        <translation>Ein Programm eines anderen Benutzers hat ihn seinem Treiber weggenommen.</translation>
    </message>
    <message>
        <source>See which programs use USB devices directly:</source>
        <translation>Sehen Sie nach, welche Programme USB-Geräte direkt benutzen:</translation>
    </message>
    <message>
        <source>%1 in USB socket %2</source>
        <translation>%1 in USB-Buchse %2</translation>
    </message>
    <message>
        <source>The driver %1 has taken it, which makes no port of it.</source>
        <translation>Der Treiber %1 hat ihn übernommen, der keinen Port daraus macht.</translation>
    </message>
    <message>
        <source>Have that driver let go of all its devices, then plug the adapter in again:</source>
        <translation>Lassen Sie diesen Treiber alle seine Geräte loslassen, dann stecken Sie den Adapter neu ein:</translation>
    </message>
    <message>
        <source>It is not there.</source>
        <translation>Er ist nicht da.</translation>
    </message>
    <message>
        <source>Plug the keyer in. If it is, it has another name now, as after a change of adapter: choose that in File &gt; Preferences…, General.</source>
        <translation>Stecken Sie den Keyer ein. Ist er es, hat er jetzt einen anderen Namen, etwa nach einem Wechsel des Adapters: Wählen Sie diesen unter Datei &gt; Einstellungen…, Allgemein.</translation>
    </message>
    <message>
        <source>USB adapters</source>
        <translation>USB-Adapter</translation>
    </message>
    <message>
        <source>No USB serial adapter is there.</source>
        <translation>Es ist kein USB-Seriell-Adapter da.</translation>
    </message>
    <message>
        <source>Plug the keyer in. If it is, try another socket and another cable: many a cable charges only. This shows what is plugged in:</source>
        <translation>Stecken Sie den Keyer ein. Ist er es, versuchen Sie eine andere Buchse und ein anderes Kabel: Manches Kabel lädt nur. Dies zeigt, was eingesteckt ist:</translation>
    </message>
    <message>
        <source>This machine</source>
        <translation>Dieser Rechner</translation>
    </message>
    <message>
        <source>udev does not run: what is plugged in now goes unnoticed, and may be opened by root alone.</source>
        <translation>udev läuft nicht: Was jetzt eingesteckt wird, bleibt unbemerkt, und nur root darf es öffnen.</translation>
    </message>
    <message>
        <source>Start it:</source>
        <translation>Starten Sie es:</translation>
    </message>
    <message>
        <source>A keyer answers on it.</source>
        <translation>Ein Keyer antwortet daran.</translation>
    </message>
    <message>
        <source>Something answers on it, but not as a keyer does at 1200 baud.</source>
        <translation>Etwas antwortet daran, aber nicht wie ein Keyer mit 1200 Baud.</translation>
    </message>
    <message>
        <source>It is another device&apos;s port, or the keyer has been set to another speed by another program: take its power away for a moment.</source>
        <translation>Es ist der Port eines anderen Geräts, oder ein anderes Programm hat den Keyer auf ein anderes Tempo gesetzt: Nehmen Sie ihm kurz den Strom.</translation>
    </message>
    <message>
        <source>Nothing answers on it.</source>
        <translation>Nichts antwortet daran.</translation>
    </message>
    <message>
        <source>Is it the keyer&apos;s port? Has the keyer power?</source>
        <translation>Ist es der Port des Keyers? Hat der Keyer Strom?</translation>
    </message>
    <message>
        <source>It could not be opened.</source>
        <translation>Er konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>Check the ports again.</source>
        <translation>Prüfen Sie die Ports noch einmal.</translation>
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
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problem</translation>
    </message>
</context>
<context>
    <name>PreferencesGeneralPane</name>
    <message>
        <source>My &amp;call</source>
        <translation>Mein &amp;Rufzeichen</translation>
    </message>
    <message>
        <source>My call</source>
        <translation>Mein Rufzeichen</translation>
    </message>
    <message>
        <source>Your own call sign: letters, digits and the slash. It is sent for each ` in a message.</source>
        <translation>Ihr eigenes Rufzeichen: Buchstaben, Ziffern und der Schrägstrich. Es wird für jedes ` in einer Nachricht gesendet.</translation>
    </message>
    <message>
        <source>&amp;Serial port</source>
        <translation>&amp;Serieller Port</translation>
    </message>
    <message>
        <source>Serial port</source>
        <translation>Serieller Port</translation>
    </message>
    <message>
        <source>Where the keyer is plugged in. Choosing a port connects at once, also the same one again; leaving the old one takes two seconds.</source>
        <translation>Wo der Keyer eingesteckt ist. Die Wahl eines Ports verbindet sofort, auch erneut mit demselben; das Verlassen des alten dauert zwei Sekunden.</translation>
    </message>
    <message>
        <source>%1 (not present)</source>
        <translation>%1 (nicht vorhanden)</translation>
    </message>
    <message>
        <source>Tune: &amp;let go after</source>
        <translation>Abstimmen: &amp;loslassen nach</translation>
    </message>
    <message>
        <source>Tune: let go after</source>
        <translation>Abstimmen: loslassen nach</translation>
    </message>
    <message>
        <source>How long Tune may key the transmitter down before it lets go by itself. The strip in the main window counts the seconds.</source>
        <translation>Wie lange Abstimmen den Sender tasten darf, bevor es von selbst loslässt. Der Streifen im Hauptfenster zählt die Sekunden.</translation>
    </message>
    <message>
        <source>Accept text from loggers</source>
        <translation>Text von Loggern annehmen</translation>
    </message>
    <message>
        <source>Whether logging programs of this machine may send through Quorvel. You and the paddle come before them.</source>
        <translation>Ob Logprogramme dieses Rechners durch Quorvel senden dürfen. Sie und das Paddle gehen vor.</translation>
    </message>
    <message>
        <source>&amp;Accept text from loggers</source>
        <translation>Text von Loggern &amp;annehmen</translation>
    </message>
    <message>
        <source>Loggers&apos; &amp;port</source>
        <translation>&amp;Port der Logger</translation>
    </message>
    <message>
        <source>Loggers&apos; port</source>
        <translation>Port der Logger</translation>
    </message>
    <message>
        <source>The UDP port of this machine on which loggers are heard. Nearly all of them send to 6789.</source>
        <translation>Der UDP-Port dieses Rechners, an dem Logger gehört werden. Fast alle senden an 6789.</translation>
    </message>
    <message>
        <source>Characters a&amp;head</source>
        <translation>Zeichen &amp;voraus</translation>
    </message>
    <message>
        <source>Characters ahead</source>
        <translation>Zeichen voraus</translation>
    </message>
    <message>
        <source>How many characters may be with the keyer before it has echoed the first. 1 is right for a keyer at this machine; over a network, more keep the spaces exact.</source>
        <translation>Wie viele Zeichen beim Keyer sein dürfen, bevor er das erste zurückgemeldet hat. 1 ist richtig für einen Keyer an diesem Rechner; über ein Netz halten mehr die Abstände genau.</translation>
    </message>
</context>
<context>
    <name>PreferencesGeneralViewController</name>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Changing the serial port...</source>
        <translation>Der serielle Port wird gewechselt...</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Nicht verbunden</translation>
    </message>
    <message>
        <source>No serial port is present. Plug the keyer in.</source>
        <translation>Es ist kein serieller Port vorhanden. Stecken Sie den Keyer ein.</translation>
    </message>
    <message>
        <source>Connected to %1; the keyer has not answered yet</source>
        <translation>Mit %1 verbunden; der Keyer hat noch nicht geantwortet</translation>
    </message>
    <message>
        <source>Connected to %1</source>
        <translation>Mit %1 verbunden</translation>
    </message>
</context>
<context>
    <name>PreferencesMessagesPane</name>
    <message>
        <source>Label of the button</source>
        <translation>Beschriftung der Taste</translation>
    </message>
    <message>
        <source>Text to send</source>
        <translation>Zu sendender Text</translation>
    </message>
    <message>
        <source>Message &amp;1</source>
        <translation>Nachricht &amp;1</translation>
    </message>
    <message>
        <source>Message 1 label</source>
        <translation>Beschriftung von Nachricht 1</translation>
    </message>
    <message>
        <source>What the message&apos;s button in the main window says.</source>
        <translation>Was auf der Taste der Nachricht im Hauptfenster steht.</translation>
    </message>
    <message>
        <source>Message 1</source>
        <translation>Nachricht 1</translation>
    </message>
    <message>
        <source>What is sent by the message&apos;s button, and by F1.</source>
        <translation>Was die Taste der Nachricht und F1 senden.</translation>
    </message>
    <message>
        <source>Message &amp;2</source>
        <translation>Nachricht &amp;2</translation>
    </message>
    <message>
        <source>Message 2 label</source>
        <translation>Beschriftung von Nachricht 2</translation>
    </message>
    <message>
        <source>Message 2</source>
        <translation>Nachricht 2</translation>
    </message>
    <message>
        <source>What is sent by the message&apos;s button, and by F2.</source>
        <translation>Was die Taste der Nachricht und F2 senden.</translation>
    </message>
    <message>
        <source>Message &amp;3</source>
        <translation>Nachricht &amp;3</translation>
    </message>
    <message>
        <source>Message 3 label</source>
        <translation>Beschriftung von Nachricht 3</translation>
    </message>
    <message>
        <source>Message 3</source>
        <translation>Nachricht 3</translation>
    </message>
    <message>
        <source>What is sent by the message&apos;s button, and by F3.</source>
        <translation>Was die Taste der Nachricht und F3 senden.</translation>
    </message>
    <message>
        <source>Message &amp;4</source>
        <translation>Nachricht &amp;4</translation>
    </message>
    <message>
        <source>Message 4 label</source>
        <translation>Beschriftung von Nachricht 4</translation>
    </message>
    <message>
        <source>Message 4</source>
        <translation>Nachricht 4</translation>
    </message>
    <message>
        <source>What is sent by the message&apos;s button, and by F4.</source>
        <translation>Was die Taste der Nachricht und F4 senden.</translation>
    </message>
    <message>
        <source>Message &amp;5</source>
        <translation>Nachricht &amp;5</translation>
    </message>
    <message>
        <source>Message 5 label</source>
        <translation>Beschriftung von Nachricht 5</translation>
    </message>
    <message>
        <source>Message 5</source>
        <translation>Nachricht 5</translation>
    </message>
    <message>
        <source>What is sent by the message&apos;s button, and by F5.</source>
        <translation>Was die Taste der Nachricht und F5 senden.</translation>
    </message>
    <message>
        <source>Message &amp;6</source>
        <translation>Nachricht &amp;6</translation>
    </message>
    <message>
        <source>Message 6 label</source>
        <translation>Beschriftung von Nachricht 6</translation>
    </message>
    <message>
        <source>Message 6</source>
        <translation>Nachricht 6</translation>
    </message>
    <message>
        <source>What is sent by the message&apos;s button, and by F6.</source>
        <translation>Was die Taste der Nachricht und F6 senden.</translation>
    </message>
    <message>
        <source>Message &amp;7</source>
        <translation>Nachricht &amp;7</translation>
    </message>
    <message>
        <source>Message 7 label</source>
        <translation>Beschriftung von Nachricht 7</translation>
    </message>
    <message>
        <source>Message 7</source>
        <translation>Nachricht 7</translation>
    </message>
    <message>
        <source>What is sent by the message&apos;s button, and by F7.</source>
        <translation>Was die Taste der Nachricht und F7 senden.</translation>
    </message>
    <message>
        <source>Message &amp;8</source>
        <translation>Nachricht &amp;8</translation>
    </message>
    <message>
        <source>Message 8 label</source>
        <translation>Beschriftung von Nachricht 8</translation>
    </message>
    <message>
        <source>Message 8</source>
        <translation>Nachricht 8</translation>
    </message>
    <message>
        <source>What is sent by the message&apos;s button, and by F8.</source>
        <translation>Was die Taste der Nachricht und F8 senden.</translation>
    </message>
    <message>
        <source>&amp;Beacon interval</source>
        <translation>&amp;Bakenpause</translation>
    </message>
    <message>
        <source>Beacon interval</source>
        <translation>Bakenpause</translation>
    </message>
    <message>
        <source>How long the beacon is silent before it sends its message again.</source>
        <translation>Wie lange die Bake schweigt, bevor sie ihre Nachricht wieder sendet.</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
</context>
<context>
    <name>PreferencesMessagesViewController</name>
    <message>
        <source>Messages</source>
        <translation>Nachrichten</translation>
    </message>
    <message>
        <source>their call</source>
        <translation>die Gegenstation</translation>
    </message>
    <message>
        <source>their call (%1)</source>
        <translation>die Gegenstation (%1)</translation>
    </message>
    <message>
        <source>In a text, ` stands for your call (%1), # for the serial number (%2), and ~ for %3. Between % and ^ the keyer sends high-speed CW, { joins the next two letters to one sign, and | is half a dit of space.</source>
        <translation>Im Text steht ` für Ihr Rufzeichen (%1), # für die laufende Nummer (%2) und ~ für %3. Zwischen % und ^ sendet der Keyer High-Speed-CW, { verbindet die nächsten zwei Buchstaben zu einem Zeichen, und | ist ein halber Punkt Pause.</translation>
    </message>
</context>
<context>
    <name>PreferencesWinKeyerPane</name>
    <message>
        <source>Groups of settings</source>
        <translation>Gruppen von Einstellungen</translation>
    </message>
    <message>
        <source>&amp;Keying</source>
        <translation>&amp;Tastung</translation>
    </message>
    <message>
        <source>&amp;Weighting</source>
        <translation>&amp;Wichtung</translation>
    </message>
    <message>
        <source>Above 0 elements grow and the gaps after them shrink, for a heavier sound; below 0 it is lighter.</source>
        <translation>Über 0 werden Elemente länger und Pausen kürzer, das klingt schwerer; unter 0 leichter.</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Dah/dit &amp;ratio</source>
        <translation>Strich/Punkt-&amp;Verhältnis</translation>
    </message>
    <message>
        <source>How many dits long a dah is: 3 is the standard, more gives a swing.</source>
        <translation>Wie viele Punkte ein Strich lang ist: 3 ist die Norm, mehr klingt swingend.</translation>
    </message>
    <message>
        <source> : 1</source>
        <translation> : 1</translation>
    </message>
    <message>
        <source>&amp;Compensation</source>
        <translation>&amp;Kompensation</translation>
    </message>
    <message>
        <source>Added to every element and taken from the gap after it, for a transmitter that clips elements.</source>
        <translation>Verlängert jedes Element auf Kosten der Pause danach, für Sender, die Elemente verkürzen.</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>First &amp;extension</source>
        <translation>&amp;Erstverlängerung</translation>
    </message>
    <message>
        <source>Added once to the first element after receiving, for a transmitter that swallows its start.</source>
        <translation>Verlängert das erste Element nach dem Empfang, für Sender, die dessen Anfang verschlucken.</translation>
    </message>
    <message>
        <source>&amp;Farnsworth speed</source>
        <translation>&amp;Farnsworth-Tempo</translation>
    </message>
    <message>
        <source>While the speed is below this, letters are keyed at this speed and only the gaps between them are slow.</source>
        <translation>Ist das Tempo niedriger, werden Buchstaben mit diesem getastet, und nur die Abstände sind langsam.</translation>
    </message>
    <message>
        <source> wpm</source>
        <translation> wpm</translation>
    </message>
    <message>
        <source>Leaves six dits between words in place of seven.</source>
        <translation>Lässt sechs statt sieben Punkte zwischen Wörtern.</translation>
    </message>
    <message>
        <source>C&amp;ontest spacing</source>
        <translation>&amp;Contest-Abstände</translation>
    </message>
    <message>
        <source>Padd&amp;le</source>
        <translation>Padd&amp;le</translation>
    </message>
    <message>
        <source>Key &amp;mode</source>
        <translation>Tast&amp;art</translation>
    </message>
    <message>
        <source>A squeeze: iambic B adds an element at its end, A none; ultimatic repeats one; a bug leaves the dahs to you.</source>
        <translation>Beide gedrückt: Iambic B fügt am Ende ein Element an, A keines; Ultimatic wiederholt eines; Bug: Striche von Hand.</translation>
    </message>
    <message>
        <source>Ultimatic pr&amp;iority</source>
        <translation>Ultimatic-Vor&amp;rang</translation>
    </message>
    <message>
        <source>Which paddle wins while both are closed: with Normal, the one closed last. Needs the key mode Ultimatic.</source>
        <translation>Welches Paddle gilt, wenn beide geschlossen sind: bei Normal das letzte. Braucht die Tastart Ultimatic.</translation>
    </message>
    <message>
        <source>Remembers a paddle that is touched while another element is still being keyed.</source>
        <translation>Merkt sich ein Paddle, das berührt wird, während noch ein anderes Element getastet wird.</translation>
    </message>
    <message>
        <source>Dit/dah memor&amp;y</source>
        <translation>&amp;Punkt-/Strichspeicher</translation>
    </message>
    <message>
        <source>S&amp;witchpoint</source>
        <translation>S&amp;chaltpunkt</translation>
    </message>
    <message>
        <source>Switchpoint</source>
        <translation>Schaltpunkt</translation>
    </message>
    <message>
        <source>From when in an element a touch counts for the next. Needs the memory.</source>
        <translation>Ab wann in einem Element eine Berührung für das nächste zählt. Braucht den Speicher.</translation>
    </message>
    <message>
        <source> % of a dit</source>
        <translation> % vom Punkt</translation>
    </message>
    <message>
        <source>Dits on the right paddle and dahs on the left, as for a left-handed operator.</source>
        <translation>Punkte auf dem rechten, Striche auf dem linken Paddle, wie für Linkshänder.</translation>
    </message>
    <message>
        <source>Swap &amp;paddles</source>
        <translation>Paddles &amp;vertauschen</translation>
    </message>
    <message>
        <source>A pause of more than a dit between letters on the paddle becomes a full letter space.</source>
        <translation>Eine Pause von mehr als einem Punkt zwischen Buchstaben vom Paddle wird zum vollen Buchstabenabstand.</translation>
    </message>
    <message>
        <source>A&amp;utospace</source>
        <translation>A&amp;utospace</translation>
    </message>
    <message>
        <source>The watchdog ends keying after 128 dits or dahs in a row, as from a paddle that is stuck. On here, nothing does.</source>
        <translation>Der Watchdog stoppt nach 128 Punkten oder Strichen in Folge, etwa bei klemmendem Paddle. Ein: Nichts stoppt.</translation>
    </message>
    <message>
        <source>Disable watchdo&amp;g</source>
        <translation>&amp;Watchdog abschalten</translation>
    </message>
    <message>
        <source>Echo to the computer</source>
        <translation>Echo zum Rechner</translation>
    </message>
    <message>
        <source>The keyer tells the computer what you key on the paddle.</source>
        <translation>Der Keyer meldet dem Rechner, was Sie mit dem Paddle geben.</translation>
    </message>
    <message>
        <source>Paddle e&amp;cho-back</source>
        <translation>Paddle-&amp;Echo</translation>
    </message>
    <message>
        <source>The keyer reports each character that it has keyed. Off, the gaps between letters grow, and PTT may fall in them.</source>
        <translation>Der Keyer meldet jedes getastete Zeichen. Aus: Die Buchstabenabstände wachsen, und PTT kann darin abfallen.</translation>
    </message>
    <message>
        <source>Serial &amp;echo-back</source>
        <translation>Ser&amp;ielles Echo</translation>
    </message>
    <message>
        <source>Leave serial echo-back on: without it, what the computer sends has longer gaps between its letters.</source>
        <translation>Lassen Sie das serielle Echo ein: Ohne es hat der Text vom Rechner längere Abstände zwischen den Buchstaben.</translation>
    </message>
    <message>
        <source>&amp;Sidetone and outputs</source>
        <translation>&amp;Mithörton und Ausgänge</translation>
    </message>
    <message>
        <source>Sidetone</source>
        <translation>Mithörton</translation>
    </message>
    <message>
        <source>The keyer sounds what it keys.</source>
        <translation>Der Keyer lässt hören, was er tastet.</translation>
    </message>
    <message>
        <source>Sidetone o&amp;n</source>
        <translation>Mithörton &amp;ein</translation>
    </message>
    <message>
        <source>&amp;Pitch</source>
        <translation>Ton&amp;höhe</translation>
    </message>
    <message>
        <source>Pitch of the sidetone, for your ears only: it is not heard on the air. Needs the sidetone on.</source>
        <translation>Höhe des Mithörtons, nur für Ihre Ohren: Sie ist nicht auf dem Band zu hören. Braucht den Mithörton.</translation>
    </message>
    <message>
        <source>Sounds what you key on the paddle, and is silent while the computer sends. Needs the sidetone on.</source>
        <translation>Lässt hören, was Sie mit dem Paddle geben, und schweigt, während der Rechner sendet. Braucht den Mithörton.</translation>
    </message>
    <message>
        <source>&amp;Only for the paddle</source>
        <translation>&amp;Nur fürs Paddle</translation>
    </message>
    <message>
        <source>Key outputs</source>
        <translation>Tastausgänge</translation>
    </message>
    <message>
        <source>Keys the transmitter on output 1.</source>
        <translation>Tastet den Sender an Ausgang 1.</translation>
    </message>
    <message>
        <source>Key output &amp;1</source>
        <translation>Tastausgang &amp;1</translation>
    </message>
    <message>
        <source>Keys the transmitter on output 2.</source>
        <translation>Tastet den Sender an Ausgang 2.</translation>
    </message>
    <message>
        <source>Key output &amp;2</source>
        <translation>Tastausgang &amp;2</translation>
    </message>
    <message>
        <source>Both are off: no transmitter is keyed.</source>
        <translation>Beide sind aus: Es wird kein Sender getastet.</translation>
    </message>
    <message>
        <source>PTT</source>
        <translation>PTT</translation>
    </message>
    <message>
        <source>Switches the transmitter over before keying and back after it, in place of break-in by the radio itself.</source>
        <translation>Schaltet den Sender vor der Tastung um und danach zurück, anstelle des BK-Betriebs im Funkgerät.</translation>
    </message>
    <message>
        <source>PTT &amp;enabled</source>
        <translation>&amp;PTT ein</translation>
    </message>
    <message>
        <source>Lead-&amp;in</source>
        <translation>&amp;Vorlauf</translation>
    </message>
    <message>
        <source>Wait between switching to transmit and the first element, for relays and amplifiers. Needs PTT enabled.</source>
        <translation>Zeit vom Umschalten auf Senden bis zum ersten Element, für Relais und Endstufen. Braucht PTT.</translation>
    </message>
    <message>
        <source>&amp;Tail</source>
        <translation>Nachlau&amp;f</translation>
    </message>
    <message>
        <source>How long the transmitter stays on after text from the computer, beyond a letter space. Needs PTT enabled.</source>
        <translation>Wie lange der Sender nach Text vom Rechner anbleibt, zusätzlich zum Buchstabenabstand. Braucht PTT.</translation>
    </message>
    <message>
        <source>Paddle &amp;hang</source>
        <translation>Pa&amp;ddle-Haltezeit</translation>
    </message>
    <message>
        <source>How long the transmitter stays on after the paddle: short to hear sooner, long to spare the relay. Needs PTT enabled.</source>
        <translation>Wie lange der Sender nach dem Paddle anbleibt: kurz, um früher zu hören, lang, um das Relais zu schonen. Braucht PTT.</translation>
    </message>
    <message>
        <source>word spaces</source>
        <translation>Wortabstände</translation>
    </message>
    <message>
        <source>Spee&amp;d</source>
        <translation>Temp&amp;o</translation>
    </message>
    <message>
        <source>Speed pot</source>
        <translation>Tempo-Poti</translation>
    </message>
    <message>
        <source>Lo&amp;west speed</source>
        <translation>Mi&amp;ndesttempo</translation>
    </message>
    <message>
        <source>Speed with the pot turned fully down.</source>
        <translation>Tempo bei ganz zurückgedrehtem Poti.</translation>
    </message>
    <message>
        <source>&amp;Range</source>
        <translation>Be&amp;reich</translation>
    </message>
    <message>
        <source>Speed added with the pot turned fully up. With more than 31 wpm its topmost readings are not shown.</source>
        <translation>Was bei voll aufgedrehtem Poti dazukommt. Bei mehr als 31 wpm werden die obersten Werte nicht angezeigt.</translation>
    </message>
    <message>
        <source>High-speed CW</source>
        <translation>High-Speed-CW</translation>
    </message>
    <message>
        <source>Ra&amp;te</source>
        <translation>R&amp;ate</translation>
    </message>
    <message>
        <source>Letters a minute while high-speed CW is on, as for meteor scatter. Holds from when it is next switched on.</source>
        <translation>Buchstaben pro Minute bei High-Speed-CW, etwa für Meteorscatter. Gilt ab dem nächsten Einschalten.</translation>
    </message>
    <message>
        <source>St&amp;andalone</source>
        <translation>&amp;Stand-alone</translation>
    </message>
    <message>
        <source>&amp;Command speed</source>
        <translation>&amp;Befehlstempo</translation>
    </message>
    <message>
        <source>Speed at which the keyer, working alone, answers what you set by paddle. Reaches it with Save to keyer.</source>
        <translation>Tempo, mit dem der Keyer allein auf Befehle vom Paddle antwortet. Erreicht ihn mit „Im Keyer speichern“.</translation>
    </message>
    <message>
        <source>A touch of the paddle breaks off a message that the keyer sends from its memory. Reaches the keyer with Save to keyer.</source>
        <translation>Eine Berührung des Paddles bricht eine Nachricht aus dem Speicher ab. Erreicht den Keyer mit „Im Keyer speichern“.</translation>
    </message>
    <message>
        <source>&amp;Message break</source>
        <translation>Nachricht &amp;unterbrechbar</translation>
    </message>
    <message>
        <source>Serial numbers that the keyer counts by itself are sent short, as T for 0. Reaches the keyer with Save to keyer.</source>
        <translation>Nummern, die der Keyer selbst zählt, sendet er kurz, etwa T für 0. Erreicht ihn mit „Im Keyer speichern“.</translation>
    </message>
    <message>
        <source>C&amp;ut serial numbers</source>
        <translation>&amp;Kurze Nummern</translation>
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
        <translation>Der Speicher des Keyers konnte nicht beschrieben werden.</translation>
    </message>
    <message>
        <source>Check that the keyer is connected.</source>
        <translation>Prüfen Sie, ob der Keyer verbunden ist.</translation>
    </message>
</context>
<context>
    <name>QuorvelDelegate</name>
    <message>
        <source>The WinKeyer using serial port %1 has been unplugged.</source>
        <translation>Der WinKeyer am seriellen Port %1 wurde ausgesteckt.</translation>
    </message>
    <message>
        <source>Plug it back in, or choose another serial port in General preferences.</source>
        <translation>Stecken Sie ihn wieder ein, oder wählen Sie in den Einstellungen unter Allgemein einen anderen seriellen Port.</translation>
    </message>
    <message>
        <source>The serial port %1 has been plugged in.</source>
        <translation>Der serielle Port %1 wurde eingesteckt.</translation>
    </message>
    <message>
        <source>Try to use this port to communicate with a WinKeyer?</source>
        <translation>Soll versucht werden, über diesen Port einen WinKeyer anzusprechen?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
</context>
<context>
    <name>RegisterWords</name>
    <message>
        <source>on</source>
        <translation>ein</translation>
    </message>
    <message>
        <source>off</source>
        <translation>aus</translation>
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
        <translation>%1 WPM, vom Knopf</translation>
    </message>
    <message>
        <source>%1; %2 WPM for now</source>
        <translation>%1; derzeit %2 WPM</translation>
    </message>
    <message>
        <source>iambic A</source>
        <translation>Iambic A</translation>
    </message>
    <message>
        <source>ultimatic</source>
        <translation>Ultimatic</translation>
    </message>
    <message>
        <source>bug</source>
        <translation>Bug</translation>
    </message>
    <message>
        <source>iambic B</source>
        <translation>Iambic B</translation>
    </message>
    <message>
        <source>dah</source>
        <translation>Strich</translation>
    </message>
    <message>
        <source>dit</source>
        <translation>Punkt</translation>
    </message>
    <message>
        <source>the last one closed</source>
        <translation>der zuletzt geschlossene Kontakt</translation>
    </message>
    <message>
        <source>%1 Hz, for the paddle only</source>
        <translation>%1 Hz, nur fürs Paddle</translation>
    </message>
    <message>
        <source>%1 Hz</source>
        <translation>%1 Hz</translation>
    </message>
    <message>
        <source>%1 to %2 WPM</source>
        <translation>%1 bis %2 WPM</translation>
    </message>
    <message>
        <source>1 and 2</source>
        <translation>1 und 2</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keiner</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>Knob&apos;s range</source>
        <translation>Bereich des Knopfs</translation>
    </message>
    <message>
        <source>Farnsworth</source>
        <translation>Farnsworth</translation>
    </message>
    <message>
        <source>Weighting</source>
        <translation>Wichtung</translation>
    </message>
    <message>
        <source>Dah to dit</source>
        <translation>Strich zu Punkt</translation>
    </message>
    <message>
        <source>%1 to 1</source>
        <translation>%1 zu 1</translation>
    </message>
    <message>
        <source>Key compensation</source>
        <translation>Kompensation</translation>
    </message>
    <message>
        <source>First extension</source>
        <translation>Erstverlängerung</translation>
    </message>
    <message>
        <source>Word space</source>
        <translation>Wortabstand</translation>
    </message>
    <message>
        <source>%1 dits</source>
        <translation>%1 Punkte</translation>
    </message>
    <message>
        <source>Paddle keying</source>
        <translation>Paddle-Tastung</translation>
    </message>
    <message>
        <source>Ultimatic priority</source>
        <translation>Ultimatic-Vorrang</translation>
    </message>
    <message>
        <source>Paddle swapped</source>
        <translation>Paddles vertauscht</translation>
    </message>
    <message>
        <source>Paddle memory</source>
        <translation>Paddle-Speicher</translation>
    </message>
    <message>
        <source>after %1 dit lengths</source>
        <translation>nach %1 Punktlängen</translation>
    </message>
    <message>
        <source>Paddle watchdog</source>
        <translation>Paddle-Überwachung</translation>
    </message>
    <message>
        <source>Autospace</source>
        <translation>Autospace</translation>
    </message>
    <message>
        <source>Paddle echo</source>
        <translation>Paddle-Echo</translation>
    </message>
    <message>
        <source>Serial echo</source>
        <translation>Serielles Echo</translation>
    </message>
    <message>
        <source>Sidetone</source>
        <translation>Mithörton</translation>
    </message>
    <message>
        <source>Key outputs</source>
        <translation>Tastausgänge</translation>
    </message>
    <message>
        <source>PTT</source>
        <translation>PTT</translation>
    </message>
    <message>
        <source>Lead-in</source>
        <translation>Vorlauf</translation>
    </message>
    <message>
        <source>Tail</source>
        <translation>Nachlauf</translation>
    </message>
    <message>
        <source>Hang time</source>
        <translation>Haltezeit</translation>
    </message>
    <message>
        <source>word space and %1 dits</source>
        <translation>Wortabstand und %1 Punkte</translation>
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
        <translation>die Aufzeichnung ist beschädigt</translation>
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
        <translation>Text</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>Sent by</source>
        <translation>Gesendet von</translation>
    </message>
    <message>
        <source>How it ended</source>
        <translation>Wie es endete</translation>
    </message>
    <message>
        <source>%1 LPM</source>
        <translation>%1 BpM</translation>
    </message>
    <message>
        <source>%1 WPM</source>
        <translation>%1 WPM</translation>
    </message>
    <message>
        <source>Typed</source>
        <translation>Getippt</translation>
    </message>
    <message>
        <source>F%1 %2</source>
        <translation>F%1 %2</translation>
    </message>
    <message>
        <source>Push-button %1 %2</source>
        <translation>Taster %1 %2</translation>
    </message>
    <message>
        <source>Beacon</source>
        <translation>Bake</translation>
    </message>
    <message>
        <source>Logger, port %1</source>
        <translation>Logger, Port %1</translation>
    </message>
    <message>
        <source>Logger %1</source>
        <translation>Logger %1</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Gesendet</translation>
    </message>
    <message>
        <source>Stopped at character %1</source>
        <translation>Gestoppt beim %1. Zeichen</translation>
    </message>
    <message>
        <source>Broken in on at character %1</source>
        <translation>Unterbrochen beim %1. Zeichen</translation>
    </message>
    <message>
        <source>Link lost at character %1</source>
        <translation>Verbindung verloren beim %1. Zeichen</translation>
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
        <translation>Punkt %1</translation>
    </message>
    <message>
        <source>dah %1</source>
        <translation>Strich %1</translation>
    </message>
    <message>
        <source>space %1</source>
        <translation>Abstand %1</translation>
    </message>
    <message>
        <source>letter space %1</source>
        <translation>Buchstabenabstand %1</translation>
    </message>
    <message>
        <source>word space %1</source>
        <translation>Wortabstand %1</translation>
    </message>
    <message>
        <source>pause %1</source>
        <translation>Pause %1</translation>
    </message>
    <message>
        <source>elements and spaces: %1</source>
        <translation>Zeichenteile und Abstände: %1</translation>
    </message>
    <message>
        <source>Click and drag to measure, or use the arrow keys.</source>
        <translation>Zum Messen klicken und ziehen, oder die Pfeiltasten.</translation>
    </message>
    <message>
        <source>One cursor is set.</source>
        <translation>Ein Messzeiger ist gesetzt.</translation>
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
        <translation>Was Sie senden, kann nicht in %1 festgehalten werden: %2.</translation>
    </message>
    <message>
        <source>The record of what was sent was damaged. It is kept as %1, and a new one has been begun.</source>
        <translation>Die Aufzeichnung des Gesendeten war beschädigt. Sie ist als %1 aufgehoben, und eine neue wurde begonnen.</translation>
    </message>
</context>
<context>
    <name>SentWindow</name>
    <message>
        <source>Sent</source>
        <translation>Gesendet</translation>
    </message>
    <message>
        <source>&amp;Find:</source>
        <translation>&amp;Suchen:</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Words, a call sign, a key, a logger or a date</source>
        <translation>Wörter, ein Rufzeichen, eine Taste, ein Logger oder ein Datum</translation>
    </message>
    <message>
        <source>&amp;Keep a record of what is sent, for</source>
        <translation>Gesendetes &amp;aufzeichnen, für</translation>
    </message>
    <message>
        <source>How long what is sent is kept</source>
        <translation>Wie lange Gesendetes aufgehoben wird</translation>
    </message>
    <message>
        <source>&amp;Make Message</source>
        <translation>Als &amp;Nachricht</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Save as CSV…</source>
        <translation>Als &amp;CSV sichern …</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>Sch&amp;ließen</translation>
    </message>
    <message>
        <source>%1 sent</source>
        <translation>%1 gesendet</translation>
    </message>
    <message>
        <source>%1 found</source>
        <translation>%1 gefunden</translation>
    </message>
    <message>
        <source>The newest %1 found</source>
        <translation>Die neuesten %1 gefunden</translation>
    </message>
    <message>
        <source>Sends the text of the chosen line, as if it were typed</source>
        <translation>Sendet den Text der gewählten Zeile, als wäre er getippt</translation>
    </message>
    <message>
        <source>No keyer is connected</source>
        <translation>Kein Keyer ist verbunden</translation>
    </message>
    <message>
        <source>Puts the text of the chosen line under a message key</source>
        <translation>Legt den Text der gewählten Zeile auf eine Nachrichtentaste</translation>
    </message>
    <message>
        <source>F&amp;%1  %2</source>
        <translation>F&amp;%1  %2</translation>
    </message>
    <message>
        <source>Replace the text of F%1?</source>
        <translation>Den Text von F%1 ersetzen?</translation>
    </message>
    <message>
        <source>It is “%1” now, and will be “%2”.</source>
        <translation>Jetzt ist er „%1“, dann „%2“.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>Save as CSV</source>
        <translation>Als CSV sichern</translation>
    </message>
    <message>
        <source>Values separated by commas (*.csv)</source>
        <translation>Durch Kommas getrennte Werte (*.csv)</translation>
    </message>
    <message>
        <source>sent.csv</source>
        <translation>gesendet.csv</translation>
    </message>
    <message>
        <source>Saved as %1</source>
        <translation>Gesichert als %1</translation>
    </message>
    <message>
        <source>Not saved: %1</source>
        <translation>Nicht gesichert: %1</translation>
    </message>
    <message>
        <source>Send Again</source>
        <translation>Erneut senden</translation>
    </message>
    <message>
        <source>Saved as %1, without %2 that could not be read</source>
        <translation>Gesichert als %1, ohne %2, die nicht zu lesen waren</translation>
    </message>
</context>
<context>
    <name>Setting</name>
    <message>
        <source>Off</source>
        <translation>Nie</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keiner</translation>
    </message>
    <message>
        <source>Iambic B</source>
        <translation>Iambic B</translation>
    </message>
    <message>
        <source>Iambic A</source>
        <translation>Iambic A</translation>
    </message>
    <message>
        <source>Ultimatic</source>
        <translation>Ultimatic</translation>
    </message>
    <message>
        <source>Bug</source>
        <translation>Bug</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Dashes</source>
        <translation>Striche</translation>
    </message>
    <message>
        <source>Dots</source>
        <translation>Punkte</translation>
    </message>
    <message>
        <source>Exchange</source>
        <translation>Rapport</translation>
    </message>
    <message>
        <source>Acknowledge</source>
        <translation>Bestätigung</translation>
    </message>
    <message>
        <source>My Call</source>
        <translation>Mein Call</translation>
    </message>
    <message>
        <source>Their Call</source>
        <translation>Dein Call</translation>
    </message>
    <message>
        <source>Again</source>
        <translation>Nochmal</translation>
    </message>
    <message>
        <source>%1 lpm</source>
        <translation>%1 BpM</translation>
    </message>
    <message>
        <source>1 month</source>
        <translation>1 Monat</translation>
    </message>
    <message>
        <source>3 months</source>
        <translation>3 Monate</translation>
    </message>
    <message>
        <source>1 year</source>
        <translation>1 Jahr</translation>
    </message>
    <message>
        <source>5 years</source>
        <translation>5 Jahre</translation>
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
        <translation>Sie dürfen %1 nicht lesen. Die Datei blieb, wie sie ist, und was Sie jetzt wählen, wird in %2 gespeichert.</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Your settings could not be read.</source>
        <translation>Ihre Einstellungen konnten nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Your settings cannot be stored.</source>
        <translation>Ihre Einstellungen können nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>A quotation mark in %1 is not closed.</source>
        <translation>Ein Anführungszeichen in %1 ist nicht geschlossen.</translation>
    </message>
    <message>
        <source>%1 is a pipe or a device.</source>
        <translation>%1 ist eine Pipe oder ein Gerät.</translation>
    </message>
    <message>
        <source>%1 is much too large to be settings.</source>
        <translation>%1 ist viel zu groß für Einstellungen.</translation>
    </message>
    <message>
        <source>There is something in %1 that is no setting.</source>
        <translation>In %1 steht etwas, das keine Einstellung ist.</translation>
    </message>
    <message>
        <source>The file could not be put aside. It was left as it is, and what you choose now is stored in %1.</source>
        <translation>Die Datei konnte nicht beiseitegelegt werden. Sie blieb, wie sie ist, und was Sie jetzt wählen, wird in %1 gespeichert.</translation>
    </message>
    <message>
        <source>Nothing of it is lost: it is now %1. The lines that could be read are in use.</source>
        <translation>Nichts davon ist verloren: Es ist jetzt %1. Die lesbaren Zeilen werden benutzt.</translation>
    </message>
    <message>
        <source>Nothing of it is lost: it is now %1. Quorvel starts with the settings of a new installation.</source>
        <translation>Nichts davon ist verloren: Es ist jetzt %1. Quorvel beginnt mit den Einstellungen einer neuen Installation.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2. What is not stored holds until you quit, and is lost then unless it can be stored before: %3.</source>
        <translation>%1 kann nicht geschrieben werden: %2. Was nicht gespeichert ist, gilt bis zum Beenden und ist dann verloren, wenn es nicht vorher gespeichert werden kann: %3.</translation>
    </message>
    <message>
        <source>Nothing of it is lost: it is now %1. Of what cannot be read, the last settings hold, and have been stored anew.</source>
        <translation>Nichts davon ist verloren: Es ist jetzt %1. Für das Unlesbare gelten die letzten Einstellungen; sie wurden neu gespeichert.</translation>
    </message>
    <message>
        <source>Your settings were damaged by another program.</source>
        <translation>Ihre Einstellungen wurden von einem anderen Programm beschädigt.</translation>
    </message>
    <message>
        <source>%1 … (%2 in all)</source>
        <translation>%1 … (%2 insgesamt)</translation>
    </message>
</context>
<context>
    <name>SleepNotice</name>
    <message>
        <source>The computer went to sleep, which stopped the sending.</source>
        <translation>Der Rechner ging schlafen, was das Senden beendet hat.</translation>
    </message>
    <message>
        <source>What you entered meanwhile waits: take Pause off to send it, or press Esc to drop it.</source>
        <translation>Was Sie inzwischen eingegeben haben, wartet: Schalten Sie Pause aus, um es zu senden, oder verwerfen Sie es mit Esc.</translation>
    </message>
</context>
<context>
    <name>SpeedLabel</name>
    <message>
        <source>%1 LPM</source>
        <translation>%1 BpM</translation>
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
        <translation>hier gesetzt</translation>
    </message>
    <message>
        <source>knob</source>
        <translation>Knopf</translation>
    </message>
    <message>
        <source>%1, set here</source>
        <translation>%1, hier gesetzt</translation>
    </message>
</context>
<context>
    <name>SpokenChanges</name>
    <message>
        <source>%1: on</source>
        <translation>%1: ein</translation>
    </message>
    <message>
        <source>%1: off</source>
        <translation>%1: aus</translation>
    </message>
    <message>
        <source>Break-in: what waited was dropped</source>
        <translation>BK: Was wartete, wurde verworfen</translation>
    </message>
</context>
<context>
    <name>StandaloneMessages</name>
    <message>
        <source>Message &amp;1</source>
        <translation>Nachricht &amp;1</translation>
    </message>
    <message>
        <source>What the keyer sends from its own memory as message 1. Tokens are not filled in.</source>
        <translation>Was der Keyer aus dem eigenen Speicher als Nachricht 1 sendet. Platzhalter werden nicht ersetzt.</translation>
    </message>
    <message>
        <source>Send 1</source>
        <translation>1 senden</translation>
    </message>
    <message>
        <source>Message &amp;2</source>
        <translation>Nachricht &amp;2</translation>
    </message>
    <message>
        <source>What the keyer sends from its own memory as message 2. Tokens are not filled in.</source>
        <translation>Was der Keyer aus dem eigenen Speicher als Nachricht 2 sendet. Platzhalter werden nicht ersetzt.</translation>
    </message>
    <message>
        <source>Send 2</source>
        <translation>2 senden</translation>
    </message>
    <message>
        <source>Message &amp;3</source>
        <translation>Nachricht &amp;3</translation>
    </message>
    <message>
        <source>What the keyer sends from its own memory as message 3. Tokens are not filled in.</source>
        <translation>Was der Keyer aus dem eigenen Speicher als Nachricht 3 sendet. Platzhalter werden nicht ersetzt.</translation>
    </message>
    <message>
        <source>Send 3</source>
        <translation>3 senden</translation>
    </message>
    <message>
        <source>Message &amp;4</source>
        <translation>Nachricht &amp;4</translation>
    </message>
    <message>
        <source>What the keyer sends from its own memory as message 4. Tokens are not filled in.</source>
        <translation>Was der Keyer aus dem eigenen Speicher als Nachricht 4 sendet. Platzhalter werden nicht ersetzt.</translation>
    </message>
    <message>
        <source>Send 4</source>
        <translation>4 senden</translation>
    </message>
    <message>
        <source>Message &amp;5</source>
        <translation>Nachricht &amp;5</translation>
    </message>
    <message>
        <source>What the keyer sends from its own memory as message 5. Tokens are not filled in.</source>
        <translation>Was der Keyer aus dem eigenen Speicher als Nachricht 5 sendet. Platzhalter werden nicht ersetzt.</translation>
    </message>
    <message>
        <source>Send 5</source>
        <translation>5 senden</translation>
    </message>
    <message>
        <source>Message &amp;6</source>
        <translation>Nachricht &amp;6</translation>
    </message>
    <message>
        <source>What the keyer sends from its own memory as message 6. Tokens are not filled in.</source>
        <translation>Was der Keyer aus dem eigenen Speicher als Nachricht 6 sendet. Platzhalter werden nicht ersetzt.</translation>
    </message>
    <message>
        <source>Send 6</source>
        <translation>6 senden</translation>
    </message>
    <message>
        <source>Loading the keyer&apos;s memory</source>
        <translation>Der Speicher des Keyers wird geladen</translation>
    </message>
    <message>
        <source>The serial line takes two and a half seconds for the whole memory.</source>
        <translation>Die serielle Leitung braucht für den ganzen Speicher zweieinhalb Sekunden.</translation>
    </message>
    <message>
        <source>Loading the keyer&apos;s memory: %p%</source>
        <translation>Der Speicher des Keyers wird geladen: %p%</translation>
    </message>
    <message>
        <source>Sa&amp;ve to keyer</source>
        <translation>Im Keyer s&amp;peichern</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>„%1“</translation>
    </message>
    <message>
        <source>Cannot hold %1</source>
        <translation>Kann %1 nicht fassen</translation>
    </message>
    <message>
        <source>Does not fit</source>
        <translation>Passt nicht hinein</translation>
    </message>
    <message>
        <source>Ends at %1</source>
        <translation>Endet bei %1</translation>
    </message>
    <message>
        <source>No Morse for %1</source>
        <translation>Kein Morsezeichen für %1</translation>
    </message>
    <message>
        <source>The keyer&apos;s memory has no place for %1. Nothing can be saved while it is in this message.</source>
        <translation>Der Speicher des Keyers hat keinen Platz für %1. Solange es in dieser Nachricht steht, kann nichts gespeichert werden.</translation>
    </message>
    <message>
        <source>The memory has no room for this message, which is left out when you save. Characters too many: %1.</source>
        <translation>Der Speicher hat keinen Platz für diese Nachricht; beim Speichern wird sie ausgelassen. Zeichen zu viel: %1.</translation>
    </message>
    <message>
        <source>The keyer takes %1 for the end of the message: it sends nothing behind it, and the sign itself is cut short.</source>
        <translation>Der Keyer hält %1 für das Ende der Nachricht: Dahinter sendet er nichts, und das Zeichen selbst wird abgeschnitten.</translation>
    </message>
    <message>
        <source>%1 has no Morse code: the keyer sends nothing in its place. Tokens are not filled in here.</source>
        <translation>%1 hat kein Morsezeichen: Der Keyer sendet an seiner Stelle nichts. Platzhalter werden hier nicht ersetzt.</translation>
    </message>
    <message>
        <source>Message %1 holds %2, which has no Morse code. Take it out and save again.</source>
        <translation>Nachricht %1 enthält %2, wofür es kein Morsezeichen gibt. Nehmen Sie es heraus und speichern Sie noch einmal.</translation>
    </message>
    <message>
        <source>Message %1: %2</source>
        <translation>Nachricht %1: %2</translation>
    </message>
    <message>
        <source>Connect the keyer to save and to send.</source>
        <translation>Verbinden Sie den Keyer, um zu speichern und zu senden.</translation>
    </message>
    <message>
        <source>The keyer&apos;s memory is being loaded.</source>
        <translation>Der Speicher des Keyers wird geladen.</translation>
    </message>
    <message>
        <source>Writes these messages and all settings into the keyer&apos;s own memory, for work without a computer. It takes two and a half seconds.</source>
        <translation>Schreibt diese Nachrichten und alle Einstellungen in den Speicher des Keyers, für Betrieb ohne Rechner. Das dauert zweieinhalb Sekunden.</translation>
    </message>
    <message>
        <source>Has the keyer send this message as it was last saved.</source>
        <translation>Lässt den Keyer diese Nachricht senden, wie sie zuletzt gespeichert wurde.</translation>
    </message>
</context>
<context>
    <name>TuneSwitch</name>
    <message>
        <source>Tune needs a keyer, and none is connected</source>
        <translation>Abstimmen braucht einen Keyer, und es ist keiner verbunden</translation>
    </message>
    <message>
        <source>The keyer&apos;s memory is being loaded</source>
        <translation>Der Speicher des Keyers wird geladen</translation>
    </message>
</context>
<context>
    <name>TuneWarning</name>
    <message>
        <source>%1 s, lets go in %2 s</source>
        <translation>%1 s, lässt in %2 s los</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Tune is off</source>
        <translation>Abstimmen ist aus</translation>
    </message>
</context>
<context>
    <name>TypingWatch</name>
    <message>
        <source>%1 – takes keys when you have stopped typing</source>
        <translation>%1 – nimmt Tasten an, wenn Sie nicht mehr tippen</translation>
    </message>
</context>
<context>
    <name>VirtualKeyer</name>
    <message>
        <source>the system has no watches left; openings of the port are noticed late</source>
        <translation>dem System fehlen weitere Überwachungen; das Öffnen des Ports wird spät bemerkt</translation>
    </message>
    <message>
        <source>Plugged in as %1 (%2)</source>
        <translation>Eingesteckt als %1 (%2)</translation>
    </message>
    <message>
        <source>a running virtual keyer already holds the name %1</source>
        <translation>ein laufender virtueller Keyer hat den Namen %1 schon</translation>
    </message>
    <message>
        <source>the directory %1 belongs to another user</source>
        <translation>das Verzeichnis %1 gehört einem anderen Benutzer</translation>
    </message>
    <message>
        <source>%1 is in the way and no virtual keyer made it</source>
        <translation>%1 ist im Weg, und kein virtueller Keyer hat es angelegt</translation>
    </message>
    <message>
        <source>cannot write the registers %1: %2</source>
        <translation>die Register können nicht nach %1 geschrieben werden: %2</translation>
    </message>
    <message>
        <source>cannot write the transcript %1</source>
        <translation>das Protokoll kann nicht nach %1 geschrieben werden</translation>
    </message>
    <message>
        <source>a running virtual keyer (process %1) already holds the name %2</source>
        <translation>ein laufender virtueller Keyer (Prozess %1) hat den Namen %2 schon</translation>
    </message>
    <message>
        <source>The virtual keyer does not run: %1</source>
        <translation>Der virtuelle Keyer läuft nicht: %1</translation>
    </message>
    <message>
        <source>cannot read the script %1: %2</source>
        <translation>kann das Skript %1 nicht lesen: %2</translation>
    </message>
    <message>
        <source>a profile that --help lists</source>
        <translation>ein Profil, das --help auflistet</translation>
    </message>
    <message>
        <source>%1:%2: &quot;%3&quot; is not understood; possible is: %4</source>
        <translation>%1:%2: „%3“ wird nicht verstanden; möglich ist: %4</translation>
    </message>
    <message>
        <source>%1:%2: expected %3, but it is %4</source>
        <translation>%1:%2: erwartet war %3, es ist aber %4</translation>
    </message>
    <message>
        <source>%1:%2: not done before the end</source>
        <translation>%1:%2: vor dem Ende nicht ausgeführt</translation>
    </message>
    <message>
        <source>No window can be shown. What is keyed is printed here, until Ctrl+C.</source>
        <translation>Es kann kein Fenster gezeigt werden. Was getastet wird, erscheint hier, bis Strg+C.</translation>
    </message>
    <message>
        <source>cannot write the sound %1</source>
        <translation>kann den Ton %1 nicht schreiben</translation>
    </message>
</context>
<context>
    <name>VirtualKeyerCommandLine</name>
    <message>
        <source>The kind of keyer, or several of them, separated by commas:</source>
        <translation>Die Art des Keyers, oder mehrere, durch Kommas getrennt:</translation>
    </message>
    <message>
        <source>Writes a line for every event, with its time in ms, to %1.</source>
        <translation>Schreibt für jedes Ereignis eine Zeile mit der Zeit in ms nach %1.</translation>
    </message>
    <message>
        <source>Keeps %1 up to date with the keyer&apos;s registers, and the settings and messages of its memory: lines of a name and a value. Each change replaces the file as a whole.</source>
        <translation>Hält %1 auf dem Stand der Register des Keyers sowie der Einstellungen und Nachrichten seines Speichers: Zeilen aus Name und Wert. Jede Änderung ersetzt die ganze Datei.</translation>
    </message>
    <message>
        <source>Where the speed pot stands, %1 to %2 words per minute, %3 by default. It counts within the range that the host has set, 10 to 25 at power-up.</source>
        <translation>Wo das Tempo-Poti steht, %1 bis %2 Wörter pro Minute, ohne Angabe %3. Es zählt innerhalb des Bereichs, den der Host eingestellt hat, nach dem Einschalten 10 bis 25.</translation>
    </message>
    <message>
        <source>The serial port&apos;s name, %1 by default. The port is a link in quorvel/ports in the runtime directory.</source>
        <translation>Der Name des seriellen Ports, ohne Angabe %1. Der Port ist ein Link in quorvel/ports im Laufzeitverzeichnis.</translation>
    </message>
    <message>
        <source>Unknown profile &apos;%1&apos;; --help lists them.</source>
        <translation>Unbekanntes Profil &apos;%1&apos;; --help listet sie auf.</translation>
    </message>
    <message>
        <source>The speed is %1 to %2 words per minute, not &apos;%3&apos;.</source>
        <translation>Das Tempo ist %1 bis %2 Wörter pro Minute, nicht &apos;%3&apos;.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot name a serial port: a name has 1 to 200 characters, no slash, and does not begin with a dot.</source>
        <translation>&apos;%1&apos; taugt nicht als Name eines seriellen Ports: Ein Name hat 1 bis 200 Zeichen, keinen Schrägstrich, und beginnt nicht mit einem Punkt.</translation>
    </message>
    <message>
        <source>The transcript needs a file name.</source>
        <translation>Das Protokoll braucht einen Dateinamen.</translation>
    </message>
    <message>
        <source>The registers need a file name.</source>
        <translation>Die Register brauchen einen Dateinamen.</translation>
    </message>
    <message>
        <source>A Morse keyer made of software: it plugs itself in as a serial port, obeys the host
program that opens it, and prints what it keys to standard output.</source>
        <translation>Ein Morse-Keyer aus Software: Er steckt sich selbst als serieller Port ein, gehorcht dem Programm,
das ihn öffnet, und gibt auf der Standardausgabe aus, was er tastet.</translation>
    </message>
    <message>
        <source>Shows this text.</source>
        <translation>Zeigt diesen Text.</translation>
    </message>
    <message>
        <source>Shows the version.</source>
        <translation>Zeigt die Version.</translation>
    </message>
    <message>
        <source>Unexpected argument &apos;%1&apos;.</source>
        <translation>Unerwartetes Argument &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>Standard input works the paddle: &quot;.&quot; and &quot;-&quot; each close a contact, and anything else opens both.</source>
        <translation>Die Standardeingabe bedient das Paddle: „.“ und „-“ schließen je einen Kontakt, alles andere öffnet beide.</translation>
    </message>
    <message>
        <source>Shows no window.</source>
        <translation>Zeigt kein Fenster.</translation>
    </message>
    <message>
        <source>Saves the sidetone to %1, a WAV file.</source>
        <translation>Speichert den Mithörton in %1, einer WAV-Datei.</translation>
    </message>
    <message>
        <source>Works the keyer as %1 says, &quot;-&quot; for standard input, and ends with it; the exit status is 3 if what it expects did not happen. Lines of it are: %2</source>
        <translation>Bedient den Keyer, wie %1 sagt, „-“ für die Standardeingabe, und endet damit; der Endestatus ist 3, wenn nicht eintrat, was es erwartet. Seine Zeilen sind: %2</translation>
    </message>
    <message>
        <source>The script&apos;s time passes as fast as it can, and no port is plugged in.</source>
        <translation>Die Zeit des Skripts vergeht so schnell wie möglich, und es wird kein Port eingesteckt.</translation>
    </message>
    <message>
        <source>The script needs a file name.</source>
        <translation>Das Skript braucht einen Dateinamen.</translation>
    </message>
    <message>
        <source>Only a script can be fast.</source>
        <translation>Schnell kann nur ein Skript sein.</translation>
    </message>
    <message>
        <source>Standard input is either the script or the paddle.</source>
        <translation>Die Standardeingabe ist entweder das Skript oder das Paddle.</translation>
    </message>
    <message>
        <source>The sound needs a file name.</source>
        <translation>Der Ton braucht einen Dateinamen.</translation>
    </message>
    <message>
        <source>SHARE</source>
        <translation>ANTEIL</translation>
    </message>
    <message>
        <source>SECONDS</source>
        <translation>SEKUNDEN</translation>
    </message>
    <message>
        <source>What is wrong with the line, or several such things, separated by commas; a number may be left out:</source>
        <translation>Was mit der Leitung nicht stimmt, oder mehreres davon, durch Kommas getrennt; eine Zahl darf fehlen:</translation>
    </message>
    <message>
        <source>Has chance do the same to the line as it did with this number, 1 by default.</source>
        <translation>Lässt den Zufall mit der Leitung dasselbe tun wie sonst mit dieser Zahl; üblich ist 1.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no trouble; --help lists them.</source>
        <translation>„%1“ ist keine Störung; --help zählt sie auf.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no seed: a whole number, not below 0.</source>
        <translation>„%1“ ist kein Anfangswert: eine ganze Zahl, nicht unter 0.</translation>
    </message>
</context>
<context>
    <name>WaitingLabel</name>
    <message>
        <source>%1 waiting</source>
        <translation>%1 offen</translation>
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
        <translation>Der Versuch wird aufgegeben und die Verbindung zum Keyer geschlossen.</translation>
    </message>
    <message>
        <source>See AMSerialErrors.h</source>
        <translation>Siehe AMSerialErrors.h</translation>
    </message>
    <message>
        <source>There is no port defined for the WinKeyer.</source>
        <translation>Für den WinKeyer ist kein Port festgelegt.</translation>
    </message>
    <message>
        <source>Choose a serial port other than None in the General Preferences pane. Or, plug in a cable to your WinKeyer USB.</source>
        <translation>Wählen Sie in den Einstellungen unter Allgemein einen seriellen Port statt Keiner. Oder stecken Sie das Kabel Ihres WinKeyer USB ein.</translation>
    </message>
    <message>
        <source>The WinKeyer serial port %1 is not available.</source>
        <translation>Der serielle Port %1 des WinKeyers ist nicht verfügbar.</translation>
    </message>
    <message>
        <source>Confirm that the WinKeyer is connected to the selected port, and that no other application is using that port. Also confirm that the FDTI driver is installed. Obtain the appropriate Mac OS X driver at https://ftdichip.com/drivers/.</source>
        <translation>Prüfen Sie, ob der WinKeyer am gewählten Port angeschlossen ist und kein anderes Programm diesen Port benutzt. Prüfen Sie auch, ob der FDTI-Treiber installiert ist. Den passenden Treiber für Mac OS X gibt es unter https://ftdichip.com/drivers/.</translation>
    </message>
    <message>
        <source>Unable to open the WinKeyer serial port %1.</source>
        <translation>Der serielle Port %1 des WinKeyers kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>Confirm that the USB-Serial device is connected and active.</source>
        <translation>Prüfen Sie, ob das USB-Seriell-Gerät angeschlossen und aktiv ist.</translation>
    </message>
    <message>
        <source>WinKeyer sync failed with AMSerial code: </source>
        <translation>WinKeyer: Synchronisierung fehlgeschlagen mit AMSerial-Code: </translation>
    </message>
    <message>
        <source>WinKeyer echo test Admin command failed with AMSerial code: </source>
        <translation>WinKeyer: Admin-Befehl Echotest fehlgeschlagen mit AMSerial-Code: </translation>
    </message>
    <message>
        <source>WinKeyer Host Open Admin command failed.</source>
        <translation>WinKeyer: Admin-Befehl Host Open fehlgeschlagen.</translation>
    </message>
    <message>
        <source>WinKeyer returned unsupported version: %1.</source>
        <translation>Der WinKeyer meldet eine nicht unterstützte Version: %1.</translation>
    </message>
    <message>
        <source>Confirm that the WinKeyer version is between 20 and 23.</source>
        <translation>Prüfen Sie, ob die Version des WinKeyers zwischen 20 und 23 liegt.</translation>
    </message>
    <message>
        <source>WinKeyer Set WinKeyer 2 Mode Admin command failed.</source>
        <translation>WinKeyer: Admin-Befehl Set WinKeyer 2 Mode fehlgeschlagen.</translation>
    </message>
    <message>
        <source>WinKeyer Host Close Admin command failed with AMSerial code: </source>
        <translation>WinKeyer: Admin-Befehl Host Close fehlgeschlagen mit AMSerial-Code: </translation>
    </message>
</context>
<context>
    <name>WireWords</name>
    <message>
        <source>space</source>
        <translation>Leerzeichen</translation>
    </message>
    <message>
        <source>Leave the speed to the knob</source>
        <translation>Tempo dem Knopf überlassen</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Fortsetzen</translation>
    </message>
    <message>
        <source>Key up</source>
        <translation>Taste auf</translation>
    </message>
    <message>
        <source>In the buffer: PTT off</source>
        <translation>Im Puffer: PTT aus</translation>
    </message>
    <message>
        <source>No Farnsworth</source>
        <translation>Kein Farnsworth</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>dit</source>
        <translation>Punkt</translation>
    </message>
    <message>
        <source>dah</source>
        <translation>Strich</translation>
    </message>
    <message>
        <source>both</source>
        <translation>beide</translation>
    </message>
    <message>
        <source>Buffer: overwrite at %1</source>
        <translation>Puffer: überschreiben ab %1</translation>
    </message>
    <message>
        <source>Buffer: append at %1</source>
        <translation>Puffer: anhängen ab %1</translation>
    </message>
    <message>
        <source>Buffer: insert %1 nulls</source>
        <translation>Puffer: %1 Nullen einfügen</translation>
    </message>
    <message>
        <source>Buffer: move %1, unknown</source>
        <translation>Puffer: Bewegung %1, unbekannt</translation>
    </message>
    <message>
        <source>In the buffer: high speed, %1 WPM</source>
        <translation>Im Puffer: hohes Tempo, %1 WPM</translation>
    </message>
    <message>
        <source>Set the tone: %1</source>
        <translation>Ton setzen: %1</translation>
    </message>
    <message>
        <source>Set speed %1 WPM</source>
        <translation>Tempo setzen: %1 WPM</translation>
    </message>
    <message>
        <source>Set weighting %1 %</source>
        <translation>Wichtung setzen: %1 %</translation>
    </message>
    <message>
        <source>Set PTT lead/tail %1, %2 ms</source>
        <translation>PTT-Vorlauf/Nachlauf setzen: %1, %2 ms</translation>
    </message>
    <message>
        <source>Set the knob&apos;s range %1 to %2 WPM</source>
        <translation>Bereich des Knopfs setzen: %1 bis %2 WPM</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Ask for the knob</source>
        <translation>Nach dem Knopf fragen</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>Rücktaste</translation>
    </message>
    <message>
        <source>Set the pins: %1</source>
        <translation>Anschlüsse setzen: %1</translation>
    </message>
    <message>
        <source>Clear buffer</source>
        <translation>Puffer leeren</translation>
    </message>
    <message>
        <source>Key down</source>
        <translation>Taste drücken</translation>
    </message>
    <message>
        <source>Set high speed %1 WPM</source>
        <translation>Hohes Tempo setzen: %1 WPM</translation>
    </message>
    <message>
        <source>Set Farnsworth %1 WPM</source>
        <translation>Farnsworth setzen: %1 WPM</translation>
    </message>
    <message>
        <source>Set the mode: %1</source>
        <translation>Modus setzen: %1</translation>
    </message>
    <message>
        <source>Load defaults: %1</source>
        <translation>Grundwerte laden: %1</translation>
    </message>
    <message>
        <source>Set first extension %1 ms</source>
        <translation>Erstverlängerung setzen: %1 ms</translation>
    </message>
    <message>
        <source>Set key compensation %1 ms</source>
        <translation>Kompensation setzen: %1 ms</translation>
    </message>
    <message>
        <source>Set paddle memory %1 (50: a dit)</source>
        <translation>Paddle-Speicher setzen: %1 (50: ein Punkt)</translation>
    </message>
    <message>
        <source>Null</source>
        <translation>Null</translation>
    </message>
    <message>
        <source>Paddle by the host: %1</source>
        <translation>Paddle durch den Host: %1</translation>
    </message>
    <message>
        <source>Ask for the status</source>
        <translation>Nach dem Status fragen</translation>
    </message>
    <message>
        <source>Buffer: to its beginning</source>
        <translation>Puffer: an den Anfang</translation>
    </message>
    <message>
        <source>Set dah to dit %1 (50: 3 to 1)</source>
        <translation>Strich zu Punkt setzen: %1 (50: 3 zu 1)</translation>
    </message>
    <message>
        <source>In the buffer: PTT on</source>
        <translation>Im Puffer: PTT ein</translation>
    </message>
    <message>
        <source>In the buffer: key down, %1 s</source>
        <translation>Im Puffer: Taste drücken, %1 s</translation>
    </message>
    <message>
        <source>In the buffer: wait, %1 s</source>
        <translation>Im Puffer: warten, %1 s</translation>
    </message>
    <message>
        <source>In the buffer: merge %1</source>
        <translation>Im Puffer: verschmelzen, %1</translation>
    </message>
    <message>
        <source>In the buffer: %1 WPM</source>
        <translation>Im Puffer: %1 WPM</translation>
    </message>
    <message>
        <source>In the buffer: key output %1</source>
        <translation>Im Puffer: Tastausgang %1</translation>
    </message>
    <message>
        <source>In the buffer: the speed that was set</source>
        <translation>Im Puffer: das eingestellte Tempo</translation>
    </message>
    <message>
        <source>In the buffer: null</source>
        <translation>Im Puffer: Null</translation>
    </message>
    <message>
        <source>Calibrate</source>
        <translation>Kalibrieren</translation>
    </message>
    <message>
        <source>Reset the keyer</source>
        <translation>Keyer zurücksetzen</translation>
    </message>
    <message>
        <source>Open the keyer</source>
        <translation>Keyer öffnen</translation>
    </message>
    <message>
        <source>Close the keyer</source>
        <translation>Keyer schließen</translation>
    </message>
    <message>
        <source>Echo test %1</source>
        <translation>Echotest %1</translation>
    </message>
    <message>
        <source>Ask for the paddle A/D</source>
        <translation>Nach dem A/D-Wert des Paddles fragen</translation>
    </message>
    <message>
        <source>Ask for the speed A/D</source>
        <translation>Nach dem A/D-Wert des Tempos fragen</translation>
    </message>
    <message>
        <source>Ask for all values</source>
        <translation>Nach allen Werten fragen</translation>
    </message>
    <message>
        <source>Debug</source>
        <translation>Fehlersuche</translation>
    </message>
    <message>
        <source>Ask for the calibration</source>
        <translation>Nach der Kalibrierung fragen</translation>
    </message>
    <message>
        <source>Version 1 status</source>
        <translation>Status der Version 1</translation>
    </message>
    <message>
        <source>Version 2 status</source>
        <translation>Status der Version 2</translation>
    </message>
    <message>
        <source>Ask for the memory</source>
        <translation>Nach dem Speicher fragen</translation>
    </message>
    <message>
        <source>Load the memory</source>
        <translation>Speicher laden</translation>
    </message>
    <message>
        <source>Play message %1</source>
        <translation>Nachricht %1 abspielen</translation>
    </message>
    <message>
        <source>Load X1MODE %1</source>
        <translation>X1MODE laden: %1</translation>
    </message>
    <message>
        <source>Line at 9600 baud</source>
        <translation>Leitung mit 9600 Baud</translation>
    </message>
    <message>
        <source>Line at 1200 baud</source>
        <translation>Leitung mit 1200 Baud</translation>
    </message>
    <message>
        <source>Admin command %1, unknown</source>
        <translation>Verwaltungsbefehl %1, unbekannt</translation>
    </message>
    <message>
        <source>text %1</source>
        <translation>Text %1</translation>
    </message>
    <message>
        <source>wait</source>
        <translation>warten</translation>
    </message>
    <message>
        <source>key down</source>
        <translation>Taste gedrückt</translation>
    </message>
    <message>
        <source>busy</source>
        <translation>beschäftigt</translation>
    </message>
    <message>
        <source>break-in</source>
        <translation>BK</translation>
    </message>
    <message>
        <source>XOFF</source>
        <translation>XOFF</translation>
    </message>
    <message>
        <source>status: %1</source>
        <translation>Status: %1</translation>
    </message>
    <message>
        <source>idle</source>
        <translation>frei</translation>
    </message>
    <message>
        <source>push-buttons: %1</source>
        <translation>Drucktasten: %1</translation>
    </message>
    <message>
        <source>open, version %1</source>
        <translation>offen, Version %1</translation>
    </message>
    <message>
        <source>echo test %1</source>
        <translation>Echotest %1</translation>
    </message>
    <message>
        <source>values: %1</source>
        <translation>Werte: %1</translation>
    </message>
    <message>
        <source>memory, %1 bytes</source>
        <translation>Speicher, %1 Bytes</translation>
    </message>
    <message>
        <source>answer %1</source>
        <translation>Antwort %1</translation>
    </message>
    <message>
        <source>discarded by the keyer</source>
        <translation>vom Keyer verworfen</translation>
    </message>
    <message>
        <source>lost, the keyer is starting</source>
        <translation>verloren, der Keyer startet</translation>
    </message>
    <message>
        <source>unfinished command</source>
        <translation>unvollständiger Befehl</translation>
    </message>
    <message>
        <source>the keyer starts anew</source>
        <translation>der Keyer startet neu</translation>
    </message>
    <message>
        <source>echo %1</source>
        <translation>Echo %1</translation>
    </message>
    <message>
        <source>knob: %1 WPM</source>
        <translation>Knopf: %1 WPM</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Quorvel is running already, and does not answer. End it, then start it again.</source>
        <translation>Quorvel läuft bereits und antwortet nicht. Beenden Sie es, und starten Sie es dann noch einmal.</translation>
    </message>
</context>
<context>
    <name>virtualkeyer::KeyerWindow</name>
    <message>
        <source>Virtual keyer</source>
        <translation>Virtueller Keyer</translation>
    </message>
    <message>
        <source>Plugged in as %1</source>
        <translation>Eingesteckt als %1</translation>
    </message>
    <message>
        <source>Plugged in</source>
        <translation>Eingesteckt</translation>
    </message>
    <message>
        <source>Pulls the adapter and plugs it in again. Without it the keyer has no power, and forgets its host.</source>
        <translation>Zieht den Adapter ab und steckt ihn wieder ein. Ohne ihn hat der Keyer keinen Strom und vergisst seinen Host.</translation>
    </message>
    <message>
        <source>Speed knob</source>
        <translation>Tempo-Knopf</translation>
    </message>
    <message>
        <source>Counts within the range that the host has set, and only while the host leaves the speed to it.</source>
        <translation>Zählt innerhalb des Bereichs, den der Host eingestellt hat, und nur solange der Host ihm das Tempo überlässt.</translation>
    </message>
    <message>
        <source>%1 WPM</source>
        <translation>%1 WPM</translation>
    </message>
    <message>
        <source>Push-buttons</source>
        <translation>Drucktasten</translation>
    </message>
    <message>
        <source>The host hears of them once it has asked for version 2 status.</source>
        <translation>Der Host erfährt von ihnen, sobald er den Status der Version 2 verlangt hat.</translation>
    </message>
    <message>
        <source>Push-button %1</source>
        <translation>Drucktaste %1</translation>
    </message>
    <message>
        <source>Registers</source>
        <translation>Register</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Speicher</translation>
    </message>
    <message>
        <source>Kind of keyer</source>
        <translation>Art des Keyers</translation>
    </message>
    <message>
        <source>Keyed text</source>
        <translation>Getasteter Text</translation>
    </message>
    <message>
        <source>What is keyed, by the host or the paddle, is read back here from the key line.</source>
        <translation>Was der Host oder das Paddle tastet, wird hier von der Tastleitung zurückgelesen.</translation>
    </message>
    <message>
        <source>Record a script</source>
        <translation>Skript aufnehmen</translation>
    </message>
    <message>
        <source>Writes down what is done here, for --script to do again: press once more to save it.</source>
        <translation>Schreibt mit, was hier getan wird, damit --script es noch einmal tut: nochmals drücken, um es zu speichern.</translation>
    </message>
    <message>
        <source>Save the script</source>
        <translation>Skript speichern</translation>
    </message>
    <message>
        <source>Sidetone</source>
        <translation>Mithörton</translation>
    </message>
    <message>
        <source>How loud this machine plays what is keyed; the host sets the pitch.</source>
        <translation>Wie laut dieser Rechner spielt, was getastet wird; die Tonhöhe stellt der Host ein.</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Lautstärke</translation>
    </message>
    <message>
        <source>No sound device: it is silent.</source>
        <translation>Kein Audiogerät: Er ist stumm.</translation>
    </message>
    <message>
        <source>Scope</source>
        <translation>Oszilloskop</translation>
    </message>
    <message>
        <source>Line log</source>
        <translation>Leitungsprotokoll</translation>
    </message>
    <message>
        <source>Practice</source>
        <translation>Üben</translation>
    </message>
</context>
<context>
    <name>virtualkeyer::KindList</name>
    <message>
        <source>Kinds of keyer</source>
        <translation>Arten des Keyers</translation>
    </message>
</context>
<context>
    <name>virtualkeyer::Lamp</name>
    <message>
        <source>%1: on</source>
        <translation>%1: ein</translation>
    </message>
    <message>
        <source>%1: off</source>
        <translation>%1: aus</translation>
    </message>
</context>
<context>
    <name>virtualkeyer::LampRow</name>
    <message>
        <source>Key</source>
        <translation>Taste</translation>
    </message>
    <message>
        <source>PTT</source>
        <translation>PTT</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>Beschäftigt</translation>
    </message>
    <message>
        <source>Break-in</source>
        <translation>BK</translation>
    </message>
    <message>
        <source>XOFF</source>
        <translation>XOFF</translation>
    </message>
    <message>
        <source>Wait</source>
        <translation>Warten</translation>
    </message>
    <message>
        <source>The transmitter would be keyed. Nothing here is on the air.</source>
        <translation>Der Sender würde getastet. Nichts von hier geht auf Sendung.</translation>
    </message>
    <message>
        <source>The transmitter would be switched on.</source>
        <translation>Der Sender würde eingeschaltet.</translation>
    </message>
    <message>
        <source>The host&apos;s text, the paddle or the tune command keys.</source>
        <translation>Der Text des Hosts, das Paddle oder der Befehl zum Abstimmen tastet.</translation>
    </message>
    <message>
        <source>The paddle has the key, and the host&apos;s text has gone.</source>
        <translation>Das Paddle hat die Taste, und der Text des Hosts ist verworfen.</translation>
    </message>
    <message>
        <source>The buffer is nearly full; the host has to wait.</source>
        <translation>Der Puffer ist fast voll; der Host muss warten.</translation>
    </message>
    <message>
        <source>A wait or a key-down of the host&apos;s, with a time of its own, or a tune.</source>
        <translation>Eine Wartezeit oder ein Tastendruck des Hosts mit eigener Dauer, oder ein Abstimmen.</translation>
    </message>
</context>
<context>
    <name>virtualkeyer::MessageList</name>
    <message>
        <source>Play %1</source>
        <translation>%1 abspielen</translation>
    </message>
    <message>
        <source>Play message %1</source>
        <translation>Nachricht %1 abspielen</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>leer</translation>
    </message>
    <message>
        <source>Message %1: %2</source>
        <translation>Nachricht %1: %2</translation>
    </message>
</context>
<context>
    <name>virtualkeyer::PaddlePanel</name>
    <message>
        <source>Paddle</source>
        <translation>Paddle</translation>
    </message>
    <message>
        <source>Dit (F)</source>
        <translation>Punkt (F)</translation>
    </message>
    <message>
        <source>Dah (J)</source>
        <translation>Strich (J)</translation>
    </message>
    <message>
        <source>Hold a button, or the keys F and J; both at once for a squeeze.</source>
        <translation>Eine Schaltfläche oder die Tasten F und J halten; beide zugleich zum Quetschen.</translation>
    </message>
    <message>
        <source>Dit paddle</source>
        <translation>Punkt-Paddle</translation>
    </message>
    <message>
        <source>Dah paddle</source>
        <translation>Strich-Paddle</translation>
    </message>
</context>
<context>
    <name>virtualkeyer::PracticePage</name>
    <message>
        <source>Text to be sent</source>
        <translation>Zu gebender Text</translation>
    </message>
    <message>
        <source>Letters that work the paddle are letters while this has the keyboard; Enter begins, and hands them back.</source>
        <translation>Buchstaben, die das Paddle bedienen, sind Buchstaben, solange dieses Feld die Tastatur hat; die Eingabetaste beginnt und gibt sie zurück.</translation>
    </message>
    <message>
        <source>Begin anew</source>
        <translation>Neu beginnen</translation>
    </message>
    <message>
        <source>X for A: X was sent instead of A. No A: A was left out. And X: X was one too many.</source>
        <translation>X für A: X wurde statt A gegeben. Kein A: A wurde ausgelassen. Und X: X war zu viel.</translation>
    </message>
    <message>
        <source>Lengths in dits</source>
        <translation>Längen in Punkten</translation>
    </message>
    <message>
        <source>Element</source>
        <translation>Zeichenteil</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Gegeben</translation>
    </message>
    <message>
        <source>Ideal</source>
        <translation>Ideal</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>From half to 1.5 of the ideal</source>
        <translation>Vom Halben bis zum 1,5-Fachen des Ideals</translation>
    </message>
    <message>
        <source>Dit</source>
        <translation>Punkt</translation>
    </message>
    <message>
        <source>Dah</source>
        <translation>Strich</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Abstand</translation>
    </message>
    <message>
        <source>Letter space</source>
        <translation>Buchstabenabstand</translation>
    </message>
    <message>
        <source>Word space</source>
        <translation>Wortabstand</translation>
    </message>
    <message>
        <source>Right: %1 of %2</source>
        <translation>Richtig: %1 von %2</translation>
    </message>
    <message>
        <source>space</source>
        <translation>Leerzeichen</translation>
    </message>
    <message>
        <source>%1 for %2</source>
        <translation>%1 für %2</translation>
    </message>
    <message>
        <source>no %1</source>
        <translation>kein %1</translation>
    </message>
    <message>
        <source>and %1</source>
        <translation>und %1</translation>
    </message>
    <message>
        <source>Send the text with the paddle.</source>
        <translation>Geben Sie den Text mit dem Paddle.</translation>
    </message>
</context>
<context>
    <name>virtualkeyer::RegisterTable</name>
    <message>
        <source>Registers</source>
        <translation>Register</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>Register</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
</context>
<context>
    <name>virtualkeyer::ScopePage</name>
    <message>
        <source>Place in the last ten minutes</source>
        <translation>Stelle in den letzten zehn Minuten</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Pause the scope</source>
        <translation>Oszilloskop anhalten</translation>
    </message>
    <message>
        <source>Closer</source>
        <translation>Näher</translation>
    </message>
    <message>
        <source>Less time, closer</source>
        <translation>Weniger Zeit, näher</translation>
    </message>
    <message>
        <source>Wider</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>More time, wider</source>
        <translation>Mehr Zeit, weiter</translation>
    </message>
    <message>
        <source>Picture…</source>
        <translation>Bild …</translation>
    </message>
    <message>
        <source>Save a picture</source>
        <translation>Bild speichern</translation>
    </message>
    <message>
        <source>Table…</source>
        <translation>Tabelle …</translation>
    </message>
    <message>
        <source>Save a table of the last ten minutes</source>
        <translation>Tabelle der letzten zehn Minuten speichern</translation>
    </message>
    <message>
        <source>Save a table</source>
        <translation>Tabelle speichern</translation>
    </message>
</context>
<context>
    <name>virtualkeyer::ScopeView</name>
    <message>
        <source>Scope of key and PTT</source>
        <translation>Oszilloskop von Taste und PTT</translation>
    </message>
    <message>
        <source>Arrows move the first cursor, with Shift the second, with Ctrl from edge to edge. + and - zoom, the space bar pauses; Page Up, Page Down, Home and End go through the last ten minutes.</source>
        <translation>Pfeiltasten bewegen den ersten Messzeiger, mit Umschalt den zweiten, mit Strg von Flanke zu Flanke. + und - zoomen, die Leertaste hält an; Bild auf, Bild ab, Pos1 und Ende gehen durch die letzten zehn Minuten.</translation>
    </message>
</context>
<context>
    <name>virtualkeyer::WireLog</name>
    <message>
        <source>Host</source>
        <translation>Host</translation>
    </message>
    <message>
        <source>Keyer</source>
        <translation>Keyer</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Sekunden</translation>
    </message>
    <message>
        <source>Said by</source>
        <translation>Gesagt von</translation>
    </message>
    <message>
        <source>In words</source>
        <translation>In Worten</translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation>Bytes</translation>
    </message>
</context>
<context>
    <name>virtualkeyer::WireLogPage</name>
    <message>
        <source>Said by</source>
        <translation>Gesagt von</translation>
    </message>
    <message>
        <source>Host and keyer</source>
        <translation>Host und Keyer</translation>
    </message>
    <message>
        <source>The host alone</source>
        <translation>Nur der Host</translation>
    </message>
    <message>
        <source>The keyer alone</source>
        <translation>Nur der Keyer</translation>
    </message>
    <message>
        <source>Filter of the log</source>
        <translation>Filter des Protokolls</translation>
    </message>
    <message>
        <source>Words or bytes</source>
        <translation>Worte oder Bytes</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Empty the log</source>
        <translation>Protokoll leeren</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>Speichern …</translation>
    </message>
    <message>
        <source>Save the log</source>
        <translation>Protokoll speichern</translation>
    </message>
    <message>
        <source>Saves what is shown, with all its bytes.</source>
        <translation>Speichert, was zu sehen ist, mit allen Bytes.</translation>
    </message>
    <message>
        <source>Log of the line</source>
        <translation>Protokoll der Leitung</translation>
    </message>
</context>
</TS>
