#include "preferences/binding/BoundCheckBox.h"

#include "platform/SettingsStore.h"

BoundCheckBox::BoundCheckBox(QCheckBox& box, const Setting& setting, QObject& controller)
    : BoundControl(box, setting, controller), _box(box) {
    connect(&box, &QCheckBox::stateChanged, this, &BoundCheckBox::takeState);
}

void BoundCheckBox::takeState() {
    const bool isNew = isOn() != isStoredOn();
    change(isOn());
    settle();
    if (!isNew && isAvailable() && _box.checkState() == Qt::PartiallyChecked) {
        act();
    }
}

/// One that is neither stays so while the setting is off.
void BoundCheckBox::showStored() {
    if (isOn() != isStoredOn()) {
        _box.setChecked(isStoredOn());
    }
}

bool BoundCheckBox::isStoredOn() const {
    return SettingsStore::standardUserDefaults().boolForKey(key());
}
