#include "platform/linux/LogindPower.h"

#include "tests/platform/linux/FakeLogind.h"
#include "tests/platform/linux/PrivateBus.h"
#include "tests/support/RegisteredTest.h"
#include "tests/support/TestPlatform.h"

#include <QDBusMessage>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QTest>

#include <functional>
#include <memory>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

/// Writes down each notification of power, and runs an action on it.
class Observer final : public QObject {
  public:
    explicit Observer(NotificationCenter& center) {
        const auto note = [this](const Notification& notification) {
            posted.append(notification.name);
            sender = notification.object;
            if (reaction) {
                reaction();
            }
        };
        center.addObserver(this, NSWorkspaceWillSleepNotification, note);
        center.addObserver(this, NSWorkspaceDidWakeNotification, note);
        center.addObserver(this, NSWorkspaceWillPowerOffNotification, note);
    }

    QStringList posted;
    QObject* sender = nullptr;
    std::function<void()> reaction;
};

const QStringList slept{NSWorkspaceWillSleepNotification};
const QStringList sleptAndWoke{NSWorkspaceWillSleepNotification, NSWorkspaceDidWakeNotification};

} // namespace

class LogindPowerTest : public QObject {
    Q_OBJECT
  private Q_SLOTS:
    void init() {
        _platform.emplace();
        _observer.emplace(_platform->notifications());
        _bus.emplace();
        _connection.emplace(_bus->connect(u"quorvel"_s));
        _logind = std::make_unique<FakeLogind>(*_bus);
    }

    void cleanup() {
        _power.reset();
        _logind.reset();
        QDBusConnection::disconnectFromBus(u"quorvel"_s);
        _connection.reset();
        _bus.reset();
        _observer.reset();
        _platform.reset();
    }

    void holdsALockWhileTheMachineIsAwake() {
        start();
        QTRY_COMPARE(_logind->heldLocks(), 1);
        const auto request = _logind->requests().constFirst();
        QCOMPARE(request[0], u"sleep:shutdown"_s);
        QCOMPARE(request[1], u"Quorvel"_s);
        QVERIFY(!request[2].isEmpty());
        QCOMPARE(request[3], u"delay"_s);
        QVERIFY(_observer->posted.isEmpty());
    }

    void letsGoOfTheLockOnceTheObserversHaveRun() {
        start();
        QTRY_COMPARE(_logind->heldLocks(), 1);
        const auto heldMeanwhile = std::make_shared<qsizetype>(0);
        _observer->reaction = [this, heldMeanwhile] { *heldMeanwhile = _logind->heldLocks(); };
        _logind->announceSleep();
        QTRY_COMPARE(_observer->posted, slept);
        QCOMPARE(_observer->sender, _power.get());
        QCOMPARE(*heldMeanwhile, 1);
        QTRY_COMPARE(_logind->heldLocks(), 0);
        QCOMPARE(_logind->requests().size(), 1);
    }

    void takesTheLockAnewAfterEachSleep() {
        start();
        QTRY_COMPARE(_logind->heldLocks(), 1);
        for (int night = 1; night <= 3; ++night) {
            _observer->posted.clear();
            _logind->announceSleep();
            QTRY_COMPARE(_logind->heldLocks(), 0);
            _logind->announceWake();
            QTRY_COMPARE(_observer->posted, sleptAndWoke);
            QCOMPARE(_observer->sender, _power.get());
            QTRY_COMPARE(_logind->heldLocks(), 1);
            QCOMPARE(_logind->requests().size(), night + 1);
        }
    }

    void aLockThatComesTooLateIsNotKept() {
        _logind->delayAnswers();
        start();
        QTRY_COMPARE(_logind->requests().size(), 1);
        _logind->announceSleep();
        QTRY_COMPARE(_observer->posted, slept);
        _logind->answerRequests();
        QTRY_COMPARE(_logind->heldLocks(), 0);
        _logind->announceWake();
        QTRY_COMPARE(_observer->posted, sleptAndWoke);
        QTRY_COMPARE(_logind->requests().size(), 2);
        QTRY_COMPARE(_logind->heldLocks(), 1);
    }

    void aRefusedLockDoesNotKeepItFromTelling() {
        _logind->refuseLocks();
        start();
        QTRY_COMPARE(_logind->requests().size(), 1);
        _logind->announceSleep();
        _logind->announceWake();
        QTRY_COMPARE(_observer->posted, sleptAndWoke);
        QCOMPARE(_logind->heldLocks(), 0);
    }

    void aSleepThatEndsWhileAnObserverWaitsLeavesALock() {
        start();
        QTRY_COMPARE(_logind->heldLocks(), 1);
        _observer->reaction = [this, isFirst = true]() mutable {
            if (std::exchange(isFirst, false)) {
                _logind->announceWake();
                QTRY_COMPARE(_observer->posted, sleptAndWoke);
                QTRY_COMPARE(_logind->requests().size(), 2);
            }
        };
        _logind->announceSleep();
        QTRY_COMPARE(_observer->posted, sleptAndWoke);
        _logind->announceSleep();
        QTRY_COMPARE(_observer->posted, sleptAndWoke + slept);
        QTRY_COMPARE(_logind->heldLocks(), 0);
        _logind->announceWake();
        QTRY_COMPARE(_logind->heldLocks(), 1);
    }

    void aServiceThatStartsLaterIsNoticed() {
        _logind.reset();
        start();
        _logind = std::make_unique<FakeLogind>(*_bus);
        QTRY_COMPARE(_logind->heldLocks(), 1);
        _logind->announceSleep();
        QTRY_COMPARE(_observer->posted, slept);
    }

    void aServiceThatGoesAndComesBackIsFollowed() {
        start();
        QTRY_COMPARE(_logind->heldLocks(), 1);
        _logind.reset();
        _logind = std::make_unique<FakeLogind>(*_bus);
        QTRY_COMPARE(_logind->heldLocks(), 1);
        QVERIFY(_observer->posted.isEmpty());
        _logind->announceSleep();
        QTRY_COMPARE(_observer->posted, slept);
    }

    void aServiceThatGoesDuringASleepEndsIt() {
        start();
        QTRY_COMPARE(_logind->heldLocks(), 1);
        _logind->announceSleep();
        QTRY_COMPARE(_observer->posted, slept);
        _logind.reset();
        QTRY_COMPARE(_observer->posted, sleptAndWoke);
    }

    void theMachinesEndIsHeldUpUntilTheObserversHaveRun() {
        start();
        QTRY_COMPARE(_logind->heldLocks(), 1);
        const auto heldMeanwhile = std::make_shared<qsizetype>(0);
        _observer->reaction = [this, heldMeanwhile] { *heldMeanwhile = _logind->heldLocks(); };
        _logind->announceShutdown();
        QTRY_COMPARE(_observer->posted, QStringList{NSWorkspaceWillPowerOffNotification});
        QCOMPARE(_observer->sender, _power.get());
        QCOMPARE(*heldMeanwhile, 1);
        QTRY_COMPARE(_logind->heldLocks(), 0);
    }

    void anEndThatIsCalledOffLeavesALock() {
        start();
        QTRY_COMPARE(_logind->heldLocks(), 1);
        _logind->announceShutdown();
        QTRY_COMPARE(_logind->heldLocks(), 0);
        _logind->callOffShutdown();
        QTRY_COMPARE(_logind->heldLocks(), 1);
        QCOMPARE(_observer->posted, QStringList{NSWorkspaceWillPowerOffNotification});
    }

    void othersCannotSendTheProgramToSleep() {
        start();
        QTRY_COMPARE(_logind->heldLocks(), 1);
        auto stranger = _bus->connect(u"stranger"_s);
        auto signal =
            QDBusMessage::createSignal(u"/org/freedesktop/login1"_s,
                                       u"org.freedesktop.login1.Manager"_s, u"PrepareForSleep"_s);
        signal.setArguments({true});
        QVERIFY(stranger.send(signal));
        // The bus keeps the order of what one sender sends; this is what comes after the signal.
        QVERIFY(stranger.call(ping()).type() == QDBusMessage::ReplyMessage);
        QDBusConnection::disconnectFromBus(u"stranger"_s);
        _logind->announceWake();
        QTRY_COMPARE(_observer->posted, QStringList{NSWorkspaceDidWakeNotification});
    }

    void itsEndLetsGoOfTheLock() {
        start();
        QTRY_COMPARE(_logind->heldLocks(), 1);
        _power.reset();
        QTRY_COMPARE(_logind->heldLocks(), 0);
        QVERIFY(_observer->posted.isEmpty());
    }

    void withoutABusNothingHappens() {
        const QDBusConnection none(u"none"_s);
        QVERIFY(!none.isConnected());
        _power = std::make_unique<LogindPower>(none);
        QCoreApplication::processEvents();
        QVERIFY(_observer->posted.isEmpty());
    }

    void aServiceThatDoesNotAnswerIsNotWaitedFor() {
        _logind->delayAnswers();
        QElapsedTimer time;
        time.start();
        start();
        QVERIFY(time.elapsed() < 2000);
        QTRY_COMPARE(_logind->requests().size(), 1);
        QCOMPARE(_logind->heldLocks(), 0);
    }

  private:
    void start() { _power = std::make_unique<LogindPower>(*_connection); }

    static QDBusMessage ping() {
        return QDBusMessage::createMethodCall(u"org.freedesktop.DBus"_s, u"/"_s,
                                              u"org.freedesktop.DBus.Peer"_s, u"Ping"_s);
    }

    std::optional<TestPlatform> _platform;
    std::optional<Observer> _observer;
    std::optional<PrivateBus> _bus;
    std::optional<QDBusConnection> _connection;
    std::unique_ptr<FakeLogind> _logind;
    std::unique_ptr<LogindPower> _power;
};

static const RegisteredTest<LogindPowerTest> registered;
#include "LogindPowerTest.moc"
