#include "app/KeyRepeat.h"

#include "app/ApplicationKey.h"
#include "app/window/MainWindow.h"
#include "tests/keyer/EngineBench.h"
#include "tests/support/RegisteredTest.h"

#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include <optional>

using namespace Qt::StringLiterals;

/// Keys come with the time stamps of an X11 desktop, where a repeat is a release and a press.
class KeyRepeatTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup();

    void aHeldKeySwitchesOnce_data();
    void aHeldKeySwitchesOnce();
    void aHeldKeySendsItsMessageOnce();
    void aHeldKeyStepsTheNumberOnce();
    void aHeldEscapeStopsOnce();
    void aHeldSpacePressesAButtonOnce();
    void aKeyPressedAgainActsAgain();
    void anotherKeyAtTheSameMomentIsNoRepeat();
    void aHeldLetterRepeatsAsText();
    void repeatsThatTheToolkitTellsStayRepeats();
    void aShortcutWhoseModifierGoesFirstIsNoText_data();
    void aShortcutWhoseModifierGoesFirstIsNoText();
    void aLetterThatBecomesAShortcutDoesNothing();
    void shiftInMidRepeatLetsTheTextGoOn();
    void aKeyHeldSinceAnotherWindowDoesNothing();

  private:
    void press(Qt::Key key, quint64 at, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
               bool isRepeat = false);
    void release(Qt::Key key, quint64 at, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void hold(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

    std::optional<EngineBench> _bench;
    std::optional<MainWindow> _window;
    std::optional<ApplicationKey> _escape;
    std::optional<KeyRepeat> _repeat;
};

void KeyRepeatTest::init() {
    _bench.emplace();
    QVERIFY(_bench->connect());
    _bench->receive({0xC8});
    _window.emplace(_bench->engine());
    _escape.emplace(Qt::Key_Escape);
    QObject::connect(&*_escape, &ApplicationKey::pressed, &*_window, &MainWindow::stop);
    _repeat.emplace();
    _window->show();
    QVERIFY(QTest::qWaitForWindowActive(&*_window));
}

void KeyRepeatTest::cleanup() {
    _repeat.reset();
    _escape.reset();
    _window.reset();
    _bench.reset();
}

void KeyRepeatTest::press(Qt::Key key, quint64 at, Qt::KeyboardModifiers modifiers, bool isRepeat) {
    auto* window = _window->windowHandle();
    const auto text = key < Qt::Key_Escape ? QString(QChar(key)) : QString();
    if (!qt_sendShortcutOverrideEvent(window, at, key, modifiers, text, isRepeat)) {
        QKeyEvent event(QEvent::KeyPress, key, modifiers, text, isRepeat);
        event.setTimestamp(at);
        QCoreApplication::sendEvent(window, &event);
    }
}

void KeyRepeatTest::release(Qt::Key key, quint64 at, Qt::KeyboardModifiers modifiers) {
    QKeyEvent event(QEvent::KeyRelease, key, modifiers);
    event.setTimestamp(at);
    QCoreApplication::sendEvent(_window->windowHandle(), &event);
}

void KeyRepeatTest::hold(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    press(key, 1000, modifiers);
    for (quint64 at = 1500; at < 2500; at += 40) {
        release(key, at, modifiers);
        press(key, at, modifiers);
    }
    release(key, 2500, modifiers);
}

void KeyRepeatTest::aHeldKeySwitchesOnce_data() {
    QTest::addColumn<QString>("button");
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("tune") << u"tuneButton"_s << Qt::Key_T;
    QTest::newRow("pause") << u"pauseButton"_s << Qt::Key_P;
    QTest::newRow("high speed") << u"hscwButton"_s << Qt::Key_H;
    QTest::newRow("beacon") << u"beaconButton"_s << Qt::Key_B;
}

void KeyRepeatTest::aHeldKeySwitchesOnce() {
    QFETCH(QString, button);
    QFETCH(Qt::Key, key);
    auto* control = _window->findChild<QPushButton*>(button);
    const QSignalSpy toggled(control, &QPushButton::toggled);
    hold(key, Qt::ControlModifier);
    QCOMPARE(toggled.size(), 1);
    QVERIFY(control->isChecked());
}

void KeyRepeatTest::aHeldKeySendsItsMessageOnce() {
    _bench->settings().setObject(u"TEST"_s, u"Message2"_s);
    hold(Qt::Key_F2);
    QCOMPARE(_bench->engine().keyboardBuffer(), u"TEST"_s);
}

void KeyRepeatTest::aHeldKeyStepsTheNumberOnce() {
    hold(Qt::Key_Up, Qt::ControlModifier);
    QCOMPARE(_bench->engine().serialNumber(), 2);
}

void KeyRepeatTest::aHeldEscapeStopsOnce() {
    hold(Qt::Key_Escape);
    QCOMPARE(_bench->written(), "0a");
}

void KeyRepeatTest::aHeldSpacePressesAButtonOnce() {
    auto* pause = _window->findChild<QPushButton*>(u"pauseButton"_s);
    pause->setFocus();
    const QSignalSpy toggled(pause, &QPushButton::toggled);
    hold(Qt::Key_Space);
    QCOMPARE(toggled.size(), 1);
}

void KeyRepeatTest::aKeyPressedAgainActsAgain() {
    press(Qt::Key_P, 1000, Qt::ControlModifier);
    release(Qt::Key_P, 1050, Qt::ControlModifier);
    press(Qt::Key_P, 1051, Qt::ControlModifier);
    release(Qt::Key_P, 1100, Qt::ControlModifier);
    QCOMPARE(_bench->engine().pauseState(), 0);
    QCOMPARE(_bench->written(), "06 01 06 00");
}

void KeyRepeatTest::anotherKeyAtTheSameMomentIsNoRepeat() {
    press(Qt::Key_T, 1000);
    release(Qt::Key_T, 1050);
    press(Qt::Key_P, 1050, Qt::ControlModifier);
    QCOMPARE(_bench->engine().pauseState(), 1);
}

void KeyRepeatTest::aHeldLetterRepeatsAsText() {
    press(Qt::Key_E, 1000);
    release(Qt::Key_E, 1500);
    press(Qt::Key_E, 1500);
    release(Qt::Key_E, 1540);
    QCOMPARE(_bench->engine().keyboardBuffer(), u"EE"_s);
}

void KeyRepeatTest::repeatsThatTheToolkitTellsStayRepeats() {
    press(Qt::Key_Escape, 1000);
    press(Qt::Key_Escape, 1500, Qt::NoModifier, true);
    QCOMPARE(_bench->written(), "0a");
    press(Qt::Key_F2, 2000);
    const auto text = _bench->engine().keyboardBuffer();
    press(Qt::Key_F2, 2500, Qt::NoModifier, true);
    QCOMPARE(_bench->engine().keyboardBuffer(), text);
}

void KeyRepeatTest::aShortcutWhoseModifierGoesFirstIsNoText_data() {
    QTest::addColumn<bool>("isTold");
    QTest::newRow("told by the toolkit") << true;
    QTest::newRow("told by the time stamp") << false;
}

void KeyRepeatTest::aShortcutWhoseModifierGoesFirstIsNoText() {
    QFETCH(bool, isTold);
    press(Qt::Key_Control, 900);
    press(Qt::Key_T, 1000, Qt::ControlModifier);
    QCOMPARE(_bench->engine().tuneState(), 1);
    release(Qt::Key_Control, 1490);
    for (quint64 at = 1500; at < 1700; at += 40) {
        release(Qt::Key_T, at);
        press(Qt::Key_T, at, Qt::NoModifier, isTold);
    }
    QCOMPARE(_bench->engine().tuneState(), 1);
    QCOMPARE(_bench->written(), "0b 01");
    release(Qt::Key_T, 1700);
    press(Qt::Key_T, 1800);
    QCOMPARE(_bench->written(), "0b 00 54");
}

void KeyRepeatTest::aLetterThatBecomesAShortcutDoesNothing() {
    press(Qt::Key_T, 1000);
    QCOMPARE(_bench->written(), "54");
    press(Qt::Key_Control, 1490);
    release(Qt::Key_T, 1500, Qt::ControlModifier);
    press(Qt::Key_T, 1500, Qt::ControlModifier);
    QCOMPARE(_bench->engine().tuneState(), 0);
    QCOMPARE(_bench->engine().keyboardBuffer(), u"T"_s);
}

void KeyRepeatTest::shiftInMidRepeatLetsTheTextGoOn() {
    press(Qt::Key_E, 1000);
    press(Qt::Key_Shift, 1490);
    release(Qt::Key_E, 1500, Qt::ShiftModifier);
    press(Qt::Key_E, 1500, Qt::ShiftModifier);
    QCOMPARE(_bench->engine().keyboardBuffer(), u"EE"_s);
}

void KeyRepeatTest::aKeyHeldSinceAnotherWindowDoesNothing() {
    press(Qt::Key_E, 1500, Qt::NoModifier, true);
    release(Qt::Key_T, 1540);
    press(Qt::Key_T, 1540);
    QCOMPARE(_bench->engine().keyboardBuffer(), u""_s);
    QCOMPARE(_bench->written(), "");
}

static const RegisteredTest<KeyRepeatTest> registered;
#include "KeyRepeatTest.moc"
