#include "tests/serial/PortBench.h"
#include "tests/support/LogKeeper.h"
#include "tests/support/RegisteredTest.h"

#include <QDir>
#include <QElapsedTimer>
#include <QSemaphore>
#include <QSignalSpy>

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/ioctl.h>
#include <sys/resource.h>
#include <thread>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

qsizetype entriesOf(const QString& directory) {
    return QDir(directory).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::System).size();
}

qsizetype descriptorCount() {
    return entriesOf(u"/proc/self/fd"_s);
}

/// The system lists a thread a moment longer than whoever has joined it waits.
qsizetype threadCount() {
    return entriesOf(u"/proc/self/task"_s);
}

} // namespace

class ORSSerialPortOpeningTest : public QObject {
    Q_OBJECT
  private Q_SLOTS:
    void anOpenPortIsOpenAtOnceAndSaysSoLater() {
        PortBench bench;
        bench.port->open();
        QVERIFY(bench.port->isOpen());
        QVERIFY(bench.port->fileDescriptor() > 0);
        QCOMPARE(bench.delegate.events(), QStringList());
        QTRY_COMPARE(bench.delegate.events(), QStringList{u"opened"_s});
    }

    void openingAnOpenPortDoesNothing() {
        PortBench bench;
        QVERIFY(bench.open());
        const int descriptor = bench.port->fileDescriptor();
        const int opens = bench.faults.count(SystemCall::Open);
        bench.port->open();
        QCOMPARE(bench.port->fileDescriptor(), descriptor);
        QCOMPARE(bench.faults.count(SystemCall::Open), opens);
    }

    void theDescriptorBlocksAndIsNotInherited() {
        PortBench bench;
        bench.port->open();
        QCOMPARE(::fcntl(bench.port->fileDescriptor(), F_GETFL) & O_NONBLOCK, 0);
        QCOMPARE(::fcntl(bench.port->fileDescriptor(), F_GETFD) & FD_CLOEXEC, FD_CLOEXEC);
    }

    void closingTellsTheDelegateBeforeItReturns() {
        PortBench bench;
        QVERIFY(bench.open());
        QVERIFY(bench.port->close());
        QVERIFY(!bench.port->isOpen());
        QCOMPARE(bench.delegate.events(), (QStringList{u"opened"_s, u"closed"_s}));
    }

    void closingAClosedPortSaysNothing() {
        PortBench bench;
        QVERIFY(bench.port->close());
        QCOMPARE(bench.delegate.events(), QStringList());
    }

    void observersOfIsOpenAreTold() {
        PortBench bench;
        QList<bool> seen;
        connect(bench.port.get(), &ORSSerialPort::isOpenChanged, this,
                [&] { seen.append(bench.port->isOpen()); });
        bench.port->open();
        bench.port->close();
        QCOMPARE(seen, (QList{true, false}));
    }

    void anObserverMayCloseThePort_data() {
        QTest::addColumn<bool>("ofTheLine");
        QTest::newRow("when the line changes during open") << true;
        QTest::newRow("when it is open") << false;
    }

    void anObserverMayCloseThePort() {
        QFETCH(bool, ofTheLine);
        PortBench bench;
        bench.port->setRTS(1);
        const auto signal = ofTheLine ? &ORSSerialPort::RTSChanged : &ORSSerialPort::isOpenChanged;
        connect(bench.port.get(), signal, this, [&] { bench.port->close(); });
        bench.port->open();
        QVERIFY(!bench.port->isOpen());
    }

    void cleaningUpClosesAndTellsThatTheDeviceHasGone() {
        PortBench bench;
        QVERIFY(bench.open());
        bench.port->cleanup();
        QVERIFY(!bench.port->isOpen());
        bench.port->cleanup();
        QCOMPARE(bench.delegate.events(),
                 (QStringList{u"opened"_s, u"closing"_s, u"closed"_s, u"removed"_s, u"removed"_s}));
    }

    void cleaningUpTellsEvenIfClosingFails() {
        PortBench bench;
        QVERIFY(bench.open());
        bench.faults.fail(SystemCall::Close, EIO, 1, 1);
        bench.port->cleanup();
        QVERIFY(bench.port->isOpen());
        QCOMPARE(bench.delegate.events(), (QStringList{u"opened"_s, u"closing"_s, u"removed"_s}));
    }

    void aChangeOfFlowControlReopensAnOpenPort_data() {
        QTest::addColumn<QByteArray>("property");
        QTest::addColumn<QByteArray>("log");
        QTest::newRow("RTS/CTS") << QByteArray("usesRTSCTSFlowControl") << QByteArray();
        QTest::newRow("DTR/DSR") << QByteArray("usesDTRDSRFlowControl")
                                 << QByteArray("DTR/DSR flow control has no effect on line on "
                                               "this system");
        QTest::newRow("DCD") << QByteArray("usesDCDOutputFlowControl")
                             << QByteArray("DCD output flow control has no effect on line on "
                                           "this system");
    }

    void aChangeOfFlowControlReopensAnOpenPort() {
        QFETCH(QByteArray, property);
        QFETCH(QByteArray, log);
        PortBench bench;
        if (!log.isEmpty()) {
            QTest::ignoreMessage(QtInfoMsg, log.constData());
        }
        bench.port->setProperty(property.constData(), true);
        QCOMPARE(bench.port->property(property.constData()), QVariant(true));
        QVERIFY(!bench.port->isOpen());
        QCOMPARE(bench.delegate.events(), QStringList());

        QVERIFY(bench.open());
        bench.port->setProperty(property.constData(), true);
        QCOMPARE(bench.delegate.events(), QStringList{u"opened"_s});
        bench.port->setProperty(property.constData(), false);
        QVERIFY(bench.port->isOpen());
        QTRY_COMPARE(bench.delegate.events(), (QStringList{u"opened"_s, u"closed"_s, u"opened"_s}));
    }

    void aDeviceLockedElsewhereDoesNotOpen() {
        PortBench bench;
        const int other =
            ::open(bench.line.path().toLocal8Bit().constData(), O_RDWR | O_NOCTTY | O_CLOEXEC);
        QCOMPARE(::flock(other, LOCK_EX | LOCK_NB), 0);
        bench.port->open();
        QVERIFY(!bench.port->isOpen());
        QTRY_COMPARE(bench.delegate.events(), QStringList{u"error"_s});
        QCOMPARE(bench.delegate.errors().constFirst().userInfo.value(NSFilePathErrorKey).toString(),
                 bench.line.path());
        ::close(other);
        bench.port->open();
        QVERIFY(bench.port->isOpen());
    }

    void anotherProcessCannotHaveAnOpenDevice() {
        PortBench bench;
        const auto command = "flock --nonblock "_ba + bench.line.path().toLocal8Bit() + " true";
        bench.port->open();
        QVERIFY(std::system(command.constData()) != 0);
        bench.port->close();
        QCOMPARE(std::system(command.constData()), 0);
    }

    void exclusiveModeEndsWithTheOpening() {
        PortBench bench;
        int isExclusive = 0;
        bench.port->open();
        QCOMPARE(::ioctl(bench.port->fileDescriptor(), TIOCGEXCL, &isExclusive), 0);
        QCOMPARE(isExclusive, 1);
        bench.port->close();
        const int descriptor =
            ::open(bench.line.path().toLocal8Bit().constData(), O_RDWR | O_NOCTTY);
        QCOMPARE(::ioctl(descriptor, TIOCGEXCL, &isExclusive), 0);
        ::close(descriptor);
        QCOMPARE(isExclusive, 0);
    }

    void anOpenForWhichThereAreNotEnoughDescriptorsLocksNobodyOut() {
        PortBench bench;
        const auto path = bench.line.path().toLocal8Bit();
        const int first = ::dup(STDERR_FILENO);
        const int second = ::dup(STDERR_FILENO);
        ::close(first);
        ::close(second);
        rlimit limit{};
        QCOMPARE(::getrlimit(RLIMIT_NOFILE, &limit), 0);
        const auto usual = limit.rlim_cur;
        limit.rlim_cur = static_cast<rlim_t>(second);
        QCOMPARE(::setrlimit(RLIMIT_NOFILE, &limit), 0);
        bench.port->open();
        limit.rlim_cur = usual;
        QCOMPARE(::setrlimit(RLIMIT_NOFILE, &limit), 0);
        QVERIFY(!bench.port->isOpen());
        QTRY_COMPARE(bench.delegate.events(), QStringList{u"error"_s});
        const int descriptor = ::open(path.constData(), O_RDWR | O_NOCTTY | O_CLOEXEC);
        int isExclusive = -1;
        QCOMPARE(::ioctl(descriptor, TIOCGEXCL, &isExclusive), 0);
        ::close(descriptor);
        QCOMPARE(isExclusive, 0);
        QVERIFY(bench.port->close());
    }

    void aMissingNodeOrAFileThatIsNoTerminalDoesNotOpen_data() {
        QTest::addColumn<QString>("path");
        QTest::newRow("missing") << u"/nowhere/at/all"_s;
        QTest::newRow("no terminal, and in use by many") << u"/dev/null"_s;
    }

    void aMissingNodeOrAFileThatIsNoTerminalDoesNotOpen() {
        QFETCH(QString, path);
        TestPlatform platform;
        RecordingDelegate delegate;
        const auto port =
            ORSSerialPort::serialPortWithDevice(platform.devices().plug(u"odd"_s, path));
        port->setDelegate(&delegate);
        const auto descriptors = descriptorCount();
        const LogKeeper log;
        port->open();
        QVERIFY(!port->isOpen());
        QCOMPARE(log.lines(), QStringList());
        QTRY_COMPARE(delegate.events(), QStringList{u"error"_s});
        QCOMPARE(descriptorCount(), descriptors);
        port->setDelegate(nullptr);
    }

    void anOpenPortKeepsItselfAlive() {
        PortBench bench;
        const std::weak_ptr<ORSSerialPort> watched = bench.port;
        bench.port->open();
        bench.port.reset();
        QVERIFY(!watched.expired());
        QCOMPARE(ORSSerialPort::existingPortWithPath(bench.line.path()), watched.lock());
        QVERIFY(watched.lock()->close());
        QTRY_VERIFY(watched.expired());
        bench.port = ORSSerialPort::serialPortWithDevice(bench.device);
    }

    void theEndOfThePlatformClosesOpenPorts() {
        const auto threads = threadCount();
        PortBench bench;
        QVERIFY(bench.open());
        QVERIFY(threadCount() >= threads + 2);
        bench.platform.end();
        QVERIFY(!bench.port->isOpen());
        QCOMPARE(bench.delegate.events(), (QStringList{u"opened"_s, u"closed"_s}));
        QTRY_COMPARE(threadCount(), threads);
    }

    void closingFromACallbackDoesNotHang_data() {
        QTest::addColumn<QString>("event");
        QTest::newRow("of the opening") << u"opened"_s;
        QTest::newRow("of received data") << u"data"_s;
        QTest::newRow("of an error, for which a worker waits") << u"error"_s;
    }

    void closingFromACallbackDoesNotHang() {
        QFETCH(QString, event);
        PortBench bench;
        bench.delegate.setReaction([&](ORSSerialPort& port, const QString& happened) {
            if (happened == event) {
                port.close();
            }
        });
        bench.port->open();
        QVERIFY(bench.line.write("x"));
        if (event == u"error"_s) {
            bench.faults.failIoctl(TIOCMGET, EIO);
        }
        QTRY_VERIFY(bench.delegate.count(u"closed"_s) == 1);
        QVERIFY(!bench.port->isOpen());
    }

    void reopeningFromACallbackDoesNotHang() {
        PortBench bench;
        int openings = 0;
        bench.delegate.setReaction([&](ORSSerialPort& port, const QString& happened) {
            if (happened == u"error"_s && openings < 5) {
                port.close();
                port.open();
                ++openings;
            }
        });
        QVERIFY(bench.open());
        bench.faults.failIoctl(TIOCMGET, EIO);
        QTRY_COMPARE(openings, 5);
        bench.faults.mend();
        QVERIFY(bench.line.write("abc"));
        QTRY_COMPARE(bench.delegate.received(), "abc"_ba);
    }

    void closingWhileAWorkerWaitsForTheMainThreadDoesNotHang() {
        PortBench bench;
        QVERIFY(bench.open());
        bench.faults.failIoctl(TIOCMGET, EIO);
        const int ticks = bench.faults.countIoctl(TIOCMGET);
        QElapsedTimer time;
        time.start();
        while (bench.faults.countIoctl(TIOCMGET) == ticks && time.elapsed() < 5000) {
            std::this_thread::sleep_for(1ms);
        }
        // The failed tick's report waits for this thread by the time the next one would be due.
        std::this_thread::sleep_for(20ms);
        time.restart();
        QVERIFY(bench.port->close());
        QVERIFY(time.elapsed() < 1000);
        QCOMPARE(bench.delegate.count(u"error"_s), 0);
        QTest::qWait(30);
        QCOMPARE(bench.delegate.count(u"error"_s), 0);
    }

    void closingDuringAReadWaitsForIt() {
        PortBench bench;
        QVERIFY(bench.open());
        std::atomic<bool> isReading = false;
        std::atomic<bool> mayGoOn = false;
        bench.faults.beforeEach(SystemCall::Read, [&](int) {
            isReading = true;
            mayGoOn.wait(false);
        });
        QVERIFY(bench.line.write("late"));
        QTRY_VERIFY(isReading);
        std::atomic<bool> isClosed = false;
        bench.faults.beforeEach(SystemCall::Close, [&](int) { isClosed = true; });
        bool closedTooEarly = true;
        const std::jthread releaser([&] {
            std::this_thread::sleep_for(50ms);
            closedTooEarly = isClosed;
            mayGoOn = true;
            mayGoOn.notify_all();
        });
        QVERIFY(bench.port->close());
        QVERIFY(!closedTooEarly);
        // What it read ended with the opening.
        bench.faults.beforeEach(SystemCall::Read, [](int) {});
        bench.port->open();
        QVERIFY(bench.line.write("x"));
        QTRY_VERIFY(bench.delegate.received().endsWith('x'));
        QCOMPARE(bench.delegate.received(), "x"_ba);
    }

    void aReopenedPortWorksAtOnce() {
        PortBench bench;
        for (int round = 0; round < 20; ++round) {
            bench.port->open();
            QVERIFY(bench.line.write("x"));
            QTRY_COMPARE(bench.delegate.received().size(), round + 1);
            QVERIFY(bench.port->close());
        }
    }

    void manyOpeningsLeaveNothingBehind() {
        PortBench bench;
        const auto descriptors = descriptorCount();
        const auto threads = threadCount();
        for (int round = 0; round < 300; ++round) {
            bench.port->open();
            QVERIFY(bench.port->isOpen());
            QVERIFY(bench.port->close());
        }
        QCOMPARE(descriptorCount(), descriptors);
        QTRY_COMPARE(threadCount(), threads);
        QTRY_COMPARE(bench.delegate.count(u"opened"_s), 300);
        QTRY_COMPARE(bench.port.use_count(), 1);
    }

    void theOldLineSettingsComeBack_data() {
        QTest::addColumn<unsigned long>("rate");
        QTest::newRow("from a standard rate") << 1200UL;
        QTest::newRow("from a rate without a constant") << 1234UL;
    }

    void theOldLineSettingsComeBack() {
        QFETCH(unsigned long, rate);
        PortBench bench;
        termios old{};
        QCOMPARE(::tcgetattr(bench.line.farEnd(), &old), 0);
        old.c_lflag |= ICANON | ECHO;
        old.c_cc[VMIN] = 7;
        QCOMPARE(::tcsetattr(bench.line.farEnd(), TCSANOW, &old), 0);
        QCOMPARE(::tcgetattr(bench.line.farEnd(), &old), 0);
        bench.port->setBaudRate(rate);
        bench.port->open();
        termios during{};
        QCOMPARE(::tcgetattr(bench.line.farEnd(), &during), 0);
        QCOMPARE(during.c_lflag & (ICANON | ECHO), 0U);
        bench.port->close();
        termios after{};
        QCOMPARE(::tcgetattr(bench.line.farEnd(), &after), 0);
        QCOMPARE(after.c_lflag, old.c_lflag);
        QCOMPARE(after.c_cflag, old.c_cflag);
        QCOMPARE(after.c_cc[VMIN], old.c_cc[VMIN]);
    }

    void closingTakesOffFlowControlAndThenWaitsForOutput() {
        PortBench bench;
        bench.port->setUsesRTSCTSFlowControl(true);
        bench.port->open();
        QVERIFY((bench.faults.setAttributes().constLast().record.c_cflag & CRTSCTS) != 0);
        const auto before = bench.faults.setAttributes().size();
        bench.port->close();
        const auto records = bench.faults.setAttributes().mid(before);
        QCOMPARE(records.size(), 2);
        QCOMPARE(records[0].actions, TCSANOW);
        QCOMPARE(records[0].record.c_cflag & CRTSCTS, 0U);
        QCOMPARE(records[1].actions, TCSADRAIN);
    }

    void aDeviceThatTakesNothingMoreHoldsNobodyUp() {
        QSemaphore taken;
        PortBench bench;
        QVERIFY(bench.open());
        bench.faults.beforeEach(SystemCall::TcSetAttr,
                                [&taken, main = std::this_thread::get_id()](int) {
                                    if (std::this_thread::get_id() != main) {
                                        taken.acquire();
                                    }
                                });
        QVERIFY(bench.port->sendData("y"));
        bench.faults.setOutputWaiting(1);
        QElapsedTimer time;
        time.start();
        QVERIFY(bench.port->close());
        QVERIFY(time.elapsed() < 2000);
        QVERIFY(!bench.port->isOpen());
        QCOMPARE(bench.delegate.count(u"closed"_s), 1);
        // It stays taken until its output has gone.
        bench.port->open();
        QVERIFY(!bench.port->isOpen());
        taken.release(1000);
        QTRY_VERIFY((bench.port->open(), bench.port->isOpen()));
        QVERIFY(bench.port->sendData("x"));
        QCOMPARE(bench.line.read(2), "yx"_ba);
    }
};

static const RegisteredTest<ORSSerialPortOpeningTest> registered;
#include "ORSSerialPortOpeningTest.moc"
