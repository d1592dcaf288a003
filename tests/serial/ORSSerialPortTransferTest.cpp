#include "tests/serial/PortBench.h"
#include "tests/support/RegisteredTest.h"

#include <QElapsedTimer>
#include <QSignalSpy>

#include <array>
#include <cerrno>
#include <poll.h>
#include <sys/resource.h>
#include <thread>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

QByteArray pattern(qsizetype length) {
    QByteArray bytes(length, Qt::Uninitialized);
    unsigned state = 1;
    for (auto& byte : bytes) {
        state = state * 1103515245U + 12345U;
        byte = static_cast<char>(state >> 16U);
    }
    return bytes;
}

// Sends back everything that comes to the far end, until it is told to stop.
void echo(const std::stop_token& stop, int descriptor) {
    std::array<char, 512> block{};
    while (!stop.stop_requested()) {
        pollfd waited{descriptor, POLLIN, 0};
        static_cast<void>(::poll(&waited, 1, 10));
        auto left = std::max<ssize_t>(::read(descriptor, block.data(), block.size()), 0);
        const char* next = block.data();
        while (left > 0 && !stop.stop_requested()) {
            const auto count = ::write(descriptor, next, static_cast<size_t>(left));
            if (count > 0) {
                next += count;
                left -= count;
            } else {
                waited.events = POLLOUT;
                static_cast<void>(::poll(&waited, 1, 10));
            }
        }
    }
}

// Sends until nobody takes any more for a second, or all that is offered has gone.
QByteArray sentUntilFull(int descriptor, qsizetype offered) {
    const auto block = pattern(1000);
    QByteArray sent;
    for (pollfd room{descriptor, POLLOUT, 0};
         sent.size() < offered && ::poll(&room, 1, 1000) > 0;) {
        const auto count =
            ::write(descriptor, block.constData(), static_cast<size_t>(block.size()));
        sent += block.first(std::max<ssize_t>(count, 0));
    }
    return sent;
}

} // namespace

class ORSSerialPortTransferTest : public QObject {
    Q_OBJECT
  private Q_SLOTS:
    void aClosedPortTakesNoBytes() {
        PortBench bench;
        QVERIFY(!bench.port->sendData("lost"));
        QVERIFY(bench.open());
        QVERIFY(bench.port->sendData("kept"));
        QCOMPARE(bench.line.read(4), "kept"_ba);
        QCOMPARE(bench.line.readAvailable(), QByteArray());
    }

    void nothingToSendIsNoWrite() {
        PortBench bench;
        QVERIFY(bench.open());
        QVERIFY(bench.port->sendData({}));
        QCOMPARE(bench.faults.count(SystemCall::Write), 0);
    }

    void aSendIsOneWrite() {
        PortBench bench;
        QVERIFY(bench.open());
        QVERIFY(bench.port->sendData("abc"_ba + '\0' + '\xff'));
        QCOMPARE(bench.faults.count(SystemCall::Write), 1);
        QCOMPARE(bench.line.read(5), "abc"_ba + '\0' + '\xff');
    }

    void whatAShortWriteLeftGoesFirst() {
        PortBench bench;
        QVERIFY(bench.open());
        bench.faults.shortenNextWrite(2);
        QVERIFY(bench.port->sendData("abcde"));
        QCOMPARE(bench.faults.count(SystemCall::Write), 1);
        QCOMPARE(bench.line.read(2), "ab"_ba);
        QVERIFY(bench.port->sendData("fg"));
        QCOMPARE(bench.line.read(5), "cdefg"_ba);
    }

    void anEmptySendPushesWhatWasLeft() {
        PortBench bench;
        QVERIFY(bench.open());
        bench.faults.shortenNextWrite(0);
        QVERIFY(bench.port->sendData("abc"));
        QVERIFY(bench.port->sendData({}));
        QCOMPARE(bench.line.read(3), "abc"_ba);
    }

    void whatAFailedWriteLeftGoesFirst_data() {
        QTest::addColumn<int>("number");
        QTest::newRow("at the first write") << 1;
        QTest::newRow("at a later write") << 3;
    }

    void whatAFailedWriteLeftGoesFirst() {
        QFETCH(int, number);
        PortBench bench;
        QVERIFY(bench.open());
        bench.faults.fail(SystemCall::Write, ENOSPC, number, number);
        QByteArray sent;
        for (char byte = 'a'; byte <= 'e'; ++byte) {
            const bool fails = byte - 'a' + 1 == number;
            QCOMPARE(bench.port->sendData(QByteArray(1, byte)), !fails);
            // The report is made before sendData() returns, with the failed call's own errno.
            QCOMPARE(bench.delegate.count(u"error"_s), byte - 'a' + 1 >= number ? 1 : 0);
            sent += byte;
        }
        QCOMPARE(bench.delegate.errors().constFirst().code, ENOSPC);
        QCOMPARE(bench.line.read(5), sent);
    }

    void closingDropsWhatWasLeft() {
        PortBench bench;
        QVERIFY(bench.open());
        bench.faults.shortenNextWrite(1);
        QVERIFY(bench.port->sendData("abc"));
        QVERIFY(bench.port->close());
        bench.port->open();
        QVERIFY(bench.port->sendData("d"));
        QCOMPARE(bench.line.read(2), "ad"_ba);
    }

    void aFullLineHoldsNobodyUp() {
        PortBench bench;
        QVERIFY(bench.open());
        const auto sent = pattern(200'000);
        QElapsedTimer time;
        time.start();
        for (qsizetype at = 0; at < sent.size(); at += 500) {
            QVERIFY(bench.port->sendData(sent.mid(at, 500)));
        }
        QVERIFY(time.elapsed() < 5000);
        QVERIFY(bench.port->outputWaiting() > 0);
        // What found no room follows once there is some.
        QCOMPARE(bench.line.read(sent.size(), 20s), sent);
        QCOMPARE(bench.port->outputWaiting(), 0);
        QCOMPARE(bench.delegate.count(u"error"_s), 0);
    }

    void droppedOutputIsNotSent() {
        PortBench bench;
        QVERIFY(bench.open());
        const auto dropped = pattern(200'000);
        QVERIFY(bench.port->sendData(dropped));
        bench.port->dropOutput();
        QCOMPARE(bench.port->outputWaiting(), 0);
        QVERIFY(bench.port->sendData("end"));
        QByteArray arrived;
        QTRY_VERIFY((arrived += bench.line.readAvailable()).endsWith("end"));
        // A far end may hold some that it has not taken yet.
        QVERIFY(arrived.size() < 5000);
        QVERIFY(dropped.startsWith(arrived.chopped(3)));
    }

    void aFullLineThatHangsUpIsGivenUp() {
        PortBench bench;
        QVERIFY(bench.open());
        QVERIFY(bench.port->sendData(pattern(200'000)));
        bench.line.hangUp();
        QTRY_COMPARE(bench.delegate.count(u"error"_s), 1);
        const int writes = bench.faults.count(SystemCall::Write);
        QTest::qWait(50);
        QCOMPARE(bench.faults.count(SystemCall::Write), writes);
        QCOMPARE(bench.delegate.errors().constLast().code, EIO);
    }

    void aFullLineMayBeClosed() {
        PortBench bench;
        QVERIFY(bench.open());
        QVERIFY(bench.port->sendData(pattern(200'000)));
        QVERIFY(bench.port->close());
        QCOMPARE(bench.port->outputWaiting(), 0);
        bench.port->dropOutput();
        static_cast<void>(bench.line.readAvailable());
        QTest::qWait(20);
        QVERIFY(!bench.port->isOpen());
    }

    void receivedBytesComeAfterTheOpening() {
        PortBench bench;
        bench.port->open();
        QVERIFY(bench.line.write("hello"));
        QTRY_COMPARE(bench.delegate.received(), "hello"_ba);
        QCOMPARE(bench.delegate.events(), (QStringList{u"opened"_s, u"data"_s}));
    }

    void noBlockIsLongerThanItMayBe() {
        PortBench bench;
        QVERIFY(bench.open());
        const auto sent = pattern(3000);
        QVERIFY(bench.line.write(sent));
        QTRY_COMPARE(bench.delegate.received(), sent);
        for (const auto size : bench.delegate.blockSizes()) {
            QVERIFY(size >= 1 && size <= 1024);
        }
    }

    void aSmallerBlockHoldsFewerBytes() {
        PortBench bench;
        bench.port->setMaximumBlockSize(2);
        QVERIFY(bench.open());
        QVERIFY(bench.line.write("abcdefg"));
        QTRY_COMPARE(bench.delegate.received(), "abcdefg"_ba);
        for (const auto size : bench.delegate.blockSizes()) {
            QVERIFY(size <= 2);
        }
        bench.port->setMaximumBlockSize(1);
        QVERIFY(bench.line.write("hij"));
        QTRY_COMPARE(bench.delegate.received(), "abcdefghij"_ba);
        QCOMPARE(bench.delegate.blockSizes().last(3), (QList<qsizetype>{1, 1, 1}));
    }

    void theSizeOfABlockHasLimits() {
        const PortBench bench;
        const QSignalSpy changes(bench.port.get(), &ORSSerialPort::maximumBlockSizeChanged);
        QCOMPARE(bench.port->maximumBlockSize(), 1024);
        bench.port->setMaximumBlockSize(4096);
        QCOMPARE(bench.port->maximumBlockSize(), 1024);
        bench.port->setMaximumBlockSize(0);
        QCOMPARE(bench.port->maximumBlockSize(), 1);
        QCOMPARE(changes.size(), 1);
    }

    void whatWaitedBeforeTheOpenIsThrownAway() {
        PortBench bench;
        QVERIFY(bench.line.write("early"));
        QVERIFY(bench.open());
        QVERIFY(bench.line.write("x"));
        QTRY_VERIFY(bench.delegate.received().contains('x'));
        QCOMPARE(bench.delegate.received(), "x"_ba);
    }

    void whatAnOpeningReadEndsWithIt() {
        PortBench bench;
        QVERIFY(bench.open());
        QVERIFY(bench.line.write("old"));
        // The reader has it, and the main thread has not come to it yet.
        while (bench.faults.count(SystemCall::Read) == 0) {
            std::this_thread::sleep_for(1ms);
        }
        QVERIFY(bench.port->close());
        bench.port->open();
        QVERIFY(bench.line.write("new"));
        QTRY_VERIFY(bench.delegate.received().endsWith("new"));
        QCOMPARE(bench.delegate.received(), "new"_ba);
    }

    void aPortWithoutDelegateReadsAndDropsBytes() {
        PortBench bench;
        QVERIFY(bench.open());
        bench.port->setDelegate(nullptr);
        QVERIFY(bench.line.write("lost"));
        QTRY_VERIFY(bench.faults.count(SystemCall::Read) > 0);
        QTest::qWait(10);
        bench.port->setDelegate(&bench.delegate);
        QVERIFY(bench.line.write("seen"));
        QTRY_COMPARE(bench.delegate.received(), "seen"_ba);
    }

    void orderIsKeptUnderLoadBothWays() {
        PortBench bench;
        QVERIFY(bench.open());
        const auto sent = pattern(200'000);
        const std::jthread far(
            [&](const std::stop_token& stop) { echo(stop, bench.line.farEnd()); });
        for (qsizetype at = 0; at < sent.size(); at += 500) {
            QVERIFY(bench.port->sendData(sent.mid(at, 500)));
            QCoreApplication::processEvents();
        }
        QTRY_COMPARE_WITH_TIMEOUT(bench.delegate.received().size(), sent.size(), 20'000);
        QCOMPARE(bench.delegate.received(), sent);
    }

    void twoPortsDoNotStarveEachOther() {
        PortBench bench;
        const PseudoTerminalPair otherLine;
        RecordingDelegate otherDelegate;
        const auto other = ORSSerialPort::serialPortWithDevice(
            bench.platform.devices().plug(u"other"_s, otherLine.path()));
        other->setDelegate(&otherDelegate);
        QVERIFY(bench.open());
        other->open();
        // A line that never falls silent, and whose receiver is slow, beside one with one byte.
        bench.delegate.setReaction(
            [](ORSSerialPort&, const QString&) { std::this_thread::sleep_for(1ms); });
        const std::jthread chatter([&](const std::stop_token& stop) {
            while (!stop.stop_requested()) {
                static_cast<void>(bench.line.write("noise"));
                std::this_thread::sleep_for(1ms);
            }
        });
        QTRY_VERIFY(bench.delegate.received().size() > 100);
        QVERIFY(otherLine.write("x"));
        QTRY_COMPARE(otherDelegate.received(), "x"_ba);
        other->setDelegate(nullptr);
        other->close();
    }

    void aFarEndThatTalksWithoutEndFillsNoMemory() {
        PortBench bench;
        QVERIFY(bench.open());
        // This thread takes nothing meanwhile, as while a dialogue of the system holds it.
        const auto sent = sentUntilFull(bench.line.farEnd(), 20'000'000);
        QVERIFY2(sent.size() < 2'000'000, qPrintable(QString::number(sent.size())));
        QTRY_COMPARE_WITH_TIMEOUT(bench.delegate.received().size(), sent.size(), 20'000);
        QCOMPARE(bench.delegate.received(), sent);
    }

    void aReaderThatWaitsForTheMainThreadCanBeEnded() {
        PortBench bench;
        QVERIFY(bench.open());
        QVERIFY(!sentUntilFull(bench.line.farEnd(), 20'000'000).isEmpty());
        QVERIFY(bench.port->close());
        QVERIFY(!bench.port->isOpen());
    }

    void aLineThatHangsUpIsNotSpunOn() {
        PortBench bench;
        QVERIFY(bench.open());
        bench.line.hangUp();
        QElapsedTimer time;
        time.start();
        const int polls = bench.faults.count(SystemCall::Poll);
        QTRY_VERIFY(bench.faults.count(SystemCall::Poll) >= polls + 5);
        QVERIFY(time.elapsed() >= 300);
        QVERIFY(!bench.port->sendData("x"));
        QCOMPARE(bench.delegate.errors().constLast().code, EIO);
        QVERIFY(bench.port->close());
        QCOMPARE(bench.delegate.received(), QByteArray());
    }

    void aLineThatIsReadableAndYieldsNothingIsNotSpunOn() {
        PortBench bench;
        bench.faults.pollSaysReadable();
        QVERIFY(bench.open());
        QElapsedTimer time;
        time.start();
        const int polls = bench.faults.count(SystemCall::Poll);
        QTRY_VERIFY(bench.faults.count(SystemCall::Poll) >= polls + 5);
        QVERIFY(time.elapsed() >= 300);
        QVERIFY(bench.line.write("still heard"));
        QTRY_COMPARE(bench.delegate.received(), "still heard"_ba);
    }

    void anIdlePortUsesLittleTime() {
        PortBench bench;
        QVERIFY(bench.open());
        rusage before{};
        rusage after{};
        ::getrusage(RUSAGE_SELF, &before);
        QTest::qWait(500);
        ::getrusage(RUSAGE_SELF, &after);
        const auto used = [](const rusage& usage) {
            return std::chrono::seconds(usage.ru_utime.tv_sec + usage.ru_stime.tv_sec) +
                   std::chrono::microseconds(usage.ru_utime.tv_usec + usage.ru_stime.tv_usec);
        };
        QVERIFY(used(after) - used(before) < 250ms);
    }
};

static const RegisteredTest<ORSSerialPortTransferTest> registered;
#include "ORSSerialPortTransferTest.moc"
