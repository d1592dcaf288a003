#include "loggers/RequestRate.h"

#include "tests/support/RegisteredTest.h"
#include "tests/support/TestPlatform.h"

#include <QTest>

using namespace std::chrono_literals;

class RequestRateTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void aFloodIsCutShort();
    void whatComesInTimeIsHeeded();
};

void RequestRateTest::aFloodIsCutShort() {
    const TestPlatform platform;
    RequestRate rate;
    int heeded = 0;
    for (int i = 0; i < 10'000; ++i) {
        heeded += rate.take() ? 1 : 0;
    }
    QCOMPARE(heeded, 40);
    platform.clock().advance(1s);
    for (int i = 0; i < 10'000; ++i) {
        heeded += rate.take() ? 1 : 0;
    }
    QCOMPARE(heeded, 70);
    platform.clock().advance(1h);
    QVERIFY(rate.take(40));
    QVERIFY(!rate.take());
}

void RequestRateTest::whatComesInTimeIsHeeded() {
    const TestPlatform platform;
    RequestRate rate;
    for (int i = 0; i < 1'000; ++i) {
        platform.clock().advance(40ms);
        QVERIFY(rate.take());
    }
}

static const RegisteredTest<RequestRateTest> registered;
#include "RequestRateTest.moc"
