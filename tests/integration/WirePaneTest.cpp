#include "keyer/KeyerSettings.h"
#include "preferences/PreferencesWinKeyerViewController.h"
#include "preferences/binding/NumberBox.h"
#include "tests/integration/Station.h"
#include "tests/preferences/PaneOperator.h"
#include "tests/support/RegisteredTest.h"

#include <QComboBox>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>

#include <cmath>
#include <optional>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using virtualkeyer::Register;

/// The keyer's pane, worked by hand, and the keyer at the other end of the line: after each step
/// its registers hold what the pane shows.
class WirePaneTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup();

    void atFirstTheyAgree();
    void everyBoxSwitchesItsBit();
    void everyEntryOfEveryListArrives();
    void everyNumberArrivesFromEndToEnd();
    void numbersArriveWhileTheyAreStepped();
    void resettingArrives();
    void whatWasSetAloneArrivesWithTheConnection();
    void withoutSerialEchoBackGapsGrow();
    void savedSettingsAndMessagesAreTheKeyersOwn();

  private:
    [[nodiscard]] QString shown(QLatin1StringView key) const { return _operator->shown(key); }
    [[nodiscard]] int bit(QLatin1StringView key, int bit) const {
        return shown(key) == u"on" ? bit : 0;
    }
    [[nodiscard]] int number(QLatin1StringView key) const {
        return qRound(_operator->control<NumberBox>(key).value());
    }
    [[nodiscard]] int entry(QLatin1StringView key) const {
        return _operator->control<QComboBox>(key).currentIndex();
    }
    [[nodiscard]] QByteArray shownRegisters() const;
    [[nodiscard]] QByteArray registers() const;
    /// Lets what was changed settle and arrive.
    [[nodiscard]] bool arrives();

    std::optional<Station> _station;
    std::optional<PreferencesWinKeyerViewController> _controller;
    std::optional<PaneOperator> _operator;
};

void WirePaneTest::init() {
    _station.emplace();
    QVERIFY(_station->setUp());
    _controller.emplace(_station->engine());
    _operator.emplace(*_controller->view());
}

void WirePaneTest::cleanup() {
    _operator.reset();
    _controller.reset();
    _station.reset();
}

/// What the keyer's registers should hold, made from what can be seen of the pane alone.
QByteArray WirePaneTest::shownRegisters() const {
    // The keyer counts the modes as iambic B and A, ultimatic, bug, and so does the list.
    const int mode = bit(WKDisablePaddleWatchdog, 0x80) | bit(WKPaddleEchoback, 0x40) |
                     entry(WKKeyMode) << 4 | bit(WKPaddleSwap, 0x08) | bit(WKSerialEchoback, 0x04) |
                     bit(WKAutospace, 0x02) | bit(WKContestSpacing, 0x01);
    const int hertz = shown(WKSidetoneFrequency).chopped(3).toInt();
    const int pins = entry(WKDitDahPriority) << 6 | entry(WKPaddleHang) << 4 |
                     bit(WKKeyOut2Enable, 0x08) | bit(WKKeyOut1Enable, 0x04) |
                     bit(WKSidetoneEnable, 0x02) | bit(WKPTTEnable, 0x01);
    const auto& ratio = _operator->control<NumberBox>(WKRatio);
    QByteArray bytes;
    for (const int value :
         {mode, 0, bit(WKPaddleOnlySidetone, 0x80) | 4000 / hertz, number(WKWeighting) + 50,
          shown(WKPTTLeadTime).chopped(3).toInt() / 10,
          shown(WKPTTTailTime).chopped(3).toInt() / 10, number(WKSpeedPotMinimum),
          number(WKSpeedPotRange), number(WKFirstExtension), number(WKKeyingCompensation),
          number(WKFarnsworthSpeed), bit(WKEnableDitDahMemory, 1) * number(WKPaddleSwitchpoint),
          qRound(ratio.value() * 100) / 6, pins}) {
        bytes.append(static_cast<char>(value));
    }
    return bytes.toHex(' ');
}

QByteArray WirePaneTest::registers() const {
    QByteArray bytes;
    for (std::size_t i = 0; i < virtualkeyer::Registers::count; ++i) {
        bytes.append(static_cast<char>(_station->registers().value(static_cast<Register>(i))));
    }
    return bytes.toHex(' ');
}

bool WirePaneTest::arrives() {
    _station->pass(300ms);
    return _station->waitForQuiet();
}

void WirePaneTest::atFirstTheyAgree() {
    QCOMPARE(registers(), "15 00 8a 32 00 0a 0d 20 00 00 0a 32 32 06");
    QCOMPARE(registers(), shownRegisters());
}

void WirePaneTest::everyBoxSwitchesItsBit() {
    for (const auto& setting : keyerSettings) {
        if (!std::holds_alternative<bool>(setting.defaultValue)) {
            continue;
        }
        const auto before = registers();
        const bool isTheKeyersMemory = setting.key.startsWith(QLatin1StringView("WKStandalone"));
        for (const bool isBack : {false, true}) {
            _operator->toggle(setting.key);
            QVERIFY(arrives());
            QCOMPARE(registers(), shownRegisters());
            QCOMPARE(registers() == before, isBack || isTheKeyersMemory);
        }
    }
}

void WirePaneTest::everyEntryOfEveryListArrives() {
    for (const auto& setting : keyerSettings) {
        if (!setting.choices.empty()) {
            _operator->meetNeeds(setting.key);
        }
        for (const auto& choice : setting.choices) {
            _operator->choose(setting.key, choice.text);
            QCOMPARE(shown(setting.key), choice.text);
            QVERIFY(arrives());
            QCOMPARE(registers(), shownRegisters());
        }
    }
    QCOMPARE(_station->registers().sidetoneHz(), 4000);
    QCOMPARE(_station->registers().paddleMode(), virtualkeyer::PaddleMode::Ultimatic);
    QCOMPARE(_station->registers().ultimaticPriority(), virtualkeyer::UltimaticPriority::Dit);
    QCOMPARE(_station->registers().hangDits(), 8);
}

void WirePaneTest::everyNumberArrivesFromEndToEnd() {
    for (const auto& setting : keyerSettings) {
        if (!setting.range) {
            continue;
        }
        _operator->meetNeeds(setting.key);
        const auto [minimum, maximum] = *setting.range;
        const auto scale = _operator->control(setting.key).property("scale");
        for (const double part : {0.0, 0.2, 0.5, 0.7, 1.0}) {
            auto value = minimum + part * (maximum - minimum);
            if (std::holds_alternative<int>(setting.defaultValue)) {
                value = std::floor(value) * (scale.isValid() ? scale.toInt() : 1);
            }
            _operator->enter(setting.key, QString::number(value, 'f', 2).remove(u".00"_s));
            QVERIFY(arrives());
            QCOMPARE(registers(), shownRegisters());
        }
    }
    QCOMPARE(registers(), "15 00 8a 5a 19 19 63 20 fa fa 63 5a 42 07");
}

void WirePaneTest::numbersArriveWhileTheyAreStepped() {
    auto& weighting = _operator->control(WKWeighting);
    weighting.setFocus();
    for (int i = 0; i < 45; ++i) {
        QTest::keyClick(&weighting, Qt::Key_Up);
        QVERIFY(arrives());
        QCOMPARE(registers(), shownRegisters());
    }
    QCOMPARE(_station->registers().value(Register::Weighting), std::uint8_t{90});
}

void WirePaneTest::resettingArrives() {
    const auto atFirst = registers();
    _operator->enter(WKFirstExtension, u"12"_s);
    _operator->choose(WKKeyMode, u"Bug"_s);
    _operator->toggle(WKPTTEnable);
    QVERIFY(arrives());
    QVERIFY(registers() != atFirst);
    for (const auto key : {WKFirstExtension, WKKeyMode, WKPTTEnable}) {
        _operator->reset(key);
        QVERIFY(arrives());
        QCOMPARE(registers(), shownRegisters());
    }
    QCOMPARE(registers(), atFirst);
}

void WirePaneTest::whatWasSetAloneArrivesWithTheConnection() {
    QVERIFY(_station->disconnect());
    const auto alone = registers();
    _operator->enter(WKWeighting, u"15"_s);
    _operator->toggle(WKEnableDitDahMemory);
    _operator->choose(WKSidetoneFrequency, u"666 Hz"_s);
    QVERIFY(arrives());
    QCOMPARE(registers(), alone);
    QVERIFY(_station->setUp());
    QCOMPARE(registers(), shownRegisters());
    QCOMPARE(_station->registers().value(Register::Weighting), std::uint8_t{65});
    QCOMPARE(_station->registers().value(Register::Switchpoint), std::uint8_t{0});
}

/// As the pane tells below the box.
void WirePaneTest::withoutSerialEchoBackGapsGrow() {
    const auto sent = [this] {
        const auto edges = _station->edges().size();
        _station->engine().clearSending();
        _station->type(u"EE"_s);
        return _station->waitForQuiet() && _station->edges().size() == edges + 4
                   ? _station->edges()[edges + 2].at - _station->edges()[edges + 1].at
                   : Station::Time(0);
    };
    QCOMPARE(sent().count(), Station::Time(180ms).count()); // three dits at 20 wpm
    _operator->toggle(WKSerialEchoback);
    QVERIFY(arrives());
    QVERIFY(sent() > 200ms);
    QCOMPARE(_station->keyed(), u"EE EE"_s);
    _operator->toggle(WKSerialEchoback);
    QVERIFY(arrives());
    QCOMPARE(sent().count(), Station::Time(180ms).count());
}

void WirePaneTest::savedSettingsAndMessagesAreTheKeyersOwn() {
    _operator->enter(WKStandaloneMessages[1], u"qrz?"_s);
    _operator->enter(WKWeighting, u"5"_s);
    _operator->enter(WKStandaloneCommandSpeed, u"12"_s);
    auto* save = _controller->view()->findChild<QPushButton*>(u"save"_s);
    QTest::mouseClick(save, Qt::LeftButton);
    QVERIFY(_station->waitForQuiet());
    _station->pass(1s); // the buttons come back
    QTest::mouseClick(_controller->view()->findChild<QPushButton*>(u"send2"_s), Qt::LeftButton);
    QVERIFY(_station->waitForQuiet());
    QCOMPARE(_station->keyed(), u"QRZ?"_s);
    QVERIFY(_station->disconnect());
    _station->pass(1s);
    QCOMPARE(_station->registers().value(Register::Weighting), std::uint8_t{55});
}

static const RegisteredTest<WirePaneTest> registered;
#include "WirePaneTest.moc"
