#include "virtualkeyer/pty/TypedPaddle.h"

#include "virtualkeyer/pty/SerialKeyer.h"

#include <unistd.h>

namespace virtualkeyer {

void TypedPaddle::work(SerialKeyer& keyer, bool isReadable, Time now) {
    if (!isReadable) {
        return;
    }
    char contact = ' ';
    if (::read(_descriptor, &contact, 1) <= 0) {
        _descriptor = -1;
    }
    keyer.setPaddle(contact == '.', contact == '-', now);
}

} // namespace virtualkeyer
