#include "app/keyboard/KeptText.h"

#include "tests/support/RegisteredTest.h"

#include <QTest>

using namespace Qt::StringLiterals;

class KeptTextTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void whatIsCompleteIsReleased_data();
    void whatIsCompleteIsReleased();
    void itIsTakenBackFromTheEnd();
    void anOpenMergeIsDroppedAlone();
};

void KeptTextTest::whatIsCompleteIsReleased_data() {
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("released");
    QTest::addColumn<QString>("kept");
    QTest::addRow("plain text") << u"cq de"_s << u"cq de"_s << u""_s;
    QTest::addRow("a sign") << u"cq {"_s << u"cq "_s << u"{"_s;
    QTest::addRow("a sign and a letter") << u"cq {s"_s << u"cq "_s << u"{S"_s;
    QTest::addRow("a whole merge") << u"cq {snk"_s << u"cq {SNk"_s << u""_s;
    QTest::addRow("two merges") << u"{sn{ar"_s << u"{SN{AR"_s << u""_s;
    QTest::addRow("what is no letter does not count") << u"{ s~`#|{!?"_s << u"{S?"_s << u""_s;
}

void KeptTextTest::whatIsCompleteIsReleased() {
    QFETCH(const QString, typed);
    KeptText atOnce;
    atOnce.add(typed);
    QTEST(atOnce.release(), "released");
    QTEST(atOnce.all(), "kept");

    KeptText oneByOne;
    QString released;
    for (const auto character : typed) {
        oneByOne.add(QString(character));
        released += oneByOne.release();
    }
    QTEST(released, "released");
    QTEST(oneByOne.all(), "kept");
}

void KeptTextTest::itIsTakenBackFromTheEnd() {
    KeptText kept;
    kept.add(u"k{sn"_s);
    QVERIFY(kept.hasComplete());
    kept.eraseLast();
    QCOMPARE(kept.all(), u"k{S"_s);
    QCOMPARE(kept.release(), u"k"_s);
    kept.eraseLast();
    kept.eraseLast();
    QVERIFY(kept.isEmpty());
    kept.add(u"e"_s);
    QCOMPARE(kept.release(), u"e"_s);
}

void KeptTextTest::anOpenMergeIsDroppedAlone() {
    KeptText kept;
    kept.add(u"k{s"_s);
    kept.dropMerge();
    QCOMPARE(kept.all(), u"k"_s);
    kept.add(u"e"_s);
    QCOMPARE(kept.release(), u"ke"_s);
}

static const RegisteredTest<KeptTextTest> registered;
#include "KeptTextTest.moc"
