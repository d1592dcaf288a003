#pragma once

#include "platform/Platform.h"
#include "tests/support/FakeDeviceRegistry.h"
#include "tests/support/ManualClock.h"
#include "tests/support/RecordingApplication.h"

#include <QTemporaryDir>

#include <memory>

/// The current platform for as long as it lives, made of fakes, with an empty settings file.
class TestPlatform {
  public:
    TestPlatform();

    [[nodiscard]] Platform& platform() const { return *_platform; }
    [[nodiscard]] SettingsStore& settings() const { return _platform->settings(); }
    [[nodiscard]] ManualClock& clock() const { return *_clock; }
    [[nodiscard]] FakeDeviceRegistry& devices() const { return *_devices; }
    [[nodiscard]] RecordingApplication& application() const { return *_application; }
    [[nodiscard]] NotificationCenter& notifications() const {
        return _platform->notificationCenter();
    }
    [[nodiscard]] QString settingsPath() const;

    /// Ends the platform ahead of this object, as the end of the program would.
    void end() { _platform.reset(); }

  private:
    QTemporaryDir _directory;
    ManualClock* _clock;
    FakeDeviceRegistry* _devices;
    RecordingApplication* _application;
    std::unique_ptr<Platform> _platform;
};
