#pragma once

#include "loggers/LoggerAddress.h"
#include "loggers/LoggerRequest.h"
#include "loggers/RequestRate.h"
#include "platform/Clock.h"

#include <QObject>

#include <deque>
#include <memory>
#include <optional>

class ChosenSpeed;
class WinKeyerUsb;

/// Shares the keyer between those who send: the paddle comes first, then the operator, then loggers
/// in the order in which they ask.
///
/// A logger's text is handed to the engine only when all that the operator has sent is keyed, one
/// at a time. Whatever stops the sending drops them all, as does the paddle. While no keyer is
/// there, nobody watches, the operator has it paused or tunes, or uses the paddle, text is not
/// taken, nor kept for later, and neither is what comes faster than any logger sends. Whoever has
/// asked for a reply gets it when the text has been keyed, or is told "break". Main thread only.
class LoggerQueue final : public QObject {
    Q_OBJECT
  public:
    /// How many texts may wait, and how many requests for a reply.
    static constexpr std::size_t mostWaiting = 64;

    /// Both must outlive this.
    LoggerQueue(WinKeyerUsb& engine, ChosenSpeed& speed, QObject* parent = nullptr);
    ~LoggerQueue() override;

    void take(const LoggerRequest::Request& request, const LoggerAddress& from);
    /// Whether somebody sees what is sent and has Stop at hand, as at first. Nothing is taken while
    /// nobody does, and what was taken before is dropped.
    void setWatched(bool isWatched);
    /// Ends what a logger has being sent, and forgets what waits and what was asked for.
    void reset();

  Q_SIGNALS:
    /// To be sent to that logger.
    void replied(const QByteArray& reply, const LoggerAddress& to);
    /// What that logger asked for begins to be keyed.
    void began(const LoggerAddress& logger);

  private:
    struct Entry {
        LoggerAddress from;
        LoggerText text;
        QList<QByteArray> replies;
        /// Of a tune; 0 for a text.
        int tuneSeconds = 0;
    };
    struct Asked {
        LoggerAddress from;
        QByteArray reply;
    };

    void take(const LoggerRequest::Text& text, const LoggerAddress& from);
    void take(const LoggerRequest::Tune& tune, const LoggerAddress& from);
    void take(const LoggerRequest::Reply& reply, const LoggerAddress& from);
    void take(const LoggerRequest::Abort& abort, const LoggerAddress& from);
    void take(const LoggerRequest::WordMode& mode, const LoggerAddress& from);
    void take(const LoggerRequest::Reset& reset, const LoggerAddress& from);
    void take(const LoggerRequest::Speed& speed, const LoggerAddress& from);
    void take(const LoggerRequest::Sidetone& sidetone, const LoggerAddress& from);
    void take(const LoggerRequest::Weighting& weighting, const LoggerAddress& from);
    void take(const LoggerRequest::PttLead& lead, const LoggerAddress& from);
    void take(std::monostate nothing, const LoggerAddress& from);

    [[nodiscard]] QList<QByteArray> takeAskedBy(const LoggerAddress& from);
    [[nodiscard]] bool mayTake() const;
    [[nodiscard]] bool isHeldBack() const;
    [[nodiscard]] bool isEngineFree() const;
    [[nodiscard]] bool isTuning() const { return _current && _current->tuneSeconds != 0; }

    void advance();
    [[nodiscard]] bool advanceOneStep();
    [[nodiscard]] bool begin();
    void beginTune();
    void endTune();
    void handOverNextPiece();
    void handOver(const QString& text);
    [[nodiscard]] bool isPieceKeyed() const;
    void finish();
    void stepSpeed(int steps);
    void settleSpeed();
    void cancelSteps();

    void followText();
    void followTune();
    void followKeyer();
    void followPause();
    void stop();
    void tell(const QByteArray& command);
    void takeOutRest();
    void dropCurrent();
    void dropWaiting();
    void dropAll();
    void drop(const Entry& entry);

    WinKeyerUsb& _engine;
    ChosenSpeed& _speed;
    /// What the engine takes for the operator's switch.
    QObject _tuneSwitch;

    std::deque<Entry> _waiting;
    std::deque<Asked> _asked;
    std::optional<Entry> _current;
    /// Of the current text: how many of its pieces have been handed over, and where the last of
    /// them ends in the engine's text.
    std::size_t _pieces = 0;
    qsizetype _end = 0;
    bool _isJoined = false;
    bool _isHandingOver = false;
    /// By which the current text has changed the speed in the keyer.
    int _speedSteps = 0;
    bool _hasStepped = false;
    /// Who sent what the engine's text ends with.
    std::optional<LoggerAddress> _lastSender;
    QString _engineText;
    std::shared_ptr<Timer> _tuneTimer;
    RequestRate _rate;
    bool _isWordMode = false;
    bool _isWatched = true;
    /// Whether it is for want of room in its buffer that the keyer is paused.
    bool _isKeyersPause = false;
    /// Whether a logger has changed the keyer's parameters, and the speed that one has asked for.
    bool _hasChangedKeyer = false;
    std::optional<int> _askedSpeed;
};
