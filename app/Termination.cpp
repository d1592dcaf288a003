#include "app/Termination.h"

#include "app/QuorvelDelegate.h"
#include "platform/NotificationCenter.h"

#include <QEvent>
#include <QGuiApplication>

#include <utility>

Termination::Termination(QuorvelDelegate& delegate) : _delegate(delegate) {
    // Without this the toolkit would end the loop by itself, with the link still up.
    QGuiApplication::setQuitOnLastWindowClosed(false);
    qGuiApp->installEventFilter(this);
    QObject::connect(qGuiApp, &QGuiApplication::lastWindowClosed, this, [this] {
        if (_delegate.applicationShouldTerminateAfterLastWindowClosed()) {
            terminate();
        }
    });
    // What is not done when this returns may never be.
    QObject::connect(qGuiApp, &QGuiApplication::commitDataRequest, this, &Termination::terminate,
                     Qt::DirectConnection);
    NotificationCenter::defaultCenter().addObserver(this, NSWorkspaceWillPowerOffNotification,
                                                    [this](const Notification&) { terminate(); });
}

void Termination::terminate() {
    if (!std::exchange(_hasBegun, true)) {
        _delegate.applicationShouldTerminate();
        NotificationCenter::defaultCenter().post(NSApplicationWillTerminateNotification, nullptr);
    }
    QCoreApplication::exit();
}

bool Termination::eventFilter(QObject* watched, QEvent* event) {
    if (watched == qGuiApp && event->type() == QEvent::Quit) {
        terminate();
        return true;
    }
    return QObject::eventFilter(watched, event);
}
