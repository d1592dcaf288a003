#include "virtualkeyer/window/KeyerThread.h"

#include "virtualkeyer/pty/SystemFailure.h"
#include "virtualkeyer/script/ScriptError.h"

#include <sys/eventfd.h>

namespace virtualkeyer {

KeyerThread::KeyerThread(Session& session)
    : _session(session), _stop(checked(::eventfd(0, EFD_CLOEXEC), "cannot stop the keyer later")) {}

KeyerThread::~KeyerThread() {
    end();
}

void KeyerThread::start() {
    _thread = std::thread([this] { run(); });
}

ExitStatus KeyerThread::end() {
    if (_thread.joinable()) {
        const std::uint64_t one = 1;
        checked(static_cast<int>(::write(_stop.number(), &one, sizeof one)),
                "cannot stop the keyer");
        _thread.join();
        if (_status == ExitStatus::Success) {
            _status = _session.exitStatus();
        }
    }
    return _status;
}

void KeyerThread::run() {
    try {
        _session.run(_stop.number());
    } catch (const ScriptError& error) {
        _status = ExitStatus::BadOptions;
        complain(error.what());
        Q_EMIT failed(QString::fromUtf8(error.what()));
    } catch (const std::exception& error) {
        _status = ExitStatus::Failure;
        complain(error.what());
        Q_EMIT failed(QString::fromUtf8(error.what()));
    }
}

} // namespace virtualkeyer
