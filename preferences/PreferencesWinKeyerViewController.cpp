#include "preferences/PreferencesWinKeyerViewController.h"

#include "keyer/Action.h"
#include "keyer/KeyerCommand.h"
#include "keyer/StoredSettings.h"
#include "keyer/WinKeyerUsb.h"
#include "platform/Platform.h"
#include "platform/SettingsStore.h"
#include "preferences/GuideButton.h"
#include "preferences/KeyerNotice.h"
#include "ui_PreferencesWinKeyerPane.h"

#include <QCheckBox>
#include <QHBoxLayout>

using namespace Qt::StringLiterals;

PreferencesWinKeyerViewController::PreferencesWinKeyerViewController(WinKeyerUsb& engine)
    : _engine(engine),
      _view(std::make_unique<QWidget>()),
      _ui(std::make_unique<Ui::PreferencesWinKeyerPane>()) {
    _ui->setupUi(_view.get());
    setUpCorner();
    _ui->keyedWave->follow(engine);
    _ui->standaloneMessages->follow(engine);
    _binder = std::make_unique<SettingBinder>(*_view, *this, keyerSettings);
    _ui->explanation->follow(*_binder);
    connect(&SettingsStore::standardUserDefaults(), &SettingsStore::changed, this,
            &PreferencesWinKeyerViewController::showWhetherKeyed);
    showWhetherKeyed();
}

PreferencesWinKeyerViewController::~PreferencesWinKeyerViewController() = default;

/// Beside the tabs, where it is seen from each.
void PreferencesWinKeyerViewController::setUpCorner() {
    auto* corner = new QWidget(_ui->groups);
    auto* notice = new KeyerNotice(corner);
    notice->follow(_engine);
    auto* guideButton = new GuideButton(corner);
    guideButton->follow(*_ui->groups);
    auto* layout = new QHBoxLayout(corner);
    layout->setContentsMargins({});
    layout->addWidget(notice);
    layout->addWidget(guideButton);
    _ui->groups->setCornerWidget(corner);
}

QString PreferencesWinKeyerViewController::title() const {
    return tr("WinKeyer");
}

QString PreferencesWinKeyerViewController::identifier() const {
    return name;
}

QIcon PreferencesWinKeyerViewController::image() const {
    return QIcon(u":/Quorvel"_s);
}

void PreferencesWinKeyerViewController::changeWeight(const QObject*) {
    _engine.putToWinKeyer(KeyerCommand::setWeighting(KeyerEncoding::weighting(StoredSettings())));
}

void PreferencesWinKeyerViewController::changeRatio(const QObject*) {
    _engine.putToWinKeyer(
        KeyerCommand::setDitDahRatio(KeyerEncoding::ditDahRatio(StoredSettings())));
}

void PreferencesWinKeyerViewController::changeFirstExtension(const QObject*) {
    const auto extension = StoredSettings().real(WKFirstExtension);
    _engine.putToWinKeyer(KeyerCommand::setFirstExtension(KeyerEncoding::truncatedByte(extension)));
}

void PreferencesWinKeyerViewController::changeKeyingCompensation(const QObject*) {
    const auto compensation = StoredSettings().real(WKKeyingCompensation);
    _engine.putToWinKeyer(
        KeyerCommand::setKeyCompensation(KeyerEncoding::truncatedByte(compensation)));
}

void PreferencesWinKeyerViewController::changeWinKeyer2Mode(const QObject*) {
    _engine.putToWinKeyer(
        KeyerCommand::setWinKeyerMode(KeyerEncoding::modeRegister(StoredSettings())));
}

void PreferencesWinKeyerViewController::changeSidetone(const QObject*) {
    _engine.putToWinKeyer(KeyerCommand::sidetoneControl(KeyerEncoding::sidetone(StoredSettings())));
}

void PreferencesWinKeyerViewController::changePTT(const QObject*) {
    const StoredSettings settings;
    _engine.putToWinKeyer(KeyerCommand::setPttLeadTail(KeyerEncoding::pttLeadTime(settings),
                                                       KeyerEncoding::pttTailTime(settings)));
}

void PreferencesWinKeyerViewController::changeSpeedPot(const QObject*) {
    const StoredSettings settings;
    _engine.putToWinKeyer(KeyerCommand::setupSpeedPot(KeyerEncoding::speedPotMinimum(settings),
                                                      KeyerEncoding::speedPotRange(settings)));
    _engine.putToWinKeyer(KeyerCommand::setWpmSpeedFromPot());
    _engine.putToWinKeyer(KeyerCommand::getSpeedPot());
}

void PreferencesWinKeyerViewController::changeFarnsworthSpeed(const QObject*) {
    _engine.putToWinKeyer(
        KeyerCommand::setFarnsworthWpm(KeyerEncoding::farnsworthSpeed(StoredSettings())));
}

void PreferencesWinKeyerViewController::changePaddleSwitchpoint(const QObject*) {
    _engine.putToWinKeyer(
        KeyerCommand::setPaddleSwitchpoint(KeyerEncoding::paddleSwitchpoint(StoredSettings())));
}

void PreferencesWinKeyerViewController::changeEnableDitDahMemory(const QObject* sender) {
    // A check box tells of its mixed state by no property.
    const auto* box = qobject_cast<const QCheckBox*>(sender);
    const bool isOn =
        box != nullptr ? box->checkState() == Qt::Checked : Action::state(sender) == 1;
    if (isOn) {
        changePaddleSwitchpoint(sender);
    } else {
        _engine.putToWinKeyer(KeyerCommand::setPaddleSwitchpoint(0));
    }
}

void PreferencesWinKeyerViewController::changePinConfiguration(const QObject*) {
    _engine.putToWinKeyer(
        KeyerCommand::setPinConfiguration(KeyerEncoding::pinConfiguration(StoredSettings())));
}

void PreferencesWinKeyerViewController::sendStandaloneMessage(const QObject* sender) {
    _engine.sendStandaloneMessage(Action::tag(sender));
}

void PreferencesWinKeyerViewController::showWhetherKeyed() {
    const auto& settings = SettingsStore::standardUserDefaults();
    _ui->noOutputLabel->setVisible(!settings.boolForKey(WKKeyOut1Enable) &&
                                   !settings.boolForKey(WKKeyOut2Enable));
}

void PreferencesWinKeyerViewController::saveSettings(const QObject*) {
    Error error;
    if (_engine.writeEeprom(&error)) {
        _ui->standaloneMessages->showLoading();
        return;
    }
    if (error.localizedDescription().isEmpty()) {
        const auto reason = _ui->standaloneMessages->reasonNotToSave();
        error = Error::ofApplication(tr("The keyer's memory could not be written."),
                                     reason.isEmpty() ? tr("Check that the keyer is connected.")
                                                      : reason);
    }
    Platform::current().application().presentError(error);
}
