#include "preferences/binding/NumberBox.h"

#include "tests/support/RegisteredTest.h"

#include <QAccessible>
#include <QSignalSpy>
#include <QTest>

#include <optional>

using namespace Qt::StringLiterals;

class NumberBoxTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup();

    void aValueIsShownInTheUnit();
    void keysStepByStepsOfTheKeyer();
    void typing_data();
    void typing();
    void lettersCannotBeTyped();
    void whatIsOutOfRangeStaysWhenTheBoxIsLeft();
    void anEmptyBoxGoesBackWhenItIsLeft();
    void aStepLeadsBackIntoTheRange_data();
    void aStepLeadsBackIntoTheRange();
    void theWheelLeadsBackIntoTheRange();
    void bothDecimalSignsAreRead_data();
    void bothDecimalSignsAreRead();
    void aNumberOutOfRangeIsShown();
    void theEndOfTheRangeIsChosenFromBeyondIt();
    void anAssistiveToolSetsANumber();
    void anAssistiveToolCannotSetANumberOutOfRange();
    void anAssistiveToolCannotSetADisabledBox();
    void anAssistiveToolMayTypeAnything();
    void theSizeIsThatOfTheRange();
    void aNewScaleShowsAtOnce();

  private:
    [[nodiscard]] QAccessibleInterface& accessible() {
        return *QAccessible::queryAccessibleInterface(&*_box);
    }
    void enter(const QString& keys) {
        _box->selectAll();
        QTest::keyClicks(&*_box, keys);
        QTest::keyClick(&*_box, Qt::Key_Return);
    }

    std::optional<NumberBox> _box;
};

void NumberBoxTest::init() {
    _box.emplace();
    _box->setLocale(QLocale::c());
    _box->setDecimals(0);
    _box->setRange(0, 25);
    _box->setScale(10);
    _box->setSuffix(u" ms"_s);
    _box->showNumber(10);
    _box->show();
    _box->selectAll();
}

void NumberBoxTest::cleanup() {
    _box.reset();
}

void NumberBoxTest::aValueIsShownInTheUnit() {
    QCOMPARE(_box->text(), u"100 ms"_s);
    _box->showNumber(0);
    QCOMPARE(_box->text(), u"0 ms"_s);
}

void NumberBoxTest::keysStepByStepsOfTheKeyer() {
    QTest::keyClick(&*_box, Qt::Key_Up);
    QCOMPARE(_box->value(), 11);
    QCOMPARE(_box->text(), u"110 ms"_s);
    QTest::keyClick(&*_box, Qt::Key_PageUp);
    QTest::keyClick(&*_box, Qt::Key_PageUp);
    QCOMPARE(_box->value(), 25);
}

void NumberBoxTest::typing_data() {
    QTest::addColumn<QString>("keys");
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<bool>("isHeld");
    QTest::newRow("a step is taken as typed") << u"150"_s << 15 << u"150 ms"_s << false;
    QTest::newRow("the least") << u"0"_s << 0 << u"0 ms"_s << false;
    QTest::newRow("the greatest") << u"250"_s << 25 << u"250 ms"_s << false;
    QTest::newRow("between steps the nearer one below") << u"154"_s << 15 << u"150 ms"_s << false;
    QTest::newRow("between steps the nearer one above") << u"156"_s << 16 << u"160 ms"_s << false;
    QTest::newRow("in the middle the one above") << u"155"_s << 16 << u"160 ms"_s << false;
    QTest::newRow("a part of a unit") << u"149.9"_s << 15 << u"150 ms"_s << false;
    QTest::newRow("beyond the greatest") << u"300"_s << 10 << u"300 ms"_s << true;
    QTest::newRow("just beyond it") << u"251"_s << 10 << u"251 ms"_s << true;
    QTest::newRow("below the least") << u"-1"_s << 10 << u"-1 ms"_s << true;
    QTest::newRow("a great many digits")
        << QString(50, u'9') << 10 << QString(50, u'9') + u" ms"_s << true;
}

void NumberBoxTest::typing() {
    QFETCH(QString, keys);
    QFETCH(int, value);
    QFETCH(QString, shown);
    QFETCH(bool, isHeld);
    enter(keys);
    QCOMPARE(_box->value(), value);
    QCOMPARE(_box->text(), shown);
    QCOMPARE(_box->isHeld(), isHeld);
    enter(u"70"_s); // from there on too
    QCOMPARE(_box->value(), 7);
    QVERIFY(!_box->isHeld());
}

void NumberBoxTest::lettersCannotBeTyped() {
    enter(u"x7y0"_s);
    QCOMPARE(_box->value(), 7);
}

void NumberBoxTest::whatIsOutOfRangeStaysWhenTheBoxIsLeft() {
    const QSignalSpy changes(&*_box, &NumberBox::valueChanged);
    QTest::keyClicks(&*_box, u"300"_s);
    QFocusEvent leaving(QEvent::FocusOut, Qt::TabFocusReason);
    QCoreApplication::sendEvent(&*_box, &leaving);
    QCOMPARE(_box->text(), u"300 ms"_s);
    QCOMPARE(_box->shownNumber(), 30);
    QCOMPARE(_box->value(), 10);
    QCOMPARE(changes.size(), 0);
    _box->showNumber(10);
    QCOMPARE(_box->text(), u"100 ms"_s);
    QVERIFY(!_box->isHeld());
}

void NumberBoxTest::anEmptyBoxGoesBackWhenItIsLeft() {
    QTest::keyClick(&*_box, Qt::Key_Delete);
    QTest::keyClick(&*_box, Qt::Key_Return);
    QCOMPARE(_box->text(), u"100 ms"_s);
    QCOMPARE(_box->value(), 10);
}

void NumberBoxTest::aStepLeadsBackIntoTheRange_data() {
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("value");
    QTest::newRow("beyond") << u"300"_s << 25;
    QTest::newRow("below") << u"-30"_s << 0;
}

void NumberBoxTest::aStepLeadsBackIntoTheRange() {
    QFETCH(QString, typed);
    QFETCH(int, value);
    for (const auto key : {Qt::Key_Up, Qt::Key_Down}) {
        _box->selectAll();
        QTest::keyClicks(&*_box, typed);
        QTest::keyClick(&*_box, key);
        QCOMPARE(_box->value(), value);
        QCOMPARE(_box->text(), u"%1 ms"_s.arg(10 * value));
    }
}

void NumberBoxTest::theWheelLeadsBackIntoTheRange() {
    _box->showNumber(60);
    const QSignalSpy changes(&*_box, &NumberBox::valueChanged);
    const QPointF middle = _box->rect().center();
    QWheelEvent turn(middle, _box->mapToGlobal(middle), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                     Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&*_box, &turn);
    QCOMPARE(_box->text(), u"250 ms"_s);
    QCOMPARE(changes.size(), 1);
}

void NumberBoxTest::bothDecimalSignsAreRead_data() {
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("shown");
    QTest::newRow("a point in German") << u"de_DE"_s << u"7.5"_s << u"7,5 ms"_s;
    QTest::newRow("a comma in German") << u"de_DE"_s << u"7,5"_s << u"7,5 ms"_s;
    QTest::newRow("a point in English") << u"en_US"_s << u"7.5"_s << u"7.5 ms"_s;
    QTest::newRow("a comma in English") << u"en_US"_s << u"7,5"_s << u"7.5 ms"_s;
}

void NumberBoxTest::bothDecimalSignsAreRead() {
    QFETCH(QString, language);
    QFETCH(QString, typed);
    QFETCH(QString, shown);
    _box->setLocale(QLocale(language));
    _box->setScale(1);
    _box->setDecimals(1);
    enter(typed);
    QCOMPARE(_box->value(), 7.5);
    QCOMPARE(_box->text(), shown);
}

void NumberBoxTest::aNumberOutOfRangeIsShown() {
    _box->showNumber(60);
    QCOMPARE(_box->text(), u"600 ms"_s);
    QCOMPARE(_box->shownNumber(), 60);
    QVERIFY(_box->isHeld());
    QTest::keyClick(&*_box, Qt::Key_Home);
    QTest::keyClick(&*_box, Qt::Key_Delete);
    QTest::keyClicks(&*_box, u"0"_s);
    QTest::keyClick(&*_box, Qt::Key_Delete);
    QCOMPARE(_box->text(), u"00 ms"_s);
    QTest::keyClicks(&*_box, u"6"_s);
    QCOMPARE(_box->text(), u"060 ms"_s);
    QTest::keyClick(&*_box, Qt::Key_Return);
    QCOMPARE(_box->text(), u"60 ms"_s);
    QCOMPARE(_box->value(), 6);
}

void NumberBoxTest::theEndOfTheRangeIsChosenFromBeyondIt() {
    const QSignalSpy changes(&*_box, &NumberBox::valueChanged);
    _box->showNumber(60); // the box itself has 25 from now on
    const auto before = changes.size();
    _box->setValue(25);
    QCOMPARE(changes.size(), before + 1);
    QVERIFY(!_box->isHeld());
}

void NumberBoxTest::anAssistiveToolSetsANumber() {
    accessible().valueInterface()->setCurrentValue(5);
    QCOMPARE(_box->value(), 5);
    QCOMPARE(_box->text(), u"50 ms"_s);
    QCOMPARE(accessible().valueInterface()->currentValue().toDouble(), 5.0);
    QCOMPARE(accessible().valueInterface()->maximumValue().toDouble(), 25.0);
}

void NumberBoxTest::anAssistiveToolCannotSetANumberOutOfRange() {
    const QSignalSpy typings(&*_box, &NumberBox::typed);
    accessible().valueInterface()->setCurrentValue(30);
    QCOMPARE(_box->value(), 10);
    QCOMPARE(_box->text(), u"300 ms"_s);
    QCOMPARE(accessible().valueInterface()->currentValue().toDouble(), 30.0);
    QCOMPARE(typings.size(), 1);
}

void NumberBoxTest::anAssistiveToolCannotSetADisabledBox() {
    _box->setEnabled(false);
    accessible().valueInterface()->setCurrentValue(5);
    QCOMPARE(_box->value(), 10);
    QCOMPARE(_box->text(), u"100 ms"_s);
}

void NumberBoxTest::anAssistiveToolMayTypeAnything() {
    const QSignalSpy typings(&*_box, &NumberBox::typed);
    auto* text = accessible().editableTextInterface();
    text->replaceText(0, 3, u"20"_s);
    QCOMPARE(typings.size(), 1);
    QVERIFY(typings[0][0].toBool());
    _box->interpretText();
    QCOMPARE(_box->value(), 2);
    text->replaceText(0, 2, u"abc"_s);
    QVERIFY(_box->isHeld());
    QVERIFY(!_box->isNumber());
    _box->interpretText();
    QCOMPARE(_box->value(), 2);
    QTest::keyClick(&*_box, Qt::Key_Up);
    QCOMPARE(_box->text(), u"20 ms"_s);
}

void NumberBoxTest::theSizeIsThatOfTheRange() {
    NumberBox box;
    box.setRange(0, 25);
    box.showNumber(123456789);
    NumberBox other;
    other.setRange(0, 25);
    QCOMPARE(box.sizeHint(), other.sizeHint());
}

void NumberBoxTest::aNewScaleShowsAtOnce() {
    _box->setScale(2);
    QCOMPARE(_box->text(), u"20 ms"_s);
    enter(u"30"_s);
    QCOMPARE(_box->value(), 15);
}

static const RegisteredTest<NumberBoxTest> registered;
#include "NumberBoxTest.moc"
