#include "virtualkeyer/pty/PseudoTerminal.h"

#include "tests/support/RegisteredTest.h"

#include <QTest>

#include <array>
#include <fcntl.h>
#include <memory>
#include <poll.h>
#include <string>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

using virtualkeyer::FileDescriptor;
using virtualkeyer::PseudoTerminal;

namespace {

FileDescriptor openPort(const PseudoTerminal& terminal) {
    return FileDescriptor(
        ::open(terminal.slavePath().c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC | O_NONBLOCK));
}

/// What poll() says about a descriptor at this moment.
short stateOf(int descriptor) {
    pollfd state{descriptor, POLLIN, 0};
    ::poll(&state, 1, 0);
    return state.revents;
}

/// Waits until the descriptor has something, at most 5 s.
bool waitFor(int descriptor) {
    pollfd state{descriptor, POLLIN, 0};
    return ::poll(&state, 1, 5000) == 1;
}

std::string readPort(const FileDescriptor& port) {
    std::array<char, 64> buffer{};
    const ssize_t size = ::read(port.number(), buffer.data(), buffer.size());
    return {buffer.data(), size > 0 ? static_cast<std::size_t>(size) : 0};
}

std::string readHost(PseudoTerminal& terminal) {
    std::array<std::uint8_t, 64> buffer{};
    const std::size_t size = terminal.read(buffer);
    return {buffer.begin(), buffer.begin() + static_cast<std::ptrdiff_t>(size)};
}

std::array<std::uint8_t, 1> bytes(char byte) {
    return {static_cast<std::uint8_t>(byte)};
}

} // namespace

class PseudoTerminalTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void aPortThatNobodyHasOpenedIsQuiet();
    void anOpeningIsNoticed();
    void aClosingLeavesThePortQuiet();
    void bytesGoBothWaysUnchanged();
    void bytesWrittenTogetherAreReadTogether();
    void bytesSentBeforeTheApplicationClosedStillArrive();
    void openingAgainCountsAgain();
    void aSecondOpeningBesideTheFirstIsNoNewOne();
    void whatNobodyReadIsGoneAtTheNextOpening();
    void whatWasSentToAClosedPortIsGoneAtTheOpening();
    void exclusiveUseEndsWithTheClosing();
    void lineSettingsEndWithTheClosing();
    void aPortThatNobodyReadsLosesBytesAndDoesNotBlock();
    void theApplicationSeesAHangUpWhenTheKeyerGoes();
};

void PseudoTerminalTest::aPortThatNobodyHasOpenedIsQuiet() {
    PseudoTerminal terminal;
    QVERIFY(terminal.slavePath().starts_with("/dev/pts/"));
    QCOMPARE(stateOf(terminal.master()), 0);
    QCOMPARE(stateOf(terminal.watch()), 0);
    QCOMPARE(readHost(terminal), std::string());
    QCOMPARE(terminal.takeOpenings(), 0);
    QVERIFY(!terminal.isOpenByApplication());
}

void PseudoTerminalTest::anOpeningIsNoticed() {
    PseudoTerminal terminal;
    const FileDescriptor port = openPort(terminal);
    QVERIFY(port.isOpen());
    QVERIFY(waitFor(terminal.watch()));
    QCOMPARE(terminal.takeOpenings(), 1);
    QVERIFY(terminal.isOpenByApplication());
    QCOMPARE(stateOf(terminal.watch()), 0);
}

void PseudoTerminalTest::aClosingLeavesThePortQuiet() {
    PseudoTerminal terminal;
    { const FileDescriptor port = openPort(terminal); }
    QVERIFY(waitFor(terminal.watch()));
    QCOMPARE(terminal.takeOpenings(), 1);
    QVERIFY(!terminal.isOpenByApplication());
    QCOMPARE(stateOf(terminal.master()), 0);
    QCOMPARE(readHost(terminal), std::string());
}

void PseudoTerminalTest::bytesGoBothWaysUnchanged() {
    PseudoTerminal terminal;
    const FileDescriptor port = openPort(terminal);
    QCOMPARE(terminal.takeOpenings(), 1);
    const std::string special{"\0\2\r\n\3\4\x11\x13\x7f\xff", 10};
    QCOMPARE(::write(port.number(), special.data(), special.size()), 10);
    QVERIFY(waitFor(terminal.master()));
    QCOMPARE(readHost(terminal), special);
    for (const char byte : special) {
        terminal.write(bytes(byte));
    }
    std::string received;
    while (received.size() < special.size() && waitFor(port.number())) {
        received += readPort(port);
    }
    QCOMPARE(received, special);
    QCOMPARE(readHost(terminal), std::string());
}

void PseudoTerminalTest::bytesWrittenTogetherAreReadTogether() {
    PseudoTerminal terminal;
    const FileDescriptor port = openPort(terminal);
    QCOMPARE(terminal.takeOpenings(), 1);
    terminal.write(std::array<std::uint8_t, 3>{'E', 0xC0, 0x8A});
    QVERIFY(waitFor(port.number()));
    QCOMPARE(readPort(port), std::string("E\xC0\x8A"));
}

void PseudoTerminalTest::bytesSentBeforeTheApplicationClosedStillArrive() {
    PseudoTerminal terminal;
    {
        const FileDescriptor port = openPort(terminal);
        QCOMPARE(::write(port.number(), "\0\3", 2), 2);
    }
    QVERIFY(waitFor(terminal.master()));
    QCOMPARE(terminal.takeOpenings(), 1);
    QCOMPARE(readHost(terminal), std::string("\0\3", 2));
}

void PseudoTerminalTest::openingAgainCountsAgain() {
    PseudoTerminal terminal;
    for (int i = 0; i < 3; ++i) {
        const FileDescriptor port = openPort(terminal);
        QVERIFY(waitFor(terminal.watch()));
        QCOMPARE(terminal.takeOpenings(), 1);
        QVERIFY(terminal.isOpenByApplication());
    }
    for (int i = 0; i < 2; ++i) {
        const FileDescriptor port = openPort(terminal);
    }
    QCOMPARE(terminal.takeOpenings(), 2);
    QVERIFY(!terminal.isOpenByApplication());
}

void PseudoTerminalTest::aSecondOpeningBesideTheFirstIsNoNewOne() {
    PseudoTerminal terminal;
    const FileDescriptor first = openPort(terminal);
    QCOMPARE(terminal.takeOpenings(), 1);
    {
        const FileDescriptor second = openPort(terminal);
        QCOMPARE(terminal.takeOpenings(), 0);
    }
    QCOMPARE(terminal.takeOpenings(), 0);
    QVERIFY(terminal.isOpenByApplication());
}

void PseudoTerminalTest::whatNobodyReadIsGoneAtTheNextOpening() {
    PseudoTerminal terminal;
    {
        const FileDescriptor port = openPort(terminal);
        QCOMPARE(terminal.takeOpenings(), 1);
        terminal.write(bytes('x'));
        QVERIFY(waitFor(port.number()));
    }
    QCOMPARE(terminal.takeOpenings(), 0);
    const FileDescriptor again = openPort(terminal);
    QCOMPARE(stateOf(again.number()), 0);
    QCOMPARE(terminal.takeOpenings(), 1);
    terminal.write(bytes('y'));
    QVERIFY(waitFor(again.number()));
    QCOMPARE(readPort(again), std::string("y"));
}

void PseudoTerminalTest::whatWasSentToAClosedPortIsGoneAtTheOpening() {
    PseudoTerminal terminal;
    terminal.write(bytes('x'));
    const FileDescriptor port = openPort(terminal);
    QCOMPARE(terminal.takeOpenings(), 1);
    terminal.write(bytes('y'));
    QVERIFY(waitFor(port.number()));
    QCOMPARE(readPort(port), std::string("y"));
}

void PseudoTerminalTest::exclusiveUseEndsWithTheClosing() {
    PseudoTerminal terminal;
    {
        const FileDescriptor port = openPort(terminal);
        QCOMPARE(::ioctl(port.number(), TIOCEXCL), 0);
    }
    QCOMPARE(terminal.takeOpenings(), 1);
    const FileDescriptor again = openPort(terminal);
    QVERIFY(again.isOpen());
    int isExclusive = -1;
    QCOMPARE(::ioctl(again.number(), TIOCGEXCL, &isExclusive), 0);
    QCOMPARE(isExclusive, 0);
}

void PseudoTerminalTest::lineSettingsEndWithTheClosing() {
    PseudoTerminal terminal;
    {
        const FileDescriptor port = openPort(terminal);
        termios settings{};
        QCOMPARE(::tcgetattr(port.number(), &settings), 0);
        settings.c_lflag |= ICANON | ECHO;
        QCOMPARE(::tcsetattr(port.number(), TCSANOW, &settings), 0);
    }
    QCOMPARE(terminal.takeOpenings(), 1);
    const FileDescriptor again = openPort(terminal);
    termios settings{};
    QCOMPARE(::tcgetattr(again.number(), &settings), 0);
    QCOMPARE(settings.c_lflag & (ICANON | ECHO | ISIG), 0U);
}

void PseudoTerminalTest::aPortThatNobodyReadsLosesBytesAndDoesNotBlock() {
    PseudoTerminal terminal;
    const FileDescriptor port = openPort(terminal);
    QCOMPARE(terminal.takeOpenings(), 1);
    for (int i = 0; i < 300'000; ++i) {
        terminal.write(bytes('x'));
    }
    QVERIFY(waitFor(port.number()));
    QVERIFY(!readPort(port).empty());
}

void PseudoTerminalTest::theApplicationSeesAHangUpWhenTheKeyerGoes() {
    auto terminal = std::make_unique<PseudoTerminal>();
    const FileDescriptor port = openPort(*terminal);
    terminal.reset();
    QVERIFY((stateOf(port.number()) & POLLHUP) != 0);
}

static const RegisteredTest<PseudoTerminalTest> registered;
#include "PseudoTerminalTest.moc"
