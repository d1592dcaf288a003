#include "record/TextOrigins.h"

#include "tests/support/RegisteredTest.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr TextSource keyboard{};
constexpr TextSource message{TextSource::Kind::Message, 1};
constexpr TextSource logger{TextSource::Kind::Logger, 4001};

} // namespace

class TextOriginsTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void typedTextIsOneText();
    void typedTextBehindAMessageIsAnother();
    void eachMessageIsOneOfItsOwn();
    void wordsPutInFrontOfAMessageAreTheOperators();
    void whatIsChangedWithinAMessageIsStillTheMessage();
    void whatIsTypedBehindAnEndedTextIsAnother();
    void theRestOfAnEndedTextBeginsAnew();
    void whatIsTakenOutOfALoggersTextIsKept();
    void nothingIsAddedToALoggersTextThatWasCut();
    void endedTextsAreForgotten();
    void spacesAreNoWords();
    void aPlaceBeyondTheTextIsNobodys();
};

void TextOriginsTest::typedTextIsOneText() {
    TextOrigins origins;
    origins.follow(u"C"_s, 0, keyboard, {});
    origins.follow(u"CQ"_s, 0, keyboard, {});
    QCOMPARE(origins.take(0), origins.take(1));
    QCOMPARE(origins.textFrom(0, origins.take(0)), u"CQ"_s);
}

void TextOriginsTest::typedTextBehindAMessageIsAnother() {
    TextOrigins origins;
    origins.follow(u"CQ"_s, 0, message, u"Call"_s);
    origins.follow(u"CQ K"_s, 0, keyboard, {});
    QCOMPARE(origins.take(0)->name, u"Call"_s);
    QCOMPARE(origins.textFrom(0, origins.take(0)), u"CQ"_s);
    QCOMPARE(origins.textFrom(0, origins.take(3)), u" K"_s);
    QCOMPARE(origins.take(3)->source, keyboard);
}

void TextOriginsTest::eachMessageIsOneOfItsOwn() {
    TextOrigins origins;
    origins.follow(u"CQ"_s, 0, message, {});
    origins.follow(u"CQ CQ"_s, 0, message, {});
    QVERIFY(origins.take(0) != origins.take(3));
}

void TextOriginsTest::wordsPutInFrontOfAMessageAreTheOperators() {
    TextOrigins origins;
    origins.follow(u"TU"_s, 0, keyboard, {});
    origins.follow(u"TU 73"_s, 0, message, {});
    origins.follow(u"TU OM 73"_s, 0, keyboard, {});
    QCOMPARE(origins.textFrom(0, origins.take(0)), u"TU OM"_s);
    QCOMPARE(origins.take(7)->source, message);
}

void TextOriginsTest::whatIsChangedWithinAMessageIsStillTheMessage() {
    TextOrigins origins;
    origins.follow(u"CQ TEST"_s, 0, message, {});
    origins.follow(u"CQ DX TEST"_s, 0, keyboard, {});
    QCOMPARE(origins.textFrom(0, origins.take(0)), u"CQ DX TEST"_s);
}

void TextOriginsTest::whatIsTypedBehindAnEndedTextIsAnother() {
    TextOrigins origins;
    origins.follow(u"A"_s, 0, keyboard, {});
    const auto first = origins.take(0);
    first->hasEnded = true;
    origins.follow(u"AB"_s, 1, keyboard, {});
    QVERIFY(origins.take(1) != first);
    QCOMPARE(origins.textFrom(0, first), u"A"_s);
}

void TextOriginsTest::theRestOfAnEndedTextBeginsAnew() {
    TextOrigins origins;
    origins.follow(u"CQ TEST"_s, 0, message, u"Call"_s);
    const auto first = origins.take(0);
    first->hasEnded = true;
    const auto rest = origins.take(3);
    QVERIFY(rest != first);
    QCOMPARE(rest->name, u"Call"_s);
    QCOMPARE(origins.textFrom(0, rest), u"TEST"_s);
    QCOMPARE(origins.textFrom(0, first), u"CQ "_s);
}

void TextOriginsTest::whatIsTakenOutOfALoggersTextIsKept() {
    TextOrigins origins;
    origins.follow(u"K TEST 599"_s, 0, logger, {});
    origins.follow(u"K TEST"_s, 4, keyboard, {});
    QCOMPARE(origins.take(0)->takenOut, u" 599"_s);
    origins.follow(u"K T"_s, 4, keyboard, {});
    // The first of what is gone was sent.
    QCOMPARE(origins.take(0)->takenOut, u" 599ST"_s);
}

void TextOriginsTest::nothingIsAddedToALoggersTextThatWasCut() {
    TextOrigins origins;
    origins.follow(u"TEST"_s, 0, logger, {});
    origins.follow(u"TE"_s, 2, keyboard, {});
    origins.follow(u"TEAGN"_s, 2, logger, {});
    QVERIFY(origins.take(2) != origins.take(1));
    QCOMPARE(origins.take(2)->source, logger);
}

void TextOriginsTest::endedTextsAreForgotten() {
    TextOrigins origins;
    QString text;
    for (int i = 0; i < 100; ++i) {
        text += u"A "_s;
        origins.follow(text, text.size(), message, {});
        origins.take(text.size() - 1)->hasEnded = true;
        origins.settle();
    }
    const auto last = origins.take(0);
    QCOMPARE(last->source, keyboard);
    QCOMPARE(origins.textFrom(0, last), text.first(196 + 2).chopped(2) + u"A "_s);
}

void TextOriginsTest::spacesAreNoWords() {
    TextOrigins origins;
    origins.follow(u"A "_s, 0, keyboard, {});
    origins.follow(u"A  B "_s, 0, message, {});
    const auto typed = origins.take(0);
    QVERIFY(origins.hasWordsFrom(0, typed));
    QVERIFY(!origins.hasWordsFrom(1, typed));
    QVERIFY(origins.hasWordsFrom(1, origins.take(3)));
    QVERIFY(!origins.hasWordsFrom(4, origins.take(3)));
    QVERIFY(!origins.hasWordsFrom(5, origins.take(3)));
}

void TextOriginsTest::aPlaceBeyondTheTextIsNobodys() {
    TextOrigins origins;
    QCOMPARE(origins.take(5)->source, keyboard);
}

static const RegisteredTest<TextOriginsTest> registered;
#include "TextOriginsTest.moc"
