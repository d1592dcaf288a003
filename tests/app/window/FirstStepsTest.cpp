#include "app/window/FirstSteps.h"

#include "tests/app/window/MainWindowFixture.h"
#include "tests/support/RegisteredTest.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

class FirstStepsTest : public QObject, private MainWindowFixture {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup() { close(); }

    void theyAreNotThereUnasked();
    void theyTakeNoFocus();
    void theyFollowTheKeyer();
    void theCallIsStoredAsItIsTyped();
    void aCallFromElsewhereIsShown();
    void nothingThatIsTypedIntoThemIsSent();
    void theyLeadToTheOtherWindows();
    void aKeyerOfSoftwareIsOfferedWhereThereIsOne();
    void closingThemBringsTheStripBack();

  private:
    [[nodiscard]] FirstSteps& steps() { return *find<FirstSteps>(u"firstSteps"_s); }
    [[nodiscard]] QLineEdit& callField() { return *find<QLineEdit>(u"firstStepsCallField"_s); }
    [[nodiscard]] QString mark(int number) {
        return find<QLabel>(u"firstStepsMark%1"_s.arg(number))->text();
    }
    [[nodiscard]] QString call() { return _bench->settings().stringForKey(MyCall); }
    void start();
};

void FirstStepsTest::init() {
    open();
    _bench->settings().setObject({}, MyCall);
    QVERIFY(_bench->engine().disconnect(nullptr));
}

void FirstStepsTest::start() {
    _window->showFirstSteps();
    QCoreApplication::processEvents();
    QVERIFY(steps().isVisible());
    static_cast<void>(_bench->written());
}

void FirstStepsTest::theyAreNotThereUnasked() {
    QVERIFY(!steps().isVisible());
    QVERIFY(find<QWidget>(u"connectionStrip"_s)->isVisible());
}

void FirstStepsTest::theyTakeNoFocus() {
    const auto* focus = QApplication::focusWidget();
    start();
    QCOMPARE(QApplication::focusWidget(), focus);
    QVERIFY(!find<QWidget>(u"connectionStrip"_s)->isVisible());
    for (const auto* button : steps().findChildren<QPushButton*>()) {
        QCOMPARE(button->focusPolicy(), Qt::TabFocus);
    }
}

void FirstStepsTest::theyFollowTheKeyer() {
    start();
    QCOMPARE(mark(1), u"1."_s);
    const auto* text = find<QLabel>(u"firstStepsKeyerLabel"_s);
    QVERIFY(text->text().endsWith(u"What you type until then is not sent, and is forgotten."_s));
    QVERIFY(_bench->connect());
    QCOMPARE(mark(1), u"✓"_s);
    QCOMPARE(find<QLabel>(u"firstStepsKeyerLabel"_s)->text(), u"Connected to usbserial-WK1."_s);
    QVERIFY(_bench->engine().disconnect(nullptr));
    QCOMPARE(mark(1), u"1."_s);
}

void FirstStepsTest::theCallIsStoredAsItIsTyped() {
    start();
    QCOMPARE(callField().text(), u""_s);
    QCOMPARE(mark(2), u"2."_s);
    const auto withoutCall = call();
    click(callField());
    type(u"n0call"_s);
    QCOMPARE(call(), u"N0CALL"_s);
    QCOMPARE(mark(2), u"✓"_s);
    callField().clear();
    QCOMPARE(call(), withoutCall);
    QCOMPARE(mark(2), u"2."_s);
}

void FirstStepsTest::aCallFromElsewhereIsShown() {
    start();
    _bench->settings().setObject(u"W9XYZ"_s, MyCall);
    QCOMPARE(callField().text(), u"W9XYZ"_s);
}

void FirstStepsTest::nothingThatIsTypedIntoThemIsSent() {
    QVERIFY(_bench->connect());
    _bench->receive({0xC0});
    start();
    click(callField());
    type(u"n0call"_s);
    press(Qt::Key_Return);
    press(Qt::Key_Space);
    QCOMPARE(_bench->engine().keyboardBuffer(), u""_s);
    QCOMPARE(_bench->written(), "");
    QVERIFY(steps().isVisible());
}

void FirstStepsTest::theyLeadToTheOtherWindows() {
    start();
    const QSignalSpy ports(&*_window, &MainWindow::portRequested);
    const QSignalSpy checks(&*_window, &MainWindow::portCheckRequested);
    click(*find<QWidget>(u"firstStepsPortButton"_s));
    click(*find<QWidget>(u"firstStepsCheckButton"_s));
    QCOMPARE(ports.size(), 1);
    QCOMPARE(checks.size(), 1);
}

void FirstStepsTest::aKeyerOfSoftwareIsOfferedWhereThereIsOne() {
    start();
    const QSignalSpy requests(&*_window, &MainWindow::virtualKeyerRequested);
    auto* button = find<QPushButton>(u"firstStepsVirtualKeyerButton"_s);
    auto* action = find<QAction>(u"virtualKeyerAction"_s);
    QVERIFY(!button->isVisible() && !action->isVisible());
    _window->offerVirtualKeyer();
    QCoreApplication::processEvents();
    QVERIFY(button->isVisible() && action->isVisible());
    click(*button);
    action->trigger();
    QCOMPARE(requests.size(), 2);
    QVERIFY(_bench->connect());
    QVERIFY(!button->isEnabled() && !action->isEnabled());
}

void FirstStepsTest::closingThemBringsTheStripBack() {
    start();
    click(*find<QWidget>(u"firstStepsDoneButton"_s));
    QVERIFY(!steps().isVisible());
    QVERIFY(find<QWidget>(u"connectionStrip"_s)->isVisible());
    QVERIFY(find<QWidget>(u"keyboardView"_s)->hasFocus());
    QVERIFY(_bench->connect());
    QVERIFY(!find<QWidget>(u"connectionStrip"_s)->isVisible());
}

static const RegisteredTest<FirstStepsTest> registered;
#include "FirstStepsTest.moc"
