#include "keyer/KeyedWave.h"
#include "keyer/KeyerSettings.h"
#include "keyer/StoredSettings.h"
#include "tests/integration/Station.h"
#include "tests/support/RegisteredTest.h"

#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

using Settings = QList<std::pair<QLatin1StringView, QVariant>>;
/// Times of a key line's edges from the first; every other is an up.
using Edges = std::vector<KeyedWave::Milliseconds>;

Edges edgesOf(const std::vector<KeyedWave::KeyDown>& keyDowns) {
    Edges edges;
    for (const auto& each : keyDowns) {
        edges.insert(edges.end(), {each.begin, each.end});
    }
    return edges;
}

Edges edgesOf(const std::vector<Station::Edge>& keyLine) {
    Edges edges;
    for (const auto& each : keyLine) {
        edges.emplace_back(each.at - keyLine.front().at);
    }
    return edges;
}

/// To the microsecond: the keyer counts whole nanoseconds, which add up to a few over a word.
bool areSame(KeyedWave::Milliseconds one, KeyedWave::Milliseconds other) {
    return std::chrono::abs(one - other) < 1us;
}

} // namespace

/// The picture of the keyed wave against the key line of a keyer with the same settings.
class KeyedWaveWireTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void theKeyerKeysWhatThePictureShows_data();
    void theKeyerKeysWhatThePictureShows();
};

void KeyedWaveWireTest::theKeyerKeysWhatThePictureShows_data() {
    QTest::addColumn<int>("wpm");
    QTest::addColumn<Settings>("settings");
    const auto row = [](const char* name, int wpm, const Settings& settings) {
        QTest::newRow(name) << wpm << settings;
    };

    row("all neutral", 20, {});
    row("the slowest speed of the pot", 13, {});
    row("a speed whose dit is no whole number of ms", 29, {});
    row("heavy", 25, {{WKWeighting, 7}});
    row("light", 25, {{WKWeighting, -13}});
    row("heaviest", 40, {{WKWeighting, 40}});
    row("lightest", 40, {{WKWeighting, -40}});
    row("long dahs", 22, {{WKRatio, 3.99}});
    row("short dahs", 22, {{WKRatio, 1.98}});
    row("compensated", 30, {{WKKeyingCompensation, 11}});
    row("compensated until the gaps are gone", 30, {{WKKeyingCompensation, 40}});
    row("compensated beyond that", 30, {{WKKeyingCompensation, 250}});
    row("a longer first element", 20, {{WKFirstExtension, 35}});
    row("letters faster than their spaces", 15, {{WKFarnsworthSpeed, 24}});
    row("all of them", 18,
        {{WKWeighting, 9},
         {WKRatio, 2.6},
         {WKKeyingCompensation, 5},
         {WKFirstExtension, 21},
         {WKFarnsworthSpeed, 23}});
    row("values that the keyer does not take", 20,
        {{WKWeighting, 41},
         {WKRatio, 1.9},
         {WKKeyingCompensation, 251},
         {WKFirstExtension, 255},
         {WKFarnsworthSpeed, 100}});
}

void KeyedWaveWireTest::theKeyerKeysWhatThePictureShows() {
    QFETCH(const int, wpm);
    QFETCH(const Settings, settings);
    Station station;
    for (const auto& [key, value] : settings) {
        station.settings().setObject(value, key);
    }
    QVERIFY(station.setUp());
    station.setPot(wpm);
    const auto word = u"PARIS73?"_s;
    station.type(word);
    QVERIFY(station.waitForQuiet());
    const auto keyed = edgesOf(station.edges());
    const auto pictured =
        edgesOf(KeyedWave::keyDownsOf(word, KeyedWave::timingOf(StoredSettings(), wpm)));
    QVERIFY(!keyed.empty());
    QCOMPARE(keyed.size(), pictured.size());
    QVERIFY(std::ranges::equal(keyed, pictured, areSame));
}

static const RegisteredTest<KeyedWaveWireTest> registered;
#include "KeyedWaveWireTest.moc"
