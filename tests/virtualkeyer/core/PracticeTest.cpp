#include "virtualkeyer/core/Practice.h"

#include "tests/support/RegisteredTest.h"
#include "virtualkeyer/core/MorseTable.h"
#include "virtualkeyer/core/Registers.h"

#include <QTest>

using namespace std::chrono_literals;
using namespace virtualkeyer;
using Kind = TraceElement::Kind;
using Mark = PracticeScore::Mark;

class PracticeTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void whatIsSentWellIsRight();
    void whatIsStillToComeIsNoMistake();
    void mistakesAreMarked();
    void lengthsAreMeasuredAgainstTheSpeed();
    void itBeginsAnew();
    void whatIsKeyedWithoutEndIsNotKept();

  private:
    /// Sends with all lengths `percent` of what they should be.
    void send(std::string_view text, int percent = 100) {
        const Time dit = Time{60ms} * percent / 100;
        for (const char character : text) {
            if (character == ' ') {
                _now += 4 * dit;
                continue;
            }
            for (const char element : elementsOf(character)) {
                _practice.key(true, _timing, _now);
                _now += element == '.' ? dit : 3 * dit;
                _practice.key(false, _timing, _now);
                _now += dit;
            }
            _now += 2 * dit;
        }
        _practice.advance(_now);
    }
    [[nodiscard]] int count(Mark::Kind kind) const {
        int count = 0;
        for (const Mark& mark : _practice.marks()) {
            count += mark.kind == kind ? 1 : 0;
        }
        return count;
    }

    const Timing _timing = timingOf(Registers(20)); // a dit is 60 ms
    Practice _practice;
    Time _now{0};
};

void PracticeTest::init() {
    _practice.start("CQ DE");
    _now = 1s;
}

void PracticeTest::whatIsSentWellIsRight() {
    send("CQ DE");
    QCOMPARE(_practice.sent(), std::string("CQ DE"));
    QCOMPARE(count(Mark::Kind::Right), 5);
    QCOMPARE(_practice.marks().size(), 5U);
    QVERIFY(_practice.nextEvent());
}

void PracticeTest::whatIsStillToComeIsNoMistake() {
    QVERIFY(_practice.marks().empty());
    send("CQ");
    QCOMPARE(_practice.marks().size(), 2U);
    QCOMPARE(count(Mark::Kind::Right), 2);
}

void PracticeTest::mistakesAreMarked() {
    send("CQ NE");
    QCOMPARE(count(Mark::Kind::Wrong), 1);
    QCOMPARE(count(Mark::Kind::Right), 4);
    send("E");
    QCOMPARE(count(Mark::Kind::TooMany), 1);
}

void PracticeTest::lengthsAreMeasuredAgainstTheSpeed() {
    send("CQ DE", 110);
    QCOMPARE(_practice.score().lengths(Kind::Dit).mean, 1.1);
    QCOMPARE(_practice.score().lengths(Kind::Dah).mean, 3.3);
    QCOMPARE(_practice.score().lengths(Kind::Space).mean, 1.1);
    QCOMPARE(_practice.score().lengths(Kind::LetterSpace).mean, 3.3);
    QCOMPARE(_practice.score().lengths(Kind::WordSpace).mean, 7.7);
    QCOMPARE(_practice.score().lengths(Kind::WordSpace).count, std::size_t{1});
}

void PracticeTest::itBeginsAnew() {
    send("CQ");
    _practice.start("CQ");
    QVERIFY(_practice.sent().empty());
    QCOMPARE(_practice.score().lengths(Kind::Dit).count, std::size_t{0});
    send("CQ");
    QCOMPARE(count(Mark::Kind::Right), 2);
}

void PracticeTest::whatIsKeyedWithoutEndIsNotKept() {
    send("CQ DE");
    send(std::string(1000, 'T'));
    QCOMPARE_LE(_practice.sent().size(), 40U);
    QCOMPARE(count(Mark::Kind::Right), 5);
    QCOMPARE(_practice.score().lengths(Kind::Dah).count, std::size_t{1006});
}

static const RegisteredTest<PracticeTest> registered;
#include "PracticeTest.moc"
