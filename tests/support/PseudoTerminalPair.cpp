#include "tests/support/PseudoTerminalPair.h"

#include <QTest>

#include <array>
#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <stdexcept>
#include <termios.h>
#include <unistd.h>

PseudoTerminalPair::PseudoTerminalPair()
    : _farEnd(::posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC)) {
    std::array<char, 64> name{};
    if (_farEnd < 0 || ::grantpt(_farEnd) != 0 || ::unlockpt(_farEnd) != 0 ||
        ::ptsname_r(_farEnd, name.data(), name.size()) != 0) {
        throw std::runtime_error("There is no pseudo-terminal to be had.");
    }
    _path = QString::fromLocal8Bit(name.data());
    termios line{};
    ::tcgetattr(_farEnd, &line);
    ::cfmakeraw(&line);
    ::tcsetattr(_farEnd, TCSANOW, &line);
}

PseudoTerminalPair::~PseudoTerminalPair() {
    hangUp();
    if (_numberHolder >= 0) {
        ::close(_numberHolder);
    }
}

bool PseudoTerminalPair::write(const QByteArray& data) const {
    return ::write(_farEnd, data.constData(), static_cast<size_t>(data.size())) == data.size();
}

QByteArray PseudoTerminalPair::readAvailable() const {
    QByteArray all;
    std::array<char, 4096> block{};
    for (;;) {
        const auto count = ::read(_farEnd, block.data(), block.size());
        if (count <= 0) {
            return all;
        }
        all.append(block.data(), count);
    }
}

QByteArray PseudoTerminalPair::read(qsizetype count, std::chrono::milliseconds limit) const {
    QByteArray all;
    static_cast<void>(QTest::qWaitFor(
        [&] {
            all += readAvailable();
            return all.size() >= count;
        },
        static_cast<int>(limit.count())));
    return all;
}

void PseudoTerminalPair::hangUp() {
    if (_farEnd >= 0) {
        _numberHolder = ::open(qPrintable(_path), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
        ::close(_farEnd);
        _farEnd = -1;
    }
}
