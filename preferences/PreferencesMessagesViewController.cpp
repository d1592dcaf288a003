#include "preferences/PreferencesMessagesViewController.h"

#include "keyer/MessageSettings.h"
#include "platform/SettingsStore.h"

void PreferencesMessagesViewController::initialize() {
    SettingsStore::standardUserDefaults().registerDefaults(messageDefaults());
}
