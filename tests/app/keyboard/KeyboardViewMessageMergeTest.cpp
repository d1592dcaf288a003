#include "tests/app/keyboard/KeyboardStation.h"
#include "tests/support/RegisteredTest.h"

#include <QClipboard>
#include <QGuiApplication>

#include <optional>

using namespace Qt::StringLiterals;

/// "{" that a message ends with, or with one letter of it: nothing that comes behind is joined.
class KeyboardViewMessageMergeTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup() { _station.reset(); }

    void theNextMessageIsKeyedByItself_data();
    void theNextMessageIsKeyedByItself();
    void oneThatNothingFollowsIsLeftAlone();
    void oneThatTheKeyerHasComeByIsLeftAlone();
    void whatIsTypedIsKeyedByItself_data();
    void whatIsTypedIsKeyedByItself();
    void aButtonOfTheKeyerDoesNotJoinEither();
    void aPasteIsKeyedByItself();
    void takingBackBringsTheSignBack();
    void aMessageStillHasItsOwnMerges();

  private:
    [[nodiscard]] QString text() { return _station->engine().keyboardBuffer(); }
    [[nodiscard]] QByteArray allWritten();

    std::optional<KeyboardStation> _station;
};

/// Something is on its way already, so that all else waits.
void KeyboardViewMessageMergeTest::init() {
    _station.emplace();
    QVERIFY(_station->isReady);
    _station->keys(u"e"_s);
    QCOMPARE(_station->bench.written(), "45");
}

/// What the keyer gets from now on, which it echoes.
QByteArray KeyboardViewMessageMergeTest::allWritten() {
    QByteArrayList sent;
    for (int i = 0; i < 30; ++i) {
        _station->echo();
        if (const auto written = _station->bench.written(); !written.isEmpty()) {
            sent.append(written);
        }
    }
    return sent.join(' ');
}

void KeyboardViewMessageMergeTest::theNextMessageIsKeyedByItself_data() {
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("buffer");
    QTest::addColumn<QByteArray>("sent");
    QTest::addRow("none of its letters")
        << u"k {"_s << u"E K  TU"_s << QByteArray("20 4b 20 20 54 55");
    QTest::addRow("one of them") << u"k {a"_s << u"E K A TU"_s
                                 << QByteArray("20 4b 20 41 20 54 55");
    QTest::addRow("a space behind it")
        << u"k{ "_s << u"E K  TU"_s << QByteArray("20 4b 20 20 54 55");
    QTest::addRow("nothing else") << u"{"_s << u"E  TU"_s << QByteArray("20 20 54 55");
    QTest::addRow("behind a whole one")
        << u"{ar{s"_s << u"E {ARS TU"_s << QByteArray("20 1b 41 52 53 20 54 55");
    QTest::addRow("two of them") << u"k{{{"_s << u"E K{{{ TU"_s
                                 << QByteArray("20 4b 1b 7b 7b 20 54 55");
    QTest::addRow("the joined one is the sign itself")
        << u"k{{{{"_s << u"E K{{{ TU"_s << QByteArray("20 4b 1b 7b 7b 20 54 55");
}

void KeyboardViewMessageMergeTest::theNextMessageIsKeyedByItself() {
    QFETCH(const QString, first);
    _station->engine().appendMessage(first);
    _station->engine().appendMessage(u"tu"_s);
    QTEST(text(), "buffer");
    QCOMPARE(_station->view.text(), text());
    _station->keys(u"r"_s);
    QVERIFY(text().endsWith(u" TU R"_s));
    QFETCH(const QByteArray, sent);
    QCOMPARE(allWritten(), sent + " 20 52");
}

/// The sending ends there, and what is left goes out plain with the next occasion.
void KeyboardViewMessageMergeTest::oneThatNothingFollowsIsLeftAlone() {
    _station->engine().appendMessage(u"k {a"_s);
    QCOMPARE(text(), u"E K {A"_s);
    QCOMPARE(allWritten(), "20 4b 20 41");
}

void KeyboardViewMessageMergeTest::oneThatTheKeyerHasComeByIsLeftAlone() {
    _station->engine().appendMessage(u"k{a"_s);
    _station->echo(2);
    QCOMPARE(_station->bench.written(), "20 4b");
    _station->engine().appendMessage(u"tu"_s);
    QCOMPARE(text(), u"E K{A TU"_s);
    QCOMPARE(_station->bench.written(), "41");
    QCOMPARE(allWritten(), "20 54 55");
}

void KeyboardViewMessageMergeTest::whatIsTypedIsKeyedByItself_data() {
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QByteArray>("sent");
    QTest::addRow("none of its letters") << u"k{"_s << u"snr"_s << QByteArray("20 4b 20 53 4e 52");
    QTest::addRow("one of them") << u"k{a"_s << u"nr"_s << QByteArray("20 4b 41 20 4e 52");
    QTest::addRow("a space") << u"k{a"_s << u" n"_s << QByteArray("20 4b 41 20 4e");
    QTest::addRow("a merge of its own")
        << u"k{a"_s << u"{snr"_s << QByteArray("20 4b 41 20 1b 53 4e 52");
}

void KeyboardViewMessageMergeTest::whatIsTypedIsKeyedByItself() {
    QFETCH(const QString, message);
    QFETCH(const QString, typed);
    _station->engine().appendMessage(message);
    _station->keys(typed);
    QCOMPARE(_station->view.text(), text());
    QCOMPARE(_station->view.textCursor().position(), text().size());
    QTEST(allWritten(), "sent");
}

void KeyboardViewMessageMergeTest::aButtonOfTheKeyerDoesNotJoinEither() {
    _station->bench.settings().setObject(u"k{a"_s, u"Message1"_s);
    _station->bench.receive({0xC9});
    _station->bench.receive({0xC8});
    _station->bench.receive({0xC9});
    QCOMPARE(text(), u"E KA K{A"_s);
}

void KeyboardViewMessageMergeTest::aPasteIsKeyedByItself() {
    _station->engine().appendMessage(u"k{"_s);
    QGuiApplication::clipboard()->setText(u"sn {ar"_s);
    _station->keys(QKeySequence::Paste);
    QCOMPARE(text(), u"E K SN {AR"_s);
    QCOMPARE(allWritten(), "20 4b 20 53 4e 20 1b 41 52");
}

void KeyboardViewMessageMergeTest::takingBackBringsTheSignBack() {
    _station->engine().appendMessage(u"k{a"_s);
    _station->engine().appendMessage(u"tu"_s);
    _station->keys(QKeySequence::Undo);
    QCOMPARE(text(), u"E K{A"_s);
    _station->keys(u"n"_s);
    QCOMPARE(text(), u"E KA N"_s);
    _station->keys(QKeySequence::Undo);
    QCOMPARE(text(), u"E K{A"_s);
    _station->keys(QKeySequence::Redo);
    QCOMPARE(text(), u"E KA N"_s);
    QCOMPARE(allWritten(), "20 4b 41 20 4e");
}

void KeyboardViewMessageMergeTest::aMessageStillHasItsOwnMerges() {
    _station->engine().appendMessage(u"k {ar"_s);
    _station->engine().appendMessage(u"{sn r"_s);
    _station->keys(u"tu"_s);
    QCOMPARE(text(), u"E K {AR {SN R TU"_s);
    QCOMPARE(allWritten(), "20 4b 20 1b 41 52 20 1b 53 4e 20 52 20 54 55");
}

static const RegisteredTest<KeyboardViewMessageMergeTest> registered;
#include "KeyboardViewMessageMergeTest.moc"
