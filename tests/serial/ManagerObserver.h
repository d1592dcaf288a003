#pragma once

#include "serial/ORSSerialPortManager.h"

#include <QTest>

/// Writes down each of the manager's notifications, and what was listed when it came.
class ManagerObserver final : public QObject {
  public:
    using Ports = ORSSerialPortManager::Ports;

    explicit ManagerObserver(NotificationCenter& center) {
        center.addObserver(
            this, ORSSerialPortWasConnectedNotification,
            [this](const Notification& each) { note(each, ORSConnectedSerialPortsKey); });
        center.addObserver(
            this, ORSSerialPortWasDisconnectedNotification,
            [this](const Notification& each) { note(each, ORSDisconnectedSerialPortsKey); });
    }

    QStringList posted;
    QList<Ports> ports;
    QList<QStringList> listed;
    QObject* sender = nullptr;

  private:
    void note(const Notification& notification, QLatin1StringView key) {
        posted.append(notification.name);
        QVERIFY(notification.userInfo.value(key).canConvert<Ports>());
        QCOMPARE(notification.userInfo.size(), 1);
        ports.append(notification.userInfo.value(key).value<Ports>());
        QStringList names;
        const auto& manager = ORSSerialPortManager::sharedSerialPortManager();
        for (const auto& port : manager.availablePorts().value_or(Ports())) {
            names.append(port->name());
        }
        listed.append(names);
        sender = notification.object;
    }
};
