#include "tests/app/keyboard/KeyboardStation.h"
#include "tests/support/RegisteredTest.h"

#include <QApplication>
#include <QClipboard>
#include <QTextBlock>
#include <QTextLayout>

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

/// Texts that are pasted, long ones above all.
class KeyboardViewPasteTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup() { _station.reset(); }

    void aLongTextIsFilteredAsAWhole_data();
    void aLongTextIsFilteredAsAWhole();
    void theCaretIsBehindThePastedText_data();
    void theCaretIsBehindThePastedText();
    void aPasteIsOneStep();
    void aPasteTakesThePlaceOfTheSelection();
    void aLongWordIsCopiedAsItIs();
    void whatIsTypedOverALongWordIsOneStep();
    void tenTimesTheTextIsNoMoreChanges_data();
    void tenTimesTheTextIsNoMoreChanges();
    void aSignAtTheEndOfAParagraphStaysOne();
    void aLongTextThatIsHeldIsShownInShort();
    void aStopDropsThePastedText();

  private:
    [[nodiscard]] KeyboardView& view() { return _station->view; }
    [[nodiscard]] WinKeyerUsb& engine() { return _station->engine(); }
    void paste(const QString& text);

    std::optional<KeyboardStation> _station;
};

namespace {

constexpr auto longest = static_cast<int>(KeyboardText::longestParagraph);

/// Of a document, as it changes.
struct Changes {
    int count = 0;
    int longestParagraph = 0;

    void note(const QTextDocument& document) {
        ++count;
        for (auto block = document.begin(); block.isValid(); block = block.next()) {
            longestParagraph = std::max(longestParagraph, block.length() - 1);
        }
    }
};

} // namespace

void KeyboardViewPasteTest::init() {
    _station.emplace();
    QVERIFY(_station->isReady);
    _station->pause();
}

void KeyboardViewPasteTest::paste(const QString& text) {
    QApplication::clipboard()->setText(text);
    view().paste();
}

void KeyboardViewPasteTest::aLongTextIsFilteredAsAWhole_data() {
    QTest::addColumn<QString>("text");
    QTest::addRow("words") << u"Paris de "_s.repeated(2000);
    QTest::addRow("a word") << u"ParisDe"_s.repeated(2000);
    QTest::addRow("with what cannot be sent") << u"a!!b &*c"_s.repeated(2000);
    QTest::addRow("with tokens and signs") << u"` # ~ {ar ~~~ |"_s.repeated(2000);
    QTest::addRow("with signs alone") << u"~"_s.repeated(5000);
    QTest::addRow("spaces") << u" "_s.repeated(5000);
}

void KeyboardViewPasteTest::aLongTextIsFilteredAsAWhole() {
    QFETCH(const QString, text);
    _station->bench.type(text);
    const auto expected = engine().keyboardBuffer();
    engine().clearSending();
    paste(text);
    QCOMPARE(engine().keyboardBuffer(), expected);
    QCOMPARE(view().text(), expected);
}

void KeyboardViewPasteTest::theCaretIsBehindThePastedText_data() {
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("pasted");
    const auto other = u"TEST "_s.repeated(1000);
    const auto same = u"PARIS "_s.repeated(1000);
    QTest::addRow("in an empty text") << QString() << other;
    QTest::addRow("between other words") << u"PARIS PARIS "_s << other;
    QTest::addRow("between the same words") << u"PARIS PARIS "_s << same;
    QTest::addRow("between more of them") << u"PARIS "_s.repeated(600) << same;
}

void KeyboardViewPasteTest::theCaretIsBehindThePastedText() {
    QFETCH(const QString, before);
    QFETCH(const QString, pasted);
    engine().appendMessage(before);
    auto caret = view().textCursor();
    const auto place = before.size() / 2;
    caret.setPosition(static_cast<int>(place));
    view().setTextCursor(caret);
    paste(pasted);
    QCOMPARE(view().textCursor().position(), place + pasted.size());
    QVERIFY(!view().textCursor().hasSelection());
    _station->keys(u"k"_s);
    QCOMPARE(engine().keyboardBuffer(), before.left(place) + pasted + u'K' + before.mid(place));
    QVERIFY(view().viewport()->rect().contains(view().cursorRect().center()));
}

void KeyboardViewPasteTest::aPasteIsOneStep() {
    const auto text = u"PARIS "_s.repeated(20'000);
    _station->keys(u"cq"_s);
    paste(text);
    _station->keys(u"k"_s);
    view().undoTyping();
    QCOMPARE(view().text(), u"CQ"_s + text);
    view().undoTyping();
    QCOMPARE(view().text(), u"CQ"_s);
    QCOMPARE(engine().keyboardBuffer(), u"CQ"_s);
    view().redoTyping();
    QCOMPARE(view().text(), u"CQ"_s + text);
    QCOMPARE(engine().keyboardBuffer(), u"CQ"_s + text);
}

void KeyboardViewPasteTest::aPasteTakesThePlaceOfTheSelection() {
    paste(u"E"_s.repeated(3000) + u" TEST "_s.repeated(500));
    view().selectAll();
    const auto text = u"PARIS "_s.repeated(500);
    paste(text);
    QCOMPARE(engine().keyboardBuffer(), text);
    QCOMPARE(view().textCursor().position(), text.size());
}

void KeyboardViewPasteTest::aLongWordIsCopiedAsItIs() {
    const auto word = u"PARIS"_s.repeated(1000);
    paste(word);
    QVERIFY(view().document()->blockCount() > 1);
    view().selectAll();
    view().copy();
    QCOMPARE(QApplication::clipboard()->text(), word);
}

/// A paragraph's end that stands for a letter must not be read as a space in between.
void KeyboardViewPasteTest::whatIsTypedOverALongWordIsOneStep() {
    const auto word = u"PARIS"_s.repeated(1000);
    paste(word);
    QStringList texts;
    QObject::connect(&engine(), &WinKeyerUsb::keyboardBufferChanged, &view(),
                     [&] { texts.append(engine().keyboardBuffer()); });
    view().selectAll();
    _station->keys(u"k"_s);
    QCOMPARE(view().text(), u"K"_s);
    QVERIFY(std::ranges::all_of(texts, [](const auto& each) { return each.size() == 1; }));
    view().undoTyping();
    QCOMPARE(view().text(), word);
}

void KeyboardViewPasteTest::tenTimesTheTextIsNoMoreChanges_data() {
    QTest::addColumn<QString>("word");
    QTest::addRow("words") << u"paris "_s;
    QTest::addRow("no spaces") << u"paris"_s;
}

/// What a paste costs is what the document does for each change, and for the paragraph in which it
/// is. Neither may grow with the text.
void KeyboardViewPasteTest::tenTimesTheTextIsNoMoreChanges() {
    QFETCH(const QString, word);
    QList<int> counts;
    for (const int length : {10'000, 100'000}) {
        Changes changes;
        auto* document = view().document();
        const auto connection = QObject::connect(
            document, &QTextDocument::contentsChange, this, [&] { changes.note(*document); },
            Qt::DirectConnection);
        paste(word.repeated(length / word.size()));
        QObject::disconnect(connection);
        QCOMPARE(view().text().size(), length / word.size() * word.size());
        QVERIFY(changes.count > 0);
        QCOMPARE_LE(changes.longestParagraph, longest);
        counts.append(changes.count);
        engine().clearSending();
    }
    QCOMPARE(counts.at(1), counts.at(0));
}

/// There is no room for its call, the format of which would take the place of the sign.
void KeyboardViewPasteTest::aSignAtTheEndOfAParagraphStaysOne() {
    const auto signs = u"~"_s.repeated(1200) + u'E';
    paste(signs);
    QVERIFY(view().document()->blockCount() > 1);
    _station->resume();
    QCOMPARE(engine().outputBufferIndex(), signs.size());
    _station->echo();
    QCOMPARE(view().text(), signs);
    _station->keys(u"k"_s);
    QCOMPARE(engine().keyboardBuffer(), signs + u'K');
}

void KeyboardViewPasteTest::aLongTextThatIsHeldIsShownInShort() {
    _station->resume();
    _station->bench.receive({0xC2});
    const auto text = u"PARIS "_s.repeated(5000);
    paste(text);
    QCOMPARE(engine().keyboardBuffer(), QString());
    QCOMPARE(view().heldText(), text);
    const auto shown = view().textCursor().block().layout()->preeditAreaText();
    QVERIFY(shown.startsWith(u"PARIS"));
    QCOMPARE_LE(shown.size(), longest + 10);
    _station->bench.receive({0xC0});
    view().handOverHeldText();
    QCOMPARE(engine().keyboardBuffer(), text);
    QCOMPARE(view().text(), text);
    QVERIFY(view().textCursor().block().layout()->preeditAreaText().isEmpty());
    QCOMPARE(view().textCursor().position(), text.size());
}

void KeyboardViewPasteTest::aStopDropsThePastedText() {
    paste(u"PARIS "_s.repeated(20'000));
    engine().stopMessageSending(nullptr);
    _station->resume();
    static_cast<void>(_station->bench.written());
    QApplication::processEvents();
    _station->echo(3);
    QCOMPARE(view().text(), QString());
    QCOMPARE(_station->bench.written(), QByteArray());
}

static const RegisteredTest<KeyboardViewPasteTest> registered;
#include "KeyboardViewPasteTest.moc"
