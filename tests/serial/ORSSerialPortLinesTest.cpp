#include "tests/serial/PortBench.h"
#include "tests/support/RegisteredTest.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QSignalSpy>
#include <QThread>
#include <QTimer>

#include <algorithm>
#include <cerrno>
#include <mutex>
#include <sys/ioctl.h>
#include <thread>
#include <vector>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class ORSSerialPortLinesTest : public QObject {
    Q_OBJECT
  private Q_SLOTS:
    void anOutputLineOfAClosedPortFollowsAtOpen_data() {
        QTest::addColumn<QByteArray>("line");
        QTest::addColumn<int>("bit");
        QTest::newRow("RTS") << QByteArray("RTS") << TIOCM_RTS;
        QTest::newRow("DTR") << QByteArray("DTR") << TIOCM_DTR;
    }

    void anOutputLineOfAClosedPortFollowsAtOpen() {
        QFETCH(QByteArray, line);
        QFETCH(int, bit);
        PortBench bench;
        bench.port->setProperty(line.constData(), 1);
        QCOMPARE(bench.port->property(line.constData()).toInt(), 1);
        QCOMPARE(bench.faults.countIoctl(TIOCMGET), 0);
        QCOMPARE(bench.faults.countIoctl(TIOCMSET), 0);
        bench.port->open();
        QCOMPARE(bench.faults.modemWord(), bit);
        QCOMPARE(bench.port->property(line.constData()).toInt(), 1);
    }

    void linesEndAtOpenAsWanted_data() {
        QTest::addColumn<int>("wantedRts");
        QTest::addColumn<int>("wantedDtr");
        QTest::addColumn<int>("found");
        for (const int rts : {0, 1}) {
            for (const int dtr : {0, 1}) {
                for (const int found : {0, TIOCM_RTS, TIOCM_DTR, TIOCM_RTS | TIOCM_DTR}) {
                    QTest::addRow("RTS %d and DTR %d wanted, word %d found", rts, dtr, found)
                        << rts << dtr << found;
                }
            }
        }
    }

    void linesEndAtOpenAsWanted() {
        QFETCH(int, wantedRts);
        QFETCH(int, wantedDtr);
        QFETCH(int, found);
        PortBench bench;
        bench.port->setRTS(wantedRts);
        bench.port->setDTR(wantedDtr);
        bench.faults.setModemWord(found | TIOCM_CTS);
        bench.port->open();
        QCOMPARE(bench.faults.modemWord(),
                 TIOCM_CTS | (wantedRts != 0 ? TIOCM_RTS : 0) | (wantedDtr != 0 ? TIOCM_DTR : 0));
        QCOMPARE(bench.port->RTS(), wantedRts);
        QCOMPARE(bench.port->DTR(), wantedDtr);
    }

    void observersSeeTheStateFoundAtOpenAsItsBit() {
        PortBench bench;
        bench.faults.setModemWord(TIOCM_RTS | TIOCM_DTR);
        QList<int> rts;
        QList<int> dtr;
        connect(bench.port.get(), &ORSSerialPort::RTSChanged, this,
                [&] { rts.append(bench.port->RTS()); });
        connect(bench.port.get(), &ORSSerialPort::DTRChanged, this,
                [&] { dtr.append(bench.port->DTR()); });
        bench.port->open();
        QCOMPARE(rts, (QList{4, 0}));
        QCOMPARE(dtr, (QList{2, 0}));
    }

    void aWantedLineIsWrittenThoughItIsHigh() {
        PortBench bench;
        bench.port->setRTS(1);
        bench.faults.setModemWord(TIOCM_RTS);
        bench.port->open();
        QCOMPARE(bench.faults.modemWordsSet(), (QList{TIOCM_RTS, TIOCM_RTS}));
    }

    void anOutputLineOfAnOpenPortFollowsAtOnce() {
        PortBench bench;
        QVERIFY(bench.open());
        bench.port->setRTS(1);
        QCOMPARE(bench.faults.modemWord(), TIOCM_RTS);
        bench.port->setDTR(1);
        QCOMPARE(bench.faults.modemWord(), TIOCM_RTS | TIOCM_DTR);
        bench.port->setRTS(0);
        QCOMPARE(bench.faults.modemWord(), TIOCM_DTR);
        bench.port->setDTR(0);
        QCOMPARE(bench.faults.modemWord(), 0);
    }

    void settingALineToWhatItIsDoesNothing() {
        PortBench bench;
        QVERIFY(bench.open());
        bench.port->setDTR(1);
        const QSignalSpy changes(bench.port.get(), &ORSSerialPort::DTRChanged);
        const int writes = bench.faults.countIoctl(TIOCMSET);
        bench.port->setDTR(1);
        QCOMPARE(bench.faults.countIoctl(TIOCMSET), writes);
        QCOMPARE(changes.size(), 0);
    }

    void aLineThatCannotBeReadIsWrittenAllTheSame() {
        PortBench bench;
        QVERIFY(bench.open());
        bench.faults.failIoctl(TIOCMGET, EIO);
        bench.port->setRTS(1);
        QCOMPARE(bench.faults.modemWordsSet(), QList{TIOCM_RTS});
    }

    void aLineThatCannotBeWrittenIsReportedLater() {
        PortBench bench;
        QVERIFY(bench.open());
        bench.faults.failIoctl(TIOCMSET, EIO);
        bench.port->setRTS(1);
        QCOMPARE(bench.port->RTS(), 1);
        QCOMPARE(bench.delegate.count(u"error"_s), 0);
        QTRY_COMPARE(bench.delegate.count(u"error"_s), 1);
    }

    void anInputLineIsFollowedOnTheMainThread_data() {
        QTest::addColumn<QByteArray>("line");
        QTest::addColumn<int>("bit");
        QTest::newRow("CTS") << QByteArray("CTS") << TIOCM_CTS;
        QTest::newRow("DSR") << QByteArray("DSR") << TIOCM_DSR;
        QTest::newRow("DCD") << QByteArray("DCD") << TIOCM_CD;
    }

    void anInputLineIsFollowedOnTheMainThread() {
        QFETCH(QByteArray, line);
        QFETCH(int, bit);
        PortBench bench;
        QList<QThread*> threads;
        const auto note = [&] { threads.append(QThread::currentThread()); };
        connect(bench.port.get(), &ORSSerialPort::CTSChanged, this, note, Qt::DirectConnection);
        connect(bench.port.get(), &ORSSerialPort::DSRChanged, this, note, Qt::DirectConnection);
        connect(bench.port.get(), &ORSSerialPort::DCDChanged, this, note, Qt::DirectConnection);
        QVERIFY(bench.open());
        for (const bool state : {true, false, true}) {
            bench.faults.setModemWord(state ? bit : 0);
            QTRY_COMPARE(bench.port->property(line.constData()).toBool(), state);
        }
        QCOMPARE(bench.port->CTS(), bit == TIOCM_CTS);
        QCOMPARE(bench.port->DSR(), bit == TIOCM_DSR);
        QCOMPARE(bench.port->DCD(), bit == TIOCM_CD);
        QCOMPARE(threads, QList<QThread*>(3, thread()));
        QCOMPARE(bench.delegate.count(u"error"_s), 0);
    }

    void inputLinesAreTakenOverInOrder() {
        PortBench bench;
        QByteArray order;
        connect(bench.port.get(), &ORSSerialPort::CTSChanged, this, [&] { order += "CTS "; });
        connect(bench.port.get(), &ORSSerialPort::DSRChanged, this, [&] { order += "DSR "; });
        connect(bench.port.get(), &ORSSerialPort::DCDChanged, this, [&] { order += "DCD "; });
        QVERIFY(bench.open());
        bench.faults.setModemWord(TIOCM_CTS | TIOCM_DSR | TIOCM_CD);
        QTRY_COMPARE(order, "CTS DSR DCD "_ba);
    }

    void theLinesAreSampledEveryTenMilliseconds() {
        PortBench bench;
        QVERIFY(bench.open());
        std::mutex mutex;
        std::vector<std::chrono::steady_clock::time_point> ticks;
        bench.faults.beforeEach(SystemCall::Ioctl, [&](int) {
            const std::scoped_lock lock(mutex);
            ticks.push_back(std::chrono::steady_clock::now());
        });
        const auto ticked = [&] {
            const std::scoped_lock lock(mutex);
            return ticks.size();
        };
        QTRY_VERIFY(ticked() > 30);
        bench.port->close();
        // A tick may be late, and the one after it is then early, but the beat is kept.
        QVERIFY(ticks[30] - ticks[0] >= 285ms);
        // However busy the machine is, some ticks are in time: the beat is no longer than it says.
        auto shortest = ticks[1] - ticks[0];
        for (std::size_t i = 2; i <= 30; ++i) {
            shortest = std::min(shortest, ticks[i] - ticks[i - 1]);
        }
        QVERIFY(shortest <= 15ms);
    }

    void inputLinesStayAsTheyWereAfterClose() {
        PortBench bench;
        QVERIFY(bench.open());
        bench.faults.setModemWord(TIOCM_CTS);
        QTRY_VERIFY(bench.port->CTS());
        bench.port->close();
        const int asked = bench.faults.countIoctl(TIOCMGET);
        bench.faults.setModemWord(TIOCM_DSR);
        QTest::qWait(50);
        QVERIFY(bench.port->CTS());
        QVERIFY(!bench.port->DSR());
        QCOMPARE(bench.faults.countIoctl(TIOCMGET), asked);
    }

    void aChangeThatWaitsForTheMainThreadIsNotMadeAfterClose() {
        PortBench bench;
        QVERIFY(bench.open());
        const int asked = bench.faults.countIoctl(TIOCMGET);
        bench.faults.setModemWord(TIOCM_CTS);
        QElapsedTimer time;
        time.start();
        while (bench.faults.countIoctl(TIOCMGET) < asked + 2 && time.elapsed() < 200) {
            std::this_thread::sleep_for(1ms);
        }
        bench.port->close();
        QTest::qWait(20);
        QVERIFY(!bench.port->CTS());
    }

    void aDeviceWithoutModemLinesIsReportedAtOpenAndAtEveryTick() {
        PortBench bench;
        bench.faults.failIoctl(TIOCMGET, ENOTTY);
        bench.port->setRTS(1);
        bench.port->open();
        // The opening's own report comes before the opening is told of, the ticks' after it.
        QTRY_VERIFY(bench.delegate.count(u"error"_s) >= 10);
        QCOMPARE(bench.delegate.events(), (QStringList{u"error"_s, u"opened"_s, u"error"_s}));
        QCOMPARE(bench.faults.modemWord(), TIOCM_RTS);
        bench.port->close();
        const auto count = bench.delegate.count(u"error"_s);
        QTest::qWait(30);
        QCOMPARE(bench.delegate.count(u"error"_s), count);
    }

    void aDelegateThatHearsNoErrorsIsNotWokenByTheTicks() {
        PortBench bench;
        bench.delegate.setHearsErrorsOfOpenPort(false);
        bench.port->setDelegate(&bench.delegate);
        bench.faults.failIoctl(TIOCMGET, ENOTTY);
        bench.port->open();
        QTRY_VERIFY(bench.faults.countIoctl(TIOCMGET) >= 20);
        // The opening's own report comes all the same.
        QTRY_COMPARE(bench.delegate.events(), (QStringList{u"error"_s, u"opened"_s}));
        QCOMPARE(bench.delegate.count(u"error"_s), 1);
    }

    void inputLinesStayAsTheyWereWhenTheDeviceFails() {
        PortBench bench;
        QVERIFY(bench.open());
        bench.faults.setModemWord(TIOCM_CTS);
        QTRY_VERIFY(bench.port->CTS());
        bench.faults.failIoctl(TIOCMGET, EIO);
        QTRY_VERIFY(bench.delegate.count(u"error"_s) >= 2);
        QVERIFY(bench.port->CTS());
    }

    void aBusyMainThreadFindsNoBacklog() {
        PortBench bench;
        QVERIFY(bench.open());
        bench.faults.failIoctl(TIOCMGET, EIO);
        QTRY_VERIFY(bench.delegate.count(u"error"_s) >= 1);
        const auto before = bench.delegate.count(u"error"_s);
        QElapsedTimer time;
        time.start();
        std::this_thread::sleep_for(500ms);
        // A loop that never naps would take in a backlog at once.
        QEventLoop loop;
        QTimer::singleShot(100ms, &loop, &QEventLoop::quit);
        loop.exec();
        QVERIFY(bench.delegate.count(u"error"_s) > before);
        const auto busyTicks = time.elapsed() / 10;
        QVERIFY(bench.delegate.count(u"error"_s) - before < busyTicks / 2);
    }

    void dataPassesWhileTheModemLinesFail() {
        PortBench bench;
        bench.faults.failIoctl(TIOCMGET, ENOTTY);
        QVERIFY(bench.open());
        for (int round = 0; round < 20; ++round) {
            QVERIFY(bench.line.write("x"));
            QTRY_COMPARE(bench.delegate.received().size(), round + 1);
        }
    }
};

static const RegisteredTest<ORSSerialPortLinesTest> registered;
#include "ORSSerialPortLinesTest.moc"
