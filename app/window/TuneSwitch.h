#pragma once

#include "platform/Clock.h"

#include <QObject>
#include <QString>

class QAbstractButton;
class WinKeyerUsb;

/// The switch that keys the transmitter steadily, and what lets go of it.
///
/// A keyer holds the key until it is told otherwise, so the switch falls, and the keyer is told,
/// on every way out: when sending is stopped, when something is to be sent, when the keyer tells
/// that the paddle is used or that it keys no more, when it is greeted anew, and when the link
/// goes, be it for a sleep. Switched on, it stops what is being sent. It can be switched on only
/// while there is a keyer whose memory is not being loaded.
class TuneSwitch final : public QObject {
    Q_OBJECT
  public:
    /// `button` is a checkable one; it and `engine` must outlive the switch.
    TuneSwitch(WinKeyerUsb& engine, QAbstractButton& button, QObject* parent);

    /// Keys the transmitter up, at once, if it is keyed down by this switch.
    void letGo();

  private:
    void keyDown();
    void noteBegin();
    void followLink();
    void followStatus(std::uint8_t status);

    WinKeyerUsb& _engine;
    QAbstractButton& _button;
    const QString _toolTip;
    Clock::Duration _since{0};
    /// Whether the keyer has told that it keys, since then.
    bool _isReported = false;
};
