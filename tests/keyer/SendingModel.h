#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <optional>

/// What the keyer engine is to send, said a second time and as plainly as possible: by recursion
/// and copies, without a line, a settings file or signals. The engine must agree with it.
///
/// Settings and observable state stand in public fields, which a test sets and compares.
class SendingModel {
  public:
    QString myCall;
    QString hscwSpeed;
    QString messages[8];

    QString text;
    qsizetype index = 0;
    QString hisCallsign;
    qint64 serialNumber = 1;
    int pauseState = 0;
    int hscwState = 0;
    int beaconState = 0;

    /// What was written since the last call.
    [[nodiscard]] QByteArray takeWritten();

    /// The operator has made the text what it is now.
    void edit(const QString& newText);
    /// The message button, 0 to 7.
    void pressMessage(int button);
    /// The beacon's time has come.
    void repeatMessage();
    void stop();
    void setPause(int state);
    void stepSerialNumber(int by);
    /// One delivery of bytes from the keyer.
    void receive(const QByteArray& chunk);

  private:
    void write(const QByteArray& bytes) { _written += bytes; }
    [[nodiscard]] QString substituted(const QString& message) const;
    void append(const QString& message);
    void handleStatus(int status);
    void clear();

    void send();
    void sendCallsign();
    void sendText();
    void sendMerged();
    [[nodiscard]] QByteArray characterAt(qsizetype position) const;

    QByteArray _written;
    std::optional<QString> _beaconMessage;
    bool _isSending = false;
    bool _isSendingCallsign = false;
    qsizetype _callsignIndex = 0;
};
