#include "keyer/GeneralSettings.h"
#include "keyer/KeyerSettings.h"
#include "keyer/MessageSettings.h"
#include "tests/support/RegisteredTest.h"

#include <QTest>

using namespace Qt::StringLiterals;

class SettingTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void registeredDefaults_data();
    void registeredDefaults();
    void everyKeyIsRegisteredOnce();
};

namespace {

/// The one list of settings, beside the tables themselves, that a new one is added to.
const QList<std::pair<const char*, QVariant>>& expectedDefaults() {
    static const QList<std::pair<const char*, QVariant>> all{
        {"WKDisablePaddleWatchdog", false},
        {"WKPaddleEchoback", false},
        {"WKKeyMode", u"Iambic A"_s},
        {"WKPaddleSwap", false},
        {"WKSerialEchoback", true},
        {"WKAutospace", false},
        {"WKContestSpacing", true},
        {"WKSpeed", 0},
        {"WKPaddleOnlySidetone", true},
        {"WKSidetoneFrequency", u"400 Hz"_s},
        {"WKWeighting", 0},
        {"WKPTTLeadTime", 0},
        {"WKPTTTailTime", 10},
        {"WKSpeedPotMinimum", 13},
        {"WKSpeedPotRange", 32},
        {"WKFirstExtension", 0},
        {"WKKeyingCompensation", 0},
        {"WKFarnsworthSpeed", 10},
        {"WKPaddleSwitchpoint", 50},
        {"WKEnableDitDahMemory", true},
        {"WKRatio", 3.0},
        {"WKDitDahPriority", u"Normal"_s},
        {"WKPaddleHang", u"1.0"_s},
        {"WKKeyOut1Enable", true},
        {"WKKeyOut2Enable", false},
        {"WKSidetoneEnable", true},
        {"WKPTTEnable", false},
        {"WKHSCWSpeed", u"1000 lpm"_s},
        {"WKStandaloneCommandSpeed", 10},
        {"WKStandaloneEnableMessageBreak", true},
        {"WKStandaloneCutSerialNumbers", true},
        {"WKStandaloneMessage1", u"Message 1"_s},
        {"WKStandaloneMessage2", u"Message 2"_s},
        {"WKStandaloneMessage3", u"Message 3"_s},
        {"WKStandaloneMessage4", u"Message 4"_s},
        {"WKStandaloneMessage5", u"Message 5"_s},
        {"WKStandaloneMessage6", u"Message 6"_s},
        {"Message1Label", u"CQ"_s},
        {"Message1", u"CQ test ` `"_s},
        {"Message2Label", u"Exchange"_s},
        {"Message2", u"5NN NH"_s},
        {"Message3Label", u"Acknowledge"_s},
        {"Message3", u"TU `"_s},
        {"Message4Label", u"My Call"_s},
        {"Message4", u"`"_s},
        {"Message5Label", u"Their Call"_s},
        {"Message5", u"~"_s},
        {"Message6Label", u"Call?"_s},
        {"Message6", u"Call?"_s},
        {"Message7Label", u"?"_s},
        {"Message7", u"?"_s},
        {"Message8Label", u"Again"_s},
        {"Message8", u"agn"_s},
        {"BeaconInterval", 4.2},
        {"WKPortName", u"None"_s},
        {"MyCall", u"your call"_s},
        {"TuneLimit", u"Off"_s},
        {"AcceptLoggers", false},
        {"LoggerPort", 6789},
        {"CharactersAhead", 1},
    };
    return all;
}

QHash<QString, QVariant> defaultsOfTables() {
    auto all = defaultsOf(keyerSettings);
    all.insert(messageDefaults());
    all.insert(defaultsOf(generalSettings));
    return all;
}

} // namespace

void SettingTest::registeredDefaults_data() {
    QTest::addColumn<QVariant>("value");
    for (const auto& [key, value] : expectedDefaults()) {
        QTest::newRow(key) << value;
    }
}

void SettingTest::registeredDefaults() {
    QFETCH(QVariant, value);
    QCOMPARE(defaultsOfTables().value(QString::fromLatin1(QTest::currentDataTag())), value);
}

void SettingTest::everyKeyIsRegisteredOnce() {
    auto unknown = defaultsOfTables();
    for (const auto& [key, value] : expectedDefaults()) {
        QVERIFY2(unknown.remove(QString::fromLatin1(key)), key);
    }
    QCOMPARE(unknown.keys(), QStringList());
    QCOMPARE(static_cast<std::size_t>(defaultsOf(keyerSettings).size()), keyerSettings.size());
    QCOMPARE(static_cast<std::size_t>(defaultsOf(generalSettings).size()), generalSettings.size());
}

static const RegisteredTest<SettingTest> registered;
#include "SettingTest.moc"
