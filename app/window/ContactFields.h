#pragma once

#include <QObject>

class HeldMessages;
class QLineEdit;
class QSpinBox;
class WinKeyerUsb;

/// The other station's call sign and the number of the contact, each in step with the engine.
class ContactFields final : public QObject {
    Q_OBJECT
  public:
    /// All of them must outlive this.
    ContactFields(WinKeyerUsb& engine, const HeldMessages& held, QLineEdit& callsign,
                  QSpinBox& number, QObject* parent);

    /// Has the operator type the call sign anew.
    void goToCallsign();
    /// Forgets the call sign, and goes to its field. A "~" that still waits is sent first, unless
    /// the operator changes the field before.
    void wipeCallsign();
    /// Goes on to the next contact: its number is one more, and the call sign is another one.
    void goToNextContact();

  private:
    void followCallsign();
    void followNumber();
    void wipeIfDue();
    [[nodiscard]] bool isCallsignToBeSent() const;

    WinKeyerUsb& _engine;
    const HeldMessages& _held;
    QLineEdit& _callsign;
    QSpinBox& _number;
    bool _isWipeDue = false;
};
