#include "tests/serial/PortBench.h"
#include "tests/support/RegisteredTest.h"

#include <QDir>
#include <QElapsedTimer>

#include <cerrno>
#include <fcntl.h>
#include <sys/ioctl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

qsizetype descriptorCount() {
    return QDir(u"/proc/self/fd"_s)
        .entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::System)
        .size();
}

} // namespace

class ORSSerialPortFaultsTest : public QObject {
    Q_OBJECT
  private Q_SLOTS:
    void anOpenThatFailsIsReportedAndLeavesNothing_data() {
        QTest::addColumn<SystemCall>("call");
        QTest::addColumn<int>("error");
        QTest::newRow("open: busy") << SystemCall::Open << EBUSY;
        QTest::newRow("open: no permission") << SystemCall::Open << EACCES;
        QTest::newRow("flock: held by another") << SystemCall::Flock << EWOULDBLOCK;
        QTest::newRow("exclusive mode refused") << SystemCall::Ioctl << EIO;
    }

    void anOpenThatFailsIsReportedAndLeavesNothing() {
        QFETCH(SystemCall, call);
        QFETCH(int, error);
        PortBench bench;
        const auto descriptors = descriptorCount();
        if (call == SystemCall::Ioctl) {
            bench.faults.failIoctl(TIOCEXCL, error);
        } else {
            bench.faults.fail(call, error);
        }
        bench.port->open();
        QVERIFY(!bench.port->isOpen());
        QCOMPARE(descriptorCount(), descriptors);
        QCOMPARE(bench.delegate.events(), QStringList());
        QTRY_COMPARE(bench.delegate.events(), QStringList{u"error"_s});
        QCOMPARE(bench.delegate.count(u"error"_s), 1);
        bench.faults.mend();
        QVERIFY(bench.open());
    }

    void descriptorZeroIsNoOpenPort() {
        const int standardInput = ::fcntl(0, F_DUPFD_CLOEXEC, 3);
        PortBench bench;
        const int device =
            ::open(bench.line.path().toLocal8Bit().constData(), O_RDWR | O_NOCTTY | O_CLOEXEC);
        QCOMPARE(::dup2(device, 0), 0);
        ::close(device);
        bench.faults.nextOpenReturns(0);
        bench.port->open();
        const bool isOpen = bench.port->isOpen();
        const bool isLeft = ::fcntl(0, F_GETFD) >= 0;
        static_cast<void>(::dup2(standardInput, 0));
        ::close(standardInput);
        QVERIFY(!isOpen);
        QVERIFY(!isLeft);
        QTRY_COMPARE(bench.delegate.events(), QStringList{u"error"_s});
    }

    void anOpeningSurvives_data() {
        QTest::addColumn<SystemCall>("call");
        QTest::addColumn<int>("error");
        QTest::newRow("a file system without locks") << SystemCall::Flock << ENOLCK;
        QTest::newRow("flags that cannot be set") << SystemCall::Fcntl << EIO;
        QTest::newRow("settings that cannot be saved") << SystemCall::TcGetAttr << EIO;
    }

    void anOpeningSurvives() {
        QFETCH(SystemCall, call);
        QFETCH(int, error);
        PortBench bench;
        bench.faults.fail(call, error, 1, 1);
        QVERIFY(bench.open());
        QVERIFY(bench.line.write("x"));
        QTRY_COMPARE(bench.delegate.received(), "x"_ba);
        QCOMPARE(bench.delegate.count(u"error"_s), 0);
    }

    void settingsThatWereNotSavedAreNotRestored() {
        PortBench bench;
        bench.faults.fail(SystemCall::TcGetAttr, EIO, 1, 1);
        QVERIFY(bench.open());
        QVERIFY(bench.port->close());
        for (const auto& set : bench.faults.setAttributes()) {
            QVERIFY(set.actions != TCSADRAIN);
        }
    }

    void settingsThatAreRefusedAreOnlyLogged_data() {
        QTest::addColumn<SystemCall>("call");
        QTest::addColumn<int>("number");
        QTest::addColumn<bool>("atOpen");
        QTest::newRow("reading them at open") << SystemCall::TcGetAttr << 2 << true;
        QTest::newRow("writing them at open") << SystemCall::TcSetAttr << 1 << true;
        QTest::newRow("reading them later") << SystemCall::TcGetAttr << 1 << false;
        QTest::newRow("writing them later") << SystemCall::TcSetAttr << 1 << false;
    }

    void settingsThatAreRefusedAreOnlyLogged() {
        QFETCH(SystemCall, call);
        QFETCH(int, number);
        QFETCH(bool, atOpen);
        PortBench bench;
        if (!atOpen) {
            QVERIFY(bench.open());
        }
        bench.faults.fail(call, EIO, number, number);
        QTest::ignoreMessage(QtInfoMsg, "Unable to set options on line: -1");
        if (atOpen) {
            QVERIFY(bench.open());
        } else {
            bench.port->setBaudRate(1200);
        }
        QVERIFY(bench.port->isOpen());
        QCOMPARE(bench.delegate.events(), QStringList{u"opened"_s});
    }

    void aRateThatTheDeviceRefusesIsOnlyLogged() {
        PortBench bench;
        QVERIFY(bench.open());
        QTest::ignoreMessage(QtInfoMsg, "Unable to set options on line: -1");
        bench.port->setBaudRate(1UL << 40U);
        QCOMPARE(bench.port->baudRate(), 1UL << 40U);
        QCOMPARE(bench.delegate.events(), QStringList{u"opened"_s});
    }

    void aWaitThatFailsIsReportedAndGoneOnWith_data() {
        QTest::addColumn<int>("first");
        QTest::newRow("from the first on") << 1;
        QTest::newRow("from a later one on") << 3;
    }

    void aWaitThatFailsIsReportedAndGoneOnWith() {
        QFETCH(int, first);
        PortBench bench;
        bench.faults.fail(SystemCall::Poll, ENOMEM, first);
        QVERIFY(bench.open());
        QTRY_VERIFY(bench.delegate.count(u"error"_s) >= 1);
        QElapsedTimer time;
        time.start();
        const auto count = bench.delegate.count(u"error"_s);
        QTRY_VERIFY(bench.delegate.count(u"error"_s) >= count + 3);
        QVERIFY(time.elapsed() >= 180);
        bench.faults.mend();
        QVERIFY(bench.line.write("x"));
        QTRY_COMPARE(bench.delegate.received(), "x"_ba);
    }

    void aReadThatFailsIsNotReported_data() {
        QTest::addColumn<int>("number");
        QTest::newRow("the first") << 1;
        QTest::newRow("a later one") << 2;
    }

    void aReadThatFailsIsNotReported() {
        QFETCH(int, number);
        PortBench bench;
        QVERIFY(bench.open());
        bench.faults.fail(SystemCall::Read, EIO, number, number);
        QByteArray sent;
        for (const char byte : {'a', 'b', 'c'}) {
            sent += byte;
            QVERIFY(bench.line.write(QByteArray(1, byte)));
            QTRY_COMPARE(bench.delegate.received(), sent);
        }
        QVERIFY(bench.faults.count(SystemCall::Read) >= 4);
        QCOMPARE(bench.delegate.count(u"error"_s), 0);
    }

    void aCloseThatFailsLeavesThePortOpen() {
        PortBench bench;
        QVERIFY(bench.open());
        bench.faults.fail(SystemCall::Close, EIO, 1, 2);
        for (int attempt = 0; attempt < 2; ++attempt) {
            QVERIFY(!bench.port->close());
            QVERIFY(bench.port->isOpen());
            QCOMPARE(bench.delegate.count(u"closed"_s), 0);
            QCOMPARE(bench.delegate.count(u"error"_s), 0);
            QVERIFY(bench.line.write("x"));
            QTRY_COMPARE(bench.delegate.received().size(), attempt + 1);
            QVERIFY(bench.port->sendData("y"));
            QCOMPARE(bench.line.read(1), "y"_ba);
            bench.faults.setModemWord(attempt == 0 ? TIOCM_CTS : 0);
            QTRY_COMPARE(bench.port->CTS(), attempt == 0);
        }
        QVERIFY(bench.port->close());
        QVERIFY(!bench.port->isOpen());
        QCOMPARE(bench.delegate.count(u"closed"_s), 1);
    }

    void closingSurvives_data() {
        QTest::addColumn<SystemCall>("call");
        QTest::newRow("settings that cannot be read") << SystemCall::TcGetAttr;
        QTest::newRow("settings that cannot be restored") << SystemCall::TcSetAttr;
        QTest::newRow("exclusive mode that cannot be left") << SystemCall::Ioctl;
    }

    void closingSurvives() {
        QFETCH(SystemCall, call);
        PortBench bench;
        QVERIFY(bench.open());
        if (call == SystemCall::Ioctl) {
            bench.faults.failIoctl(TIOCNXCL, EIO);
        } else {
            bench.faults.fail(call, EIO);
        }
        QVERIFY(bench.port->close());
        QCOMPARE(bench.delegate.events(), (QStringList{u"opened"_s, u"closed"_s}));
    }
};

static const RegisteredTest<ORSSerialPortFaultsTest> registered;
#include "ORSSerialPortFaultsTest.moc"
