#include "platform/linux/SessionBus.h"

#include "tests/platform/linux/PrivateBus.h"
#include "tests/support/LogKeeper.h"
#include "tests/support/RegisteredTest.h"

#include <QSignalSpy>
#include <QTest>

#include <optional>

using namespace Qt::StringLiterals;

class SessionBusTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void cleanup();

    void itsEndIsToldOf();
    void whereThereIsNoneNothingEnds();
};

void SessionBusTest::cleanup() {
    QDBusConnection::disconnectFromBus(u"session"_s);
}

void SessionBusTest::itsEndIsToldOf() {
    std::optional<PrivateBus> bus(std::in_place);
    const SessionBus session(bus->connect(u"session"_s));
    QSignalSpy ends(&session, &SessionBus::hasGone);
    const LogKeeper log;
    QVERIFY(!ends.wait(100));
    bus.reset();
    QTRY_COMPARE(ends.size(), 1);
    QCOMPARE(log.lines(), QStringList{u"The bus of the session has gone"_s});
}

void SessionBusTest::whereThereIsNoneNothingEnds() {
    const SessionBus session(QDBusConnection::connectToBus(u"unix:path=/nowhere"_s, u"session"_s));
    QSignalSpy ends(&session, &SessionBus::hasGone);
    QVERIFY(!ends.wait(100));
}

static const RegisteredTest<SessionBusTest> registered;
#include "SessionBusTest.moc"
