#include "keyer/KeyerEncoding.h"
#include "keyer/DefaultSettings.h"
#include "keyer/StoredSettings.h"
#include "tests/support/RegisteredTest.h"
#include "tests/support/TestPlatform.h"

#include <QTest>

#include <optional>

using namespace Qt::StringLiterals;

static_assert(KeyerEncoding::defaultsBlock(DefaultSettings()) ==
              KeyerEncoding::DefaultsBlock{0x15, 0x00, 0x8A, 0x32, 0x00, 0x0A, 0x0D, 0x20, 0x00,
                                           0x00, 0x0A, 0x32, 0x32, 0x06, 0x00});

class KeyerEncodingTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup();

    void storedDefaultsEncodeAsTheCompilerSaysTheyDo();
    void modeRegister_data();
    void modeRegister();
    void sidetone_data();
    void sidetone();
    void pinConfiguration_data();
    void pinConfiguration();
    void values_data();
    void values();

  private:
    void store(const QVariantMap& settings);

    std::optional<TestPlatform> _platform;
};

void KeyerEncodingTest::init() {
    _platform.emplace();
    _platform->settings().registerDefaults(defaultsOf(keyerSettings));
}

void KeyerEncodingTest::cleanup() {
    _platform.reset();
}

void KeyerEncodingTest::store(const QVariantMap& settings) {
    for (const auto& [key, value] : settings.asKeyValueRange()) {
        _platform->settings().setObject(value, key);
    }
}

void KeyerEncodingTest::storedDefaultsEncodeAsTheCompilerSaysTheyDo() {
    QVERIFY(KeyerEncoding::defaultsBlock(StoredSettings()) ==
            KeyerEncoding::defaultsBlock(DefaultSettings()));
}

void KeyerEncodingTest::modeRegister_data() {
    QTest::addColumn<QVariantMap>("settings");
    QTest::addColumn<int>("byte");

    const QVariantMap off{{u"WKSerialEchoback"_s, false},
                          {u"WKContestSpacing"_s, false},
                          {u"WKKeyMode"_s, u"Iambic B"_s}};
    const auto row = [&off](const char* name, const QString& key, const QVariant& value, int byte) {
        auto settings = off;
        settings.insert(key, value);
        QTest::newRow(name) << settings << byte;
    };
    QTest::newRow("everything off") << off << 0x00;
    row("the watchdog is off", u"WKDisablePaddleWatchdog"_s, true, 0x80);
    row("paddle echo", u"WKPaddleEchoback"_s, true, 0x40);
    row("iambic A", u"WKKeyMode"_s, u"Iambic A"_s, 0x10);
    row("ultimatic", u"WKKeyMode"_s, u"Ultimatic"_s, 0x20);
    row("a bug sets both bits", u"WKKeyMode"_s, u"Bug"_s, 0x30);
    row("an unknown mode is iambic B", u"WKKeyMode"_s, u"Straight"_s, 0x00);
    row("a mode in other letter case is unknown", u"WKKeyMode"_s, u"bug"_s, 0x00);
    row("swapped paddles", u"WKPaddleSwap"_s, true, 0x08);
    row("serial echo", u"WKSerialEchoback"_s, true, 0x04);
    row("autospace", u"WKAutospace"_s, true, 0x02);
    row("contest spacing", u"WKContestSpacing"_s, true, 0x01);
}

void KeyerEncodingTest::modeRegister() {
    QFETCH(QVariantMap, settings);
    QFETCH(int, byte);
    store(settings);
    QCOMPARE(int{KeyerEncoding::modeRegister(StoredSettings())}, byte);
}

void KeyerEncodingTest::sidetone_data() {
    QTest::addColumn<QString>("frequency");
    QTest::addColumn<bool>("isPaddleOnly");
    QTest::addColumn<int>("byte");

    const char* const frequencies[] = {"4000 Hz", "2000 Hz", "1333 Hz", "1000 Hz", "800 Hz",
                                       "666 Hz",  "571 Hz",  "500 Hz",  "444 Hz",  "400 Hz"};
    int code = 0;
    for (const auto* frequency : frequencies) {
        QTest::newRow(frequency) << QString::fromLatin1(frequency) << false << ++code;
    }
    QTest::newRow("paddle only") << u"400 Hz"_s << true << 0x8A;
    QTest::newRow("an unknown frequency has no code") << u"450 Hz"_s << false << 0x00;
    QTest::newRow("an unknown frequency leaves paddle-only") << u"450 Hz"_s << true << 0x80;
}

void KeyerEncodingTest::sidetone() {
    QFETCH(QString, frequency);
    QFETCH(bool, isPaddleOnly);
    QFETCH(int, byte);
    store({{u"WKSidetoneFrequency"_s, frequency}, {u"WKPaddleOnlySidetone"_s, isPaddleOnly}});
    QCOMPARE(int{KeyerEncoding::sidetone(StoredSettings())}, byte);
}

void KeyerEncodingTest::pinConfiguration_data() {
    QTest::addColumn<QVariantMap>("settings");
    QTest::addColumn<int>("byte");

    const QVariantMap off{{u"WKKeyOut1Enable"_s, false}, {u"WKSidetoneEnable"_s, false}};
    const auto row = [&off](const char* name, const QString& key, const QVariant& value, int byte) {
        auto settings = off;
        settings.insert(key, value);
        QTest::newRow(name) << settings << byte;
    };
    QTest::newRow("everything off") << off << 0x00;
    row("dashes first", u"WKDitDahPriority"_s, u"Dashes"_s, 0x40);
    row("dots first", u"WKDitDahPriority"_s, u"Dots"_s, 0x80);
    row("an unknown priority is normal", u"WKDitDahPriority"_s, u"Both"_s, 0x00);
    row("hang 1.33", u"WKPaddleHang"_s, u"1.33"_s, 0x10);
    row("hang 1.66", u"WKPaddleHang"_s, u"1.66"_s, 0x20);
    row("hang 2.0", u"WKPaddleHang"_s, u"2.0"_s, 0x30);
    row("key output 2", u"WKKeyOut2Enable"_s, true, 0x08);
    row("key output 1", u"WKKeyOut1Enable"_s, true, 0x04);
    row("sidetone", u"WKSidetoneEnable"_s, true, 0x02);
    row("PTT", u"WKPTTEnable"_s, true, 0x01);
}

void KeyerEncodingTest::pinConfiguration() {
    QFETCH(QVariantMap, settings);
    QFETCH(int, byte);
    store(settings);
    QCOMPARE(int{KeyerEncoding::pinConfiguration(StoredSettings())}, byte);
}

void KeyerEncodingTest::values_data() {
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<int>("offset");
    QTest::addColumn<int>("byte");

    const auto row = [](const char* name, const QString& key, const QVariant& value, int offset,
                        int byte) { QTest::newRow(name) << key << value << offset << byte; };
    row("weighting is an offset from 50", u"WKWeighting"_s, 10, 3, 60);
    row("weighting may be negative", u"WKWeighting"_s, -10, 3, 40);
    row("weighting wraps", u"WKWeighting"_s, -60, 3, 0xF6);
    row("PTT lead", u"WKPTTLeadTime"_s, 3, 4, 3);
    row("PTT lead wraps", u"WKPTTLeadTime"_s, 300, 4, 44);
    row("PTT tail", u"WKPTTTailTime"_s, 4, 5, 4);
    row("pot minimum", u"WKSpeedPotMinimum"_s, 5, 6, 5);
    row("pot range", u"WKSpeedPotRange"_s, 31, 7, 31);
    row("first extension", u"WKFirstExtension"_s, 8, 8, 8);
    row("first extension is cut to its integer", u"WKFirstExtension"_s, 8.9, 8, 8);
    row("compensation", u"WKKeyingCompensation"_s, 9, 9, 9);
    row("Farnsworth", u"WKFarnsworthSpeed"_s, 20, 10, 20);
    row("a number stored as text", u"WKFarnsworthSpeed"_s, u"20 wpm"_s, 10, 20);
    row("switchpoint", u"WKPaddleSwitchpoint"_s, 30, 11, 30);
    row("no dit and dah memory is switchpoint 0", u"WKEnableDitDahMemory"_s, false, 11, 0);
    row("ratio 2.0", u"WKRatio"_s, 2.0, 12, 33);
    row("ratio 2.5", u"WKRatio"_s, 2.5, 12, 41);
    row("ratio 2.9 is cut, not rounded", u"WKRatio"_s, 2.9, 12, 48);
    row("ratio 3.3", u"WKRatio"_s, 3.3, 12, 55);
    row("ratio 3.59", u"WKRatio"_s, 3.59, 12, 59);
    row("ratio 4.0", u"WKRatio"_s, 4.0, 12, 66);
    row("ratio 4.5", u"WKRatio"_s, 4.5, 12, 75);
    row("a ratio that is huge", u"WKRatio"_s, 0.06 * 4503599627370497.0, 12, 1);
    row("a ratio beyond every integer", u"WKRatio"_s, 1e300, 12, 0);
    row("a ratio that is no number", u"WKRatio"_s, u"three"_s, 12, 0);
    row("the speed setting is never sent", u"WKSpeed"_s, 25, 1, 0);
}

void KeyerEncodingTest::values() {
    QFETCH(QString, key);
    QFETCH(QVariant, value);
    QFETCH(int, offset);
    QFETCH(int, byte);
    store({{key, value}});
    const auto block = KeyerEncoding::defaultsBlock(StoredSettings());
    QCOMPARE(int{block[static_cast<std::size_t>(offset)]}, byte);
}

static const RegisteredTest<KeyerEncodingTest> registered;
#include "KeyerEncodingTest.moc"
