#include "preferences/binding/NeededSetting.h"

#include "tests/preferences/binding/BinderBench.h"
#include "tests/support/RegisteredTest.h"

#include <QAccessible>
#include <QLabel>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class NeededSettingTest : public QObject, private BinderBench {
    Q_OBJECT

  private Q_SLOTS:
    void init() { setUp(); }
    void cleanup() { tearDown(); }

    void aControlNeedsASwitch();
    void aControlNeedsAChoice();
    void labelAndResetButtonGoWithTheControl();
    void whatIsBeingTypedIsTakenBeforeTheControlIsOff();
    void aDisabledListCannotBeSet();
    void aDisabledFieldCannotBeSet();
    void aDisabledValueFollowsTheStore();
    void mistakesAreThrown();
};

void NeededSettingTest::aControlNeedsASwitch() {
    _view->speed.setProperty("needs", u"Swap"_s);
    bind();
    QVERIFY(!_view->speed.isEnabled());
    _view->swap.click();
    QVERIFY(_view->speed.isEnabled());
    store(false, u"Swap"_s);
    QVERIFY(!_view->speed.isEnabled());
}

void NeededSettingTest::aControlNeedsAChoice() {
    _view->speed.setProperty("needs", u"Mode=Bug"_s);
    bind();
    QVERIFY(!_view->speed.isEnabled());
    store(u"Bug"_s, u"Mode"_s);
    QVERIFY(_view->speed.isEnabled());
    store(u"Iambic B"_s, u"Mode"_s);
    QVERIFY(!_view->speed.isEnabled());
}

void NeededSettingTest::labelAndResetButtonGoWithTheControl() {
    _view->speed.setProperty("needs", u"Swap"_s);
    store(true, u"Swap"_s);
    store(45, u"Speed"_s);
    bind();
    auto* label = qobject_cast<QFormLayout*>(_view->layout())->labelForField(&_view->speed);
    QVERIFY(_view->reset.isEnabled());
    QVERIFY(label->isEnabled());
    store(false, u"Swap"_s);
    QVERIFY(!_view->reset.isEnabled());
    QVERIFY(!label->isEnabled());
    store(true, u"Swap"_s);
    QVERIFY(_view->reset.isEnabled());
    QVERIFY(label->isEnabled());
}

void NeededSettingTest::whatIsBeingTypedIsTakenBeforeTheControlIsOff() {
    _view->speed.setProperty("needs", u"Swap"_s);
    store(true, u"Swap"_s);
    bind();
    showView();
    _view->speed.setFocus();
    _view->speed.selectAll();
    QTest::keyClicks(&_view->speed, u"45"_s);
    QTest::keyClick(&_view->speed, Qt::Key_W, Qt::AltModifier); // the switch's key
    QTRY_VERIFY(!_view->speed.isEnabled());
    QCOMPARE(calls(), QStringList({u"Speed=45"_s, u"Swap=false"_s}));
}

void NeededSettingTest::aDisabledListCannotBeSet() {
    _view->mode.setProperty("needs", u"Swap"_s);
    bind();
    _view->mode.setCurrentIndex(2); // as an assistive tool may
    _platform->clock().advance(1s);
    QCOMPARE(_view->mode.currentText(), u"Iambic A"_s);
    QCOMPARE(stored(u"Mode"_s), QVariant(u"Iambic A"_s));
    QCOMPARE(calls(), QStringList());
}

void NeededSettingTest::aDisabledFieldCannotBeSet() {
    _view->call.setProperty("needs", u"Swap"_s);
    bind();
    auto* text = QAccessible::queryAccessibleInterface(&_view->call)->editableTextInterface();
    text->insertText(0, u"x"_s);
    _platform->clock().advance(1s);
    QCOMPARE(_view->call.text(), u"your call"_s);
    QCOMPARE(stored(u"Call"_s), QVariant(u"your call"_s));
    QCOMPARE(calls(), QStringList());
}

void NeededSettingTest::aDisabledValueFollowsTheStore() {
    _view->speed.setProperty("needs", u"Swap"_s);
    bind();
    store(45, u"Speed"_s);
    QCOMPARE(_view->speed.text(), u"45 wpm"_s);
}

void NeededSettingTest::mistakesAreThrown() {
    for (const auto& need : {u"Other"_s, u"Speed"_s, u"Mode"_s, u"Mode=Straight"_s, u"Swap=on"_s}) {
        _view->speed.setProperty("needs", need);
        QVERIFY_THROWS_EXCEPTION(std::logic_error, bind());
    }
}

static const RegisteredTest<NeededSettingTest> registered;
#include "NeededSettingTest.moc"
