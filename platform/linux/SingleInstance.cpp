#include "platform/linux/SingleInstance.h"

#include "platform/BundleIdentifier.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDeadlineTimer>
#include <QThread>

#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr QLatin1StringView objectPath{"/org/quorvel/Quorvel"};
constexpr QLatin1StringView applicationInterface{"org.freedesktop.Application"};
constexpr QLatin1StringView tokenKey{"activation-token"};
/// What the key was called before there was Wayland.
constexpr QLatin1StringView startupKey{"desktop-startup-id"};

constexpr auto pauseBetweenCalls = 50ms;
/// A program that calls without end shall not keep the window from anything else.
constexpr auto restAfterActivation = 250ms;

QString tokenIn(const QVariantMap& platformData) {
    return platformData.value(tokenKey, platformData.value(startupKey)).toString();
}

} // namespace

SingleInstance::SingleInstance(const QDBusConnection& bus, const QString& lockPath)
    : _bus(bus), _lock(lockPath) {
    _rest.setSingleShot(true);
    _rest.setInterval(restAfterActivation);
    QObject::connect(&_rest, &QTimer::timeout, this, [this] {
        if (_isWanted) {
            activate();
        }
    });
}

SingleInstance::~SingleInstance() {
    leave();
}

void SingleInstance::leave() {
    _hasLeft = true;
    _lock.release();
    if (std::exchange(_hasName, false)) {
        _bus.unregisterObject(objectPath);
        _bus.interface()->unregisterService(bundleIdentifier);
    }
}

SingleInstance::Role SingleInstance::begin(const QString& activationToken,
                                           std::chrono::milliseconds waiting) {
    // The owner may go while it is being called, and then the name is free.
    for (const QDeadlineTimer deadline(waiting);;) {
        if (takePlace()) {
            return Role::First;
        }
        if (!_hasName && _bus.isConnected() &&
            callOwner(activationToken, std::chrono::milliseconds(deadline.remainingTime()))) {
            return Role::Second;
        }
        if (deadline.hasExpired()) {
            return Role::Unanswered;
        }
        QThread::msleep(pauseBetweenCalls.count());
    }
}

/// With the name there may still be one that runs without a bus, which has the lock.
bool SingleInstance::takePlace() {
    return (!_bus.isConnected() || _hasName || takeName()) && _lock.take();
}

/// The object is there before the name, so that whoever finds the name finds it.
bool SingleInstance::takeName() {
    _bus.registerObject(objectPath, this, QDBusConnection::ExportScriptableSlots);
    const auto reply = _bus.interface()->registerService(bundleIdentifier);
    _hasName = reply.isValid() && reply.value() == QDBusConnectionInterface::ServiceRegistered;
    if (!_hasName) {
        _bus.unregisterObject(objectPath);
    }
    return _hasName;
}

bool SingleInstance::callOwner(const QString& activationToken, std::chrono::milliseconds waiting) {
    auto call = QDBusMessage::createMethodCall(bundleIdentifier, objectPath, applicationInterface,
                                               u"Activate"_s);
    call.setAutoStartService(false);
    QVariantMap platformData;
    if (!activationToken.isEmpty()) {
        platformData = {{tokenKey, activationToken}, {startupKey, activationToken}};
    }
    call.setArguments({platformData});
    const auto reply = _bus.call(call, QDBus::Block, static_cast<int>(waiting.count()));
    return reply.type() == QDBusMessage::ReplyMessage;
}

/// A call that had come before the place was left arrives afterwards all the same.
void SingleInstance::comeToFront(const QVariantMap& platformData) {
    if (_hasLeft) {
        sendErrorReply(QDBusError::Failed, u"The program is ending."_s);
        return;
    }
    _token = tokenIn(platformData);
    _isWanted = true;
    if (!_rest.isActive()) {
        activate();
    }
}

void SingleInstance::activate() {
    _isWanted = false;
    _rest.start();
    Q_EMIT activated(_token);
}

void SingleInstance::Activate(const QVariantMap& platformData) {
    comeToFront(platformData);
}

void SingleInstance::Open(const QStringList&, const QVariantMap& platformData) {
    comeToFront(platformData);
}

void SingleInstance::ActivateAction(const QString&, const QVariantList&,
                                    const QVariantMap& platformData) {
    comeToFront(platformData);
}
