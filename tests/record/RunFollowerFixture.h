#pragma once

#include "keyer/ChosenSpeed.h"
#include "keyer/GeneralSettings.h"
#include "keyer/MessageSettings.h"
#include "loggers/LoggerQueue.h"
#include "record/RunFollower.h"
#include "tests/keyer/EngineBench.h"

#include <QTest>

#include <optional>

/// An engine that is followed, and a keyer in the test's hands.
class RunFollowerFixture {
  protected:
    static constexpr int idle = 0xC0;

    class Control : public QObject {
      public:
        explicit Control(int tag) { setProperty("tag", tag); }
    };

    /// Connected, idle.
    void open() {
        _runs.clear();
        _now = 1'000'000;
        _bench.emplace();
        _speed.emplace(engine());
        _follower.emplace(engine(), *_speed, [this] { return _now; });
        QObject::connect(&*_follower, &RunFollower::ended, &*_follower,
                         [this](const RecordedRun& run) { _runs.append(run); });
        QVERIFY(_bench->connect());
        _bench->receive({0x8C});
        _bench->receive({idle});
    }

    void close() {
        _follower.reset();
        _speed.reset();
        _bench.reset();
    }

    [[nodiscard]] WinKeyerUsb& engine() { return _bench->engine(); }

    void echo(int count) {
        for (int i = 0; i < count; ++i) {
            _bench->receive({'?'});
        }
    }

    void echoAll() {
        for (int i = 0;
             engine().unheardIndex() < engine().outputBufferIndex() || engine().isAwaitingEcho();
             ++i) {
            QVERIFY(i < 1000);
            echo(1);
        }
    }

    void rest() { _bench->clock().advance(RunFollower::rest); }

    void press(int number) {
        const Control control(number - 1);
        engine().sendMessage(&control);
    }

    void setMessage(int number, const QString& text) {
        _bench->settings().setObject(
            text, messageSettings.at(static_cast<std::size_t>(number - 1)).textKey);
    }

    [[nodiscard]] QStringList texts() const {
        QStringList all;
        for (const auto& each : _runs) {
            all.append(each.text);
        }
        return all;
    }

    std::optional<EngineBench> _bench;
    std::optional<ChosenSpeed> _speed;
    std::optional<RunFollower> _follower;
    QList<RecordedRun> _runs;
    qint64 _now = 0;
};
