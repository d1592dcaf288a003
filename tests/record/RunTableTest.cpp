#include "record/RunTable.h"

#include "record/RecordFile.h"
#include "tests/support/LogKeeper.h"
#include "tests/support/RegisteredTest.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// But for its beginning and its end.
void damageMiddle(const QString& name) {
    QFile file(name);
    QVERIFY(file.open(QIODevice::ReadWrite));
    file.seek(file.size() / 2);
    file.write(QByteArray(static_cast<qsizetype>(file.size() / 4), '\x55'));
}

} // namespace

class RunTableTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void aValueIsQuoted_data();
    void aValueIsQuoted();
    void allRunsAreWritten();
    void chosenRunsAreWritten();
    void anEmptyRecordIsHeadingsAlone();
    void whatCannotBeWrittenIsTold();
    void runsThatCannotBeReadAreCounted_data();
    void runsThatCannotBeReadAreCounted();
    void runsThatGoMeanwhileAreNotMissed();
    void ofARecordThatCannotBeReadThereIsNoTable();

  private:
    [[nodiscard]] QString path(const QString& name) const { return _directory.filePath(name); }
    QTemporaryDir _directory;
};

void RunTableTest::aValueIsQuoted_data() {
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("field");
    QTest::newRow("plain") << u"CQ TEST"_s << u"CQ TEST"_s;
    QTest::newRow("empty") << u""_s << u""_s;
    QTest::newRow("a comma") << u"A,B"_s << u"\"A,B\""_s;
    QTest::newRow("a quote") << u"A\"B"_s << u"\"A\"\"B\""_s;
    QTest::newRow("a line") << u"A\nB"_s << u"\"A\nB\""_s;
    QTest::newRow("a formula") << u"=CMD()"_s << u"'=CMD()"_s;
    QTest::newRow("a sum") << u"+1"_s << u"'+1"_s;
    QTest::newRow("a difference") << u"-1,2"_s << u"\"'-1,2\""_s;
    QTest::newRow("a reference") << u"@A1"_s << u"'@A1"_s;
    QTest::newRow("a tab") << u"\t=1"_s << u"'\t=1"_s;
    QTest::newRow("a sign within") << u"R = K"_s << u"R = K"_s;
}

void RunTableTest::aValueIsQuoted() {
    QFETCH(QString, value);
    QTEST(RunTable::field(value), "field");
}

void RunTableTest::allRunsAreWritten() {
    RecordFile record(path(u"all.db"_s));
    QList<RecordedRun> runs(2500, {.begun = 0, .text = u"E"_s});
    runs[0] = {.begun = 1'700'000'000'000,
               .text = u"=CQ, CQ"_s,
               .rest = u"K"_s,
               .wordsPerMinute = 25,
               .lettersPerMinute = {},
               .source = {TextSource::Kind::Message, 1},
               .name = u"Call"_s,
               .ending = RecordedRun::Ending::Stopped};
    QVERIFY(record.append(runs, 0));
    RunTable table(path(u"all.csv"_s), {});
    while (table.writeNext(record)) {
    }
    QCOMPARE(table.finish().problem, QString());
    QFile file(path(u"all.csv"_s));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const auto lines = QString::fromUtf8(file.readAll()).split(u"\r\n"_s);
    QCOMPARE(lines.size(), 1 + 2500 + 1);
    QCOMPARE(lines[0], u"UTC,Text,Speed,Sent by,How it ended"_s);
    QCOMPARE(lines[1], u"2023-11-14 22:13:20,\"'=CQ, CQ\",25 WPM,F1 Call,Stopped at character 7"_s);
    QCOMPARE(lines[2500], u"1970-01-01 00:00:00,E,,Typed,Sent"_s);
}

void RunTableTest::chosenRunsAreWritten() {
    RecordFile record(path(u"some.db"_s));
    QVERIFY(record.append({{.text = u"A"_s}, {.text = u"B"_s}, {.text = u"C"_s}}, 0));
    RunTable table(path(u"some.csv"_s), {3, 1});
    while (table.writeNext(record)) {
    }
    QCOMPARE(table.finish().problem, QString());
    QFile file(path(u"some.csv"_s));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const auto text = QString::fromUtf8(file.readAll());
    QVERIFY(text.indexOf(u",A,"_s) > 0 && text.indexOf(u",A,"_s) < text.indexOf(u",C,"_s));
    QVERIFY(!text.contains(u",B,"_s));
}

void RunTableTest::anEmptyRecordIsHeadingsAlone() {
    RecordFile record(path(u"empty.db"_s));
    RunTable table(path(u"empty.csv"_s), {});
    while (table.writeNext(record)) {
    }
    QCOMPARE(table.finish().problem, QString());
    QFile file(path(u"empty.csv"_s));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll().count('\n'), 1);
}

void RunTableTest::whatCannotBeWrittenIsTold() {
    RecordFile record(path(u"r.db"_s));
    RunTable table(path(u"no/such/folder.csv"_s), {});
    QVERIFY(!table.writeNext(record));
    QVERIFY(!table.finish().problem.isEmpty());
}

void RunTableTest::runsThatCannotBeReadAreCounted_data() {
    QTest::addColumn<bool>("isAll");
    QTest::newRow("of all") << true;
    QTest::newRow("of some") << false;
}

void RunTableTest::runsThatCannotBeReadAreCounted() {
    QFETCH(bool, isAll);
    const auto name = path(isAll ? u"damaged-all.db"_s : u"damaged-some.db"_s);
    const QList<RecordedRun> runs(2500, {.begun = 1, .text = QString(50, u'E')});
    QVERIFY(RecordFile(name).append(runs, 0));
    RecordFile record(name);
    QList<qint64> numbers;
    for (qint64 number = 1; !isAll && number <= 2500; ++number) {
        numbers.append(number);
    }
    RunTable table(path(u"damaged.csv"_s), numbers);
    QVERIFY(table.writeNext(record));
    damageMiddle(name);
    const LogKeeper log;
    while (table.writeNext(record)) {
    }
    const auto saved = table.finish();
    QVERIFY(saved.problem.isNull());
    QVERIFY(saved.missing > 0);
    QVERIFY(!record.takeTrouble().aside.isNull());
    QFile file(path(u"damaged.csv"_s));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll().count('\n'), 1 + 2500 - saved.missing);
}

void RunTableTest::runsThatGoMeanwhileAreNotMissed() {
    RecordFile record(path(u"trimmed.db"_s));
    QList<RecordedRun> runs(2500, {.begun = 1, .text = u"E"_s});
    runs.last().begun = 10;
    QVERIFY(record.append(runs, 0));
    RunTable table(path(u"trimmed.csv"_s), {});
    QVERIFY(table.writeNext(record));
    record.trim(5);
    while (table.writeNext(record)) {
    }
    QCOMPARE(table.finish().missing, 0);
}

void RunTableTest::ofARecordThatCannotBeReadThereIsNoTable() {
    const auto name = path(u"bad.db"_s);
    QFile bad(name);
    QVERIFY(bad.open(QIODevice::WriteOnly));
    bad.write(QByteArray(5000, 'x'));
    bad.close();
    const LogKeeper log;
    RecordFile record(name);
    RunTable table(path(u"bad.csv"_s), {});
    QVERIFY(!table.writeNext(record));
    QVERIFY(!table.finish().problem.isEmpty());
    QVERIFY(!QFile::exists(path(u"bad.csv"_s)));
}

static const RegisteredTest<RunTableTest> registered;
#include "RunTableTest.moc"
