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
    /// Empties the field of the call sign, and goes to it. A "~" that still waits is sent with the
    /// call that it was meant for: what is typed meanwhile holds behind it.
    void wipeCallsign();
    /// Goes on to the next contact: its number is one more, and the call sign is another one.
    void goToNextContact();

  private:
    void followCallsign();
    void followNumber();
    void handOverCallsign();
    void beginNextCallsign();
    void noteSigns();
    [[nodiscard]] bool isCallsignToBeSent() const;

    WinKeyerUsb& _engine;
    const HeldMessages& _held;
    QLineEdit& _callsign;
    QSpinBox& _number;
    /// Whether the field is that of a contact whose call the engine does not know yet.
    bool _isNextContacts = false;
    /// Index in the engine's text of the last "~" that is still the last contact's.
    qsizetype _lastSign = -1;
};
