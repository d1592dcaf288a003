#include "app/FreedMemory.h"

#include "keyer/WinKeyerUsb.h"
#include "platform/Platform.h"

#include <malloc.h>

FreedMemory::FreedMemory(const WinKeyerUsb& engine) : _engine(engine) {
    QObject::connect(&engine, &WinKeyerUsb::keyboardBufferChanged, this, &FreedMemory::follow);
}

void FreedMemory::follow() {
    const auto length = _engine.keyboardBuffer().size();
    _wasLong = _wasLong || length > longText;
    if (_wasLong && length == 0) {
        _wasLong = false;
        _timer = Platform::current().clock().scheduleTimer(
            rest, this, [] { static_cast<void>(::malloc_trim(0)); });
    }
}
