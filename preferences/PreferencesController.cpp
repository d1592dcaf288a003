#include "preferences/PreferencesController.h"

#include "preferences/GuideButton.h"
#include "preferences/MBPreferencesController.h"
#include "preferences/PreferencesGeneralViewController.h"
#include "preferences/PreferencesMessagesViewController.h"
#include "preferences/PreferencesWinKeyerViewController.h"
#include "preferences/UnspokenMaking.h"

#include <QWidget>

PreferencesController::PreferencesController(WinKeyerUsb& engine) : _engine(engine) {}

void PreferencesController::launch() {
    MBPreferencesController::rememberOneOf({PreferencesGeneralViewController::name,
                                            PreferencesMessagesViewController::name,
                                            PreferencesWinKeyerViewController::name});
}

void PreferencesController::awakeFromNib() {
    if (!_general.expired()) {
        return;
    }
    const UnspokenMaking unspoken;
    const auto general = std::make_shared<PreferencesGeneralViewController>(_engine);
    _general = general;
    const auto panes =
        std::make_shared<const MBPreferencesController::Modules>(MBPreferencesController::Modules{
            general, std::make_shared<PreferencesMessagesViewController>(_engine),
            std::make_shared<PreferencesWinKeyerViewController>(_engine)});
    for (const auto& pane : *panes) {
        pane->view()->resize(pane->view()->sizeHint());
        for (const auto* button : pane->view()->findChildren<GuideButton*>()) {
            connect(button, &GuideButton::guideRequested, this,
                    &PreferencesController::guideRequested);
        }
    }
    MBPreferencesController::sharedController().setModules(panes);
    if (!_portNames.isEmpty()) {
        general->setSerialPortNames(_portNames);
    }
}

void PreferencesController::showPreferences(const QObject* sender) {
    awakeFromNib();
    MBPreferencesController::sharedController().showWindow(sender);
}

void PreferencesController::showPortChoice(const QObject* sender) {
    awakeFromNib();
    MBPreferencesController::sharedController().setSelectedPreferenceItemWithIdentifier(
        PreferencesGeneralViewController::name);
    showPreferences(sender);
}

void PreferencesController::setSerialPortNames(const QStringList& names) {
    _portNames = names;
    if (const auto general = _general.lock()) {
        general->setSerialPortNames(names);
    }
}
