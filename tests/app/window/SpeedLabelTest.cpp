#include "tests/app/window/MainWindowFixture.h"
#include "tests/support/RegisteredTest.h"

#include <QLabel>
#include <QTest>

using namespace Qt::StringLiterals;

/// The speed, as it is shown and changed in the main window.
class SpeedLabelTest : public QObject, private MainWindowFixture {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup() { close(); }

    void itSaysWhoseSpeedItIs();
    void theKeysChangeIt();
    void aHeldKeyChangesItOnce();
    void theKeyAndAClickGoBackToTheKnob();
    void anotherButtonOfTheMouseDoesNothing();
    void atHighSpeedNeitherIsMeant();

  private:
    [[nodiscard]] QString shown();
    [[nodiscard]] QString source() { return find<QLabel>(u"speedSourceLabel"_s)->text(); }
};

void SpeedLabelTest::init() {
    open();
    _bench->receive({0x8C}); // 25 wpm
}

QString SpeedLabelTest::shown() {
    return find<QLabel>(u"speedLabel"_s)->text();
}

void SpeedLabelTest::itSaysWhoseSpeedItIs() {
    const auto* label = find<QLabel>(u"speedLabel"_s);
    QCOMPARE(source(), u"knob"_s);
    QCOMPARE(label->accessibleDescription(), u"25 WPM"_s);
    press(Qt::Key_PageUp);
    QCOMPARE(shown(), u"27 WPM"_s);
    QCOMPARE(source(), u"set here"_s);
    QCOMPARE(label->accessibleDescription(), u"27 WPM, set here"_s);
    _bench->receive({0x8D}); // the knob is turned, and is not in force
    QCOMPARE(shown(), u"27 WPM"_s);
}

void SpeedLabelTest::theKeysChangeIt() {
    for (const auto* name : {"keyboardView", "hisCallsignTextField", "serialNumberBox"}) {
        find<QWidget>(QString::fromLatin1(name))->setFocus();
        press(Qt::Key_PageUp);
        press(Qt::Key_PageUp, Qt::ShiftModifier);
        press(Qt::Key_PageDown);
        press(Qt::Key_PageDown, Qt::ShiftModifier);
        QCOMPARE(_bench->written(), "02 1b 02 1c 02 1a 02 19");
    }
    QCOMPARE(_bench->engine().serialNumber(), 1);
}

void SpeedLabelTest::aHeldKeyChangesItOnce() {
    auto* window = _window->windowHandle();
    QTest::simulateEvent(window, true, Qt::Key_PageUp, Qt::NoModifier, {}, false);
    QTest::simulateEvent(window, true, Qt::Key_PageUp, Qt::NoModifier, {}, true);
    QCOMPARE(_bench->written(), "02 1b");
}

void SpeedLabelTest::theKeyAndAClickGoBackToTheKnob() {
    press(Qt::Key_PageUp);
    press(Qt::Key_0, Qt::ControlModifier);
    QCOMPARE(source(), u"knob"_s);
    press(Qt::Key_PageUp);
    click(*find<QLabel>(u"speedLabel"_s));
    QCOMPARE(source(), u"knob"_s);
    QCOMPARE(shown(), u"25 WPM"_s);
    QCOMPARE(_bench->written(), "02 1b 02 00 02 1b 02 00");
    QVERIFY(find<QWidget>(u"keyboardView"_s)->hasFocus());
}

void SpeedLabelTest::anotherButtonOfTheMouseDoesNothing() {
    press(Qt::Key_PageUp);
    const auto* label = find<QLabel>(u"speedLabel"_s);
    QTest::mouseClick(_window->windowHandle(), Qt::RightButton, {},
                      label->mapTo(&*_window, label->rect().center()));
    QCOMPARE(source(), u"set here"_s);
}

void SpeedLabelTest::atHighSpeedNeitherIsMeant() {
    press(Qt::Key_PageUp);
    press(Qt::Key_H, Qt::ControlModifier);
    QVERIFY(shown().endsWith(u" LPM"));
    QCOMPARE(source(), u""_s);
    press(Qt::Key_H, Qt::ControlModifier);
    QCOMPARE(shown(), u"27 WPM"_s);
    QCOMPARE(source(), u"set here"_s);
}

static const RegisteredTest<SpeedLabelTest> registered;
#include "SpeedLabelTest.moc"
