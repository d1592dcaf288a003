#include "tests/monkey/MonkeyStation.h"

#include "app/SettingsFileAlert.h"
#include "keyer/GeneralSettings.h"
#include "keyer/WinKeyerUsb.h"
#include "preferences/PreferencesGeneral.h"
#include "preferences/PreferencesMessagesViewController.h"
#include "preferences/PreferencesWinKeyer.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace {

QString nameOf(int line) {
    return u"usbserial-M%1"_s.arg(line);
}

} // namespace

MonkeyStation::MonkeyStation() {
    makePlatform();
    PreferencesWinKeyer::initialize();
    PreferencesMessagesViewController::initialize();
    PreferencesGeneral::initialize();
    settings().setObject(nameOf(0), WKPortName);
    settings().setObject(u"N0CALL"_s, MyCall);
    plug(0);
    _delegate.emplace(WinKeyerUsb::sharedInstance());
    _window.emplace(WinKeyerUsb::sharedInstance());
    _delegate->awakeFromNib(_window->hisCallsignTextField());
    _alerts->setAlertParent(&*_window);
    _preferences.emplace(WinKeyerUsb::sharedInstance());
    _preferences->awakeFromNib();
    _menuShield.emplace();
    _typingWatch.emplace();
    _escape.emplace(Qt::Key_Escape);
    connectParts();
    _window->show();
    _delegate->applicationDidFinishLaunching();
}

void MonkeyStation::makePlatform() {
    for (auto& line : _lines) {
        line.emplace();
    }
    auto clock = std::make_unique<ManualClock>();
    auto devices = std::make_unique<FakeDeviceRegistry>();
    auto alerts = std::make_unique<DesktopApplication>();
    _clock = clock.get();
    _devices = devices.get();
    _alerts = alerts.get();
    _platform = std::make_unique<Platform>(Platform::Services{
        .settings = std::make_unique<SettingsStore>(_home.filePath(u"quorvel.conf"_s)),
        .clock = std::move(clock),
        .devices = std::move(devices),
        .application = std::move(alerts),
    });
}

void MonkeyStation::connectParts() {
    QObject::connect(&*_delegate, &QuorvelDelegate::willDisconnect, &*_window,
                     &MainWindow::silenceKeyer);
    QObject::connect(&*_window, &MainWindow::preferencesRequested, &*_preferences,
                     [this] { _preferences->showPreferences(&*_window); });
    QObject::connect(
        &*_delegate, &QuorvelDelegate::serialPortNameArrayChanged, &*_preferences,
        [this] { _preferences->setSerialPortNames(_delegate->serialPortNameArray()); });
    QObject::connect(&*_escape, &ApplicationKey::pressed, &*_window, &MainWindow::stop);
    QObject::connect(&settings(), &SettingsStore::storingFailed, &*_window, [this] {
        _alerts->runModalWhenFree([this] { return settingsNotStoredAlert(settings()); });
    });
}

void MonkeyStation::plug(int number) {
    auto& device = _plugged.at(number);
    if (device != noDevice) {
        _devices->unplug(std::exchange(device, noDevice));
    } else {
        device = _devices->plug(nameOf(number), line(number).path());
    }
}
