#include "platform/linux/LogindPower.h"
#include "serial/ORSSerialPortManager.h"
#include "tests/platform/linux/FakeLogind.h"
#include "tests/platform/linux/PrivateBus.h"
#include "tests/support/PseudoTerminalPair.h"
#include "tests/support/RecordingDelegate.h"
#include "tests/support/RegisteredTest.h"
#include "tests/support/TestPlatform.h"

#include <QTest>

using namespace Qt::StringLiterals;

/// The machine's sleep and the ports, with nothing between them left out.
class SleepTest : public QObject {
    Q_OBJECT
  private Q_SLOTS:
    void cleanup() { QDBusConnection::disconnectFromBus(u"quorvel"_s); }

    void anOpenPortIsClosedForTheSleepAndOpenedAfterIt() {
        const TestPlatform platform;
        const PseudoTerminalPair line;
        platform.devices().plug(u"line"_s, line.path());
        const auto port =
            ORSSerialPortManager::sharedSerialPortManager().objectInAvailablePortsAtIndex(0);
        RecordingDelegate delegate;
        port->setDelegate(&delegate);
        const PrivateBus bus;
        FakeLogind logind(bus);
        const LogindPower power(bus.connect(u"quorvel"_s));
        port->open();
        QVERIFY(port->isOpen());
        QTRY_COMPARE(logind.heldLocks(), 1);

        qsizetype locksAtClose = 0;
        delegate.setReaction([&](const ORSSerialPort&, const QString& event) {
            if (event == u"closed") {
                locksAtClose = logind.heldLocks();
            }
        });
        logind.announceSleep();
        QTRY_COMPARE(logind.heldLocks(), 0);
        QVERIFY(!port->isOpen());
        QCOMPARE(locksAtClose, 1);

        logind.announceWake();
        QTRY_VERIFY(port->isOpen());
        QTRY_COMPARE(logind.heldLocks(), 1);
        QVERIFY(line.write("x"));
        QTRY_COMPARE(delegate.received(), "x"_ba);
        QVERIFY(port->close());
    }
};

static const RegisteredTest<SleepTest> registered;
#include "SleepTest.moc"
