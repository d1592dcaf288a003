#include "record/SentRecord.h"

#include "platform/SettingsStore.h"
#include "record/RecordSettings.h"

#include <QDateTime>

namespace {

/// Of a month, at most.
constexpr int days = 31;

} // namespace

SentRecord::SentRecord(WinKeyerUsb& engine, const ChosenSpeed& speed, SettingsStore& settings,
                       const QString& path)
    : _settings(settings),
      _store(path, &QDateTime::currentMSecsSinceEpoch),
      _follower(engine, speed, &QDateTime::currentMSecsSinceEpoch) {
    _settings.registerDefaults(defaultsOf(recordSettings));
    QObject::connect(&_follower, &RunFollower::ended, this, [this](const RecordedRun& run) {
        if (_settings.boolForKey(KeepRecord)) {
            _store.append(run);
        }
    });
    QObject::connect(&_store, &RecordStore::failed, this, [this](const QString& problem) {
        Q_EMIT hasTrouble(
            tr("What you send cannot be recorded in %1: %2.").arg(_store.path(), problem));
    });
    QObject::connect(&_store, &RecordStore::damageFound, this, [this](const QString& aside) {
        Q_EMIT hasTrouble(tr("The record of what was sent was damaged. It is kept as %1, and a new "
                             "one has been begun.")
                              .arg(aside));
    });
    QObject::connect(&_settings, &SettingsStore::changed, this, [this](const QString& key) {
        if (key == RecordAge.key) {
            followSettings();
        }
    });
    followSettings();
}

/// A text that is no choice, as a hand may write it into the file, is the default.
void SentRecord::followSettings() {
    const auto stored = codeOfChoice(RecordAge.choices, _settings.stringForKey(RecordAge.key));
    const auto months =
        stored != 0
            ? stored
            : codeOfChoice(RecordAge.choices, std::get<QLatin1StringView>(RecordAge.defaultValue));
    _store.keepDays(months * days);
}
