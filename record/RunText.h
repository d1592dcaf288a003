#pragma once

#include "record/RecordedRun.h"

#include <QCoreApplication>
#include <QString>

/// What the operator reads of a run. Any thread.
class RunText {
    Q_DECLARE_TR_FUNCTIONS(RunText)
  public:
    enum Column { Begun, Text, Speed, Sender, Ending, Columns };

    [[nodiscard]] static QString heading(Column column);
    [[nodiscard]] static QString of(const RecordedRun& run, Column column);

  private:
    [[nodiscard]] static QString begun(const RecordedRun& run);
    [[nodiscard]] static QString speed(const RecordedRun& run);
    [[nodiscard]] static QString sender(const RecordedRun& run);
    [[nodiscard]] static QString ending(const RecordedRun& run);
};
