#include "serial/LineSettings.h"

#include "platform/Uninterrupted.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <limits>
#include <utility>

namespace {

using StandardSpeed = std::pair<unsigned long, speed_t>;

constexpr std::array standardSpeeds{
    StandardSpeed{0, B0},           StandardSpeed{50, B50},
    StandardSpeed{75, B75},         StandardSpeed{110, B110},
    StandardSpeed{134, B134},       StandardSpeed{150, B150},
    StandardSpeed{200, B200},       StandardSpeed{300, B300},
    StandardSpeed{600, B600},       StandardSpeed{1200, B1200},
    StandardSpeed{1800, B1800},     StandardSpeed{2400, B2400},
    StandardSpeed{4800, B4800},     StandardSpeed{9600, B9600},
    StandardSpeed{19200, B19200},   StandardSpeed{38400, B38400},
    StandardSpeed{57600, B57600},   StandardSpeed{115200, B115200},
    StandardSpeed{230400, B230400}, StandardSpeed{460800, B460800},
    StandardSpeed{500000, B500000}, StandardSpeed{576000, B576000},
    StandardSpeed{921600, B921600}, StandardSpeed{1000000, B1000000},
};

std::optional<speed_t> standardSpeed(unsigned long baudRate) {
    const auto found = std::find_if(standardSpeeds.begin(), standardSpeeds.end(),
                                    [=](const auto& each) { return each.first == baudRate; });
    return found != standardSpeeds.end() ? std::optional(found->second) : std::nullopt;
}

int readRecord(int descriptor, termios& record) {
    return uninterrupted([&] { return ::tcgetattr(descriptor, &record); });
}

// A wait for output to go out may be interrupted.
int writeRecord(int descriptor, int when, const termios& record) {
    return uninterrupted([&] { return ::tcsetattr(descriptor, when, &record); });
}

void setFlag(tcflag_t& flags, tcflag_t flag, bool isSet) {
    flags = isSet ? flags | flag : flags & ~flag;
}

// Without parity PARODD stays as it was.
void setParity(termios& record, unsigned parity) {
    setFlag(record.c_cflag, PARENB, parity != 0);
    if (parity != 0) {
        setFlag(record.c_cflag, PARODD, parity == 1);
    }
}

int setNonStandardSpeed(int descriptor, unsigned long baudRate) {
    if (baudRate > std::numeric_limits<unsigned>::max()) {
        errno = EINVAL;
        return -1;
    }
    const auto speed = static_cast<unsigned>(baudRate);
    return LineSpeed::setNonStandard(descriptor, {speed, speed});
}

} // namespace

void LineSettings::edit(termios& record, const LineSettings& settings) {
    ::cfmakeraw(&record);
    record.c_cc[VMIN] = 1;
    record.c_cc[VTIME] = 2;
    setFlag(record.c_cflag, CS8, true);
    setParity(record, settings.parity);
    setFlag(record.c_cflag, CSTOPB, settings.numberOfStopBits >= 2);
    setFlag(record.c_lflag, ECHO, settings.echoesReceivedData);
    setFlag(record.c_cflag, CRTSCTS, settings.usesRtsCts);
    setFlag(record.c_cflag, CREAD | CLOCAL | HUPCL, true);
    setFlag(record.c_lflag, ICANON | ISIG, false);
    if (const auto speed = standardSpeed(settings.baudRate)) {
        // An input speed of its own, as a rate without a constant may leave one, would stay.
        setFlag(record.c_cflag, CIBAUD, false);
        ::cfsetspeed(&record, *speed);
    }
}

int LineSettings::apply(const LineSettings& settings, int descriptor) {
    termios record = {};
    if (const int result = readRecord(descriptor, record); result != 0) {
        return result;
    }
    edit(record, settings);
    if (const int result = writeRecord(descriptor, TCSANOW, record); result != 0) {
        return result;
    }
    return standardSpeed(settings.baudRate) ? 0
                                            : setNonStandardSpeed(descriptor, settings.baudRate);
}

SavedLineSettings::SavedLineSettings(int descriptor) {
    termios record = {};
    if (readRecord(descriptor, record) == 0) {
        _record = record;
        _speed = LineSpeed::current(descriptor);
    }
}

void SavedLineSettings::restore(int descriptor) const {
    termios record = {};
    if (readRecord(descriptor, record) == 0) {
        setFlag(record.c_cflag, CRTSCTS, false);
        static_cast<void>(writeRecord(descriptor, TCSANOW, record));
    }
    if (_record) {
        static_cast<void>(writeRecord(descriptor, TCSADRAIN, *_record));
    }
    // The record does not hold a speed that has no constant.
    if (_speed && LineSpeed::current(descriptor) != _speed) {
        static_cast<void>(LineSpeed::setNonStandard(descriptor, *_speed));
    }
}
