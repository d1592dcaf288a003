#include "preferences/MemoryUse.h"

#include "tests/support/RegisteredTest.h"

#include <QTest>

using namespace Qt::StringLiterals;
using MemoryUse::Share;

namespace {

using Texts = std::array<QString, KeyerMemory::messageCount>;
using Parts = std::array<Share, KeyerMemory::messageCount>;

} // namespace

class MemoryUseTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void shares_data();
    void shares();
};

void MemoryUseTest::shares_data() {
    QTest::addColumn<Texts>("texts");
    QTest::addColumn<Parts>("expected");
    QTest::addColumn<int>("used");
    const auto row = [](const char* name, const Texts& texts, const Parts& expected, int used) {
        QTest::newRow(name) << texts << expected << used;
    };

    row("empty messages take nothing", {}, {}, 0);
    row("a character takes a byte", {u"CQ"_s, u"5NN 001"_s}, {{{.bytes = 2}, {.bytes = 7}}}, 9);
    row("a message may fill all but one byte", {QString(231, u'E')}, {{{.bytes = 231}}}, 231);
    row("a message of the whole memory is one byte too long", {QString(232, u'E')},
        {{{.excess = 1}}}, 0);
    row("a message is too long for what the ones before it leave",
        {QString(200, u'E'), QString(40, u'T')}, {{{.bytes = 200}, {.excess = 9}}}, 200);
    row("a shorter one behind it still fits", {QString(200, u'E'), QString(40, u'T'), u"TU"_s},
        {{{.bytes = 200}, {.excess = 9}, {.bytes = 2}}}, 202);
    row("tokens take a byte and are silent", {u"DE `"_s, u"#"_s, u"A~`"_s},
        {{{.bytes = 4, .silent = u'`'},
          {.bytes = 1, .silent = u'#'},
          {.bytes = 3, .silent = u'~'}}},
        8);
    row("the first silent character is told", {u"E{%"_s}, {{{.bytes = 3, .silent = u'{'}}}, 3);
    row("space and bar are keyed", {u"A B|"_s}, {{{.bytes = 4}}}, 4);
    row("lower case is keyed", {u"cq"_s}, {{{.bytes = 2}}}, 2);
    row("a character outside the table is rejected", {u"M\u00dcLL"_s},
        {{{.bytes = 4, .rejected = u'\u00dc'}}}, 4);
    row("a message may be left out, rejected and silent", {QString(231, u'`') + u"\u00c4\u00d6"_s},
        {{{.excess = 2, .rejected = u'\u00c4', .silent = u'`'}}}, 0);
}

void MemoryUseTest::shares() {
    QFETCH(const Texts, texts);
    QFETCH(const Parts, expected);
    QFETCH(const int, used);
    const auto shares = MemoryUse::sharesOf(KeyerMemory::layOut(texts));
    for (std::size_t i = 0; i < expected.size(); ++i) {
        QCOMPARE(shares.messages[i].bytes, expected[i].bytes);
        QCOMPARE(shares.messages[i].excess, expected[i].excess);
        QCOMPARE(shares.messages[i].rejected, expected[i].rejected);
        QCOMPARE(shares.messages[i].silent, expected[i].silent);
        QCOMPARE(shares.messages[i].isLeftOut(), expected[i].excess > 0);
    }
    QCOMPARE(shares.usedBytes(), used);
}

static const RegisteredTest<MemoryUseTest> registered;
#include "MemoryUseTest.moc"
