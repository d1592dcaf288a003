#include "serial/LowLatency.h"

#include "tests/serial/PortBench.h"
#include "tests/support/LogKeeper.h"
#include "tests/support/RegisteredTest.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <cerrno>
#include <linux/tty_flags.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int lowLatency = ASYNC_LOW_LATENCY;

/// A kernel's view of devices in which the terminal at a descriptor has a latency timer.
class FakeSysfs {
  public:
    FakeSysfs(int descriptor, const QByteArray& timer) {
        struct stat node = {};
        ::fstat(descriptor, &node);
        const auto folder = _directory.filePath(
            u"dev/char/%1:%2/device"_s.arg(major(node.st_rdev)).arg(minor(node.st_rdev)));
        QDir().mkpath(folder);
        _timer.setFileName(folder + u"/latency_timer"_s);
        if (_timer.open(QIODevice::WriteOnly)) {
            _timer.write(timer);
            _timer.close();
        }
    }

    [[nodiscard]] QString path() const { return _directory.path(); }
    [[nodiscard]] QByteArray timer() const {
        QFile file(_timer.fileName());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : ""_ba;
    }
    /// Has the timer's file refuse to be written, to root too: it is a directory from now on.
    void refuseWrites() {
        _timer.remove();
        QDir().mkpath(_timer.fileName());
    }

  private:
    QTemporaryDir _directory;
    QFile _timer;
};

} // namespace

class LowLatencyTest : public QObject {
    Q_OBJECT
  private Q_SLOTS:
    void aTimerIsSetToOneMillisecond_data() {
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<bool>("isObtained");
        QTest::addColumn<QByteArray>("after");
        QTest::newRow("a chip's own 16 ms") << "16\n"_ba << true << "1"_ba;
        QTest::newRow("2 ms") << "2\n"_ba << true << "1"_ba;
        QTest::newRow("1 ms already") << "1\n"_ba << false << "1\n"_ba;
        QTest::newRow("no number") << "?\n"_ba << false << "?\n"_ba;
    }

    void aTimerIsSetToOneMillisecond() {
        QFETCH(QByteArray, before);
        QFETCH(bool, isObtained);
        QFETCH(QByteArray, after);
        const PseudoTerminalPair line;
        FakeSysfs sysfs(line.farEnd(), before);
        QCOMPARE(LowLatency::obtain(line.farEnd(), sysfs.path()), isObtained);
        QCOMPARE(sysfs.timer(), after);
    }

    void aTimerThatMayNotBeWrittenLeavesTheFlag() {
        SystemCallFaults faults;
        faults.setSerialFlags(0);
        const PseudoTerminalPair line;
        FakeSysfs sysfs(line.farEnd(), "16\n");
        sysfs.refuseWrites();
        QVERIFY(LowLatency::obtain(line.farEnd(), sysfs.path()));
        QCOMPARE(faults.serialFlags(), lowLatency);
    }

    void aTimerOfOneMillisecondNeedsNoFlag() {
        SystemCallFaults faults;
        faults.setSerialFlags(0);
        const PseudoTerminalPair line;
        const FakeSysfs sysfs(line.farEnd(), "1\n");
        QVERIFY(!LowLatency::obtain(line.farEnd(), sysfs.path()));
        QCOMPARE(faults.serialFlags(), 0);
    }

    void aFlagIsSetBesidesTheOthers_data() {
        QTest::addColumn<int>("before");
        QTest::addColumn<int>("known");
        QTest::addColumn<bool>("isObtained");
        QTest::addColumn<int>("after");
        QTest::newRow("not set before") << 0x10 << ~0 << true << (0x10 | lowLatency);
        QTest::newRow("set before") << (0x10 | lowLatency) << ~0 << false << (0x10 | lowLatency);
        QTest::newRow("taken and forgotten") << 0x10 << ~lowLatency << false << 0x10;
    }

    void aFlagIsSetBesidesTheOthers() {
        QFETCH(int, before);
        QFETCH(int, known);
        QFETCH(bool, isObtained);
        QFETCH(int, after);
        SystemCallFaults faults;
        faults.setSerialFlags(before, known);
        const PseudoTerminalPair line;
        QCOMPARE(LowLatency::obtain(line.farEnd(), u"/nowhere"_s), isObtained);
        QCOMPARE(faults.serialFlags(), after);
    }

    void refusalsAreTaken_data() {
        QTest::addColumn<unsigned long>("request");
        QTest::addColumn<int>("number");
        QTest::addColumn<int>("error");
        for (const int error : {EPERM, EBUSY, EINVAL, EFAULT, ENOTTY, EIO, EBADF}) {
            const auto name = QByteArray::number(error);
            QTest::newRow("reading the flags: " + name) << TIOCGSERIAL * 1UL << 1 << error;
            QTest::newRow("writing the flags: " + name) << TIOCSSERIAL * 1UL << 1 << error;
            QTest::newRow("reading them again: " + name) << TIOCGSERIAL * 1UL << 2 << error;
        }
    }

    void refusalsAreTaken() {
        QFETCH(unsigned long, request);
        QFETCH(int, number);
        QFETCH(int, error);
        PortBench bench;
        bench.faults.setSerialFlags(0);
        bench.faults.failIoctl(request, error, number, number);
        const LogKeeper log;
        QVERIFY(bench.open());
        QCOMPARE(log.lines(), QStringList());
        QVERIFY(bench.line.write("x"));
        QTRY_COMPARE(bench.delegate.received(), "x"_ba);
        QCOMPARE(bench.delegate.count(u"error"_s), 0);
    }

    void aDescriptorWithoutATerminalHasNone() { QVERIFY(!LowLatency::obtain(-1)); }

    void aPortTellsOfItOnce() {
        PortBench bench;
        bench.faults.setSerialFlags(0);
        const LogKeeper log;
        QVERIFY(bench.open());
        QCOMPARE(log.lines(), QStringList{u"Low latency is on for line"_s});
        QCOMPARE(bench.faults.serialFlags(), lowLatency);
        QVERIFY(bench.port->close());
        // As after the adapter was pulled out and plugged in again.
        bench.faults.setSerialFlags(0);
        QVERIFY(bench.open());
        QCOMPARE(bench.faults.serialFlags(), lowLatency);
        QCOMPARE(log.lines().size(), 1);
    }

    void aPortWithoutItSaysNothing() {
        PortBench bench;
        const LogKeeper log;
        QVERIFY(bench.open());
        QCOMPARE(log.lines(), QStringList());
    }
};

static const RegisteredTest<LowLatencyTest> registered;
#include "LowLatencyTest.moc"
