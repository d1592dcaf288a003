#include "preferences/binding/BoundNumber.h"

#include "preferences/binding/ExplanationLine.h"
#include "tests/preferences/binding/BinderBench.h"
#include "tests/support/RegisteredTest.h"

#include <QAccessible>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// Numbers that lie outside their range, typed, stored, or set by an assistive tool.
class BoundNumberTest : public QObject, private BinderBench {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup() { tearDown(); }

    void aTypedNumberOutOfRangeIsToldAndNothingElse_data();
    void aTypedNumberOutOfRangeIsToldAndNothingElse();
    void whatIsToldStandsInTheLineOfTheView();
    void whatIsToldGoesWithItsReason();
    void whatIsOutOfRangeDoesNotOutlastTheView();
    void aTypedNumberBetweenStepsIsTold();
    void aStoredNumberOutOfRangeStaysUntilItIsChanged();
    void aStoredNumberOutOfRangeIsMended_data();
    void aStoredNumberOutOfRangeIsMended();
    void aNumberOfManyPlacesIsNotCutByLookingAtIt();
    void whatAnAssistiveToolSetsIsStoredAndActs();
    void whatAnAssistiveToolTypesIsStoredAndActs();
    void whatAnAssistiveToolSetsOutOfRangeIsTold();
    void aDisabledNumberCannotBeSet();
    void aHalfTypedNumberIsLeftAloneWhenTheTimeIsOver();

  private:
    void type(NumberBox& box, const QString& keys) {
        box.setFocus();
        box.selectAll();
        QTest::keyClicks(&box, keys);
    }
};

void BoundNumberTest::init() {
    setUp();
    bind();
    showView();
}

void BoundNumberTest::aTypedNumberOutOfRangeIsToldAndNothingElse_data() {
    QTest::addColumn<int>("end");
    QTest::newRow("while it is typed") << 0;
    QTest::newRow("after Return") << static_cast<int>(Qt::Key_Return);
    QTest::newRow("after it is left") << static_cast<int>(Qt::Key_Tab);
}

void BoundNumberTest::aTypedNumberOutOfRangeIsToldAndNothingElse() {
    QFETCH(int, end);
    for (const auto& typed : {u"100"_s, u"9"_s, u"300"_s, u"-20"_s}) {
        type(_view->speed, typed);
        if (end != 0) {
            QTest::keyClick(&_view->speed, static_cast<Qt::Key>(end));
        }
        _platform->clock().advance(1s);
        const auto words =
            u"%1 wpm is out of range: 10 to 99 wpm. It stays at 10 wpm."_s.arg(typed);
        QCOMPARE(_view->speed.text(), typed + u" wpm"_s);
        QVERIFY(_view->speed.accessibleDescription().startsWith(words));
        QCOMPARE(_binder->trouble(), u"Speed: "_s + words);
        QCOMPARE(stored(u"Speed"_s), QVariant(10));
        QCOMPARE(calls(), QStringList());
    }
}

void BoundNumberTest::whatIsToldStandsInTheLineOfTheView() {
    ExplanationLine line(&*_view);
    line.follow(*_binder);
    line.show();
    type(_view->speed, u"300"_s);
    QVERIFY2(line.text().startsWith(u"300 wpm is out of range"), qPrintable(line.text()));
    QVERIFY2(line.text().endsWith(u"default 10 wpm"), qPrintable(line.text()));
    QTest::keyClick(&_view->speed, Qt::Key_Tab);
    QVERIFY2(line.text().startsWith(u"Speed: 300 wpm is out of range"), qPrintable(line.text()));
    type(_view->speed, u"30"_s);
    QCOMPARE(line.text(), u"How fast. 10 to 99 wpm, default 10 wpm"_s);
}

void BoundNumberTest::whatIsToldGoesWithItsReason() {
    type(_view->speed, u"300"_s);
    QVERIFY(!_binder->trouble().isEmpty());
    QTest::keyClick(&_view->speed, Qt::Key_Home);
    QTest::keyClick(&_view->speed, Qt::Key_Delete);
    QTest::keyClick(&_view->speed, Qt::Key_Delete);
    QTest::keyClicks(&_view->speed, u"4"_s);
    QCOMPARE(_view->speed.text(), u"40 wpm"_s);
    QVERIFY(_binder->trouble().isEmpty());
    QCOMPARE(_view->speed.accessibleDescription(), u"How fast.\n10 to 99 wpm, default 10 wpm"_s);
    QTest::keyClick(&_view->speed, Qt::Key_Return);
    QCOMPARE(calls(), QStringList{u"Speed=40"_s});
}

void BoundNumberTest::whatIsOutOfRangeDoesNotOutlastTheView() {
    type(_view->speed, u"300"_s);
    _view->hide();
    QVERIFY(_binder->trouble().isEmpty());
    QCOMPARE(_view->speed.text(), u"10 wpm"_s);
    QCOMPARE(calls(), QStringList());
}

void BoundNumberTest::aTypedNumberBetweenStepsIsTold() {
    type(_view->speed, u"12.7"_s);
    QCOMPARE(_binder->trouble(), u"Speed: 12.7 wpm will become 13 wpm."_s);
    QTest::keyClick(&_view->speed, Qt::Key_Return);
    QVERIFY(_binder->trouble().isEmpty());
    QCOMPARE(calls(), QStringList{u"Speed=13"_s});
}

void BoundNumberTest::aStoredNumberOutOfRangeStaysUntilItIsChanged() {
    store(200, u"Speed"_s);
    store(0.5, u"Ratio"_s);
    QCOMPARE(_view->speed.text(), u"200 wpm"_s);
    QVERIFY(_view->speed.accessibleDescription().endsWith(
        u"stored: 200 wpm. It stays until it is changed here."_s));
    QVERIFY(_view->speed.toolTip().contains(u"stored: 200 wpm"_s));
    QCOMPARE(_view->ratio.text(), u"0.50"_s);
    QVERIFY(_binder->trouble().isEmpty()); // nobody has done anything wrong
    _view->speed.setFocus();
    _view->ratio.setFocus();
    _view->speed.setFocus();
    QTest::keyClick(&_view->speed, Qt::Key_Return);
    _view->hide();
    QCOMPARE(stored(u"Speed"_s), QVariant(200));
    QCOMPARE(stored(u"Ratio"_s), QVariant(0.5));
    QCOMPARE(calls(), QStringList());
}

void BoundNumberTest::aStoredNumberOutOfRangeIsMended_data() {
    QTest::addColumn<int>("stored");
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("mended");
    const auto row = [](const char* name, int stored, int key, const QString& typed, int mended) {
        QTest::newRow(name) << stored << key << typed << mended;
    };
    row("from beyond with the arrow down", 200, Qt::Key_Down, {}, 99);
    row("from beyond with the arrow up", 200, Qt::Key_Up, {}, 99);
    row("from below with the arrow up", 3, Qt::Key_Up, {}, 10);
    row("by typing", 200, Qt::Key_Return, u"45"_s, 45);
    row("by typing the end of the range", 200, Qt::Key_Return, u"99"_s, 99);
    row("by typing the other end", 3, Qt::Key_Tab, u"10"_s, 10);
}

void BoundNumberTest::aStoredNumberOutOfRangeIsMended() {
    QFETCH(int, stored);
    QFETCH(int, key);
    QFETCH(QString, typed);
    QFETCH(int, mended);
    store(stored, u"Speed"_s);
    if (typed.isEmpty()) {
        _view->speed.setFocus();
    } else {
        type(_view->speed, typed);
    }
    QTest::keyClick(&_view->speed, static_cast<Qt::Key>(key));
    _platform->clock().advance(1s);
    QCOMPARE(this->stored(u"Speed"_s), QVariant(mended));
    QCOMPARE(_view->speed.text(), u"%1 wpm"_s.arg(mended));
    QCOMPARE(calls(), QStringList{u"Speed=%1"_s.arg(mended)});
    QVERIFY(!_view->speed.toolTip().contains(u"stored"_s));
}

void BoundNumberTest::aNumberOfManyPlacesIsNotCutByLookingAtIt() {
    store(2.123456, u"Ratio"_s);
    QCOMPARE(_view->ratio.text(), u"2.12"_s);
    _view->ratio.setFocus();
    QTest::keyClick(&_view->ratio, Qt::Key_Return);
    _view->speed.setFocus();
    QCOMPARE(stored(u"Ratio"_s), QVariant(2.123456));
    QCOMPARE(calls(), QStringList());
}

void BoundNumberTest::whatAnAssistiveToolSetsIsStoredAndActs() {
    QAccessible::queryAccessibleInterface(&_view->speed)->valueInterface()->setCurrentValue(45);
    QCOMPARE(stored(u"Speed"_s), QVariant(45));
    _platform->clock().advance(250ms);
    QCOMPARE(calls(), QStringList{u"Speed=45"_s});
}

void BoundNumberTest::whatAnAssistiveToolTypesIsStoredAndActs() {
    auto* text = QAccessible::queryAccessibleInterface(&_view->speed)->editableTextInterface();
    text->replaceText(0, 2, u"45"_s);
    _platform->clock().advance(250ms);
    QCOMPARE(stored(u"Speed"_s), QVariant(45));
    QCOMPARE(calls(), QStringList{u"Speed=45"_s});
}

void BoundNumberTest::whatAnAssistiveToolSetsOutOfRangeIsTold() {
    auto* speed = QAccessible::queryAccessibleInterface(&_view->speed);
    speed->valueInterface()->setCurrentValue(300);
    _platform->clock().advance(1s);
    QCOMPARE(_binder->trouble(),
             u"Speed: 300 wpm is out of range: 10 to 99 wpm. It stays at 10 wpm."_s);
    speed->editableTextInterface()->replaceText(0, 7, u"fast"_s);
    _platform->clock().advance(1s);
    QCOMPARE(_binder->trouble(), u"Speed: “fast” is not a number. It stays at 10 wpm."_s);
    QCOMPARE(stored(u"Speed"_s), QVariant(10));
    QCOMPARE(calls(), QStringList());
}

void BoundNumberTest::aDisabledNumberCannotBeSet() {
    _view->speed.setEnabled(false);
    auto* speed = QAccessible::queryAccessibleInterface(&_view->speed);
    speed->valueInterface()->setCurrentValue(45);
    speed->editableTextInterface()->replaceText(0, 2, u"46"_s);
    _platform->clock().advance(1s);
    QCOMPARE(_view->speed.text(), u"10 wpm"_s);
    QCOMPARE(stored(u"Speed"_s), QVariant(10));
    QCOMPARE(calls(), QStringList());
}

/// The time that is over is that of another change.
void BoundNumberTest::aHalfTypedNumberIsLeftAloneWhenTheTimeIsOver() {
    _view->speed.setFocus();
    QTest::keyClick(&_view->speed, Qt::Key_Up);
    _view->speed.selectAll();
    QTest::keyClicks(&_view->speed, u"4"_s);
    _platform->clock().advance(1s);
    QCOMPARE(calls(), QStringList{u"Speed=11"_s});
    QTest::keyClicks(&_view->speed, u"5\r"_s);
    QCOMPARE(calls(), QStringList{u"Speed=45"_s});
}

static const RegisteredTest<BoundNumberTest> registered;
#include "BoundNumberTest.moc"
