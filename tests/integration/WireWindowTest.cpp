#include "app/window/MainWindow.h"
#include "keyer/GeneralSettings.h"
#include "tests/integration/Station.h"
#include "tests/support/RegisteredTest.h"

#include <QTest>
#include <QWindow>

#include <optional>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// What the operator does in the main window, as it comes out of the keyer.
class WireWindowTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup();

    void joinedLettersTypedAtRestAreKeyed();
    void aWordBehindAMessageIsKeyedApart();
    void whatIsSentInABreakInIsKeyedWhole_data();
    void whatIsSentInABreakInIsKeyedWhole();

  private:
    void press(Qt::Key key) { QTest::keyClick(_window->windowHandle(), key); }
    void type(const QString& text);
    [[nodiscard]] QString keyed();

    std::optional<Station> _station;
    std::optional<MainWindow> _window;
};

void WireWindowTest::init() {
    _station.emplace();
    _station->settings().setObject(u"N0CALL"_s, MyCall);
    QVERIFY(_station->setUp());
    _window.emplace(_station->engine());
    _window->show();
    QVERIFY(QTest::qWaitForWindowActive(&*_window));
}

void WireWindowTest::cleanup() {
    _window.reset();
    _station.reset();
}

/// With as much time between the letters as a typist takes, so that the keyer is idle in between.
void WireWindowTest::type(const QString& text) {
    for (const auto character : text) {
        QTest::keyClick(_window->windowHandle(), character.toLatin1());
        _station->pass(1500ms);
    }
}

QString WireWindowTest::keyed() {
    return _station->waitForQuiet() ? _station->keyed().simplified()
                                    : u"the keyer is never quiet"_s;
}

void WireWindowTest::joinedLettersTypedAtRestAreKeyed() {
    type(u"{sn"_s);
    QVERIFY(_station->waitForQuiet());
    // S and N without a space between them, as the keyer was told.
    QVERIFY(_station->written().contains("1b 53 4e"));
    const auto edges = _station->edges().size();
    QCOMPARE(edges, 2U * 5);
    type(u"k"_s);
    QVERIFY(_station->waitForQuiet());
    QCOMPARE(_station->edges().size(), edges + 2 * 3);
}

void WireWindowTest::aWordBehindAMessageIsKeyedApart() {
    press(Qt::Key_F2);
    QTest::keyClick(_window->windowHandle(), 't');
    QTest::keyClick(_window->windowHandle(), 'u');
    QCOMPARE(keyed(), u"5NN NH TU"_s);
}

void WireWindowTest::whatIsSentInABreakInIsKeyedWhole_data() {
    QTest::addColumn<bool>("isMessage");
    QTest::addRow("a message") << true;
    QTest::addRow("typed text") << false;
}

void WireWindowTest::whatIsSentInABreakInIsKeyedWhole() {
    QFETCH(const bool, isMessage);
    _station->setPaddle(false, true);
    QVERIFY(_station->waitUntil(
        [this] { return _station->engine().activity() == KeyerActivity::BreakIn; }));
    _station->setPaddle(false, false);
    if (isMessage) {
        press(Qt::Key_F2);
    } else {
        QTest::keyClick(_window->windowHandle(), 't');
        QTest::keyClick(_window->windowHandle(), 'u');
    }
    // The dah of the paddle, then all of it.
    QCOMPARE(keyed(), isMessage ? u"T 5NN NH"_s : u"T TU"_s);
}

static const RegisteredTest<WireWindowTest> registered;
#include "WireWindowTest.moc"
