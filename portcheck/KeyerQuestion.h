#pragma once

#include "portcheck/PortJudge.h"
#include "serial/ORSSerialPortDelegate.h"

#include <QByteArray>
#include <QObject>

#include <memory>

class Timer;

/// Asks whether a keyer is on a free port: opens it, has the keyer send a character back, and
/// closes it. Nothing is keyed. It asks twice, for many a board starts anew when its port is opened
/// and hears nothing of the first question. Main thread only.
class KeyerQuestion final : public QObject, public ORSSerialPortDelegate {
    Q_OBJECT
  public:
    /// `portName` is one of the port manager's.
    explicit KeyerQuestion(const QString& portName, QObject* parent = nullptr);
    /// Closes the port, if the question is still open.
    ~KeyerQuestion() override;

    /// answered() follows, from the event loop. A port that is gone or open is not touched.
    void ask();

    void serialPortDidReceiveData(ORSSerialPort& port, const QByteArray& data) override;
    void serialPortWasClosed(ORSSerialPort& port) override;

  Q_SIGNALS:
    void answered(PortJudge::Answer answer);

  private:
    [[nodiscard]] bool open();
    void sendQuestion();
    void finish(PortJudge::Answer answer);
    [[nodiscard]] bool hasPort() const;
    void leave();

    std::shared_ptr<ORSSerialPort> _port;
    std::shared_ptr<Timer> _timer;
    int _questions = 0;
    QByteArray _received;
};
