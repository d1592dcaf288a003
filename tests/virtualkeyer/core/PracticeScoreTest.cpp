#include "virtualkeyer/core/PracticeScore.h"

#include "tests/support/RegisteredTest.h"

#include <QTest>

using namespace std::chrono_literals;
using namespace virtualkeyer;
using Kind = TraceElement::Kind;

class PracticeScoreTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void lettersAreCompared_data();
    void lettersAreCompared();
    void lengthsAreCollectedInDits();
    void lengthsFarOffAreInTheOutermostBins();
    void aPauseIsNoLength();
};

/// `.` for right, otherwise what was wanted and what was sent.
static QByteArray shown(const std::vector<PracticeScore::Mark>& marks) {
    QByteArray text;
    for (const PracticeScore::Mark& mark : marks) {
        switch (mark.kind) {
        case PracticeScore::Mark::Kind::Right:
            text += mark.wanted == mark.sent ? "." : "?";
            break;
        case PracticeScore::Mark::Kind::Wrong:
            text += QByteArray("[") + mark.wanted + mark.sent + "]";
            break;
        case PracticeScore::Mark::Kind::Missing:
            text += QByteArray("-") + mark.wanted;
            break;
        case PracticeScore::Mark::Kind::TooMany:
            text += QByteArray("+") + mark.sent;
            break;
        }
    }
    return text;
}

void PracticeScoreTest::lettersAreCompared_data() {
    QTest::addColumn<QByteArray>("wanted");
    QTest::addColumn<QByteArray>("sent");
    QTest::addColumn<QByteArray>("marks");
    const auto row = [](const char* wanted, const char* sent, const char* marks) {
        QTest::addRow("%s|%s", wanted, sent)
            << QByteArray(wanted) << QByteArray(sent) << QByteArray(marks);
    };
    row("", "", "");
    row("PARIS", "PARIS", ".....");
    row("paris  cq ", " PARIS CQ", "........");
    row("PARIS", "PAXIS", "..[RX]..");
    row("PARIS", "PAIS", "..-R..");
    row("PARIS", "PARRIS", "...+R..");
    row("PARIS", "PAR", "...");
    row("CQ CQ DE N0CALL", "E", "[CE]");
    row("THE QUICK BROWN FOX", "THX", "..[EX]");
    row("PARIS PARIS", "PAS", "..[RS]");
    row("PAR", "PARIS", "...+I+S");
    row("CQ CQ", "CQCQ", "..- ..");
    row("CQ", "C Q", ".+ .");
    row("ABCDEFG", "ABXYFG", "..[CX][DY]-E..");
}

void PracticeScoreTest::lettersAreCompared() {
    QFETCH(QByteArray, wanted);
    QFETCH(QByteArray, sent);
    const auto marks =
        PracticeScore::compare({wanted.data(), static_cast<std::size_t>(wanted.size())},
                               {sent.data(), static_cast<std::size_t>(sent.size())});
    QTEST(shown(marks), "marks");
}

void PracticeScoreTest::lengthsAreCollectedInDits() {
    PracticeScore score;
    score.add({{0ms, 60ms}, Kind::Dit}, 60ms);
    score.add({{0ms, 72ms}, Kind::Dit}, 60ms);
    score.add({{0ms, 360ms}, Kind::WordSpace}, 60ms);
    const auto& dits = score.lengths(Kind::Dit);
    QCOMPARE(dits.count, std::size_t{2});
    QCOMPARE(dits.mean, 1.1);
    QCOMPARE(dits.bins[10], std::size_t{1});
    QCOMPARE(dits.bins[14], std::size_t{1});
    QCOMPARE(score.lengths(Kind::WordSpace).ideal, 7.0);
    QCOMPARE(score.lengths(Kind::WordSpace).mean, 6.0);
    QCOMPARE(score.lengths(Kind::Dah).count, std::size_t{0});
}

void PracticeScoreTest::lengthsFarOffAreInTheOutermostBins() {
    PracticeScore score;
    score.add({{0ms, 600ms}, Kind::Dah}, 60ms);
    score.add({{0ms, 1ms}, Kind::Dah}, 60ms);
    QCOMPARE(score.lengths(Kind::Dah).bins.front(), std::size_t{1});
    QCOMPARE(score.lengths(Kind::Dah).bins.back(), std::size_t{1});
}

void PracticeScoreTest::aPauseIsNoLength() {
    PracticeScore score;
    score.add({{0s, 60s}, Kind::Pause}, 60ms);
    for (const Kind kind :
         {Kind::Dit, Kind::Dah, Kind::Space, Kind::LetterSpace, Kind::WordSpace}) {
        QCOMPARE(score.lengths(kind).count, std::size_t{0});
    }
}

static const RegisteredTest<PracticeScoreTest> registered;
#include "PracticeScoreTest.moc"
