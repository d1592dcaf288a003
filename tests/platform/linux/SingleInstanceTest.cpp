#include "platform/linux/SingleInstance.h"

#include "tests/platform/linux/PrivateBus.h"
#include "tests/support/RegisteredTest.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QElapsedTimer>
#include <QScopeGuard>
#include <QSemaphore>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <optional>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto service = "org.quorvel.Quorvel"_L1;

QDBusMessage call(const QString& method, const QVariantList& arguments) {
    auto message = QDBusMessage::createMethodCall(service, u"/org/quorvel/Quorvel"_s,
                                                  u"org.freedesktop.Application"_s, method);
    message.setArguments(arguments);
    return message;
}

} // namespace

class SingleInstanceTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup();

    void theFirstIsTheFirst();
    void theSecondCallsTheFirst_data();
    void theSecondCallsTheFirst();
    void desktopsCanCallIt_data();
    void desktopsCanCallIt();
    void aFloodOfCallsIsAFewActivations();
    void theNameIsFreeAfterTheEnd();
    void aPlaceThatIsLeftIsTaken();
    void aCallThatComesAsThePlaceIsLeftIsRefused();
    void aPlaceThatBecomesFreeIsTaken();
    void anOwnerThatHangsIsNotWaitedForLong();
    void anOwnerThatKnowsNothingOfThisIsNotWaitedForLong();
    void withoutABusItIsTheFirst();
    void withoutABusTheSecondKnowsTheFirst_data();
    void withoutABusTheSecondKnowsTheFirst();
    void withABusTheSecondKnowsAFirstWithout();
    void withoutARuntimeDirectoryItIsTheFirst();

  private:
    [[nodiscard]] QString lockPath() const { return _runtime->filePath(u"quorvel/lock"_s); }
    /// The running instance lives on a thread of its own, as it would in a process of its own.
    void startFirst();
    void endFirst();

    std::optional<QTemporaryDir> _runtime;
    std::optional<PrivateBus> _bus;
    QThread _thread;
    SingleInstance* _first = nullptr;
    QStringList _tokens;
};

void SingleInstanceTest::init() {
    _runtime.emplace();
    _bus.emplace();
    _thread.start();
}

void SingleInstanceTest::cleanup() {
    endFirst();
    _thread.quit();
    _thread.wait();
    for (const auto* name : {"first", "second", "desktop"}) {
        QDBusConnection::disconnectFromBus(QString::fromLatin1(name));
    }
    _bus.reset();
    _tokens.clear();
}

void SingleInstanceTest::startFirst() {
    const auto connection = _bus->connect(u"first"_s);
    _first = new SingleInstance(connection, lockPath());
    _first->moveToThread(&_thread);
    QObject::connect(_first, &SingleInstance::activated, this,
                     [this](const QString& token) { _tokens.append(token); });
    auto role = SingleInstance::Role::Unanswered;
    QMetaObject::invokeMethod(
        _first, [&] { role = _first->begin({}); }, Qt::BlockingQueuedConnection);
    QCOMPARE(role, SingleInstance::Role::First);
}

void SingleInstanceTest::endFirst() {
    if (_first != nullptr) {
        QMetaObject::invokeMethod(
            _first, [this] { delete std::exchange(_first, nullptr); },
            Qt::BlockingQueuedConnection);
    }
}

void SingleInstanceTest::theFirstIsTheFirst() {
    startFirst();
    QVERIFY(_tokens.isEmpty());
    QVERIFY(_bus->connect(u"desktop"_s).interface()->isServiceRegistered(service));
}

void SingleInstanceTest::theSecondCallsTheFirst_data() {
    QTest::addColumn<QString>("token");
    QTest::newRow("with the desktop's token") << u"token-1"_s;
    QTest::newRow("without one") << u""_s;
}

void SingleInstanceTest::theSecondCallsTheFirst() {
    QFETCH(QString, token);
    startFirst();
    SingleInstance second(_bus->connect(u"second"_s), lockPath());
    QCOMPARE(second.begin(token), SingleInstance::Role::Second);
    QTRY_COMPARE(_tokens, QStringList{token});
}

void SingleInstanceTest::desktopsCanCallIt_data() {
    QTest::addColumn<QString>("method");
    QTest::addColumn<QVariantList>("arguments");
    const QVariantMap data{{u"desktop-startup-id"_s, u"old"_s}};
    QTest::newRow("Activate") << u"Activate"_s << QVariantList{data};
    QTest::newRow("Open") << u"Open"_s << QVariantList{QStringList{u"file:///a"_s}, data};
    QTest::newRow("ActivateAction")
        << u"ActivateAction"_s << QVariantList{u"new-window"_s, QVariantList{}, data};
}

void SingleInstanceTest::desktopsCanCallIt() {
    QFETCH(QString, method);
    QFETCH(QVariantList, arguments);
    startFirst();
    const auto reply = _bus->connect(u"desktop"_s).call(call(method, arguments));
    QCOMPARE(reply.type(), QDBusMessage::ReplyMessage);
    QTRY_COMPARE(_tokens, QStringList{u"old"_s});
}

void SingleInstanceTest::aFloodOfCallsIsAFewActivations() {
    constexpr int calls = 500;
    startFirst();
    const auto desktop = _bus->connect(u"desktop"_s);
    for (int i = 1; i <= calls; ++i) {
        const QVariantMap data{{u"activation-token"_s, QString::number(i)}};
        auto reply = desktop.asyncCall(call(u"Activate"_s, {data}));
        if (i % 50 == 0) {
            reply.waitForFinished(); // of many more without an answer the bus refuses some
            QVERIFY2(!reply.isError(), qPrintable(reply.error().message()));
        }
    }
    QTRY_VERIFY(!_tokens.isEmpty() && _tokens.constLast() == QString::number(calls));
    QVERIFY2(_tokens.size() < calls / 10, qPrintable(QString::number(_tokens.size())));
}

void SingleInstanceTest::theNameIsFreeAfterTheEnd() {
    startFirst();
    endFirst();
    SingleInstance second(_bus->connect(u"second"_s), lockPath());
    QCOMPARE(second.begin({}), SingleInstance::Role::First);
}

void SingleInstanceTest::aPlaceThatIsLeftIsTaken() {
    startFirst();
    QMetaObject::invokeMethod(
        _first, [this] { _first->leave(); }, Qt::BlockingQueuedConnection);
    SingleInstance second(_bus->connect(u"second"_s), lockPath());
    QCOMPARE(second.begin({}), SingleInstance::Role::First);
    endFirst();
    QVERIFY(_bus->connect(u"desktop"_s).interface()->isServiceRegistered(service));
    QVERIFY(_tokens.isEmpty());
}

/// As when the program is started while the one that is ending takes the link down.
void SingleInstanceTest::aCallThatComesAsThePlaceIsLeftIsRefused() {
    startFirst();
    QSemaphore isBusy;
    QSemaphore mayLeave;
    QMetaObject::invokeMethod(_first, [&] {
        isBusy.release();
        mayLeave.acquire();
        _first->leave();
    });
    isBusy.acquire();
    const auto desktop = _bus->connect(u"desktop"_s);
    const QDBusPendingCall activation = desktop.asyncCall(call(u"Activate"_s, {QVariantMap{}}));
    // What it answers by itself, it answers in the order of the calls.
    const auto ping = QDBusMessage::createMethodCall(service, u"/org/quorvel/Quorvel"_s,
                                                     u"org.freedesktop.DBus.Peer"_s, u"Ping"_s);
    QCOMPARE(desktop.call(ping).type(), QDBusMessage::ReplyMessage);
    mayLeave.release();
    QDBusPendingCallWatcher watcher(activation);
    watcher.waitForFinished();
    QVERIFY(watcher.isError());
    QVERIFY(_tokens.isEmpty());
}

void SingleInstanceTest::aPlaceThatBecomesFreeIsTaken() {
    auto owner = _bus->connect(u"first"_s);
    QVERIFY(owner.registerService(service));
    const std::unique_ptr<QThread> end(QThread::create([&owner] {
        QThread::msleep(200);
        owner.unregisterService(service);
    }));
    end->start();
    SingleInstance second(_bus->connect(u"second"_s), lockPath());
    QCOMPARE(second.begin({}, 20s), SingleInstance::Role::First);
    QVERIFY(end->wait());
}

void SingleInstanceTest::anOwnerThatHangsIsNotWaitedForLong() {
    startFirst();
    QSemaphore isHanging;
    QSemaphore mayGoOn;
    QMetaObject::invokeMethod(_first, [&] {
        isHanging.release();
        mayGoOn.acquire();
    });
    isHanging.acquire();
    // The semaphores stay until the other thread has done with them.
    const auto letGo = qScopeGuard([&] {
        mayGoOn.release();
        QMetaObject::invokeMethod(
            _first, [] {}, Qt::BlockingQueuedConnection);
    });
    QElapsedTimer time;
    time.start();
    {
        SingleInstance second(_bus->connect(u"second"_s), lockPath());
        QCOMPARE(second.begin({}, 300ms), SingleInstance::Role::Unanswered);
    }
    QVERIFY(time.elapsed() >= 300);
    QVERIFY2(time.elapsed() < 10'000, qPrintable(QString::number(time.elapsed())));
}

void SingleInstanceTest::anOwnerThatKnowsNothingOfThisIsNotWaitedForLong() {
    QVERIFY(_bus->connect(u"first"_s).registerService(service));
    SingleInstance second(_bus->connect(u"second"_s), lockPath());
    QCOMPARE(second.begin({}, 200ms), SingleInstance::Role::Unanswered);
}

void SingleInstanceTest::withoutABusItIsTheFirst() {
    SingleInstance instance(QDBusConnection(u"none"_s), lockPath());
    QCOMPARE(instance.begin({}), SingleInstance::Role::First);
}

void SingleInstanceTest::withoutABusTheSecondKnowsTheFirst_data() {
    QTest::addColumn<bool>("hasFirstABus");
    QTest::newRow("which has none either") << false;
    QTest::newRow("which has one") << true;
}

void SingleInstanceTest::withoutABusTheSecondKnowsTheFirst() {
    QFETCH(const bool, hasFirstABus);
    std::optional<SingleInstance> other;
    if (hasFirstABus) {
        startFirst();
    } else {
        other.emplace(QDBusConnection(u"none"_s), lockPath());
        QCOMPARE(other->begin({}), SingleInstance::Role::First);
    }
    SingleInstance second(QDBusConnection(u"none"_s), lockPath());
    QCOMPARE(second.begin({}, 200ms), SingleInstance::Role::Unanswered);
    other.reset();
    endFirst();
    QCOMPARE(second.begin({}), SingleInstance::Role::First);
}

void SingleInstanceTest::withABusTheSecondKnowsAFirstWithout() {
    SingleInstance first(QDBusConnection(u"none"_s), lockPath());
    QCOMPARE(first.begin({}), SingleInstance::Role::First);
    SingleInstance second(_bus->connect(u"second"_s), lockPath());
    QCOMPARE(second.begin({}, 200ms), SingleInstance::Role::Unanswered);
}

void SingleInstanceTest::withoutARuntimeDirectoryItIsTheFirst() {
    SingleInstance first(QDBusConnection(u"none"_s), QString());
    QCOMPARE(first.begin({}), SingleInstance::Role::First);
}

static const RegisteredTest<SingleInstanceTest> registered;
#include "SingleInstanceTest.moc"
