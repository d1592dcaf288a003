#include "tests/support/RegisteredTest.h"
#include "virtualkeyer/pty/PseudoTerminal.h"

#include <QTest>

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <string>
#include <sys/ioctl.h>

using virtualkeyer::FileDescriptor;
using virtualkeyer::PseudoTerminal;

// No watches are left on this system.
int wrappedInotifyInit(int flags) asm("__wrap_inotify_init1");
int wrappedInotifyInit(int) {
    errno = EMFILE;
    return -1;
}

class UnwatchedTerminalTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void bytesGoBothWays();
    void anExclusiveOpeningIsNoticed();
};

namespace {

FileDescriptor openPort(const PseudoTerminal& terminal) {
    return FileDescriptor(
        ::open(terminal.slavePath().c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC | O_NONBLOCK));
}

std::array<std::uint8_t, 1> bytes(char byte) {
    return {static_cast<std::uint8_t>(byte)};
}

} // namespace

void UnwatchedTerminalTest::bytesGoBothWays() {
    PseudoTerminal terminal;
    QVERIFY(terminal.watch() < 0);
    const auto port = openPort(terminal);
    QCOMPARE(::write(port.number(), "a", 1), 1);
    std::array<std::uint8_t, 8> buffer{};
    QVERIFY(QTest::qWaitFor([&] { return terminal.read(buffer) == 1; }));
    QCOMPARE(buffer.front(), std::uint8_t{'a'});
    terminal.write(bytes('b'));
    char byte = 0;
    QVERIFY(QTest::qWaitFor([&] { return ::read(port.number(), &byte, 1) == 1; }));
    QCOMPARE(byte, 'b');
}

void UnwatchedTerminalTest::anExclusiveOpeningIsNoticed() {
    PseudoTerminal terminal;
    QCOMPARE(terminal.takeOpenings(), 0);
    const auto port = openPort(terminal);
    QCOMPARE(::ioctl(port.number(), TIOCEXCL), 0);
    QCOMPARE(terminal.takeOpenings(), 1);
    QVERIFY(terminal.isOpenByApplication());
    QCOMPARE(terminal.takeOpenings(), 0);
    QCOMPARE(::ioctl(port.number(), TIOCNXCL), 0);
    QCOMPARE(terminal.takeOpenings(), 0);
    QVERIFY(!terminal.isOpenByApplication());
}

static const RegisteredTest<UnwatchedTerminalTest> registered;
#include "UnwatchedTerminalTest.moc"
