#include "preferences/PreferencesWinKeyer.h"

#include "keyer/KeyerSettings.h"
#include "platform/SettingsStore.h"

void PreferencesWinKeyer::initialize() {
    SettingsStore::standardUserDefaults().registerDefaults(defaultsOf(keyerSettings));
}
