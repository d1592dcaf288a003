#include "app/Shell.h"

#include "app/DesktopApplication.h"
#include "app/SettingsFileAlert.h"
#include "keyer/WinKeyerUsb.h"
#include "platform/SettingsStore.h"
#include "platform/linux/KeyGuardProcess.h"
#include "platform/linux/SingleInstance.h"

#include <QTimer>

using namespace std::chrono_literals;

namespace {

/// How long an alert of the way out waits for an operator who has asked to quit.
constexpr auto lastWord = 10s;

} // namespace

Shell::Shell(WinKeyerUsb& engine, DesktopApplication& alerts, SettingsStore& settings,
             SingleInstance& instance)
    : _alerts(alerts),
      _settings(settings),
      _instance(instance),
      _delegate(engine),
      _guard(engine, KeyGuardProcess::standardProgram()),
      _keyingRecord(engine, KeyingRecord::standardPath()),
      _window(engine),
      _sentRecord(engine, _window.speed(), settings, RecordStore::standardPath()),
      _loggerQueue(engine, _window.speed()),
      _windowWatch(_window),
      _loggerSocket(_loggerQueue, settings),
      _preferences(engine),
      _portCheck(engine, _window),
      _virtualKeyer(VirtualKeyer::standardProgram()),
      _freedMemory(engine),
      _escape(Qt::Key_Escape),
      _quit(Qt::CTRL | Qt::Key_Q),
      _termination(_delegate) {
    _delegate.awakeFromNib(_window.hisCallsignTextField());
    PreferencesController::launch();
    connectWindow();
    connectPreferences();
    connectHelp();
    connectWatchers();
    connectLoggers();
    connectRecord();
    connectWaysOut();
    connectSettings();
}

void Shell::launch() {
    _window.show();
    QTimer::singleShot(0, &_delegate, [this] { finishLaunching(); });
}

void Shell::connectWindow() {
    _alerts.setAlertParent(&_window);
    QObject::connect(&_delegate, &QuorvelDelegate::willDisconnect, &_window,
                     &MainWindow::silenceKeyer);
    QObject::connect(&_window, &MainWindow::connectionWanted, &_delegate,
                     [this] { _delegate.changeSerialPort(nullptr); });
    QObject::connect(&_escape, &ApplicationKey::pressed, &_window, &MainWindow::stop);
    QObject::connect(&_instance, &SingleInstance::activated, &_window, &MainWindow::comeToFront);
}

void Shell::connectPreferences() {
    QObject::connect(&_window, &MainWindow::preferencesRequested, &_preferences,
                     [this] { _preferences.showPreferences(&_window); });
    QObject::connect(&_window, &MainWindow::portRequested, &_preferences,
                     [this] { _preferences.showPortChoice(&_window); });
    QObject::connect(&_preferences, &PreferencesController::guideRequested, &_window,
                     &MainWindow::showGuide);
    QObject::connect(&_delegate, &QuorvelDelegate::serialPortNameArrayChanged, &_preferences,
                     [this] { _preferences.setSerialPortNames(_delegate.serialPortNameArray()); });
}

void Shell::connectHelp() {
    QObject::connect(&_window, &MainWindow::portCheckRequested, &_portCheck, &PortCheck::show);
    if (_virtualKeyer.isInstalled()) {
        _window.offerVirtualKeyer();
    }
    QObject::connect(&_window, &MainWindow::virtualKeyerRequested, &_virtualKeyer,
                     &VirtualKeyer::start);
    QObject::connect(&_virtualKeyer, &VirtualKeyer::failed, &_window, &MainWindow::say);
}

void Shell::connectWatchers() {
    QObject::connect(&_keyingRecord, &KeyingRecord::keyLetGo, &_window, &MainWindow::say);
    QObject::connect(&_guard, &KeyGuard::hasNoGuard, &_window, &MainWindow::say);
    QObject::connect(&_guard, &KeyGuard::hasLetGo, &_window, [this](const QString& notice) {
        _window.say(notice);
        _delegate.changeSerialPort(nullptr);
    });
}

void Shell::connectLoggers() {
    const auto show = [this] { _window.showLoggers(_loggerSocket.notice()); };
    QObject::connect(&_loggerSocket, &LoggerSocket::noticeChanged, &_window, show);
    show();
    _loggerQueue.setWatched(_window.isVisible());
    QObject::connect(&_windowWatch, &WindowWatch::visibleChanged, &_loggerQueue,
                     &LoggerQueue::setWatched);
    // What they sent on the way out would be keyed by a program that nobody sees any more.
    QObject::connect(&_termination, &Termination::begun, &_loggerSocket, &LoggerSocket::close);
}

void Shell::connectRecord() {
    QObject::connect(&_loggerSocket, &LoggerSocket::senderFound, &_sentRecord,
                     &SentRecord::nameLogger);
    QObject::connect(&_sentRecord, &SentRecord::hasTrouble, &_window, &MainWindow::say);
    QObject::connect(&_window, &MainWindow::sentRequested, &_sentRecord, [this] { showSent(); });
}

void Shell::showSent() {
    if (_sentWindow == nullptr) {
        _sentWindow = std::make_unique<SentWindow>(WinKeyerUsb::sharedInstance(),
                                                   _sentRecord.store(), &_window);
        QObject::connect(_sentWindow.get(), &SentWindow::sendRequested, &_window,
                         &MainWindow::sendText);
    }
    _sentWindow->look();
    _sentWindow->show();
    _sentWindow->raise();
    _sentWindow->activateWindow();
}

void Shell::connectWaysOut() {
    const auto quit = [this] { _termination.terminate(Termination::Cause::Operator); };
    QObject::connect(&_window, &MainWindow::quitRequested, &_termination, quit);
    QObject::connect(&_quit, &ApplicationKey::pressed, &_termination, quit);
    const auto endWithTheSession = [this] { _termination.terminate(Termination::Cause::System); };
    QObject::connect(&_terminationSignals, &TerminationSignals::requested, &_termination,
                     endWithTheSession);
    QObject::connect(&_sessionBus, &SessionBus::hasGone, &_termination, endWithTheSession);

    QObject::connect(
        &_termination, &Termination::begun, &_window, [this](Termination::Cause cause) {
            _alerts.limitAlerts(cause == Termination::Cause::Operator ? lastWord : 0ms);
        });
    // By the time the event loop comes round again, in an alert of the way out, the port is free.
    QObject::connect(&_termination, &Termination::begun, &_instance, &SingleInstance::leave,
                     Qt::QueuedConnection);
    QObject::connect(&_termination, &Termination::hasLeftKeyer, &_keyingRecord,
                     &KeyingRecord::close);
}

void Shell::connectSettings() {
    QObject::connect(&_settings, &SettingsStore::storingFailed, &_window, [this] {
        _alerts.runModalWhenFree([this] { return settingsNotStoredAlert(_settings); });
    });
    QObject::connect(&_settings, &SettingsStore::damageFound, &_window, [this] {
        _alerts.runModalWhenFree([this] { return settingsDamagedAlert(_settings); });
    });
}

void Shell::finishLaunching() {
    if (const auto alert = settingsFileAlert(_settings)) {
        _alerts.runModal(*alert);
    }
    _delegate.applicationDidFinishLaunching();
}
