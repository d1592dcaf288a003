#include "app/MainWindow.h"

#include "app/KeyboardView.h"
#include "app/QuorvelDelegate.h"
#include "keyer/GeneralSettings.h"
#include "tests/keyer/KeyerBench.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>
#include <QToolButton>

#include <optional>

using namespace Qt::StringLiterals;

class MainWindowTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup();

    void theKeyboardHasTheFocusAtStart();
    void messageButtonsSendTheirMessages_data();
    void messageButtonsSendTheirMessages();
    void buttonsBearTheirLabels();
    void aChangedLabelShowsAtOnce();
    void stopIsAButtonAndAKey();
    void theSpeedShows();
    void theirCallReachesTheEngine();
    void theirCallTakesOnlyCallSigns();
    void theSerialNumberIsSteppedAndTyped();
    void pauseFollowsTheEngineBothWays();
    void everyControlHasAnAccessibleName();

  private:
    template <typename Widget>
    [[nodiscard]] Widget* find(const QString& name) {
        return _window->findChild<Widget*>(name);
    }

    std::optional<KeyerBench> _bench;
    std::optional<MainWindow> _window;
};

void MainWindowTest::init() {
    _bench.emplace();
    _bench->settings().setObject(u"N0CALL"_s, MyCall);
    QVERIFY(_bench->connect());
    _window.emplace(_bench->engine());
    _window->show();
    QVERIFY(QTest::qWaitForWindowActive(&*_window));
}

void MainWindowTest::cleanup() {
    _window.reset();
    _bench.reset();
}

void MainWindowTest::theKeyboardHasTheFocusAtStart() {
    QCOMPARE(QApplication::focusWidget(), find<QWidget>(u"keyboardView"_s));
    QTest::keyClicks(QApplication::focusWidget(), u"e"_s);
    QCOMPARE(_bench->written(), "45");
}

void MainWindowTest::messageButtonsSendTheirMessages_data() {
    QTest::addColumn<bool>("isByKey");
    QTest::newRow("by click") << false;
    QTest::newRow("by function key") << true;
}

void MainWindowTest::messageButtonsSendTheirMessages() {
    QFETCH(bool, isByKey);
    for (int number = 1; number <= 8; ++number) {
        const auto text = u"TEXT %1"_s.arg(number);
        _bench->settings().setObject(text, u"Message%1"_s.arg(number));
        _bench->engine().clearSending();
        if (isByKey) {
            QTest::keyClick(&*_window, static_cast<Qt::Key>(Qt::Key_F1 + number - 1));
        } else {
            QTest::mouseClick(find<QPushButton>(u"message%1Button"_s.arg(number)), Qt::LeftButton);
        }
        QCOMPARE(_bench->engine().keyboardBuffer(), text);
    }
}

void MainWindowTest::buttonsBearTheirLabels() {
    const auto* button = find<QPushButton>(u"message1Button"_s);
    QVERIFY(button->text().contains(u"CQ"));
    QVERIFY(button->text().contains(u"F1"));
    QCOMPARE(button->accessibleName(), u"Message 1: CQ"_s);
    QCOMPARE(find<QPushButton>(u"message8Button"_s)->accessibleName(), u"Message 8: Again"_s);
}

void MainWindowTest::aChangedLabelShowsAtOnce() {
    _bench->settings().setObject(u"Q & A"_s, u"Message2Label"_s);
    const auto* button = find<QPushButton>(u"message2Button"_s);
    QCOMPARE(button->accessibleName(), u"Message 2: Q & A"_s);
    QVERIFY(button->text().endsWith(u"Q && A"));
    QTest::keyClick(&*_window, Qt::Key_F2);
    QVERIFY(!_bench->engine().keyboardBuffer().isEmpty());
}

void MainWindowTest::stopIsAButtonAndAKey() {
    auto* view = find<KeyboardView>(u"keyboardView"_s);
    QTest::keyClicks(view, u"ab"_s);
    QTest::mouseClick(find<QPushButton>(u"stopButton"_s), Qt::LeftButton);
    QCOMPARE(view->toPlainText(), u""_s);
    QCOMPARE(_bench->written(), "41 0a");
    QTest::keyClicks(view, u"ab"_s);
    QTest::keyClick(view, Qt::Key_Escape);
    QCOMPARE(view->toPlainText(), u""_s);
    QCOMPARE(_bench->written(), "41 0a");
}

void MainWindowTest::theSpeedShows() {
    _bench->receive({0x8C});
    QCOMPARE(find<QLabel>(u"speedLabel"_s)->text(), u"25 WPM"_s);
    QVERIFY(_bench->engine().disconnect(nullptr));
    QCOMPARE(find<QLabel>(u"speedLabel"_s)->text(), u"\u2013 WPM"_s);
}

void MainWindowTest::theirCallReachesTheEngine() {
    auto* field = find<QLineEdit>(u"hisCallsignTextField"_s);
    QTest::keyClicks(field, u"K1A"_s);
    QCOMPARE(_bench->engine().hisCallsign(), u"K1A"_s);
    QTest::mouseClick(find<QPushButton>(u"message5Button"_s), Qt::LeftButton);
    QCOMPARE(_bench->written(), "4b");
    _bench->engine().setHisCallsign(u"W9"_s);
    QCOMPARE(field->text(), u"W9"_s);
}

void MainWindowTest::theirCallTakesOnlyCallSigns() {
    QuorvelDelegate delegate;
    delegate.awakeFromNib(_window->hisCallsignTextField());
    QTest::keyClicks(&_window->hisCallsignTextField(), u"w9-xyz/p"_s);
    QCOMPARE(_window->hisCallsignTextField().text(), u"W9XYZ/P"_s);
    QCOMPARE(_bench->engine().hisCallsign(), u"W9XYZ/P"_s);
}

void MainWindowTest::theSerialNumberIsSteppedAndTyped() {
    auto* box = find<QSpinBox>(u"serialNumberBox"_s);
    QCOMPARE(box->value(), 1);
    auto* increment = find<QToolButton>(u"incrementSerialNumberButton"_s);
    QTest::mouseClick(increment, Qt::LeftButton);
    QTest::keyClick(increment, Qt::Key_Space);
    QCOMPARE(_bench->engine().serialNumber(), 3);
    QCOMPARE(box->value(), 3);
    QTest::mouseClick(find<QToolButton>(u"decrementSerialNumberButton"_s), Qt::LeftButton);
    QCOMPARE(box->value(), 2);
    box->selectAll();
    QTest::keyClicks(box, u"105"_s);
    QCOMPARE(_bench->engine().serialNumber(), 105);
    _bench->engine().setSerialNumber(1000000);
    QCOMPARE(box->value(), 1000000);
}

void MainWindowTest::pauseFollowsTheEngineBothWays() {
    auto* pause = find<QPushButton>(u"pauseButton"_s);
    QTest::mouseClick(pause, Qt::LeftButton);
    QCOMPARE(_bench->engine().pauseState(), 1);
    QTest::mouseClick(pause, Qt::LeftButton);
    QCOMPARE(_bench->engine().pauseState(), 0);
    QCOMPARE(_bench->written(), "06 01 06 00");
    _bench->receive({0xC1});
    QVERIFY(pause->isChecked());
    _bench->receive({0xC0});
    QVERIFY(!pause->isChecked());
    QCOMPARE(_bench->written(), "06 01 06 00");
}

void MainWindowTest::everyControlHasAnAccessibleName() {
    for (const auto* control : _window->findChildren<QWidget*>()) {
        if (control->focusPolicy() != Qt::NoFocus && control->focusProxy() == nullptr &&
            control->isEnabled() && !control->objectName().startsWith(u"qt_")) {
            QVERIFY2(!control->accessibleName().isEmpty(), qPrintable(control->objectName()));
        }
    }
}

QTEST_MAIN(MainWindowTest)
#include "MainWindowTest.moc"
