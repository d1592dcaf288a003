#include "translations/Translations.h"

#include "tests/support/RegisteredTest.h"

#include <QCoreApplication>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QString yes() {
    return QCoreApplication::translate("QuorvelDelegate", "Yes");
}

/// Of the toolkit's own texts.
QString cancel() {
    return QCoreApplication::translate("QPlatformTheme", "Cancel");
}

} // namespace

class TranslationsTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void theLanguagesAreThere();
    void theBestLanguageIsTaken_data();
    void theBestLanguageIsTaken();
    void theTextsAreInTheLanguage_data();
    void theTextsAreInTheLanguage();
    void theyGoWithTheObject();
};

void TranslationsTest::theLanguagesAreThere() {
    const auto languages = Translations::languages();
    for (const auto& each : {u"de"_s, u"es"_s, u"fr"_s, u"it"_s, u"ja"_s}) {
        QVERIFY2(languages.contains(each), qPrintable(languages.join(u' ')));
    }
}

void TranslationsTest::theBestLanguageIsTaken_data() {
    QTest::addColumn<QStringList>("wanted");
    QTest::addColumn<QString>("language");
    QTest::newRow("its own") << QStringList{u"de"_s} << u"de"_s;
    QTest::newRow("of its country") << QStringList{u"fr-CA"_s} << u"fr"_s;
    QTest::newRow("with its script") << QStringList{u"ja-Jpan-JP"_s} << u"ja"_s;
    QTest::newRow("none") << QStringList{u"sv-SE"_s, u"sv"_s} << QString();
    QTest::newRow("the second best") << QStringList{u"sv-SE"_s, u"sv"_s, u"it-IT"_s} << u"it"_s;
    QTest::newRow("English rather than the second best")
        << QStringList{u"en-GB"_s, u"de-DE"_s} << QString();
    QTest::newRow("without any") << QStringList{u"C"_s} << QString();
    QTest::newRow("nothing") << QStringList() << QString();
}

void TranslationsTest::theBestLanguageIsTaken() {
    QFETCH(QStringList, wanted);
    QTEST(Translations::languageFor(wanted), "language");
}

void TranslationsTest::theTextsAreInTheLanguage_data() {
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("wantedYes");
    QTest::addColumn<QString>("wantedCancel");
    QTest::newRow("German") << u"de_AT"_s << u"Ja"_s << u"Abbrechen"_s;
    QTest::newRow("Spanish") << u"es_MX"_s << u"Sí"_s << u"Cancelar"_s;
    QTest::newRow("French") << u"fr_FR"_s << u"Oui"_s << u"Annuler"_s;
    QTest::newRow("Italian") << u"it_IT"_s << u"Sì"_s << u"Annulla"_s;
    QTest::newRow("Japanese") << u"ja_JP"_s << u"はい"_s << u"キャンセル"_s;
    QTest::newRow("English") << u"en_GB"_s << u"Yes"_s << u"Cancel"_s;
    // Of which the toolkit has texts, and the program has none.
    QTest::newRow("Polish") << u"pl_PL"_s << u"Yes"_s << u"Cancel"_s;
}

void TranslationsTest::theTextsAreInTheLanguage() {
    QFETCH(QString, locale);
    const Translations translations{QLocale(locale)};
    QTEST(yes(), "wantedYes");
    QTEST(cancel(), "wantedCancel");
}

void TranslationsTest::theyGoWithTheObject() {
    {
        const Translations translations{QLocale(u"de"_s)};
        QCOMPARE(yes(), u"Ja"_s);
    }
    QCOMPARE(yes(), u"Yes"_s);
}

static const RegisteredTest<TranslationsTest> registered;
#include "TranslationsTest.moc"
