#include "record/RunTable.h"

#include "record/RecordFile.h"
#include "tests/support/LogKeeper.h"
#include "tests/support/RegisteredTest.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class RunTableTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void aValueIsQuoted_data();
    void aValueIsQuoted();
    void allRunsAreWritten();
    void chosenRunsAreWritten();
    void anEmptyRecordIsHeadingsAlone();
    void whatCannotBeWrittenIsTold();

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
    QCOMPARE(table.finish(), QString());
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
    QCOMPARE(table.finish(), QString());
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
    QCOMPARE(table.finish(), QString());
    QFile file(path(u"empty.csv"_s));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll().count('\n'), 1);
}

void RunTableTest::whatCannotBeWrittenIsTold() {
    RecordFile record(path(u"r.db"_s));
    RunTable table(path(u"no/such/folder.csv"_s), {});
    QVERIFY(!table.writeNext(record));
    QVERIFY(!table.finish().isEmpty());
}

static const RegisteredTest<RunTableTest> registered;
#include "RunTableTest.moc"
