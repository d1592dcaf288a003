#include "record/RecordFile.h"

#include "tests/support/LogKeeper.h"
#include "tests/support/RegisteredTest.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <functional>
#include <optional>
#include <sys/resource.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

RecordedRun runOf(const QString& text, qint64 begun = 1000) {
    return {.begun = begun, .text = text};
}

mode_t modeOf(const QString& path) {
    struct stat status {};
    return ::stat(QFile::encodeName(path).constData(), &status) == 0 ? status.st_mode & 07777 : 0;
}

/// Lets no file of the process grow beyond so many bytes, as a full disk would.
class FullDisk {
  public:
    explicit FullDisk(rlim_t bytes) : _formerAction(std::signal(SIGXFSZ, SIG_IGN)) {
        ::getrlimit(RLIMIT_FSIZE, &_former);
        const rlimit limit{bytes, _former.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;
    ~FullDisk() {
        ::setrlimit(RLIMIT_FSIZE, &_former);
        static_cast<void>(std::signal(SIGXFSZ, _formerAction));
    }

  private:
    rlimit _former{};
    void (*_formerAction)(int);
};

} // namespace

class RecordFileTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup();

    void whatIsStoredIsRead();
    void itIsTheUsersAlone();
    void aFileThatOthersMayReadIsMadeTheUsersAlone();
    void whatIsStoredIsThereForAnotherProgram();
    void numbersAreWithoutGaps();
    void oldRunsGo();
    void allRunsMayGo();
    void aWrongClockLosesNothing();
    void aDamagedFileIsPutAside_data();
    void aDamagedFileIsPutAside();
    void aFileThatIsDamagedWithinIsPutAside();
    void damageIsFoundByAnyQuestion_data();
    void damageIsFoundByAnyQuestion();
    void aLockedFileIsTold();
    void twoProgramsShareOneFile();
    void aFullDiskIsToldAndLeavesASoundFile();
    void aFileThatIsRemovedIsBegunAnew();
    void aFileOfANewerVersionIsLeftAlone();
    void whatIsNoFileIsLeftAlone();
    void aFolderThatCannotBeMadeIsTold();
    void wordsAreFound_data();
    void wordsAreFound();
    void theNewestAreFoundFirst();
    void numbersThatAreNoChoiceAreRead();
    void aMillionRunsOpenInHalfASecond();

  private:
    void restart();
    [[nodiscard]] bool append(const QString& text, qint64 begun = 1000) {
        return _file->append({runOf(text, begun)}, 0);
    }
    [[nodiscard]] QStringList texts();
    [[nodiscard]] QStringList asides() const;
    void execute(const QString& statement);

    std::optional<QTemporaryDir> _directory;
    QString _path;
    std::optional<RecordFile> _file;
};

void RecordFileTest::init() {
    _directory.emplace();
    _path = _directory->filePath(u"data/quorvel/sent.db"_s);
    restart();
}

void RecordFileTest::cleanup() {
    _file.reset();
    _directory.reset();
}

void RecordFileTest::restart() {
    _file.emplace(_path);
}

QStringList RecordFileTest::texts() {
    const auto numbers = _file->numbers();
    QStringList all;
    for (const auto& each : _file->read(numbers.first, numbers.last)) {
        all.append(each.run.text);
    }
    return all;
}

QStringList RecordFileTest::asides() const {
    return QFileInfo(_path).dir().entryList({u"sent.db.corrupt-*"_s});
}

/// In the file, by another connection, with no other open.
void RecordFileTest::execute(const QString& statement) {
    _file.reset();
    {
        auto database = QSqlDatabase::addDatabase(u"QSQLITE"_s, u"test"_s);
        database.setDatabaseName(_path);
        QVERIFY(database.open());
        QSqlQuery query(database);
        QVERIFY(query.exec(statement));
    }
    QSqlDatabase::removeDatabase(u"test"_s);
    restart();
}

void RecordFileTest::whatIsStoredIsRead() {
    const RecordedRun run{.begun = 1'700'000'000'123,
                          .text = u"CQ {AR % ÄÖ"_s,
                          .rest = u" K"_s,
                          .wordsPerMinute = 25,
                          .lettersPerMinute = {},
                          .source = {TextSource::Kind::Logger, 4001},
                          .name = u"tlf"_s,
                          .ending = RecordedRun::Ending::BrokenIn};
    QVERIFY(_file->append({run}, 0));
    restart();
    const auto numbers = _file->numbers();
    QCOMPARE(numbers.count(), 1);
    const auto runs = _file->read(numbers.first, numbers.last);
    QCOMPARE(runs.size(), 1);
    QCOMPARE(runs[0].run, run);
    QVERIFY(_file->takeTrouble().problem.isNull());
}

void RecordFileTest::itIsTheUsersAlone() {
    const auto former = ::umask(0);
    const bool isStored = append(u"CQ"_s);
    ::umask(former);
    QVERIFY(isStored);
    QCOMPARE(modeOf(_path), mode_t(0600));
    QCOMPARE(modeOf(QFileInfo(_path).path()), mode_t(0700));
    for (const auto& each : QFileInfo(_path).dir().entryInfoList(QDir::Files)) {
        QCOMPARE(modeOf(each.filePath()) & 077, mode_t(0));
    }
}

void RecordFileTest::aFileThatOthersMayReadIsMadeTheUsersAlone() {
    QVERIFY(append(u"CQ"_s));
    QVERIFY(::chmod(QFile::encodeName(_path).constData(), 0644) == 0);
    restart();
    QVERIFY(append(u"K"_s));
    QCOMPARE(modeOf(_path), mode_t(0600));
}

void RecordFileTest::whatIsStoredIsThereForAnotherProgram() {
    QVERIFY(append(u"CQ"_s));
    RecordFile other(_path);
    QCOMPARE(other.numbers().count(), 1);
}

void RecordFileTest::numbersAreWithoutGaps() {
    QVERIFY(_file->append({runOf(u"A"_s), runOf(u"B"_s), runOf(u"C"_s)}, 0));
    QCOMPARE(_file->numbers(), (RunNumbers{1, 3}));
    QCOMPARE(texts(), (QStringList{u"A"_s, u"B"_s, u"C"_s}));
    QCOMPARE(_file->read({1, 3}).size(), 2);
}

void RecordFileTest::oldRunsGo() {
    QVERIFY(_file->append({runOf(u"A"_s, 100), runOf(u"B"_s, 300), runOf(u"C"_s, 200)}, 0));
    QVERIFY(_file->append({runOf(u"D"_s, 400)}, 250));
    // From the first that is young enough on all stay.
    QCOMPARE(texts(), (QStringList{u"B"_s, u"C"_s, u"D"_s}));
    _file->trim(350);
    QCOMPARE(texts(), QStringList{u"D"_s});
}

void RecordFileTest::allRunsMayGo() {
    QVERIFY(_file->append({runOf(u"A"_s, 100), runOf(u"B"_s, 200)}, 0));
    _file->trim(1000);
    QCOMPARE(_file->numbers().count(), 0);
    QVERIFY(append(u"C"_s));
    QCOMPARE(texts(), QStringList{u"C"_s});
}

void RecordFileTest::aWrongClockLosesNothing() {
    QVERIFY(append(u"A"_s, 1'700'000'000'000));
    // Of a machine that takes it to be 1970.
    QVERIFY(_file->append({runOf(u"B"_s, 5000)}, 5000 - 1'000'000));
    QCOMPARE(texts(), (QStringList{u"A"_s, u"B"_s}));
}

void RecordFileTest::aDamagedFileIsPutAside_data() {
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("a text") << QByteArray(5000, 'x');
    QTest::newRow("a short text") << QByteArray("no database");
    QTest::newRow("the beginning of a database")
        << QByteArray("SQLite format 3\0\1\2", 18) + QByteArray(3000, '\7');
}

void RecordFileTest::aDamagedFileIsPutAside() {
    QFETCH(QByteArray, content);
    QVERIFY(QDir().mkpath(QFileInfo(_path).path()));
    QFile file(_path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
    file.close();
    const LogKeeper log;
    QVERIFY(append(u"CQ"_s));
    QCOMPARE(texts(), QStringList{u"CQ"_s});
    QCOMPARE(asides().size(), 1);
    QCOMPARE(QFileInfo(_file->takeTrouble().aside).fileName(), asides().first());
    QFile aside(QFileInfo(_path).path() + u'/' + asides().first());
    QVERIFY(aside.open(QIODevice::ReadOnly));
    QCOMPARE(aside.readAll(), content);
    QCOMPARE(modeOf(_path), mode_t(0600));
}

void RecordFileTest::aFileThatIsDamagedWithinIsPutAside() {
    for (int i = 0; i < 200; ++i) {
        QVERIFY(append(QString(100, u'E')));
    }
    _file.reset();
    QFile file(_path);
    QVERIFY(file.open(QIODevice::ReadWrite));
    const auto size = file.size();
    constexpr qint64 header = 100;
    file.seek(1024);
    file.write(QByteArray(static_cast<qsizetype>(size - 1024 - header), '\x55'));
    file.close();
    restart();
    const LogKeeper log;
    // It is noticed by whatever comes upon it.
    const bool isStored = append(u"CQ"_s) && append(u"CQ"_s);
    QVERIFY(isStored);
    QCOMPARE(asides().size(), 1);
    QVERIFY(!_file->takeTrouble().aside.isNull());
}

void RecordFileTest::damageIsFoundByAnyQuestion_data() {
    QTest::addColumn<std::function<void(RecordFile&)>>("question");
    const auto row = [](const char* name, const std::function<void(RecordFile&)>& question) {
        QTest::newRow(name) << question;
    };
    row("a search", [](RecordFile& file) { static_cast<void>(file.find(u"E"_s, 10'000)); });
    row("the numbers", [](RecordFile& file) { static_cast<void>(file.numbers()); });
    row("a reading", [](RecordFile& file) { static_cast<void>(file.read(1, 10'000)); });
}

/// The file is open when it comes to grief.
void RecordFileTest::damageIsFoundByAnyQuestion() {
    QFETCH(std::function<void(RecordFile&)>, question);
    QVERIFY(_file->append(QList<RecordedRun>(2000, runOf(QString(100, u'E'))), 0));
    restart();
    QVERIFY(_file->read(0, 0).isEmpty());
    QFile file(_path);
    QVERIFY(file.open(QIODevice::ReadWrite));
    constexpr qint64 firstPage = 4096;
    file.seek(firstPage);
    file.write(QByteArray(static_cast<qsizetype>(file.size() - firstPage), '\x55'));
    file.close();
    const LogKeeper log;
    question(*_file);
    QCOMPARE(asides().size(), 1);
    QCOMPARE(QFileInfo(_file->takeTrouble().aside).fileName(), asides().first());
    QVERIFY(append(u"CQ"_s));
    QCOMPARE(texts(), QStringList{u"CQ"_s});
    QVERIFY(_file->takeTrouble().aside.isNull());
}

void RecordFileTest::aLockedFileIsTold() {
    QVERIFY(append(u"A"_s));
    QProcess other;
    other.start(u"python3"_s,
                {u"-c"_s,
                 u"import sqlite3, sys\n"
                 "d = sqlite3.connect(sys.argv[1], isolation_level=None)\n"
                 "d.execute('BEGIN EXCLUSIVE')\nprint('locked', flush=True)\n"
                 "sys.stdin.readline()\nd.execute('COMMIT')\nprint('free', flush=True)\n"_s,
                 _path});
    QVERIFY(other.waitForReadyRead(60'000));
    QCOMPARE(other.readAllStandardOutput().trimmed(), "locked");
    const LogKeeper log;
    QElapsedTimer time;
    time.start();
    QVERIFY(!append(u"B"_s));
    QVERIFY(time.elapsed() < 20'000);
    QVERIFY(_file->takeTrouble().problem.contains(u"locked"_s));
    other.write("\n");
    QByteArray said;
    while (!said.contains("free")) {
        QVERIFY(other.waitForReadyRead(60'000));
        said += other.readAllStandardOutput();
    }
    QVERIFY(append(u"B"_s));
    QCOMPARE(texts(), (QStringList{u"A"_s, u"B"_s}));
    QVERIFY(other.waitForFinished(60'000));
    QVERIFY(asides().isEmpty());
}

void RecordFileTest::twoProgramsShareOneFile() {
    RecordFile other(_path);
    for (int i = 0; i < 20; ++i) {
        QVERIFY(append(u"A"_s));
        QVERIFY(other.append({runOf(u"B"_s)}, 0));
    }
    QCOMPARE(_file->numbers(), (RunNumbers{1, 40}));
    QCOMPARE(texts().count(u"B"_s), 20);
}

void RecordFileTest::aFullDiskIsToldAndLeavesASoundFile() {
    QVERIFY(append(u"A"_s));
    const auto room = QFileInfo(_path).size();
    const LogKeeper log;
    {
        const FullDisk disk(static_cast<rlim_t>(room));
        QVERIFY(!_file->append({runOf(QString(20'000, u'E'))}, 0));
        QVERIFY(!_file->takeTrouble().problem.isNull());
    }
    QVERIFY(append(u"B"_s));
    restart();
    QCOMPARE(texts(), (QStringList{u"A"_s, u"B"_s}));
    QVERIFY(asides().isEmpty());
}

void RecordFileTest::aFileThatIsRemovedIsBegunAnew() {
    QVERIFY(append(u"A"_s));
    QVERIFY(QFile::remove(_path));
    QVERIFY(append(u"B"_s));
    QVERIFY(QFile::exists(_path));
    QCOMPARE(texts(), QStringList{u"B"_s});
}

void RecordFileTest::aFileOfANewerVersionIsLeftAlone() {
    QVERIFY(append(u"A"_s));
    execute(u"PRAGMA user_version = 99"_s);
    const LogKeeper log;
    QVERIFY(!append(u"B"_s));
    QVERIFY(_file->takeTrouble().problem.contains(u"newer"_s));
    execute(u"PRAGMA user_version = 1"_s);
    QCOMPARE(texts(), QStringList{u"A"_s});
}

void RecordFileTest::whatIsNoFileIsLeftAlone() {
    QVERIFY(QDir().mkpath(_path));
    const LogKeeper log;
    QVERIFY(!append(u"A"_s));
    QVERIFY(!_file->takeTrouble().problem.isNull());
    QVERIFY(QFileInfo(_path).isDir());
    QVERIFY(QDir().rmdir(_path));
    // Whoever opens one waits for its other end.
    QVERIFY(::mkfifo(QFile::encodeName(_path).constData(), 0600) == 0);
    QVERIFY(!append(u"A"_s));
}

void RecordFileTest::aFolderThatCannotBeMadeIsTold() {
    QFile file(_directory->filePath(u"data"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    const LogKeeper log;
    QVERIFY(!append(u"A"_s));
    QVERIFY(!_file->takeTrouble().problem.isNull());
    QCOMPARE(_file->numbers().count(), 0);
    QVERIFY(_file->read(1, 10).isEmpty());
    QVERIFY(_file->find(u"A"_s, 10).isEmpty());
}

void RecordFileTest::wordsAreFound_data() {
    QTest::addColumn<QString>("words");
    QTest::addColumn<QList<qint64>>("found");
    QTest::newRow("in the text") << u"W1AW"_s << QList<qint64>{1};
    QTest::newRow("whatever the case") << u"w1aw"_s << QList<qint64>{1};
    QTest::newRow("in a logger's name") << u"tlf"_s << QList<qint64>{2};
    QTest::newRow("in a label") << u"exch"_s << QList<qint64>{3};
    QTest::newRow("by the key") << u"F2"_s << QList<qint64>{3};
    QTest::newRow("by the day") << u"2023-11-14"_s << QList<qint64>{2};
    QTest::newRow("by the minute") << u"22:13"_s << QList<qint64>{2};
    QTest::newRow("with a percent sign") << u"%"_s << QList<qint64>{3};
    QTest::newRow("with a stroke") << u"A_"_s << QList<qint64>{};
    QTest::newRow("with a quote") << u"'"_s << QList<qint64>{4};
    QTest::newRow("with a backslash") << u"\\"_s << QList<qint64>{};
    QTest::newRow("what is nowhere") << u"ZZZ"_s << QList<qint64>{};
}

void RecordFileTest::wordsAreFound() {
    QFETCH(QString, words);
    auto logger = runOf(u"TEST"_s, 1'700'000'000'000);
    logger.source = {TextSource::Kind::Logger, 4001};
    logger.name = u"tlf"_s;
    auto message = runOf(u"5NN %HI^"_s);
    message.source = {TextSource::Kind::Message, 2};
    message.name = u"Exchange"_s;
    QVERIFY(_file->append({runOf(u"DE W1AW"_s), logger, message, runOf(u"DON'T"_s)}, 0));
    QTEST(_file->find(words, 100), "found");
}

void RecordFileTest::theNewestAreFoundFirst() {
    QVERIFY(_file->append({runOf(u"A"_s), runOf(u"B"_s), runOf(u"A"_s), runOf(u"A"_s)}, 0));
    QCOMPARE(_file->find(u"A"_s, 2), (QList<qint64>{4, 3}));
}

void RecordFileTest::numbersThatAreNoChoiceAreRead() {
    QVERIFY(append(u"A"_s));
    execute(u"UPDATE run SET source = 99, ending = -5, wpm = 'many'"_s);
    const auto runs = _file->read(1, 1);
    QCOMPARE(runs.size(), 1);
    QCOMPARE(runs[0].run.source.kind, TextSource::Kind::Keyboard);
    QCOMPARE(runs[0].run.ending, RecordedRun::Ending::Sent);
}

void RecordFileTest::aMillionRunsOpenInHalfASecond() {
    QVERIFY(append(u"CQ CQ DE N0CALL N0CALL K"_s));
    execute(u"WITH RECURSIVE c(n) AS (SELECT 2 UNION ALL SELECT n + 1 FROM c WHERE n < 1000000) "
            "INSERT INTO run SELECT n, n * 1000, 'CQ TEST DE N0CALL ' || n, '', 25, NULL, 1, 1, "
            "'CQ', 0 FROM c"_s);
    restart();
    QElapsedTimer time;
    time.start();
    const auto numbers = _file->numbers();
    const auto newest = _file->read(numbers.last - 199, numbers.last);
    const auto opened = time.restart();
    const auto oldest = _file->read(numbers.first, numbers.first + 199);
    const auto end = time.restart();
    const auto found = _file->find(u"N0CALL 4711"_s, 1000);
    const auto search = time.restart();
    QVERIFY(append(u"K"_s));
    const auto stored = time.elapsed();
    qInfo(
        "opened in %lld ms, its other end read in %lld ms, searched in %lld ms, stored in %lld ms",
        opened, end, search, stored);
    QCOMPARE(numbers, (RunNumbers{1, 1'000'000}));
    QCOMPARE(newest.size(), 200);
    QCOMPARE(oldest.size(), 200);
    QCOMPARE(oldest.first().run.text, u"CQ CQ DE N0CALL N0CALL K"_s);
    QCOMPARE(found.size(), 111);
    QVERIFY2(opened < 500, QByteArray::number(opened).constData());
    QVERIFY2(end < 500, QByteArray::number(end).constData());
}

static const RegisteredTest<RecordFileTest> registered;
#include "RecordFileTest.moc"
