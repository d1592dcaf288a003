#pragma once

#include <QList>
#include <QObject>

class KeyboardView;
class WinKeyerUsb;

/// Messages that are pressed while the paddle is in use, when the keyer drops what it is sent: they
/// are held until it reports that it is idle, and then go out in the order in which they were
/// pressed, each once. The text that the keyboard view holds takes its turn among them. Whatever
/// stops the sending drops them.
class HeldMessages final : public QObject {
    Q_OBJECT
  public:
    /// `engine` and `view` must outlive this.
    HeldMessages(WinKeyerUsb& engine, KeyboardView& view, QObject* parent);

    /// Sends the message of `control`, which must outlive this, now or once the paddle is free.
    void send(const QObject* control);

    [[nodiscard]] bool isHeld(const QObject* control) const { return _waiting.contains(control); }
    [[nodiscard]] bool isEmpty() const { return _waiting.isEmpty(); }

  Q_SIGNALS:
    /// What is held is something else now.
    void changed();

  private:
    void followKeyer();
    void followView();
    void drop();

    WinKeyerUsb& _engine;
    KeyboardView& _view;
    /// Controls of messages, and the view.
    QList<const QObject*> _waiting;
};
