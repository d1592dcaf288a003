#include "app/KeyGuard.h"

#include "keyer/WinKeyerUsb.h"
#include "platform/Log.h"
#include "platform/Platform.h"
#include "platform/linux/KeyGuardProcess.h"
#include "serial/ORSSerialPort.h"

#include <system_error>

using namespace Qt::StringLiterals;

namespace {

/// Several signs fit into the silence that the guard puts up with.
constexpr Clock::Duration signInterval = silenceLimit / 6;

QString noGuard() {
    return KeyGuard::tr(
        "The key guard does not run: should Quorvel crash or hang while tune is on, "
        "the key stays down. Install Quorvel again.");
}

} // namespace

KeyGuard::KeyGuard(WinKeyerUsb& engine, const QString& program)
    : _engine(engine), _program(program) {
    connect(&_engine, &WinKeyerUsb::activityChanged, this, &KeyGuard::followLink);
    connect(&_engine, &WinKeyerUsb::tuneStateChanged, this, &KeyGuard::followTune);
    connect(&_engine, &WinKeyerUsb::willLoadMemory, this,
            [this] { tell(GuardMessage::LoadingMemory); });
    connect(&_engine, &WinKeyerUsb::isLoadingMemoryChanged, this, [this] {
        if (!_engine.isLoadingMemory()) {
            tell(GuardMessage::NotLoadingMemory);
        }
    });
    followLink();
}

KeyGuard::~KeyGuard() {
    end();
}

int KeyGuard::processIdentifier() const {
    return _guard ? _guard->processIdentifier() : 0;
}

void KeyGuard::followLink() {
    const auto port = _engine.winKeyerSerialPort();
    if (port == _port) {
        return;
    }
    if (_port) {
        _port->disconnect(this);
        end();
    }
    _port = port;
    if (_port) {
        connect(_port.get(), &ORSSerialPort::willClose, this, &KeyGuard::end);
        connect(_port.get(), &ORSSerialPort::isOpenChanged, this, &KeyGuard::followOpening);
        followOpening();
    }
}

void KeyGuard::followOpening() {
    if (_port->isOpen() && !_guard) {
        _isReplacement = false;
        start();
    }
}

void KeyGuard::start() {
    try {
        _guard = std::make_unique<KeyGuardProcess>(_program, _port->fileDescriptor());
    } catch (const std::system_error& error) {
        logLine(u"The key guard %1 does not start: %2"_s.arg(
            _program, QString::fromStdString(error.code().message())));
        Q_EMIT hasNoGuard(noGuard());
        return;
    }
    connect(_guard.get(), &KeyGuardProcess::ended, this, &KeyGuard::guardHasEnded);
    if (_engine.isLoadingMemory()) {
        tell(GuardMessage::LoadingMemory);
    }
    followTune();
}

void KeyGuard::end() {
    _guard.reset();
}

void KeyGuard::tell(GuardMessage message) {
    if (_guard) {
        _guard->tell(message);
    }
}

/// The guard hears of the end of a tune when key up has been written: the one who switches tune off
/// writes it right after.
void KeyGuard::followTune() {
    if (_engine.tuneState() != 0) {
        giveSign();
    } else if (_nextSign) {
        _nextSign->invalidate();
        _nextSign = Platform::current().clock().scheduleTimer({}, this, [this] {
            if (_engine.tuneState() == 0) {
                tell(GuardMessage::NotTuning);
            }
        });
    }
}

void KeyGuard::giveSign() {
    if (_nextSign) {
        _nextSign->invalidate();
    }
    tell(GuardMessage::Tuning);
    _nextSign = Platform::current().clock().scheduleTimer(signInterval, this, [this] {
        if (_engine.tuneState() != 0) {
            giveSign();
        }
    });
}

/// A guard that something else ended is replaced, but not again and again.
void KeyGuard::guardHasEnded(std::optional<GuardEnd> how) {
    _guard.release()->deleteLater();
    if (how == GuardEnd::PortLost) {
        return;
    }
    if (how == GuardEnd::AfterSilence) {
        logLine(u"The key guard let go of the key: there was no sign of life while tuning"_s);
        _engine.setTuneState(0);
        Q_EMIT hasLetGo(
            tr("Quorvel did not react for %1 s while tune was on, and the key was let go of.")
                .arg(std::chrono::ceil<std::chrono::seconds>(silenceLimit).count()));
        return;
    }
    logLine(u"The key guard has ended"_s);
    if (!_port || !_port->isOpen()) {
        return;
    }
    if (std::exchange(_isReplacement, true)) {
        Q_EMIT hasNoGuard(noGuard());
        return;
    }
    start();
}
