#include "virtualkeyer/core/KeyTrace.h"

#include "tests/support/RegisteredTest.h"
#include "virtualkeyer/core/Registers.h"
#include "virtualkeyer/core/TraceTable.h"

#include <QTest>

using namespace std::chrono_literals;
using namespace virtualkeyer;
using Kind = TraceElement::Kind;

class KeyTraceTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void elementsHaveTheirLengthsAndKinds();
    void aPauseIsNoWordSpace();
    void lettersStandOverTheirElements();
    void transmissionsAreKept();
    void whatIsUnderWayIsTold();
    void repeatedEdgesArePassedOver();
    void tenMinutesAreKept();
    void atAnySpeedItIsBounded();
    void theTableHasEverything();

  private:
    /// Marks, and behind each a space, in ms.
    void key(std::initializer_list<int> lengths) {
        bool isDown = true;
        for (const int length : lengths) {
            _trace.key(isDown, _timing, _now);
            _now += std::chrono::milliseconds{length};
            isDown = !isDown;
        }
        if (!isDown) {
            _trace.key(false, _timing, _now);
        }
        _trace.advance(_now);
    }

    const Timing _timing = timingOf(Registers(20)); // a dit is 60 ms
    KeyTrace _trace;
    Time _now{0};
};

void KeyTraceTest::init() {
    _trace = {};
    _now = 1s;
}

void KeyTraceTest::elementsHaveTheirLengthsAndKinds() {
    key({60, 62, 178, 181, 61, 420, 180});
    const std::deque<TraceElement> expected{
        {{1000ms, 1060ms}, Kind::Dit}, {{1060ms, 1122ms}, Kind::Space},
        {{1122ms, 1300ms}, Kind::Dah}, {{1300ms, 1481ms}, Kind::LetterSpace},
        {{1481ms, 1542ms}, Kind::Dit}, {{1542ms, 1962ms}, Kind::WordSpace},
        {{1962ms, 2142ms}, Kind::Dah},
    };
    QVERIFY(_trace.elements() == expected);
    QVERIFY(expected[0].isMark() && expected[2].isMark() && !expected[1].isMark());
}

void KeyTraceTest::aPauseIsNoWordSpace() {
    key({60, 840, 60, 841, 60});
    QCOMPARE(_trace.elements()[1].kind, Kind::WordSpace);
    QCOMPARE(_trace.elements()[3].kind, Kind::Pause);
}

void KeyTraceTest::lettersStandOverTheirElements() {
    key({60, 60, 180, 180, 60, 60, 60, 60, 60, 60, 60, 60, 60, 60, 60, 60, 60, 1000});
    const std::deque<TraceLetter> expected{{{1000ms, 1300ms}, 'A'},
                                           {{1480ms, 2260ms}, KeyLineDecoder::unknown}};
    QVERIFY(_trace.letters() == expected);
}

void KeyTraceTest::transmissionsAreKept() {
    _trace.ptt(true, 1s);
    _trace.ptt(true, 1500ms);
    QCOMPARE(_trace.onSince().value().count(), Time{1s}.count());
    _trace.ptt(false, 2s);
    QVERIFY(_trace.transmissions() == (std::deque<Stretch>{{1s, 2s}}));
    QVERIFY(!_trace.onSince());
    QCOMPARE(_trace.lastEdge().value().count(), Time{2s}.count());
}

void KeyTraceTest::whatIsUnderWayIsTold() {
    QVERIFY(!_trace.lastEdge());
    _trace.key(true, _timing, 1s);
    QCOMPARE(_trace.downSince().value().count(), Time{1s}.count());
    QVERIFY(_trace.elements().empty());
    _trace.key(false, _timing, 1060ms);
    QVERIFY(!_trace.downSince());
    // The letter is complete when its letter space could have begun.
    QCOMPARE(_trace.nextEvent().value().count(), Time{1180ms}.count());
    _trace.advance(1180ms);
    QCOMPARE(_trace.letters().size(), 1U);
}

void KeyTraceTest::repeatedEdgesArePassedOver() {
    _trace.key(false, _timing, 500ms);
    QVERIFY(!_trace.lastEdge());
    _trace.key(true, _timing, 1s);
    _trace.key(true, _timing, 1030ms);
    _trace.key(false, _timing, 1060ms);
    QVERIFY(_trace.elements() == (std::deque<TraceElement>{{{1s, 1060ms}, Kind::Dit}}));
}

void KeyTraceTest::tenMinutesAreKept() {
    _trace.ptt(true, 1s);
    key({60, 1000});
    _trace.ptt(false, _now);
    _now = Time{1060ms} + KeyTrace::kept;
    _trace.advance(_now);
    QCOMPARE(_trace.elements().size(), 1U);
    QCOMPARE(_trace.letters().size(), 1U);
    _trace.advance(_now + 1ns);
    QVERIFY(_trace.elements().empty());
    QVERIFY(_trace.letters().empty());
    QCOMPARE(_trace.transmissions().size(), 1U);
    _trace.advance(_now + 2s);
    QVERIFY(_trace.transmissions().empty());
}

void KeyTraceTest::atAnySpeedItIsBounded() {
    for (std::size_t i = 0; i < KeyTrace::mostElements + 1000; ++i) {
        _trace.key(i % 2 == 0, _timing, Time{1s} + static_cast<int>(i) * Time{1us});
    }
    QCOMPARE(_trace.elements().size(), KeyTrace::mostElements);
}

void KeyTraceTest::theTableHasEverything() {
    _trace.ptt(true, 900ms);
    key({60, 60, 180, 180});
    _trace.ptt(false, 1500ms);
    // A quotation mark.
    key({60, 60, 180, 60, 60, 60, 60, 60, 180, 60, 60, 500});
    const std::string table = traceTable(_trace);
    const std::string beginning = "line,from_ms,to_ms,length_ms,what\n"
                                  "key,1000.000,1060.000,60.000,dit\n"
                                  "key,1060.000,1120.000,60.000,space\n"
                                  "key,1120.000,1300.000,180.000,dah\n"
                                  "key,1300.000,1480.000,180.000,letter space\n";
    QVERIFY2(table.starts_with(beginning), table.c_str());
    const std::string end = "letter,1000.000,1300.000,300.000,\"A\"\n"
                            "letter,1480.000,2380.000,900.000,\"\"\"\"\n"
                            "ptt,900.000,1500.000,600.000,on\n";
    QVERIFY2(table.ends_with(end), table.c_str());
}

static const RegisteredTest<KeyTraceTest> registered;
#include "KeyTraceTest.moc"
