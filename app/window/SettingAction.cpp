#include "app/window/SettingAction.h"

#include "platform/SettingsStore.h"

#include <QAction>

SettingAction::SettingAction(QAction& action, const QString& key, QObject* parent)
    : QObject(parent) {
    auto& settings = SettingsStore::standardUserDefaults();
    const auto show = [&settings, &action, key] { action.setChecked(settings.boolForKey(key)); };
    QObject::connect(&settings, &SettingsStore::changed, this, [show, key](const QString& changed) {
        if (changed == key) {
            show();
        }
    });
    QObject::connect(&action, &QAction::triggered, this,
                     [&settings, key](bool isOn) { settings.setObject(isOn, key); });
    show();
}
