#pragma once

#include "app/ApplicationKey.h"
#include "app/FreedMemory.h"
#include "app/KeyGuard.h"
#include "app/KeyRepeat.h"
#include "app/KeyingRecord.h"
#include "app/MenuShield.h"
#include "app/PortCheck.h"
#include "app/QuorvelDelegate.h"
#include "app/Termination.h"
#include "app/TerminationSignals.h"
#include "app/TypingWatch.h"
#include "app/VirtualKeyer.h"
#include "app/WindowWatch.h"
#include "app/window/MainWindow.h"
#include "app/window/SentWindow.h"
#include "loggers/LoggerQueue.h"
#include "loggers/LoggerSocket.h"
#include "platform/linux/SessionBus.h"
#include "preferences/PreferencesController.h"
#include "record/SentRecord.h"

#include <memory>

class DesktopApplication;
class SettingsStore;
class SingleInstance;
class WinKeyerUsb;

/// The running program: its controllers, its windows and its ways out, and what each of them asks
/// of another. All defaults are to be registered before it is made. Main thread only.
class Shell final {
  public:
    /// All of them must outlive it. Shows nothing yet.
    Shell(WinKeyerUsb& engine, DesktopApplication& alerts, SettingsStore& settings,
          SingleInstance& instance);

    /// Has the main window lead a new operator to the first message.
    void showFirstSteps() { _window.showFirstSteps(); }

    /// Shows the main window, then tells of a damaged settings file, then connects to the keyer.
    void launch();

  private:
    void connectWindow();
    void connectPreferences();
    void connectHelp();
    void connectWatchers();
    void connectLoggers();
    void connectRecord();
    void showSent();
    void connectWaysOut();
    void connectSettings();
    void finishLaunching();

    DesktopApplication& _alerts;
    SettingsStore& _settings;
    SingleInstance& _instance;

    QuorvelDelegate _delegate;
    const KeyGuard _guard;
    /// Ahead of whatever sends: a key that was left down is let go of first.
    KeyingRecord _keyingRecord;
    MainWindow _window;
    SentRecord _sentRecord;
    /// Made when it is first asked for.
    std::unique_ptr<SentWindow> _sentWindow;
    LoggerQueue _loggerQueue;
    WindowWatch _windowWatch;
    LoggerSocket _loggerSocket;
    PreferencesController _preferences;
    PortCheck _portCheck;
    VirtualKeyer _virtualKeyer;
    const FreedMemory _freedMemory;

    const MenuShield _menuShield;
    const TypingWatch _typingWatch;
    const ApplicationKey _escape;
    const ApplicationKey _quit;
    const KeyRepeat _keyRepeat;

    Termination _termination;
    const TerminationSignals _terminationSignals;
    const SessionBus _sessionBus;
};
