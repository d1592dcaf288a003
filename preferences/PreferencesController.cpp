#include "preferences/PreferencesController.h"

#include "preferences/MBPreferencesController.h"
#include "preferences/PreferencesGeneralViewController.h"
#include "preferences/PreferencesMessagesViewController.h"
#include "preferences/PreferencesWinKeyerViewController.h"

#include <QWidget>

PreferencesController::PreferencesController(WinKeyerUsb& engine) : _engine(engine) {}

void PreferencesController::awakeFromNib() {
    const auto general = std::make_shared<PreferencesGeneralViewController>(_engine);
    _general = general;
    const auto panes =
        std::make_shared<const MBPreferencesController::Modules>(MBPreferencesController::Modules{
            general, std::make_shared<PreferencesMessagesViewController>(_engine),
            std::make_shared<PreferencesWinKeyerViewController>(_engine)});
    for (const auto& pane : *panes) {
        pane->view()->resize(pane->view()->sizeHint());
    }
    MBPreferencesController::sharedController().setModules(panes);
}

void PreferencesController::showPreferences(const QObject* sender) {
    MBPreferencesController::sharedController().showWindow(sender);
}

void PreferencesController::setSerialPortNames(const QStringList& names) {
    if (const auto general = _general.lock()) {
        general->setSerialPortNames(names);
    }
}
