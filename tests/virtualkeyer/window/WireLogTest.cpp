#include "virtualkeyer/window/WireLog.h"

#include "tests/support/RegisteredTest.h"
#include "virtualkeyer/window/WireLogFilter.h"

#include <QAbstractItemModelTester>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace virtualkeyer;
using Kind = WireLine::Kind;

namespace {

const std::vector<WireLine> conversation{
    {.kind = Kind::Restarted, .at = 0s, .bytes = {}},
    {.kind = Kind::Command, .at = 1234ms, .bytes = {0x04, 0x00, 0x0A}},
    {.kind = Kind::Command, .at = 2s, .bytes = {'C'}},
    {.kind = Kind::Status, .at = 2010ms, .bytes = {0xC4}},
    {.kind = Kind::Echo, .at = 3s, .bytes = {'C'}},
};

} // namespace

class WireLogTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void aRowSaysWhenWhoAndWhat();
    void ofManyBytesTheFirstAreShown();
    void itsLengthIsBounded();
    void itIsEmptied();
    void itIsFilteredByWhoSaidIt();
    void itIsFilteredByWordsAndBytes();
    void whatIsShownIsSavedWithAllItsBytes();

  private:
    [[nodiscard]] static QStringList row(const QAbstractItemModel& model, int row) {
        QStringList cells;
        for (int column = 0; column < model.columnCount(); ++column) {
            cells += model.index(row, column).data().toString();
        }
        return cells;
    }
};

void WireLogTest::aRowSaysWhenWhoAndWhat() {
    WireLog log;
    const QAbstractItemModelTester tester(&log);
    log.append(conversation);
    QCOMPARE(log.rowCount(), 5);
    QCOMPARE(row(log, 1),
             (QStringList{u"1.234"_s, u"Host"_s, u"Set PTT lead/tail 0, 100 ms"_s, u"04 00 0A"_s}));
    QCOMPARE(log.index(1, WireLog::Words).data(Qt::ToolTipRole).toString(),
             u"Set PTT lead/tail 0, 100 ms"_s);
    QCOMPARE(row(log, 3), (QStringList{u"2.010"_s, u"Keyer"_s, u"status: busy"_s, u"C4"_s}));
    QCOMPARE(row(log, 0), (QStringList{u"0.000"_s, u""_s, u"the keyer starts anew"_s, u""_s}));
}

void WireLogTest::ofManyBytesTheFirstAreShown() {
    WireLog log;
    log.append({{.kind = Kind::Command, .at = {}, .bytes = std::vector<std::uint8_t>(258, 0)}});
    QCOMPARE(row(log, 0).last().size(), 46);
    QVERIFY(row(log, 0).last().endsWith(u'…'));
}

void WireLogTest::itsLengthIsBounded() {
    WireLog log;
    const QAbstractItemModelTester tester(&log);
    for (int i = 0; i < 3; ++i) {
        std::vector<WireLine> many(WireLog::mostLines / 2 + 1, conversation[2]);
        many.back().at = i * 1s;
        log.append(many);
        QVERIFY(log.rowCount() <= static_cast<int>(WireLog::mostLines));
    }
    QCOMPARE(log.rowCount(), static_cast<int>(WireLog::mostLines));
    QCOMPARE(row(log, log.rowCount() - 1).first(), u"2.000"_s);
    log.append(std::vector<WireLine>(WireLog::mostLines + 5, conversation[3]));
    QCOMPARE(log.rowCount(), static_cast<int>(WireLog::mostLines));
    QCOMPARE(row(log, 0).last(), u"C4"_s);
}

void WireLogTest::itIsEmptied() {
    WireLog log;
    log.append(conversation);
    log.clear();
    QCOMPARE(log.rowCount(), 0);
}

void WireLogTest::itIsFilteredByWhoSaidIt() {
    WireLog log;
    WireLogFilter filter;
    filter.setSourceModel(&log);
    log.append(conversation);
    QCOMPARE(filter.rowCount(), 5);
    filter.setFromHost(true);
    QCOMPARE(filter.rowCount(), 3);
    QCOMPARE(row(filter, 2).last(), u"43"_s);
    filter.setFromHost(false);
    QCOMPARE(filter.rowCount(), 3);
    QCOMPARE(row(filter, 2)[2], u"echo C"_s);
    filter.setFromHost(std::nullopt);
    QCOMPARE(filter.rowCount(), 5);
}

void WireLogTest::itIsFilteredByWordsAndBytes() {
    WireLog log;
    WireLogFilter filter;
    filter.setSourceModel(&log);
    log.append(conversation);
    filter.setText(u"BUSY"_s);
    QCOMPARE(filter.rowCount(), 2);
    filter.setText(u"00 0a"_s);
    QCOMPARE(filter.rowCount(), 2);
    QCOMPARE(row(filter, 1)[0], u"1.234"_s);
    filter.setText(u"nothing"_s);
    QCOMPARE(filter.rowCount(), 1);
}

void WireLogTest::whatIsShownIsSavedWithAllItsBytes() {
    WireLog log;
    WireLogFilter filter;
    filter.setSourceModel(&log);
    log.append({{.kind = Kind::Command, .at = 1s, .bytes = std::vector<std::uint8_t>(20, 0x13)},
                {.kind = Kind::Echo, .at = 2s, .bytes = {'C'}}});
    filter.setText(u"echo"_s);
    QCOMPARE(filter.toText(), u"2.000\tKeyer\techo C\t43\n"_s);
    filter.setText({});
    QCOMPARE(filter.toText().count(u"13"_s), 20);
}

static const RegisteredTest<WireLogTest> registered;
#include "WireLogTest.moc"
