#pragma once

#include "record/SavedTable.h"
#include "record/StoredRun.h"

#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>

#include <functional>
#include <memory>
#include <thread>

class RecordFile;
class RunTable;

/// The record of what was sent, on a thread of its own, so that neither a slow disk nor another
/// program's lock holds anything up. The thread begins with the first call, and nothing is opened
/// before.
///
/// What cannot be stored is tried again with the next run, as far as a thousand runs go. Main
/// thread only; whatever calls back does so from the event loop.
class RecordStore final : public QObject {
    Q_OBJECT
  public:
    /// Milliseconds since 1970, UTC; called on the store's thread too.
    using WallClock = std::function<qint64()>;
    template <typename Result>
    using Receiver = std::function<void(const Result&)>;

    /// The data directory's.
    [[nodiscard]] static QString standardPath();

    explicit RecordStore(const QString& path, WallClock wallClock);
    /// Gives what is to be stored some seconds. A disk that takes longer keeps the process from
    /// nothing.
    ~RecordStore() override;

    [[nodiscard]] QString path() const;

    void append(const RecordedRun& run);
    /// Runs go when they are so many days old.
    void keepDays(int days);

    /// The receivers are called unless `context` has ended by then.
    void readNumbers(QObject* context, Receiver<RunNumbers> receiver);
    void read(qint64 first, qint64 last, QObject* context, Receiver<QList<StoredRun>> receiver);
    void read(const QList<qint64>& numbers, QObject* context, Receiver<QList<StoredRun>> receiver);
    /// Of several that wait, the last alone is looked for.
    void find(const QString& words, qsizetype most, QObject* context,
              Receiver<QList<qint64>> receiver);

    /// Writes a table of those runs, or of all if there are none.
    void save(const QString& path, const QList<qint64>& numbers, QObject* context,
              Receiver<SavedTable> receiver);

  Q_SIGNALS:
    /// Runs have been stored, or a new record begun; the numbers of those that there are now.
    void grown(const RunNumbers& numbers);
    /// What is sent cannot be recorded, and why, for the first time.
    void failed(const QString& problem);
    /// The record was damaged, and is kept under that name, for the first time.
    void damageFound(const QString& aside);

  private:
    struct State;
    using Job = std::function<void(RecordFile&)>;

    void begin();
    void add(Job job);
    template <typename Result>
    void ask(QObject* context, Receiver<Result> receiver,
             std::function<Result(RecordFile&)> question);
    static void addPart(const std::shared_ptr<State>& state, const std::shared_ptr<RunTable>& table,
                        Receiver<SavedTable> receiver);
    static void addJob(const std::shared_ptr<State>& state, Job job);
    void takeTrouble(const QString& problem, const QString& aside);

    std::shared_ptr<State> _state;
    std::jthread _thread;
    bool _hasFailed = false;
    bool _hasFoundDamage = false;
};
