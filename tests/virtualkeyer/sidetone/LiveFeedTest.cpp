#include "virtualkeyer/sidetone/LiveFeed.h"

#include "tests/support/RegisteredTest.h"

#include <QTest>

#include <algorithm>
#include <vector>

using namespace std::chrono_literals;
using namespace virtualkeyer;

namespace {

constexpr int rate = 48'000;
constexpr std::size_t cushion = 240;
constexpr std::size_t storeSize = 960;
constexpr std::int64_t edge = 240; // samples

/// A device that plays what it was given, `speed` times as fast as it should, and what it has
/// played.
class Device {
  public:
    explicit Device(double speed = 1) : _speed(speed) {}

    void play(Time duration) {
        _debt += static_cast<double>(duration.count()) * rate / 1e9 * _speed;
        for (; _debt >= 1; _debt -= 1) {
            _isDry = _isDry || _stored == 0;
            _stored -= _stored > 0 ? 1 : 0;
        }
    }
    void give(const std::vector<std::int16_t>& samples) {
        _stored += samples.size();
        played.insert(played.end(), samples.begin(), samples.end());
    }
    [[nodiscard]] std::size_t stored() const { return _stored; }
    [[nodiscard]] std::size_t room() const { return storeSize - _stored; }
    /// Whether it has had nothing to play since the last call.
    [[nodiscard]] bool takeDry() { return std::exchange(_isDry, false); }

    std::vector<std::int16_t> played;

  private:
    double _speed;
    double _debt = 0;
    std::size_t _stored = 0;
    bool _isDry = false;
};

/// How long each tone and each silence after it is, in samples.
std::vector<std::int64_t> lengthsIn(const std::vector<std::int16_t>& samples) {
    std::vector<std::int64_t> edges;
    std::int64_t last = -1000;
    for (std::int64_t i = 0; i < static_cast<std::int64_t>(samples.size()); ++i) {
        if (samples[static_cast<std::size_t>(i)] == 0) {
            continue;
        }
        if (i - last > 100) {
            if (!edges.empty()) {
                edges.push_back(last + 1);
            }
            edges.push_back(i);
        }
        last = i;
    }
    edges.push_back(last + 1);
    std::vector<std::int64_t> lengths;
    for (std::size_t i = 1; i < edges.size(); ++i) {
        lengths.push_back(edges[i] - edges[i - 1]);
    }
    return lengths;
}

/// Plays dits of 40 ms, 40 ms apart, in words of five with 300 ms between, fed every 3 ms.
void keyDits(LiveFeed& feed, Device& device, int words) {
    Time key = 100ms;
    bool isDown = false;
    int left = 2 * 5 * words;
    for (Time now{0}; left > 0 || now < key; now += 3ms) {
        device.play(3ms);
        // What happens is noticed now, and was earlier.
        for (; left > 0 && key <= now; --left) {
            isDown = !isDown;
            feed.setTone(isDown ? 800 : 0, key);
            key += left % 10 == 1 ? 300ms : 40ms;
        }
        device.give(feed.next(now, device.room(), device.stored()));
    }
}

} // namespace

class LiveFeedTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void elementsKeepTheirLengthToASample_data();
    void elementsKeepTheirLengthToASample();
    void aSilenceFillsTheStore();
    void whatWasKeyedIsHeardWithinTheStore();
    void aDeviceThatWasHeldUpCatchesUpInTheSilence();
    void aDeviceThatTakesNothingForAnHourIsKeptNoHour();
    void aDeviceThatWasHeldUpInAToneHearsThePresent();
    void itIsSilentOnceAllWasDealtOut();
    void theVolumeIsOneOfTheWholeScale();
};

void LiveFeedTest::elementsKeepTheirLengthToASample_data() {
    QTest::addColumn<double>("speed");
    QTest::newRow("a true clock") << 1.0;
    QTest::newRow("a fast device") << 1.001;
    QTest::newRow("a slow device") << 0.999;
}

/// However the clocks differ; the silences give and take what they differ by, which is little each
/// time.
void LiveFeedTest::elementsKeepTheirLengthToASample() {
    QFETCH(double, speed);
    LiveFeed feed(rate, cushion);
    Device device(speed);
    keyDits(feed, device, 50);
    const auto lengths = lengthsIn(device.played);
    QCOMPARE(lengths.size(), std::size_t{2 * 5 * 50 - 1});
    for (std::size_t i = 0; i < lengths.size(); ++i) {
        const bool isTone = i % 2 == 0;
        const std::int64_t dit = 40 * rate / 1000;
        const std::int64_t space = i % 10 == 9 ? 300 * rate / 1000 : dit;
        // The quietest samples of an edge are zeros. A word lasts 35,000 samples, of which the
        // clocks differ in 35.
        const std::int64_t expected = isTone ? dit + edge : space - edge;
        QVERIFY2(std::abs(lengths[i] - expected) <= 60,
                 qPrintable(QStringLiteral("%1: %2").arg(i).arg(lengths[i])));
        QVERIFY(!isTone || lengths[i] == lengths[0]);
    }
}

void LiveFeedTest::aSilenceFillsTheStore() {
    LiveFeed feed(rate, cushion);
    const auto samples = feed.next(0ms, storeSize, 0);
    QCOMPARE(samples, std::vector<std::int16_t>(cushion));
    QCOMPARE(feed.next(0ms, storeSize - cushion, cushion), std::vector<std::int16_t>());
    QCOMPARE(feed.next(0ms, 10, cushion - 100).size(), std::size_t{10});
}

void LiveFeedTest::whatWasKeyedIsHeardWithinTheStore() {
    LiveFeed feed(rate, cushion);
    Device device;
    for (Time now{0}; now < std::chrono::milliseconds{300}; now += 3ms) {
        device.play(3ms);
        if (now == std::chrono::milliseconds{198}) {
            feed.setTone(800, 197ms);
        }
        device.give(feed.next(now, device.room(), device.stored()));
        if (device.played.back() != 0) {
            // What is stored is all that stands between the key and the ear.
            QVERIFY(now <= std::chrono::milliseconds{201});
            QVERIFY(device.stored() <= cushion + 3 * rate / 1000);
            return;
        }
    }
    QFAIL("nothing is heard");
}

void LiveFeedTest::aDeviceThatWasHeldUpCatchesUpInTheSilence() {
    LiveFeed feed(rate, cushion);
    static_cast<void>(feed.next(0ms, storeSize, 0));
    static_cast<void>(feed.next(10ms, storeSize, cushion));
    // It takes nothing for a second, and then has room for 20 ms.
    QCOMPARE(feed.next(1000ms, storeSize, cushion).size(), storeSize);
    feed.setTone(800, 1000ms);
    const auto samples = feed.next(1010ms, storeSize, cushion);
    QCOMPARE(samples.size(), std::size_t{10 * rate / 1000});
    QVERIFY(std::ranges::any_of(samples, [](std::int16_t each) { return each > 1000; }));
}

void LiveFeedTest::aDeviceThatTakesNothingForAnHourIsKeptNoHour() {
    LiveFeed feed(rate, cushion);
    for (Time now{0}; now < 1h; now += 60ms) {
        feed.setTone(now / Time{60ms} % 2 == 0 ? 800 : 0, now);
        QCOMPARE(feed.next(now, 0, storeSize).size(), std::size_t{0});
        QVERIFY(feed.waiting() <= 18);
    }
}

void LiveFeedTest::aDeviceThatWasHeldUpInAToneHearsThePresent() {
    LiveFeed feed(rate, cushion);
    feed.setTone(800, 0ms);
    static_cast<void>(feed.next(10ms, storeSize, 0));
    feed.setTone(0, 5000ms);
    QVERIFY(!feed.isSilent());
    static_cast<void>(feed.next(9990ms, storeSize, cushion));
    // What is left is the tone's end, and nothing of the ten seconds.
    const auto samples = feed.next(10s, storeSize, cushion);
    QCOMPARE(samples.size(), std::size_t{10 * rate / 1000});
    QVERIFY(std::ranges::all_of(samples, [](std::int16_t each) { return each == 0; }));
}

void LiveFeedTest::itIsSilentOnceAllWasDealtOut() {
    LiveFeed feed(rate, cushion);
    QVERIFY(feed.isSilent());
    feed.setTone(800, 10ms);
    feed.setTone(0, 20ms);
    QVERIFY(!feed.isSilent());
    static_cast<void>(feed.next(15ms, storeSize, 0));
    QVERIFY(!feed.isSilent());
    static_cast<void>(feed.next(30ms, storeSize, 0));
    QVERIFY(feed.isSilent());
    QCOMPARE(feed.waiting(), std::size_t{0});
}

void LiveFeedTest::theVolumeIsOneOfTheWholeScale() {
    for (const double volume : {0.0, 0.25, 1.0}) {
        LiveFeed feed(rate, 0);
        feed.setVolume(volume);
        feed.setTone(800, 0ms);
        const auto samples = feed.next(20ms, storeSize, 0);
        QVERIFY(std::abs(*std::ranges::max_element(samples) - volume * 32'767) < 200);
    }
}

static const RegisteredTest<LiveFeedTest> registered;
#include "LiveFeedTest.moc"
