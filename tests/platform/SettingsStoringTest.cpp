#include "platform/SettingsStore.h"

#include "tests/support/LogKeeper.h"
#include "tests/support/OrdinaryUser.h"
#include "tests/support/RegisteredTest.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QLockFile>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <cstdio>
#include <memory>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

using SettingsFile::Damage;

/// No byte more goes into any file, as on a full disk.
class FullDisk {
  public:
    FullDisk() {
        std::signal(SIGXFSZ, SIG_IGN);
        ::getrlimit(RLIMIT_FSIZE, &_before);
        rlimit none = _before;
        none.rlim_cur = 0;
        ::setrlimit(RLIMIT_FSIZE, &none);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;
    ~FullDisk() { ::setrlimit(RLIMIT_FSIZE, &_before); }

  private:
    rlimit _before{};
};

QByteArray name(const QString& path) {
    return QFile::encodeName(path);
}

} // namespace

/// The settings' file between two programs, on a disk that refuses, and with something in its place
/// that is no file of settings.
class SettingsStoringTest : public QObject {
    Q_OBJECT
  private Q_SLOTS:
    void init();
    void cleanup();

    void aLockThatWasLeftBehindHoldsNobodyUp();
    void aLockThatIsHeldIsWaitedForASecond();
    void whatIsNoFileIsPutAside_data();
    void whatIsNoFileIsPutAside();
    void aHugeFileIsPutAside();
    void anOpenQuoteSwallowsNothing_data();
    void anOpenQuoteSwallowsNothing();
    void quotesThatAreClosedAreSound();
    void aValueWithoutAKeyIsNone();
    void isForTheUserAloneWhateverTheUmask();
    void theModeOfAFileThatIsThereStays();
    void aLinkToTheFileStays();
    void whatCannotBeStoredIsToldAndStoredLater_data();
    void whatCannotBeStoredIsToldAndStoredLater();
    void failingGoesOnInSilence();
    void theChangesOfAnotherProgramHold();
    void theChangesOfAnotherProgramAreNotOverwritten();
    void aChangeThatIsNoneIsNotAnnounced();
    void aFileThatGoesTakesItsValuesAlong();
    void theLastChangeIsStoredAtTheEnd();
    void whatIsLostAtTheEndIsLogged();

  private:
    [[nodiscard]] QString path() const { return _directory->filePath(u"quorvel/quorvel.conf"_s); }
    [[nodiscard]] QString folder() const { return _directory->filePath(u"quorvel"_s); }
    void write(const QByteArray& content) const;
    void setMode(const QString& file, mode_t mode) const { ::chmod(name(file).constData(), mode); }
    [[nodiscard]] static mode_t modeOf(const QString& file);
    [[nodiscard]] QByteArray content() const;
    void putInTheWay(const QString& obstacle);
    void takeOutOfTheWay(const QString& obstacle);

    std::unique_ptr<QTemporaryDir> _directory;
    std::optional<FullDisk> _disk;
};

void SettingsStoringTest::init() {
    _directory = std::make_unique<QTemporaryDir>();
    setMode(_directory->path(), 0777);
    QVERIFY(QDir().mkdir(folder()));
    setMode(folder(), 0777);
}

void SettingsStoringTest::cleanup() {
    _disk.reset();
    setMode(folder(), 0700);
    _directory.reset();
}

void SettingsStoringTest::write(const QByteArray& content) const {
    QFile file(path());
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    QCOMPARE(file.write(content), content.size());
    file.close();
    setMode(path(), 0666);
}

mode_t SettingsStoringTest::modeOf(const QString& file) {
    struct stat status {};
    return ::stat(name(file).constData(), &status) == 0 ? status.st_mode & 07777 : 0;
}

QByteArray SettingsStoringTest::content() const {
    QFile file(path());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
}

/// What a killed writer leaves behind when it had no time to write into the lock who it is.
void SettingsStoringTest::aLockThatWasLeftBehindHoldsNobodyUp() {
    QFile lock(path() + u".lock"_s);
    QVERIFY(lock.open(QIODevice::WriteOnly));
    lock.close();
    QElapsedTimer time;
    time.start();
    SettingsStore store(path());
    store.setObject(1, u"k"_s);
    QCoreApplication::processEvents();
    QVERIFY2(time.elapsed() < 800, qPrintable(QString::number(time.elapsed())));
    QTRY_COMPARE_WITH_TIMEOUT(content(), "[General]\nk=1\n"_ba, 10'000);
}

void SettingsStoringTest::aLockThatIsHeldIsWaitedForASecond() {
    QLockFile lock(path() + u".lock"_s);
    QVERIFY(lock.tryLock());
    SettingsStore store(path());
    store.setObject(1, u"k"_s);
    QCoreApplication::processEvents();
    QVERIFY(!QFile::exists(path()));
    QElapsedTimer time;
    time.start();
    QTRY_COMPARE_WITH_TIMEOUT(content(), "[General]\nk=1\n"_ba, 10'000);
    QVERIFY(time.elapsed() >= 300);
}

void SettingsStoringTest::whatIsNoFileIsPutAside_data() {
    QTest::addColumn<bool>("isPipe");
    QTest::newRow("a pipe") << true;
    QTest::newRow("a device") << false;
}

void SettingsStoringTest::whatIsNoFileIsPutAside() {
    QFETCH(const bool, isPipe);
    QCOMPARE(isPipe ? ::mkfifo(name(path()).constData(), 0600)
                    : ::symlink("/dev/zero", name(path()).constData()),
             0);
    QElapsedTimer time;
    time.start();
    SettingsStore store(path());
    QVERIFY(time.elapsed() < 1000);
    QVERIFY(store.damage() == Damage::NoFile);
    QVERIFY(store.corruptFile() != path());
    QVERIFY(QFile::exists(store.corruptFile()));
    store.setObject(1, u"k"_s);
    QVERIFY(store.synchronize());
    QCOMPARE(content(), "[General]\nk=1\n"_ba);
}

void SettingsStoringTest::aHugeFileIsPutAside() {
    write("[General]\nk=1\n");
    QVERIFY(QFile::resize(path(), 100'000'000));
    QElapsedTimer time;
    time.start();
    const SettingsStore store(path());
    QVERIFY2(time.elapsed() < 1000, qPrintable(QString::number(time.elapsed())));
    QVERIFY(store.damage() == Damage::TooLarge);
    QCOMPARE(QFileInfo(store.corruptFile()).size(), 100'000'000);
}

void SettingsStoringTest::anOpenQuoteSwallowsNothing_data() {
    QTest::addColumn<QByteArray>("line");
    QTest::newRow("at the beginning") << "b=\"CQ CQ"_ba;
    QTest::newRow("at the end") << "b=CQ CQ\""_ba;
    QTest::newRow("the third one") << "b=\"CQ\" \"CQ"_ba;
    QTest::newRow("behind one that means itself") << "b=\"CQ\\\" CQ"_ba;
}

void SettingsStoringTest::anOpenQuoteSwallowsNothing() {
    QFETCH(const QByteArray, line);
    const auto damaged = "[General]\na=1\n" + line + "\nc=\"three; and\"\nd=4\n";
    write(damaged);
    SettingsStore store(path());
    QVERIFY(store.damage() == Damage::OpenQuote);
    QFile aside(store.corruptFile());
    QVERIFY(aside.open(QIODevice::ReadOnly));
    QCOMPARE(aside.readAll(), damaged);
    QCOMPARE(store.integerForKey(u"a"_s), 1);
    QVERIFY(!store.objectForKey(u"b"_s).isValid());
    QCOMPARE(store.stringForKey(u"c"_s), u"three; and"_s);
    QCOMPARE(store.integerForKey(u"d"_s), 4);
    QTRY_COMPARE(content(), "[General]\na=1\nc=\"three; and\"\nd=4\n"_ba);
}

void SettingsStoringTest::quotesThatAreClosedAreSound() {
    write("; don't say \"\n[General]\na=\"1\" ; neither \"\nb=\\\"\nc=\"\\\"\"\n");
    const SettingsStore store(path());
    QVERIFY(store.damage() == Damage::None);
    QCOMPARE(store.stringForKey(u"c"_s), u"\""_s);
}

void SettingsStoringTest::aValueWithoutAKeyIsNone() {
    write("[General]\n=1\na=2\n=3\n");
    QTest::failOnWarning(QRegularExpression(u"."_s));
    SettingsStore store(path());
    store.setObject(4, u"b"_s);
    QVERIFY(store.synchronize());
    QCOMPARE(content(), "[General]\na=2\nb=4\n"_ba);
}

void SettingsStoringTest::isForTheUserAloneWhateverTheUmask() {
    const auto mask = ::umask(0);
    const auto deep = _directory->filePath(u"a/b/quorvel.conf"_s);
    {
        SettingsStore store(deep);
        store.setObject(1, u"k"_s);
        const bool isStored = store.synchronize();
        ::umask(mask);
        QVERIFY(isStored);
    }
    QCOMPARE(modeOf(_directory->filePath(u"a"_s)), 0700u);
    QCOMPARE(modeOf(_directory->filePath(u"a/b"_s)), 0700u);
    QCOMPARE(modeOf(deep), 0600u);
}

void SettingsStoringTest::theModeOfAFileThatIsThereStays() {
    write("[General]\nk=1\n");
    setMode(path(), 0640);
    SettingsStore store(path());
    store.setObject(2, u"k"_s);
    QVERIFY(store.synchronize());
    QCOMPARE(modeOf(path()), 0640u);
}

void SettingsStoringTest::aLinkToTheFileStays() {
    const auto elsewhere = _directory->filePath(u"mine.conf"_s);
    QVERIFY(QFile::link(elsewhere, path()));
    SettingsStore store(path());
    store.setObject(1, u"k"_s);
    QVERIFY(store.synchronize());
    QVERIFY(QFileInfo(path()).isSymLink());
    QVERIFY(!QFileInfo(elsewhere).isSymLink());
    QCOMPARE(content(), "[General]\nk=1\n"_ba);
}

void SettingsStoringTest::whatCannotBeStoredIsToldAndStoredLater_data() {
    QTest::addColumn<QString>("obstacle");
    QTest::addColumn<QString>("reason");
    QTest::newRow("a file that is read-only") << u"file"_s << u"Permission denied"_s;
    QTest::newRow("a folder that is read-only") << u"folder"_s << u"Permission denied"_s;
    QTest::newRow("a folder in its place") << u"in its place"_s << u"Is a directory"_s;
    QTest::newRow("a link into nowhere") << u"link"_s << u"No such file or directory"_s;
    QTest::newRow("no room") << u"disk"_s << u"File too large"_s;
}

void SettingsStoringTest::whatCannotBeStoredIsToldAndStoredLater() {
    QFETCH(const QString, obstacle);
    QFETCH(const QString, reason);
    putInTheWay(obstacle);
    auto user = std::make_unique<OrdinaryUser>();
    SettingsStore store(path(), 50ms);
    QSignalSpy failures(&store, &SettingsStore::storingFailed);
    {
        const LogKeeper log;
        store.setObject(u"N0CALL"_s, u"MyCall"_s);
        store.setObject(3, u"another"_s);
        QTRY_COMPARE(failures.size(), 1);
        QCOMPARE(log.lines(),
                 QStringList{u"Settings are not stored in %1: %2"_s.arg(path(), reason)});
    }
    QCOMPARE(store.problem(), reason);
    QCOMPARE(store.keysNotStored(), (QStringList{u"MyCall"_s, u"another"_s}));
    QCOMPARE(store.stringForKey(u"MyCall"_s), u"N0CALL"_s);
    user.reset();
    takeOutOfTheWay(obstacle);
    QTRY_VERIFY(store.keysNotStored().isEmpty());
    QCOMPARE(content(), "[General]\nMyCall=N0CALL\nanother=3\n"_ba);
}

void SettingsStoringTest::putInTheWay(const QString& obstacle) {
    if (obstacle == u"file") {
        write({});
        setMode(path(), 0444);
    } else if (obstacle == u"folder") {
        setMode(folder(), 0555);
    } else if (obstacle == u"in its place") {
        QVERIFY(QDir().mkdir(path()));
    } else if (obstacle == u"link") {
        QVERIFY(QFile::link(_directory->filePath(u"nowhere/mine.conf"_s), path()));
    } else {
        _disk.emplace();
    }
}

void SettingsStoringTest::takeOutOfTheWay(const QString& obstacle) {
    if (obstacle == u"file") {
        setMode(path(), 0666);
    } else if (obstacle == u"folder") {
        setMode(folder(), 0777);
    } else if (obstacle == u"in its place") {
        QVERIFY(QDir().rmdir(path()));
    } else if (obstacle == u"link") {
        QVERIFY(QDir().mkdir(_directory->filePath(u"nowhere"_s)));
    } else {
        _disk.reset();
    }
}

/// As long as nothing can be stored, one telling is enough; then it is stored without being asked.
void SettingsStoringTest::failingGoesOnInSilence() {
    QVERIFY(QDir().mkdir(path()));
    const LogKeeper log;
    SettingsStore store(path(), 20ms);
    QSignalSpy failures(&store, &SettingsStore::storingFailed);
    store.setObject(1, u"a"_s);
    QTRY_COMPARE(failures.size(), 1);
    store.setObject(2, u"b"_s);
    QVERIFY(!store.synchronize());
    QTest::qWait(100);
    QCOMPARE(failures.size(), 1);
    QVERIFY(QDir().rmdir(path()));
    QTRY_COMPARE(content(), "[General]\na=1\nb=2\n"_ba);
    QTRY_VERIFY(store.problem().isNull());
    QTRY_VERIFY(store.keysNotStored().isEmpty());
    QCOMPARE(log.lines(),
             (QStringList{u"Settings are not stored in %1: Is a directory"_s.arg(path()),
                          u"Settings are stored in %1 again"_s.arg(path())}));
}

void SettingsStoringTest::theChangesOfAnotherProgramHold() {
    write("[General]\na=1\nb=1\n");
    SettingsStore store(path());
    store.registerDefaults({{u"c"_s, 5}});
    QSignalSpy changes(&store, &SettingsStore::changed);
    const auto changedKeys = [&changes] {
        QStringList keys;
        for (const auto& change : changes) {
            keys.append(change[0].toString());
        }
        return keys;
    };
    // In the file itself, as most editors do not.
    write("[General]\na=2\nb=1\nc=6\n");
    QTRY_COMPARE(changedKeys(), (QStringList{u"a"_s, u"c"_s}));
    QCOMPARE(store.integerForKey(u"a"_s), 2);
    QCOMPARE(store.integerForKey(u"c"_s), 6);
    // By one that takes its place.
    changes.clear();
    QFile other(folder() + u"/other"_s);
    QVERIFY(other.open(QIODevice::WriteOnly));
    other.write("[General]\na=3\nb=1\n");
    other.close();
    QCOMPARE(std::rename(name(other.fileName()).constData(), name(path()).constData()), 0);
    QTRY_COMPARE(changedKeys(), (QStringList{u"a"_s, u"c"_s}));
    QCOMPARE(store.integerForKey(u"a"_s), 3);
    QCOMPARE(store.integerForKey(u"c"_s), 5);
}

void SettingsStoringTest::theChangesOfAnotherProgramAreNotOverwritten() {
    SettingsStore first(path());
    SettingsStore second(path());
    first.setObject(1, u"a"_s);
    first.setObject(1, u"b"_s);
    QVERIFY(first.synchronize());
    second.setObject(2, u"b"_s);
    QVERIFY(second.synchronize());
    first.setObject(1, u"c"_s);
    QTRY_COMPARE(content(), "[General]\na=1\nb=2\nc=1\n"_ba);
    QTRY_COMPARE(first.integerForKey(u"b"_s), 2);
    QTRY_COMPARE(second.integerForKey(u"c"_s), 1);
}

/// A number that has been stored is a text in the file.
void SettingsStoringTest::aChangeThatIsNoneIsNotAnnounced() {
    SettingsStore store(path());
    store.setObject(25, u"number"_s);
    store.setObject(true, u"truth"_s);
    store.setObject(2.5, u"real"_s);
    store.setObject(u"a, b"_s, u"text"_s);
    QSignalSpy changes(&store, &SettingsStore::changed);
    QTRY_VERIFY(store.keysNotStored().isEmpty());
    write(content() + "z=1\n");
    QTRY_VERIFY(!changes.isEmpty());
    QCOMPARE(changes.size(), 1);
    QCOMPARE(changes[0][0].toString(), u"z"_s);
    QCOMPARE(store.objectForKey(u"number"_s), QVariant(25));
}

void SettingsStoringTest::aFileThatGoesTakesItsValuesAlong() {
    write("[General]\na=1\n");
    SettingsStore store(path());
    QVERIFY(QFile::remove(path()));
    QTRY_VERIFY(!store.objectForKey(u"a"_s).isValid());
    store.setObject(2, u"b"_s);
    QTRY_COMPARE(content(), "[General]\nb=2\n"_ba);
}

void SettingsStoringTest::theLastChangeIsStoredAtTheEnd() {
    {
        SettingsStore store(path());
        store.setObject(1, u"k"_s);
        QCoreApplication::processEvents();
        store.setObject(2, u"k"_s);
    }
    QCOMPARE(content(), "[General]\nk=2\n"_ba);
}

void SettingsStoringTest::whatIsLostAtTheEndIsLogged() {
    QVERIFY(QDir().mkdir(path()));
    const LogKeeper log;
    {
        SettingsStore store(path());
        store.setObject(1, u"k"_s);
        store.setObject(1, u"a"_s);
    }
    QCOMPARE(log.lines(),
             QStringList{u"Settings are lost, for %1 cannot be written: a, k"_s.arg(path())});
}

static const RegisteredTest<SettingsStoringTest> registered;
#include "SettingsStoringTest.moc"
