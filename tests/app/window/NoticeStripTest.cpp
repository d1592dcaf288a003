#include "app/window/NoticeStrip.h"

#include "tests/support/RegisteredTest.h"

#include <QAccessible>
#include <QLabel>
#include <QTest>
#include <QToolButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

class NoticeStripTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void itIsThereFromANoticeToItsClosing();
    void theNextNoticeTakesThePlace();
    void aScreenReaderReadsIt();
};

void NoticeStripTest::itIsThereFromANoticeToItsClosing() {
    QWidget window;
    auto* strip = new NoticeStrip(&window);
    (new QVBoxLayout(&window))->addWidget(strip);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QVERIFY(!strip->isVisible());
    strip->say(u"The key was let go of."_s);
    QVERIFY(strip->isVisible());
    QCOMPARE(strip->findChild<QLabel*>(u"noticeLabel"_s)->text(), u"The key was let go of."_s);
    auto* close = strip->findChild<QToolButton*>(u"closeNoticeButton"_s);
    QVERIFY(!close->accessibleName().isEmpty());
    QTest::keyClick(close, Qt::Key_Space);
    QVERIFY(!strip->isVisible());
}

void NoticeStripTest::theNextNoticeTakesThePlace() {
    NoticeStrip strip;
    strip.say(u"one"_s);
    strip.say(u"two"_s);
    QCOMPARE(strip.findChild<QLabel*>(u"noticeLabel"_s)->text(), u"two"_s);
    QVERIFY(strip.isVisible());
}

void NoticeStripTest::aScreenReaderReadsIt() {
    NoticeStrip strip;
    strip.say(u"The key was let go of."_s);
    QCOMPARE(QAccessible::queryAccessibleInterface(&strip)->text(QAccessible::Name),
             u"The key was let go of."_s);
}

static const RegisteredTest<NoticeStripTest> registered;
#include "NoticeStripTest.moc"
