#include "keyer/SendingText.h"

#include "tests/support/RegisteredTest.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// "A" is sent, and the first letter of the call is on its way.
SendingText inMidCall() {
    SendingText text;
    text.setText(u"A~"_s);
    text.setCallsign(u"W9"_s);
    static_cast<void>(text.next());
    text.acknowledge();
    static_cast<void>(text.next());
    text.beginCallsign();
    static_cast<void>(text.nextOfCallsign());
    return text;
}

} // namespace

class SendingTextTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void noTextIsNotTheEmptyText();
    void charactersComeOneByOneInUpperCase();
    void whatIsAppendedComesNext();
    void whatIsTakenIsInFlightUntilItIsAcknowledged();
    void whatIsInFlightCanBeTakenBack();
    void partOfWhatIsTakenMayStayInFlight();
    void whatIsPeekedAtIsNotTaken();
    void twoComeTogetherOrNotAtAll();
    void placesEndWhereTheTextEnds();
    void itRewinds();
    void aCallSignIsReadAtItsToken();
    void whatCannotBeSentIsPassedOver();
    void aCallSignIsInFlightAsOne();
    void aCallSignMayChangeWhileItIsRead();
    void aCallSignIsTakenBackWhole();
};

void SendingTextTest::noTextIsNotTheEmptyText() {
    SendingText text;
    QVERIFY(text.text().isNull());
    QVERIFY(text.setText(u""_s));
    QVERIFY(!text.text().isNull());
    QVERIFY(!text.setText(u""_s));
    QVERIFY(text.setCallsign(u""_s));
    QVERIFY(!text.setCallsign(u""_s));
    QVERIFY(text.setCallsign({}));
}

void SendingTextTest::charactersComeOneByOneInUpperCase() {
    SendingText text;
    text.setText(u"cQ"_s);
    QCOMPARE(text.next(), 'C');
    QCOMPARE(text.next(), 'Q');
    QCOMPARE(text.next(), std::nullopt);
    QCOMPARE(text.index(), 2);
}

void SendingTextTest::whatIsAppendedComesNext() {
    SendingText text;
    text.setText(u"A"_s);
    static_cast<void>(text.next());
    text.append(u"B"_s);
    QCOMPARE(text.text(), u"AB");
    QCOMPARE(text.next(), 'B');
}

void SendingTextTest::whatIsTakenIsInFlightUntilItIsAcknowledged() {
    SendingText text;
    text.setText(u"AB"_s);
    QVERIFY(text.hasUnsent());
    static_cast<void>(text.next());
    QCOMPARE(text.inFlightIndex(), 0);
    text.acknowledge();
    QCOMPARE(text.inFlightIndex(), 1);
    QVERIFY(text.hasUnsent());
    static_cast<void>(text.next());
    QVERIFY(text.hasUnsent());
    text.acknowledge();
    QVERIFY(!text.hasUnsent());
}

void SendingTextTest::whatIsInFlightCanBeTakenBack() {
    SendingText text;
    text.setText(u"AB"_s);
    static_cast<void>(text.next());
    text.acknowledge();
    static_cast<void>(text.next());
    text.takeBack();
    QCOMPARE(text.index(), 1);
    QCOMPARE(text.next(), 'B');
}

void SendingTextTest::partOfWhatIsTakenMayStayInFlight() {
    SendingText text;
    text.setText(u"ABC"_s);
    for (int i = 0; i < 3; ++i) {
        static_cast<void>(text.next());
    }
    text.keepInFlight(1);
    QCOMPARE(text.inFlightIndex(), 1);
    QVERIFY(text.hasUnsent());
    text.keepInFlight(9);
    QCOMPARE(text.inFlightIndex(), 3);
}

void SendingTextTest::whatIsPeekedAtIsNotTaken() {
    SendingText text;
    QCOMPARE(text.peek(), std::nullopt);
    text.setText(u"a"_s);
    QCOMPARE(text.peek(), 'A');
    QCOMPARE(text.next(), 'A');
    QCOMPARE(text.peek(), std::nullopt);
}

void SendingTextTest::twoComeTogetherOrNotAtAll() {
    SendingText text;
    text.setText(u"arX"_s);
    QCOMPARE(text.nextTwo(), std::pair('A', 'R'));
    QCOMPARE(text.nextTwo(), std::nullopt);
    QCOMPARE(text.index(), 2);
}

void SendingTextTest::placesEndWhereTheTextEnds() {
    SendingText text;
    text.setText(u"ABCD"_s);
    for (int i = 0; i < 3; ++i) {
        static_cast<void>(text.next());
    }
    text.acknowledge();
    static_cast<void>(text.next());
    text.setText(u"AB"_s);
    QCOMPARE(text.index(), 4);
    text.restrictToText();
    QCOMPARE(text.index(), 2);
    QCOMPARE(text.inFlightIndex(), 2);
}

void SendingTextTest::itRewinds() {
    auto text = inMidCall();
    text.rewind();
    QVERIFY(!text.isReadingCallsign());
    QCOMPARE(text.index(), 0);
    QCOMPARE(text.inFlightIndex(), 0);
    text.beginCallsign();
    QCOMPARE(text.nextOfCallsign(), 'W');
}

void SendingTextTest::aCallSignIsReadAtItsToken() {
    SendingText text;
    text.setText(u"~K"_s);
    text.setCallsign(u"w9"_s);
    QCOMPARE(text.next(), '~');
    text.beginCallsign();
    QVERIFY(text.isReadingCallsign());
    QCOMPARE(text.nextOfCallsign(), 'W');
    QCOMPARE(text.nextOfCallsign(), '9');
    QCOMPARE(text.nextOfCallsign(), std::nullopt);
    QVERIFY(!text.isReadingCallsign());
    QCOMPARE(text.next(), 'K');
}

void SendingTextTest::whatCannotBeSentIsPassedOver() {
    SendingText text;
    text.setCallsign(u"\u00e4W\n\u20ac9\t"_s);
    text.beginCallsign();
    QCOMPARE(text.nextOfCallsign(), 'W');
    QCOMPARE(text.nextOfCallsign(), '9');
    QCOMPARE(text.nextOfCallsign(), std::nullopt);
}

void SendingTextTest::aCallSignIsInFlightAsOne() {
    SendingText text;
    text.setText(u"~K"_s);
    text.setCallsign(u"W9"_s);
    static_cast<void>(text.next());
    text.beginCallsign();
    static_cast<void>(text.nextOfCallsign());
    text.acknowledge();
    QCOMPARE(text.inFlightIndex(), 0);
    static_cast<void>(text.nextOfCallsign());
    QCOMPARE(text.nextOfCallsign(), std::nullopt);
    QCOMPARE(text.inFlightIndex(), 1);
}

void SendingTextTest::aCallSignMayChangeWhileItIsRead() {
    SendingText text;
    text.setCallsign(u"W9BSP"_s);
    text.beginCallsign();
    static_cast<void>(text.nextOfCallsign());
    static_cast<void>(text.nextOfCallsign());
    text.setCallsign(u"K"_s);
    QCOMPARE(text.nextOfCallsign(), std::nullopt);
}

void SendingTextTest::aCallSignIsTakenBackWhole() {
    auto text = inMidCall();
    text.takeBack();
    QCOMPARE(text.index(), 1);
    QVERIFY(!text.isReadingCallsign());
    QCOMPARE(text.next(), '~');
}

static const RegisteredTest<SendingTextTest> registered;
#include "SendingTextTest.moc"
