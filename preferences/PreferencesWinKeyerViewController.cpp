#include "preferences/PreferencesWinKeyerViewController.h"

#include "keyer/Action.h"
#include "keyer/KeyerCommand.h"
#include "keyer/StoredSettings.h"
#include "keyer/WinKeyerUsb.h"
#include "platform/Platform.h"
#include "platform/SettingsStore.h"
#include "preferences/StandaloneMessages.h"
#include "ui_PreferencesWinKeyerPane.h"

#include <QLabel>

using namespace Qt::StringLiterals;

namespace {

void put(const QByteArray& command) {
    WinKeyerUsb::sharedInstance().putToWinKeyer(command);
}

QWidget* makeView() {
    auto* view = new QWidget;
    Ui::PreferencesWinKeyerPane().setupUi(view);
    return view;
}

} // namespace

PreferencesWinKeyerViewController::PreferencesWinKeyerViewController()
    : _view(makeView()), _binder(*_view, *this, keyerSettings) {
    connect(&SettingsStore::standardUserDefaults(), &SettingsStore::changed, this,
            &PreferencesWinKeyerViewController::showWhetherKeyed);
    showWhetherKeyed();
}

PreferencesWinKeyerViewController::~PreferencesWinKeyerViewController() {
    _binder.settle(); // before it has no controls any more
    delete _view;     // unless the window that showed it has taken it along
}

QString PreferencesWinKeyerViewController::title() const {
    return tr("WinKeyer");
}

QString PreferencesWinKeyerViewController::identifier() const {
    return u"PreferencesWinKeyerPane"_s;
}

QIcon PreferencesWinKeyerViewController::image() const {
    return QIcon(u":/Quorvel"_s);
}

QWidget* PreferencesWinKeyerViewController::view() const {
    return _view;
}

void PreferencesWinKeyerViewController::changeWeight(const QObject*) {
    put(KeyerCommand::setWeighting(KeyerEncoding::weighting(StoredSettings())));
}

void PreferencesWinKeyerViewController::changeRatio(const QObject*) {
    put(KeyerCommand::setDitDahRatio(KeyerEncoding::ditDahRatio(StoredSettings())));
}

void PreferencesWinKeyerViewController::changeFirstExtension(const QObject*) {
    const auto extension = StoredSettings().real(WKFirstExtension);
    put(KeyerCommand::setFirstExtension(KeyerEncoding::truncatedByte(extension)));
}

void PreferencesWinKeyerViewController::changeKeyingCompensation(const QObject*) {
    const auto compensation = StoredSettings().real(WKKeyingCompensation);
    put(KeyerCommand::setKeyCompensation(KeyerEncoding::truncatedByte(compensation)));
}

void PreferencesWinKeyerViewController::changeWinKeyer2Mode(const QObject*) {
    put(KeyerCommand::setWinKeyerMode(KeyerEncoding::modeRegister(StoredSettings())));
}

void PreferencesWinKeyerViewController::changeSidetone(const QObject*) {
    put(KeyerCommand::sidetoneControl(KeyerEncoding::sidetone(StoredSettings())));
}

void PreferencesWinKeyerViewController::changePTT(const QObject*) {
    const StoredSettings settings;
    put(KeyerCommand::setPttLeadTail(KeyerEncoding::pttLeadTime(settings),
                                     KeyerEncoding::pttTailTime(settings)));
}

void PreferencesWinKeyerViewController::changeSpeedPot(const QObject*) {
    const StoredSettings settings;
    put(KeyerCommand::setupSpeedPot(KeyerEncoding::speedPotMinimum(settings),
                                    KeyerEncoding::speedPotRange(settings)));
    put(KeyerCommand::setWpmSpeedFromPot());
    put(KeyerCommand::getSpeedPot());
}

void PreferencesWinKeyerViewController::changeFarnsworthSpeed(const QObject*) {
    put(KeyerCommand::setFarnsworthWpm(KeyerEncoding::farnsworthSpeed(StoredSettings())));
}

void PreferencesWinKeyerViewController::changePaddleSwitchpoint(const QObject*) {
    put(KeyerCommand::setPaddleSwitchpoint(KeyerEncoding::paddleSwitchpoint(StoredSettings())));
}

void PreferencesWinKeyerViewController::changeEnableDitDahMemory(const QObject* sender) {
    if (Action::state(sender) == 1) {
        changePaddleSwitchpoint(sender);
    } else {
        put(KeyerCommand::setPaddleSwitchpoint(0));
    }
}

void PreferencesWinKeyerViewController::changePinConfiguration(const QObject*) {
    put(KeyerCommand::setPinConfiguration(KeyerEncoding::pinConfiguration(StoredSettings())));
}

void PreferencesWinKeyerViewController::sendStandaloneMessage(const QObject* sender) {
    WinKeyerUsb::sharedInstance().sendStandaloneMessage(Action::tag(sender));
}

void PreferencesWinKeyerViewController::showWhetherKeyed() {
    if (_view) {
        const auto& settings = SettingsStore::standardUserDefaults();
        _view->findChild<QLabel*>(u"noOutputLabel"_s)
            ->setVisible(!settings.boolForKey(WKKeyOut1Enable) &&
                         !settings.boolForKey(WKKeyOut2Enable));
    }
}

void PreferencesWinKeyerViewController::showLoading() {
    if (_view) {
        _view->findChild<StandaloneMessages*>()->showLoading();
    }
}

void PreferencesWinKeyerViewController::saveSettings(const QObject*) {
    Error error;
    if (WinKeyerUsb::sharedInstance().writeEeprom(&error)) {
        showLoading();
        return;
    }
    if (error.localizedDescription().isEmpty()) {
        error = Error::ofApplication(
            tr("The keyer's memory could not be written."),
            tr("Check that the keyer is connected, and that no standalone message holds a "
               "character that has no Morse code."));
    }
    Platform::current().application().presentError(error);
}
