#pragma once

#include "platform/Clock.h"
#include "record/RecordedRun.h"
#include "record/TextOrigins.h"

#include <QHash>
#include <QObject>

#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

class ChosenSpeed;
class Timer;
class WinKeyerUsb;

/// Makes runs of what the engine has keyed: it listens to the engine, and tells it nothing.
///
/// A run ends when the keyer has told that all of it is sent, or something has cut it short. What
/// is typed, by the operator or by a logger that sends as its operator types, goes on with the same
/// run until the keyer has had nothing to send for a while, or somebody else sends. Main thread
/// only.
class RunFollower final : public QObject {
    Q_OBJECT
  public:
    /// Milliseconds since 1970, UTC.
    using WallClock = std::function<qint64()>;

    /// How long a rest ends a typed run.
    static constexpr std::chrono::seconds rest{3};

    /// Both must outlive this.
    RunFollower(WinKeyerUsb& engine, const ChosenSpeed& speed, WallClock wallClock,
                QObject* parent = nullptr);

    /// The program that sends from that port, which runs that end from now on are named after.
    void nameLogger(quint16 port, const QString& name);

  Q_SIGNALS:
    void ended(const RecordedRun& run);

  private:
    using Origin = TextOrigins::Origin;
    using Ending = RecordedRun::Ending;
    struct Run {
        Origin origin;
        RecordedRun recorded;
    };
    /// What was handed to the keyer in one piece, and has not been told to be sent.
    struct Unit {
        std::shared_ptr<Run> run;
        /// With a call sign in place of its token, as far as that has been handed over.
        QString text;
        /// How many characters of the engine's text it is.
        qsizetype length = 1;
        bool isCall = false;
        bool hasEcho = true;
        /// Of a call sign's letters that have been handed over, those without an echo.
        qsizetype unheard = 0;
    };

    void followText();
    void followProgress();
    void followKeyer();
    void takeUpTo(qsizetype index);
    [[nodiscard]] Unit unitAt(qsizetype position);
    void takeBack(qsizetype length);
    void confirm(qsizetype inFlight);
    void confirmFirst();
    void cutShort(Ending ending);
    void takeWhatIsUnderWay();
    void leaveOutUnheardOfCall();
    void endFinishedRuns();
    [[nodiscard]] bool isThrough(const Run& run) const;
    [[nodiscard]] QString restOf(const Run& run) const;
    [[nodiscard]] QString restOfCall() const;
    [[nodiscard]] std::shared_ptr<Run> runOf(const Origin& origin);
    void noteSpeed(RecordedRun& run) const;
    [[nodiscard]] QString nameOf(const TextSource& source) const;
    void waitForMore(const std::shared_ptr<Run>& run);
    void end(const std::shared_ptr<Run>& run, Ending ending, const QString& left);

    WinKeyerUsb& _engine;
    const ChosenSpeed& _speed;
    WallClock _wallClock;
    TextOrigins _origins;
    /// Up to where the engine's text has been handed to the keyer, as far as it is known here.
    qsizetype _taken = 0;
    std::deque<Unit> _inFlight;
    /// In the order in which they began.
    std::vector<std::shared_ptr<Run>> _runs;
    std::shared_ptr<Timer> _restTimer;
    bool _isLinkEnding = false;
    /// By port.
    QHash<int, QString> _loggers;
};
