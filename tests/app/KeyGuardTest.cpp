#include "app/KeyGuard.h"

#include "serial/ExclusiveDevice.h"
#include "tests/keyer/EngineBench.h"
#include "tests/support/LogKeeper.h"
#include "tests/support/RegisteredTest.h"
#include "tests/support/SystemCallFaults.h"

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <cerrno>
#include <chrono>
#include <csignal>
#include <optional>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

const auto program = QStringLiteral(QUORVEL_KEY_GUARD);
const auto lastWords = QByteArray(15, 0x13) + QByteArray::fromHex("0b000a0003");

/// A guard that does nothing but write down, in `notes`, what it is told.
bool writeListener(const QString& path, const QString& notes) {
    QFile file(path);
    const auto text = uR"(#!/usr/bin/python3 -IS
import os, sys
with open("%1", "ab", buffering=0) as notes:
    while heard := os.read(int(sys.argv[2]), 64):
        notes.write(heard)
)"_s.arg(notes)
                          .toUtf8();
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size() &&
           file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

QByteArray contentOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class KeyGuardTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup();

    void itIsThereWhileThereIsALink();
    void thePortIsFreeWhenTheLinkIsDown();
    void aRemovedPortEndsIt();
    void itIsEndedForTheSleepAndBackAfterIt();
    void aLinkThatIsThereAlreadyIsGuarded();
    void aLinkThatCannotBeTakenDownKeepsAGuard();
    void aTuneWithSignsOfLifeIsLeftAlone();
    void aTuneThatEndsBeforeItIsGuardedNeedsNoSign();
    void aMainThreadThatHangsInTuneLosesTheKey();
    void aGuardThatSomethingEndedIsReplacedOnce();
    void aReplacementKnowsOfAMemoryLoad();
    void withoutItsProgramTheLinkStands();

  private:
    /// Puts the key down or up, as the switch in the window does.
    void tune(bool isOn);
    [[nodiscard]] bool hasGuard() { return _guard->processIdentifier() != 0; }

    std::optional<EngineBench> _bench;
    std::optional<KeyGuard> _guard;
};

void KeyGuardTest::init() {
    _bench.emplace();
    _guard.emplace(_bench->engine(), program);
}

void KeyGuardTest::cleanup() {
    _guard.reset();
    _bench.reset();
}

void KeyGuardTest::tune(bool isOn) {
    _bench->engine().setTuneState(isOn ? 1 : 0);
    QObject sender;
    sender.setProperty("state", isOn ? 1 : 0);
    _bench->engine().tune(&sender);
    QCOMPARE(_bench->written(), isOn ? "0b 01" : "0b 00");
}

void KeyGuardTest::itIsThereWhileThereIsALink() {
    QVERIFY(!hasGuard());
    QVERIFY(_bench->connect());
    QVERIFY(hasGuard());
    const auto process = _guard->processIdentifier();
    QVERIFY(_bench->engine().disconnect(nullptr));
    QVERIFY(!hasGuard());
    QCOMPARE(::kill(process, 0), -1);
    QCOMPARE(_bench->written(), "00 03");
    QVERIFY(_bench->connect());
    QVERIFY(hasGuard());
}

void KeyGuardTest::thePortIsFreeWhenTheLinkIsDown() {
    QVERIFY(_bench->connect());
    bool isGuardedAtTheEnd = true;
    QObject::connect(&_bench->port(), &ORSSerialPort::willClose, &*_guard,
                     [&] { isGuardedAtTheEnd = hasGuard(); });
    QVERIFY(_bench->engine().disconnect(nullptr));
    QVERIFY(!isGuardedAtTheEnd);
    QVERIFY(ExclusiveDevice::open(_bench->line().path()).isValid());
}

void KeyGuardTest::aRemovedPortEndsIt() {
    QVERIFY(_bench->connect());
    const auto process = _guard->processIdentifier();
    _bench->line().hangUp();
    _bench->platform().devices().unplug(_bench->device());
    QVERIFY(!hasGuard());
    QCOMPARE(::kill(process, 0), -1);
}

void KeyGuardTest::itIsEndedForTheSleepAndBackAfterIt() {
    QVERIFY(_bench->connect());
    _bench->platform().notifications().post(NSWorkspaceWillSleepNotification, nullptr);
    QVERIFY(!_bench->port().isOpen());
    QVERIFY(!hasGuard());
    _bench->platform().notifications().post(NSWorkspaceDidWakeNotification, nullptr);
    QVERIFY(_bench->port().isOpen());
    QVERIFY(hasGuard());
}

void KeyGuardTest::aLinkThatIsThereAlreadyIsGuarded() {
    _guard.reset();
    QVERIFY(_bench->connect());
    _guard.emplace(_bench->engine(), program);
    QVERIFY(hasGuard());
}

void KeyGuardTest::aLinkThatCannotBeTakenDownKeepsAGuard() {
    QVERIFY(_bench->connect());
    SystemCallFaults faults;
    // The first is that of the channel to the guard.
    faults.fail(SystemCall::Close, EIO, 2, 2);
    QVERIFY(!_bench->port().close());
    QVERIFY(_bench->port().isOpen());
    QVERIFY(hasGuard());
}

/// Real time passes for the guard, and as much of the application's.
void KeyGuardTest::aTuneWithSignsOfLifeIsLeftAlone() {
    QVERIFY(_bench->connect());
    tune(true);
    QSignalSpy spy(&*_guard, &KeyGuard::hasLetGo);
    for (auto passed = std::chrono::milliseconds::zero(); passed < silenceLimit + 1s;
         passed += 100ms) {
        _bench->clock().advance(100ms);
        QVERIFY(!spy.wait(100));
    }
    QCOMPARE(_bench->written(), "");
    QVERIFY(hasGuard());
}

void KeyGuardTest::aTuneThatEndsBeforeItIsGuardedNeedsNoSign() {
    QVERIFY(_bench->connect());
    tune(true);
    tune(false);
    _bench->clock().advance(0s);
    QSignalSpy spy(&*_guard, &KeyGuard::hasLetGo);
    QVERIFY(!spy.wait(static_cast<int>(silenceLimit.count()) + 1000));
    QCOMPARE(_bench->written(), "");
}

void KeyGuardTest::aMainThreadThatHangsInTuneLosesTheKey() {
    QVERIFY(_bench->connect());
    tune(true);
    QSignalSpy spy(&*_guard, &KeyGuard::hasLetGo);
    QVERIFY(spy.wait(10000));
    QVERIFY(spy.first().first().toString().contains(u"3 s"));
    QCOMPARE(_bench->written(), lastWords.toHex(' '));
    QCOMPARE(_bench->engine().tuneState(), 0);
    QVERIFY(!hasGuard());
}

void KeyGuardTest::aGuardThatSomethingEndedIsReplacedOnce() {
    QVERIFY(_bench->connect());
    QSignalSpy complaints(&*_guard, &KeyGuard::hasNoGuard);
    const auto first = _guard->processIdentifier();
    ::kill(first, SIGKILL);
    QTRY_VERIFY(hasGuard() && _guard->processIdentifier() != first);
    QCOMPARE(complaints.size(), 0);
    ::kill(_guard->processIdentifier(), SIGKILL);
    QTRY_COMPARE(complaints.size(), 1);
    QVERIFY(!hasGuard());
    QCOMPARE(_bench->written(), "");
    QVERIFY(_bench->engine().disconnect(nullptr));
    QVERIFY(_bench->connect());
    QVERIFY(hasGuard());
}

void KeyGuardTest::aReplacementKnowsOfAMemoryLoad() {
    const QTemporaryDir directory;
    const auto notes = directory.filePath(u"heard"_s);
    const auto listener = directory.filePath(u"listener"_s);
    QVERIFY(writeListener(listener, notes));
    _guard.emplace(_bench->engine(), listener);
    QVERIFY(_bench->connect());
    QVERIFY(_bench->engine().writeEeprom(nullptr));
    QTRY_COMPARE_WITH_TIMEOUT(contentOf(notes), "M", 30000);
    const auto first = _guard->processIdentifier();
    ::kill(first, SIGKILL);
    QTRY_VERIFY(hasGuard() && _guard->processIdentifier() != first);
    QTRY_COMPARE_WITH_TIMEOUT(contentOf(notes), "MM", 30000);
    _bench->clock().advance(3s);
    QTRY_COMPARE_WITH_TIMEOUT(contentOf(notes), "MMm", 30000);
}

void KeyGuardTest::withoutItsProgramTheLinkStands() {
    _guard.emplace(_bench->engine(), u"/nowhere/guard"_s);
    QSignalSpy complaints(&*_guard, &KeyGuard::hasNoGuard);
    const LogKeeper log;
    QVERIFY(_bench->connect());
    QVERIFY(!hasGuard());
    QCOMPARE(complaints.size(), 1);
    QCOMPARE(
        log.lines(),
        QStringList{u"The key guard /nowhere/guard does not start: No such file or directory"_s});
    tune(true);
    tune(false);
}

static const RegisteredTest<KeyGuardTest> registered;
#include "KeyGuardTest.moc"
