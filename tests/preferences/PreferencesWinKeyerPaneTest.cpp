#include "keyer/KeyerEncoding.h"
#include "keyer/KeyerSettings.h"
#include "keyer/StoredSettings.h"
#include "preferences/PreferencesWinKeyerViewController.h"
#include "tests/keyer/EngineBench.h"
#include "tests/preferences/PaneOperator.h"
#include "tests/support/RegisteredTest.h"

#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QTabWidget>
#include <QTest>
#include <QToolButton>

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// The controls of the keyer's pane, worked with mouse and keys, and what each of them sends.
class PreferencesWinKeyerPaneTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup();

    void everySettingHasOneControlOfItsKind();
    void everyControlHasItsSettingOrAction();
    void listsOfferTheChoicesOfTheirSettings();
    void theListOfRatesOffersRatesThatTheKeyerTakes();
    void openingStoresAndSendsNothing();
    void aControlStoresAndSends_data();
    void aControlStoresAndSends();
    void everySettingIsOperatedHere();
    void checkBoxesWorkBothWays();
    void resetBringsTheDefaultBack();
    void theSwitchpointNeedsTheMemory();
    void whatHasNoEffectIsOff_data();
    void whatHasNoEffectIsOff();
    void anAssistiveToolCannotTurnTheMemoryOn();
    void withoutAnOutputItTellsThatNothingIsKeyed();
    void withoutTheMemoryItOpensWithoutASwitchpoint();
    void aChangeFromElsewhereIsShown();
    void allSettingsSurviveARestart();

  private:
    [[nodiscard]] QWidget& view() { return *_controller->view(); }
    [[nodiscard]] QTabWidget& pages() { return *view().findChild<QTabWidget*>(); }
    [[nodiscard]] SettingsStore& settings() { return _bench->settings(); }
    /// Works the control of a setting as the test's table says, and what it needs before that.
    void operate(QLatin1StringView key);
    void forgetAllSettings();

    std::optional<EngineBench> _bench;
    std::optional<PreferencesWinKeyerViewController> _controller;
    std::optional<PaneOperator> _operator;
};

namespace {

/// What the operator makes of a setting, and what the keyer gets to hear of it. Of a check box
/// there is nothing to be entered; one that is not here is known by its register.
struct Operation {
    QLatin1StringView key;
    const char16_t* entered;
    QVariant stored;
    const char* sent;
};

const QList<Operation>& operations() {
    static const QList<Operation> all{
        {WKWeighting, u"-12", -12, "03 26"},
        {WKRatio, u"2.90", 2.9, "17 30"},
        {WKKeyingCompensation, u"8", 8, "11 08"},
        {WKFirstExtension, u"250", 250, "10 fa"},
        {WKFarnsworthSpeed, u"18", 18, "0d 12"},
        {WKContestSpacing, nullptr, false, "0e 14"},
        {WKKeyMode, u"Bug", u"Bug"_s, "0e 35"},
        {WKDitDahPriority, u"Dots", u"Dots"_s, "09 86"},
        {WKEnableDitDahMemory, nullptr, false, "12 00"},
        {WKPaddleSwitchpoint, u"60", 30, "12 1e"},
        {WKPaddleSwap, nullptr, true, "0e 1d"},
        {WKAutospace, nullptr, true, "0e 17"},
        {WKDisablePaddleWatchdog, nullptr, true, "0e 95"},
        {WKPaddleEchoback, nullptr, true, "0e 55"},
        {WKSerialEchoback, nullptr, false, "0e 11"},
        {WKSidetoneEnable, nullptr, false, "09 04"},
        {WKSidetoneFrequency, u"800 Hz", u"800 Hz"_s, "01 85"},
        {WKPaddleOnlySidetone, nullptr, false, "01 0a"},
        {WKKeyOut1Enable, nullptr, false, "09 02"},
        {WKKeyOut2Enable, nullptr, true, "09 0e"},
        {WKPTTEnable, nullptr, true, "09 07"},
        {WKPTTLeadTime, u"30", 3, "04 03 0a"},
        {WKPTTTailTime, u"250", 25, "04 00 19"},
        {WKPaddleHang, u"1.66", u"1.66"_s, "09 27"},
        {WKSpeedPotMinimum, u"5", 5, "05 05 20 ff 02 00 07"},
        {WKSpeedPotRange, u"31", 31, "05 0d 1f ff 02 00 07"},
        {WKHSCWSpeed, u"2000 lpm", u"2000 lpm"_s, ""},
        {WKStandaloneCommandSpeed, u"15", 15, ""},
        {WKStandaloneEnableMessageBreak, nullptr, false, ""},
        {WKStandaloneCutSerialNumbers, nullptr, false, ""},
        {WKStandaloneMessages[0], u"CQ", u"CQ"_s, ""},
        {WKStandaloneMessages[1], u"5NN", u"5NN"_s, ""},
        {WKStandaloneMessages[2], u"TU", u"TU"_s, ""},
        {WKStandaloneMessages[3], u"QRL?", u"QRL?"_s, ""},
        {WKStandaloneMessages[4], u"TEST", u"TEST"_s, ""},
        {WKStandaloneMessages[5], u"73", u"73"_s, ""},
    };
    return all;
}

const Operation* operationOf(QLatin1StringView key) {
    const auto found = std::ranges::find_if(
        operations(), [key](const Operation& each) { return each.key == key; });
    return found != operations().end() ? &*found : nullptr;
}

bool isCheckBox(const Setting& setting) {
    return std::holds_alternative<bool>(setting.defaultValue);
}

/// What a check box sends of which the table says nothing: its register, where it has one.
QByteArray registersSent(const KeyerEncoding::DefaultsBlock& before,
                         const KeyerEncoding::DefaultsBlock& after) {
    QByteArray sent;
    for (const auto& [index, opcode] :
         std::to_array<std::pair<std::size_t, char>>({{0, 0x0E}, {2, 0x01}, {13, 0x09}})) {
        if (before[index] != after[index]) {
            sent.append(opcode).append(static_cast<char>(after[index]));
        }
    }
    return sent.toHex(' ');
}

} // namespace

void PreferencesWinKeyerPaneTest::init() {
    _bench.emplace();
    QVERIFY(_bench->connect());
    _controller.emplace(_bench->engine());
    _operator.emplace(view());
}

void PreferencesWinKeyerPaneTest::cleanup() {
    _operator.reset();
    _controller.reset();
    _bench.reset();
}

void PreferencesWinKeyerPaneTest::operate(QLatin1StringView key) {
    const auto* operation = operationOf(key);
    _operator->meetNeeds(key);
    static_cast<void>(_bench->written());
    const auto* text = operation != nullptr ? operation->entered : nullptr;
    const auto entered = QString::fromUtf16(text);
    auto& control = _operator->control(key);
    if (text == nullptr) {
        _operator->toggle(key);
    } else if (control.inherits("QComboBox")) {
        _operator->choose(key, entered);
    } else {
        _operator->enter(key, entered);
    }
}

void PreferencesWinKeyerPaneTest::forgetAllSettings() {
    for (const auto& setting : keyerSettings) {
        settings().setObject({}, setting.key);
    }
}

void PreferencesWinKeyerPaneTest::everySettingHasOneControlOfItsKind() {
    for (const auto& setting : keyerSettings) {
        if (setting.key == WKSpeed) {
            QVERIFY(_operator->controls(setting.key).isEmpty()); // the speed pot sets the speed
            continue;
        }
        QCOMPARE(_operator->controls(setting.key).size(), 1);
        const auto& control = _operator->control(setting.key);
        const auto is = [&control](const char* type) { return control.inherits(type); };
        const bool isRight = std::holds_alternative<bool>(setting.defaultValue) ? is("QCheckBox")
                             : setting.range                                    ? is("NumberBox")
                             : !setting.choices.empty()                         ? is("QComboBox")
                                                        : is("QComboBox") || is("QLineEdit");
        QVERIFY2(isRight, setting.key.data());
        QVERIFY(_operator->resetButton(setting.key).isVisibleTo(&view()) || !control.isVisible());
    }
}

void PreferencesWinKeyerPaneTest::everyControlHasItsSettingOrAction() {
    for (const auto* widget : _operator->inputs()) {
        if (widget->objectName().startsWith(u"mark")) {
            continue; // tells what is wrong with a message
        }
        if (widget->inherits("GuideButton")) {
            continue; // changes nothing
        }
        const char* property = widget->inherits("QToolButton")   ? "resets"
                               : widget->inherits("QPushButton") ? "action"
                                                                 : "setting";
        QVERIFY2(!widget->property(property).toString().isEmpty(),
                 qPrintable(widget->objectName()));
    }
}

void PreferencesWinKeyerPaneTest::listsOfferTheChoicesOfTheirSettings() {
    for (const auto& setting : keyerSettings) {
        if (setting.choices.empty()) {
            continue;
        }
        const auto& list = _operator->control<QComboBox>(setting.key);
        QVERIFY(!list.isEditable());
        QCOMPARE(list.count(), static_cast<int>(setting.choices.size()));
        for (int i = 0; i < list.count(); ++i) {
            QCOMPARE(list.itemText(i), setting.choices[static_cast<std::size_t>(i)].text);
        }
    }
}

void PreferencesWinKeyerPaneTest::theListOfRatesOffersRatesThatTheKeyerTakes() {
    const auto& list = _operator->control<QComboBox>(WKHSCWSpeed);
    QVERIFY(!list.isEditable());
    QCOMPARE(list.currentText(), u"1000 lpm"_s);
    QCOMPARE(list.itemText(0), u"800 lpm"_s);
    QCOMPARE(list.itemText(list.count() - 1), u"8000 lpm"_s);
    for (int i = 0; i < list.count(); ++i) {
        const auto rate = list.itemText(i).chopped(4).toInt();
        QCOMPARE(list.itemText(i), u"%1 lpm"_s.arg(rate));
        QCOMPARE(rate % 100, 0);
        QVERIFY(i == 0 || rate > list.itemText(i - 1).chopped(4).toInt());
    }
}

void PreferencesWinKeyerPaneTest::openingStoresAndSendsNothing() {
    for (int i = 0; i < pages().count(); ++i) {
        pages().setCurrentIndex(i);
        QTest::qWait(0);
    }
    _bench->clock().advance(1s);
    view().hide();
    QCOMPARE(_bench->written(), "");
    QVERIFY(settings().synchronize());
    const SettingsStore stored(_bench->platform().settingsPath());
    for (const auto& setting : keyerSettings) {
        QVERIFY2(!stored.objectForKey(setting.key).isValid(), setting.key.data());
    }
}

void PreferencesWinKeyerPaneTest::aControlStoresAndSends_data() {
    QTest::addColumn<QLatin1StringView>("key");
    for (const auto& setting : keyerSettings) {
        if (setting.key != WKSpeed) {
            QTest::newRow(setting.key.data()) << setting.key;
        }
    }
}

void PreferencesWinKeyerPaneTest::aControlStoresAndSends() {
    QFETCH(QLatin1StringView, key);
    const auto* operation = operationOf(key);
    const auto before = KeyerEncoding::defaultsBlock(StoredSettings());
    const bool wasOn = settings().boolForKey(key);
    operate(key);
    if (operation != nullptr) {
        QCOMPARE(settings().objectForKey(key), operation->stored);
        QCOMPARE(_bench->written(), operation->sent);
    } else {
        const auto after = KeyerEncoding::defaultsBlock(StoredSettings());
        QCOMPARE(settings().objectForKey(key), QVariant(!wasOn));
        QCOMPARE(_bench->written(), registersSent(before, after));
    }
    _bench->clock().advance(1s);
    view().hide();
    QCOMPARE(_bench->written(), ""); // nothing is sent twice
}

void PreferencesWinKeyerPaneTest::everySettingIsOperatedHere() {
    for (const auto& setting : keyerSettings) {
        const auto rows = std::ranges::count_if(
            operations(), [&](const Operation& each) { return each.key == setting.key; });
        const bool isKnown = setting.key != WKSpeed && !(isCheckBox(setting) && rows == 0);
        QCOMPARE(rows, isKnown ? 1 : 0);
    }
}

void PreferencesWinKeyerPaneTest::checkBoxesWorkBothWays() {
    for (const auto& setting : keyerSettings) {
        if (!isCheckBox(setting)) {
            continue;
        }
        _operator->meetNeeds(setting.key);
        static_cast<void>(_bench->written());
        auto& box = _operator->control<QCheckBox>(setting.key);
        const bool wasOn = settings().boolForKey(setting.key);
        QCOMPARE(box.isChecked(), wasOn);
        _operator->toggle(setting.key);
        const auto sent = _bench->written();
        QCOMPARE(settings().boolForKey(setting.key), !wasOn);
        QTest::keyClick(&box, Qt::Key_Space);
        QCOMPARE(settings().boolForKey(setting.key), wasOn);
        QVERIFY(_bench->written() != sent || sent.isEmpty());
    }
}

void PreferencesWinKeyerPaneTest::resetBringsTheDefaultBack() {
    const auto defaults = defaultsOf(keyerSettings);
    for (const auto* button : view().findChildren<QToolButton*>()) {
        const auto key = button->property("resets").toString().toLatin1();
        if (key.isEmpty()) {
            continue;
        }
        const QLatin1StringView name(key);
        QVERIFY2(!button->isEnabled(), key);
        operate(name);
        QVERIFY2(button->isEnabled(), key);
        const auto sent = _bench->written();
        _operator->reset(name);
        QVERIFY(!button->isEnabled());
        QCOMPARE(settings().objectForKey(name), defaults.value(name));
        const auto sentBack = _bench->written();
        QVERIFY2(sentBack != sent || sent.isEmpty(), key);
        QCOMPARE(sentBack.left(2), sent.left(2)); // the same command
        forgetAllSettings();
    }
}

void PreferencesWinKeyerPaneTest::theSwitchpointNeedsTheMemory() {
    _operator->enter(WKPaddleSwitchpoint, u"120"_s);
    QCOMPARE(_bench->written(), "12 3c");
    _operator->toggle(WKEnableDitDahMemory);
    QCOMPARE(_bench->written(), "12 00");
    QVERIFY(!_operator->control(WKPaddleSwitchpoint).isEnabled());
    QVERIFY(!_operator->resetButton(WKPaddleSwitchpoint).isEnabled());
    QCOMPARE(settings().integerForKey(WKPaddleSwitchpoint), 60);
    _operator->toggle(WKEnableDitDahMemory);
    QCOMPARE(_bench->written(), "12 3c");
    QVERIFY(_operator->control(WKPaddleSwitchpoint).isEnabled());
    QVERIFY(_operator->resetButton(WKPaddleSwitchpoint).isEnabled());
}

void PreferencesWinKeyerPaneTest::whatHasNoEffectIsOff_data() {
    QTest::addColumn<QString>("needed");
    QTest::addColumn<QVariant>("with");
    QTest::addColumn<QVariant>("without");
    QTest::addColumn<QStringList>("keys");
    QTest::newRow("ultimatic priority") << QString(WKKeyMode) << QVariant(u"Ultimatic"_s)
                                        << QVariant(u"Iambic B"_s) << QStringList{WKDitDahPriority};
    QTest::newRow("sidetone") << QString(WKSidetoneEnable) << QVariant(true) << QVariant(false)
                              << QStringList{WKSidetoneFrequency, WKPaddleOnlySidetone};
    QTest::newRow("PTT times") << QString(WKPTTEnable) << QVariant(true) << QVariant(false)
                               << QStringList{WKPTTLeadTime, WKPTTTailTime, WKPaddleHang};
    QTest::newRow("switchpoint") << QString(WKEnableDitDahMemory) << QVariant(true)
                                 << QVariant(false) << QStringList{WKPaddleSwitchpoint};
}

void PreferencesWinKeyerPaneTest::whatHasNoEffectIsOff() {
    QFETCH(QString, needed);
    QFETCH(QVariant, with);
    QFETCH(QVariant, without);
    QFETCH(QStringList, keys);
    const auto areOn = [&] {
        return std::ranges::all_of(keys, [this](const QString& key) {
            const auto latin = key.toLatin1();
            return _operator->control(QLatin1StringView(latin)).isEnabled();
        });
    };
    const auto areOff = [&] {
        return std::ranges::none_of(keys, [this](const QString& key) {
            const auto latin = key.toLatin1();
            return _operator->control(QLatin1StringView(latin)).isEnabled();
        });
    };
    settings().setObject(without, needed);
    QVERIFY(areOff());
    settings().setObject(with, needed);
    QVERIFY(areOn());
    settings().setObject(without, needed);
    QVERIFY(areOff());
}

void PreferencesWinKeyerPaneTest::anAssistiveToolCannotTurnTheMemoryOn() {
    _operator->toggle(WKEnableDitDahMemory);
    QCOMPARE(_bench->written(), "12 00");
    auto* switchpoint =
        QAccessible::queryAccessibleInterface(&_operator->control(WKPaddleSwitchpoint));
    switchpoint->valueInterface()->setCurrentValue(30);
    switchpoint->editableTextInterface()->replaceText(0, 3, u"60"_s);
    _bench->clock().advance(1s);
    QCOMPARE(_bench->written(), "");
    QCOMPARE(settings().integerForKey(WKPaddleSwitchpoint), 50);
}

void PreferencesWinKeyerPaneTest::withoutAnOutputItTellsThatNothingIsKeyed() {
    const auto isTold = [this] {
        return view().findChild<QLabel*>(u"noOutputLabel"_s)->isVisible();
    };
    pages().setCurrentIndex(2);
    QVERIFY(!isTold());
    _operator->toggle(WKKeyOut1Enable);
    QVERIFY(isTold());
    _operator->toggle(WKKeyOut2Enable);
    QVERIFY(!isTold());
    settings().setObject(false, WKKeyOut2Enable);
    _operator.reset();
    _controller.emplace(_bench->engine());
    _operator.emplace(view());
    pages().setCurrentIndex(2);
    QVERIFY(isTold());
}

void PreferencesWinKeyerPaneTest::withoutTheMemoryItOpensWithoutASwitchpoint() {
    settings().setObject(false, WKEnableDitDahMemory);
    settings().setObject(40, WKPaddleSwitchpoint);
    _operator.reset();
    _controller.emplace(_bench->engine());
    _operator.emplace(view());
    QCOMPARE(_operator->shown(WKEnableDitDahMemory), u"off"_s);
    QVERIFY(!_operator->control(WKPaddleSwitchpoint).isEnabled());
    QVERIFY(!_operator->resetButton(WKPaddleSwitchpoint).isEnabled());
}

void PreferencesWinKeyerPaneTest::aChangeFromElsewhereIsShown() {
    settings().setObject(u"Bug"_s, WKKeyMode);
    settings().setObject(5, WKPTTTailTime);
    settings().setObject(3.5, WKRatio);
    settings().setObject(false, WKEnableDitDahMemory);
    settings().setObject(40, WKPaddleSwitchpoint);
    QCOMPARE(_operator->shown(WKKeyMode), u"Bug"_s);
    QCOMPARE(_operator->shown(WKPTTTailTime), u"50 ms"_s);
    QCOMPARE(_operator->shown(WKRatio), u"3.50 : 1"_s);
    QCOMPARE(_operator->shown(WKEnableDitDahMemory), u"off"_s);
    QCOMPARE(_operator->shown(WKPaddleSwitchpoint), u"80 % of a dit"_s);
    QVERIFY(!_operator->control(WKPaddleSwitchpoint).isEnabled());
    _bench->clock().advance(1s);
    QCOMPARE(_bench->written(), "");
}

void PreferencesWinKeyerPaneTest::allSettingsSurviveARestart() {
    const auto operateAll = [this](bool haveNeeds) {
        for (const auto& operation : operations()) {
            const bool hasNeeds = _operator->control(operation.key).property("needs").isValid();
            if (hasNeeds == haveNeeds) {
                operate(operation.key);
            }
        }
    };
    operateAll(true);
    for (const auto needed : {WKKeyMode, WKPTTEnable}) {
        settings().setObject({}, needed);
    }
    operateAll(false);
    QVERIFY(settings().synchronize());

    SettingsStore again(_bench->platform().settingsPath());
    again.registerDefaults(defaultsOf(keyerSettings));
    for (const auto& operation : operations()) {
        const auto& key = operation.key;
        const bool isBool = operation.entered == nullptr;
        const auto read = isBool ? QVariant(again.boolForKey(key))
                          : operation.stored.typeId() == QMetaType::Int
                              ? QVariant(static_cast<int>(again.integerForKey(key)))
                          : operation.stored.typeId() == QMetaType::Double
                              ? QVariant(again.doubleForKey(key))
                              : QVariant(again.stringForKey(key));
        QCOMPARE(read, operation.stored);
    }
}

static const RegisteredTest<PreferencesWinKeyerPaneTest> registered;
#include "PreferencesWinKeyerPaneTest.moc"
