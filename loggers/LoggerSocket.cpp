#include "loggers/LoggerSocket.h"

#include "keyer/GeneralSettings.h"
#include "loggers/LoggerQueue.h"
#include "loggers/SocketUsers.h"
#include "platform/Log.h"
#include "platform/SettingsStore.h"

using namespace Qt::StringLiterals;

namespace {

/// A round of the event loop with so many takes a fraction of a millisecond.
constexpr int mostAtATime = 16;

} // namespace

LoggerSocket::LoggerSocket(LoggerQueue& queue, SettingsStore& settings, QObject* parent)
    : QObject(parent), _queue(queue), _settings(settings) {
    for (auto& socket : _sockets) {
        QObject::connect(&socket, &QUdpSocket::readyRead, this, [this, &socket] { read(socket); });
    }
    QObject::connect(&_queue, &LoggerQueue::replied, this, &LoggerSocket::send);
    QObject::connect(&_queue, &LoggerQueue::began, this, &LoggerSocket::noteSender);
    QObject::connect(&_names, &SenderNames::found, this, &LoggerSocket::showSender);
    QObject::connect(&_settings, &SettingsStore::changed, this, &LoggerSocket::followSettings);
    followSettings(AcceptLoggers);
}

bool LoggerSocket::isOpen() const {
    return _sockets.front().state() == QAbstractSocket::BoundState;
}

void LoggerSocket::followSettings(const QString& key) {
    if (key != AcceptLoggers && key != LoggerPort.key) {
        return;
    }
    close();
    if (_settings.boolForKey(AcceptLoggers)) {
        open();
    }
}

/// 0 for what is no port.
quint16 LoggerSocket::port() const {
    const auto number = _settings.doubleForKey(LoggerPort.key);
    const auto& range = *LoggerPort.range;
    const bool isPort = number >= range.minimum && number <= range.maximum;
    return isPort ? static_cast<quint16>(number) : quint16(0);
}

void LoggerSocket::open() {
    if (port() == 0) {
        setNotice(tr("Loggers: there is no such port"));
        return;
    }
    // A machine without the newer address does well with the old one.
    const bool isBound = bind(_sockets[0], QHostAddress(QHostAddress::LocalHost)) &&
                         (bind(_sockets[1], QHostAddress(QHostAddress::LocalHostIPv6)) ||
                          _sockets[1].error() != QAbstractSocket::AddressInUseError);
    if (isBound) {
        setNotice(tr("Loggers: port %1").arg(port()));
        return;
    }
    const auto reason = _sockets[0].state() == QAbstractSocket::BoundState
                            ? _sockets[1].errorString()
                            : _sockets[0].errorString();
    close();
    const auto holder = SocketUsers::of(port());
    logLine(u"The loggers' port %1 cannot be had: %2"_s.arg(port()).arg(reason));
    setNotice(holder.isNull() ? tr("Loggers: port %1 cannot be had: %2").arg(port()).arg(reason)
                              : tr("Loggers: port %1 is taken by %2").arg(port()).arg(holder));
}

void LoggerSocket::close() {
    const bool wasOpen = isOpen();
    if (wasOpen) {
        _queue.reset();
    }
    for (auto& socket : _sockets) {
        socket.close();
    }
    _lastSender.reset();
    setNotice({});
}

bool LoggerSocket::bind(QUdpSocket& socket, const QHostAddress& address) {
    return socket.bind(address, port(), QAbstractSocket::DontShareAddress);
}

/// What is left calls for the next round.
void LoggerSocket::read(QUdpSocket& socket) {
    for (int i = 0; i < mostAtATime && socket.hasPendingDatagrams(); ++i) {
        // One byte more tells what is too long.
        QByteArray datagram(LoggerRequest::longest + 1, Qt::Uninitialized);
        LoggerAddress from;
        const auto size =
            socket.readDatagram(datagram.data(), datagram.size(), &from.host, &from.port);
        if (size > 0 && from.host.isLoopback()) {
            datagram.truncate(size);
            _queue.take(LoggerRequest::read(datagram), from);
        }
    }
}

void LoggerSocket::send(const QByteArray& reply, const LoggerAddress& to) {
    const bool isNewer = to.host.protocol() == QAbstractSocket::IPv6Protocol;
    auto& socket = _sockets.at(isNewer ? 1 : 0);
    if (socket.state() == QAbstractSocket::BoundState) {
        socket.writeDatagram(reply, to.host, to.port);
    }
}

void LoggerSocket::noteSender(const LoggerAddress& logger) {
    if (_lastSender != logger) {
        _lastSender = logger;
        _names.find(logger);
    }
}

void LoggerSocket::showSender(const LoggerAddress& logger, const QString& name) {
    if (!name.isEmpty()) {
        Q_EMIT senderFound(logger.port, name);
    }
    if (!isOpen() || _lastSender != logger) {
        return;
    }
    setNotice(name.isEmpty()
                  ? tr("Loggers: port %1, last from port %2").arg(port()).arg(logger.port)
                  : tr("Loggers: port %1, last from %2").arg(port()).arg(name));
}

void LoggerSocket::setNotice(const QString& notice) {
    if (_notice != notice) {
        _notice = notice;
        Q_EMIT noticeChanged();
    }
}
