#pragma once

#include "platform/Clock.h"

#include <QObject>

#include <memory>

class WinKeyerUsb;

/// Sees to it that the keyer answers.
///
/// A keyer from which no byte comes after it was greeted is greeted again on the open port, after 2
/// s and once more 5 s later: many a board starts anew when its port is opened, and loses what it
/// is sent meanwhile. One that answers is greeted once. A keyer that does not answer at all is
/// reported, and so is one from which nothing comes for 10 s while a character is on its way to it:
/// the byte may have been lost, or come as another one that put the key down, so the key goes up.
/// Main thread only.
class KeyerWatch final : public QObject {
    Q_OBJECT
  public:
    /// `engine` must outlive the watch.
    KeyerWatch(WinKeyerUsb& engine, QObject* parent);

    /// Forgets the text and greets the keyer anew, as often as after connecting, which then keys
    /// nothing of what it has been given before. A port that is not open is asked for.
    void askAgain();

  Q_SIGNALS:
    /// Nothing has come since the keyer was greeted.
    void neverAnswered();
    /// Nothing has come for long, though a character is on its way.
    void fellSilent();
    /// The keyer has been heard again, or is not there any more.
    void settled();
    /// The keyer's port is closed, and has to be opened again.
    void connectionWanted();

  private:
    void beginGreeting();
    void checkGreeting();
    void hear();
    void followLink();
    void followSending();
    void checkSending();
    void keyUp();
    void report(void (KeyerWatch::*what)());

    WinKeyerUsb& _engine;
    std::size_t _greetings = 0;
    bool _isGreeting = false;
    bool _hasReported = false;
    /// Of life, from either end.
    Clock::Duration _lastSign{0};
    std::shared_ptr<Timer> _greetingTimer;
    std::shared_ptr<Timer> _sendingTimer;
};
