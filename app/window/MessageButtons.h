#pragma once

#include <QList>
#include <QObject>

class HeldMessages;
class MessageButton;
class QAction;
class QLineEdit;
class WinKeyerUsb;

/// The eight message buttons and the items of the menu that press them: they bear the labels of
/// the stored messages, and tell what would be sent now, by what the settings, the serial number
/// and the field of their call are now. The engine has a former call while that is still to be
/// sent.
class MessageButtons final : public QObject {
    Q_OBJECT
  public:
    struct Control {
        MessageButton* button;
        QAction* action;
    };

    /// One control for each stored message, in order, with the message's index as its tag.
    MessageButtons(WinKeyerUsb& engine, HeldMessages& held, const QLineEdit& callsign,
                   const QList<Control>& controls, QObject* parent);

  private:
    void show();
    [[nodiscard]] QString textToBeSent(const QString& stored) const;

    WinKeyerUsb& _engine;
    HeldMessages& _held;
    const QLineEdit& _callsign;
    QList<Control> _controls;
};
