#include "app/window/NoticeStrip.h"

#include "tests/support/RegisteredTest.h"

#include <QAccessible>
#include <QLabel>
#include <QTest>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

class NoticeStripTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void itIsThereFromANoticeToItsClosing();
    void theNextNoticeTakesThePlace();
    void aScreenReaderReadsIt();
    void itsButtonIsSeenInTheDark();
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

void NoticeStripTest::itsButtonIsSeenInTheDark() {
    QPalette dark(QColor(49, 54, 59), QColor(35, 38, 41));
    dark.setColor(QPalette::ToolTipBase, QColor(49, 54, 59));
    dark.setColor(QPalette::ToolTipText, Qt::white);
    QWidget window;
    window.setPalette(dark);
    auto* strip = new NoticeStrip(&window);
    (new QVBoxLayout(&window))->addWidget(strip);
    window.show();
    strip->say(u"The key was let go of."_s);
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    auto* close = strip->findChild<QToolButton*>(u"closeNoticeButton"_s);
    const auto picture = close->grab().toImage();
    const auto ground = picture.pixelColor(5, 5);
    const auto middle = picture.rect().center();
    int strongest = 0; // where the strokes of the cross meet
    for (int y = middle.y() - 1; y <= middle.y() + 2; ++y) {
        for (int x = middle.x() - 1; x <= middle.x() + 2; ++x) {
            const auto difference = picture.pixelColor(x, y).lightness() - ground.lightness();
            strongest = std::max(strongest, difference);
        }
    }
    QVERIFY2(strongest >= 128, qPrintable(QString::number(strongest)));
}

static const RegisteredTest<NoticeStripTest> registered;
#include "NoticeStripTest.moc"
