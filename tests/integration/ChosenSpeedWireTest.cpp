#include "keyer/ChosenSpeed.h"
#include "tests/integration/Station.h"
#include "tests/support/RegisteredTest.h"

#include <QTest>

#include <optional>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// The speed that is set from the computer, as the key line shows it.
class ChosenSpeedWireTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup();

    void itHoldsAtOnceWithinAText();
    void itOutlivesHighSpeed();
    void theKnobIsComeBackTo();

  private:
    [[nodiscard]] Station::Time lengthOf(std::size_t element) const {
        return _station->edges().at(2 * element + 1).at - _station->edges().at(2 * element).at;
    }

    std::optional<Station> _station;
    std::optional<ChosenSpeed> _speed;
};

void ChosenSpeedWireTest::init() {
    _station.emplace();
    _speed.emplace(_station->engine());
    QVERIFY(_station->setUp());
}

void ChosenSpeedWireTest::cleanup() {
    _speed.reset();
    _station.reset();
}

void ChosenSpeedWireTest::itHoldsAtOnceWithinAText() {
    _station->type(u"EEEE"_s);
    QVERIFY(_station->waitUntil([this] { return _station->edges().size() == 4; }));
    _speed->change(10);
    QVERIFY(_station->waitForQuiet());
    QCOMPARE(_station->edges().size(), 8U);
    QVERIFY(lengthOf(0) == 60ms);
    QVERIFY(lengthOf(2) == 40ms);
    QVERIFY(lengthOf(3) == 40ms);
}

void ChosenSpeedWireTest::itOutlivesHighSpeed() {
    _speed->choose(30);
    _station->type(u"%E^E"_s);
    QVERIFY(_station->waitForQuiet());
    QCOMPARE(_station->edges().size(), 4U);
    QVERIFY(lengthOf(0) == 6ms);
    QVERIFY(lengthOf(1) == 40ms);
}

void ChosenSpeedWireTest::theKnobIsComeBackTo() {
    _speed->choose(30);
    _station->setPot(24);
    _station->type(u"E"_s);
    QVERIFY(_station->waitForQuiet());
    QVERIFY(lengthOf(0) == 40ms);
    _speed->backToKnob();
    _station->type(u"EE"_s);
    QVERIFY(_station->waitForQuiet());
    QVERIFY(lengthOf(1) == 50ms);
}

static const RegisteredTest<ChosenSpeedWireTest> registered;
#include "ChosenSpeedWireTest.moc"
