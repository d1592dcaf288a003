#include "app/keyboard/SentCalls.h"

#include "tests/app/keyboard/KeyboardStation.h"
#include "tests/support/RegisteredTest.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QTextBlock>

#include <cstdlib>
#include <optional>

using namespace Qt::StringLiterals;

/// The call signs that the keyboard view shows beside the signs that stood for them.
class SentCallsTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup() { _station.reset(); }

    void aCallIsShownOnceItIsSent();
    void eachSignKeepsItsCall();
    void theCallShownIsTheOneThatWasSent_data();
    void theCallShownIsTheOneThatWasSent();
    void aSignThatWasPassedOverHasNoCall();
    void theTextKnowsNothingOfIt();
    void whatIsTypedBesideASignHasNoCall();
    void itMovesWithTheTextAround();
    void anotherFontHasRoomToo();
    void withoutACallNothingIsShown();

  private:
    [[nodiscard]] QString text() { return _station->engine().keyboardBuffer(); }
    /// How far apart the carets before and behind a character are.
    [[nodiscard]] int widthOf(int position);
    void sendAll();

    std::optional<KeyboardStation> _station;
};

void SentCallsTest::init() {
    _station.emplace(QSize(800, 200));
    QVERIFY(_station->isReady);
    _station->engine().setHisCallsign(u"w9xyz"_s);
}

int SentCallsTest::widthOf(int position) {
    auto caret = _station->view.textCursor();
    caret.setPosition(position);
    const auto left = _station->view.cursorRect(caret).left();
    caret.setPosition(position + 1);
    return _station->view.cursorRect(caret).left() - left;
}

void SentCallsTest::sendAll() {
    _station->echo(static_cast<int>(text().size()) + 20);
}

void SentCallsTest::aCallIsShownOnceItIsSent() {
    _station->keys(u"e~k"_s);
    const auto plain = widthOf(1);
    _station->echo(3); // E, and two letters of the call
    QCOMPARE(widthOf(1), plain);
    const auto before = _station->view.viewport()->grab().toImage();
    _station->echo(3);
    const auto room = _station->view.fontMetrics().horizontalAdvance(u"W9XYZ"_s);
    QVERIFY(widthOf(1) > plain + room / 2);
    QVERIFY(_station->view.viewport()->grab().toImage() != before);
}

void SentCallsTest::eachSignKeepsItsCall() {
    _station->keys(u"~"_s);
    sendAll();
    const auto first = widthOf(0);
    _station->engine().setHisCallsign(u"k1a"_s);
    QCOMPARE(widthOf(0), first);
    _station->keys(u" ~"_s);
    sendAll();
    QCOMPARE(widthOf(0), first);
    QVERIFY(widthOf(2) < first);
}

void SentCallsTest::theCallShownIsTheOneThatWasSent_data() {
    QTest::addColumn<int>("lettersBefore");
    QTest::addColumn<QString>("shown");
    QTest::addRow("changed before its last letter is confirmed") << 4 << u"W9XYZ"_s;
    QTest::addRow("changed in its midst") << 1 << u"W91ABCDEF"_s;
}

/// The operator goes on to the next call as soon as this one is nearly through.
void SentCallsTest::theCallShownIsTheOneThatWasSent() {
    QFETCH(const int, lettersBefore);
    QFETCH(const QString, shown);
    const auto plain = [this] {
        _station->keys(u"~"_s);
        return widthOf(0);
    }();
    _station->echo(lettersBefore);
    _station->engine().setHisCallsign(lettersBefore == 4 ? u"k1a"_s : u"kk1abcdef"_s);
    sendAll();
    auto small = _station->view.font();
    small.setPointSizeF(small.pointSizeF() * 0.65);
    const auto room = widthOf(0) - plain - QFontMetrics(small).horizontalAdvance(shown);
    QVERIFY2(room >= -1 && room <= QFontMetrics(small).horizontalAdvance(u'W'),
             qPrintable(QString::number(room)));
}

void SentCallsTest::aSignThatWasPassedOverHasNoCall() {
    _station->keys(u"ab~k"_s);
    const auto plain = widthOf(2);
    _station->echo(1);
    _station->key(Qt::Key_Home);
    _station->key(Qt::Key_Delete); // and so the sign is one that is sent, by the place alone
    QCOMPARE(text(), u"B~K"_s);
    sendAll();
    QCOMPARE(widthOf(1), plain);
}

void SentCallsTest::theTextKnowsNothingOfIt() {
    _station->keys(u"e~k"_s);
    sendAll();
    QCOMPARE(text(), u"E~K"_s);
    QCOMPARE(_station->view.text(), u"E~K"_s);
    _station->keys(QKeySequence::SelectAll);
    _station->keys(QKeySequence::Copy);
    QCOMPARE(QGuiApplication::clipboard()->text(), u"E~K"_s);
    // And nothing is sent again.
    QCOMPARE(_station->bench.written(), "45 57 39 58 59 5a 4b");
}

void SentCallsTest::whatIsTypedBesideASignHasNoCall() {
    const auto plain = [this] {
        _station->keys(u"t"_s);
        return widthOf(0);
    }();
    _station->engine().stopMessageSending(nullptr);
    _station->keys(u"~"_s);
    sendAll();
    _station->keys(u"t"_s);
    QCOMPARE(widthOf(1), plain);
    _station->engine().stopMessageSending(nullptr);
    _station->keys(u"~"_s);
    sendAll();
    QGuiApplication::clipboard()->setText(u"t"_s);
    _station->keys(QKeySequence::Paste);
    QCOMPARE(widthOf(1), plain);
    _station->engine().appendMessage(u"t"_s);
    QCOMPARE(text(), u"~T T"_s);
    QCOMPARE(widthOf(3), plain);
}

void SentCallsTest::itMovesWithTheTextAround() {
    _station->keys(u"e~"_s);
    sendAll();
    const auto wide = widthOf(1);
    _station->pause();
    _station->key(Qt::Key_Home);
    _station->key(Qt::Key_Delete);
    QCOMPARE(text(), u"~"_s);
    // Places are whole pixels, and the letter before it was not so many wide.
    QVERIFY(std::abs(widthOf(0) - wide) <= 1);
}

void SentCallsTest::anotherFontHasRoomToo() {
    _station->keys(u"~"_s);
    sendAll();
    const auto wide = widthOf(0);
    auto font = _station->view.font();
    font.setPointSizeF(font.pointSizeF() * 2);
    _station->view.setFont(font);
    QVERIFY(widthOf(0) > wide * 3 / 2);
}

void SentCallsTest::withoutACallNothingIsShown() {
    _station->engine().setHisCallsign({});
    _station->pause();
    _station->keys(u"~"_s);
    const auto plain = widthOf(0);
    _station->resume();
    sendAll();
    QCOMPARE(widthOf(0), plain);
}

static const RegisteredTest<SentCallsTest> registered;
#include "SentCallsTest.moc"
