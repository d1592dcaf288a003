#include "keyer/StoredSettings.h"

#include "platform/SettingsStore.h"

StoredSettings::StoredSettings() : _store(SettingsStore::standardUserDefaults()) {}

bool StoredSettings::flag(QLatin1StringView key) const {
    return _store.boolForKey(key);
}

qint64 StoredSettings::integer(QLatin1StringView key) const {
    return _store.integerForKey(key);
}

double StoredSettings::real(QLatin1StringView key) const {
    return _store.doubleForKey(key);
}

std::uint8_t StoredSettings::code(QLatin1StringView key, std::span<const Choice> choices) const {
    return codeOfChoice(choices, _store.stringForKey(key));
}
