// Every system call of the layer, failing with every error that its manual lists, at the first
// call and at later ones.

#include "tests/serial/PortBench.h"
#include "tests/support/LogKeeper.h"
#include "tests/support/RegisteredTest.h"

#include <QElapsedTimer>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/ioctl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

// The kernel's header that has these by name clashes with <termios.h>.
using KernelRecord = std::array<char, 44>;
constexpr unsigned long getRecord = _IOR('T', 0x2A, KernelRecord);
constexpr unsigned long setRecord = _IOW('T', 0x2B, KernelRecord);

using Errors = QList<int>;

const Errors openErrors{EACCES,  EBUSY,   EDQUOT,     EEXIST,       EFAULT, EFBIG,     EINVAL,
                        EIO,     EISDIR,  ELOOP,      EMFILE,       ENFILE, ENODEV,    ENOENT,
                        ENOMEM,  ENOSPC,  ENXIO,      ENAMETOOLONG, EPERM,  EOVERFLOW, EROFS,
                        ENOTDIR, ETXTBSY, EOPNOTSUPP, EWOULDBLOCK};
const Errors fcntlErrors{EACCES, EAGAIN, EBADF, EINVAL, EPERM, EIO};
const Errors flockErrors{EBADF, EINVAL, ENOLCK};
const Errors attributeErrors{EBADF, EINVAL, ENOTTY, EIO};
const Errors ioctlErrors{EBADF, EFAULT, EINVAL, ENOTTY, EIO, EPERM};
const Errors pollErrors{EFAULT, EINTR, EINVAL, ENOMEM};
const Errors readErrors{EAGAIN, EBADF, EFAULT, EINTR, EINVAL, EIO, EISDIR};
const Errors writeErrors{EAGAIN, EBADF,  EDESTADDRREQ, EDQUOT, EFAULT, EFBIG,
                         EINTR,  EINVAL, EIO,          ENOSPC, EPERM,  EPIPE};
const Errors closeErrors{EBADF, EINTR, EIO, ENOSPC, EDQUOT};

/// One of the system's calls as a row names it; `request` is that of an ioctl, else 0.
struct Call {
    const char* name;
    SystemCall call;
    unsigned long request = 0;
};

/// A failure of the `number`th call from now on, once.
void inject(PortBench& bench, SystemCall call, unsigned long request, int error, int number) {
    if (call == SystemCall::Ioctl) {
        bench.faults.failIoctl(request, error, number, number);
    } else {
        bench.faults.fail(call, error, number, number);
    }
}

void columns() {
    QTest::addColumn<SystemCall>("call");
    QTest::addColumn<unsigned long>("request");
    QTest::addColumn<int>("error");
    QTest::addColumn<int>("number");
}

void addRows(const Call& call, const Errors& errors, const QList<int>& numbers) {
    for (const int error : errors) {
        for (const int number : numbers) {
            QTest::addRow("%s, %s, call %d", call.name, ::strerrorname_np(error), number)
                << call.call << call.request << error << number;
        }
    }
}

/// What the kernel says of a terminal's exclusive mode.
struct Lock {
    bool isOn;
    /// Root passes it.
    bool keepsThisUserOut;
};

Lock lockOn(const QString& path) {
    const int descriptor = ::open(path.toLocal8Bit().constData(), O_RDWR | O_NOCTTY | O_CLOEXEC);
    if (descriptor < 0) {
        return {.isOn = errno == EBUSY, .keepsThisUserOut = true};
    }
    int isOn = 0;
    ::ioctl(descriptor, TIOCGEXCL, &isOn);
    ::close(descriptor);
    return {.isOn = isOn != 0, .keepsThisUserOut = false};
}

} // namespace

class ORSSerialPortFailureTableTest : public QObject {
    Q_OBJECT
  private Q_SLOTS:
    void anOpeningThatFails_data() {
        columns();
        // The second call is that of a second opening, after one that worked.
        addRows({"open", SystemCall::Open}, openErrors, {1, 2});
        addRows({"flock", SystemCall::Flock}, {EWOULDBLOCK}, {1, 2});
        addRows({"opening for input", SystemCall::OpenAt}, openErrors, {1, 2});
        addRows({"exclusive mode", SystemCall::Ioctl, TIOCEXCL}, ioctlErrors, {1, 2});
    }

    void anOpeningThatFails() {
        QFETCH(SystemCall, call);
        QFETCH(unsigned long, request);
        QFETCH(int, error);
        QFETCH(int, number);
        PortBench bench;
        inject(bench, call, request, error, number);
        if (number == 2) {
            QVERIFY(bench.open());
            QVERIFY(bench.port->close());
        }
        bench.port->open();
        QVERIFY(!bench.port->isOpen());
        QVERIFY(!bench.port->sendData("x"));
        QTRY_COMPARE(bench.delegate.count(u"error"_s), 1);
        verifyReport(bench);
        QCOMPARE(bench.delegate.count(u"opened"_s), number - 1);
        bench.port->open();
        verifyTransfer(bench);
        QCOMPARE(bench.delegate.count(u"error"_s), 1);
    }

    void anOpeningThatGoesOn_data() {
        columns();
        addRows({"open", SystemCall::Open}, {EINTR}, {1, 2});
        addRows({"opening for input", SystemCall::OpenAt}, {EINTR}, {1, 2});
        addRows({"flock", SystemCall::Flock}, flockErrors + Errors{EINTR}, {1, 2});
        addRows({"fcntl", SystemCall::Fcntl}, fcntlErrors, {1, 2});
        addRows({"saving the settings", SystemCall::TcGetAttr}, attributeErrors, {1});
        addRows({"reading the settings", SystemCall::TcGetAttr}, {EINTR}, {1, 2});
        addRows({"writing the settings", SystemCall::TcSetAttr}, {EINTR}, {1});
        addRows({"saving the speed", SystemCall::Ioctl, getRecord}, ioctlErrors, {1});
        addRows({"reading the driver's flags", SystemCall::Ioctl, TIOCGSERIAL}, ioctlErrors, {1});
    }

    void anOpeningThatGoesOn() {
        QFETCH(SystemCall, call);
        QFETCH(unsigned long, request);
        QFETCH(int, error);
        QFETCH(int, number);
        PortBench bench;
        const LogKeeper log;
        inject(bench, call, request, error, number);
        bench.port->open();
        if (number == 2 && call != SystemCall::TcGetAttr) {
            QVERIFY(bench.port->close());
            bench.port->open();
        }
        verifyTransfer(bench);
        if (error == EINTR && call != SystemCall::Ioctl) {
            QVERIFY(bench.faults.count(call) > number);
        }
        QCOMPARE(bench.delegate.count(u"error"_s), 0);
        QCOMPARE(log.lines(), QStringList());
    }

    void settingsThatAreRefused_data() {
        columns();
        QTest::addColumn<bool>("isLater");
        for (const int error : attributeErrors) {
            const auto* const name = ::strerrorname_np(error);
            QTest::addRow("reading at open, %s", name)
                << SystemCall::TcGetAttr << 0UL << error << 2 << false;
            QTest::addRow("writing at open, %s", name)
                << SystemCall::TcSetAttr << 0UL << error << 1 << false;
            QTest::addRow("reading later, %s", name)
                << SystemCall::TcGetAttr << 0UL << error << 1 << true;
            QTest::addRow("writing later, %s", name)
                << SystemCall::TcSetAttr << 0UL << error << 1 << true;
        }
        for (const int error : ioctlErrors) {
            const auto* const name = ::strerrorname_np(error);
            QTest::addRow("reading an odd rate later, %s", name)
                << SystemCall::Ioctl << getRecord << error << 1 << true;
            QTest::addRow("writing an odd rate later, %s", name)
                << SystemCall::Ioctl << setRecord << error << 1 << true;
        }
    }

    void settingsThatAreRefused() {
        QFETCH(SystemCall, call);
        QFETCH(unsigned long, request);
        QFETCH(int, error);
        QFETCH(int, number);
        QFETCH(bool, isLater);
        PortBench bench;
        const LogKeeper log;
        if (isLater) {
            QVERIFY(bench.open());
        }
        inject(bench, call, request, error, number);
        if (isLater) {
            bench.port->setBaudRate(12345);
        } else {
            bench.port->open();
        }
        QCOMPARE(log.lines(), QStringList{u"Unable to set options on line: -1"_s});
        verifyTransfer(bench);
        QCOMPARE(bench.delegate.count(u"error"_s), 0);
    }

    void modemLinesThatCannotBeHad_data() {
        columns();
        addRows({"reading at open", SystemCall::Ioctl, TIOCMGET}, ioctlErrors, {1});
        // The calls between are those of the output lines, whose reading may fail.
        addRows({"reading while open", SystemCall::Ioctl, TIOCMGET}, ioctlErrors, {6, 9});
        addRows({"writing at open", SystemCall::Ioctl, TIOCMSET}, ioctlErrors, {1, 2});
    }

    void modemLinesThatCannotBeHad() {
        QFETCH(SystemCall, call);
        QFETCH(unsigned long, request);
        QFETCH(int, error);
        QFETCH(int, number);
        PortBench bench;
        // Lines that are wanted and those that the device has differ: all of them are written.
        bench.faults.setModemWord(TIOCM_DTR);
        bench.port->setRTS(1);
        inject(bench, call, request, error, number);
        bench.port->open();
        QTRY_COMPARE(bench.delegate.count(u"error"_s), 1);
        verifyReport(bench);
        verifyTransfer(bench);
        QVERIFY(bench.port->RTS() != 0);
        bench.faults.setModemWord(TIOCM_CTS);
        QTRY_VERIFY(bench.port->CTS());
        QCOMPARE(bench.delegate.count(u"error"_s), 1);
    }

    void anOutputLineThatIsRefused_data() {
        columns();
        addRows({"writing", SystemCall::Ioctl, TIOCMSET}, ioctlErrors, {1, 2});
    }

    void anOutputLineThatIsRefused() {
        QFETCH(SystemCall, call);
        QFETCH(unsigned long, request);
        QFETCH(int, error);
        QFETCH(int, number);
        PortBench bench;
        QVERIFY(bench.open());
        inject(bench, call, request, error, number);
        bench.port->setRTS(1);
        bench.port->setDTR(1);
        QCOMPARE(bench.port->RTS(), 1);
        QCOMPARE(bench.port->DTR(), 1);
        QCOMPARE(bench.delegate.count(u"error"_s), 0);
        QTRY_COMPARE(bench.delegate.count(u"error"_s), 1);
        verifyReport(bench);
        verifyTransfer(bench);
    }

    void aReaderThatGoesOn_data() {
        columns();
        QTest::addColumn<bool>("isReported");
        for (const int number : {1, 3}) {
            addReaderRows({"poll", SystemCall::Poll}, pollErrors, number, true);
            addReaderRows({"read", SystemCall::Read}, readErrors, number, false);
        }
    }

    /// Neither ends for it, nor spins: each failed pass takes its 100 ms.
    void aReaderThatGoesOn() {
        QFETCH(SystemCall, call);
        QFETCH(int, error);
        QFETCH(int, number);
        QFETCH(bool, isReported);
        constexpr int failures = 2;
        PortBench bench;
        const auto count = [&] { return bench.faults.count(call); };
        bench.faults.fail(call, error, number, number + failures - 1);
        QVERIFY(bench.open());
        QByteArray sent;
        const auto send = [&] {
            sent += 'x';
            return bench.line.write("x");
        };
        // Bytes one by one, until the calls that work are over.
        for (int byte = 1; byte < number; ++byte) {
            QVERIFY(send());
            QTRY_COMPARE(bench.delegate.received(), sent);
        }
        QElapsedTimer time;
        time.start();
        const auto before = count();
        QVERIFY(send());
        QTRY_COMPARE(bench.delegate.received(), sent);
        QTRY_VERIFY(count() >= number + failures);
        QVERIFY2(count() - before <= time.elapsed() / 100 + failures + 6,
                 qPrintable(QString::number(count() - before)));
        QCOMPARE(bench.delegate.count(u"error"_s), isReported ? failures : 0);
        verifyTransfer(bench);
    }

    void aWriteThatFails_data() {
        columns();
        addRows({"write", SystemCall::Write}, writeErrors, {1, 2});
    }

    void aWriteThatFails() {
        QFETCH(SystemCall, call);
        QFETCH(int, error);
        QFETCH(int, number);
        PortBench bench;
        QVERIFY(bench.open());
        bench.faults.fail(call, error, number, number);
        if (number == 2) {
            QVERIFY(bench.port->sendData("a"));
            QCOMPARE(bench.line.read(1), "a"_ba);
        }
        QVERIFY(!bench.port->sendData("b"));
        QCOMPARE(bench.delegate.count(u"error"_s), 1);
        QCOMPARE(bench.delegate.errors().constFirst().code, error);
        verifyReport(bench);
        QVERIFY(bench.port->isOpen());
        QVERIFY(bench.port->sendData("c"));
        QCOMPARE(bench.line.read(2), "bc"_ba);
        verifyTransfer(bench);
        QCOMPARE(bench.delegate.count(u"error"_s), 1);
    }

    void aCloseThatGoesOn_data() {
        columns();
        addRows({"reading the settings", SystemCall::TcGetAttr}, attributeErrors + Errors{EINTR},
                {1});
        addRows({"writing the settings", SystemCall::TcSetAttr}, attributeErrors + Errors{EINTR},
                {1, 2});
        addRows({"reading the speed", SystemCall::Ioctl, getRecord}, ioctlErrors, {1});
        addRows({"leaving exclusive mode", SystemCall::Ioctl, TIOCNXCL}, ioctlErrors, {1});
    }

    void aCloseThatGoesOn() {
        QFETCH(SystemCall, call);
        QFETCH(unsigned long, request);
        QFETCH(int, error);
        QFETCH(int, number);
        PortBench bench;
        const LogKeeper log;
        QVERIFY(bench.open());
        const auto restored = [&bench] {
            const auto all = bench.faults.setAttributes();
            return std::count_if(all.begin(), all.end(),
                                 [](const auto& each) { return each.actions == TCSADRAIN; });
        };
        inject(bench, call, request, error, number);
        QVERIFY(bench.port->close());
        QVERIFY(!bench.port->isOpen());
        QCOMPARE(bench.delegate.events(), QStringList({u"opened"_s, u"closed"_s}));
        const bool isRestoreRefused =
            call == SystemCall::TcSetAttr && number == 2 && error != EINTR;
        QCOMPARE(restored(), isRestoreRefused ? 0 : 1);
        const bool isReleaseRefused = call == SystemCall::Ioctl && request == TIOCNXCL;
        // Of a line that has hung up, which that error tells of, there is nothing to leave.
        QCOMPARE(log.lines(), isReleaseRefused && error != EIO
                                  ? QStringList{u"Unable to leave exclusive mode on line"_s}
                                  : QStringList());
        const auto lock = lockOn(bench.line.path());
        QCOMPARE(lock.isOn, isReleaseRefused);
        bench.port->open();
        if (lock.keepsThisUserOut) {
            QVERIFY(!bench.port->isOpen());
            QTRY_COMPARE(bench.delegate.count(u"error"_s), 1);
            verifyReport(bench);
        } else {
            verifyTransfer(bench);
        }
    }

    void aCloseThatIsRefused_data() {
        columns();
        addRows({"close", SystemCall::Close}, closeErrors, {1});
    }

    void aCloseThatIsRefused() {
        QFETCH(int, error);
        PortBench bench;
        QVERIFY(bench.open());
        bench.faults.fail(SystemCall::Close, error, 1, 1);
        QVERIFY(!bench.port->close());
        verifyTransfer(bench);
        QCOMPARE(bench.delegate.events(), QStringList({u"opened"_s, u"data"_s}));
        QVERIFY(bench.port->close());
        QCOMPARE(bench.delegate.events().constLast(), u"closed"_s);
    }

    void aCloseThatTellsOfAnErrorAfterwards_data() { aCloseThatIsRefused_data(); }

    /// The descriptor has gone, and its number may be another file's.
    void aCloseThatTellsOfAnErrorAfterwards() {
        QFETCH(int, error);
        PortBench bench;
        QVERIFY(bench.open());
        bench.faults.failNextCloseAfterwards(error);
        QVERIFY(bench.port->close());
        QVERIFY(!bench.port->isOpen());
        QCOMPARE(bench.delegate.events(), QStringList({u"opened"_s, u"closed"_s}));
        bench.port->open();
        verifyTransfer(bench);
    }

  private:
    static void addReaderRows(const Call& call, const Errors& errors, int number, bool isReported) {
        for (const int error : errors) {
            QTest::addRow("%s, %s, call %d", call.name, ::strerrorname_np(error), number)
                << call.call << call.request << error << number << isReported;
        }
    }

    static void verifyReport(const PortBench& bench) {
        const auto error = bench.delegate.errors().constLast();
        QCOMPARE(error.domain, QString(NSPOSIXErrorDomain));
        QCOMPARE(error.userInfo.value(NSFilePathErrorKey).toString(), bench.line.path());
    }

    /// The port is open, and bytes go both ways.
    static void verifyTransfer(PortBench& bench) {
        QVERIFY(bench.port->isOpen());
        QVERIFY(bench.port->sendData("out"));
        QCOMPARE(bench.line.read(3), "out"_ba);
        const auto before = bench.delegate.received();
        QVERIFY(bench.line.write("in"));
        QTRY_COMPARE(bench.delegate.received(), before + "in");
        QVERIFY(bench.delegate.count(u"opened"_s) > 0);
    }
};

static const RegisteredTest<ORSSerialPortFailureTableTest> registered;
#include "ORSSerialPortFailureTableTest.moc"
