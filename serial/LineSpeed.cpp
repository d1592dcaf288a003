#include "serial/LineSpeed.h"

// These headers are the kernel's own and clash with <termios.h>, hence this file.
#include <asm/ioctls.h>
#include <asm/termbits.h>

#include <sys/ioctl.h>

namespace LineSpeed {

std::optional<Speed> current(int descriptor) {
    termios2 record = {};
    if (::ioctl(descriptor, TCGETS2, &record) != 0) {
        return {};
    }
    return Speed{record.c_ispeed, record.c_ospeed};
}

int setNonStandard(int descriptor, Speed speed) {
    termios2 record = {};
    if (::ioctl(descriptor, TCGETS2, &record) != 0) {
        return -1;
    }
    constexpr unsigned speedBits = CBAUD | (CBAUD << IBSHIFT);
    record.c_cflag = (record.c_cflag & ~speedBits) | BOTHER | (BOTHER << IBSHIFT);
    record.c_ispeed = speed.input;
    record.c_ospeed = speed.output;
    return ::ioctl(descriptor, TCSETS2, &record);
}

} // namespace LineSpeed
