#pragma once

#include <QList>
#include <QObject>
#include <QString>

class KeyboardView;
class WinKeyerUsb;

/// Messages that are pressed while the paddle is in use, when the keyer drops what it is sent: they
/// are held until it reports that it is idle, and then go out in the order in which they were
/// pressed, each once, and among the words that the keyboard view holds as they were typed: what is
/// typed behind one of them is held, too. Whatever stops the sending drops them. The number of a
/// message is that of the moment at which it was pressed, as it is for one that goes out at once.
class HeldMessages final : public QObject {
    Q_OBJECT
  public:
    /// `engine` and `view` must outlive this.
    HeldMessages(WinKeyerUsb& engine, KeyboardView& view, QObject* parent);

    /// Sends the message of `control`, which must outlive this, now or once the paddle is free.
    void send(const QObject* control);

    [[nodiscard]] bool isHeld(const QObject* control) const;
    [[nodiscard]] bool isEmpty() const;
    /// What is held is to be sent with that call sign of the other station, whatever is in its
    /// place by then.
    void bindCallsign(const QString& call);

  Q_SIGNALS:
    /// What is held is something else now.
    void changed();

  private:
    [[nodiscard]] QString messageOf(const QObject& control) const;
    /// How many characters are held, those of the view's text apart, and the spaces between.
    [[nodiscard]] qsizetype waitingCount() const;
    void followKeyer();
    void followView();
    void handOver();
    void drop();
    void announce();

    WinKeyerUsb& _engine;
    KeyboardView& _view;
    bool _isViewHolding = false;
    bool _isHandingOver = false;
    /// The control of a message, what is to be sent, and how much of the view's text comes ahead.
    struct Waiting {
        const QObject* control;
        QString message;
        qsizetype textAhead;
    };
    QList<Waiting> _waiting;
};
