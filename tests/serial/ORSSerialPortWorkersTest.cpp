#include "platform/WorkerThread.h"
#include "tests/serial/PortBench.h"
#include "tests/support/RegisteredTest.h"

#include <QTest>

#include <system_error>

using namespace Qt::StringLiterals;

namespace {
/// Which call of startWorker() fails from now on; 0 for none.
int failingCall = 0;
} // namespace

using Work = std::function<void(const std::stop_token&)>;
std::jthread
realStartWorker(const char* name,
                Work work) asm("__real__Z11startWorkerPKcSt8functionIFvRKSt10stop_tokenEE");
std::jthread
wrappedStartWorker(const char* name,
                   Work work) asm("__wrap__Z11startWorkerPKcSt8functionIFvRKSt10stop_tokenEE");

std::jthread wrappedStartWorker(const char* name, Work work) {
    if (failingCall > 0 && --failingCall == 0) {
        throw std::system_error(EAGAIN, std::generic_category(), "no thread left");
    }
    return realStartWorker(name, std::move(work));
}

/// A system that has no thread left for a port's workers.
class ORSSerialPortWorkersTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void cleanup() { failingCall = 0; }

    void aPortWithoutWorkersDoesNotOpen_data() {
        QTest::addColumn<int>("call");
        QTest::newRow("no reader") << 2;
        QTest::newRow("no poller") << 3;
    }

    void aPortWithoutWorkersDoesNotOpen() {
        QFETCH(int, call);
        PortBench bench;
        failingCall = call;
        bench.port->open();
        QCOMPARE(failingCall, 0);
        QVERIFY(!bench.port->isOpen());
        QTRY_COMPARE(bench.delegate.events(), QStringList{u"error"_s});

        verifyTransfer(bench);
    }

    /// Nobody but the caller is left to wait for the driver.
    void aPortIsOpenedAndClosedWithoutAThreadForIt() {
        PortBench bench;
        failingCall = 1;
        verifyTransfer(bench);
        QCOMPARE(failingCall, 0);
        failingCall = 1;
        QVERIFY(bench.port->close());
        QCOMPARE(failingCall, 0);
        QVERIFY(!bench.port->isOpen());
    }

  private:
    static void verifyTransfer(PortBench& bench) {
        QVERIFY(bench.open());
        QVERIFY(bench.line.write("x"));
        QTRY_COMPARE(bench.delegate.received(), QByteArray("x"));
    }
};

static const RegisteredTest<ORSSerialPortWorkersTest> registered;
#include "ORSSerialPortWorkersTest.moc"
