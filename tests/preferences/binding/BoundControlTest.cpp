#include "preferences/binding/BoundControl.h"

#include "tests/preferences/binding/BinderBench.h"
#include "tests/support/RegisteredTest.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

void chooseFromList(QComboBox& box, int index) {
    box.setFocus();
    box.showPopup();
    box.view()->setCurrentIndex(box.model()->index(index, 0));
    QTest::keyClick(box.view(), Qt::Key_Return);
}

/// Whether the widget has taken the turn for itself.
bool turnWheel(QWidget& widget) {
    QWheelEvent event(widget.rect().center(), widget.mapToGlobal(widget.rect().center()), {},
                      {0, 120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&widget, &event);
    return event.isAccepted();
}

} // namespace

class BoundControlTest : public QObject, private BinderBench {
    Q_OBJECT

  private Q_SLOTS:
    void init() { setUp(); }
    void cleanup() { tearDown(); }

    void anUnknownChoiceStaysUntilItIsChanged();
    void aTextBesideTheItemsIsOneMoreItem();
    void aMissingTextIsShownAsSuch();
    void itemsDataIsStoredInPlaceOfTheirText();
    void aReplacedListShowsTheStoredText();
    void aCheckBoxActsAtOnce();
    void anItemOfTheOpenListActsAtOnce();
    void itemsPassedByKeyActOnceSettled_data();
    void itemsPassedByKeyActOnceSettled();
    void itemsPassedByWheelActOnceSettled();
    void anItemPassedActsWhenTheBoxIsLeft();
    void whatActsOnEveryChoiceOpensByKey_data();
    void whatActsOnEveryChoiceOpensByKey();
    void whatActsOnEveryChoiceIgnoresTheWheel();
    void whatActsOnEveryChoiceSearchesOnlyItsOpenList();
    void aChosenItemActsOnceByEitherWay();
    void choosingTheSameItemActsWhereThatIsAskedFor();
    void aTextIsStoredLetterByLetterAndActsOnce();
    void aStoredTextIsNotFilteredByShowingIt();
    void aTextFromAnAssistiveToolIsStoredAndActs();
    void theInsertionPointStaysWhileTyping();
    void steppingActsOncePerSettledValue();
    void aTypedNumberActsWhenReturnIsPressed();
    void aTypedNumberActsWhenTheFieldIsLeft();
    void aTypedNumberActsWhenTheViewHides();
    void aTypedNumberActsWhenSettlingIsAskedFor();
};

void BoundControlTest::anUnknownChoiceStaysUntilItIsChanged() {
    store(u"Straight"_s, u"Mode"_s);
    bind();
    QCOMPARE(_view->mode.count(), 3);
    QCOMPARE(_view->mode.currentIndex(), -1);
    QCOMPARE(_view->mode.placeholderText(), u"stored: Straight"_s);
    QVERIFY(_view->mode.toolTip().contains(u"stored: Straight"_s));
    QCOMPARE(stored(u"Mode"_s), QVariant(u"Straight"_s));
    QTest::keyClick(&_view->mode, Qt::Key_Down);
    QCOMPARE(stored(u"Mode"_s), QVariant(u"Iambic B"_s));
    QVERIFY(_view->mode.placeholderText().isEmpty());
    QVERIFY(!_view->mode.toolTip().contains(u"stored"_s));
}

void BoundControlTest::aTextBesideTheItemsIsOneMoreItem() {
    store(u"3000 lpm"_s, u"Pace"_s);
    bind();
    QCOMPARE(_view->pace.count(), 3);
    QCOMPARE(_view->pace.currentText(), u"3000 lpm"_s);
    store(u"4000 lpm"_s, u"Pace"_s);
    QCOMPARE(_view->pace.count(), 3);
    QCOMPARE(_view->pace.currentText(), u"4000 lpm"_s);
    QTest::keyClick(&_view->pace, Qt::Key_Home);
    QCOMPARE(stored(u"Pace"_s), QVariant(u"1000 lpm"_s));
    QCOMPARE(_view->pace.count(), 2);
    _platform->clock().advance(250ms);
    QCOMPARE(calls(), QStringList{u"Pace=1000 lpm"_s});
}

void BoundControlTest::aMissingTextIsShownAsSuch() {
    _view->pace.setProperty("missingText", u"%1 (gone)"_s);
    store(u"3000 lpm"_s, u"Pace"_s);
    bind();
    QCOMPARE(_view->pace.currentText(), u"3000 lpm (gone)"_s);
    QTest::keyClick(&_view->pace, Qt::Key_Up);
    QCOMPARE(stored(u"Pace"_s), QVariant(u"2000 lpm"_s));
}

void BoundControlTest::itemsDataIsStoredInPlaceOfTheirText() {
    _view->pace.setItemText(1, u"fast"_s);
    _view->pace.setItemData(1, u"2000 lpm"_s);
    store(u"2000 lpm"_s, u"Pace"_s);
    bind();
    QCOMPARE(_view->pace.currentText(), u"fast"_s);
    QTest::keyClick(&_view->pace, Qt::Key_Up);
    QTest::keyClick(&_view->pace, Qt::Key_Down);
    QCOMPARE(stored(u"Pace"_s), QVariant(u"2000 lpm"_s));
}

void BoundControlTest::aReplacedListShowsTheStoredText() {
    store(u"2000 lpm"_s, u"Pace"_s);
    bind();
    {
        const QSignalBlocker quiet(_view->pace);
        _view->pace.clear();
        _view->pace.addItems({u"1000 lpm"_s, u"1500 lpm"_s});
    }
    _binder->show();
    QCOMPARE(_view->pace.currentText(), u"2000 lpm"_s);
    QCOMPARE(_view->pace.count(), 3);
    QCOMPARE(calls(), QStringList());
}

void BoundControlTest::aCheckBoxActsAtOnce() {
    bind();
    _view->swap.click();
    QCOMPARE(calls(), QStringList{u"Swap=true"_s});
    _view->swap.click();
    QCOMPARE(calls(), QStringList{u"Swap=false"_s});
    QCOMPARE(stored(u"Swap"_s), QVariant(false));
}

void BoundControlTest::anItemOfTheOpenListActsAtOnce() {
    bind();
    showView();
    chooseFromList(_view->mode, 2);
    QCOMPARE(calls(), QStringList{u"Mode=Bug"_s});
    _platform->clock().advance(1s);
    QCOMPARE(calls(), QStringList());
}

void BoundControlTest::itemsPassedByKeyActOnceSettled_data() {
    QTest::addColumn<QList<Qt::Key>>("keys");
    QTest::newRow("by steps") << QList{Qt::Key_Up, Qt::Key_Down, Qt::Key_Down};
    QTest::newRow("to the ends") << QList{Qt::Key_Home, Qt::Key_End};
    QTest::newRow("by the first letter") << QList{Qt::Key_I, Qt::Key_B};
}

void BoundControlTest::itemsPassedByKeyActOnceSettled() {
    QFETCH(QList<Qt::Key>, keys);
    QApplication::setKeyboardInputInterval(0);
    bind();
    for (const auto key : keys) {
        QTest::qWait(2); // else letters were one search
        QTest::keyClick(&_view->mode, key);
        _platform->clock().advance(249ms);
    }
    QCOMPARE(stored(u"Mode"_s), QVariant(u"Bug"_s));
    QCOMPARE(calls(), QStringList());
    _platform->clock().advance(1ms);
    QCOMPARE(calls(), QStringList{u"Mode=Bug"_s});
    _platform->clock().advance(1s);
    QCOMPARE(calls(), QStringList());
}

void BoundControlTest::itemsPassedByWheelActOnceSettled() {
    bind();
    showView();
    _view->mode.setFocus();
    turnWheel(_view->mode);
    QCOMPARE(stored(u"Mode"_s), QVariant(u"Iambic B"_s));
    QCOMPARE(calls(), QStringList());
    _platform->clock().advance(250ms);
    QCOMPARE(calls(), QStringList{u"Mode=Iambic B"_s});
}

void BoundControlTest::anItemPassedActsWhenTheBoxIsLeft() {
    bind();
    showView();
    _view->mode.setFocus();
    QTest::keyClick(&_view->mode, Qt::Key_Down);
    QTest::keyClick(&_view->mode, Qt::Key_Tab);
    QCOMPARE(calls(), QStringList{u"Mode=Bug"_s});
}

void BoundControlTest::whatActsOnEveryChoiceOpensByKey_data() {
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("Up") << Qt::Key_Up;
    QTest::newRow("Down") << Qt::Key_Down;
    QTest::newRow("Page Up") << Qt::Key_PageUp;
    QTest::newRow("Page Down") << Qt::Key_PageDown;
    QTest::newRow("Home") << Qt::Key_Home;
    QTest::newRow("End") << Qt::Key_End;
    QTest::newRow("Space") << Qt::Key_Space;
}

void BoundControlTest::whatActsOnEveryChoiceOpensByKey() {
    QFETCH(Qt::Key, key);
    store(u"1500 lpm"_s, u"Pace"_s);
    _view->pace.insertItem(1, u"1500 lpm"_s);
    _view->pace.setProperty("actsOnEveryChoice", true);
    bind();
    showView();
    _view->pace.setFocus();
    QTest::keyClick(&_view->pace, key);
    QVERIFY(_view->pace.view()->isVisible());
    QTest::keyClick(_view->pace.view(), Qt::Key_Escape);
    _platform->clock().advance(1s);
    QCOMPARE(stored(u"Pace"_s), QVariant(u"1500 lpm"_s));
    QCOMPARE(calls(), QStringList());
}

void BoundControlTest::whatActsOnEveryChoiceIgnoresTheWheel() {
    store(u"2000 lpm"_s, u"Pace"_s);
    _view->pace.setProperty("actsOnEveryChoice", true);
    bind();
    showView();
    _view->pace.setFocus();
    QVERIFY(!turnWheel(_view->pace)); // the page behind it may scroll
    _platform->clock().advance(1s);
    QCOMPARE(stored(u"Pace"_s), QVariant(u"2000 lpm"_s));
    QCOMPARE(calls(), QStringList());
}

void BoundControlTest::whatActsOnEveryChoiceSearchesOnlyItsOpenList() {
    _view->pace.setProperty("actsOnEveryChoice", true);
    bind();
    showView();
    _view->pace.setFocus();
    QTest::keyClick(&_view->pace, Qt::Key_2);
    QVERIFY(!_view->pace.view()->isVisible());
    _platform->clock().advance(1s);
    QCOMPARE(stored(u"Pace"_s), QVariant(u"1000 lpm"_s));
    QCOMPARE(calls(), QStringList());
    QTest::keyClick(&_view->pace, Qt::Key_Down);
    QTest::keyClick(_view->pace.view(), Qt::Key_2);
    QTest::keyClick(_view->pace.view(), Qt::Key_Return);
    QCOMPARE(calls(), QStringList{u"Pace=2000 lpm"_s});
}

void BoundControlTest::aChosenItemActsOnceByEitherWay() {
    bind();
    _view->mode.setCurrentIndex(0); // as an assistive tool may do it, with no activation
    QCOMPARE(stored(u"Mode"_s), QVariant(u"Iambic B"_s));
    _platform->clock().advance(1s);
    QCOMPARE(calls(), QStringList{u"Mode=Iambic B"_s});
}

void BoundControlTest::choosingTheSameItemActsWhereThatIsAskedFor() {
    _view->pace.setProperty("actsOnEveryChoice", true);
    bind();
    Q_EMIT _view->mode.activated(1);
    QCOMPARE(calls(), QStringList());
    Q_EMIT _view->pace.activated(0);
    QCOMPARE(calls(), QStringList{u"Pace=1000 lpm"_s});
    showView();
    chooseFromList(_view->pace, 1);
    QCOMPARE(calls(), QStringList{u"Pace=2000 lpm"_s});
}

void BoundControlTest::aTextIsStoredLetterByLetterAndActsOnce() {
    bind();
    _view->text.clear();
    QTest::keyClicks(&_view->text, u"t"_s);
    QCOMPARE(stored(u"Text"_s), QVariant(u"T"_s));
    QTest::keyClicks(&_view->text, u"!u"_s);
    QCOMPARE(stored(u"Text"_s), QVariant(u"TU"_s));
    QCOMPARE(calls(), QStringList());
    _platform->clock().advance(250ms);
    QCOMPARE(calls(), QStringList{u"Text=TU"_s});
    QTest::keyClicks(&_view->text, u"x\r"_s);
    QCOMPARE(calls(), QStringList{u"Text=TUX"_s});
}

void BoundControlTest::aStoredTextIsNotFilteredByShowingIt() {
    store(u"a&b*c"_s, u"Text"_s);
    bind();
    QCOMPARE(_view->text.text(), u"A&B*C"_s);
    QCOMPARE(_view->text.validator(), &_view->formatter);
}

void BoundControlTest::aTextFromAnAssistiveToolIsStoredAndActs() {
    bind();
    auto* call = QAccessible::queryAccessibleInterface(&_view->call)->editableTextInterface();
    call->replaceText(0, 9, u"N0CALL"_s);
    QCOMPARE(stored(u"Call"_s), QVariant(u"N0CALL"_s));
    auto* text = QAccessible::queryAccessibleInterface(&_view->text)->editableTextInterface();
    text->insertText(2, u" test&"_s);
    QCOMPARE(stored(u"Text"_s), QVariant(u"CQ TEST"_s));
    _platform->clock().advance(250ms);
    QCOMPARE(calls(), QStringList({u"Call=N0CALL"_s, u"Text=CQ TEST"_s}));
}

void BoundControlTest::theInsertionPointStaysWhileTyping() {
    bind();
    _view->call.setCursorPosition(2);
    QTest::keyClicks(&_view->call, u"xy"_s);
    QCOMPARE(_view->call.cursorPosition(), 4);
    QCOMPARE(stored(u"Call"_s), QVariant(u"yoxyur call"_s));
    _view->text.setCursorPosition(1);
    QTest::keyClicks(&_view->text, u"a"_s);
    QCOMPARE(_view->text.cursorPosition(), 2);
}

void BoundControlTest::steppingActsOncePerSettledValue() {
    bind();
    for (int i = 0; i < 5; ++i) {
        _view->speed.stepUp();
        _platform->clock().advance(249ms);
    }
    QCOMPARE(calls(), QStringList());
    _platform->clock().advance(1ms);
    QCOMPARE(calls(), QStringList{u"Speed=15"_s});
    _platform->clock().advance(1s);
    QCOMPARE(calls(), QStringList());
}

void BoundControlTest::aTypedNumberActsWhenReturnIsPressed() {
    bind();
    showView();
    _view->speed.setFocus();
    _view->speed.selectAll();
    QTest::keyClicks(&_view->speed, u"45"_s);
    _platform->clock().advance(1s);
    QCOMPARE(calls(), QStringList());
    QCOMPARE(stored(u"Speed"_s), QVariant(10));
    QTest::keyClick(&_view->speed, Qt::Key_Return);
    QCOMPARE(calls(), QStringList{u"Speed=45"_s});
}

void BoundControlTest::aTypedNumberActsWhenTheFieldIsLeft() {
    bind();
    showView();
    _view->speed.setFocus();
    _view->speed.selectAll();
    QTest::keyClicks(&_view->speed, u"45\t"_s);
    QCOMPARE(calls(), QStringList{u"Speed=45"_s});
}

void BoundControlTest::aTypedNumberActsWhenTheViewHides() {
    bind();
    showView();
    _view->ratio.setFocus();
    _view->ratio.selectAll();
    QTest::keyClicks(&_view->ratio, u"2.5"_s);
    _view->hide();
    QCOMPARE(calls(), QStringList{u"Ratio=2.5"_s});
    _view->speed.stepUp();
    _view->show();
    _view->hide();
    QCOMPARE(calls(), QStringList{u"Speed=11"_s});
}

void BoundControlTest::aTypedNumberActsWhenSettlingIsAskedFor() {
    bind();
    showView();
    _view->speed.setFocus();
    _view->speed.selectAll();
    QTest::keyClicks(&_view->speed, u"45"_s);
    _binder->settle();
    QCOMPARE(calls(), QStringList{u"Speed=45"_s});
}

static const RegisteredTest<BoundControlTest> registered;
#include "BoundControlTest.moc"
