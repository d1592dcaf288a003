#pragma once

#include "platform/Application.h"
#include "platform/Clock.h"
#include "platform/DeviceRegistry.h"
#include "platform/MainQueue.h"
#include "platform/NotificationCenter.h"
#include "platform/SettingsStore.h"

#include <QObject>

#include <memory>

/// What the desktop gives the program, all in one place: made once by main(), or by each test.
///
/// The program's process-wide singletons are its children, so they end in an order that is known,
/// before the services that they use. Main thread only.
class Platform final : public QObject {
    Q_OBJECT
  public:
    struct Services {
        std::unique_ptr<SettingsStore> settings;
        std::unique_ptr<Clock> clock;
        std::unique_ptr<DeviceRegistry> devices;
        std::unique_ptr<Application> application;
    };

    /// Becomes the current platform. Throws std::logic_error when there is one already.
    explicit Platform(Services services);
    ~Platform() override;

    [[nodiscard]] static Platform& current();

    [[nodiscard]] SettingsStore& settings() const { return *_services.settings; }
    [[nodiscard]] Clock& clock() const { return *_services.clock; }
    [[nodiscard]] DeviceRegistry& devices() const { return *_services.devices; }
    [[nodiscard]] Application& application() const { return *_services.application; }
    [[nodiscard]] NotificationCenter& notificationCenter() { return _notificationCenter; }

    /// Shared, so that a worker that outlives the platform still has a queue to find shut down.
    [[nodiscard]] const std::shared_ptr<MainQueue>& mainQueue() const { return _mainQueue; }

  private:
    Services _services;
    NotificationCenter _notificationCenter;
    std::shared_ptr<MainQueue> _mainQueue;
};
