#include "app/QuorvelDelegate.h"
#include "app/keyboard/KeyboardView.h"
#include "keyer/GeneralSettings.h"
#include "keyer/KeyerSettings.h"
#include "keyer/MessageSettings.h"
#include "tests/app/window/MainWindowFixture.h"
#include "tests/support/RegisteredTest.h"

#include <QAccessible>
#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QSpinBox>
#include <QTest>
#include <QTextDocument>
#include <QToolButton>

#include <functional>

using namespace Qt::StringLiterals;

class MainWindowTest : public QObject, private MainWindowFixture {
    Q_OBJECT

  private Q_SLOTS:
    void init() { open(); }
    void cleanup() { close(); }

    void theKeyboardHasTheFocusAtStart();
    void messageButtonsSendTheirMessages_data();
    void messageButtonsSendTheirMessages();
    void buttonsBearTheirLabels();
    void aChangedLabelShowsAtOnce();
    void stopIsAButtonAndAKey();
    void theSpeedShows();
    void atHighSpeedItsRateShows();
    void aChangedRateShowsOnceTheKeyerHasIt();
    void theBeaconsSwitchCounts();
    void theirCallReachesTheEngine();
    void theirCallTakesOnlyCallSigns();
    void theSerialNumberIsSteppedAndTyped();
    void theSerialNumberIsSteppedByKeysFromAnywhere();
    void aNoticeClosedByKeyGivesTheKeyboardToTheText();
    void pauseFollowsTheEngineBothWays();
    void aToolTipTellsWhatWouldBeSent();
    void theKeysAreThoseOfTheMenus();
    void aLongLabelDoesNotWidenTheWindow();
    void theWindowComesBackWhereItWas();
    void theStatusLineSaysWhereTypingWouldSendAgain();
    void aPlaceOnAScreenThatIsGoneIsNotTaken();
    void theWindowComesToTheFront();
    void aClickOnAButtonLeavesTheFocusWhereItWas_data();
    void aClickOnAButtonLeavesTheFocusWhereItWas();
    void whatIsTypedAfterAClickIsText();
    void everyControlHasAnAccessibleName();
    void everyControlHasAPlaceInTheTabOrder();
    void theControlsComeBeforeTheMenusForAScreenReader();
};

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

void MainWindowTest::atHighSpeedItsRateShows() {
    const auto* speed = find<QLabel>(u"speedLabel"_s);
    _bench->settings().setObject(u"2050 lpm"_s, WKHSCWSpeed);
    _bench->receive({0x8C});
    press(Qt::Key_H, Qt::ControlModifier);
    QCOMPARE(speed->text(), u"2000 LPM"_s);
    QCOMPARE(speed->accessibleDescription(), u"2000 LPM"_s);
    _bench->receive({0x8D}); // the knob is turned meanwhile
    QCOMPARE(speed->text(), u"2000 LPM"_s);
    press(Qt::Key_Escape);
    QCOMPARE(speed->text(), u"26 WPM"_s);
}

void MainWindowTest::aChangedRateShowsOnceTheKeyerHasIt() {
    const auto* speed = find<QLabel>(u"speedLabel"_s);
    press(Qt::Key_H, Qt::ControlModifier);
    QCOMPARE(speed->text(), u"1000 LPM"_s);
    _bench->settings().setObject(u"3000 lpm"_s, WKHSCWSpeed);
    _bench->receive({0x8C});
    QCOMPARE(speed->text(), u"1000 LPM"_s);
    static_cast<void>(_bench->written());
    _bench->type(u"%E"_s);
    QCOMPARE(_bench->written(), "1d 1e 45");
    QCOMPARE(speed->text(), u"3000 LPM"_s);
}

void MainWindowTest::theBeaconsSwitchCounts() {
    auto* button = find<QPushButton>(u"beaconButton"_s);
    const auto width = button->width();
    _bench->settings().setObject(3.0, BeaconInterval.key);
    press(Qt::Key_B, Qt::ControlModifier);
    press(Qt::Key_F7);
    const auto sending = button->grab().toImage();
    _bench->receive({'?'});
    _bench->receive({0xC0});
    const auto three = button->grab().toImage();
    QVERIFY(three != sending);
    _bench->clock().advance(std::chrono::seconds(1));
    QVERIFY(button->grab().toImage() != three);
    QCOMPARE(button->width(), width);
    QCOMPARE(button->text(), u"Beacon"_s);
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
    QuorvelDelegate delegate(_bench->engine());
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

void MainWindowTest::aNoticeClosedByKeyGivesTheKeyboardToTheText() {
    _window->say(u"The key was let go of."_s);
    auto* close = find<QToolButton>(u"closeNoticeButton"_s);
    close->setFocus();
    QVERIFY(close->hasFocus());
    QTest::keyClick(close, Qt::Key_Space);
    QVERIFY(!close->isVisible());
    QVERIFY(find<QWidget>(u"keyboardView"_s)->hasFocus());
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

void MainWindowTest::aClickOnAButtonLeavesTheFocusWhereItWas_data() {
    QTest::addColumn<bool>("isConnected");
    QTest::newRow("connected") << true;
    QTest::newRow("not connected") << false;
}

void MainWindowTest::aClickOnAButtonLeavesTheFocusWhereItWas() {
    QFETCH(const bool, isConnected);
    if (!isConnected) {
        QVERIFY(_bench->engine().disconnect(nullptr));
    }
    const auto buttons = find<QWidget>(u"console"_s)->findChildren<QAbstractButton*>();
    int count = 0;
    for (const auto* field : {"keyboardView", "hisCallsignTextField", "serialNumberBox"}) {
        _window->say(u"A notice"_s);
        for (auto* button : buttons) {
            QCoreApplication::processEvents(); // strips come and go, and others make room
            if (!button->isVisible()) {
                continue;
            }
            find<QWidget>(QString::fromLatin1(field))->setFocus();
            const auto* before = QApplication::focusWidget();
            click(*button);
            QVERIFY2(QApplication::focusWidget() == before, qPrintable(button->objectName()));
            _bench->engine().setTuneState(0);
            ++count;
        }
    }
    QCOMPARE(count, 3 * (isConnected ? 16 : 18));
}

/// The spaces of it work nothing.
void MainWindowTest::whatIsTypedAfterAClickIsText() {
    click(*find<QAbstractButton>(u"tuneButton"_s));
    click(*find<QAbstractButton>(u"tuneButton"_s));
    QCOMPARE(_bench->written(), "0b 01 0b 00");
    type(u"cq cq"_s);
    QCOMPARE(_bench->engine().keyboardBuffer(), u"CQ CQ"_s);
    QCOMPARE(_bench->written(), "43");
}

void MainWindowTest::everyControlHasAnAccessibleName() {
    for (const auto* control : _window->findChildren<QWidget*>()) {
        if (control->focusPolicy() != Qt::NoFocus && control->focusProxy() == nullptr &&
            control->isEnabled() && !control->objectName().startsWith(u"qt_")) {
            QVERIFY2(!control->accessibleName().isEmpty(), qPrintable(control->objectName()));
        }
    }
}

void MainWindowTest::theSerialNumberIsSteppedByKeysFromAnywhere() {
    for (const auto* name : {"keyboardView", "hisCallsignTextField", "serialNumberBox"}) {
        find<QWidget>(QString::fromLatin1(name))->setFocus();
        _bench->engine().setSerialNumber(7);
        press(Qt::Key_Up, Qt::ControlModifier);
        QCOMPARE(_bench->engine().serialNumber(), 8);
        press(Qt::Key_Down, Qt::ControlModifier);
        press(Qt::Key_Down, Qt::ControlModifier);
        QCOMPARE(_bench->engine().serialNumber(), 6);
    }
    find<QSpinBox>(u"serialNumberBox"_s)->setFocus();
    press(Qt::Key_Up);
    QCOMPARE(_bench->engine().serialNumber(), 7);
}

void MainWindowTest::aToolTipTellsWhatWouldBeSent() {
    const auto* button = find<QPushButton>(u"message1Button"_s);
    const auto told = [button] {
        QTextDocument toolTip;
        toolTip.setHtml(button->toolTip());
        return toolTip.toPlainText();
    };
    QCOMPARE(told(), u"CQ TEST N0CALL N0CALL"_s);
    QCOMPARE(button->accessibleDescription(), told());
    _bench->settings().setObject(u"~ ur # de ` <b>"_s, u"Message1"_s);
    QCOMPARE(told(), u"~ UR TT1 DE N0CALL <B>"_s);
    _bench->engine().setHisCallsign(u"W9XYZ"_s);
    QCOMPARE(told(), u"W9XYZ UR TT1 DE N0CALL <B>"_s);
    _bench->engine().setSerialNumber(120);
    QCOMPARE(told(), u"W9XYZ UR 12T DE N0CALL <B>"_s);
    _bench->settings().setObject(u"K1A"_s, MyCall);
    QCOMPARE(told(), u"W9XYZ UR 12T DE K1A <B>"_s);
}

void MainWindowTest::theKeysAreThoseOfTheMenus() {
    const auto key = [this](const QString& name) {
        return find<QAction>(name + u"Action"_s)->shortcut().toString(QKeySequence::NativeText);
    };
    QCOMPARE(key(u"tune"_s), u"Ctrl+T"_s);
    for (const auto* name :
         {"tune", "pause", "hscw", "beacon", "incrementSerialNumber", "decrementSerialNumber"}) {
        const auto told = find<QAbstractButton>(QLatin1StringView(name) + u"Button"_s)->toolTip();
        QVERIFY2(told.endsWith(u" (%1)"_s.arg(key(QLatin1StringView(name)))), qPrintable(told));
    }
    const auto text = find<QWidget>(u"keyboardView"_s)->toolTip();
    QVERIFY2(text.endsWith(u" (%1)"_s.arg(key(u"keyboard"_s))), qPrintable(text));
    QCOMPARE(find<QAbstractButton>(u"stopButton"_s)->text(), u"Stop (Esc)"_s);
    QCOMPARE(find<QAbstractButton>(u"message8Button"_s)->text(), u"F8  Again"_s);
}

void MainWindowTest::aLongLabelDoesNotWidenTheWindow() {
    const auto before = _window->minimumSizeHint();
    const auto label = u"An exchange with a great many words "_s.repeated(20);
    _bench->settings().setObject(label, u"Message2Label"_s);
    QCOMPARE(_window->minimumSizeHint(), before);
    auto* button = find<QPushButton>(u"message2Button"_s);
    QCOMPARE(button->accessibleName(), u"Message 2: "_s + label);
    QVERIFY(find<QAction>(u"message2Action"_s)->text().size() < 60);
    // Cut short, and not merely cut off: it is seen from its beginning.
    const auto cut = button->grab().toImage();
    QVERIFY(!cut.isNull());
    _bench->settings().setObject(label.first(300), u"Message2Label"_s);
    QCOMPARE(button->grab().toImage(), cut);
    _bench->settings().setObject(u"The "_s + label, u"Message2Label"_s);
    QVERIFY(button->grab().toImage() != cut);
}

void MainWindowTest::theWindowComesBackWhereItWas() {
    const QRect place(5, 30, 790, 590);
    _window->setGeometry(place);
    _window->close();
    _window.emplace(_bench->engine());
    _window->show();
    QCOMPARE(_window->geometry(), place);

    // The end of the application closes no window.
    const QRect other(15, 50, 780, 580);
    _window->setGeometry(other);
    _bench->platform().notifications().post(NSApplicationWillTerminateNotification, nullptr);
    _window.emplace(_bench->engine());
    _window->show();
    QCOMPARE(_window->geometry(), other);
}

void MainWindowTest::theStatusLineSaysWhereTypingWouldSendAgain() {
    const auto* status = find<QLabel>(u"keyerStatusLabel"_s);
    const auto notice = u"Typing here sends again: End goes to the end"_s;
    type(u"test"_s);
    QVERIFY(!status->text().contains(notice));
    press(Qt::Key_Home);
    QVERIFY(status->text().contains(notice));
    QCOMPARE(status->accessibleDescription(), status->text());
    press(Qt::Key_End);
    QVERIFY(!status->text().contains(notice));
}

void MainWindowTest::aPlaceOnAScreenThatIsGoneIsNotTaken() {
    _window->setGeometry(20'000, 20'000, 780, 580);
    _window->close();
    _window.emplace(_bench->engine());
    _window->show();
    QVERIFY(_window->screen()->availableGeometry().intersects(_window->geometry()));
}

void MainWindowTest::theWindowComesToTheFront() {
    QWidget other;
    other.show();
    other.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&other));
    _window->comeToFront(u"token"_s);
    QVERIFY(QTest::qWaitForWindowActive(&*_window));
    QCOMPARE(qgetenv("XDG_ACTIVATION_TOKEN"), QByteArray("token"));
    qunsetenv("XDG_ACTIVATION_TOKEN");
    _window->showMinimized();
    _window->comeToFront({});
    QVERIFY(!_window->isMinimized());
    _window->close();
    _window->comeToFront({});
    QVERIFY(_window->isVisible());
    QVERIFY(!qEnvironmentVariableIsSet("XDG_ACTIVATION_TOKEN"));
}

void MainWindowTest::everyControlHasAPlaceInTheTabOrder() {
    QStringList reached;
    find<QWidget>(u"keyboardView"_s)->setFocus();
    do {
        reached.append(QApplication::focusWidget()->objectName());
        press(Qt::Key_Tab);
    } while (!QApplication::focusWidget()->objectName().startsWith(u"keyboardView") &&
             reached.size() < 100);
    const QStringList expected{u"keyboardView"_s,
                               u"hisCallsignTextField"_s,
                               u"decrementSerialNumberButton"_s,
                               u"serialNumberBox"_s,
                               u"incrementSerialNumberButton"_s,
                               u"stopButton"_s,
                               u"tuneButton"_s,
                               u"pauseButton"_s,
                               u"hscwButton"_s,
                               u"beaconButton"_s,
                               u"message1Button"_s,
                               u"message2Button"_s,
                               u"message3Button"_s,
                               u"message4Button"_s,
                               u"message5Button"_s,
                               u"message6Button"_s,
                               u"message7Button"_s,
                               u"message8Button"_s};
    QCOMPARE(reached, expected);
}

/// The first that bears a name is what somebody who goes by names finds.
void MainWindowTest::theControlsComeBeforeTheMenusForAScreenReader() {
    const std::function<QAccessibleInterface*(QAccessibleInterface*, const QString&)> first =
        [&first](QAccessibleInterface* element, const QString& name) -> QAccessibleInterface* {
        if (element->text(QAccessible::Name) == name) {
            return element;
        }
        for (int i = 0; i < element->childCount(); ++i) {
            if (auto* found = first(element->child(i), name)) {
                return found;
            }
        }
        return nullptr;
    };
    auto* window = QAccessible::queryAccessibleInterface(&*_window);
    for (const auto* name : {"Stop", "Tune", "Pause", "High-speed CW", "Beacon", "Their call",
                             "Keyboard", "Serial number", "Speed", "Keyer status"}) {
        const auto* found = first(window, QString::fromLatin1(name));
        QVERIFY2(found != nullptr, name);
        QVERIFY2(qobject_cast<QWidget*>(found->object()) != nullptr, name);
    }
}

static const RegisteredTest<MainWindowTest> registered;
#include "MainWindowTest.moc"
