#pragma once

#include "loggers/LoggerAddress.h"
#include "platform/Clock.h"

#include <QObject>
#include <QString>

#include <deque>
#include <memory>
#include <thread>

class MainQueue;

/// Finds the names of the programs that send, one after another, on a thread of its own: a machine
/// with many programs takes long to look through, and a stop waits for nobody's name.
///
/// A program may send from ever other ports, so that it rests between two looks for nine times as
/// long as a look takes. Main thread only.
class SenderNames final : public QObject {
    Q_OBJECT
  public:
    /// Of so many at most it is kept in mind that they are wanted, the latest.
    static constexpr std::size_t mostWanted = 16;
    static constexpr std::chrono::milliseconds shortestRest{100};

    explicit SenderNames(QObject* parent = nullptr);
    ~SenderNames() override;

    void find(const LoggerAddress& logger);

  Q_SIGNALS:
    /// The name is empty where none is found.
    void found(const LoggerAddress& logger, const QString& name);

  private:
    void findNext();
    void tell(const LoggerAddress& logger, const QString& name);

    std::deque<LoggerAddress> _wanted;
    bool _isBusy = false;
    Clock::Duration _begun{};
    std::shared_ptr<MainQueue> _reports;
    std::jthread _look;
};
