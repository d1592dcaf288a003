#include "app/KeyShield.h"

#include "app/AlertBox.h"
#include "app/ApplicationKey.h"
#include "tests/support/RegisteredTest.h"
#include "tests/support/TestPlatform.h"

#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include <optional>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// An alert that comes up while the operator types. Keys are pressed on native windows, as the
/// desktop does.
class KeyShieldTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup();

    void whatIsTypedAnswersNothing_data();
    void whatIsTypedAnswersNothing();
    void aHeldKeyAnswersNothing();
    void aKeyAnswersOnceTheKeyboardHasBeenStill();
    void typingOnBeginsTheWaitAnew();
    void aKeyThatCameWhileNothingRanAnswersNothing();
    void theWaitBeginsWhenTheAlertHasTheKeyboard();
    void theMouseAnswersAtOnce();
    void escapeIsStillHeardByTheApplication();
    void theAlertSaysSoQuietly();

  private:
    void press(int key, const QString& text = {}, Qt::KeyboardModifiers modifiers = {});
    [[nodiscard]] ManualClock& clock() { return _platform->clock(); }
    [[nodiscard]] const QLabel& hint() { return *_box->findChild<QLabel*>(u"keyHint"_s); }

    std::optional<TestPlatform> _platform;
    std::optional<QWidget> _main;
    std::optional<AlertBox> _box;
};

void KeyShieldTest::init() {
    _platform.emplace();
    _main.emplace();
    _main->show();
    QVERIFY(QTest::qWaitForWindowActive(&*_main));
    _box.emplace(Alert{.messageText = u"The serial port has been plugged in."_s,
                       .informativeText = u"Try it?"_s,
                       .defaultButton = u"&Yes"_s,
                       .alternateButton = u"&No"_s},
                 &*_main);
    _box->open();
    QTRY_VERIFY(_box->isActiveWindow());
}

void KeyShieldTest::cleanup() {
    _box.reset();
    _main.reset();
    _platform.reset();
}

void KeyShieldTest::press(int key, const QString& text, Qt::KeyboardModifiers modifiers) {
    auto* window = _box->windowHandle();
    QTest::simulateEvent(window, true, key, modifiers, text, false);
    QTest::simulateEvent(window, false, key, modifiers, text, false);
}

void KeyShieldTest::whatIsTypedAnswersNothing_data() {
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("text");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    const Qt::KeyboardModifiers none;
    QTest::newRow("a space, which presses the button") << int(Qt::Key_Space) << u" "_s << none;
    QTest::newRow("Return, which takes the default") << int(Qt::Key_Return) << u"\r"_s << none;
    QTest::newRow("Enter") << int(Qt::Key_Enter) << u"\r"_s << none;
    QTest::newRow("Escape, which takes the other") << int(Qt::Key_Escape) << u"\x1b"_s << none;
    QTest::newRow("the letter of a button") << int(Qt::Key_Y) << u"y"_s << none;
    QTest::newRow("its shortcut") << int(Qt::Key_N) << u"n"_s
                                  << Qt::KeyboardModifiers(Qt::AltModifier);
}

void KeyShieldTest::whatIsTypedAnswersNothing() {
    QFETCH(const int, key);
    QFETCH(const QString, text);
    QFETCH(const Qt::KeyboardModifiers, modifiers);
    // Slow typing, but typing.
    for (int i = 0; i < 5; ++i) {
        press(key, text, modifiers);
        QTest::qWait(0);
        QVERIFY(_box->isVisible());
        clock().advance(900ms);
    }
    // The same key does answer later on.
    clock().advance(100ms);
    press(key, text, modifiers);
    QTRY_VERIFY(!_box->isVisible());
}

void KeyShieldTest::aHeldKeyAnswersNothing() {
    auto* window = _box->windowHandle();
    for (int i = 0; i < 50; ++i) {
        QTest::simulateEvent(window, true, Qt::Key_Space, Qt::NoModifier, u" "_s, i > 0);
        clock().advance(30ms);
    }
    QTest::simulateEvent(window, false, Qt::Key_Space, Qt::NoModifier, u" "_s, false);
    QVERIFY(_box->isVisible());
}

void KeyShieldTest::aKeyAnswersOnceTheKeyboardHasBeenStill() {
    clock().advance(999ms);
    press(Qt::Key_Return, u"\r"_s);
    QVERIFY(_box->isVisible());
    clock().advance(1s);
    press(Qt::Key_Return, u"\r"_s);
    QVERIFY(!_box->isVisible());
    QCOMPARE(_box->answer(), AlertAnswer::Default);
}

void KeyShieldTest::typingOnBeginsTheWaitAnew() {
    clock().advance(600ms);
    press(Qt::Key_C, u"c"_s);
    clock().advance(600ms);
    press(Qt::Key_Space, u" "_s);
    QVERIFY(_box->isVisible());
}

/// On a machine that has kept the program from running, the end of the wait and the keys that were
/// typed meanwhile are there at once, in any order.
void KeyShieldTest::aKeyThatCameWhileNothingRanAnswersNothing() {
    press(Qt::Key_C, u"c"_s);
    clock().sleep(1500ms);
    clock().advance(0s);
    press(Qt::Key_Space, u" "_s);
    QVERIFY(_box->isVisible());
    clock().advance(1s);
    press(Qt::Key_Space, u" "_s);
    QVERIFY(!_box->isVisible());
}

/// A desktop may leave the keyboard with the window behind for a while, whose keys go nowhere.
void KeyShieldTest::theWaitBeginsWhenTheAlertHasTheKeyboard() {
    QWidget other;
    other.show();
    other.activateWindow();
    QTRY_VERIFY(other.isActiveWindow());
    clock().advance(10s);
    _box->activateWindow();
    QTRY_VERIFY(_box->isActiveWindow());
    press(Qt::Key_Space, u" "_s);
    QVERIFY(_box->isVisible());
    clock().advance(1s);
    press(Qt::Key_Space, u" "_s);
    QVERIFY(!_box->isVisible());
}

void KeyShieldTest::theMouseAnswersAtOnce() {
    press(Qt::Key_C, u"c"_s);
    QTest::mouseClick(_box->buttons().constFirst(), Qt::LeftButton);
    QVERIFY(!_box->isVisible());
}

void KeyShieldTest::escapeIsStillHeardByTheApplication() {
    const ApplicationKey escape(Qt::Key_Escape);
    const QSignalSpy presses(&escape, &ApplicationKey::pressed);
    press(Qt::Key_Escape, u"\x1b"_s);
    QCOMPARE(presses.size(), 1);
    QVERIFY(_box->isVisible());
}

void KeyShieldTest::theAlertSaysSoQuietly() {
    QVERIFY(hint().isVisible());
    QVERIFY(hint().text().contains(u"stopped typing"));
    QVERIFY(_box->rect().contains(hint().geometry()));
    const auto place = _box->buttons().constFirst()->mapTo(&*_box, QPoint());
    const auto size = _box->size();
    clock().advance(1s);
    QVERIFY(!hint().isVisible());
    QCoreApplication::processEvents();
    QCOMPARE(_box->size(), size);
    QCOMPARE(_box->buttons().constFirst()->mapTo(&*_box, QPoint()), place);
}

static const RegisteredTest<KeyShieldTest> registered;
#include "KeyShieldTest.moc"
