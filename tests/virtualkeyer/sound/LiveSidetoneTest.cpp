#include "virtualkeyer/sound/LiveSidetone.h"

#include "tests/support/RegisteredTest.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace std::chrono_literals;
using namespace virtualkeyer;

/// Without a sound device. What is heard with one, LiveFeedTest has.
class LiveSidetoneTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void initTestCase();
    void withoutADeviceItSaysSoAndKeepsNothing();
    void beforeItIsStartedItKeepsNothing();

  private:
    static void keyLong(LiveSidetone& sidetone) {
        for (int i = 0; i < 10'000; ++i) {
            sidetone.keyerDid({i * Time{60ms}, Tone{i % 2 == 0 ? 800 : 0}}, Registers(20));
        }
    }

    QTemporaryDir _directory;
};

/// A server that is named and not there is not started either.
void LiveSidetoneTest::initTestCase() {
    qputenv("PULSE_SERVER", "unix:" + _directory.filePath(QStringLiteral("none")).toLocal8Bit());
}

void LiveSidetoneTest::withoutADeviceItSaysSoAndKeepsNothing() {
    LiveSidetone sidetone;
    QSignalSpy silent(&sidetone, &LiveSidetone::silent);
    sidetone.start();
    QTRY_COMPARE_WITH_TIMEOUT(silent.size(), 1, 20'000);
    keyLong(sidetone);
    QCOMPARE(sidetone.waiting(), std::size_t{0});
    QCOMPARE(silent.size(), 1);
}

void LiveSidetoneTest::beforeItIsStartedItKeepsNothing() {
    LiveSidetone sidetone;
    keyLong(sidetone);
    QCOMPARE(sidetone.waiting(), std::size_t{0});
}

static const RegisteredTest<LiveSidetoneTest> registered;
#include "LiveSidetoneTest.moc"
