#include "preferences/binding/ScaledSpinBox.h"

#include "tests/support/RegisteredTest.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

class ScaledSpinBoxTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();

    void aValueIsShownInTheUnit();
    void keysStepByStepsOfTheKeyer();
    void typing_data();
    void typing();
    void aNewScaleShowsAtOnce();

  private:
    ScaledSpinBox _box;
};

void ScaledSpinBoxTest::init() {
    _box.setRange(0, 25);
    _box.setScale(10);
    _box.setSuffix(u" ms"_s);
    _box.setValue(10);
    _box.show();
    _box.selectAll();
}

void ScaledSpinBoxTest::aValueIsShownInTheUnit() {
    QCOMPARE(_box.text(), u"100 ms"_s);
    _box.setValue(0);
    QCOMPARE(_box.text(), u"0 ms"_s);
}

void ScaledSpinBoxTest::keysStepByStepsOfTheKeyer() {
    QTest::keyClick(&_box, Qt::Key_Up);
    QCOMPARE(_box.value(), 11);
    QCOMPARE(_box.text(), u"110 ms"_s);
    QTest::keyClick(&_box, Qt::Key_End);
    QTest::keyClick(&_box, Qt::Key_PageUp);
    QTest::keyClick(&_box, Qt::Key_PageUp);
    QCOMPARE(_box.value(), 25);
}

void ScaledSpinBoxTest::typing_data() {
    QTest::addColumn<QString>("keys");
    QTest::addColumn<int>("value");
    QTest::newRow("a step is taken as typed") << u"150"_s << 15;
    QTest::newRow("the least") << u"0"_s << 0;
    QTest::newRow("the greatest") << u"250"_s << 25;
    QTest::newRow("between steps the nearer one below") << u"154"_s << 15;
    QTest::newRow("between steps the nearer one above") << u"156"_s << 16;
    QTest::newRow("in the middle the one above") << u"155"_s << 16;
    QTest::newRow("a digit too many is refused") << u"1500"_s << 15;
    QTest::newRow("beyond the greatest is refused") << u"260"_s << 3;
    QTest::newRow("letters are refused") << u"x7y0"_s << 7;
}

void ScaledSpinBoxTest::typing() {
    QFETCH(QString, keys);
    QFETCH(int, value);
    QTest::keyClicks(&_box, keys);
    QTest::keyClick(&_box, Qt::Key_Return);
    QCOMPARE(_box.value(), value);
    QCOMPARE(_box.text(), u"%1 ms"_s.arg(value * 10));
}

void ScaledSpinBoxTest::aNewScaleShowsAtOnce() {
    _box.setScale(2);
    QCOMPARE(_box.text(), u"20 ms"_s);
    _box.selectAll();
    QTest::keyClicks(&_box, u"30"_s);
    QTest::keyClick(&_box, Qt::Key_Return);
    QCOMPARE(_box.value(), 15);
}

static const RegisteredTest<ScaledSpinBoxTest> registered;
#include "ScaledSpinBoxTest.moc"
