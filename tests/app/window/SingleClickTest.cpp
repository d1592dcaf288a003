#include "app/window/SingleClick.h"

#include "tests/app/window/MainWindowFixture.h"
#include "tests/support/RegisteredTest.h"

#include <QAbstractButton>
#include <QPushButton>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

class SingleClickTest : public QObject, private MainWindowFixture {
    Q_OBJECT

  private Q_SLOTS:
    void init() { open(); }
    void cleanup() { close(); }

    void aDoubleClickIsOne();
    void soAreThreeAndMoreThatFollowAsFast();
    void clicksThatAreApartAreClicksEach();
    void keysAreNotCounted();
    void aDoubleClickSendsAMessageOnce();
};

namespace {

/// Clicks as fast as a hand does, all in the same place.
void clickFast(QWidget& button, int clicks) {
    auto* window = button.window()->windowHandle();
    const auto place = button.mapTo(button.window(), button.rect().center());
    QTest::mouseClick(window, Qt::LeftButton, {}, place);
    for (int i = 1; i < clicks; ++i) {
        // Undoes what the test library adds, so that no two clicks of its are a double one.
        QTest::lastMouseTimestamp -= QTest::mouseDoubleClickInterval - 60;
        QTest::mouseClick(window, Qt::LeftButton, {}, place);
    }
}

} // namespace

void SingleClickTest::aDoubleClickIsOne() {
    QPushButton button;
    button.show();
    QVERIFY(QTest::qWaitForWindowActive(&button));
    const QSignalSpy clicks(&button, &QPushButton::clicked);
    clickFast(button, 2);
    QCOMPARE(clicks.size(), 2); // as the toolkit has it
    new SingleClick(button);
    clickFast(button, 2);
    QCOMPARE(clicks.size(), 3);
    QVERIFY(!button.isDown());
}

void SingleClickTest::soAreThreeAndMoreThatFollowAsFast() {
    QPushButton button;
    new SingleClick(button);
    button.show();
    QVERIFY(QTest::qWaitForWindowActive(&button));
    const QSignalSpy clicks(&button, &QPushButton::clicked);
    clickFast(button, 3);
    QCOMPARE(clicks.size(), 1);
    clickFast(button, 7);
    QCOMPARE(clicks.size(), 2);
}

void SingleClickTest::clicksThatAreApartAreClicksEach() {
    QPushButton button;
    new SingleClick(button);
    button.show();
    QVERIFY(QTest::qWaitForWindowActive(&button));
    const QSignalSpy clicks(&button, &QPushButton::clicked);
    for (int i = 0; i < 3; ++i) {
        clickFast(button, 1);
    }
    QCOMPARE(clicks.size(), 3);
}

void SingleClickTest::keysAreNotCounted() {
    QPushButton button;
    new SingleClick(button);
    button.show();
    QVERIFY(QTest::qWaitForWindowActive(&button));
    button.setFocus();
    const QSignalSpy clicks(&button, &QPushButton::clicked);
    QTest::keyClick(&button, Qt::Key_Space);
    QTest::keyClick(&button, Qt::Key_Space);
    QCOMPARE(clicks.size(), 2);
}

void SingleClickTest::aDoubleClickSendsAMessageOnce() {
    _bench->settings().setObject(u"tu"_s, u"Message3"_s);
    QCoreApplication::processEvents();
    clickFast(*find<QWidget>(u"message3Button"_s), 3);
    QCOMPARE(_bench->engine().keyboardBuffer(), u"TU"_s);
    clickFast(*find<QWidget>(u"message3Button"_s), 1);
    QCOMPARE(_bench->engine().keyboardBuffer(), u"TU TU"_s);
}

static const RegisteredTest<SingleClickTest> registered;
#include "SingleClickTest.moc"
