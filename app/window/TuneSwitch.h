#pragma once

#include <QObject>

class QAbstractButton;
class WinKeyerUsb;

/// The switch that keys the transmitter steadily, and what lets go of it.
///
/// A keyer holds the key until it is told otherwise, so the switch falls, and the keyer is told,
/// on every way out: when sending is stopped and when the link goes, be it for a sleep.
/// It can be switched on only while there is a keyer.
class TuneSwitch final : public QObject {
    Q_OBJECT
  public:
    /// `button` is a checkable one; it and `engine` must outlive the switch.
    TuneSwitch(WinKeyerUsb& engine, QAbstractButton& button, QObject* parent);

    /// Keys the transmitter up, at once, if it is keyed down by this switch.
    void letGo();

  private:
    void followLink();

    WinKeyerUsb& _engine;
    QAbstractButton& _button;
};
