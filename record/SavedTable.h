#pragma once

#include <QString>

/// What came of writing runs into a table.
struct SavedTable {
    /// Why there is none; null where there is one.
    QString problem = {};
    /// How many runs it lacks, because the record could not be read.
    qint64 missing = 0;
};
