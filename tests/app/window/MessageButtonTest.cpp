#include "app/window/MessageButton.h"

#include "tests/app/window/MainWindowFixture.h"
#include "tests/support/RegisteredTest.h"

#include <QTextDocument>

using namespace Qt::StringLiterals;

/// What a message button shows.
class MessageButtonTest : public QObject, private MainWindowFixture {
    Q_OBJECT

  private Q_SLOTS:
    void init() { open(); }
    void cleanup() { close(); }

    void theSecondLineIsWhatIsSentNow();
    void aLongTextIsCutShort();
    void aLongTextIsSeenFromItsBeginning();
    void withoutRoomThereIsOneLine();
    void aToolTipIsBroken_data();
    void aToolTipIsBroken();

  private:
    [[nodiscard]] MessageButton& button() { return *find<MessageButton>(u"message1Button"_s); }
    [[nodiscard]] QImage picture() { return button().grab().toImage(); }
    void store(const QString& message) { _bench->settings().setObject(message, u"Message1"_s); }
};

void MessageButtonTest::theSecondLineIsWhatIsSentNow() {
    store(u"~ ur # de `"_s);
    _bench->engine().setHisCallsign(u"W9XYZ"_s);
    QCOMPARE(button().preview(), u"W9XYZ UR TT1 DE N0CALL"_s);
    const auto first = picture();
    _bench->engine().setSerialNumber(2);
    QCOMPARE(button().preview(), u"W9XYZ UR TT2 DE N0CALL"_s);
    QVERIFY(picture() != first);
    // Only the lower half of it is another one.
    const auto half = QRect(0, 0, first.width(), first.height() / 2 - 2);
    QCOMPARE(picture().copy(half), first.copy(half));
}

void MessageButtonTest::aLongTextIsCutShort() {
    const auto size = button().sizeHint();
    store(u"PARIS "_s.repeated(40));
    const auto cut = picture();
    QCOMPARE(button().sizeHint(), size);
    store(u"PARIS "_s.repeated(50));
    QCOMPARE(picture(), cut);
    store(u"PARIS"_s);
    QVERIFY(picture() != cut);
}

void MessageButtonTest::aLongTextIsSeenFromItsBeginning() {
    store(u"PARIS "_s.repeated(40));
    const auto cut = picture();
    store(u"PARIS "_s.repeated(39) + u"TARIS "_s);
    QCOMPARE(picture(), cut);
    store(u"TARIS "_s + u"PARIS "_s.repeated(39));
    QVERIFY(picture() != cut);
}

void MessageButtonTest::withoutRoomThereIsOneLine() {
    store(u"one"_s);
    button().setFixedHeight(button().fontMetrics().height() + 8);
    const auto small = picture();
    store(u"another"_s);
    QCOMPARE(picture(), small);
}

void MessageButtonTest::aToolTipIsBroken_data() {
    QTest::addColumn<QString>("message");
    QTest::addRow("words") << u"PARIS "_s.repeated(100);
    QTest::addRow("no space in it") << u"PARIS"_s.repeated(100);
    QTest::addRow("very long") << u"PARIS "_s.repeated(5000);
}

void MessageButtonTest::aToolTipIsBroken() {
    QFETCH(const QString, message);
    store(message);
    QTextDocument toolTip;
    toolTip.setHtml(button().toolTip());
    toolTip.setTextWidth(400);
    QVERIFY2(toolTip.idealWidth() <= 400, qPrintable(QString::number(toolTip.idealWidth())));
    QVERIFY2(toolTip.size().height() < 500, qPrintable(QString::number(toolTip.size().height())));
    QVERIFY(toolTip.toPlainText().startsWith(message.left(20)));
}

static const RegisteredTest<MessageButtonTest> registered;
#include "MessageButtonTest.moc"
