#include "app/TypingWatch.h"

#include "app/KeyShield.h"
#include "tests/support/RegisteredTest.h"
#include "tests/support/TestPlatform.h"

#include <QDialog>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

#include <optional>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class TypingWatchTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup();

    void aModalWindowThatOpensWhileTypingTakesNoKey();
    void oneThatOpensLaterTakesKeysAtOnce();
    void oneThatWasAskedForTakesKeysAtOnce_data();
    void oneThatWasAskedForTakesKeysAtOnce();
    void aWindowThatIsNotModalTakesKeysAtOnce();

  private:
    [[nodiscard]] ManualClock& clock() { return _platform->clock(); }
    void openDialog(bool isModal = true);
    /// Presses the dialog's button by the space bar, on the native window.
    void pressSpace();

    std::optional<TestPlatform> _platform;
    std::optional<TypingWatch> _watch;
    std::optional<QWidget> _main;
    std::optional<QDialog> _dialog;
    int _clicks = 0;
};

void TypingWatchTest::init() {
    _platform.emplace();
    clock().advance(1h);
    _watch.emplace();
    _main.emplace();
    _main->show();
    QVERIFY(QTest::qWaitForWindowActive(&*_main));
    _clicks = 0;
}

void TypingWatchTest::cleanup() {
    _dialog.reset();
    _main.reset();
    _watch.reset();
    _platform.reset();
}

void TypingWatchTest::openDialog(bool isModal) {
    _dialog.emplace(&*_main);
    _dialog->setModal(isModal);
    _dialog->setWindowTitle(u"Choice"_s);
    auto* layout = new QVBoxLayout(&*_dialog);
    auto* button = new QPushButton(u"Go"_s);
    layout->addWidget(button);
    QObject::connect(button, &QPushButton::clicked, this, [this] { ++_clicks; });
    _dialog->show();
    QTRY_VERIFY(_dialog->isActiveWindow());
    button->setFocus();
}

void TypingWatchTest::pressSpace() {
    QTest::keyClick(_dialog->windowHandle(), Qt::Key_Space);
}

void TypingWatchTest::aModalWindowThatOpensWhileTypingTakesNoKey() {
    QTest::keyClick(_main->windowHandle(), Qt::Key_C);
    clock().advance(900ms);
    openDialog();
    pressSpace();
    QCOMPARE(_clicks, 0);
    QCOMPARE(_dialog->windowTitle(), u"Choice – takes keys when you have stopped typing"_s);
    clock().advance(900ms);
    pressSpace();
    QCOMPARE(_clicks, 0);
    clock().advance(1s);
    QCOMPARE(_dialog->windowTitle(), u"Choice"_s);
    pressSpace();
    QCOMPARE(_clicks, 1);
}

void TypingWatchTest::oneThatOpensLaterTakesKeysAtOnce() {
    QTest::keyClick(_main->windowHandle(), Qt::Key_C);
    clock().advance(1s);
    openDialog();
    QCOMPARE(_dialog->windowTitle(), u"Choice"_s);
    pressSpace();
    QCOMPARE(_clicks, 1);
}

void TypingWatchTest::oneThatWasAskedForTakesKeysAtOnce_data() {
    QTest::addColumn<bool>("isByMouse");
    QTest::newRow("by a click") << true;
    QTest::newRow("by a key with Ctrl") << false;
}

void TypingWatchTest::oneThatWasAskedForTakesKeysAtOnce() {
    QFETCH(const bool, isByMouse);
    if (isByMouse) {
        QTest::keyClick(_main->windowHandle(), Qt::Key_C);
        QTest::mouseClick(_main->windowHandle(), Qt::LeftButton);
    } else {
        QTest::keyClick(_main->windowHandle(), Qt::Key_O, Qt::ControlModifier);
    }
    openDialog();
    pressSpace();
    QCOMPARE(_clicks, 1);
}

void TypingWatchTest::aWindowThatIsNotModalTakesKeysAtOnce() {
    QTest::keyClick(_main->windowHandle(), Qt::Key_C);
    openDialog(false);
    pressSpace();
    QCOMPARE(_clicks, 1);
}

static const RegisteredTest<TypingWatchTest> registered;
#include "TypingWatchTest.moc"
