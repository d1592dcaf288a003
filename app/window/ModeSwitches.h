#pragma once

#include <QObject>
#include <QString>

class QAbstractButton;
class WinKeyerUsb;

/// The switches for pause, high-speed CW and beacon, each in step with the engine's property: the
/// engine pauses by itself, and ends a beacon and high-speed CW. High-speed CW is also on from a
/// "%" in the text on, not while the paddle is in use, and off when a stop or a break-in has put
/// the keyer back to the speed of its pot, of which the engine's property knows nothing. A screen
/// reader toggles a switch without a click, so that it is the change of a switch which counts,
/// where the engine differs.
class ModeSwitches final : public QObject {
    Q_OBJECT
  public:
    struct Buttons {
        QAbstractButton* pause;
        QAbstractButton* hscw;
        QAbstractButton* beacon;
    };

    /// Checkable buttons; they and `engine` must outlive the switches.
    ModeSwitches(WinKeyerUsb& engine, const Buttons& buttons, QObject* parent);

  private:
    void setUpPause(QAbstractButton& button);
    void setUpHSCW(QAbstractButton& button);
    void setUpBeacon(QAbstractButton& button);
    void followKeyer(QAbstractButton& hscw);
    void followText();
    void noteKnobsSpeed();

    WinKeyerUsb& _engine;
    const QString _hscwToolTip;
    /// How far the text has been looked through for the begin of high-speed CW.
    qsizetype _textSeen = 0;
};
