#include "app/window/ConnectionStrip.h"

#include "platform/NotificationCenter.h"
#include "tests/app/window/MainWindowFixture.h"
#include "tests/support/RegisteredTest.h"

#include <QAccessible>
#include <QAction>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

/// What the main window says while no keyer is connected.
class ConnectionStripTest : public QObject, private MainWindowFixture {
    Q_OBJECT

  private Q_SLOTS:
    void init() { open(); }
    void cleanup() { close(); }

    void itIsThereWhileNothingIsConnected();
    void itSaysWhatBecomesOfTheText();
    void afterASleepToo();
    void itLeadsToTheChoiceOfPort();
    void itLeadsToTheCheckOfThePorts();
    void nothingIsCountedAsWaiting();

  private:
    [[nodiscard]] QWidget& strip() { return *find<QWidget>(u"connectionStrip"_s); }
};

void ConnectionStripTest::itIsThereWhileNothingIsConnected() {
    QVERIFY(!strip().isVisible());
    QVERIFY(_bench->engine().disconnect(nullptr));
    QVERIFY(strip().isVisible());
    QVERIFY(QAccessible::queryAccessibleInterface(&strip())
                ->text(QAccessible::Name)
                .startsWith(u"Not connected"_s));
    QVERIFY(_bench->connect());
    QVERIFY(!strip().isVisible());
}

/// And what it says is true.
void ConnectionStripTest::itSaysWhatBecomesOfTheText() {
    QVERIFY(_bench->engine().disconnect(nullptr));
    const auto* label = find<QLabel>(u"connectionLabel"_s);
    QVERIFY(label->text().contains(u"nothing is sent"));
    QVERIFY(label->text().contains(u"forgotten when a keyer is connected"));
    type(u"cq"_s);
    press(Qt::Key_F2);
    QCOMPARE(_bench->engine().keyboardBuffer(), u"CQ 5NN NH"_s);
    // As choosing a port does.
    QVERIFY(_bench->engine().disconnect(nullptr));
    QVERIFY(_bench->connect());
    QCOMPARE(_bench->engine().keyboardBuffer(), u""_s);
    _bench->receive({0xC0});
    QCOMPARE(_bench->written(), "");
}

/// The engine keeps its text for the keyer that is to come back.
void ConnectionStripTest::afterASleepToo() {
    auto& notifications = _bench->platform().notifications();
    notifications.post(NSWorkspaceWillSleepNotification, nullptr);
    QVERIFY(strip().isVisible());
    type(u"cq"_s);
    press(Qt::Key_F2);
    notifications.post(NSWorkspaceDidWakeNotification, nullptr);
    QTRY_VERIFY(!strip().isVisible());
    static_cast<void>(_bench->written());
    _bench->receive({0xC0});
    QCOMPARE(_bench->engine().keyboardBuffer(), u""_s);
    QCOMPARE(_bench->written(), "");
    type(u"k"_s);
    QCOMPARE(_bench->written(), "4b");
}

void ConnectionStripTest::itLeadsToTheChoiceOfPort() {
    QVERIFY(_bench->engine().disconnect(nullptr));
    const QSignalSpy requests(&*_window, &MainWindow::portRequested);
    const auto* focus = QApplication::focusWidget();
    QCoreApplication::processEvents();
    click(*find<QWidget>(u"choosePortButton"_s));
    QCOMPARE(requests.size(), 1);
    QCOMPARE(QApplication::focusWidget(), focus);
}

void ConnectionStripTest::itLeadsToTheCheckOfThePorts() {
    QVERIFY(_bench->engine().disconnect(nullptr));
    const QSignalSpy requests(&*_window, &MainWindow::portCheckRequested);
    QCoreApplication::processEvents();
    click(*find<QWidget>(u"checkPortsButton"_s));
    QCOMPARE(requests.size(), 1);
    find<QAction>(u"checkPortsAction"_s)->trigger();
    QCOMPARE(requests.size(), 2);
    // Nor does a keyer that does not answer stand alone.
    find<QPushButton>(u"answerCheckButton"_s)->click();
    QCOMPARE(requests.size(), 3);
}

void ConnectionStripTest::nothingIsCountedAsWaiting() {
    const auto* waiting = find<QLabel>(u"waitingLabel"_s);
    const auto* view = find<QPlainTextEdit>(u"keyboardView"_s);
    type(u"cq"_s);
    QCOMPARE(waiting->text(), u"2 waiting"_s);
    _bench->receive({'C'});
    QCOMPARE(waiting->text(), u"1 waiting"_s);
    _bench->receive({'Q'});
    QCOMPARE(waiting->text(), u""_s);
    QCOMPARE(view->placeholderText(), u"Type here to send"_s);
    QVERIFY(_bench->engine().disconnect(nullptr));
    type(u"cq"_s);
    QCOMPARE(waiting->text(), u""_s);
    QCOMPARE(view->placeholderText(), u"Not connected: nothing is sent"_s);
    QCOMPARE(QAccessible::queryAccessibleInterface(find<QWidget>(u"keyboardView"_s))
                 ->text(QAccessible::Description),
             u"Not connected: nothing is sent"_s);
}

static const RegisteredTest<ConnectionStripTest> registered;
#include "ConnectionStripTest.moc"
