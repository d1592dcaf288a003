#include "app/ApplicationKey.h"
#include "app/CommandLine.h"
#include "app/DesktopApplication.h"
#include "app/KeyGuard.h"
#include "app/KeyRepeat.h"
#include "app/KeyingRecord.h"
#include "app/MenuShield.h"
#include "app/QuorvelDelegate.h"
#include "app/QuorvelStyle.h"
#include "app/SettingsFileAlert.h"
#include "app/Termination.h"
#include "app/TerminationSignals.h"
#include "app/Translations.h"
#include "app/TypingWatch.h"
#include "app/window/MainWindow.h"
#include "keyer/WinKeyerUsb.h"
#include "platform/BundleIdentifier.h"
#include "platform/Log.h"
#include "platform/Platform.h"
#include "platform/SystemClock.h"
#include "platform/linux/KeyGuardProcess.h"
#include "platform/linux/LinuxDeviceRegistry.h"
#include "platform/linux/LogindPower.h"
#include "platform/linux/SessionBus.h"
#include "platform/linux/SingleInstance.h"
#include "preferences/MBPreferencesController.h"
#include "preferences/PreferencesController.h"
#include "preferences/PreferencesGeneral.h"
#include "preferences/PreferencesMessagesViewController.h"
#include "preferences/PreferencesWinKeyer.h"

#include <QApplication>
#include <QLocale>
#include <QMessageBox>
#include <QTimer>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <memory>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// How long an alert of the way out waits for an operator who has asked to quit.
constexpr auto lastWord = 10s;

/// Bytes: a stop behind them is at the keyer within a tenth of a second.
constexpr int runLimit = 5;

/// What the desktop gave this start, so that a window may come to the front.
QString activationToken() {
    return qEnvironmentVariable("XDG_ACTIVATION_TOKEN", qEnvironmentVariable("DESKTOP_STARTUP_ID"));
}

int tellThatTheRunningOneHangs() {
    const auto message = QCoreApplication::translate(
        "main", "Quorvel is running already, and does not answer. End it, then start it again.");
    logLine(message);
    QMessageBox::critical(nullptr, {}, message);
    return EXIT_FAILURE;
}

int run(SingleInstance& instance) {
    auto application = std::make_unique<DesktopApplication>();
    auto& alerts = *application;
    Platform platform({.settings = std::make_unique<SettingsStore>(SettingsStore::standardPath()),
                       .clock = std::make_unique<SystemClock>(),
                       .devices = std::make_unique<LinuxDeviceRegistry>(),
                       .application = std::move(application)});
    const LogindPower power;
    PreferencesWinKeyer::initialize();
    PreferencesMessagesViewController::initialize();
    PreferencesGeneral::initialize();

    WinKeyerUsb::sharedInstance().setRunLimit(runLimit);
    QuorvelDelegate delegate;
    const KeyGuard guard(WinKeyerUsb::sharedInstance(), KeyGuardProcess::standardProgram());
    // Ahead of whatever sends: a key that was left down is let go of first.
    KeyingRecord keyingRecord(WinKeyerUsb::sharedInstance(), KeyingRecord::standardPath());
    MainWindow window(WinKeyerUsb::sharedInstance());
    delegate.awakeFromNib(window.hisCallsignTextField());
    alerts.setAlertParent(&window);
    QObject::connect(&delegate, &QuorvelDelegate::willDisconnect, &window,
                     &MainWindow::silenceKeyer);
    QObject::connect(&window, &MainWindow::connectionWanted, &delegate,
                     [&] { delegate.changeSerialPort(nullptr); });
    PreferencesController preferences;
    preferences.awakeFromNib();
    QObject::connect(&window, &MainWindow::preferencesRequested, &preferences,
                     [&] { preferences.showPreferences(&window); });
    QObject::connect(&window, &MainWindow::portRequested, &preferences, [&] {
        MBPreferencesController::sharedController().setSelectedPreferenceItemWithIdentifier(
            u"PreferencesGeneralPane"_s);
        preferences.showPreferences(&window);
    });
    QObject::connect(&delegate, &QuorvelDelegate::serialPortNameArrayChanged, &preferences,
                     [&] { preferences.setSerialPortNames(delegate.serialPortNameArray()); });

    QObject::connect(&keyingRecord, &KeyingRecord::keyLetGo, &window, &MainWindow::say);
    QObject::connect(&guard, &KeyGuard::hasNoGuard, &window, &MainWindow::say);
    QObject::connect(&guard, &KeyGuard::hasLetGo, &window, [&](const QString& notice) {
        window.say(notice);
        delegate.changeSerialPort(nullptr);
    });

    const MenuShield menuShield;
    const TypingWatch typingWatch;
    const ApplicationKey escape(Qt::Key_Escape);
    QObject::connect(&escape, &ApplicationKey::pressed, &window, &MainWindow::stop);
    QObject::connect(&instance, &SingleInstance::activated, &window, &MainWindow::comeToFront);

    const KeyRepeat keyRepeat;

    Termination termination(delegate);
    QObject::connect(&window, &MainWindow::quitRequested, &termination,
                     [&] { termination.terminate(Termination::Cause::Operator); });
    QObject::connect(&termination, &Termination::begun, &window, [&](Termination::Cause cause) {
        alerts.limitAlerts(cause == Termination::Cause::Operator ? lastWord : 0ms);
    });
    QObject::connect(&termination, &Termination::hasLeftKeyer, &keyingRecord, &KeyingRecord::close);
    const ApplicationKey quit(Qt::CTRL | Qt::Key_Q);
    QObject::connect(&quit, &ApplicationKey::pressed, &window, &MainWindow::quitRequested);
    // By the time the event loop comes round again, in an alert of the way out, the port is free.
    QObject::connect(&termination, &Termination::begun, &instance, &SingleInstance::leave,
                     Qt::QueuedConnection);
    const auto endWithTheSession = [&] { termination.terminate(Termination::Cause::System); };
    const TerminationSignals terminationSignals;
    QObject::connect(&terminationSignals, &TerminationSignals::requested, &termination,
                     endWithTheSession);
    const SessionBus sessionBus;
    QObject::connect(&sessionBus, &SessionBus::hasGone, &termination, endWithTheSession);

    QObject::connect(&platform.settings(), &SettingsStore::storingFailed, &window, [&] {
        alerts.runModalWhenFree([&] { return settingsNotStoredAlert(platform.settings()); });
    });

    window.show();
    QTimer::singleShot(0, &delegate, [&] {
        if (const auto alert = settingsFileAlert(platform.settings())) {
            alerts.runModal(*alert);
        }
        delegate.applicationDidFinishLaunching();
    });
    return QApplication::exec();
}

} // namespace

int main(int argc, char* argv[]) {
    // Whoever reads the log may end before the program does, which is no reason to die keying.
    static_cast<void>(std::signal(SIGPIPE, SIG_IGN));
    QApplication::setApplicationName(u"quorvel"_s);
    QApplication::setApplicationDisplayName(u"Quorvel"_s);
    QApplication::setApplicationVersion(QStringLiteral(QUORVEL_VERSION));
    QApplication::setDesktopFileName(bundleIdentifier);
    // Ahead of the toolkit, which does not start without a screen.
    if (const auto answer =
            commandLineAnswer(argc > 1 ? argv[1] : "", QApplication::applicationVersion())) {
        std::fputs(qUtf8Printable(*answer), stdout);
        return EXIT_SUCCESS;
    }
    // The toolkit takes it out of the environment.
    const auto token = activationToken();
    const QApplication toolkit(argc, argv);
    QApplication::setStyle(new QuorvelStyle);
    const Translations translations(QLocale(), u":/translations"_s);

    SingleInstance instance;
    switch (instance.begin(token)) {
    case SingleInstance::Role::First:
        return run(instance);
    case SingleInstance::Role::Second:
        return EXIT_SUCCESS;
    case SingleInstance::Role::Unanswered:
        break;
    }
    return tellThatTheRunningOneHangs();
}
