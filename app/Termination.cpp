#include "app/Termination.h"

#include "app/QuorvelDelegate.h"
#include "keyer/WinKeyerUsb.h"
#include "platform/NotificationCenter.h"

#include <QEvent>
#include <QGuiApplication>
#include <QSignalBlocker>

#include <cstdlib>
#include <utility>

namespace {

// A callback of exit() is given nothing.
Termination* current = nullptr;

void terminateAtExit() {
    if (current != nullptr) {
        current->terminateWithoutDesktop();
    }
}

void hearExit() {
    [[maybe_unused]] static const int result = std::atexit(terminateAtExit);
}

} // namespace

Termination::Termination(QuorvelDelegate& delegate) : _delegate(delegate) {
    // Without this the toolkit would end the loop by itself, with the link still up.
    QGuiApplication::setQuitOnLastWindowClosed(false);
    qGuiApp->installEventFilter(this);
    QObject::connect(qGuiApp, &QGuiApplication::lastWindowClosed, this, [this] {
        if (_delegate.applicationShouldTerminateAfterLastWindowClosed()) {
            terminate(Cause::Operator);
        }
    });
    // What is not done when this returns may never be.
    QObject::connect(
        qGuiApp, &QGuiApplication::commitDataRequest, this, [this] { terminate(Cause::System); },
        Qt::DirectConnection);
    NotificationCenter::defaultCenter().addObserver(
        this, NSWorkspaceWillPowerOffNotification,
        [this](const Notification&) { terminate(Cause::System); });
    current = this;
    hearExit();
}

Termination::~Termination() {
    current = nullptr;
}

void Termination::terminate(Cause cause) {
    if (!std::exchange(_hasBegun, true)) {
        Q_EMIT begun(cause);
        _delegate.applicationShouldTerminate();
        Q_EMIT hasLeftKeyer();
        NotificationCenter::defaultCenter().post(NSApplicationWillTerminateNotification, nullptr);
    }
    QCoreApplication::exit();
}

void Termination::terminateWithoutDesktop() {
    if (!std::exchange(_hasBegun, true)) {
        auto& engine = _delegate.winKeyerUsb();
        // The windows have nothing left to show it on.
        const QSignalBlocker silence(engine);
        engine.setTuneState(0);
        engine.silence();
        static_cast<void>(engine.disconnect(nullptr));
        Q_EMIT hasLeftKeyer();
    }
}

bool Termination::eventFilter(QObject* watched, QEvent* event) {
    if (watched == qGuiApp && event->type() == QEvent::Quit) {
        terminate(Cause::Operator);
        return true;
    }
    return QObject::eventFilter(watched, event);
}
