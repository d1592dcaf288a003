#include "preferences/PreferencesGeneral.h"

#include "keyer/GeneralSettings.h"
#include "platform/SettingsStore.h"

void PreferencesGeneral::initialize() {
    SettingsStore::standardUserDefaults().registerDefaults(defaultsOf(generalSettings));
}
