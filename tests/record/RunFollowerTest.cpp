#include "keyer/KeyerSettings.h"
#include "tests/record/RunFollowerFixture.h"
#include "tests/support/RegisteredTest.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

using Ending = RecordedRun::Ending;
using Kind = TextSource::Kind;

} // namespace

class RunFollowerTest : public QObject, private RunFollowerFixture {
    Q_OBJECT

  private Q_SLOTS:
    void init() { open(); }
    void cleanup() { close(); }

    void typedWordsAreOneRun();
    void aRestEndsATypedRun();
    void lettersTypedOneByOneAreOneRun();
    void theLastLetterIsWaitedFor();
    void aMessageEndsWithItsLastEcho();
    void twoPressesAreTwoRuns();
    void aMessageIsNamedAsItWasWhenItWasPressed();
    void typingAndAMessageAreTwoRuns();
    void theBeaconIsOne();
    void aPushButtonIsOne();
    void aLoggerIsNamed();
    void tokensAreResolved();
    void aCallSignIsAsItWasSent();
    void twoCallSignsInOneText();
    void anEmptyCallSignIsNothing();
    void mergedLettersCountAsTheyAreTyped();
    void textTypedInFrontOfWhatWasSentIsARun();
    void spacesAreNoRun();
    void theSpeedIsThatOfTheBeginning();
    void highSpeedIsInLettersAMinute();
    void theTimeIsThatOfTheFirstCharacter();
    void nothingIsWrittenToTheKeyer();
};

void RunFollowerTest::typedWordsAreOneRun() {
    _bench->type(u"cq de n0call"_s);
    echoAll();
    rest();
    QCOMPARE(_runs.size(), 1);
    QCOMPARE(_runs[0].text, u"CQ DE N0CALL"_s);
    QCOMPARE(_runs[0].source.kind, Kind::Keyboard);
    QCOMPARE(_runs[0].ending, Ending::Sent);
    QCOMPARE(_runs[0].rest, u""_s);
}

void RunFollowerTest::aRestEndsATypedRun() {
    _bench->type(u"A"_s);
    echoAll();
    _bench->clock().advance(RunFollower::rest - std::chrono::milliseconds(1));
    QCOMPARE(_runs.size(), 0);
    _bench->clock().advance(std::chrono::milliseconds(1));
    QCOMPARE(texts(), QStringList{u"A"_s});
    _bench->type(u"AB"_s);
    echoAll();
    rest();
    QCOMPARE(texts(), (QStringList{u"A"_s, u"B"_s}));
}

void RunFollowerTest::lettersTypedOneByOneAreOneRun() {
    QString typed;
    for (const auto each : u"TEST DE N0CALL"_s) {
        typed += each;
        _bench->type(typed);
        echoAll();
        _bench->receive({idle});
        _bench->clock().advance(std::chrono::seconds(2));
    }
    QCOMPARE(_runs.size(), 0);
    rest();
    QCOMPARE(texts(), QStringList{u"TEST DE N0CALL"_s});
}

void RunFollowerTest::theLastLetterIsWaitedFor() {
    _bench->type(u"AB"_s);
    echo(1);
    rest();
    rest();
    QCOMPARE(_runs.size(), 0);
    echo(1);
    rest();
    QCOMPARE(texts(), QStringList{u"AB"_s});
}

void RunFollowerTest::aMessageEndsWithItsLastEcho() {
    setMessage(1, u"cq test"_s);
    press(1);
    echo(6);
    QCOMPARE(_runs.size(), 0);
    echo(1);
    QCOMPARE(_runs.size(), 1);
    QCOMPARE(_runs[0].text, u"CQ TEST"_s);
    QCOMPARE(_runs[0].source, (TextSource{Kind::Message, 1}));
    QCOMPARE(_runs[0].name, u"CQ"_s);
    QCOMPARE(_runs[0].ending, Ending::Sent);
}

void RunFollowerTest::twoPressesAreTwoRuns() {
    setMessage(8, u"agn"_s);
    press(8);
    press(8);
    echoAll();
    QCOMPARE(texts(), (QStringList{u"AGN"_s, u"AGN"_s}));
}

void RunFollowerTest::aMessageIsNamedAsItWasWhenItWasPressed() {
    press(2);
    _bench->settings().setObject(u"Other"_s, messageSettings[1].labelKey);
    echoAll();
    QCOMPARE(_runs.at(0).name, QString(messageSettings[1].labelDefault));
}

void RunFollowerTest::typingAndAMessageAreTwoRuns() {
    setMessage(3, u"tu"_s);
    _bench->type(u"R"_s);
    press(3);
    _bench->type(engine().keyboardBuffer() + u" 73"_s);
    echoAll();
    rest();
    QCOMPARE(texts(), (QStringList{u"R"_s, u"TU"_s, u"73"_s}));
    QCOMPARE(_runs[1].source.kind, Kind::Message);
    QCOMPARE(_runs[2].source.kind, Kind::Keyboard);
}

void RunFollowerTest::theBeaconIsOne() {
    setMessage(1, u"v v"_s);
    engine().setBeaconState(1);
    press(1);
    echoAll();
    QCOMPARE(_runs.at(0).source.kind, Kind::Message);
    _bench->receive({idle});
    _bench->clock().advance(std::chrono::seconds(10));
    echoAll();
    QCOMPARE(texts(), (QStringList{u"V V"_s, u"V V"_s}));
    QCOMPARE(_runs[1].source, TextSource{Kind::Beacon});
}

void RunFollowerTest::aPushButtonIsOne() {
    setMessage(2, u"5nn"_s);
    _bench->receive({0xCA});
    echoAll();
    QCOMPARE(texts(), QStringList{u"5NN"_s});
    QCOMPARE(_runs[0].source, (TextSource{Kind::PushButton, 2}));
    QCOMPARE(_runs[0].name, QString(messageSettings[1].labelDefault));
}

void RunFollowerTest::aLoggerIsNamed() {
    LoggerQueue queue(engine(), *_speed);
    queue.take(LoggerRequest::read("test"), {QHostAddress(QHostAddress::LocalHost), 4001});
    _follower->nameLogger(4001, u"tlf"_s);
    echoAll();
    rest();
    QCOMPARE(texts(), QStringList{u"TEST"_s});
    QCOMPARE(_runs[0].source, (TextSource{Kind::Logger, 4001}));
    QCOMPARE(_runs[0].name, u"tlf"_s);
}

void RunFollowerTest::tokensAreResolved() {
    _bench->settings().setObject(u"N0CALL"_s, u"MyCall"_s);
    setMessage(1, u"cq ` #"_s);
    press(1);
    echoAll();
    QCOMPARE(texts(), QStringList{u"CQ N0CALL TT1"_s});
}

void RunFollowerTest::aCallSignIsAsItWasSent() {
    engine().setHisCallsign(u"w1aw"_s);
    setMessage(5, u"~ 5nn"_s);
    press(5);
    echo(5);
    engine().setHisCallsign(u"K9ZZ"_s);
    echoAll();
    QCOMPARE(texts(), QStringList{u"W1AW 5NN"_s});
}

void RunFollowerTest::twoCallSignsInOneText() {
    engine().setHisCallsign(u"W1AW"_s);
    setMessage(5, u"~~ ~"_s);
    press(5);
    echoAll();
    QCOMPARE(texts(), QStringList{u"W1AWW1AW W1AW"_s});
}

void RunFollowerTest::anEmptyCallSignIsNothing() {
    setMessage(5, u"~ 5nn"_s);
    press(5);
    echoAll();
    QCOMPARE(texts(), QStringList{u"5NN"_s});
}

void RunFollowerTest::mergedLettersCountAsTheyAreTyped() {
    _bench->type(u"K{AR"_s);
    echo(3);
    _bench->receive({idle});
    rest();
    QCOMPARE(texts(), QStringList{u"K{AR"_s});
}

void RunFollowerTest::textTypedInFrontOfWhatWasSentIsARun() {
    _bench->type(u"AB"_s);
    echoAll();
    rest();
    _bench->type(u"XAB"_s);
    echoAll();
    rest();
    // The engine sends the last character once more, and so it says.
    QCOMPARE(texts(), (QStringList{u"AB"_s, u"B"_s}));
}

void RunFollowerTest::spacesAreNoRun() {
    _bench->type(u"  "_s);
    echoAll();
    rest();
    QCOMPARE(_runs.size(), 0);
}

void RunFollowerTest::theSpeedIsThatOfTheBeginning() {
    _bench->type(u"AB"_s);
    _speed->choose(40);
    echoAll();
    rest();
    _bench->type(u"ABC"_s);
    echoAll();
    rest();
    const auto knobs = static_cast<int>(engine().speedOfPot().value());
    QCOMPARE(_runs.at(0).wordsPerMinute, std::optional(knobs));
    QCOMPARE(_runs.at(1).wordsPerMinute, std::optional(40));
}

void RunFollowerTest::highSpeedIsInLettersAMinute() {
    _bench->settings().setObject(2000, WKHSCWSpeed);
    Control control(0);
    control.setProperty("state", 1);
    engine().setHscwState(1);
    engine().changeHSCWMode(&control);
    _bench->type(u"A"_s);
    echoAll();
    rest();
    QCOMPARE(_runs.at(0).lettersPerMinute, std::optional(2000));
    QVERIFY(!_runs.at(0).wordsPerMinute);
}

void RunFollowerTest::theTimeIsThatOfTheFirstCharacter() {
    _bench->type(u"AB"_s);
    _now += 5000;
    echoAll();
    rest();
    QCOMPARE(_runs.at(0).begun, 1'000'000);
}

void RunFollowerTest::nothingIsWrittenToTheKeyer() {
    const auto bytes = [this] {
        engine().setHisCallsign(u"W1AW"_s);
        setMessage(5, u"r ~ 5nn"_s);
        press(5);
        echoAll();
        _bench->type(engine().keyboardBuffer() + u" {AR"_s);
        echo(2);
        engine().stopMessageSending(nullptr);
        return _bench->written();
    };
    static_cast<void>(_bench->written());
    const auto with = bytes();
    _follower.reset();
    QCOMPARE(bytes(), with);
    QVERIFY(!with.isEmpty());
}

static const RegisteredTest<RunFollowerTest> registered;
#include "RunFollowerTest.moc"
