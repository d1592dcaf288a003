#pragma once

#include "tests/keyer/EngineBench.h"
#include "virtualkeyer/core/KeyLineDecoder.h"
#include "virtualkeyer/pty/SerialKeyer.h"

#include <QByteArray>
#include <QString>

#include <functional>
#include <optional>
#include <vector>

/// A station: the keyer engine and the virtual keyer, joined by a serial port. A byte takes its
/// time on the line in either direction, and nothing else takes any: time passes only as the test
/// says, and the engine answers within the moment.
///
/// The station speaks for the port's delegate, to know when the engine has got a byte.
class Station : public ORSSerialPortDelegate, private virtualkeyer::KeyerListener {
  public:
    using Time = virtualkeyer::Time;

    /// A byte that was handed to the line, or one that arrived over it.
    struct Byte {
        Time at;
        std::uint8_t value;
    };
    /// The transmitter's key line goes down or up.
    struct Edge {
        Time at;
        bool isDown;
    };

    explicit Station(const virtualkeyer::Profile& profile = {},
                     const virtualkeyer::Troubles& troubles = {}, std::uint32_t seed = 1);
    ~Station() override;

    [[nodiscard]] WinKeyerUsb& engine() { return _bench.engine(); }
    [[nodiscard]] ORSSerialPort& port() { return _bench.port(); }
    [[nodiscard]] SettingsStore& settings() { return _bench.settings(); }
    [[nodiscard]] const virtualkeyer::Registers& registers() const {
        return _keyer.keyer().registers();
    }
    [[nodiscard]] TestPlatform& platform() { return _bench.platform(); }
    [[nodiscard]] Time now() const { return _now; }
    /// How many timers of the engine's are still to fire.
    [[nodiscard]] int pendingTimers() {
        return static_cast<int>(_bench.clock().pendingTimers().size());
    }

    /// Connects; what the keyer answers comes as time passes.
    [[nodiscard]] bool connect();
    /// Disconnects, which takes its time.
    [[nodiscard]] bool disconnect();
    /// Connects, lets the keyer answer, and forgets all of it.
    [[nodiscard]] bool setUp();

    /// Takes the port away; the line works on.
    void unplug() { platform().devices().unplug(_bench.device()); }

    /// The operator changes the text.
    void type(const QString& text) { _bench.type(text); }
    void setPaddle(bool dit, bool dah);
    void setPot(int wpm);
    /// Bits 0, 1, 2 and 4.
    void setPushButtons(int mask);

    /// These are the line's troubles from now on.
    void setTroubles(const virtualkeyer::Troubles& troubles);

    /// Lets time pass.
    void pass(Time duration);
    /// Lets time pass until `condition` holds; false when it does not within ten minutes.
    [[nodiscard]] bool waitUntil(const std::function<bool()>& condition);
    /// Lets time pass until keyer and line are quiet; what a timer of the engine would do does not
    /// count. False when that takes more than ten minutes.
    [[nodiscard]] bool waitForQuiet();

    /// What the keyer has keyed since the last call, as read from its key line.
    [[nodiscard]] QString keyed();
    [[nodiscard]] bool isKeyDown() const { return !_edges.empty() && _edges.back().isDown; }
    [[nodiscard]] const std::vector<Edge>& edges() const { return _edges; }

    /// What the engine has written since the last call, as "13 0a".
    [[nodiscard]] QByteArray written();
    /// What has arrived from the keyer since the last call.
    [[nodiscard]] QByteArray received();
    /// All of it since setUp(), with times.
    [[nodiscard]] const std::vector<Byte>& allWritten() const { return _written; }
    [[nodiscard]] const std::vector<Byte>& allReceived() const { return _received; }

    /// Forgets what was written, received and keyed, as a run of many hours must.
    void forget();

    void serialPortDidReceiveData(ORSSerialPort& port, const QByteArray& data) override;
    void serialPortWasOpened(ORSSerialPort& port) override;
    void serialPortWillBeClosed(ORSSerialPort& port) override;
    void serialPortWasRemovedFromSystem(ORSSerialPort& port) override;

  private:
    [[nodiscard]] std::optional<Time> nextOnTheLine() const;
    [[nodiscard]] std::optional<Time> nextEvent();
    void nap(Time duration);
    void moveTo(Time time);
    void runLine();
    void takeFromEngine();
    void keyerDid(const virtualkeyer::Event& event,
                  const virtualkeyer::Registers& registers) override;
    void deliver(const std::vector<std::uint8_t>& bytes);

    EngineBench _bench;
    virtualkeyer::SerialKeyer _keyer;
    virtualkeyer::KeyLineDecoder _decoder;
    int _nearEnd;
    Time _now{0};
    bool _isNapping = false;
    qsizetype _undelivered = 0;

    std::vector<Edge> _edges;
    std::vector<Byte> _written;
    std::vector<Byte> _received;
    std::size_t _writtenTold = 0;
    std::size_t _receivedTold = 0;
    std::string _keyed;
};
