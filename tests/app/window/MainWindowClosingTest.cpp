#include "tests/app/window/MainWindowFixture.h"
#include "tests/support/RegisteredTest.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// A main window that is closed while another one keeps the program running: nothing goes on that
/// nobody sees.
class MainWindowClosingTest : public QObject, private MainWindowFixture {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup() { close(); }

    void whatIsSentIsStopped();
    void whatThePaddleHoldsUpIsDropped();
    void whatWaitsForAnAnswerIsDropped();
    void whatAPauseHoldsUpIsDropped();
    void theBeaconEnds();
    void aMessageOfTheKeyersOwnIsStopped();
    void anIdleKeyerHearsNothing();

  private:
    void sendUnseen();
};

void MainWindowClosingTest::init() {
    open();
    _bench->settings().setObject(u"CQ"_s, u"Message1"_s);
    _bench->receive({0xC0});
}

/// All that lets text go.
void MainWindowClosingTest::sendUnseen() {
    _bench->receive({'C'});
    _bench->receive({0xC0});
    _bench->clock().advance(1h);
    _bench->receive({0xC4});
    _bench->receive({0xC0});
}

void MainWindowClosingTest::whatIsSentIsStopped() {
    press(Qt::Key_F1);
    QCOMPARE(_bench->written(), "43");
    _window->close();
    QCOMPARE(_bench->written(), "0a");
    sendUnseen();
    QCOMPARE(_bench->written(), "");
}

void MainWindowClosingTest::whatThePaddleHoldsUpIsDropped() {
    _bench->receive({0xC6});
    press(Qt::Key_F1);
    type(u"e"_s);
    _window->close();
    QCOMPARE(_bench->written(), "0a");
    sendUnseen();
    QCOMPARE(_bench->written(), "");
}

/// A keyer that was greeted again has told nothing of the paddle yet.
void MainWindowClosingTest::whatWaitsForAnAnswerIsDropped() {
    _bench->receive({0xC6});
    press(Qt::Key_F1);
    _bench->engine().greetAgain();
    static_cast<void>(_bench->written());
    _window->close();
    QCOMPARE(_bench->written(), "0a");
    sendUnseen();
    QCOMPARE(_bench->written(), "");
}

void MainWindowClosingTest::whatAPauseHoldsUpIsDropped() {
    _bench->engine().setPauseState(1);
    press(Qt::Key_F1);
    QCOMPARE(_bench->written(), "06 01");
    _window->close();
    QCOMPARE(_bench->written(), "0a");
    sendUnseen();
    QCOMPARE(_bench->written(), "06 00");
}

void MainWindowClosingTest::theBeaconEnds() {
    _bench->engine().setBeaconState(1);
    press(Qt::Key_F1);
    _bench->receive({'C'});
    _bench->receive({'Q'});
    _bench->receive({0xC0});
    QCOMPARE(_bench->written(), "43 51");
    _window->close();
    QCOMPARE(_bench->engine().beaconState(), 0);
    QCOMPARE(_bench->written(), "0a");
    sendUnseen();
    QCOMPARE(_bench->written(), "");
}

void MainWindowClosingTest::aMessageOfTheKeyersOwnIsStopped() {
    _bench->engine().sendStandaloneMessage(1);
    QCOMPARE(_bench->written(), "00 0e 01");
    _window->close();
    QCOMPARE(_bench->written(), "0a");
}

void MainWindowClosingTest::anIdleKeyerHearsNothing() {
    press(Qt::Key_F1);
    _bench->receive({'C'});
    _bench->receive({'Q'});
    _bench->receive({0xC0});
    static_cast<void>(_bench->written());
    _window->close();
    QCOMPARE(_bench->written(), "");
    QCOMPARE(_bench->engine().keyboardBuffer(), u"CQ"_s);
}

static const RegisteredTest<MainWindowClosingTest> registered;
#include "MainWindowClosingTest.moc"
