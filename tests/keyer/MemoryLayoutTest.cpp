#include "keyer/KeyerMemory.h"

#include "tests/support/RegisteredTest.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// What is told of a message.
struct Part {
    int bytes = 0;
    int excess = 0;
    std::optional<QChar> rejected = {};
    std::optional<QChar> silent = {};
    std::optional<QChar> ending = {};
};

using Texts = std::array<QString, KeyerMemory::messageCount>;
using Parts = std::array<Part, KeyerMemory::messageCount>;

} // namespace

class MemoryLayoutTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void parts_data();
    void parts();
};

void MemoryLayoutTest::parts_data() {
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
    row("a dollar sign ends the message", {u"A$B"_s, u"TU$"_s},
        {{{.bytes = 3, .ending = u'$'}, {.bytes = 3, .ending = u'$'}}}, 6);
    row("space and bar are keyed", {u"A B|"_s}, {{{.bytes = 4}}}, 4);
    row("lower case is keyed", {u"cq"_s}, {{{.bytes = 2}}}, 2);
    row("a character outside the table is rejected", {u"M\u00dcLL"_s},
        {{{.bytes = 4, .rejected = u'\u00dc'}}}, 4);
    row("a message may be left out, rejected and silent", {QString(231, u'`') + u"\u00c4\u00d6"_s},
        {{{.excess = 2, .rejected = u'\u00c4', .silent = u'`'}}}, 0);
}

void MemoryLayoutTest::parts() {
    QFETCH(const Texts, texts);
    QFETCH(const Parts, expected);
    QFETCH(const int, used);
    const auto layout = KeyerMemory::layOut(texts);
    for (std::size_t i = 0; i < expected.size(); ++i) {
        const auto& message = layout.messages[i];
        QCOMPARE(message.bytes(), expected[i].bytes);
        QCOMPARE(message.excess, expected[i].excess);
        QCOMPARE(message.rejected, expected[i].rejected);
        QCOMPARE(message.silent, expected[i].silent);
        QCOMPARE(message.ending, expected[i].ending);
        QCOMPARE(message.isLeftOut(), expected[i].excess > 0);
    }
    QCOMPARE(layout.usedBytes(), used);
}

static const RegisteredTest<MemoryLayoutTest> registered;
#include "MemoryLayoutTest.moc"
