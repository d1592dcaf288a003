#include "app/KeyingRecord.h"

#include "serial/ORSSerialPortManager.h"
#include "tests/keyer/EngineBench.h"
#include "tests/support/LogKeeper.h"
#include "tests/support/RegisteredTest.h"
#include "tests/support/SystemCallFaults.h"

#include <QDir>
#include <QFile>
#include <QSignalBlocker>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <cerrno>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr auto greeting = "13 13 13 13 00 04 55 00 02 00 0b 0f ";

} // namespace

class KeyingRecordTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup();

    void itIsThereWhileTuneIsOn();
    void itIsThereWhileTextIsSent();
    void itIsThereWhileTheKeyerIsBusyByItself();
    void anOrderlyDisconnectionLeavesNothing();
    void aConnectionSaysNothingMoreThanEver();
    void theFirstConnectionAfterADeathKeysUp_data();
    void theFirstConnectionAfterADeathKeysUp();
    void aDeathThatNoConnectionFollowedIsRememberedOn();
    void aTuneOfALostKeyerEndsWhenItIsBack();
    void aTuneOfAPortThatGoesIsOwedThoughItTookTheKeyUp();
    void aTuneBehindALineThatTakesNothingIsOwed();
    void textForALostKeyerIsNotOwed();
    void anEndWithoutTheSignalsOfTheEngineLeavesNothing();
    void aPlaceThatCannotBeWrittenIsReported();
    void theStateDirectoryIsWhereItIs();

  private:
    void restart();
    void die(const QByteArray& word);
    void tune(bool isOn);
    [[nodiscard]] QByteArray kept();

    std::optional<QTemporaryDir> _directory;
    QString _path;
    std::optional<EngineBench> _bench;
    std::optional<KeyingRecord> _record;
};

void KeyingRecordTest::init() {
    _directory.emplace();
    _path = _directory->filePath(u"state/quorvel/keying"_s);
    restart();
}

void KeyingRecordTest::cleanup() {
    _record.reset();
    _bench.reset();
    _directory.reset();
}

void KeyingRecordTest::restart() {
    _record.reset();
    _bench.reset();
    _bench.emplace();
    _record.emplace(_bench->engine(), _path);
}

/// The next one finds what a program that died in that state has left.
void KeyingRecordTest::die(const QByteArray& word) {
    _record.reset();
    QVERIFY(QDir().mkpath(_directory->filePath(u"state/quorvel"_s)));
    QFile file(_path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(word);
    file.close();
    restart();
}

void KeyingRecordTest::tune(bool isOn) {
    _bench->engine().setTuneState(isOn ? 1 : 0);
    QObject sender;
    sender.setProperty("state", isOn ? 1 : 0);
    _bench->engine().tune(&sender);
}

QByteArray KeyingRecordTest::kept() {
    QFile file(_path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void KeyingRecordTest::itIsThereWhileTuneIsOn() {
    QVERIFY(_bench->connect());
    QCOMPARE(kept(), "");
    tune(true);
    QCOMPARE(kept(), "tune\n");
    tune(false);
    QVERIFY(!QFile::exists(_path));
}

void KeyingRecordTest::itIsThereWhileTextIsSent() {
    QVERIFY(_bench->connect());
    _bench->type(u"E"_s);
    QCOMPARE(kept(), "sending\n");
    _bench->receive({0xC4});
    _bench->receive({'E'});
    QCOMPARE(kept(), "sending\n");
    _bench->receive({0xC0});
    QVERIFY(!QFile::exists(_path));
}

void KeyingRecordTest::itIsThereWhileTheKeyerIsBusyByItself() {
    QVERIFY(_bench->connect());
    _bench->receive({0xC4});
    QCOMPARE(kept(), "sending\n");
    tune(true);
    QCOMPARE(kept(), "tune\n");
    tune(false);
    QCOMPARE(kept(), "sending\n");
    _bench->receive({0xC0});
    QVERIFY(!QFile::exists(_path));
}

void KeyingRecordTest::anOrderlyDisconnectionLeavesNothing() {
    QVERIFY(_bench->connect());
    _bench->type(u"EEE"_s);
    QVERIFY(_bench->engine().disconnect(nullptr));
    QVERIFY(!QFile::exists(_path));
}

void KeyingRecordTest::aConnectionSaysNothingMoreThanEver() {
    const QSignalSpy notices(&*_record, &KeyingRecord::keyLetGo);
    QVERIFY(_bench->engine().connect(nullptr));
    const auto written = _bench->written();
    QVERIFY2(written.startsWith(greeting) && written.endsWith(" 07"), written);
    QCOMPARE(notices.size(), 0);
}

void KeyingRecordTest::theFirstConnectionAfterADeathKeysUp_data() {
    QTest::addColumn<QByteArray>("word");
    QTest::addColumn<QString>("said");
    QTest::newRow("in tune") << QByteArray("tune\n") << u"ended while tune was on"_s;
    QTest::newRow("in the midst of text") << QByteArray("sending\n") << u"while it was sending"_s;
    QTest::newRow("with an empty record") << QByteArray() << u"tune"_s;
    QTest::newRow("with a record of another version") << QByteArray("high\n") << u"tune"_s;
}

void KeyingRecordTest::theFirstConnectionAfterADeathKeysUp() {
    QFETCH(QByteArray, word);
    QFETCH(QString, said);
    die(word);
    const QSignalSpy notices(&*_record, &KeyingRecord::keyLetGo);
    QVERIFY(_bench->engine().connect(nullptr));
    const auto written = _bench->written();
    QVERIFY2(written.startsWith(greeting) && written.endsWith(" 07 0b 00"), written);
    QCOMPARE(notices.size(), 1);
    QVERIFY(notices.first().first().toString().contains(said));
    QVERIFY(!QFile::exists(_path));

    QVERIFY(_bench->engine().disconnect(nullptr));
    static_cast<void>(_bench->written());
    QVERIFY(_bench->engine().connect(nullptr));
    QVERIFY(_bench->written().endsWith(" 07"));
    QCOMPARE(notices.size(), 1);
}

void KeyingRecordTest::aDeathThatNoConnectionFollowedIsRememberedOn() {
    die("tune\n");
    _record->close();
    restart();
    QVERIFY(_bench->engine().connect(nullptr));
    QVERIFY(_bench->written().endsWith(" 07 0b 00"));
}

void KeyingRecordTest::aTuneOfALostKeyerEndsWhenItIsBack() {
    static_cast<void>(ORSSerialPortManager::sharedSerialPortManager());
    const QSignalSpy notices(&*_record, &KeyingRecord::keyLetGo);
    QVERIFY(_bench->connect());
    tune(true);
    static_cast<void>(_bench->written());
    _bench->platform().devices().unplug(_bench->device());
    QVERIFY(!_bench->engine().isConnected());
    tune(false);
    _record->close();
    QCOMPARE(kept(), "tune of a lost keyer\n");
    _bench->platform().devices().plug(EngineBench::portName, _bench->line().path());
    QVERIFY(_bench->engine().connect(nullptr));
    QVERIFY(_bench->written().endsWith(" 07 0b 00"));
    QCOMPARE(notices.size(), 1);
    QVERIFY(notices.first().first().toString().contains(u"unplugged"));
    QVERIFY(!QFile::exists(_path));
}

/// An adapter that is being pulled may take bytes that it never sends.
void KeyingRecordTest::aTuneOfAPortThatGoesIsOwedThoughItTookTheKeyUp() {
    static_cast<void>(ORSSerialPortManager::sharedSerialPortManager());
    auto& engine = _bench->engine();
    QVERIFY(_bench->connect());
    tune(true);
    static_cast<void>(_bench->written());
    QObject::connect(&engine, &WinKeyerUsb::silenced, &*_record,
                     [&engine] { engine.setTuneState(0); });
    _bench->platform().devices().unplug(_bench->device());
    QVERIFY(_bench->written().startsWith("0b 00 0a 00 03"));
    QCOMPARE(engine.tuneState(), 0);
    QCOMPARE(kept(), "tune of a lost keyer\n");
    _bench->platform().devices().plug(EngineBench::portName, _bench->line().path());
    QVERIFY(engine.connect(nullptr));
    QVERIFY(_bench->written().endsWith(" 07 0b 00"));
    QVERIFY(!QFile::exists(_path));
}

/// Nobody can have heard the key up that the line had no room for.
void KeyingRecordTest::aTuneBehindALineThatTakesNothingIsOwed() {
    QVERIFY(_bench->connect());
    tune(true);
    const QSignalSpy silenced(&_bench->engine(), &WinKeyerUsb::silenced);
    SystemCallFaults faults;
    faults.fail(SystemCall::Write, EAGAIN);
    faults.fail(SystemCall::Poll, EAGAIN);
    _bench->engine().silence();
    QCOMPARE(silenced.size(), 0);
    static_cast<void>(_bench->engine().disconnect(nullptr));
    _record->close();
    QCOMPARE(kept(), "tune of a lost keyer\n");
}

void KeyingRecordTest::textForALostKeyerIsNotOwed() {
    static_cast<void>(ORSSerialPortManager::sharedSerialPortManager());
    QVERIFY(_bench->connect());
    _bench->type(u"EEE"_s);
    _bench->platform().devices().unplug(_bench->device());
    QVERIFY(!QFile::exists(_path));
}

void KeyingRecordTest::anEndWithoutTheSignalsOfTheEngineLeavesNothing() {
    QVERIFY(_bench->connect());
    tune(true);
    const QSignalBlocker silence(_bench->engine());
    tune(false);
    QVERIFY(_bench->engine().disconnect(nullptr));
    QCOMPARE(kept(), "tune\n");
    _record->close();
    QVERIFY(!QFile::exists(_path));
}

void KeyingRecordTest::aPlaceThatCannotBeWrittenIsReported() {
    _record.reset();
    _record.emplace(_bench->engine(), u"/proc/nowhere/keying"_s);
    QVERIFY(_bench->connect());
    const LogKeeper log;
    tune(true);
    tune(false);
    QCOMPARE(log.lines().size(), 1);
    QVERIFY(log.lines().first().contains(u"/proc/nowhere/keying cannot be written"));
}

void KeyingRecordTest::theStateDirectoryIsWhereItIs() {
    qputenv("XDG_STATE_HOME", "/somewhere/state");
    QCOMPARE(KeyingRecord::standardPath(), u"/somewhere/state/quorvel/keying"_s);
    // A relative one counts as none.
    qputenv("XDG_STATE_HOME", "state");
    QCOMPARE(KeyingRecord::standardPath(), QDir::homePath() + u"/.local/state/quorvel/keying"_s);
    qunsetenv("XDG_STATE_HOME");
    QCOMPARE(KeyingRecord::standardPath(), QDir::homePath() + u"/.local/state/quorvel/keying"_s);
}

static const RegisteredTest<KeyingRecordTest> registered;
#include "KeyingRecordTest.moc"
