#include "app/window/ConnectionStrip.h"

#include "platform/NotificationCenter.h"
#include "serial/ORSSerialPort.h"
#include "tests/app/window/MainWindowFixture.h"
#include "tests/support/RegisteredTest.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QAction>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// What the main window says while no keyer is connected.
class ConnectionStripTest : public QObject, private MainWindowFixture {
    Q_OBJECT

  private Q_SLOTS:
    void init() { open(); }
    void cleanup() { close(); }

    void itIsThereWhileNothingIsConnected();
    void itSaysWhatBecomesOfTheText();
    void whatIsEnteredAsleepWaitsForTheOperator_data();
    void whatIsEnteredAsleepWaitsForTheOperator();
    void aLateErrorOfAPortThatSleepsIsNoNews();
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

void ConnectionStripTest::whatIsEnteredAsleepWaitsForTheOperator_data() {
    QTest::addColumn<bool>("isSent");
    QTest::addColumn<std::chrono::minutes>("later");
    QTest::addRow("who sends it") << true << 1min;
    QTest::addRow("who sends it at once") << true << 0min;
    QTest::addRow("who drops it") << false << 1min;
}

/// What the strip says of a sleep is true, too. The keyer answers the greeting with its status.
void ConnectionStripTest::whatIsEnteredAsleepWaitsForTheOperator() {
    QFETCH(const bool, isSent);
    QFETCH(const std::chrono::minutes, later);
    auto& notifications = _bench->platform().notifications();
    notifications.post(NSWorkspaceWillSleepNotification, nullptr);
    QVERIFY(strip().isVisible());
    QVERIFY(find<QLabel>(u"connectionLabel"_s)->text().contains(u"waits until you take Pause off"));
    QVERIFY(!find<QWidget>(u"choosePortButton"_s)->isVisible());
    QVERIFY(!find<QWidget>(u"checkPortsButton"_s)->isVisible());
    type(u"cq"_s);
    press(Qt::Key_F2);
    press(Qt::Key_F7);
    QCOMPARE(find<QLabel>(u"waitingLabel"_s)->text(), u"11 waiting"_s);
    notifications.post(NSWorkspaceDidWakeNotification, nullptr);
    QTRY_VERIFY(!strip().isVisible());
    _bench->receive({0x55});
    _bench->receive({0x17});
    _bench->receive({0xC0});
    static_cast<void>(_bench->written());
    _bench->clock().advance(later);
    _bench->receive({0xC8});
    QCOMPARE(_bench->engine().keyboardBuffer(), u"CQ 5NN NH ?"_s);
    QCOMPARE(_bench->written(), "");
    QVERIFY(find<QWidget>(u"noticeStrip"_s)->isVisible());
    QVERIFY(find<QAbstractButton>(u"pauseButton"_s)->isChecked());
    if (isSent) {
        press(Qt::Key_P, Qt::ControlModifier);
        QCOMPARE(_bench->written(), "06 00 43");
        _bench->receive({'C'});
        QCOMPARE(_bench->written(), "51");
    } else {
        press(Qt::Key_Escape);
        QCOMPARE(_bench->engine().keyboardBuffer(), u""_s);
        static_cast<void>(_bench->written());
        type(u"k"_s);
        QCOMPARE(_bench->written(), "4b");
    }
    QVERIFY(!find<QAbstractButton>(u"pauseButton"_s)->isChecked());
}

/// Those who read the port, and its closing, report from threads of their own.
void ConnectionStripTest::aLateErrorOfAPortThatSleepsIsNoNews() {
    auto& notifications = _bench->platform().notifications();
    notifications.post(NSWorkspaceWillSleepNotification, nullptr);
    const auto port = ORSSerialPort::serialPortWithPath(_bench->line().path());
    port->notifyDelegateOfPosixError();
    QVERIFY(find<QLabel>(u"connectionLabel"_s)->text().contains(u"waits until you take Pause off"));
    QVERIFY(!find<QWidget>(u"answerStrip"_s)->isVisible());
    type(u"cq"_s);
    notifications.post(NSWorkspaceDidWakeNotification, nullptr);
    QTRY_VERIFY(!strip().isVisible());
    QCOMPARE(_bench->engine().keyboardBuffer(), u"CQ"_s);
    QVERIFY(find<QAbstractButton>(u"pauseButton"_s)->isChecked());
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
