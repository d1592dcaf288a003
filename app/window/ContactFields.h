#pragma once

#include <QList>
#include <QObject>
#include <QString>

class HeldMessages;
class QLineEdit;
class QSpinBox;
class WinKeyerUsb;

/// The other station's call sign and the number of the contact, each in step with the engine.
class ContactFields final : public QObject {
    Q_OBJECT
  public:
    /// All of them must outlive this.
    ContactFields(WinKeyerUsb& engine, HeldMessages& held, QLineEdit& callsign, QSpinBox& number,
                  QObject* parent);

    /// Has the operator type the call sign anew.
    void goToCallsign();
    /// Empties the field of the call sign, and goes to it. A "~" that still waits is sent as what
    /// stands in the field by then.
    void wipeCallsign();
    /// Goes on to the next contact: its number is one more, and the call sign is another one. Each
    /// "~" that still waits is sent with the call that it was meant for, of however many contacts.
    void goToNextContact();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void followCallsign();
    void followNumber();
    void handOverCallsign();
    void followSending();
    void followText();
    void emptyCallsign();
    void keepCallsign(qsizetype end);
    [[nodiscard]] bool isThrough() const;

    WinKeyerUsb& _engine;
    HeldMessages& _held;
    QLineEdit& _callsign;
    QSpinBox& _number;
    /// A contact whose call is yet to be sent, and where in the text its last "~" ends.
    struct Contact {
        QString call;
        qsizetype end;
    };
    /// Those ahead of the one in the field; the call of the first of them is the engine's.
    QList<Contact> _former;
    /// The engine's text for which their ends are.
    QString _text;
};
