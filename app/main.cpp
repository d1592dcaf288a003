#include "app/CommandLine.h"
#include "app/DesktopApplication.h"
#include "app/PortCheckCommand.h"
#include "app/QuorvelStyle.h"
#include "app/Shell.h"
#include "keyer/GeneralSettings.h"
#include "keyer/WinKeyerUsb.h"
#include "platform/BundleIdentifier.h"
#include "platform/Log.h"
#include "platform/Platform.h"
#include "platform/SystemClock.h"
#include "platform/linux/LinuxDeviceRegistry.h"
#include "platform/linux/LogindPower.h"
#include "platform/linux/SingleInstance.h"
#include "preferences/PreferencesGeneral.h"
#include "preferences/PreferencesMessagesViewController.h"
#include "preferences/PreferencesWinKeyer.h"
#include "translations/Translations.h"

#include <QApplication>
#include <QLocale>
#include <QMessageBox>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

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

/// Without the toolkit's part for windows, which does not start where there is no screen.
bool hasAnswered(int& argc, char** argv) {
    const auto* option = argc > 1 ? argv[1] : "";
    const auto version = QCoreApplication::applicationVersion();
    if (!commandLineAnswer(option, version)) {
        return false;
    }
    const QCoreApplication console(argc, argv);
    const Translations translations{QLocale()};
    const auto answer = commandLineAnswer(option, version);
    std::fputs(answer->toLocal8Bit().constData(), stdout);
    return true;
}

int run(SingleInstance& instance) {
    auto application = std::make_unique<DesktopApplication>();
    auto& alerts = *application;
    Platform platform({.settings = std::make_unique<SettingsStore>(SettingsStore::standardPath()),
                       .clock = std::make_unique<SystemClock>(),
                       .devices = std::make_unique<LinuxDeviceRegistry>(),
                       .application = std::move(application)});
    const LogindPower power;
    // Before there are defaults, which look like choices.
    const bool wasPortEverChosen = platform.settings().objectForKey(WKPortName).isValid();
    PreferencesWinKeyer::initialize();
    PreferencesMessagesViewController::initialize();
    PreferencesGeneral::initialize();

    auto& engine = WinKeyerUsb::sharedInstance();
    engine.setRunLimit(runLimit);
    Shell shell(engine, alerts, platform.settings(), instance);
    if (!wasPortEverChosen) {
        shell.showFirstSteps();
    }
    shell.launch();
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
    if (hasAnswered(argc, argv)) {
        return EXIT_SUCCESS;
    }
    if (argc > 1 && argv[1] == PortCheckCommand::option) {
        const QCoreApplication terminal(argc, argv);
        const Translations translations{QLocale()};
        return PortCheckCommand::run(QCoreApplication::arguments().sliced(2));
    }
    // The toolkit takes it out of the environment.
    const auto token = activationToken();
    const QApplication toolkit(argc, argv);
    QApplication::setStyle(new QuorvelStyle);
    const Translations translations{QLocale()};

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
