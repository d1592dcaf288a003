#include "virtualkeyer/sidetone/SidetoneRenderer.h"

#include "tests/support/RegisteredTest.h"
#include "virtualkeyer/core/Keyer.h"

#include <QTest>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <string_view>
#include <vector>

using namespace std::chrono_literals;
using namespace virtualkeyer;

namespace {

/// Where a tone sounds: its first sample, and the first of the silence after it.
struct Sound {
    std::int64_t begin;
    std::int64_t end;
    bool operator==(const Sound&) const = default;
};

std::vector<float> rendered(SidetoneRenderer& renderer, std::int64_t count) {
    std::vector<float> samples(static_cast<std::size_t>(count));
    renderer.render(samples);
    return samples;
}

std::vector<Sound> soundsIn(const std::vector<float>& samples) {
    // A wave passes through 0, but does not rest there.
    constexpr std::int64_t rest = 3;
    std::vector<Sound> sounds;
    for (std::int64_t i = 0; i < static_cast<std::int64_t>(samples.size()); ++i) {
        if (samples[static_cast<std::size_t>(i)] == 0.0F) {
            continue;
        }
        if (sounds.empty() || i - sounds.back().end > rest) {
            sounds.push_back({i, i});
        }
        sounds.back().end = i + 1;
    }
    return sounds;
}

/// What a keyer sounds like that a host has set up and given a text, and when its key moved.
struct Keying {
    explicit Keying(std::initializer_list<int> settings, std::string_view text) {
        for (const int byte : settings) {
            keyer.receive(static_cast<std::uint8_t>(byte), Time{0});
        }
        for (const char character : text) {
            keyer.receive(static_cast<std::uint8_t>(character), Time{0});
        }
    }

    void runUntil(Time end) {
        keyer.advance(end);
        for (const Event& event : keyer.takeEvents()) {
            if (const auto* tone = std::get_if<Tone>(&event.what)) {
                renderer.setTone(tone->frequency, event.at);
                pitches.push_back(tone->frequency);
            }
            if (std::holds_alternative<KeyLine>(event.what)) {
                edges.push_back(event.at);
            }
        }
        samples = rendered(renderer, renderer.sampleAt(end));
    }

    Keyer keyer;
    SidetoneRenderer renderer{48'000};
    std::vector<Time> edges;
    std::vector<int> pitches;
    std::vector<float> samples;
};

double rms(const std::vector<float>& samples, std::int64_t begin, std::int64_t end) {
    double sum = 0;
    for (std::int64_t i = begin; i < end; ++i) {
        sum += std::pow(samples[static_cast<std::size_t>(i)], 2);
    }
    return std::sqrt(sum / static_cast<double>(end - begin));
}

} // namespace

class SidetoneRendererTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void everyElementSoundsAtTheSampleOfItsTime_data();
    void everyElementSoundsAtTheSampleOfItsTime();
    void anEdgeIsARaisedCosineOfFiveMilliseconds();
    void aDitShorterThanItsEdgesHasNoClick();
    void theHostSetsThePitch();
    void onlyThePaddleSoundsWhenSetSo();
    void itDoesNotMatterInWhatPiecesItIsRendered();
    void aChangeThatComesLateTakesEffectAtOnce();
    void timesOfDaysAreStillExact();
};

void SidetoneRendererTest::everyElementSoundsAtTheSampleOfItsTime_data() {
    QTest::addColumn<int>("wpm");
    for (const int wpm : {15, 25, 40, 99}) {
        QTest::addRow("%d", wpm) << wpm;
    }
}

void SidetoneRendererTest::everyElementSoundsAtTheSampleOfItsTime() {
    QFETCH(int, wpm);
    Keying keying({0x00, 2, 0x02, wpm}, "PARIS 5NN");
    keying.runUntil(20s);
    const std::vector<Sound> sounds = soundsIn(keying.samples);
    QCOMPARE(keying.edges.size(), 2 * sounds.size());
    QCOMPARE(sounds.size(), std::size_t{23});
    constexpr std::int64_t edge = 240; // samples of 5 ms
    for (std::size_t i = 0; i < sounds.size(); ++i) {
        QCOMPARE(sounds[i].begin, keying.renderer.sampleAt(keying.edges[2 * i]));
        QCOMPARE(sounds[i].end, keying.renderer.sampleAt(keying.edges[2 * i + 1]) + edge);
    }
}

void SidetoneRendererTest::anEdgeIsARaisedCosineOfFiveMilliseconds() {
    SidetoneRenderer renderer(48'000);
    renderer.setTone(1000, 10ms);
    renderer.setTone(0, 110ms);
    const auto samples = rendered(renderer, 48 * 150);
    // Of each of the tone's periods, 48 samples, the greatest.
    const auto peak = [&samples](std::int64_t begin) {
        const auto first = samples.begin() + begin;
        return *std::max_element(first, first + 48);
    };
    for (std::int64_t period = 0; period < 5; ++period) {
        // It stands a quarter of the period after its beginning.
        const double expected =
            (1 - std::cos(std::numbers::pi * (static_cast<double>(period) + 0.25) / 5)) / 2;
        QVERIFY(std::abs(peak(480 + 48 * period) - expected) < 0.03);
        QVERIFY(std::abs(peak(480 + 4800 + 48 * period) - (1 - expected)) < 0.03);
    }
    QVERIFY(std::abs(peak(480 + 240) - 1) < 0.005);
    QVERIFY(std::abs(peak(480 + 4700) - 1) < 0.005);
}

void SidetoneRendererTest::aDitShorterThanItsEdgesHasNoClick() {
    SidetoneRenderer renderer(48'000);
    renderer.setTone(600, 10ms);
    renderer.setTone(0, 12ms);
    renderer.setTone(600, 13ms);
    renderer.setTone(0, 14ms);
    const auto samples = rendered(renderer, 48 * 30);
    float greatest = 0;
    for (std::size_t i = 1; i < samples.size(); ++i) {
        greatest = std::max(greatest, std::abs(samples[i] - samples[i - 1]));
    }
    // The steepest that a full wave of 600 Hz has.
    QVERIFY(greatest > 0);
    QVERIFY(greatest < 2 * std::numbers::pi * 600 / 48'000);
}

void SidetoneRendererTest::theHostSetsThePitch() {
    for (const int number : {4, 5, 10}) {
        Keying keying({0x00, 2, 0x02, 20, 0x01, number}, "T");
        keying.runUntil(1s);
        const auto begin = static_cast<std::ptrdiff_t>(soundsIn(keying.samples).front().begin);
        int crossings = 0;
        // A tenth of a second within the dah.
        for (std::ptrdiff_t i = begin + 1000; i < begin + 1000 + 4800; ++i) {
            const auto at = static_cast<std::size_t>(i);
            crossings += keying.samples[at] < 0 && keying.samples[at + 1] >= 0 ? 1 : 0;
        }
        QVERIFY(std::abs(crossings - 400 / number) <= 1);
    }
}

void SidetoneRendererTest::onlyThePaddleSoundsWhenSetSo() {
    Keying keying({0x00, 2, 0x02, 20, 0x01, 0x85}, "T");
    keying.runUntil(1s);
    QCOMPARE(keying.edges.size(), std::size_t{2});
    QVERIFY(soundsIn(keying.samples).empty());
    keying.keyer.setPaddle(true, false, 1s);
    keying.keyer.setPaddle(false, false, 1030ms);
    keying.runUntil(2s);
    QCOMPARE(soundsIn(keying.samples).size(), std::size_t{1});
}

void SidetoneRendererTest::itDoesNotMatterInWhatPiecesItIsRendered() {
    SidetoneRenderer whole(44'100);
    SidetoneRenderer pieces(44'100);
    for (SidetoneRenderer* each : {&whole, &pieces}) {
        each->setTone(800, 3ms);
        each->setTone(0, 20ms);
    }
    const auto expected = rendered(whole, 2000);
    std::vector<float> samples;
    for (const std::int64_t size : {1, 130, 0, 7, 862, 1000}) {
        const auto piece = rendered(pieces, size);
        samples.insert(samples.end(), piece.begin(), piece.end());
    }
    QCOMPARE(samples, expected);
}

void SidetoneRendererTest::aChangeThatComesLateTakesEffectAtOnce() {
    SidetoneRenderer renderer(48'000);
    static_cast<void>(rendered(renderer, 4800));
    renderer.setTone(800, 50ms);
    const auto samples = rendered(renderer, 480);
    QVERIFY(soundsIn(samples).front() == (Sound{0, 480}));
    QVERIFY(rms(samples, 240, 480) > 0.6);
}

void SidetoneRendererTest::timesOfDaysAreStillExact() {
    const SidetoneRenderer renderer(48'000);
    constexpr std::int64_t day = 24 * 3600;
    QCOMPARE(renderer.sampleAt(std::chrono::hours{24'000} + std::chrono::milliseconds{1}),
             day * 1000 * 48'000 + 48);
    QCOMPARE(renderer.sampleAt(10416ns), 0);
    QCOMPARE(renderer.sampleAt(10417ns), 1);
}

static const RegisteredTest<SidetoneRendererTest> registered;
#include "SidetoneRendererTest.moc"
