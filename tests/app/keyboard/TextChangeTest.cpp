#include "app/keyboard/TextChange.h"

#include "tests/support/RegisteredTest.h"

#include <QTest>

using namespace Qt::StringLiterals;

class TextChangeTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void theChangeIsTheLeastOne_data();
    void theChangeIsTheLeastOne();
    void placesMoveWithTheTextAroundThem_data();
    void placesMoveWithTheTextAroundThem();
};

void TextChangeTest::theChangeIsTheLeastOne_data() {
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    QTest::addColumn<TextChange>("change");
    QTest::addRow("equal texts") << u"AB"_s << u"AB"_s << TextChange{2, {}, {}};
    QTest::addRow("added at the end") << u"AB"_s << u"ABC"_s << TextChange{2, {}, u"C"_s};
    QTest::addRow("added at the beginning") << u"AB"_s << u"CAB"_s << TextChange{0, {}, u"C"_s};
    QTest::addRow("replaced in the middle")
        << u"AB`C"_s << u"ABN0CALLC"_s << TextChange{2, u"`"_s, u"N0CALL"_s};
    QTest::addRow("one of two equal letters removed")
        << u"AEEB"_s << u"AEB"_s << TextChange{2, u"E"_s, {}};
    QTest::addRow("all removed") << u"AB"_s << u""_s << TextChange{0, u"AB"_s, {}};
    QTest::addRow("all new") << u""_s << u"AB"_s << TextChange{0, {}, u"AB"_s};
}

void TextChangeTest::theChangeIsTheLeastOne() {
    QFETCH(const QString, before);
    QFETCH(const QString, after);
    QFETCH(const TextChange, change);
    QCOMPARE(TextChange::between(before, after), change);
    QCOMPARE(change.appliedTo(before), after);
    QCOMPARE(change.reversed().appliedTo(after), before);
}

void TextChangeTest::placesMoveWithTheTextAroundThem_data() {
    QTest::addColumn<TextChange>("change");
    QTest::addColumn<qsizetype>("place");
    QTest::addColumn<qsizetype>("start");
    QTest::addColumn<qsizetype>("end");
    const auto row = [](const char* name, const TextChange& change, int place, int start, int end) {
        QTest::addRow("%s", name) << change << qsizetype(place) << qsizetype(start)
                                  << qsizetype(end);
    };
    const TextChange insertion{3, {}, u"XY"_s};
    row("before an insertion", insertion, 2, 2, 2);
    row("at an insertion, each stays with its own side", insertion, 3, 5, 3);
    row("behind an insertion", insertion, 4, 6, 6);
    const TextChange replacement{3, u"AB"_s, u"XYZ"_s};
    row("at the beginning of what is replaced", replacement, 3, 3, 3);
    row("inside what is replaced", replacement, 4, 3, 3);
    row("at the end of what is replaced", replacement, 5, 6, 6);
}

void TextChangeTest::placesMoveWithTheTextAroundThem() {
    QFETCH(const TextChange, change);
    QFETCH(const qsizetype, place);
    QTEST(change.movedStart(place), "start");
    QTEST(change.movedEnd(place), "end");
}

static const RegisteredTest<TextChangeTest> registered;
#include "TextChangeTest.moc"
