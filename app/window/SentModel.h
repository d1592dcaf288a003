#pragma once

#include "record/StoredRun.h"

#include <QAbstractTableModel>
#include <QCache>
#include <QList>
#include <QSet>
#include <QString>

#include <optional>

class RecordStore;

/// The record as a table, the newest run first: all of it, or the runs that contain some words.
///
/// Only what is looked at is read, a page at a time, so that a million runs open as quickly as one.
/// A row that is on its way is empty until it is there.
class SentModel final : public QAbstractTableModel {
    Q_OBJECT
  public:
    /// As many are found, at most.
    static constexpr qsizetype mostFound = 10'000;

    /// `store` must outlive it. Nothing is read before look().
    explicit SentModel(RecordStore& store, QObject* parent = nullptr);

    /// Looks how many runs there are, or for the words again.
    void look();
    /// Shows those that contain these words; all of them for none.
    void setWords(const QString& words);
    [[nodiscard]] bool isSearch() const { return !_words.isEmpty(); }
    /// The run of a row; nothing while it is on its way.
    [[nodiscard]] std::optional<RecordedRun> runAt(int row) const;
    [[nodiscard]] qint64 numberAt(int row) const;
    /// The runs that were found; none while all are shown.
    [[nodiscard]] QList<qint64> found() const { return _found; }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;

  Q_SIGNALS:
    /// What is shown has been counted anew.
    void counted();

  private:
    void takeNumbers(const RunNumbers& numbers);
    void takeFound(const QString& words, const QList<qint64>& found);
    void takeRuns(const QList<qint64>& asked, const QList<StoredRun>& runs);
    void ask(int row) const;
    [[nodiscard]] std::optional<int> rowOf(qint64 number) const;

    RecordStore& _store;
    RunNumbers _numbers;
    QString _words;
    QList<qint64> _found;
    mutable QCache<qint64, RecordedRun> _runs;
    mutable QSet<qint64> _asked;
};
