// Settings that were overtaken on their way to the keyer.

#include "keyer/KeyerCommand.h"
#include "keyer/WinKeyerUsb.h"
#include "platform/Platform.h"

/// Output was dropped, and nobody knows how much of it had left the computer: all settings of this
/// link go once more, behind what ends the keying. Each is a command of its own, so that the next
/// stop can overtake them, too.
void WinKeyerUsb::oweSettings() {
    auto& clock = Platform::current().clock();
    if (_settingsTimer) {
        _settingsTimer->invalidate();
    }
    _settingsTimer =
        clock.scheduleTimer(_uncutUntil - clock.now(), this, [this] { sendSettingsAgain(); });
}

void WinKeyerUsb::sendSettingsAgain() {
    if (!_isHostMode) {
        return;
    }
    const auto commands = _sentSettings.commands();
    for (const auto& command : commands) {
        putToWinKeyer(command);
    }
    if (_hscwState != 0 && _highSpeed) {
        putToWinKeyer(KeyerCommand::hscwSpeedChange(KeyerEncoding::lowByte(*_highSpeed)));
    }
}
