#include "tests/support/RegisteredTest.h"
#include "tests/virtualkeyer/script/ScriptBench.h"

#include <QTest>

using namespace Qt::StringLiterals;

/// What each way of keying makes of the same movements of the paddle, at 20 words per minute: a dit
/// is 60 ms.
class ScriptPaddleTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void movementsMakeLetters_data();
    void movementsMakeLetters();
};

void ScriptPaddleTest::movementsMakeLetters_data() {
    QTest::addColumn<QString>("movements");
    QTest::addColumn<QString>("iambicB");
    QTest::addColumn<QString>("iambicA");
    QTest::addColumn<QString>("ultimatic");
    QTest::addColumn<QString>("bug");
    const auto row = [](const char* name, const QString& movements, const char* iambicB,
                        const char* iambicA, const char* ultimatic, const char* bug) {
        QTest::newRow(name) << movements << QString::fromLatin1(iambicB)
                            << QString::fromLatin1(iambicA) << QString::fromLatin1(ultimatic)
                            << QString::fromLatin1(bug);
    };
    row("a dit", u"paddle dit down\nafter 0.03 paddle dit up"_s, "E", "E", "E", "E");
    row("three dits held", u"paddle dit down\nafter 0.25 paddle dit up"_s, "S", "S", "S", "S");
    row("a dah", u"paddle dah down\nafter 0.15 paddle dah up"_s, "T", "T", "T", "T");
    row("a dah held for two, which by hand are one long one",
        u"paddle dah down\nafter 0.3 paddle dah up"_s, "M", "M", "M", "T");
    row("a squeeze let go in the second element, dah first",
        u"paddle dah down\npaddle dit down\nafter 0.33 paddle both up"_s, "K", "N", "N", "T");
    row("the same, dit first; by hand the dah is only as long as it was held",
        u"paddle dit down\npaddle dah down\nafter 0.2 paddle both up"_s, "R", "A", "A", "I");
}

void ScriptPaddleTest::movementsMakeLetters() {
    QFETCH(QString, movements);
    const std::array<std::pair<const char*, const char*>, 4> modes{
        {{"iambicB", "00"}, {"iambicA", "10"}, {"ultimatic", "20"}, {"bug", "30"}}};
    for (const auto& [column, mode] : modes) {
        ScriptBench bench;
        bench.run(u"send 00 02 0E %1 02 14\nat 1 "_s.arg(QLatin1String(mode)) + movements +
                  u"\nafter 2 expect keyed \"%1\""_s.arg(
                      *static_cast<const QString*>(QTest::qData(column, QMetaType::QString))));
        QVERIFY2(bench.disappointments.isEmpty(),
                 qPrintable(QLatin1String(column) + bench.disappointments.join(u' ')));
    }
}

static const RegisteredTest<ScriptPaddleTest> registered;
#include "ScriptPaddleTest.moc"
