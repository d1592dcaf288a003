#include "record/RecordStore.h"

#include "record/RecordFile.h"
#include "tests/support/LogKeeper.h"
#include "tests/support/RegisteredTest.h"
#include "tests/support/TestPlatform.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <atomic>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 day = 86'400'000;
constexpr int patience = 60'000;

RecordedRun runOf(const QString& text, qint64 begun) {
    return {.begun = begun, .text = text};
}

} // namespace

class RecordStoreTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup();

    void nothingIsOpenedBeforeItIsNeeded();
    void aRunIsStoredAsItEnds();
    void anEndStoresWhatIsWaiting();
    void oldRunsGoAsTheSettingSays();
    void questionsAreAnswered();
    void nobodyIsAnsweredWhoHasGone();
    void theLastOfManySearchesIsMade();
    void aLockedFileHoldsNothingUpAndIsToldOnce();
    void damageIsToldOnce();
    void aTableIsSaved();
    void theDataDirectoryIsWhereItIs();

  private:
    void restart();
    [[nodiscard]] QStringList stored() const;

    std::optional<TestPlatform> _platform;
    std::optional<QTemporaryDir> _directory;
    QString _path;
    std::optional<RecordStore> _store;
    std::atomic<qint64> _now = 1000 * day;
};

void RecordStoreTest::init() {
    _now = 1000 * day;
    _platform.emplace();
    _directory.emplace();
    _path = _directory->filePath(u"data/sent.db"_s);
    restart();
}

void RecordStoreTest::cleanup() {
    _store.reset();
    _directory.reset();
    _platform.reset();
}

void RecordStoreTest::restart() {
    _store.reset();
    _store.emplace(_path, [this] { return _now.load(); });
}

/// By the file itself.
QStringList RecordStoreTest::stored() const {
    QStringList texts;
    RecordFile file(_path);
    const auto numbers = file.numbers();
    for (const auto& each : file.read(numbers.first, numbers.last)) {
        texts.append(each.run.text);
    }
    return texts;
}

void RecordStoreTest::nothingIsOpenedBeforeItIsNeeded() {
    const auto threads = [] { return QDir(u"/proc/self/task"_s).count(); };
    const auto before = threads();
    _store->keepDays(30);
    QCOMPARE(threads(), before);
    restart();
    QVERIFY(!QFileInfo::exists(QFileInfo(_path).path()));
}

void RecordStoreTest::aRunIsStoredAsItEnds() {
    QSignalSpy grown(&*_store, &RecordStore::grown);
    _store->append(runOf(u"CQ"_s, _now));
    QTRY_COMPARE_WITH_TIMEOUT(grown.count(), 1, patience);
    QCOMPARE(grown[0][0].value<RunNumbers>(), (RunNumbers{1, 1}));
    QCOMPARE(stored(), QStringList{u"CQ"_s});
}

void RecordStoreTest::anEndStoresWhatIsWaiting() {
    for (int i = 0; i < 50; ++i) {
        _store->append(runOf(QString::number(i), _now));
    }
    _store.reset();
    const auto texts = stored();
    QCOMPARE(texts.size(), 50);
    QCOMPARE(texts.last(), u"49"_s);
}

void RecordStoreTest::oldRunsGoAsTheSettingSays() {
    _store->keepDays(31);
    _store->append(runOf(u"A"_s, _now));
    restart();
    _now += 20 * day;
    _store->keepDays(31);
    _store->append(runOf(u"B"_s, _now));
    restart();
    QCOMPARE(stored(), (QStringList{u"A"_s, u"B"_s}));
    _now += 20 * day;
    _store->keepDays(31);
    _store->append(runOf(u"C"_s, _now));
    restart();
    QCOMPARE(stored(), (QStringList{u"B"_s, u"C"_s}));
    QSignalSpy grown(&*_store, &RecordStore::grown);
    _store->append(runOf(u"D"_s, _now));
    QTRY_COMPARE_WITH_TIMEOUT(grown.count(), 1, patience);
    _store->keepDays(10);
    QTRY_COMPARE_WITH_TIMEOUT(stored(), (QStringList{u"C"_s, u"D"_s}), patience);
}

void RecordStoreTest::questionsAreAnswered() {
    _store->append(runOf(u"A"_s, _now));
    _store->append(runOf(u"B"_s, _now));
    RunNumbers numbers;
    QList<StoredRun> all;
    QList<StoredRun> some;
    QList<qint64> found;
    _store->readNumbers(this, [&](const RunNumbers& answer) { numbers = answer; });
    _store->read(1, 2, this, [&](const QList<StoredRun>& answer) { all = answer; });
    _store->read({2}, this, [&](const QList<StoredRun>& answer) { some = answer; });
    _store->find(u"a"_s, 10, this, [&](const QList<qint64>& answer) { found = answer; });
    QTRY_COMPARE_WITH_TIMEOUT(found, QList<qint64>{1}, patience);
    QCOMPARE(numbers, (RunNumbers{1, 2}));
    QCOMPARE(all.size(), 2);
    QCOMPARE(some.size(), 1);
    QCOMPARE(some[0].run.text, u"B"_s);
}

void RecordStoreTest::nobodyIsAnsweredWhoHasGone() {
    bool isAnswered = false;
    {
        const QObject gone;
        _store->readNumbers(const_cast<QObject*>(&gone),
                            [&](const RunNumbers&) { isAnswered = true; });
    }
    bool isLater = false;
    _store->readNumbers(this, [&](const RunNumbers&) { isLater = true; });
    QTRY_VERIFY_WITH_TIMEOUT(isLater, patience);
    QVERIFY(!isAnswered);
}

void RecordStoreTest::theLastOfManySearchesIsMade() {
    _store->append(runOf(u"ABC"_s, _now));
    QStringList answered;
    for (const auto& words : {u"A"_s, u"AB"_s, u"ABC"_s}) {
        _store->find(words, 10, this, [&, words](const QList<qint64>&) { answered.append(words); });
    }
    QTRY_VERIFY_WITH_TIMEOUT(answered.contains(u"ABC"_s), patience);
    QCOMPARE(answered.last(), u"ABC"_s);
}

void RecordStoreTest::aLockedFileHoldsNothingUpAndIsToldOnce() {
    QSignalSpy grown(&*_store, &RecordStore::grown);
    QSignalSpy failed(&*_store, &RecordStore::failed);
    _store->append(runOf(u"A"_s, _now));
    QTRY_COMPARE_WITH_TIMEOUT(grown.count(), 1, patience);
    QProcess other;
    other.start(u"python3"_s,
                {u"-c"_s,
                 u"import sqlite3, sys\n"
                 "d = sqlite3.connect(sys.argv[1], isolation_level=None)\n"
                 "d.execute('BEGIN EXCLUSIVE')\nprint('locked', flush=True)\n"
                 "sys.stdin.readline()\nd.execute('COMMIT')\nprint('free', flush=True)\n"_s,
                 _path});
    QVERIFY(other.waitForReadyRead(patience));
    const LogKeeper log;
    QElapsedTimer time;
    time.start();
    _store->append(runOf(u"B"_s, _now));
    QVERIFY(time.elapsed() < 500);
    QTRY_COMPARE_WITH_TIMEOUT(failed.count(), 1, patience);
    _store->append(runOf(u"C"_s, _now));
    bool isThrough = false;
    _store->find(u"C"_s, 1, this, [&](const QList<qint64>&) { isThrough = true; });
    QTRY_VERIFY_WITH_TIMEOUT(isThrough, patience);
    QCOMPARE(failed.count(), 1);
    other.write("\n");
    QVERIFY(other.waitForFinished(patience));
    _store->append(runOf(u"D"_s, _now));
    QTRY_COMPARE_WITH_TIMEOUT(grown.count(), 2, patience);
    QCOMPARE(stored(), (QStringList{u"A"_s, u"B"_s, u"C"_s, u"D"_s}));
}

void RecordStoreTest::damageIsToldOnce() {
    QVERIFY(QDir().mkpath(QFileInfo(_path).path()));
    const auto damage = [this] {
        QFile file(_path);
        QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(QByteArray(5000, 'x'));
    };
    damage();
    const LogKeeper log;
    QSignalSpy grown(&*_store, &RecordStore::grown);
    QSignalSpy found(&*_store, &RecordStore::damageFound);
    _store->append(runOf(u"A"_s, _now));
    QTRY_COMPARE_WITH_TIMEOUT(grown.count(), 1, patience);
    QCOMPARE(found.count(), 1);
    QVERIFY(found[0][0].toString().contains(u"sent.db.corrupt-"_s));
    QVERIFY(QFile::remove(_path));
    damage();
    _store->append(runOf(u"B"_s, _now));
    QTRY_COMPARE_WITH_TIMEOUT(grown.count(), 2, patience);
    QCOMPARE(found.count(), 1);
    QCOMPARE(stored(), QStringList{u"B"_s});
}

void RecordStoreTest::aTableIsSaved() {
    for (int i = 0; i < 2500; ++i) {
        _store->append(runOf(u"E"_s, _now));
        if (i % 500 == 0) {
            restart(); // no more than a thousand wait
        }
    }
    const auto name = _directory->filePath(u"sent.csv"_s);
    std::optional<SavedTable> saved;
    _store->save(name, {}, this, [&](const SavedTable& answer) { saved = answer; });
    QTRY_VERIFY_WITH_TIMEOUT(saved.has_value(), patience);
    QVERIFY(saved->problem.isNull());
    QCOMPARE(saved->missing, 0);
    QFile file(name);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll().count('\n'), stored().size() + 1);
    saved.reset();
    _store->save(_directory->filePath(u"no/sent.csv"_s), {}, this,
                 [&](const SavedTable& answer) { saved = answer; });
    QTRY_VERIFY_WITH_TIMEOUT(saved.has_value(), patience);
    QVERIFY(!saved->problem.isEmpty());
}

void RecordStoreTest::theDataDirectoryIsWhereItIs() {
    const auto former = qgetenv("XDG_DATA_HOME");
    qputenv("XDG_DATA_HOME", "/some/where");
    const auto chosen = RecordStore::standardPath();
    qputenv("XDG_DATA_HOME", "relative");
    const auto usual = RecordStore::standardPath();
    qputenv("XDG_DATA_HOME", former);
    QCOMPARE(chosen, u"/some/where/quorvel/sent.db"_s);
    QCOMPARE(usual, QDir::homePath() + u"/.local/share/quorvel/sent.db"_s);
}

static const RegisteredTest<RecordStoreTest> registered;
#include "RecordStoreTest.moc"
