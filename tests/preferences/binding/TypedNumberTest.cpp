#include "preferences/binding/TypedNumber.h"

#include "tests/support/RegisteredTest.h"

#include <QLocale>
#include <QTest>

#include <cmath>

using namespace Qt::StringLiterals;

class TypedNumberTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void numbers_data();
    void numbers();
    void beginnings_data();
    void beginnings();
    void otherTexts_data();
    void otherTexts();
    void aNumberLargerThanAnyIsInfinite();
};

void TypedNumberTest::numbers_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("number");
    QTest::newRow("whole") << u"300"_s << 300.0;
    QTest::newRow("negative") << u"-12"_s << -12.0;
    QTest::newRow("with a minus sign") << u"\u221212"_s << -12.0;
    QTest::newRow("with a point") << u"7.5"_s << 7.5;
    QTest::newRow("with a comma") << u"7,5"_s << 7.5;
    QTest::newRow("with an Arabic decimal sign and digits") << u"\u0667\u066b\u0665"_s << 7.5;
    QTest::newRow("three places are no thousands") << u"4.000"_s << 4.0;
    QTest::newRow("nor after a comma") << u"4,000"_s << 4.0;
    QTest::newRow("without a digit before") << u".5"_s << 0.5;
    QTest::newRow("without a digit after") << u"5,"_s << 5.0;
    QTest::newRow("between spaces") << u" 25 "_s << 25.0;
}

void TypedNumberTest::numbers() {
    QFETCH(QString, text);
    QFETCH(double, number);
    for (const auto& language : {u"en_US"_s, u"de_DE"_s, u"sv_SE"_s, u"ar_EG"_s}) {
        const auto read = TypedNumber::read(text, QLocale(language));
        if (text.contains(u'\u066b') && !language.startsWith(u"ar")) {
            QVERIFY(!read.isPossible);
            continue;
        }
        QVERIFY(read.isPossible);
        QCOMPARE(read.value, std::optional(number));
    }
}

void TypedNumberTest::beginnings_data() {
    QTest::addColumn<QString>("text");
    for (const auto& text : {u""_s, u"-"_s, u"."_s, u","_s, u"-,"_s, u" "_s}) {
        QTest::newRow(qPrintable(text + u'x')) << text;
    }
}

void TypedNumberTest::beginnings() {
    QFETCH(QString, text);
    const auto read = TypedNumber::read(text, QLocale(u"en_US"_s));
    QVERIFY(read.isPossible);
    QVERIFY(!read.value);
}

void TypedNumberTest::otherTexts_data() {
    QTest::addColumn<QString>("text");
    for (const auto& text : {u"abc"_s, u"3x"_s, u"3-"_s, u"1.2.3"_s, u"1.000,5"_s, u"3 ms"_s,
                             u"--3"_s, u"1e5"_s, u"inf"_s, u"nan"_s}) {
        QTest::newRow(qPrintable(text)) << text;
    }
}

void TypedNumberTest::otherTexts() {
    QFETCH(QString, text);
    const auto read = TypedNumber::read(text, QLocale(u"en_US"_s));
    QVERIFY(!read.isPossible);
    QVERIFY(!read.value);
}

void TypedNumberTest::aNumberLargerThanAnyIsInfinite() {
    const auto read = TypedNumber::read(QString(400, u'9'), QLocale(u"en_US"_s));
    QVERIFY(read.value && std::isinf(*read.value));
}

static const RegisteredTest<TypedNumberTest> registered;
#include "TypedNumberTest.moc"
