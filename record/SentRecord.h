#pragma once

#include "record/RecordStore.h"
#include "record/RunFollower.h"

#include <QObject>

class ChosenSpeed;
class SettingsStore;
class WinKeyerUsb;

/// The record of what was sent in the running program: follows the engine and has each run stored,
/// while the settings say so. Main thread only.
class SentRecord final : public QObject {
    Q_OBJECT
  public:
    /// All must outlive it.
    SentRecord(WinKeyerUsb& engine, const ChosenSpeed& speed, SettingsStore& settings,
               const QString& path);

    [[nodiscard]] RecordStore& store() { return _store; }
    void nameLogger(quint16 port, const QString& name) { _follower.nameLogger(port, name); }

  Q_SIGNALS:
    /// What the operator is told, once, when the record has come to grief.
    void hasTrouble(const QString& notice);

  private:
    void followSettings();

    SettingsStore& _settings;
    RecordStore _store;
    RunFollower _follower;
};
