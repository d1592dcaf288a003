#include "portcheck/KeyerQuestion.h"

#include "tests/keyer/EngineBench.h"
#include "tests/support/RegisteredTest.h"

#include <QTest>

#include <optional>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

const auto question = QByteArray::fromHex("13131313000455");

} // namespace

class KeyerQuestionTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup();

    void aKeyerIsRecognised();
    void reportsOfAKeyerAreNoAnswer();
    void aBoardThatStartsAnewIsAskedAgain();
    void whatAnswersOtherwiseIsNoKeyer();
    void whatSaysNothingIsNoKeyer();
    void aPortInUseIsNotTouched();
    void aPortThatIsNotThereIsNoneToAsk();
    void aPortThatGoesEndsTheQuestion();
    void theEngineMayTakeThePortOver();

  private:
    void ask(const QString& port = QString(EngineBench::portName));
    /// What came of it, once it has.
    [[nodiscard]] std::optional<PortJudge::Answer> answer() const { return _answer; }

    std::optional<EngineBench> _bench;
    std::optional<KeyerQuestion> _question;
    std::optional<PortJudge::Answer> _answer;
};

void KeyerQuestionTest::init() {
    _bench.emplace();
    _answer.reset();
}

void KeyerQuestionTest::cleanup() {
    _question.reset();
    _bench.reset();
}

void KeyerQuestionTest::ask(const QString& port) {
    _question.emplace(port);
    connect(&*_question, &KeyerQuestion::answered, this,
            [this](PortJudge::Answer answer) { _answer = answer; });
    _question->ask();
}

void KeyerQuestionTest::aKeyerIsRecognised() {
    ask();
    QCOMPARE(_bench->line().read(question.size()), question);
    QVERIFY(_bench->line().write("U"));
    QTRY_VERIFY(answer() == PortJudge::Answer::Keyer);
    QVERIFY(!_bench->port().isOpen());
    QCOMPARE(_bench->port().delegate(), nullptr);
}

void KeyerQuestionTest::reportsOfAKeyerAreNoAnswer() {
    ask();
    _question->serialPortDidReceiveData(_bench->port(), "\xC0\x99");
    QVERIFY(!answer());
    _question->serialPortDidReceiveData(_bench->port(), "U");
    QVERIFY(answer() == PortJudge::Answer::Keyer);
}

void KeyerQuestionTest::aBoardThatStartsAnewIsAskedAgain() {
    ask();
    QCOMPARE(_bench->line().read(question.size()), question);
    _bench->clock().advance(2s);
    QCOMPARE(_bench->line().read(question.size()), question);
    QVERIFY(_bench->line().write("U"));
    QTRY_VERIFY(answer() == PortJudge::Answer::Keyer);
}

/// Such as a line that sends back what it gets.
void KeyerQuestionTest::whatAnswersOtherwiseIsNoKeyer() {
    ask();
    _question->serialPortDidReceiveData(_bench->port(), question);
    QVERIFY(!answer());
    _bench->clock().advance(2s);
    QVERIFY(!answer());
    _bench->clock().advance(2s);
    QVERIFY(answer() == PortJudge::Answer::SomethingElse);
    QVERIFY(!_bench->port().isOpen());
}

void KeyerQuestionTest::whatSaysNothingIsNoKeyer() {
    ask();
    _bench->clock().advance(2s);
    QVERIFY(!answer());
    _bench->clock().advance(2s);
    QVERIFY(answer() == PortJudge::Answer::Nothing);
    QVERIFY(!_bench->port().isOpen());
    QCOMPARE(_bench->line().read(2 * question.size()), question + question);
}

void KeyerQuestionTest::aPortInUseIsNotTouched() {
    QVERIFY(_bench->connect());
    ask();
    _bench->clock().advance(0s);
    QVERIFY(answer() == PortJudge::Answer::NotOpened);
    QVERIFY(_bench->port().isOpen());
    QCOMPARE(_bench->port().delegate(), &_bench->engine());
    QCOMPARE(_bench->written(), "");
}

void KeyerQuestionTest::aPortThatIsNotThereIsNoneToAsk() {
    ask(u"usbserial-none"_s);
    _bench->clock().advance(0s);
    QVERIFY(answer() == PortJudge::Answer::NotOpened);
}

void KeyerQuestionTest::aPortThatGoesEndsTheQuestion() {
    ask();
    _bench->platform().devices().unplug(_bench->device());
    QVERIFY(answer() == PortJudge::Answer::NotOpened);
    _bench->clock().advance(10s);
}

/// It is the operator who chooses the port meanwhile; nothing more is asked then.
void KeyerQuestionTest::theEngineMayTakeThePortOver() {
    ask();
    QVERIFY(_bench->engine().connect(nullptr));
    static_cast<void>(_bench->written());
    _bench->clock().advance(2s);
    QVERIFY(answer() == PortJudge::Answer::NotOpened);
    QCOMPARE(_bench->written(), "");
    _question.reset();
    QVERIFY(_bench->engine().isPortOpen());
    _bench->receive({0xC0});
    QCOMPARE(_bench->engine().activity(), KeyerActivity::Idle);
}

static const RegisteredTest<KeyerQuestionTest> registered;
#include "KeyerQuestionTest.moc"
