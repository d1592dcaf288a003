#include "platform/SettingsStore.h"
#include "tests/support/LogKeeper.h"
#include "tests/support/OrdinaryUser.h"
#include "tests/support/RegisteredTest.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <array>
#include <csignal>
#include <memory>
#include <sys/inotify.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

using SettingsFile::Damage;

QByteArray name(const QString& path) {
    return QFile::encodeName(path);
}

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

/// Counts the attempts to write in a folder, each of which begins with its lock.
class Attempts {
  public:
    explicit Attempts(const QString& folder)
        : _descriptor(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC)) {
        // Two equal events in a row would be one.
        ::inotify_add_watch(_descriptor, name(folder).constData(), IN_CREATE | IN_DELETE);
    }
    Attempts(const Attempts&) = delete;
    Attempts& operator=(const Attempts&) = delete;
    ~Attempts() { ::close(_descriptor); }

    [[nodiscard]] int count() {
        alignas(inotify_event) std::array<char, 4096> block{};
        for (auto size = ::read(_descriptor, block.data(), block.size()); size > 0;
             size = ::read(_descriptor, block.data(), block.size())) {
            for (qsizetype at = 0; at < size;) {
                const auto* const event = reinterpret_cast<const inotify_event*>(block.data() + at);
                _count += static_cast<int>((event->mask & IN_CREATE) != 0 &&
                                           QByteArray(event->name).endsWith(".lock"));
                at += static_cast<qsizetype>(sizeof(inotify_event) + event->len);
            }
        }
        return _count;
    }

  private:
    int _descriptor;
    int _count = 0;
};

} // namespace

/// What becomes of the settings when their file is damaged, taken away or changed by others while
/// the program runs.
class SettingsMeanwhileTest : public QObject {
    Q_OBJECT
  private Q_SLOTS:
    void init();
    void cleanup();

    void whatIsDamagedIsToldOfAndPutAside_data();
    void whatIsDamagedIsToldOfAndPutAside();
    void whatCannotBeReadIsToldOfAndHolds_data();
    void whatCannotBeReadIsToldOfAndHolds();
    void attemptsOnAFullDiskDoNotCauseOthers();
    void attemptsBecomeRarer();
    void whatIsNotStoredIsStoredOnceTheDiskHasRoom();
    void aLaterChangeOfAnotherProgramHolds();
    void anEarlierChangeOfAnotherProgramDoesNotHold();
    void aChangeThatIsMadeAgainHolds();
    void aDamagedFileIsKeptWhenNothingCanBeWritten();

  private:
    [[nodiscard]] QString folder() const { return _directory->filePath(u"quorvel"_s); }
    [[nodiscard]] QString path() const { return folder() + u"/quorvel.conf"_s; }
    void write(const QByteArray& content) const;
    void setMode(const QString& file, mode_t mode) const {
        QCOMPARE(::chmod(name(file).constData(), mode), 0);
    }
    [[nodiscard]] QByteArray content() const;
    void start(std::chrono::milliseconds retryTime = 50ms);

    std::unique_ptr<QTemporaryDir> _directory;
    std::unique_ptr<SettingsStore> _store;
};

void SettingsMeanwhileTest::init() {
    _directory = std::make_unique<QTemporaryDir>();
    setMode(_directory->path(), 0777);
    QVERIFY(QDir().mkdir(folder()));
    setMode(folder(), 0777);
    write("[General]\na=1\nb=2\nc=3\n");
}

void SettingsMeanwhileTest::cleanup() {
    _store.reset();
    setMode(folder(), 0700);
    _directory.reset();
}

void SettingsMeanwhileTest::write(const QByteArray& content) const {
    QFile file(path());
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    QCOMPARE(file.write(content), content.size());
    file.close();
    setMode(path(), 0666);
}

QByteArray SettingsMeanwhileTest::content() const {
    QFile file(path());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
}

void SettingsMeanwhileTest::start(std::chrono::milliseconds retryTime) {
    _store = std::make_unique<SettingsStore>(path(), retryTime);
}

void SettingsMeanwhileTest::whatIsDamagedIsToldOfAndPutAside_data() {
    QTest::addColumn<QByteArray>("damaged");
    QTest::addColumn<QByteArray>("stored");
    QTest::newRow("an open quote") << "[General]\na=5\nb=\"CQ\nc=3\nd=4\n"_ba
                                   << "[General]\na=5\nb=2\nc=3\nd=4\n"_ba;
    QTest::newRow("no settings") << "junk"_ba
                                 << "[General]\na=1\nb=2\nc=3\n"_ba;
    QTest::newRow("too large") << QByteArray(5'000'000, '\n') << "[General]\na=1\nb=2\nc=3\n"_ba;
}

void SettingsMeanwhileTest::whatIsDamagedIsToldOfAndPutAside() {
    QFETCH(const QByteArray, damaged);
    QFETCH(const QByteArray, stored);
    start();
    QSignalSpy found(_store.get(), &SettingsStore::damageFound);
    write(damaged);
    QTRY_COMPARE(found.size(), 1);
    QCOMPARE(content(), stored);
    QFile aside(_store->corruptFile());
    QVERIFY(aside.open(QIODevice::ReadOnly));
    QCOMPARE(aside.readAll(), damaged);
    QVERIFY(_store->damage() != Damage::None);
    QCOMPARE(_store->integerForKey(u"b"_s), 2);
    QTRY_VERIFY(_store->keysNotStored().isEmpty());
    QVERIFY(_store->problem().isNull());
}

void SettingsMeanwhileTest::whatCannotBeReadIsToldOfAndHolds_data() {
    QTest::addColumn<QString>("obstacle");
    QTest::newRow("a file that may not be read") << u"file"_s;
    QTest::newRow("a folder that may not be entered") << u"folder"_s;
    QTest::newRow("a folder in its place") << u"in its place"_s;
}

void SettingsMeanwhileTest::whatCannotBeReadIsToldOfAndHolds() {
    QFETCH(const QString, obstacle);
    const OrdinaryUser user;
    // The folder is to be the user's own, who else could not change its mode.
    const auto mine = _directory->filePath(u"mine"_s);
    QVERIFY(QDir().mkdir(mine));
    const auto file = mine + u"/quorvel.conf"_s;
    QVERIFY(QFile::copy(path(), file));
    SettingsStore store(file, 50ms);
    QSignalSpy failures(&store, &SettingsStore::storingFailed);
    if (obstacle == u"file") {
        setMode(file, 0000);
    } else if (obstacle == u"folder") {
        setMode(mine, 0000);
    } else {
        QVERIFY(QFile::remove(file));
        QVERIFY(QDir().mkdir(file));
    }
    QTRY_COMPARE(failures.size(), 1);
    QCOMPARE(store.integerForKey(u"a"_s), 1);
    QCOMPARE(store.keysNotStored(), (QStringList{u"a"_s, u"b"_s, u"c"_s}));
    if (obstacle == u"file") {
        setMode(file, 0600);
    } else if (obstacle == u"folder") {
        setMode(mine, 0700);
    } else {
        QVERIFY(QDir().rmdir(file));
    }
    QTRY_VERIFY(store.keysNotStored().isEmpty());
    QFile stored(file);
    QVERIFY(stored.open(QIODevice::ReadOnly));
    QCOMPARE(stored.readAll(), "[General]\na=1\nb=2\nc=3\n"_ba);
}

/// What an attempt makes in the folder is no news of the file.
void SettingsMeanwhileTest::attemptsOnAFullDiskDoNotCauseOthers() {
    start(1min);
    Attempts attempts(folder());
    QSignalSpy failures(_store.get(), &SettingsStore::storingFailed);
    const FullDisk disk;
    _store->setObject(2, u"a"_s);
    QTRY_COMPARE(failures.size(), 1);
    QTest::qWait(1500);
    QCOMPARE(attempts.count(), 1);
}

void SettingsMeanwhileTest::attemptsBecomeRarer() {
    start(10ms);
    Attempts attempts(folder());
    const FullDisk disk;
    _store->setObject(2, u"a"_s);
    QTest::qWait(1500);
    const auto count = attempts.count();
    QVERIFY2(count >= 3 && count <= 10, qPrintable(QString::number(count)));
}

void SettingsMeanwhileTest::whatIsNotStoredIsStoredOnceTheDiskHasRoom() {
    start(10ms);
    auto disk = std::make_unique<FullDisk>();
    _store->setObject(2, u"a"_s);
    QTRY_VERIFY(!_store->problem().isNull());
    disk.reset();
    QTRY_COMPARE(content(), "[General]\na=2\nb=2\nc=3\n"_ba);
}

void SettingsMeanwhileTest::aLaterChangeOfAnotherProgramHolds() {
    start();
    // What stands in the file itself can be changed still.
    setMode(folder(), 0555);
    auto user = std::make_unique<OrdinaryUser>();
    _store->setObject(10, u"a"_s);
    _store->setObject(20, u"b"_s);
    QTRY_VERIFY(!_store->problem().isNull());
    QSignalSpy changes(_store.get(), &SettingsStore::changed);
    const LogKeeper log;
    QFile file(path());
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write("[General]\na=100\nb=2\nc=3\n");
    file.close();
    QTRY_COMPARE(_store->integerForKey(u"a"_s), 100);
    QCOMPARE(changes.size(), 1);
    QCOMPARE(changes[0][0].toString(), u"a"_s);
    QCOMPARE(_store->integerForKey(u"b"_s), 20);
    QCOMPARE(_store->keysNotStored(), QStringList{u"b"_s});
    QCOMPARE(log.lines(), QStringList{u"Another program's values in %1 hold: a"_s.arg(path())});
    user.reset();
    setMode(folder(), 0777);
    user = std::make_unique<OrdinaryUser>();
    QTRY_VERIFY(_store->keysNotStored().isEmpty());
    QCOMPARE(content(), "[General]\na=100\nb=20\nc=3\n"_ba);
    _store.reset();
}

/// The operator's change is the later one, though the other has not been read yet.
void SettingsMeanwhileTest::anEarlierChangeOfAnotherProgramDoesNotHold() {
    start();
    write("[General]\na=100\nb=200\nc=3\n");
    QTest::qSleep(20);
    _store->setObject(10, u"a"_s);
    QVERIFY(_store->synchronize());
    QCOMPARE(content(), "[General]\na=10\nb=200\nc=3\n"_ba);
}

void SettingsMeanwhileTest::aChangeThatIsMadeAgainHolds() {
    start();
    _store->setObject(10, u"a"_s);
    // Ahead of the event loop, and so of the writing.
    QTest::qSleep(20);
    write("[General]\na=100\nb=2\nc=3\n");
    QTRY_COMPARE(_store->integerForKey(u"a"_s), 100);
    QCOMPARE(content(), "[General]\na=100\nb=2\nc=3\n"_ba);
    _store->setObject(11, u"a"_s);
    QTRY_COMPARE(content(), "[General]\na=11\nb=2\nc=3\n"_ba);
    QCOMPARE(_store->integerForKey(u"a"_s), 11);
}

void SettingsMeanwhileTest::aDamagedFileIsKeptWhenNothingCanBeWritten() {
    start(10ms);
    write("junk");
    auto disk = std::make_unique<FullDisk>();
    QTRY_VERIFY(!_store->problem().isNull());
    QCOMPARE(content(), "junk"_ba);
    QCOMPARE(_store->integerForKey(u"a"_s), 1);
    disk.reset();
    QTRY_COMPARE(content(), "[General]\na=1\nb=2\nc=3\n"_ba);
    QTRY_VERIFY(!_store->corruptFile().isNull());
}

static const RegisteredTest<SettingsMeanwhileTest> registered;
#include "SettingsMeanwhileTest.moc"
