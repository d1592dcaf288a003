#pragma once

#include <QStringList>
#include <QtGlobal>

/// Keeps what is written to the log, in the place of the log, while it lives. One at a time.
class LogKeeper {
  public:
    LogKeeper();
    LogKeeper(const LogKeeper&) = delete;
    LogKeeper& operator=(const LogKeeper&) = delete;
    ~LogKeeper();

    [[nodiscard]] QStringList lines() const;

  private:
    QtMessageHandler _previous;
};
