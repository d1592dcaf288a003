#include "keyer/KeyerActivity.h"
#include "tests/keyer/EngineBench.h"
#include "tests/support/RegisteredTest.h"

#include <QSignalSpy>
#include <QTest>

#include <optional>

using namespace Qt::StringLiterals;

class KeyerActivityTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init() { _bench.emplace(); }
    void cleanup() { _bench.reset(); }

    void aStatusByteTellsTheActivity_data();
    void aStatusByteTellsTheActivity();
    void aKeyerIsSilentUntilItsFirstByte();
    void anythingThatComesEndsTheSilence();
    void aNewConnectionKnowsNothingOfTheOneBefore();
    void pushButtonsAreNoActivity();
    void aPortThatGoesEndsTheActivity();
    void changesAreAnnouncedOnce();

  private:
    WinKeyerUsb& engine() { return _bench->engine(); }

    std::optional<EngineBench> _bench;
};

void KeyerActivityTest::aStatusByteTellsTheActivity_data() {
    QTest::addColumn<int>("status");
    QTest::addColumn<bool>("isPaused");
    QTest::addColumn<KeyerActivity>("activity");
    QTest::newRow("nothing is going on") << 0xC0 << false << KeyerActivity::Idle;
    QTest::newRow("it sends") << 0xC4 << false << KeyerActivity::Sending;
    QTest::newRow("it waits between two texts") << 0xD0 << false << KeyerActivity::Idle;
    QTest::newRow("the operator pauses it") << 0xC4 << true << KeyerActivity::Paused;
    QTest::newRow("the paddle is pressed") << 0xC6 << false << KeyerActivity::BreakIn;
    QTest::newRow("the paddle counts more than a pause") << 0xC2 << true << KeyerActivity::BreakIn;
    QTest::newRow("the buffer fills, which pauses") << 0xC5 << true << KeyerActivity::BufferFull;
}

void KeyerActivityTest::aStatusByteTellsTheActivity() {
    QFETCH(int, status);
    QFETCH(bool, isPaused);
    QTEST(activityOf(static_cast<std::uint8_t>(status), isPaused), "activity");
}

void KeyerActivityTest::aKeyerIsSilentUntilItsFirstByte() {
    QCOMPARE(engine().activity(), KeyerActivity::NotConnected);
    QVERIFY(engine().serialPortName().isNull());
    QVERIFY(_bench->connect());
    QCOMPARE(engine().activity(), KeyerActivity::Silent);
    QCOMPARE(engine().serialPortName(), EngineBench::portName);
    _bench->receive({0xC4});
    QCOMPARE(engine().activity(), KeyerActivity::Sending);
    engine().disconnect(nullptr);
    QCOMPARE(engine().activity(), KeyerActivity::NotConnected);
    QVERIFY(engine().serialPortName().isNull());
}

void KeyerActivityTest::anythingThatComesEndsTheSilence() {
    QVERIFY(_bench->connect());
    _bench->receive({23});
    QCOMPARE(engine().activity(), KeyerActivity::Idle);
}

void KeyerActivityTest::aNewConnectionKnowsNothingOfTheOneBefore() {
    QVERIFY(_bench->connect());
    _bench->receive({0xC4});
    engine().disconnect(nullptr);
    QVERIFY(_bench->connect());
    QCOMPARE(engine().activity(), KeyerActivity::Silent);
    _bench->receive({23});
    QCOMPARE(engine().activity(), KeyerActivity::Idle);
}

void KeyerActivityTest::pushButtonsAreNoActivity() {
    QVERIFY(_bench->connect());
    _bench->receive({0xC4});
    _bench->receive({0xCA});
    QCOMPARE(engine().activity(), KeyerActivity::Sending);
}

void KeyerActivityTest::aPortThatGoesEndsTheActivity() {
    QVERIFY(_bench->connect());
    const QSignalSpy announcements(&engine(), &WinKeyerUsb::activityChanged);
    engine().serialPortWasRemovedFromSystem(_bench->port());
    QCOMPARE(engine().activity(), KeyerActivity::NotConnected);
    QCOMPARE(announcements.count(), 1);
}

void KeyerActivityTest::changesAreAnnouncedOnce() {
    const QSignalSpy announcements(&engine(), &WinKeyerUsb::activityChanged);
    QVERIFY(_bench->connect());
    QCOMPARE(announcements.count(), 1);
    _bench->receive({0xC0});
    QCOMPARE(announcements.count(), 2);
    _bench->receive({0xC0});
    QCOMPARE(announcements.count(), 2);
    engine().setPauseState(1);
    QCOMPARE(announcements.count(), 3);
    engine().disconnect(nullptr);
    QCOMPARE(announcements.count(), 4);
}

static const RegisteredTest<KeyerActivityTest> registered;
#include "KeyerActivityTest.moc"
