#include "app/DesktopApplication.h"
#include "app/MainWindow.h"
#include "app/QuorvelDelegate.h"
#include "app/TerminationSignals.h"
#include "keyer/WinKeyerUsb.h"
#include "platform/Platform.h"
#include "platform/SystemClock.h"
#include "platform/linux/LinuxDeviceRegistry.h"
#include "platform/linux/LogindPower.h"
#include "preferences/PreferencesGeneral.h"
#include "preferences/PreferencesMessagesViewController.h"
#include "preferences/PreferencesWinKeyer.h"

#include <QApplication>
#include <QTimer>

using namespace Qt::StringLiterals;

int main(int argc, char* argv[]) {
    QApplication::setApplicationName(u"quorvel"_s);
    QApplication::setApplicationDisplayName(u"Quorvel"_s);
    QApplication::setDesktopFileName(bundleIdentifier);
    const QApplication toolkit(argc, argv);
    // Quitting takes the keyer link down first, whatever asked for it.
    QApplication::setQuitOnLastWindowClosed(false);

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

    QuorvelDelegate delegate;
    MainWindow window(WinKeyerUsb::sharedInstance());
    delegate.awakeFromNib(window.hisCallsignTextField());
    alerts.setAlertParent(&window);
    QObject::connect(&delegate, &QuorvelDelegate::willDisconnect, &window,
                     &MainWindow::letGoOfTune);

    const auto quit = [&delegate, &platform] {
        delegate.applicationShouldTerminate();
        platform.notificationCenter().post(NSApplicationWillTerminateNotification, nullptr);
        QApplication::exit();
    };
    QObject::connect(&window, &MainWindow::quitRequested, &delegate, quit);
    const TerminationSignals terminationSignals;
    QObject::connect(&terminationSignals, &TerminationSignals::requested, &delegate, quit);
    QObject::connect(&toolkit, &QGuiApplication::lastWindowClosed, &delegate, [&delegate, quit] {
        if (delegate.applicationShouldTerminateAfterLastWindowClosed()) {
            quit();
        }
    });

    window.show();
    QTimer::singleShot(0, &delegate, &QuorvelDelegate::applicationDidFinishLaunching);
    return QApplication::exec();
}
