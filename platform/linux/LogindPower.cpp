#include "platform/linux/LogindPower.h"

#include "platform/NotificationCenter.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView service{"org.freedesktop.login1"};
constexpr QLatin1StringView path{"/org/freedesktop/login1"};
constexpr QLatin1StringView interface { "org.freedesktop.login1.Manager" };

} // namespace

LogindPower::LogindPower(const QDBusConnection& bus) : _bus(bus) {
    if (!_bus.isConnected()) {
        return;
    }
    connect(&_watcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString&, const QString&, const QString& owner) {
                serviceHasGone();
                if (!owner.isEmpty()) {
                    requestInhibitor();
                }
            });
    _watcher.setConnection(_bus);
    _watcher.addWatchedService(service);
    _bus.connect(service, path, interface, u"PrepareForSleep"_s, this, SLOT(prepareForSleep(bool)));
    _bus.connect(service, path, interface, u"PrepareForShutdown"_s, this,
                 SLOT(prepareForShutdown(bool)));
    requestInhibitor();
}

LogindPower::~LogindPower() = default;

void LogindPower::prepareForSleep(bool isStart) {
    if (isStart) {
        sleep();
    } else {
        wake();
    }
}

/// An end that was called off leaves the machine awake, and the lock is wanted again.
void LogindPower::prepareForShutdown(bool isStart) {
    if (!isStart) {
        requestInhibitor();
        return;
    }
    NotificationCenter::defaultCenter().post(NSWorkspaceWillPowerOffNotification, this);
    dropInhibitor();
}

void LogindPower::sleep() {
    _isAsleep = true;
    NotificationCenter::defaultCenter().post(NSWorkspaceWillSleepNotification, this);
    // An observer may have run an event loop, and slept through it all.
    if (_isAsleep) {
        dropInhibitor();
    }
}

void LogindPower::wake() {
    _isAsleep = false;
    requestInhibitor();
    NotificationCenter::defaultCenter().post(NSWorkspaceDidWakeNotification, this);
}

// The service is not to be started for this: where it does not run, nothing announces a sleep.
void LogindPower::requestInhibitor() {
    auto call = QDBusMessage::createMethodCall(service, path, interface, u"Inhibit"_s);
    call.setAutoStartService(false);
    call.setArguments(
        {u"sleep:shutdown"_s, u"Quorvel"_s, u"Serial ports are being closed"_s, u"delay"_s});
    _request = std::make_unique<QDBusPendingCallWatcher>(_bus.asyncCall(call));
    connect(_request.get(), &QDBusPendingCallWatcher::finished, this,
            [this](const QDBusPendingCallWatcher* request) { takeInhibitor(*request); });
}

// The request goes with its reply, which would else hold the descriptor too.
void LogindPower::takeInhibitor(const QDBusPendingCallWatcher& request) {
    const QDBusPendingReply<QDBusUnixFileDescriptor> reply = request;
    if (!reply.isError()) {
        _inhibitor = reply.value();
    }
    _request.release()->deleteLater();
}

void LogindPower::dropInhibitor() {
    _request.reset();
    _inhibitor = {};
}

// Nobody is left who would announce the end of a sleep.
void LogindPower::serviceHasGone() {
    dropInhibitor();
    if (std::exchange(_isAsleep, false)) {
        NotificationCenter::defaultCenter().post(NSWorkspaceDidWakeNotification, this);
    }
}
