#include "app/window/SpokenNotice.h"
#include "tests/app/window/MainWindowFixture.h"
#include "tests/support/RegisteredTest.h"

#include <QAccessible>
#include <QPushButton>
#include <QTest>

using namespace Qt::StringLiterals;

/// What a screen reader is given to speak of itself, and what it is not.
class SpokenChangesTest : public QObject, private MainWindowFixture {
    Q_OBJECT

  private Q_SLOTS:
    void init() { open(); }
    void cleanup() { close(); }

    void itIsANotification();
    void aSwitchIsToldThatAKeyWorked();
    void aSwitchWithTheFocusTellsOfItself();
    void tuneIsToldAndThatItIsOff();
    void droppedTextIsTold();
    void thePaddleAloneIsNot();
    void whatIsStoppedIsNot();

  private:
    [[nodiscard]] QString spoken() {
        return _window->findChild<SpokenNotice*>(QString(), Qt::FindDirectChildrenOnly)
            ->accessibleName();
    }
};

void SpokenChangesTest::itIsANotification() {
    auto* notice = _window->findChild<SpokenNotice*>(QString(), Qt::FindDirectChildrenOnly);
    QVERIFY(!notice->isVisible());
    notice->say(u"Heard"_s);
    const auto* interface = QAccessible::queryAccessibleInterface(notice);
    QCOMPARE(interface->role(), QAccessible::Notification);
    QCOMPARE(interface->text(QAccessible::Name), u"Heard"_s);
}

void SpokenChangesTest::aSwitchIsToldThatAKeyWorked() {
    press(Qt::Key_P, Qt::ControlModifier);
    QCOMPARE(spoken(), u"Pause: on"_s);
    press(Qt::Key_P, Qt::ControlModifier);
    QCOMPARE(spoken(), u"Pause: off"_s);
    press(Qt::Key_B, Qt::ControlModifier);
    QCOMPARE(spoken(), u"Beacon: on"_s);
    press(Qt::Key_H, Qt::ControlModifier);
    QCOMPARE(spoken(), u"High-speed CW: on"_s);
}

void SpokenChangesTest::aSwitchWithTheFocusTellsOfItself() {
    auto* button = find<QPushButton>(u"pauseButton"_s);
    button->setFocus();
    press(Qt::Key_Space);
    QVERIFY(button->isChecked());
    QCOMPARE(spoken(), u""_s);
}

void SpokenChangesTest::tuneIsToldAndThatItIsOff() {
    const auto* notice = find<QWidget>(u"tuneWarning"_s)->findChild<SpokenNotice*>();
    QCOMPARE(notice->accessibleName(), u""_s);
    press(Qt::Key_T, Qt::ControlModifier);
    QVERIFY(notice->accessibleName().contains(u"TRANSMITTING"));
    press(Qt::Key_Escape);
    press(Qt::Key_T, Qt::ControlModifier);
    press(Qt::Key_T, Qt::ControlModifier);
    QCOMPARE(notice->accessibleName(), u"Tune is off"_s);
}

void SpokenChangesTest::droppedTextIsTold() {
    type(u"CQ TEST"_s);
    QCOMPARE(spoken(), u""_s);
    _bench->receive({0xC4});
    _bench->receive({0xC6});
    QCOMPARE(_bench->engine().keyboardBuffer(), u""_s);
    QCOMPARE(spoken(), u"Break-in: what waited was dropped"_s);
}

void SpokenChangesTest::thePaddleAloneIsNot() {
    _bench->receive({0xC6});
    type(u"K"_s);
    press(Qt::Key_Backspace);
    _bench->receive({0xC0});
    QCOMPARE(spoken(), u""_s);
}

void SpokenChangesTest::whatIsStoppedIsNot() {
    type(u"CQ TEST"_s);
    press(Qt::Key_Escape);
    QCOMPARE(_bench->engine().keyboardBuffer(), u""_s);
    QCOMPARE(spoken(), u""_s);
}

static const RegisteredTest<SpokenChangesTest> registered;
#include "SpokenChangesTest.moc"
