#include "virtualkeyer/core/Transcript.h"

#include "tests/support/RegisteredTest.h"

#include <QtTest>

using namespace virtualkeyer;
using namespace std::chrono_literals;

/// One line per event.
class TranscriptTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void lines();
};

void TranscriptTest::lines() {
    QCOMPARE(transcriptLine({1234567us, KeyLine{true, 1}}), std::string("1234.567 key down 1"));
    QCOMPARE(transcriptLine({1ns, KeyLine{false, 2}}), std::string("0.000 key up 2"));
    QCOMPARE(transcriptLine({1300ms, HostByte{0xC4}}), std::string("1300.000 host C4"));
    QCOMPARE(transcriptLine({1300050us, HostByte{0x05}}), std::string("1300.050 host 05"));
    QCOMPARE(transcriptLine({5ms, Tone{800}}), std::string("5.000 tone 800"));
    QCOMPARE(transcriptLine({5ms, Tone{0}}), std::string("5.000 tone off"));
    QCOMPARE(transcriptLine({5ms, PttLine{true}}), std::string("5.000 ptt on"));
    QCOMPARE(transcriptLine({5ms, PttLine{false}}), std::string("5.000 ptt off"));
    QCOMPARE(transcriptLine({24h, LineSpeed{9600}}), std::string("86400000.000 line 9600 baud"));
}

static const RegisteredTest<TranscriptTest> registered;
#include "TranscriptTest.moc"
