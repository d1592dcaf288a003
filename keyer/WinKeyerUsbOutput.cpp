// What is written to the port, and what goes ahead of what waits there.

#include "keyer/KeyerCommand.h"
#include "keyer/LineTime.h"
#include "keyer/WinKeyerUsb.h"
#include "platform/Log.h"
#include "platform/Platform.h"

using namespace Qt::StringLiterals;

namespace {

/// Of a command that is no block of settings or memory.
constexpr qsizetype longestCommand = 4;

/// Key up, clear buffer and host close.
constexpr qsizetype longestEnding = 5;

} // namespace

void WinKeyerUsb::putToWinKeyer(const QByteArray& bytes) {
    if (!isConnected()) {
        return;
    }
    _sentSettings.note(bytes);
    if (!sendToPort(bytes)) {
        logLine(u"putToWinKeyer error: "_s);
    }
    if (KeyerCommand::endsSetSpeed(bytes)) {
        Q_EMIT setSpeedEnded();
    }
}

bool WinKeyerUsb::sendToPort(const QByteArray& bytes) {
    return isConnected() && _winKeyerSerialPort->sendData(bytes);
}

/// Lets what is written next reach the keyer at once: output that waits is dropped, if it is more
/// than a command, and the keyer's parser begins anew. A block that is cut in its midst would have
/// the keyer take the next commands for the rest of it, so one that may be on its way is let out,
/// as is what way was made for a moment ago.
void WinKeyerUsb::makeWay() {
    constexpr int nullCommands = 4;
    if (!isConnected() || isLoadingMemory() || Platform::current().clock().now() < _uncutUntil ||
        _winKeyerSerialPort->outputWaiting() <= longestCommand) {
        return;
    }
    _winKeyerSerialPort->dropOutput();
    for (int i = 0; i < nullCommands; ++i) {
        static_cast<void>(sendToPort(KeyerCommand::nullCommand()));
    }
    keepWhole(nullCommands + longestEnding);
    oweSettings();
}

/// Has no way made while the line sends the next so many bytes.
void WinKeyerUsb::keepWhole(qsizetype bytes) {
    _uncutUntil = Platform::current().clock().now() + lineTime(bytes);
}
