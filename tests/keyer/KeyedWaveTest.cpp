#include "keyer/KeyedWave.h"

#include "keyer/KeyerSettings.h"
#include "keyer/StoredSettings.h"
#include "platform/SettingsStore.h"
#include "tests/support/RegisteredTest.h"
#include "tests/support/TestPlatform.h"

#include <QTest>

#include <cmath>
#include <memory>

using namespace KeyedWave;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

using Numbers = QList<double>;

bool isNear(Milliseconds one, double other) {
    return std::abs(one.count() - other) < 1e-6;
}

/// Begin and end of each key-down, in ms.
Numbers numbersOf(const std::vector<KeyDown>& keyDowns) {
    Numbers numbers;
    for (const auto& each : keyDowns) {
        numbers << each.begin.count() << each.end.count();
    }
    return numbers;
}

bool areNear(const Numbers& some, const Numbers& others) {
    return std::equal(some.begin(), some.end(), others.begin(), others.end(),
                      [](double one, double other) { return std::abs(one - other) < 1e-6; });
}

} // namespace

class KeyedWaveTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void lengths_data();
    void lengths();
    void keyDowns_data();
    void keyDowns();
    void settings_data();
    void settings();
    void roundSteps_data();
    void roundSteps();
};

void KeyedWaveTest::lengths_data() {
    QTest::addColumn<Timing>("timing");
    QTest::addColumn<Numbers>("expected"); // dit, dah, gap, letter space
    const auto row = [](const char* name, const Timing& timing, const Numbers& expected) {
        QTest::newRow(name) << timing << expected;
    };

    row("plain keying at 20 wpm", {.wpm = 20}, {60, 180, 60, 180});
    row("plain keying at 25 wpm", {.wpm = 25}, {48, 144, 48, 144});
    row("a weighting of 60 moves a fifth of a dit from gaps to elements",
        {.wpm = 20, .weighting = 60}, {72, 192, 48, 168});
    row("a weighting of 40 moves a fifth of a dit from elements to gaps",
        {.wpm = 20, .weighting = 40}, {48, 168, 72, 192});
    row("the heaviest weighting leaves a fifth of a gap", {.wpm = 20, .weighting = 90},
        {108, 228, 12, 132});
    row("the lightest weighting leaves a fifth of a dit", {.wpm = 20, .weighting = 10},
        {12, 132, 108, 228});
    row("a ratio of 66 makes a dah 3.96 dits", {.wpm = 20, .ratio = 66}, {60, 237.6, 60, 180});
    row("a ratio of 33 makes a dah 1.98 dits", {.wpm = 20, .ratio = 33}, {60, 118.8, 60, 180});
    row("compensation lengthens every element and shortens every gap",
        {.wpm = 20, .compensation = 7ms}, {67, 187, 53, 173});
    row("compensation comes after weighting", {.wpm = 20, .weighting = 60, .compensation = 7ms},
        {79, 199, 41, 161});
    row("the ratio leaves weighting and compensation alone",
        {.wpm = 20, .weighting = 60, .ratio = 40, .compensation = 7ms}, {79, 163, 41, 161});
    row("compensation never makes a gap shorter than nothing", {.wpm = 40, .compensation = 250ms},
        {280, 340, 0, 60});
    row("the first extension is no part of the lengths", {.wpm = 20, .firstExtension = 30ms},
        {60, 180, 60, 180});
    row("a faster Farnsworth speed is that of the letters", {.wpm = 15, .farnsworthWpm = 20},
        {60, 180, 60, 240});
    row("a slower Farnsworth speed does nothing", {.wpm = 20, .farnsworthWpm = 10},
        {60, 180, 60, 180});
}

void KeyedWaveTest::lengths() {
    QFETCH(const Timing, timing);
    QFETCH(const Numbers, expected);
    const auto lengths = lengthsOf(timing);
    QVERIFY(isNear(lengths.dit, expected[0]));
    QVERIFY(isNear(lengths.dah, expected[1]));
    QVERIFY(isNear(lengths.gap, expected[2]));
    QVERIFY(isNear(lengths.letterSpace, expected[3]));
    QCOMPARE(lengths.firstExtension, Milliseconds(timing.firstExtension));
}

void KeyedWaveTest::keyDowns_data() {
    QTest::addColumn<QString>("word");
    QTest::addColumn<Timing>("timing");
    QTest::addColumn<Numbers>("expected");
    const auto row = [](const char* name, const QString& word, const Timing& timing,
                        const Numbers& expected) {
        QTest::newRow(name) << word << timing << expected;
    };

    row("nothing", {}, {}, {});
    row("a dit", u"E"_s, {.wpm = 20}, {0, 60});
    row("elements of a letter are a gap apart", u"A"_s, {.wpm = 20}, {0, 60, 120, 300});
    row("letters are a letter space apart", u"AN"_s, {.wpm = 20},
        {0, 60, 120, 300, 480, 660, 720, 780});
    row("lower case is keyed as upper case", u"an"_s, {.wpm = 20},
        {0, 60, 120, 300, 480, 660, 720, 780});
    row("only the first element is extended", u"AN"_s, {.wpm = 20, .firstExtension = 30ms},
        {0, 90, 150, 330, 510, 690, 750, 810});
    row("weighting keeps the beat", u"AN"_s, {.wpm = 20, .weighting = 60},
        {0, 72, 120, 312, 480, 672, 720, 792});
    row("elements without a gap between them are one", u"AN"_s, {.wpm = 20, .compensation = 60ms},
        {0, 360, 480, 840});
    row("characters without Morse code are passed over", u"#E `\u00c4T~"_s, {.wpm = 20},
        {0, 60, 240, 420});
}

void KeyedWaveTest::keyDowns() {
    QFETCH(const QString, word);
    QFETCH(const Timing, timing);
    QFETCH(const Numbers, expected);
    const auto numbers = numbersOf(keyDownsOf(word, timing));
    const std::unique_ptr<char[]> seen(QTest::toString(numbers));
    QVERIFY2(areNear(numbers, expected), seen.get());
}

void KeyedWaveTest::settings_data() {
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<Timing>("expected");
    const auto row = [](const char* name, QLatin1StringView key, const QVariant& value,
                        const Timing& expected) {
        QTest::newRow(name) << QString(key) << value << expected;
    };
    constexpr int defaultFarnsworth = 10;

    row("defaults are neutral", WKPaddleSwap, true, {.farnsworthWpm = defaultFarnsworth});
    row("weighting is an offset from 50", WKWeighting, -10,
        {.weighting = 40, .farnsworthWpm = defaultFarnsworth});
    row("the ratio is dits a dah", WKRatio, 2.5, {.ratio = 41, .farnsworthWpm = defaultFarnsworth});
    row("compensation is in ms", WKKeyingCompensation, 12,
        {.farnsworthWpm = defaultFarnsworth, .compensation = 12ms});
    row("the first extension is in ms", WKFirstExtension, 250,
        {.farnsworthWpm = defaultFarnsworth, .firstExtension = 250ms});
    row("the Farnsworth speed is in wpm", WKFarnsworthSpeed, 30, {.farnsworthWpm = 30});
    row("a weighting that the keyer does not take counts as neutral", WKWeighting, -60,
        {.farnsworthWpm = defaultFarnsworth});
    row("a ratio that the keyer does not take counts as neutral", WKRatio, 4.5,
        {.farnsworthWpm = defaultFarnsworth});
    row("a compensation that the keyer does not take counts as none", WKKeyingCompensation, 251,
        {.farnsworthWpm = defaultFarnsworth});
    row("a first extension that the keyer does not take counts as none", WKFirstExtension, -1,
        {.farnsworthWpm = defaultFarnsworth});
    row("a Farnsworth speed that the keyer does not take counts as none", WKFarnsworthSpeed, 9, {});
}

void KeyedWaveTest::settings() {
    QFETCH(const QString, key);
    QFETCH(const QVariant, value);
    QFETCH(Timing, expected);
    const TestPlatform platform;
    SettingsStore::standardUserDefaults().registerDefaults(defaultsOf(keyerSettings));
    platform.settings().setObject(value, key);
    expected.wpm = 33;
    QCOMPARE(timingOf(StoredSettings(), 33), expected);
}

void KeyedWaveTest::roundSteps_data() {
    QTest::addColumn<double>("span");
    QTest::addColumn<int>("parts");
    QTest::addColumn<double>("expected");

    QTest::newRow("a step may fit exactly") << 100.0 << 5 << 20.0;
    QTest::newRow("a little more takes the next step") << 100.5 << 5 << 50.0;
    QTest::newRow("steps go on beyond ten") << 780.0 << 6 << 200.0;
    QTest::newRow("one part is the whole") << 999.0 << 1 << 1000.0;
    QTest::newRow("the finest step is 1 ms") << 3.0 << 100 << 1.0;
}

void KeyedWaveTest::roundSteps() {
    QFETCH(const double, span);
    QFETCH(const int, parts);
    QFETCH(const double, expected);
    QVERIFY(isNear(roundStep(Milliseconds(span), parts), expected));
}

static const RegisteredTest<KeyedWaveTest> registered;
#include "KeyedWaveTest.moc"
