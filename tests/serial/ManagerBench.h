#pragma once

#include "serial/ORSSerialPortManager.h"
#include "tests/support/TestPlatform.h"

#include <QStringList>
#include <QTest>

#include <optional>

/// The manager on a machine whose devices come and go as a test says.
class ManagerBench : public QObject {
    Q_OBJECT
  protected:
    using Ports = ORSSerialPortManager::Ports;

    void start() { _platform.emplace(); }
    void end() { _platform.reset(); }

    [[nodiscard]] NotificationCenter& notifications() const { return _platform->notifications(); }
    [[nodiscard]] FakeDeviceRegistry& devices() const { return _platform->devices(); }
    [[nodiscard]] ManualClock& clock() const { return _platform->clock(); }
    static ORSSerialPortManager& manager() {
        return ORSSerialPortManager::sharedSerialPortManager();
    }
    [[nodiscard]] static QStringList names(const Ports& ports) {
        QStringList names;
        for (const auto& port : ports) {
            names.append(port->name());
        }
        return names;
    }
    /// The names of the listed ports.
    [[nodiscard]] static QStringList available() {
        return names(manager().availablePorts().value());
    }
    void post(QLatin1StringView name) { notifications().post(name, this); }

  private:
    std::optional<TestPlatform> _platform;
};
