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

void SettingTest::registeredDefaults_data() {
    QTest::addColumn<QVariant>("value");

    const auto row = [](const char* key, const QVariant& value) { QTest::newRow(key) << value; };
    row("WKDisablePaddleWatchdog", false);
    row("WKPaddleEchoback", false);
    row("WKKeyMode", u"Iambic A"_s);
    row("WKPaddleSwap", false);
    row("WKSerialEchoback", true);
    row("WKAutospace", false);
    row("WKContestSpacing", true);
    row("WKSpeed", 0);
    row("WKPaddleOnlySidetone", true);
    row("WKSidetoneFrequency", u"400 Hz"_s);
    row("WKWeighting", 0);
    row("WKPTTLeadTime", 0);
    row("WKPTTTailTime", 10);
    row("WKSpeedPotMinimum", 13);
    row("WKSpeedPotRange", 32);
    row("WKFirstExtension", 0);
    row("WKKeyingCompensation", 0);
    row("WKFarnsworthSpeed", 10);
    row("WKPaddleSwitchpoint", 50);
    row("WKEnableDitDahMemory", true);
    row("WKRatio", 3.0);
    row("WKDitDahPriority", u"Normal"_s);
    row("WKPaddleHang", u"1.0"_s);
    row("WKKeyOut1Enable", true);
    row("WKKeyOut2Enable", false);
    row("WKSidetoneEnable", true);
    row("WKPTTEnable", false);
    row("WKHSCWSpeed", u"1000 lpm"_s);
    row("WKStandaloneCommandSpeed", 10);
    row("WKStandaloneEnableMessageBreak", true);
    row("WKStandaloneCutSerialNumbers", true);
    row("WKStandaloneMessage1", u"Message 1"_s);
    row("WKStandaloneMessage2", u"Message 2"_s);
    row("WKStandaloneMessage3", u"Message 3"_s);
    row("WKStandaloneMessage4", u"Message 4"_s);
    row("WKStandaloneMessage5", u"Message 5"_s);
    row("WKStandaloneMessage6", u"Message 6"_s);
    row("Message1Label", u"CQ"_s);
    row("Message1", u"CQ test ` `"_s);
    row("Message2Label", u"Exchange"_s);
    row("Message2", u"5NN NH"_s);
    row("Message3Label", u"Acknowledge"_s);
    row("Message3", u"TU `"_s);
    row("Message4Label", u"My Call"_s);
    row("Message4", u"`"_s);
    row("Message5Label", u"Their Call"_s);
    row("Message5", u"~"_s);
    row("Message6Label", u"Call?"_s);
    row("Message6", u"Call?"_s);
    row("Message7Label", u"?"_s);
    row("Message7", u"?"_s);
    row("Message8Label", u"Again"_s);
    row("Message8", u"agn"_s);
    row("BeaconInterval", 4.2);
    row("WKPortName", u"None"_s);
    row("MyCall", u"your call"_s);
    row("TuneLimit", u"Off"_s);
}

void SettingTest::registeredDefaults() {
    QFETCH(QVariant, value);
    auto defaults = defaultsOf(keyerSettings);
    defaults.insert(messageDefaults());
    defaults.insert(defaultsOf(generalSettings));
    QCOMPARE(defaults.value(QString::fromLatin1(QTest::currentDataTag())), value);
}

void SettingTest::everyKeyIsRegisteredOnce() {
    QCOMPARE(defaultsOf(keyerSettings).size(), 37);
    QCOMPARE(keyerSettings.size(), std::size_t{37});
    QCOMPARE(messageDefaults().size(), 17);
    QCOMPARE(defaultsOf(generalSettings).size(), 3);
}

static const RegisteredTest<SettingTest> registered;
#include "SettingTest.moc"
