#pragma once

#include "keyer/ChosenSpeed.h"
#include "keyer/WinKeyerUsb.h"
#include "loggers/LoggerQueue.h"
#include "tests/keyer/EngineBench.h"

#include <QTest>

#include <optional>
#include <utility>

/// Loggers that share a keyer which is in the test's hands.
class LoggerQueueFixture {
  protected:
    static inline const LoggerAddress one{QHostAddress(QHostAddress::LocalHost), 4001};
    static inline const LoggerAddress other{QHostAddress(QHostAddress::LocalHostIPv6), 4002};

    /// Connected, idle, its knob at 25 wpm.
    void open() {
        using namespace Qt::StringLiterals;
        _bench.emplace();
        _speed.emplace(engine());
        _queue.emplace(engine(), *_speed);
        QObject::connect(&*_queue, &LoggerQueue::replied, &*_queue,
                         [this](const QByteArray& reply, const LoggerAddress& to) {
                             QVERIFY(reply.endsWith("\r\n"));
                             const auto text = QString::fromLatin1(reply.chopped(2));
                             _replies.append(u"%1 %2"_s.arg(to.port).arg(text));
                         });
        QVERIFY(_bench->connect());
        _bench->receive({0x8C});
        _bench->receive({0xC0});
        static_cast<void>(_bench->written());
        _replies.clear();
    }

    void close() {
        _queue.reset();
        _speed.reset();
        _bench.reset();
    }

    [[nodiscard]] WinKeyerUsb& engine() { return _bench->engine(); }

    void take(const QByteArray& datagram, const LoggerAddress& from = one) {
        _queue->take(LoggerRequest::read(datagram), from);
    }

    /// Echoes so many characters, and returns what the engine has written since.
    QByteArray echo(int count = 1) {
        for (int i = 0; i < count; ++i) {
            _bench->receive({'?'});
        }
        return _bench->written();
    }

    /// The replies since the last call, as "4001 h1".
    [[nodiscard]] QStringList replies() { return std::exchange(_replies, {}); }

    std::optional<EngineBench> _bench;
    std::optional<ChosenSpeed> _speed;
    std::optional<LoggerQueue> _queue;
    QStringList _replies;
};
