#include "app/Termination.h"

#include "app/QuorvelDelegate.h"
#include "tests/keyer/EngineBench.h"
#include "tests/support/RegisteredTest.h"
#include "tests/support/SystemCallFaults.h"

#include <QApplication>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QWidget>

#include <cerrno>
#include <functional>
#include <optional>

using namespace Qt::StringLiterals;

class TerminationTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup();

    void theLinkIsTakenDownAndEveryoneTold();
    void askedTwiceItDisconnectsOnce();
    void askedAgainItEndsAnAlertOfTheWayOut();
    void theDesktopsRequestToQuitTakesTheWayOut();
    void theMachinesEndTakesTheWayOut();
    void theSessionsEndTakesTheWayOut();
    void anExitWithoutTheDesktopLeavesTheKeyer();
    void anExitAfterTheWayOutDoesNothing();
    void theLastWindowQuits();
    void aWindowThatIsNotTheLastDoesNotQuit();

  private:
    /// Runs the event loop until it is ended, after `action`.
    void runLoop(const std::function<void()>& action);
    [[nodiscard]] qsizetype disconnections() const { return _disconnections->size(); }

    std::optional<EngineBench> _bench;
    std::optional<QuorvelDelegate> _delegate;
    std::optional<Termination> _termination;
    std::optional<QSignalSpy> _disconnections;
    int _tellings = 0;
};

void TerminationTest::init() {
    _bench.emplace();
    _delegate.emplace(_bench->engine());
    _termination.emplace(*_delegate);
    _disconnections.emplace(&*_delegate, &QuorvelDelegate::willDisconnect);
    _tellings = 0;
    _bench->platform().notifications().addObserver(&*_delegate,
                                                   NSApplicationWillTerminateNotification,
                                                   [this](const Notification&) { ++_tellings; });
    QVERIFY(_bench->connect());
}

void TerminationTest::cleanup() {
    _disconnections.reset();
    _termination.reset();
    _delegate.reset();
    _bench.reset();
}

void TerminationTest::runLoop(const std::function<void()>& action) {
    QTimer::singleShot(0, &*_termination, action);
    QTimer tooLong;
    tooLong.setSingleShot(true);
    QObject::connect(&tooLong, &QTimer::timeout, qApp, [] { QCoreApplication::exit(1); });
    tooLong.start(20'000);
    QCOMPARE(QApplication::exec(), 0);
}

void TerminationTest::theLinkIsTakenDownAndEveryoneTold() {
    const QSignalSpy partings(&*_termination, &Termination::hasLeftKeyer);
    runLoop([this] { _termination->terminate(Termination::Cause::Operator); });
    QCOMPARE(partings.size(), 1);
    QCOMPARE(_bench->written(), "00 03");
    QVERIFY(!_bench->engine().isConnected());
    QCOMPARE(_tellings, 1);
}

void TerminationTest::askedTwiceItDisconnectsOnce() {
    runLoop([this] {
        _termination->terminate(Termination::Cause::Operator);
        _termination->terminate(Termination::Cause::Operator);
    });
    QCOMPARE(disconnections(), 1);
    QCOMPARE(_tellings, 1);
}

void TerminationTest::askedAgainItEndsAnAlertOfTheWayOut() {
    SystemCallFaults faults;
    faults.fail(SystemCall::Write, EIO);
    int alerts = 0;
    QSignalSpy beginnings(&*_termination, &Termination::begun);
    _bench->platform().application().setWhileShown([&](const Alert&) {
        ++alerts;
        QCOMPARE(beginnings.size(), 1);
        QVERIFY(!_bench->port().isOpen());
        QEventLoop alert;
        QTimer::singleShot(0, &*_termination,
                           [this] { _termination->terminate(Termination::Cause::Operator); });
        alert.exec();
    });
    runLoop([this] { _termination->terminate(Termination::Cause::Operator); });
    QCOMPARE(alerts, 1);
    QCOMPARE(beginnings.size(), 1);
    QCOMPARE(disconnections(), 1);
    QCOMPARE(_tellings, 1);
}

void TerminationTest::theDesktopsRequestToQuitTakesTheWayOut() {
    runLoop([] {
        QEvent quit(QEvent::Quit);
        QCoreApplication::sendEvent(qApp, &quit);
    });
    QCOMPARE(disconnections(), 1);
    QCOMPARE(_bench->written(), "00 03");
}

void TerminationTest::theMachinesEndTakesTheWayOut() {
    runLoop([this] {
        _bench->platform().notifications().post(NSWorkspaceWillPowerOffNotification, nullptr);
    });
    QCOMPARE(disconnections(), 1);
    QCOMPARE(_bench->written(), "00 03");
}

/// Only the toolkit can make the session's manager that it hands over, so the connection is all
/// that can be seen here.
void TerminationTest::theSessionsEndTakesTheWayOut() {
    QVERIFY(
        QObject::disconnect(qGuiApp, &QGuiApplication::commitDataRequest, &*_termination, nullptr));
}

void TerminationTest::anExitWithoutTheDesktopLeavesTheKeyer() {
    _bench->engine().setTuneState(1);
    QSignalSpy changes(&_bench->engine(), &WinKeyerUsb::tuneStateChanged);
    const QSignalSpy partings(&*_termination, &Termination::hasLeftKeyer);
    _termination->terminateWithoutDesktop();
    QCOMPARE(partings.size(), 1);
    QCOMPARE(_bench->written(), "0b 00 0a 00 03");
    QVERIFY(!_bench->engine().isConnected());
    QCOMPARE(changes.size(), 0);
    QCOMPARE(_tellings, 0);
    QVERIFY(_bench->platform().application().alerts().isEmpty());
}

void TerminationTest::anExitAfterTheWayOutDoesNothing() {
    runLoop([this] { _termination->terminate(Termination::Cause::Operator); });
    _bench->engine().setTuneState(1);
    _termination->terminateWithoutDesktop();
    QCOMPARE(_bench->engine().tuneState(), 1);
}

void TerminationTest::theLastWindowQuits() {
    QWidget window;
    runLoop([&] {
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        window.close();
    });
    QCOMPARE(disconnections(), 1);
}

void TerminationTest::aWindowThatIsNotTheLastDoesNotQuit() {
    QWidget console;
    QWidget preferences;
    qsizetype afterTheFirst = -1;
    runLoop([&] {
        console.show();
        preferences.show();
        QVERIFY(QTest::qWaitForWindowExposed(&console));
        QVERIFY(QTest::qWaitForWindowExposed(&preferences));
        console.close();
        QCoreApplication::processEvents();
        afterTheFirst = disconnections();
        preferences.close();
    });
    QCOMPARE(afterTheFirst, 0);
    QCOMPARE(disconnections(), 1);
}

static const RegisteredTest<TerminationTest> registered;
#include "TerminationTest.moc"
