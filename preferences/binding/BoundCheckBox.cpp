#include "preferences/binding/BoundCheckBox.h"

#include "platform/SettingsStore.h"

BoundCheckBox::BoundCheckBox(QCheckBox& box, const Setting& setting, QObject& controller)
    : BoundControl(box, setting, controller), _box(box) {
    connect(&box, &QCheckBox::toggled, this, [this](bool isOn) {
        change(isOn);
        settle();
    });
}

void BoundCheckBox::showStored() {
    _box.setChecked(SettingsStore::standardUserDefaults().boolForKey(key()));
}
