#include "platform/NotificationCenter.h"

#include "platform/Platform.h"

#include <algorithm>

NotificationCenter& NotificationCenter::defaultCenter() {
    return Platform::current().notificationCenter();
}

void NotificationCenter::addObserver(QObject* observer, const QString& name, Handler handler) {
    _observers.removeIf([](const Observer& each) { return each.owner.isNull(); });
    _observers.append({observer, name, std::move(handler), ++_lastNumber});
}

void NotificationCenter::removeObserver(const QObject* observer) {
    _observers.removeIf([observer](const Observer& each) { return each.owner == observer; });
}

void NotificationCenter::post(const QString& name, QObject* object,
                              const QHash<QString, QVariant>& userInfo) {
    const auto observers = _observers;
    for (const auto& observer : observers) {
        if (observer.name == name && observer.owner && isRegistered(observer.number)) {
            observer.handler({name, object, userInfo});
        }
    }
}

bool NotificationCenter::isRegistered(quint64 number) const {
    return std::any_of(_observers.begin(), _observers.end(),
                       [number](const Observer& each) { return each.number == number; });
}
