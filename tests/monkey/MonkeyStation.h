#pragma once

#include "app/ApplicationKey.h"
#include "app/DesktopApplication.h"
#include "app/MenuShield.h"
#include "app/QuorvelDelegate.h"
#include "app/TypingWatch.h"
#include "app/window/MainWindow.h"
#include "platform/Platform.h"
#include "preferences/PreferencesController.h"
#include "tests/support/FakeDeviceRegistry.h"
#include "tests/support/ManualClock.h"
#include "tests/support/PseudoTerminalPair.h"

#include <QTemporaryDir>

#include <array>
#include <memory>
#include <optional>

/// The whole program, as main() makes it, but on a machine of its own: its devices come and go as
/// it is told, its clock moves by hand, and the far ends of its two lines are to be had.
class MonkeyStation {
  public:
    static constexpr int lineCount = 2;

    MonkeyStation();

    [[nodiscard]] MainWindow& window() { return *_window; }
    [[nodiscard]] ManualClock& clock() { return *_clock; }
    [[nodiscard]] SettingsStore& settings() const { return _platform->settings(); }
    [[nodiscard]] NotificationCenter& notifications() { return _platform->notificationCenter(); }
    [[nodiscard]] PseudoTerminalPair& line(int number) { return *_lines.at(number); }

    /// Plugs that line in, or pulls it out if it is in.
    void plug(int number);

  private:
    void makePlatform();
    void connectParts();

    QTemporaryDir _home;
    ManualClock* _clock = nullptr;
    FakeDeviceRegistry* _devices = nullptr;
    DesktopApplication* _alerts = nullptr;
    std::array<std::optional<PseudoTerminalPair>, lineCount> _lines;
    std::array<DeviceHandle, lineCount> _plugged{};
    std::unique_ptr<Platform> _platform;
    std::optional<QuorvelDelegate> _delegate;
    std::optional<MainWindow> _window;
    std::optional<PreferencesController> _preferences;
    std::optional<MenuShield> _menuShield;
    std::optional<TypingWatch> _typingWatch;
    std::optional<ApplicationKey> _escape;
};
