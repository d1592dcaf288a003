#pragma once

#include "platform/Clock.h"

#include <QObject>

class NoticeStrip;
class WinKeyerUsb;

/// Sees the operator through a sleep of the machine, which stops what is being sent.
///
/// What is entered while the machine sleeps waits, held back by the pause: nothing goes on the air
/// by itself hours later, and none of it is lost. Once the machine is awake, the operator is told
/// what has stopped and what waits.
class SleepNotice final : public QObject {
    Q_OBJECT
  public:
    /// `engine` and `strip` must outlive this.
    SleepNotice(WinKeyerUsb& engine, NoticeStrip& strip, QObject* parent);

    /// The operator is about to switch the pause: it is not the keyer that ends it.
    void settle() { _settled = {}; }

  private:
    void followText();
    void followLink();
    void hold();
    void followPause();
    void tell();

    WinKeyerUsb& _engine;
    NoticeStrip& _strip;
    bool _isAsleep = false;
    bool _hasStopped = false;
    /// Whether what was entered waits for the operator.
    bool _isHolding = false;
    Clock::Duration _settled{0};
};
