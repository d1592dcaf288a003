#include "keyer/KeyerSettings.h"
#include "preferences/PreferencesWinKeyerViewController.h"
#include "preferences/binding/NumberBox.h"
#include "tests/keyer/EngineBench.h"
#include "tests/preferences/PaneOperator.h"
#include "tests/support/RegisteredTest.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QStyleOptionSpinBox>
#include <QTabWidget>
#include <QTest>

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// The numbers of the keyer's pane: when they act, and what becomes of one that is out of range.
class PreferencesWinKeyerPaneNumbersTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup();

    void aNumberActsOnceItHasSettled();
    void aNumberThatHasNotSettledActsAtTheEnd();
    void aNumberThatIsHiddenActsAtTheEnd();
    void aNumberActsAheadOfAChangeOfAnother();
    void twoNumbersThatSettleTogetherActInTheOrderOfTheirChanges_data();
    void twoNumbersThatSettleTogetherActInTheOrderOfTheirChanges();
    void commandsComeInTheOrderOfTheChanges();
    void heldKeysSendOneCommand();
    void arrowsWorkByMouse();
    void aNumberThatComesBackIsSent();
    void aNumberOutOfRangeIsToldAndNothingElse_data();
    void aNumberOutOfRangeIsToldAndNothingElse();
    void aStoredValueOutOfRangeIsToldAndKept();
    void whatIsWrongHidesNoExplanation();

  private:
    [[nodiscard]] QWidget& view() { return *_controller->view(); }
    [[nodiscard]] QTabWidget& pages() { return *view().findChild<QTabWidget*>(); }
    [[nodiscard]] SettingsStore& settings() { return _bench->settings(); }

    std::optional<EngineBench> _bench;
    std::optional<PreferencesWinKeyerViewController> _controller;
    std::optional<PaneOperator> _operator;
};

void PreferencesWinKeyerPaneNumbersTest::init() {
    _bench.emplace();
    QVERIFY(_bench->connect());
    _controller.emplace(_bench->engine());
    _operator.emplace(view());
}

void PreferencesWinKeyerPaneNumbersTest::cleanup() {
    _operator.reset();
    _controller.reset();
    _bench.reset();
}

void PreferencesWinKeyerPaneNumbersTest::aNumberActsOnceItHasSettled() {
    auto& weighting = _operator->control(WKWeighting);
    weighting.setFocus();
    QTest::keyClick(&weighting, Qt::Key_Up);
    QCOMPARE(settings().integerForKey(WKWeighting), 1);
    QCOMPARE(_bench->written(), "");
    _bench->clock().advance(1s);
    QCOMPARE(_bench->written(), "03 33");

    QTest::keyClick(&weighting, Qt::Key_Up);
    QTest::keyClick(&weighting, Qt::Key_Tab); // left: that settles it
    QCOMPARE(_bench->written(), "03 34");
}

void PreferencesWinKeyerPaneNumbersTest::aNumberThatHasNotSettledActsAtTheEnd() {
    _operator->type(WKWeighting, u"7"_s);
    QCOMPARE(_bench->written(), "");
    _operator.reset();
    _controller.reset();
    QCOMPARE(settings().integerForKey(WKWeighting), 7);
    QCOMPARE(_bench->written(), "03 39");
}

void PreferencesWinKeyerPaneNumbersTest::aNumberThatIsHiddenActsAtTheEnd() {
    auto& weighting = _operator->control<NumberBox>(WKWeighting);
    view().hide();
    weighting.stepUp(); // as an assistive tool may
    QCOMPARE(_bench->written(), "");
    _operator.reset();
    _controller.reset();
    QCOMPARE(_bench->written(), "03 33");
}

void PreferencesWinKeyerPaneNumbersTest::aNumberActsAheadOfAChangeOfAnother() {
    _operator->toggle(WKPTTEnable);
    static_cast<void>(_bench->written());
    auto& tail = _operator->control(WKPTTTailTime);
    auto& ratio = _operator->control(WKRatio);
    tail.setFocus();
    QTest::keyClick(&tail, Qt::Key_Up);
    pages().setCurrentIndex(0);
    ratio.setFocus();
    QTest::keyClick(&ratio, Qt::Key_Up);
    _bench->clock().advance(1s);
    QCOMPARE(_bench->written(), "04 00 0b 17 33");
}

void PreferencesWinKeyerPaneNumbersTest::
    twoNumbersThatSettleTogetherActInTheOrderOfTheirChanges_data() {
    QTest::addColumn<bool>("isWeightingFirst");
    QTest::addColumn<bool>("isAtTheEnd");
    QTest::addColumn<QByteArray>("commands");
    const QByteArray weighting = "03 3c";
    const QByteArray extension = "10 14";
    QTest::newRow("one way, in time") << true << false << weighting + ' ' + extension;
    QTest::newRow("the other way, in time") << false << false << extension + ' ' + weighting;
    QTest::newRow("one way, at the end") << true << true << weighting + ' ' + extension;
    QTest::newRow("the other way, at the end") << false << true << extension + ' ' + weighting;
}

/// As an assistive tool types them, which has no focus to move in between.
void PreferencesWinKeyerPaneNumbersTest::twoNumbersThatSettleTogetherActInTheOrderOfTheirChanges() {
    QFETCH(const bool, isWeightingFirst);
    QFETCH(const bool, isAtTheEnd);
    const auto type = [this](QLatin1StringView key, const QString& text) {
        _operator->control(key).findChild<QLineEdit*>()->setText(text);
    };
    if (isWeightingFirst) {
        type(WKWeighting, u"10 %"_s);
    }
    type(WKFirstExtension, u"20 ms"_s);
    if (!isWeightingFirst) {
        type(WKWeighting, u"10 %"_s);
    }
    if (isAtTheEnd) {
        view().hide();
    } else {
        _bench->clock().advance(1s);
    }
    QCOMPARE(settings().integerForKey(WKWeighting), 10);
    QCOMPARE(settings().doubleForKey(WKFirstExtension), 20.0);
    QTEST(_bench->written(), "commands");
}

/// Else the late switchpoint would turn the memory on again.
void PreferencesWinKeyerPaneNumbersTest::commandsComeInTheOrderOfTheChanges() {
    pages().setCurrentIndex(1);
    _operator->control<NumberBox>(WKPaddleSwitchpoint).setValue(60);
    _operator->control<QCheckBox>(WKEnableDitDahMemory).click();
    _bench->clock().advance(1s);
    QCOMPARE(_bench->written(), "12 3c 12 00");
}

void PreferencesWinKeyerPaneNumbersTest::heldKeysSendOneCommand() {
    auto& lead = _operator->control(WKPTTLeadTime);
    settings().setObject(true, WKPTTEnable);
    pages().setCurrentIndex(2);
    lead.setFocus();
    for (int i = 0; i < 12; ++i) {
        QTest::keyClick(&lead, Qt::Key_Up);
        _bench->clock().advance(30ms); // as keys repeat
    }
    QCOMPARE(settings().integerForKey(WKPTTLeadTime), 12);
    QCOMPARE(_bench->written(), "");
    _bench->clock().advance(1s);
    QCOMPARE(_bench->written(), "04 0c 0a");
}

void PreferencesWinKeyerPaneNumbersTest::arrowsWorkByMouse() {
    auto& ratio = _operator->control<NumberBox>(WKRatio);
    QStyleOptionSpinBox option;
    option.initFrom(&ratio);
    option.subControls = QStyle::SC_All;
    option.stepEnabled = QAbstractSpinBox::StepUpEnabled | QAbstractSpinBox::StepDownEnabled;
    const auto arrow =
        ratio.style()->subControlRect(QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxDown, &ratio);
    QTest::mouseClick(&ratio, Qt::LeftButton, {}, arrow.center());
    QTest::mouseClick(&ratio, Qt::LeftButton, {}, arrow.center());
    QCOMPARE(settings().doubleForKey(WKRatio), 2.8);
    _bench->clock().advance(1s);
    QCOMPARE(_bench->written(), "17 2e");
}

/// A command of its neighbour has told the keyer of what was there in between.
void PreferencesWinKeyerPaneNumbersTest::aNumberThatComesBackIsSent() {
    auto& lead = _operator->control(WKPTTLeadTime);
    settings().setObject(true, WKPTTEnable);
    pages().setCurrentIndex(2);
    lead.setFocus();
    QTest::keyClick(&lead, Qt::Key_Up);
    _controller->changePTT(nullptr);
    QCOMPARE(_bench->written(), "04 01 0a");
    QTest::keyClick(&lead, Qt::Key_Down);
    _bench->clock().advance(1s);
    QCOMPARE(_bench->written(), "04 00 0a");
}

void PreferencesWinKeyerPaneNumbersTest::aNumberOutOfRangeIsToldAndNothingElse_data() {
    QTest::addColumn<QString>("key");
    for (const auto& setting : keyerSettings) {
        if (setting.range) {
            QTest::newRow(setting.key.data()) << QString(setting.key);
        }
    }
}

void PreferencesWinKeyerPaneNumbersTest::aNumberOutOfRangeIsToldAndNothingElse() {
    QFETCH(QString, key);
    const auto setting = std::ranges::find_if(
        keyerSettings, [&key](const Setting& each) { return each.key == key; });
    _operator->meetNeeds(setting->key);
    static_cast<void>(_bench->written());
    const auto& box = _operator->control<NumberBox>(setting->key);
    for (const auto text : {-1000, -41, -1, 0, 1, 3, 4, 9, 33, 100, 181, 251, 300, 4000, 99999}) {
        const auto before = settings().objectForKey(key);
        _operator->enter(setting->key, QString::number(text));
        const bool isOffered = text >= setting->range->minimum * box.scale() &&
                               text <= setting->range->maximum * box.scale();
        const auto words = view().findChild<QLabel*>(u"explanation"_s)->text();
        QCOMPARE(words.contains(u"%1%2 is out of range"_s.arg(text).arg(box.suffix())), !isOffered);
        QCOMPARE(box.accessibleDescription().contains(u"is out of range"), !isOffered);
        if (!isOffered) {
            QCOMPARE(box.text(), QString::number(text) + box.suffix());
            QCOMPARE(settings().objectForKey(key), before);
            QCOMPARE(_bench->written(), "");
        }
        static_cast<void>(_bench->written());
    }
}

void PreferencesWinKeyerPaneNumbersTest::aStoredValueOutOfRangeIsToldAndKept() {
    settings().setObject(-60, WKWeighting);
    settings().setObject(30, WKPTTLeadTime);
    settings().setObject(u"1999 lpm"_s, WKHSCWSpeed);
    QVERIFY(_operator->shown(WKWeighting).contains(u"-60 %"));
    QVERIFY(_operator->shown(WKPTTLeadTime).contains(u"300 ms"));
    QCOMPARE(_operator->shown(WKHSCWSpeed), u"1999 lpm"_s);
    view().hide();
    QCOMPARE(settings().integerForKey(WKWeighting), -60);
    QCOMPARE(settings().integerForKey(WKPTTLeadTime), 30);
    QCOMPARE(settings().stringForKey(WKHSCWSpeed), u"1999 lpm"_s);
    QCOMPARE(_bench->written(), "");
}

/// Whoever has no mouse reads the explanation there alone.
void PreferencesWinKeyerPaneNumbersTest::whatIsWrongHidesNoExplanation() {
    const auto* line = view().findChild<QLabel*>(u"explanation"_s);
    _operator->enter(WKWeighting, u"99"_s);
    const auto ofWeighting = line->text();
    QVERIFY2(ofWeighting.startsWith(u"99 % is out of range"), qPrintable(ofWeighting));
    QVERIFY2(ofWeighting.endsWith(u"default 0 %"), qPrintable(ofWeighting));
    _operator->control(WKRatio).setFocus();
    const auto ofRatio = line->text();
    QVERIFY2(ofRatio.startsWith(u"Weighting: 99 % is out of range"), qPrintable(ofRatio));
    QVERIFY2(ofRatio.endsWith(u"default 3 : 1"), qPrintable(ofRatio));
    _operator->enter(WKWeighting, u"9"_s);
    _operator->control(WKRatio).setFocus();
    QVERIFY2(!line->text().contains(u"out of range"), qPrintable(line->text()));
}

static const RegisteredTest<PreferencesWinKeyerPaneNumbersTest> registered;
#include "PreferencesWinKeyerPaneNumbersTest.moc"
