#include "app/TerminationSignals.h"

#include "tests/support/RegisteredTest.h"

#include <QSignalSpy>
#include <QTest>

#include <csignal>

class TerminationSignalsTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void signalsReachTheEventLoop_data();
    void signalsReachTheEventLoop();
    void signalsHaveTheirDefaultEffectAfterwards();
};

void TerminationSignalsTest::signalsReachTheEventLoop_data() {
    QTest::addColumn<int>("number");
    QTest::newRow("terminate") << SIGTERM;
    QTest::newRow("interrupt") << SIGINT;
    QTest::newRow("hang-up") << SIGHUP;
    QTest::newRow("quit") << SIGQUIT;
}

void TerminationSignalsTest::signalsReachTheEventLoop() {
    QFETCH(int, number);
    const TerminationSignals terminationSignals;
    QSignalSpy requests(&terminationSignals, &TerminationSignals::requested);
    QCOMPARE(::raise(number), 0);
    QCOMPARE(requests.size(), 0);
    QTRY_COMPARE(requests.size(), 1);
}

void TerminationSignalsTest::signalsHaveTheirDefaultEffectAfterwards() {
    { const TerminationSignals terminationSignals; }
    for (const auto number : {SIGTERM, SIGINT, SIGHUP, SIGQUIT}) {
        struct sigaction action = {};
        QCOMPARE(::sigaction(number, nullptr, &action), 0);
        QVERIFY(action.sa_handler == SIG_DFL);
    }
}

static const RegisteredTest<TerminationSignalsTest> registered;
#include "TerminationSignalsTest.moc"
