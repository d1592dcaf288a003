#include "app/window/SleepNotice.h"

#include "app/window/NoticeStrip.h"
#include "tests/app/window/MainWindowFixture.h"
#include "tests/support/RegisteredTest.h"

#include <QPushButton>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class SleepNoticeTest : public QObject, private MainWindowFixture {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup() { close(); }

    void tellsAfterAnAwakeningThatSendingWasStopped_data();
    void tellsAfterAnAwakeningThatSendingWasStopped();
    void saysNothingAfterAnIdleSleep();
    void saysNothingOfAPortThatHasGone();

  private:
    void sleep();
    void wake();

    NoticeStrip* _strip = nullptr;
};

void SleepNoticeTest::init() {
    open();
    _strip = find<NoticeStrip>(u"noticeStrip"_s);
}

void SleepNoticeTest::sleep() {
    _bench->platform().notifications().post(NSWorkspaceWillSleepNotification, nullptr);
}

void SleepNoticeTest::wake() {
    _bench->platform().notifications().post(NSWorkspaceDidWakeNotification, nullptr);
}

void SleepNoticeTest::tellsAfterAnAwakeningThatSendingWasStopped_data() {
    QTest::addColumn<QString>("sent");
    QTest::newRow("tune") << u"tune"_s;
    QTest::newRow("text") << u"text"_s;
    QTest::newRow("text held back") << u"paused"_s;
    QTest::newRow("a beacon") << u"beacon"_s;
    QTest::newRow("a message of the keyer's own") << u"standalone"_s;
}

void SleepNoticeTest::tellsAfterAnAwakeningThatSendingWasStopped() {
    QFETCH(QString, sent);
    auto& engine = _bench->engine();
    if (sent == u"tune") {
        QTest::mouseClick(find<QPushButton>(u"tuneButton"_s), Qt::LeftButton);
    } else if (sent == u"text") {
        _bench->type(u"CQ"_s);
    } else if (sent == u"paused") {
        engine.setPauseState(1);
        _bench->type(u"CQ"_s);
    } else if (sent == u"beacon") {
        engine.setBeaconState(1);
    } else {
        engine.sendStandaloneMessage(1);
    }
    sleep();
    QVERIFY(!_strip->isVisible());
    QCOMPARE(engine.keyboardBuffer().size(), 0);
    QCOMPARE(engine.beaconState(), 0);
    QCOMPARE(engine.tuneState(), 0);
    wake();
    QVERIFY(_strip->isVisible());
    QVERIFY(_strip->accessibleName().contains(u"stopped the sending"_s));
}

void SleepNoticeTest::saysNothingAfterAnIdleSleep() {
    _bench->type(u"E"_s);
    _bench->receive({'E'});
    _bench->receive({0xC0});
    sleep();
    wake();
    QVERIFY(!_strip->isVisible());
}

void SleepNoticeTest::saysNothingOfAPortThatHasGone() {
    _bench->type(u"CQ"_s);
    _bench->platform().devices().unplug(_bench->device());
    sleep();
    wake();
    QVERIFY(!_strip->isVisible());
}

static const RegisteredTest<SleepNoticeTest> registered;
#include "SleepNoticeTest.moc"
