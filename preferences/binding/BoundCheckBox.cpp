#include "preferences/binding/BoundCheckBox.h"

#include "platform/SettingsStore.h"

BoundCheckBox::BoundCheckBox(QCheckBox& box, const Setting& setting, QObject& controller)
    : BoundControl(box, setting, controller), _box(box) {
    // The toolkit's newer releases have it under another name.
#if QT_VERSION >= QT_VERSION_CHECK(6, 7, 0)
    connect(&box, &QCheckBox::checkStateChanged, this, &BoundCheckBox::takeState);
#else
    connect(&box, &QCheckBox::stateChanged, this, &BoundCheckBox::takeState);
#endif
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
