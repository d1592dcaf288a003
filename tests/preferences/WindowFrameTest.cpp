#include "preferences/WindowFrame.h"

#include "tests/support/RegisteredTest.h"

#include <QTest>

class WindowFrameTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void aFrameFollowsItsContent_data();
    void aFrameFollowsItsContent();
    void aFrameIsCentered_data();
    void aFrameIsCentered();
};

void WindowFrameTest::aFrameFollowsItsContent_data() {
    QTest::addColumn<QSize>("content");
    QTest::addColumn<QRect>("frame");
    QTest::newRow("taller: the bottom edge goes down")
        << QSize(300, 250) << QRect(40, 50, 306, 280);
    QTest::newRow("lower: the bottom edge comes up") << QSize(300, 100) << QRect(40, 50, 306, 130);
    QTest::newRow("wider: the right edge goes out") << QSize(500, 200) << QRect(40, 50, 506, 230);
    QTest::newRow("nothing: what is around it stays") << QSize(0, 0) << QRect(40, 50, 6, 30);
}

void WindowFrameTest::aFrameFollowsItsContent() {
    QFETCH(QSize, content);
    QFETCH(QRect, frame);
    QCOMPARE(WindowFrame::forContent({40, 50, 306, 230}, content, {6, 30}), frame);
}

void WindowFrameTest::aFrameIsCentered_data() {
    QTest::addColumn<QRect>("frame");
    QTest::addColumn<QRect>("centered");
    QTest::newRow("on a screen beside the first")
        << QRect(0, 0, 300, 200) << QRect(1250, 230, 300, 200);
    QTest::newRow("too wide: its left is seen")
        << QRect(9, 9, 900, 200) << QRect(1000, 230, 900, 200);
    QTest::newRow("too high: its top is seen")
        << QRect(9, 9, 300, 900) << QRect(1250, 30, 300, 900);
}

void WindowFrameTest::aFrameIsCentered() {
    QFETCH(QRect, frame);
    QFETCH(QRect, centered);
    QCOMPARE(WindowFrame::centered(frame, {1000, 30, 800, 600}), centered);
}

static const RegisteredTest<WindowFrameTest> registered;
#include "WindowFrameTest.moc"
