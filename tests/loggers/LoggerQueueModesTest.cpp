#include "keyer/GeneralSettings.h"
#include "tests/loggers/LoggerQueueFixture.h"
#include "tests/support/RegisteredTest.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// What loggers ask for besides text.
class LoggerQueueModesTest : public QObject, private LoggerQueueFixture {
    Q_OBJECT

  private Q_SLOTS:
    void init() { open(); }
    void cleanup() { close(); }

    void speedIsChosen();
    void speedSignsTakenBackAreForgotten();
    void speedSignsNotTakenBackHold();
    void anAbortForgetsTheSpeedSigns();
    void tuneLetsGoAfterItsSeconds();
    void tuneLetsGoOnAbort();
    void tuneLetsGoWithTheQueue();
    void tuneWaitsForTheTextBeforeIt();
    void tuneIsNotTakenBehindTheOperatorsText();
    void aTuneThatTheOperatorEndsIsOver();
    void whileTheOperatorTunesNothingIsTaken();
    void parametersAreToldAndTakenBack();
    void nothingIsStored();
    void aFloodIsBounded();
    void theBeaconRepeatsNoLoggersText();
    void severalAheadAreKeyedWhenTheLastEchoHasCome();
    void lostEchoesAreMadeUpForByTheKeyersSilence();
    void whileNobodyWatchesNothingIsTaken();
    void whatIsSentEndsWhenNobodyWatchesAnyMore();
    void tuneLetsGoWhenNobodyWatchesAnyMore();
};

void LoggerQueueModesTest::speedIsChosen() {
    take("\x1B"
         "230");
    QCOMPARE(_bench->written(), "02 1e");
    QCOMPARE(_speed->wpm(), 30);
    take("\x1B"
         "0");
    QCOMPARE(_bench->written(), "02 00");
    _speed->choose(22);
    take("\x1B"
         "0"); // the operator's stays
    QCOMPARE(_bench->written(), "02 16");
}

void LoggerQueueModesTest::speedSignsTakenBackAreForgotten() {
    take("a++b--c");
    QCOMPARE(_bench->written(), "41");
    QCOMPARE(echo(), "1c 1d 42");
    QCOMPARE(echo(), "1c 19 43");
    QCOMPARE(echo(), "1e");
    QVERIFY(!_speed->wpm());
}

void LoggerQueueModesTest::speedSignsNotTakenBackHold() {
    take("+a^");
    QCOMPARE(_bench->written(), "1c 1b 41");
    QCOMPARE(echo(), "02 1b");
    QCOMPARE(_speed->wpm(), 27);
}

void LoggerQueueModesTest::anAbortForgetsTheSpeedSigns() {
    take("+ab");
    static_cast<void>(_bench->written());
    take("\x1B"
         "4");
    QCOMPARE(_bench->written(), "0a 1e");
    take("c");
    _bench->receive({0xC0});
    QCOMPARE(echo(), "43");
}

void LoggerQueueModesTest::tuneLetsGoAfterItsSeconds() {
    take("\x1B"
         "c5");
    QCOMPARE(_bench->written(), "0b 01");
    QCOMPARE(engine().tuneState(), 1);
    _bench->clock().advance(4999ms);
    QCOMPARE(_bench->written(), "");
    _bench->clock().advance(1ms);
    QCOMPARE(_bench->written(), "0b 00");
    QCOMPARE(engine().tuneState(), 0);
    _bench->clock().advance(1min);
    QCOMPARE(_bench->written(), "");
}

void LoggerQueueModesTest::tuneLetsGoOnAbort() {
    take("\x1B"
         "c10");
    static_cast<void>(_bench->written());
    take("\x1B"
         "4");
    QCOMPARE(_bench->written(), "0b 00");
    QCOMPARE(engine().tuneState(), 0);
    _bench->clock().advance(1min);
    QCOMPARE(_bench->written(), "");
}

void LoggerQueueModesTest::tuneLetsGoWithTheQueue() {
    take("\x1B"
         "c10");
    static_cast<void>(_bench->written());
    _queue.reset();
    QCOMPARE(_bench->written(), "0b 00");
    QCOMPARE(engine().tuneState(), 0);
}

void LoggerQueueModesTest::tuneWaitsForTheTextBeforeIt() {
    take("a");
    take("\x1B"
         "c1");
    take("b");
    _bench->receive({0xC4});
    QCOMPARE(_bench->written(), "41");
    QCOMPARE(echo(), "");
    _bench->receive({0xC0});
    QCOMPARE(_bench->written(), "0b 01");
    _bench->clock().advance(1s);
    QVERIFY(_bench->written().startsWith("0b 00"));
    _bench->receive({0xC0});
    QCOMPARE(engine().keyboardBuffer(), u"AB"_s);
}

void LoggerQueueModesTest::tuneIsNotTakenBehindTheOperatorsText() {
    _bench->type(u"A"_s);
    take("\x1B"
         "c5");
    static_cast<void>(_bench->written());
    echo();
    _bench->receive({0xC0});
    QCOMPARE(_bench->written(), "");
    QCOMPARE(engine().tuneState(), 0);
}

void LoggerQueueModesTest::aTuneThatTheOperatorEndsIsOver() {
    take("\x1B"
         "c10");
    engine().setTuneState(0); // as the operator's switch does
    engine().keyUp();
    QCOMPARE(_bench->written(), "0b 01 0b 00");
    engine().setTuneState(1); // the operator's own
    _bench->clock().advance(1min);
    QCOMPARE(engine().tuneState(), 1);
    QCOMPARE(_bench->written(), "");
}

void LoggerQueueModesTest::whileTheOperatorTunesNothingIsTaken() {
    engine().setTuneState(1);
    take("e^");
    take("\x1B"
         "c5");
    QCOMPARE(_bench->written(), "");
    QCOMPARE(replies(), QStringList(u"4001 break"_s));
    _bench->clock().advance(1min);
    QCOMPARE(engine().tuneState(), 1);
}

void LoggerQueueModesTest::parametersAreToldAndTakenBack() {
    take("\x1B"
         "3800");
    take("\x1B"
         "3100");
    take("\x1B"
         "7-10");
    take("\x1B"
         "750");
    take("\x1B"
         "d25");
    QCOMPARE(_bench->written(), "01 85 01 8a 03 28 03 5a 04 02 0a");
    take("\x1B"
         "0");
    QVERIFY(_bench->written().startsWith("0f "));
    take("\x1B"
         "0"); // with nothing to take back
    QCOMPARE(_bench->written(), "");
}

void LoggerQueueModesTest::nothingIsStored() {
    QVERIFY(_bench->settings().synchronize());
    int changes = 0;
    const QObject listener;
    QObject::connect(&_bench->settings(), &SettingsStore::changed, &listener,
                     [&changes] { ++changes; });
    for (int letter = 0; letter < 256; ++letter) {
        for (const auto* value : {"", "1", "28", "600", "x"}) {
            take("\x1B" + QByteArray(1, static_cast<char>(letter)) + value);
            _bench->clock().advance(1s);
        }
    }
    QCOMPARE(changes, 0);
}

void LoggerQueueModesTest::aFloodIsBounded() {
    for (int i = 0; i < 10'000; ++i) {
        take("e^");
        take("\x1Bhx");
    }
    QVERIFY(replies().size() >= 9'900);
    for (int i = 0; i < 1'000; ++i) {
        take("\x1B"
             "2" +
             QByteArray::number(10 + i % 40));
        take("\x1B"
             "7" +
             QByteArray::number(i % 40));
    }
    QVERIFY(_bench->written().size() < 3 * 150);
    engine().stopMessageSending(nullptr);
    static_cast<void>(_bench->written());
    _bench->receive({0xC0});
    QCOMPARE(_bench->written(), "");
}

void LoggerQueueModesTest::theBeaconRepeatsNoLoggersText() {
    engine().setBeaconState(1);
    take("e");
    echo();
    _bench->receive({0xC0});
    static_cast<void>(_bench->written());
    _bench->clock().advance(1min);
    QCOMPARE(_bench->written(), "");
}

void LoggerQueueModesTest::severalAheadAreKeyedWhenTheLastEchoHasCome() {
    _bench->settings().setObject(3, CharactersAhead.key);
    take("\x1Bh1");
    take("cq");
    take("de", other);
    QCOMPARE(_bench->written(), "43 51");
    _bench->receive({'C'});
    _bench->receive({0xC0}); // older than what is on its way
    QCOMPARE(replies(), QStringList());
    QCOMPARE(_bench->written(), "");
    _bench->receive({'Q'});
    QCOMPARE(replies(), QStringList{u"4001 h1"_s});
    QCOMPARE(_bench->written(), "20 44 45");
}

void LoggerQueueModesTest::lostEchoesAreMadeUpForByTheKeyersSilence() {
    _bench->settings().setObject(3, CharactersAhead.key);
    take("\x1Bh1");
    take("cq");
    _bench->receive({0xC4});
    _bench->receive({0xC0});
    _bench->clock().advance(1999ms);
    QCOMPARE(replies(), QStringList());
    _bench->clock().advance(1ms);
    QCOMPARE(replies(), QStringList{u"4001 h1"_s});
}

void LoggerQueueModesTest::whileNobodyWatchesNothingIsTaken() {
    _queue->setWatched(false);
    take("\x1Bh1");
    take("cq");
    QCOMPARE(replies(), QStringList{u"4001 break"_s});
    take("\x1B"
         "c5");
    QCOMPARE(_bench->written(), "");
    _queue->setWatched(true);
    _bench->receive({0xC0});
    QCOMPARE(_bench->written(), "");
    take("cq");
    QCOMPARE(_bench->written(), "43");
}

void LoggerQueueModesTest::whatIsSentEndsWhenNobodyWatchesAnyMore() {
    take("\x1Bh1");
    take("cq");
    take("\x1Bh2", other);
    take("de", other);
    QCOMPARE(_bench->written(), "43");
    _queue->setWatched(false);
    QCOMPARE(_bench->written(), "0a");
    QCOMPARE(replies(), (QStringList{u"4001 break"_s, u"4002 break"_s}));
    QCOMPARE(echo(), "");
}

void LoggerQueueModesTest::tuneLetsGoWhenNobodyWatchesAnyMore() {
    take("\x1B"
         "c5");
    QCOMPARE(_bench->written(), "0b 01");
    _queue->setWatched(false);
    QCOMPARE(_bench->written(), "0b 00");
}

static const RegisteredTest<LoggerQueueModesTest> registered;
#include "LoggerQueueModesTest.moc"
