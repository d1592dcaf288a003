#pragma once

#include "loggers/LoggerAddress.h"
#include "loggers/SenderNames.h"

#include <QObject>
#include <QString>
#include <QUdpSocket>

#include <array>
#include <optional>

class LoggerQueue;
class SettingsStore;

/// Hears loggers on the loopback addresses of this machine, and on nothing else, while the settings
/// say so. Of what comes it takes a few datagrams at a time, so that a flood of them delays nothing
/// else. Main thread only.
class LoggerSocket final : public QObject {
    Q_OBJECT
  public:
    /// Both must outlive this.
    LoggerSocket(LoggerQueue& queue, SettingsStore& settings, QObject* parent = nullptr);

    /// What the operator is told of it, in a sentence; empty while it is switched off.
    [[nodiscard]] QString notice() const { return _notice; }
    /// Whether it hears loggers now.
    [[nodiscard]] bool isOpen() const;

    /// Ends what a logger has being sent, and hears nobody any more until a setting changes.
    void close();

  Q_SIGNALS:
    void noticeChanged();
    /// The name of the program that sends from that port.
    void senderFound(quint16 port, const QString& name);

  private:
    void followSettings(const QString& key);
    void open();
    [[nodiscard]] bool bind(QUdpSocket& socket, const QHostAddress& address);
    void read(QUdpSocket& socket);
    void send(const QByteArray& reply, const LoggerAddress& to);
    void noteSender(const LoggerAddress& logger);
    void showSender(const LoggerAddress& logger, const QString& name);
    void setNotice(const QString& notice);
    [[nodiscard]] quint16 port() const;

    LoggerQueue& _queue;
    SettingsStore& _settings;
    /// One for each loopback address.
    std::array<QUdpSocket, 2> _sockets;
    QString _notice;
    std::optional<LoggerAddress> _lastSender;
    SenderNames _names;
};
