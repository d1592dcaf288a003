#pragma once

#include "record/SavedTable.h"
#include "record/StoredRun.h"

#include <QCoreApplication>
#include <QList>
#include <QSaveFile>
#include <QString>

class RecordFile;

/// Writes runs into a file of values separated by commas, as RFC 4180 has them, in UTF-8, the
/// oldest first.
///
/// A text that a spreadsheet would take for a formula has an apostrophe ahead of it: what loggers
/// send, anyone on this machine may have made up. One thread.
class RunTable {
    Q_DECLARE_TR_FUNCTIONS(RunTable)
  public:
    /// Of those runs, in any order; of all of the record if there are none.
    RunTable(const QString& path, const QList<qint64>& numbers);

    /// Writes the next thousand; false when there are no more, or something stands in the way.
    [[nodiscard]] bool writeNext(RecordFile& record);
    /// Puts the file in its place.
    [[nodiscard]] SavedTable finish();

    /// A value as it stands in the file.
    [[nodiscard]] static QString field(const QString& value);

  private:
    [[nodiscard]] bool begin(RecordFile& record);
    [[nodiscard]] bool findRange(RecordFile& record);
    void countMissing(RecordFile& record, qint64 end, qsizetype found);
    void writeLine(const QStringList& values);

    QSaveFile _file;
    QList<qint64> _numbers;
    const bool _isAll;
    RunNumbers _range;
    qint64 _next = 0;
    qint64 _missing = 0;
    QString _problem;
};
