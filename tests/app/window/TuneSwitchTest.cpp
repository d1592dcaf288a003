#include "app/window/TuneSwitch.h"

#include "app/QuorvelDelegate.h"
#include "app/window/MainWindow.h"
#include "keyer/GeneralSettings.h"
#include "tests/keyer/EngineBench.h"
#include "tests/support/RegisteredTest.h"
#include "tests/support/SystemCallFaults.h"

#include <QAccessible>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTest>

#include <cerrno>
#include <optional>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class TuneSwitchTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup();

    void keysDownAndUp();
    void aSwitchThatAnotherOneTurnsFollows();
    void theWindowSaysThatItTransmits();
    void escapeLetsGo();
    void stopLetsGo();
    void aStopFromElsewhereLetsGo();
    void losingThePortLetsGo();
    void aRemovedPortLetsGo();
    void anotherChoiceOfPortKeysUpBeforeItDisconnects();
    void quittingKeysUpBeforeItDisconnects();
    void quittingKeysUpAlsoWhenTheKeyerTellsNothingOfATune();
    void closingTheWindowLetsGo();
    void letsGoWhateverTheButtonShows();
    void aKeyerThatIsGreetedAgainIsKeyedUp();
    void sleepLetsGo();
    void theSecondsAreShown();
    void theLimitLetsGoAndSaysSo();
    void onlyAKeyerCanBeTuned();
    void aLoadOfTheKeyersMemoryLetsGoFirst();
    void thereIsNoTuneWhileTheKeyersMemoryIsLoaded();
    void whateverIsSentLetsGoFirst_data();
    void whateverIsSentLetsGoFirst();
    void aMessageOfTheKeyersOwnLetsGoFirst();
    void textThatIsHeldBackLetsGoOnlyWhenItGoes();
    void stopsWhatIsBeingSent();
    void thePaddleEndsIt();
    void aKeyerThatKeysNoMoreEndsIt();
    void whatTheKeyerToldBeforeDoesNotEndIt();
    void escapeWithoutATuneKeysNothing();
    void aKeyUpThatTheLineRefusesGoesWithTheNextStop_data();
    void aKeyUpThatTheLineRefusesGoesWithTheNextStop();
    void aKeyUpThatTheLineTakesHalfOfGoesOnWithTheStop();

  private:
    void tune();
    [[nodiscard]] bool isTransmittingShown();

    std::optional<EngineBench> _bench;
    std::optional<QuorvelDelegate> _delegate;
    std::optional<MainWindow> _window;
    QPushButton* _button = nullptr;
};

void TuneSwitchTest::init() {
    _bench.emplace();
    _delegate.emplace(_bench->engine());
    _window.emplace(_bench->engine());
    QObject::connect(&*_delegate, &QuorvelDelegate::willDisconnect, &*_window,
                     &MainWindow::silenceKeyer);
    QVERIFY(_bench->connect());
    // A keyer that says nothing is greeted again.
    _bench->receive({0xC8});
    _window->show();
    QVERIFY(QTest::qWaitForWindowActive(&*_window));
    _button = _window->findChild<QPushButton*>(u"tuneButton"_s);
}

void TuneSwitchTest::cleanup() {
    _window.reset();
    _delegate.reset();
    _bench.reset();
}

void TuneSwitchTest::tune() {
    QTest::mouseClick(_button, Qt::LeftButton);
    QCOMPARE(_bench->written(), "0b 01");
    QCOMPARE(_bench->engine().tuneState(), 1);
}

bool TuneSwitchTest::isTransmittingShown() {
    const auto* warning = _window->findChild<QLabel*>(u"tuneWarning"_s);
    const auto* status = _window->findChild<QLabel*>(u"keyerStatusLabel"_s);
    const QList<bool> signs{warning->isVisible(), status->text().contains(u"tune is on"),
                            _window->windowTitle().contains(u"TRANSMITTING"), _button->isChecked()};
    if (signs.contains(true) && signs.contains(false)) {
        qWarning() << "The window contradicts itself:" << signs;
        return !_bench->engine().tuneState();
    }
    return signs.constFirst();
}

void TuneSwitchTest::keysDownAndUp() {
    tune();
    QTest::mouseClick(_button, Qt::LeftButton);
    QCOMPARE(_bench->written(), "0b 00");
    QCOMPARE(_bench->engine().tuneState(), 0);
}

void TuneSwitchTest::aSwitchThatAnotherOneTurnsFollows() {
    _bench->engine().setTuneState(1);
    QVERIFY(_button->isChecked());
    _bench->engine().setTuneState(0);
    QVERIFY(!_button->isChecked());
    QCOMPARE(_bench->written(), "");
}

void TuneSwitchTest::theWindowSaysThatItTransmits() {
    QVERIFY(!isTransmittingShown());
    tune();
    QVERIFY(isTransmittingShown());
    auto* warning = _window->findChild<QLabel*>(u"tuneWarning"_s);
    QVERIFY(warning->text().contains(u"TRANSMITTING: tune is on. Press Esc to let go."_s));
    QCOMPARE(QAccessible::queryAccessibleInterface(warning)->text(QAccessible::Name),
             warning->text());
    QTest::mouseClick(_button, Qt::LeftButton);
    QVERIFY(!isTransmittingShown());
}

void TuneSwitchTest::escapeLetsGo() {
    tune();
    QTest::keyClick(_window->windowHandle(), Qt::Key_Escape);
    QCOMPARE(_bench->written(), "0b 00 0a");
    QVERIFY(!isTransmittingShown());
}

void TuneSwitchTest::stopLetsGo() {
    tune();
    QTest::mouseClick(_window->findChild<QPushButton*>(u"stopButton"_s), Qt::LeftButton);
    QCOMPARE(_bench->written(), "0b 00 0a");
    QVERIFY(!isTransmittingShown());
}

void TuneSwitchTest::aStopFromElsewhereLetsGo() {
    tune();
    _bench->engine().stopMessageSending(nullptr);
    QCOMPARE(_bench->written(), "0a 0b 00");
    QVERIFY(!isTransmittingShown());
}

void TuneSwitchTest::losingThePortLetsGo() {
    tune();
    QVERIFY(_bench->engine().disconnect(nullptr));
    QVERIFY(!isTransmittingShown());
}

void TuneSwitchTest::aRemovedPortLetsGo() {
    _delegate->applicationDidFinishLaunching();
    QVERIFY(_bench->engine().isConnected());
    static_cast<void>(_bench->written());
    tune();
    _bench->platform().devices().unplug(_bench->device());
    QVERIFY(!_bench->engine().isConnected());
    QVERIFY(!isTransmittingShown());
}

void TuneSwitchTest::anotherChoiceOfPortKeysUpBeforeItDisconnects() {
    tune();
    const auto before = _bench->clock().now();
    Clock::Duration keyUp{-1};
    QObject::connect(&_bench->engine(), &WinKeyerUsb::tuneStateChanged, &*_window,
                     [&] { keyUp = _bench->clock().now(); });
    _bench->settings().setObject(u"None"_s, WKPortName);
    _delegate->changeSerialPort(nullptr);
    QCOMPARE(keyUp, before);
    QCOMPARE(_bench->written(), "0b 00 0a 00 03");
    QVERIFY(!isTransmittingShown());
}

void TuneSwitchTest::quittingKeysUpBeforeItDisconnects() {
    tune();
    const auto before = _bench->clock().now();
    Clock::Duration keyUp{-1};
    QObject::connect(&_bench->engine(), &WinKeyerUsb::tuneStateChanged, &*_window,
                     [&] { keyUp = _bench->clock().now(); });
    _delegate->applicationShouldTerminate();
    QCOMPARE(keyUp, before);
    QCOMPARE(_bench->written(), "0b 00 0a 00 03");
}

/// Its last word is of the text before.
void TuneSwitchTest::quittingKeysUpAlsoWhenTheKeyerTellsNothingOfATune() {
    _bench->type(u"E"_s);
    _bench->receive({'E'});
    static_cast<void>(_bench->written());
    tune();
    _bench->receive({0xC0});
    QCOMPARE(_bench->engine().tuneState(), 1);
    static_cast<void>(_bench->written());
    _delegate->applicationShouldTerminate();
    QCOMPARE(_bench->written(), "0b 00 0a 00 03");
}

void TuneSwitchTest::closingTheWindowLetsGo() {
    tune();
    _window->close();
    QCOMPARE(_bench->written(), "0b 00 0a");
    QCOMPARE(_bench->engine().tuneState(), 0);
}

void TuneSwitchTest::letsGoWhateverTheButtonShows() {
    tune();
    const QSignalBlocker nobodyFollows(_bench->engine());
    _window->close();
    QVERIFY(_button->isChecked());
    QCOMPARE(_bench->written(), "0b 00 0a");
}

void TuneSwitchTest::aKeyerThatIsGreetedAgainIsKeyedUp() {
    tune();
    _bench->engine().greetAgain();
    const auto written = _bench->written();
    QVERIFY2(written.startsWith("13 13 13 13 00 04 55 00 02"), written);
    QVERIFY2(written.endsWith("07 0b 00"), written);
    QVERIFY(!isTransmittingShown());
}

void TuneSwitchTest::sleepLetsGo() {
    tune();
    _bench->platform().notifications().post(NSWorkspaceWillSleepNotification, nullptr);
    QCOMPARE(_bench->engine().tuneState(), 0);
    _bench->platform().notifications().post(NSWorkspaceDidWakeNotification, nullptr);
    QVERIFY(_bench->written().startsWith("0b 00 0a 00 03"));
    QVERIFY(!isTransmittingShown());
}

void TuneSwitchTest::theSecondsAreShown() {
    const auto* warning = _window->findChild<QLabel*>(u"tuneWarning"_s);
    tune();
    QVERIFY(warning->text().endsWith(u"  0 s"));
    _bench->clock().advance(12s);
    QVERIFY(warning->text().endsWith(u"  12 s"));
    QTest::mouseClick(_button, Qt::LeftButton);
    _bench->settings().setObject(u"30 s"_s, TuneLimit.key);
    static_cast<void>(_bench->written());
    tune();
    _bench->clock().advance(12s);
    QVERIFY(warning->text().endsWith(u"  12 s, lets go in 18 s"));
}

void TuneSwitchTest::theLimitLetsGoAndSaysSo() {
    _bench->settings().setObject(u"10 s"_s, TuneLimit.key);
    tune();
    _bench->clock().advance(9999ms);
    QCOMPARE(_bench->written(), "");
    _bench->clock().advance(1ms);
    QCOMPARE(_bench->written(), "0b 00");
    QVERIFY(!isTransmittingShown());
    const auto* notice = _window->findChild<QLabel*>(u"noticeLabel"_s);
    QVERIFY(notice->isVisible());
    QCOMPARE(notice->text(), u"Tune was let go of after 10 s."_s);
    _bench->clock().advance(1min);
    QCOMPARE(_bench->written(), "");
}

void TuneSwitchTest::onlyAKeyerCanBeTuned() {
    QVERIFY(_button->isEnabled());
    const auto reason = _button->toolTip();
    QVERIFY(_bench->engine().disconnect(nullptr));
    QVERIFY(!_button->isEnabled());
    QVERIFY(_button->toolTip().contains(u"none is connected"));
    QTest::keyClick(_window->windowHandle(), Qt::Key_T, Qt::ControlModifier);
    QCOMPARE(_bench->engine().tuneState(), 0);
    QVERIFY(_bench->connect());
    QVERIFY(_button->isEnabled());
    QCOMPARE(_button->toolTip(), reason);
}

void TuneSwitchTest::aLoadOfTheKeyersMemoryLetsGoFirst() {
    tune();
    QVERIFY(_bench->engine().writeEeprom(nullptr));
    QVERIFY(_bench->written().startsWith("0b 00 00 0d a5"));
    QVERIFY(!isTransmittingShown());
}

void TuneSwitchTest::thereIsNoTuneWhileTheKeyersMemoryIsLoaded() {
    QVERIFY(_bench->engine().writeEeprom(nullptr));
    static_cast<void>(_bench->written());
    QVERIFY(!_button->isEnabled());
    QVERIFY(_button->toolTip().contains(u"being loaded"));
    QTest::keyClick(_window->windowHandle(), Qt::Key_T, Qt::ControlModifier);
    _button->toggle(); // as what asks nobody whether it is on
    QVERIFY(!_button->isChecked());
    QCOMPARE(_bench->written(), "");
    _bench->clock().advance(std::chrono::seconds(3));
    tune();
}

void TuneSwitchTest::whateverIsSentLetsGoFirst_data() {
    QTest::addColumn<QString>("how");
    QTest::newRow("a message") << u"message"_s;
    QTest::newRow("a typed letter") << u"letter"_s;
    QTest::newRow("a push-button of the keyer") << u"button"_s;
    QTest::newRow("the beacon") << u"beacon"_s;
}

void TuneSwitchTest::whateverIsSentLetsGoFirst() {
    QFETCH(QString, how);
    auto& engine = _bench->engine();
    _bench->settings().setObject(u"ET"_s, u"Message1"_s);
    engine.setBeaconState(1);
    engine.appendMessage(u"E"_s);
    for (const int byte : {int('E'), 0xC0}) {
        _bench->receive({byte});
    }
    engine.setKeyboardBuffer(u""_s);
    engine.textDidChange();
    static_cast<void>(_bench->written());
    tune();
    if (how == u"message") {
        QTest::keyClick(_window->windowHandle(), Qt::Key_F1);
    } else if (how == u"letter") {
        QTest::keyClick(_window->windowHandle(), Qt::Key_E);
    } else if (how == u"button") {
        _bench->receive({0xC9});
    } else {
        _bench->clock().advance(std::chrono::seconds(9));
    }
    QCOMPARE(_bench->written(), "0b 00 45");
    QVERIFY(!isTransmittingShown());
}

void TuneSwitchTest::aMessageOfTheKeyersOwnLetsGoFirst() {
    tune();
    _bench->engine().sendStandaloneMessage(2);
    QCOMPARE(_bench->written(), "0b 00 00 0e 02");
    QVERIFY(!isTransmittingShown());
}

void TuneSwitchTest::textThatIsHeldBackLetsGoOnlyWhenItGoes() {
    _bench->engine().setPauseState(1);
    _bench->type(u"E"_s);
    static_cast<void>(_bench->written());
    tune();
    _bench->type(u"ET"_s);
    QCOMPARE(_bench->written(), "");
    QVERIFY(isTransmittingShown());
    _bench->engine().setPauseState(0);
    QCOMPARE(_bench->written(), "06 00 0b 00 45");
    QVERIFY(!isTransmittingShown());
}

void TuneSwitchTest::stopsWhatIsBeingSent() {
    _bench->type(u"PARIS"_s);
    static_cast<void>(_bench->written());
    QTest::mouseClick(_button, Qt::LeftButton);
    QCOMPARE(_bench->written(), "0a 0b 01");
    QCOMPARE(_bench->engine().keyboardBuffer(), u""_s);
    // The end of what was sent, and the beginning of the tune.
    for (const int byte : {0xC0, int('P'), 0xD0, 0xD4}) {
        _bench->receive({byte});
    }
    QVERIFY(isTransmittingShown());
    QCOMPARE(_bench->written(), "");
}

void TuneSwitchTest::thePaddleEndsIt() {
    tune();
    _bench->receive({0xD4});
    _bench->receive({0xC6});
    QVERIFY(!isTransmittingShown());
    QCOMPARE(_bench->written(), "0b 00");
}

void TuneSwitchTest::aKeyerThatKeysNoMoreEndsIt() {
    tune();
    _bench->receive({0xD4});
    QVERIFY(isTransmittingShown());
    _bench->receive({0xC0});
    QVERIFY(!isTransmittingShown());
    static_cast<void>(_bench->written());
    // One that told nothing of the tune.
    tune();
    _bench->clock().advance(std::chrono::seconds(1));
    _bench->receive({0xC0});
    QVERIFY(!isTransmittingShown());
}

void TuneSwitchTest::whatTheKeyerToldBeforeDoesNotEndIt() {
    tune();
    _bench->clock().advance(std::chrono::milliseconds(60));
    _bench->receive({0xC0});
    QVERIFY(isTransmittingShown());
    _bench->receive({0xD4});
    QVERIFY(isTransmittingShown());
}

void TuneSwitchTest::escapeWithoutATuneKeysNothing() {
    QTest::keyClick(_window->windowHandle(), Qt::Key_Escape);
    QCOMPARE(_bench->written(), "0a");
}

void TuneSwitchTest::aKeyUpThatTheLineRefusesGoesWithTheNextStop_data() {
    QTest::addColumn<bool>("isByEscape");
    QTest::newRow("let go by Escape") << true;
    QTest::newRow("let go by the switch") << false;
}

/// What the line did not take is kept, and goes ahead of what is written next.
void TuneSwitchTest::aKeyUpThatTheLineRefusesGoesWithTheNextStop() {
    QFETCH(bool, isByEscape);
    tune();
    SystemCallFaults faults;
    faults.fail(SystemCall::Write, EAGAIN);
    if (isByEscape) {
        QTest::keyClick(_window->windowHandle(), Qt::Key_Escape);
    } else {
        QTest::mouseClick(_button, Qt::LeftButton);
    }
    QVERIFY(faults.count(SystemCall::Write) > 0);
    faults.mend();
    QTest::keyClick(_window->windowHandle(), Qt::Key_Escape);
    const auto written = _bench->written();
    QVERIFY2(written == (isByEscape ? "0b 00 0a 0a" : "0b 00 0a"), written);
}

void TuneSwitchTest::aKeyUpThatTheLineTakesHalfOfGoesOnWithTheStop() {
    tune();
    SystemCallFaults faults;
    faults.shortenNextWrite(1);
    QTest::keyClick(_window->windowHandle(), Qt::Key_Escape);
    QCOMPARE(_bench->written(), "0b 00 0a");
}

static const RegisteredTest<TuneSwitchTest> registered;
#include "TuneSwitchTest.moc"
