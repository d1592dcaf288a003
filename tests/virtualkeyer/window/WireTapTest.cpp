#include "virtualkeyer/window/WireTap.h"

#include "tests/support/RegisteredTest.h"
#include "virtualkeyer/pty/SerialKeyer.h"
#include "virtualkeyer/window/WireWords.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace virtualkeyer;

class WireTapTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void aConversationIsReadInBothDirections();
    void aWindowThatDoesNotComeIsNotWaitedFor();
};

void WireTapTest::aConversationIsReadInBothDirections() {
    WireTap tap;
    const QSignalSpy heard(&tap, &WireTap::heard);
    SerialKeyer keyer({}, {&tap});
    for (const int byte : {0x00, 0x02, 0x0E, 0x04, 0x04, 0x00, 0x0A}) {
        keyer.send(static_cast<std::uint8_t>(byte), 0s);
    }
    keyer.advance(1s);
    QCOMPARE(heard.size(), 1);
    keyer.send('E', 1s);
    keyer.advance(3s);
    keyer.pull(4s);
    QCOMPARE(heard.size(), 1);
    QStringList words;
    Time before{0};
    for (const WireLine& line : tap.takeLines()) {
        words += WireWords::of(line);
        QVERIFY(line.at >= before);
        before = line.at;
    }
    QVERIFY(words[2].startsWith(u"Set the mode: "_s));
    words.removeAt(2);
    QCOMPARE(words, (QStringList{u"Open the keyer"_s, u"open, version 23"_s,
                                 u"Set PTT lead/tail 0, 100 ms"_s, u"text E"_s, u"status: busy"_s,
                                 u"echo E"_s, u"status: idle"_s, u"the keyer starts anew"_s}));
    QCOMPARE(tap.takeLines().size(), 0U);
    keyer.plugIn(5s);
    keyer.send('E', 5s);
    keyer.advance(6s);
    QCOMPARE(heard.size(), 2);
}

void WireTapTest::aWindowThatDoesNotComeIsNotWaitedFor() {
    WireTap tap;
    for (std::size_t i = 0; i < WireTap::mostWaiting + 5; ++i) {
        tap.hostSent('E', false, static_cast<int>(i) * 1ms);
    }
    const auto lines = tap.takeLines();
    QCOMPARE(lines.size(), WireTap::mostWaiting);
    QCOMPARE(lines.front().at.count(), Time{5ms}.count());
}

static const RegisteredTest<WireTapTest> registered;
#include "WireTapTest.moc"
