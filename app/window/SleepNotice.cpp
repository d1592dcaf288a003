#include "app/window/SleepNotice.h"

#include "app/window/NoticeStrip.h"
#include "keyer/WinKeyerUsb.h"
#include "platform/NotificationCenter.h"

#include <utility>

SleepNotice::SleepNotice(const WinKeyerUsb& engine, NoticeStrip& strip, QObject* parent)
    : QObject(parent) {
    QObject::connect(&engine, &WinKeyerUsb::sendingCutShort, this, [this] { _hasStopped = true; });
    QObject::connect(&engine, &WinKeyerUsb::activityChanged, this, [this, &engine] {
        // The port was closed because it went, of which the operator is told in another way.
        _hasStopped = _hasStopped && engine.isConnected();
    });
    NotificationCenter::defaultCenter().addObserver(
        this, NSWorkspaceDidWakeNotification, [this, &strip](const Notification&) {
            if (std::exchange(_hasStopped, false)) {
                strip.say(tr("The computer went to sleep, which stopped the sending."));
            }
        });
}
