#include "virtualkeyer/pty/KeyerPort.h"

#include <utility>

namespace virtualkeyer {

KeyerPort::KeyerPort(std::string runtimeDirectory, std::string name)
    : _runtimeDirectory(std::move(runtimeDirectory)), _name(std::move(name)) {
    plugIn();
}

void KeyerPort::plugIn() {
    if (isPluggedIn()) {
        return;
    }
    _terminal.emplace();
    try {
        _link.emplace(_runtimeDirectory, _name, _terminal->slavePath());
    } catch (...) {
        _terminal.reset();
        throw;
    }
}

void KeyerPort::pull() {
    _link.reset();
    _terminal.reset();
}

} // namespace virtualkeyer
