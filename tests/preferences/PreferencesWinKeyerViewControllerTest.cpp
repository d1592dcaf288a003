#include "preferences/PreferencesWinKeyerViewController.h"

#include "keyer/KeyerEncoding.h"
#include "keyer/KeyerMemory.h"
#include "keyer/KeyerSettings.h"
#include "keyer/StoredSettings.h"
#include "tests/keyer/EngineBench.h"
#include "tests/support/RegisteredTest.h"
#include "tests/support/SystemCallFaults.h"

#include <QCheckBox>
#include <QTest>
#include <QWidget>

#include <optional>

using namespace Qt::StringLiterals;

namespace {

using Controller = PreferencesWinKeyerViewController;
using Action = void (Controller::*)(const QObject*);

/// A control in a state, as an action sees it: 1 on, 0 off, -1 mixed.
class Control : public QObject {
  public:
    explicit Control(const char* property, int value) { setProperty(property, value); }
};

} // namespace

Q_DECLARE_METATYPE(Action)

/// What the actions send, each called as its control would call it.
class PreferencesWinKeyerViewControllerTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup();

    void itIsTheModuleOfTheKeyer();
    void defaultsAreSent_data();
    void defaultsAreSent();
    void storedValuesAreSent_data();
    void storedValuesAreSent();
    void eachActionReadsItsSettingsAfresh();
    void eachCommandIsOneWrite();
    void ditDahMemoryFollowsTheControl_data();
    void ditDahMemoryFollowsTheControl();
    void ditDahMemoryFollowsACheckBox_data();
    void ditDahMemoryFollowsACheckBox();
    void extensionAndCompensationAgreeWithTheBlock_data();
    void extensionAndCompensationAgreeWithTheBlock();
    void withoutAKeyerNothingHappens();
    void standaloneMessagesAreSentByTag_data();
    void standaloneMessagesAreSentByTag();
    void savingLoadsTheKeyersMemory();
    void savingThatFailsIsTold_data();
    void savingThatFailsIsTold();

  private:
    [[nodiscard]] QByteArray sentBy(Action action, const QObject* sender = nullptr);

    std::optional<EngineBench> _bench;
    std::optional<Controller> _controller;
};

void PreferencesWinKeyerViewControllerTest::init() {
    _bench.emplace();
    QVERIFY(_bench->connect());
    _controller.emplace(_bench->engine());
}

void PreferencesWinKeyerViewControllerTest::cleanup() {
    _controller.reset();
    _bench.reset();
}

QByteArray PreferencesWinKeyerViewControllerTest::sentBy(Action action, const QObject* sender) {
    ((*_controller).*action)(sender);
    return _bench->written();
}

void PreferencesWinKeyerViewControllerTest::itIsTheModuleOfTheKeyer() {
    QCOMPARE(_controller->title(), u"WinKeyer"_s);
    QCOMPARE(_controller->identifier(), u"PreferencesWinKeyerPane"_s);
    QVERIFY(!_controller->image().pixmap(32).isNull());
    QVERIFY(_controller->view() != nullptr);
    QCOMPARE(_bench->written(), "");
}

void PreferencesWinKeyerViewControllerTest::defaultsAreSent_data() {
    QTest::addColumn<Action>("action");
    QTest::addColumn<QByteArray>("bytes");
    const auto row = [](const char* name, Action action, const char* bytes) {
        QTest::newRow(name) << action << QByteArray(bytes);
    };
    row("weighting", &Controller::changeWeight, "03 32");
    row("ratio", &Controller::changeRatio, "17 32");
    row("first extension", &Controller::changeFirstExtension, "10 00");
    row("compensation", &Controller::changeKeyingCompensation, "11 00");
    row("mode", &Controller::changeWinKeyer2Mode, "0e 15");
    row("sidetone", &Controller::changeSidetone, "01 8a");
    row("PTT", &Controller::changePTT, "04 00 0a");
    row("speed pot", &Controller::changeSpeedPot, "05 0d 20 ff 02 00 07");
    row("Farnsworth", &Controller::changeFarnsworthSpeed, "0d 0a");
    row("switchpoint", &Controller::changePaddleSwitchpoint, "12 32");
    row("pins", &Controller::changePinConfiguration, "09 06");
}

void PreferencesWinKeyerViewControllerTest::defaultsAreSent() {
    QFETCH(Action, action);
    QFETCH(QByteArray, bytes);
    QCOMPARE(sentBy(action), bytes);
    const Control control("state", -1);
    QCOMPARE(sentBy(action, &control), bytes); // whoever sends it
}

void PreferencesWinKeyerViewControllerTest::storedValuesAreSent_data() {
    QTest::addColumn<Action>("action");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QByteArray>("bytes");
    const auto row = [](const char* name, Action action, QLatin1StringView key,
                        const QVariant& value, const char* bytes) {
        QTest::newRow(name) << action << QString(key) << value << QByteArray(bytes);
    };
    const auto weight = &Controller::changeWeight;
    row("the heaviest weighting", weight, WKWeighting, 40, "03 5a");
    row("the lightest weighting", weight, WKWeighting, -40, "03 0a");
    row("weighting +50", weight, WKWeighting, 50, "03 64");
    row("weighting -60 wraps", weight, WKWeighting, -60, "03 f6");
    row("weighting 300 wraps", weight, WKWeighting, 300, "03 5e");
    row("weighting is read as an integer", weight, WKWeighting, 10.9, "03 3c");
    row("weighting of no number is neutral", weight, WKWeighting, u"heavy"_s, "03 32");
    const auto ratio = &Controller::changeRatio;
    row("ratio 2.0", ratio, WKRatio, 2.0, "17 21");
    row("ratio 2.5", ratio, WKRatio, 2.5, "17 29");
    row("ratio 2.9 is cut", ratio, WKRatio, 2.9, "17 30");
    row("ratio 3.3", ratio, WKRatio, 3.3, "17 37");
    row("ratio 3.59", ratio, WKRatio, 3.59, "17 3b");
    row("ratio 4.0", ratio, WKRatio, 4.0, "17 42");
    row("ratio 18 wraps", ratio, WKRatio, 18.0, "17 2c");
    row("ratio -3 wraps", ratio, WKRatio, -3.0, "17 ce");
    row("ratio as text", ratio, WKRatio, u"2.5 dits"_s, "17 29");
    const auto extension = &Controller::changeFirstExtension;
    row("extension is cut", extension, WKFirstExtension, 7.9, "10 07");
    row("extension as text is cut", extension, WKFirstExtension, u"7.9"_s, "10 07");
    row("extension is cut toward zero", extension, WKFirstExtension, -0.9, "10 00");
    row("extension -60 wraps", extension, WKFirstExtension, -60, "10 c4");
    row("extension 300 wraps", extension, WKFirstExtension, 300, "10 2c");
    row("extension with an exponent", extension, WKFirstExtension, u"1e3"_s, "10 e8");
    const auto compensation = &Controller::changeKeyingCompensation;
    row("compensation is cut", compensation, WKKeyingCompensation, 249.99, "11 f9");
    row("compensation -1.5 wraps", compensation, WKKeyingCompensation, -1.5, "11 ff");
    row("compensation 256 wraps", compensation, WKKeyingCompensation, 256, "11 00");
    row("compensation with an exponent", compensation, WKKeyingCompensation, u"2.5e1"_s, "11 19");
    const auto mode = &Controller::changeWinKeyer2Mode;
    row("watchdog off", mode, WKDisablePaddleWatchdog, true, "0e 95");
    row("paddle echo", mode, WKPaddleEchoback, true, "0e 55");
    row("iambic B", mode, WKKeyMode, u"Iambic B"_s, "0e 05");
    row("ultimatic", mode, WKKeyMode, u"Ultimatic"_s, "0e 25");
    row("bug", mode, WKKeyMode, u"Bug"_s, "0e 35");
    row("an unknown key mode", mode, WKKeyMode, u"iambic a"_s, "0e 05");
    row("paddle swap", mode, WKPaddleSwap, true, "0e 1d");
    row("serial echo off", mode, WKSerialEchoback, false, "0e 11");
    row("autospace", mode, WKAutospace, true, "0e 17");
    row("contest spacing off", mode, WKContestSpacing, false, "0e 14");
    const auto sidetone = &Controller::changeSidetone;
    row("800 Hz", sidetone, WKSidetoneFrequency, u"800 Hz"_s, "01 85");
    row("4000 Hz", sidetone, WKSidetoneFrequency, u"4000 Hz"_s, "01 81");
    row("an unknown pitch", sidetone, WKSidetoneFrequency, u"450 Hz"_s, "01 80");
    row("sidetone for all", sidetone, WKPaddleOnlySidetone, false, "01 0a");
    const auto ptt = &Controller::changePTT;
    row("lead-in", ptt, WKPTTLeadTime, 25, "04 19 0a");
    row("tail", ptt, WKPTTTailTime, 0, "04 00 00");
    row("a lead-in of 257 wraps", ptt, WKPTTLeadTime, 257, "04 01 0a");
    row("a tail of -1 wraps", ptt, WKPTTTailTime, -1, "04 00 ff");
    const auto pot = &Controller::changeSpeedPot;
    row("pot minimum", pot, WKSpeedPotMinimum, 5, "05 05 20 ff 02 00 07");
    row("pot range", pot, WKSpeedPotRange, 0, "05 0d 00 ff 02 00 07");
    row("a pot minimum of 999 wraps", pot, WKSpeedPotMinimum, 999, "05 e7 20 ff 02 00 07");
    row("a pot range of -1 wraps", pot, WKSpeedPotRange, -1, "05 0d ff ff 02 00 07");
    const auto farnsworth = &Controller::changeFarnsworthSpeed;
    row("Farnsworth 99", farnsworth, WKFarnsworthSpeed, 99, "0d 63");
    row("Farnsworth -10 wraps", farnsworth, WKFarnsworthSpeed, -10, "0d f6");
    const auto switchpoint = &Controller::changePaddleSwitchpoint;
    row("switchpoint 90", switchpoint, WKPaddleSwitchpoint, 90, "12 5a");
    row("switchpoint 512 wraps", switchpoint, WKPaddleSwitchpoint, 512, "12 00");
    row("the memory's setting does not matter", switchpoint, WKEnableDitDahMemory, false, "12 32");
    const auto pins = &Controller::changePinConfiguration;
    row("dahs first", pins, WKDitDahPriority, u"Dashes"_s, "09 46");
    row("dits first", pins, WKDitDahPriority, u"Dots"_s, "09 86");
    row("an unknown priority", pins, WKDitDahPriority, u"dots"_s, "09 06");
    row("hang 1.33", pins, WKPaddleHang, u"1.33"_s, "09 16");
    row("hang 1.66", pins, WKPaddleHang, u"1.66"_s, "09 26");
    row("hang 2.0", pins, WKPaddleHang, u"2.0"_s, "09 36");
    row("an unknown hang", pins, WKPaddleHang, u"2"_s, "09 06");
    row("output 1 off", pins, WKKeyOut1Enable, false, "09 02");
    row("output 2", pins, WKKeyOut2Enable, true, "09 0e");
    row("sidetone off", pins, WKSidetoneEnable, false, "09 04");
    row("PTT on", pins, WKPTTEnable, true, "09 07");
}

void PreferencesWinKeyerViewControllerTest::storedValuesAreSent() {
    QFETCH(Action, action);
    QFETCH(QString, key);
    QFETCH(QVariant, value);
    QFETCH(QByteArray, bytes);
    _bench->settings().setObject(value, key);
    QCOMPARE(sentBy(action), bytes);
    QCOMPARE(_bench->settings().objectForKey(key), value);
}

void PreferencesWinKeyerViewControllerTest::eachActionReadsItsSettingsAfresh() {
    for (int weighting = -40; weighting <= 40; ++weighting) {
        _bench->settings().setObject(weighting, WKWeighting);
        const auto expected = QByteArray("03 ") + QByteArray(1, char(weighting + 50)).toHex();
        QCOMPARE(sentBy(&Controller::changeWeight), expected);
    }
}

void PreferencesWinKeyerViewControllerTest::eachCommandIsOneWrite() {
    const SystemCallFaults watched;
    _controller->changePTT(nullptr);
    QCOMPARE(watched.count(SystemCall::Write), 1);
    _controller->changeSpeedPot(nullptr);
    QCOMPARE(watched.count(SystemCall::Write), 4);
}

void PreferencesWinKeyerViewControllerTest::ditDahMemoryFollowsTheControl_data() {
    QTest::addColumn<QVariant>("state");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("on sends the stored switchpoint") << QVariant(1) << QByteArray("12 1e");
    QTest::newRow("off turns the memory off") << QVariant(0) << QByteArray("12 00");
    QTest::newRow("mixed turns it off too") << QVariant(-1) << QByteArray("12 00");
}

void PreferencesWinKeyerViewControllerTest::ditDahMemoryFollowsTheControl() {
    QFETCH(QVariant, state);
    QFETCH(QByteArray, bytes);
    auto& settings = _bench->settings();
    settings.setObject(30, WKPaddleSwitchpoint);
    const Control control("state", state.toInt());
    for (const auto isStored : {true, false}) { // the setting says nothing
        settings.setObject(isStored, WKEnableDitDahMemory);
        QCOMPARE(sentBy(&Controller::changeEnableDitDahMemory, &control), bytes);
    }
    QCOMPARE(settings.integerForKey(WKPaddleSwitchpoint), 30);
    QCOMPARE(sentBy(&Controller::changeEnableDitDahMemory, nullptr), "12 00");
}

void PreferencesWinKeyerViewControllerTest::ditDahMemoryFollowsACheckBox_data() {
    QTest::addColumn<Qt::CheckState>("state");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("on") << Qt::Checked << QByteArray("12 32");
    QTest::newRow("off") << Qt::Unchecked << QByteArray("12 00");
    QTest::newRow("mixed") << Qt::PartiallyChecked << QByteArray("12 00");
}

void PreferencesWinKeyerViewControllerTest::ditDahMemoryFollowsACheckBox() {
    QFETCH(Qt::CheckState, state);
    QFETCH(QByteArray, bytes);
    QCheckBox box;
    box.setTristate(true);
    box.setCheckState(state);
    QCOMPARE(sentBy(&Controller::changeEnableDitDahMemory, &box), bytes);
}

void PreferencesWinKeyerViewControllerTest::extensionAndCompensationAgreeWithTheBlock_data() {
    QTest::addColumn<QVariant>("value");
    for (const auto value : {0.0, 0.5, 7.9, 249.99, 250.0, 255.0, 256.0, 300.0, 1e5, 4e9, 1e12 + 7,
                             9007199254740991.0, 1152921504606846976.0, 1e30}) {
        for (const auto number : {value, -value}) {
            QTest::addRow("%g", number) << QVariant(number);
        }
    }
    for (const auto* text : {"7.9", "-0.5", "-60", "300", "12 ms", " 8", "", "none", "true"}) {
        QTest::addRow("the text \"%s\"", text) << QVariant(QString::fromLatin1(text));
    }
}

/// As real numbers they become the bytes that the block has of them as integers.
void PreferencesWinKeyerViewControllerTest::extensionAndCompensationAgreeWithTheBlock() {
    QFETCH(QVariant, value);
    _bench->settings().setObject(value, WKFirstExtension);
    _bench->settings().setObject(value, WKKeyingCompensation);
    const auto block = KeyerEncoding::defaultsBlock(StoredSettings());
    const auto hex = [](std::uint8_t byte) {
        return QByteArray(1, static_cast<char>(byte)).toHex();
    };
    QCOMPARE(sentBy(&Controller::changeFirstExtension), "10 " + hex(block[8]));
    QCOMPARE(sentBy(&Controller::changeKeyingCompensation), "11 " + hex(block[9]));
}

void PreferencesWinKeyerViewControllerTest::withoutAKeyerNothingHappens() {
    QVERIFY(_bench->engine().disconnect(nullptr));
    static_cast<void>(_bench->written());
    _bench->settings().setObject(5, WKWeighting);
    for (const auto action :
         {&Controller::changeWeight, &Controller::changeRatio, &Controller::changeFirstExtension,
          &Controller::changeKeyingCompensation, &Controller::changeWinKeyer2Mode,
          &Controller::changeSidetone, &Controller::changePTT, &Controller::changeSpeedPot,
          &Controller::changeFarnsworthSpeed, &Controller::changePaddleSwitchpoint,
          &Controller::changeEnableDitDahMemory, &Controller::changePinConfiguration,
          &Controller::sendStandaloneMessage}) {
        QCOMPARE(sentBy(action), "");
    }
    QVERIFY(_bench->platform().application().alerts().isEmpty());
    QCOMPARE(_bench->settings().integerForKey(WKWeighting), 5);
}

void PreferencesWinKeyerViewControllerTest::standaloneMessagesAreSentByTag_data() {
    QTest::addColumn<int>("tag");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("message 1") << 1 << QByteArray("00 0e 01");
    QTest::newRow("message 6") << 6 << QByteArray("00 0e 06");
    QTest::newRow("a tag out of range is passed on") << 7 << QByteArray("00 0e 07");
    QTest::newRow("a tag beyond a byte wraps") << 258 << QByteArray("00 0e 02");
}

void PreferencesWinKeyerViewControllerTest::standaloneMessagesAreSentByTag() {
    QFETCH(int, tag);
    QFETCH(QByteArray, bytes);
    const Control control("tag", tag);
    QCOMPARE(sentBy(&Controller::sendStandaloneMessage, &control), bytes);
}

void PreferencesWinKeyerViewControllerTest::savingLoadsTheKeyersMemory() {
    const auto sent = sentBy(&Controller::saveSettings);
    QVERIFY2(sent.startsWith("00 0d a5 11 00 8a 32 00 0a 0d 20 00 00 0a 32 32 06 0c 0a"), sent);
    QCOMPARE(sent.split(' ').size(), qsizetype{2 + std::tuple_size_v<KeyerMemory::Image>});
    QVERIFY(_bench->platform().application().alerts().isEmpty());
}

void PreferencesWinKeyerViewControllerTest::savingThatFailsIsTold_data() {
    QTest::addColumn<bool>("isConnected");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("reason");
    QTest::newRow("no keyer is connected")
        << false << u"CQ"_s << u"Check that the keyer is connected."_s;
    QTest::newRow("a message holds a character without a code")
        << true << u"GR\u00DCN"_s
        << u"Message 3 holds \u201c\u00DC\u201d, which has no Morse code. Take it out and save again."_s;
}

void PreferencesWinKeyerViewControllerTest::savingThatFailsIsTold() {
    QFETCH(bool, isConnected);
    QFETCH(QString, message);
    QFETCH(QString, reason);
    _bench->settings().setObject(message, WKStandaloneMessages[2]);
    if (!isConnected) {
        QVERIFY(_bench->engine().disconnect(nullptr));
        static_cast<void>(_bench->written());
    }
    QCOMPARE(sentBy(&Controller::saveSettings), "");
    const auto alerts = _bench->platform().application().alerts();
    QCOMPARE(alerts.size(), 1);
    QCOMPARE(alerts.first().messageText, u"The keyer's memory could not be written."_s);
    QCOMPARE(alerts.first().informativeText, reason);
}

static const RegisteredTest<PreferencesWinKeyerViewControllerTest> registered;
#include "PreferencesWinKeyerViewControllerTest.moc"
