#include "preferences/binding/SettingBinder.h"

#include "tests/preferences/binding/BinderBench.h"
#include "tests/support/RegisteredTest.h"

#include <QTest>
#include <QTextDocument>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class SettingBinderTest : public QObject, private BinderBench {
    Q_OBJECT

  private Q_SLOTS:
    void init() { setUp(); }
    void cleanup() { tearDown(); }

    void defaultsShow();
    void storedValuesShow();
    void showingWritesNothing();
    void choicesAreExactlyTheTables();
    void rangesAreTheTables();
    void aValueThatComesBackActs();
    void whatActsLetsTheOthersActFirst();
    void theValueIsStoredBeforeItSettles();
    void changesElsewhereShowWithoutActing();
    void theEndOfTheBinderSettles();
    void theEndOfTheViewLeavesNothingBehind();
    void aDeadControllerIsNotCalled();
    void resetRemovesTheStoredValueAndActs();
    void resetIsForOtherValuesThanTheDefault();
    void resetByKeyboardKeepsTheFocusNear();
    void theWheelChangesOnlyWhatHasTheFocus();
    void toolTipsTellRangeUnitAndDefault();
    void scaledNumbersAreToldAsShown();
    void aButtonActs();
    void aButtonActsOnceAllHasSettled();
    void aButtonOutlivesTheBinder();
    void mistakesInAViewAreThrown();
};

void SettingBinderTest::defaultsShow() {
    bind();
    QCOMPARE(_view->swap.isChecked(), false);
    QCOMPARE(_view->mode.currentText(), u"Iambic A"_s);
    QCOMPARE(_view->pace.currentText(), u"1000 lpm"_s);
    QCOMPARE(_view->call.text(), u"your call"_s);
    QCOMPARE(_view->text.text(), u"CQ"_s);
    QCOMPARE(_view->speed.value(), 10);
    QCOMPARE(_view->ratio.value(), 3.0);
    QCOMPARE(_view->spare.value(), 5);
}

void SettingBinderTest::storedValuesShow() {
    store(true, u"Swap"_s);
    store(u"Bug"_s, u"Mode"_s);
    store(u"2000 lpm"_s, u"Pace"_s);
    store(u"N0CALL"_s, u"Call"_s);
    store(u"tu"_s, u"Text"_s);
    store(u"45"_s, u"Speed"_s);
    store(2.5, u"Ratio"_s);
    bind();
    QCOMPARE(_view->swap.isChecked(), true);
    QCOMPARE(_view->mode.currentText(), u"Bug"_s);
    QCOMPARE(_view->pace.currentText(), u"2000 lpm"_s);
    QCOMPARE(_view->call.text(), u"N0CALL"_s);
    QCOMPARE(_view->text.text(), u"TU"_s);
    QCOMPARE(_view->speed.value(), 45);
    QCOMPARE(_view->ratio.value(), 2.5);
    QCOMPARE(calls(), QStringList());
}

void SettingBinderTest::showingWritesNothing() {
    store(u"Straight"_s, u"Mode"_s);
    store(u"3000 lpm"_s, u"Pace"_s);
    store(u"a&b*c"_s, u"Text"_s);
    store(200, u"Speed"_s);
    store(2.123456, u"Ratio"_s);
    const auto before = file();
    bind();
    showView();
    _view->setFocus();
    for (int i = 0; i < 20; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    _binder->show();
    _view->hide();
    _platform->clock().advance(1s);
    _binder.reset();
    QCOMPARE(file(), before);
    QCOMPARE(calls(), QStringList());
}

void SettingBinderTest::choicesAreExactlyTheTables() {
    _view->mode.addItem(u"from the form"_s);
    bind();
    QCOMPARE(_view->mode.count(), 3);
    QCOMPARE(_view->mode.itemText(0), u"Iambic B"_s);
    QCOMPARE(_view->mode.itemText(1), u"Iambic A"_s);
    QCOMPARE(_view->mode.itemText(2), u"Bug"_s);
    QCOMPARE(_view->pace.count(), 2);
}

void SettingBinderTest::rangesAreTheTables() {
    bind();
    QCOMPARE(_view->speed.minimum(), 10);
    QCOMPARE(_view->speed.maximum(), 99);
    QCOMPARE(_view->ratio.minimum(), 1.98);
    QCOMPARE(_view->ratio.maximum(), 3.99);
    QCOMPARE(_view->spare.maximum(), 7);
}

/// Something else may have sent the value in between.
void SettingBinderTest::aValueThatComesBackActs() {
    bind();
    _view->speed.stepUp();
    _view->speed.stepDown();
    _platform->clock().advance(1s);
    QCOMPARE(calls(), QStringList{u"Speed=10"_s});
}

void SettingBinderTest::whatActsLetsTheOthersActFirst() {
    bind();
    _view->speed.stepUp();
    _view->swap.click();
    QCOMPARE(calls(), QStringList({u"Speed=11"_s, u"Swap=true"_s}));
    _view->ratio.stepUp();
    _view->speed.stepUp();
    _view->swap.click();
    QCOMPARE(calls(), QStringList({u"Ratio=3.1"_s, u"Speed=12"_s, u"Swap=false"_s}));
    _platform->clock().advance(1s);
    QCOMPARE(calls(), QStringList());
}

void SettingBinderTest::theValueIsStoredBeforeItSettles() {
    bind();
    _view->speed.stepUp();
    QCOMPARE(stored(u"Speed"_s), QVariant(11));
    _view->ratio.stepUp();
    QCOMPARE(stored(u"Ratio"_s), QVariant(3.1));
}

void SettingBinderTest::changesElsewhereShowWithoutActing() {
    bind();
    store(true, u"Swap"_s);
    store(u"Bug"_s, u"Mode"_s);
    store(u"N0CALL"_s, u"Call"_s);
    store(44, u"Speed"_s);
    store(2.0, u"Ratio"_s);
    QCOMPARE(_view->swap.isChecked(), true);
    QCOMPARE(_view->mode.currentText(), u"Bug"_s);
    QCOMPARE(_view->call.text(), u"N0CALL"_s);
    QCOMPARE(_view->speed.value(), 44);
    QCOMPARE(_view->ratio.value(), 2.0);
    _platform->clock().advance(1s);
    QCOMPARE(calls(), QStringList());
}

void SettingBinderTest::theEndOfTheBinderSettles() {
    bind();
    _view->speed.stepUp();
    _binder.reset();
    QCOMPARE(calls(), QStringList{u"Speed=11"_s});
    _view->speed.stepUp();
    QCOMPARE(stored(u"Speed"_s), QVariant(11));
}

void SettingBinderTest::theEndOfTheViewLeavesNothingBehind() {
    bind();
    _view->speed.stepUp();
    _view.reset();
    _platform->clock().advance(1s);
    store(50, u"Speed"_s);
    _binder->show();
    _binder->settle();
    _binder.reset();
    QCOMPARE(calls(), QStringList());
}

void SettingBinderTest::aDeadControllerIsNotCalled() {
    bind();
    _view->speed.stepUp();
    _controller.reset();
    _platform->clock().advance(1s);
    QCOMPARE(stored(u"Speed"_s), QVariant(11));
}

void SettingBinderTest::resetRemovesTheStoredValueAndActs() {
    store(45, u"Speed"_s);
    bind();
    QCOMPARE(_view->reset.accessibleName(), u"Reset Speed to 10 wpm"_s);
    QCOMPARE(_view->reset.toolTip(), u"Reset Speed to 10 wpm"_s);
    _view->reset.click();
    QCOMPARE(_view->speed.value(), 10);
    QCOMPARE(calls(), QStringList{u"Speed=10"_s});
    QVERIFY(!file().contains("Speed"));
    _platform->clock().advance(1s);
    QCOMPARE(calls(), QStringList());
}

void SettingBinderTest::resetIsForOtherValuesThanTheDefault() {
    bind();
    QVERIFY(!_view->reset.isEnabled());
    store(200, u"Speed"_s);
    QVERIFY(_view->reset.isEnabled());
    store(u"10"_s, u"Speed"_s);
    QVERIFY(!_view->reset.isEnabled());
    _view->speed.stepUp();
    QVERIFY(_view->reset.isEnabled());
    _view->reset.click();
    QVERIFY(!_view->reset.isEnabled());
    QCOMPARE(calls(), QStringList{u"Speed=10"_s});
}

void SettingBinderTest::resetByKeyboardKeepsTheFocusNear() {
    store(45, u"Speed"_s);
    bind();
    showView();
    _view->reset.setFocus();
    QTest::keyClick(&_view->reset, Qt::Key_Space);
    QCOMPARE(stored(u"Speed"_s), QVariant(10));
    QCOMPARE(QApplication::focusWidget(), &_view->speed);
}

void SettingBinderTest::theWheelChangesOnlyWhatHasTheFocus() {
    bind();
    showView();
    _view->call.setFocus();
    const auto wheel = [](QWidget& widget) {
        QWheelEvent event(widget.rect().center(), widget.mapToGlobal(widget.rect().center()), {},
                          {0, 120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&widget, &event);
    };
    // A real wheel would first bring the focus to what takes it by wheel.
    QCOMPARE(_view->speed.focusPolicy(), Qt::StrongFocus);
    QCOMPARE(_view->mode.focusPolicy(), Qt::StrongFocus);
    wheel(_view->speed);
    wheel(_view->mode);
    QCOMPARE(stored(u"Speed"_s), QVariant(10));
    QCOMPARE(stored(u"Mode"_s), QVariant(u"Iambic A"_s));
    _view->speed.setFocus();
    wheel(_view->speed);
    QCOMPARE(stored(u"Speed"_s), QVariant(11));
}

void SettingBinderTest::toolTipsTellRangeUnitAndDefault() {
    bind();
    QCOMPARE(_view->speed.accessibleDescription(), u"How fast.\n10 to 99 wpm, default 10 wpm"_s);
    QCOMPARE(_view->ratio.accessibleDescription(), u"1.98 to 3.99, default 3"_s);
    QCOMPARE(_view->spare.accessibleDescription(), u"0 to 7, default 5"_s);
    QCOMPARE(_view->swap.accessibleDescription(), u"Default: off"_s);
    QCOMPARE(_view->mode.accessibleDescription(), u"Default: Iambic A"_s);
    QCOMPARE(_view->call.accessibleDescription(), u"Default: your call"_s);
    // The tool tip says the same, as rich text, which wraps.
    QVERIFY(Qt::mightBeRichText(_view->speed.toolTip()));
    QTextDocument toolTip;
    toolTip.setHtml(_view->speed.toolTip());
    QCOMPARE(toolTip.toPlainText().replace(QChar::LineSeparator, u'\n'),
             _view->speed.accessibleDescription());
}

void SettingBinderTest::scaledNumbersAreToldAsShown() {
    _view->spare.setProperty("scale", 10);
    bind();
    QCOMPARE(_view->spare.accessibleDescription(), u"0 to 70, default 50"_s);
}

void SettingBinderTest::aButtonActs() {
    bind();
    showView();
    QTest::mouseClick(&_view->send, Qt::LeftButton);
    QCOMPARE(calls(), QStringList{u"="_s}); // it has no setting
}

void SettingBinderTest::aButtonActsOnceAllHasSettled() {
    bind();
    showView();
    _view->ratio.stepUp();
    _view->speed.setFocus();
    _view->speed.selectAll();
    QTest::keyClicks(&_view->speed, u"45"_s);
    QTest::keyClick(&_view->speed, Qt::Key_N, Qt::AltModifier);
    QTRY_VERIFY(!_view->send.isDown());
    QCOMPARE(calls(), QStringList({u"Ratio=3.1"_s, u"Speed=45"_s, u"="_s}));
    QCOMPARE(QApplication::focusWidget(), &_view->speed);
}

void SettingBinderTest::aButtonOutlivesTheBinder() {
    bind();
    _binder.reset();
    _view->send.click();
    QCOMPARE(calls(), QStringList());
}

void SettingBinderTest::mistakesInAViewAreThrown() {
    _view->send.setProperty("action", u"noSuchAction"_s);
    QVERIFY_THROWS_EXCEPTION(std::logic_error, bind());
    _view->send.setProperty("action", {});
    _view->speed.setProperty("action", u"noSuchAction"_s);
    QVERIFY_THROWS_EXCEPTION(std::logic_error, bind());
    _view->speed.setProperty("action", {});
    _view->reset.setProperty("setting", u"Speed"_s);
    QVERIFY_THROWS_EXCEPTION(std::logic_error, bind());
    _view->reset.setProperty("setting", {});
    _view->reset.setProperty("resets", u"Other"_s);
    QVERIFY_THROWS_EXCEPTION(std::logic_error, bind());
    _view->reset.setProperty("resets", {});
    _view->speed.setProperty("setting", u"Other"_s);
    QVERIFY_THROWS_EXCEPTION(std::logic_error, bind());
}

static const RegisteredTest<SettingBinderTest> registered;
#include "SettingBinderTest.moc"
