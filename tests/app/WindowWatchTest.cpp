#include "app/WindowWatch.h"

#include "tests/support/RegisteredTest.h"

#include <QSignalSpy>
#include <QTest>
#include <QWidget>

class WindowWatchTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void aWindowThatIsShownAndClosed();
    void aWindowThatIsMinimisedIsThere();
};

void WindowWatchTest::aWindowThatIsShownAndClosed() {
    QWidget window;
    const WindowWatch watch(window);
    QSignalSpy told(&watch, &WindowWatch::visibleChanged);
    window.show();
    QCOMPARE(told.takeFirst(), QVariantList{true});
    window.close();
    QCOMPARE(told.takeFirst(), QVariantList{false});
    window.show();
    QCOMPARE(told.takeFirst(), QVariantList{true});
    QVERIFY(told.isEmpty());
}

void WindowWatchTest::aWindowThatIsMinimisedIsThere() {
    QWidget window;
    window.show();
    const WindowWatch watch(window);
    const QSignalSpy told(&watch, &WindowWatch::visibleChanged);
    window.showMinimized();
    QCoreApplication::processEvents();
    window.showNormal();
    QCoreApplication::processEvents();
    QVERIFY(told.isEmpty());
}

static const RegisteredTest<WindowWatchTest> registered;
#include "WindowWatchTest.moc"
