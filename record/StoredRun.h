#pragma once

#include "record/RecordedRun.h"

/// A run as the file holds it. Runs are numbered one by one, in the order in which they ended.
struct StoredRun {
    qint64 number = 0;
    RecordedRun run;

    [[nodiscard]] friend bool operator==(const StoredRun&, const StoredRun&) = default;
};

/// The numbers of the oldest and the newest run that there are; the first is behind the last where
/// there is none.
struct RunNumbers {
    qint64 first = 1;
    qint64 last = 0;

    [[nodiscard]] qint64 count() const { return last - first + 1; }
    [[nodiscard]] friend bool operator==(const RunNumbers&, const RunNumbers&) = default;
};
