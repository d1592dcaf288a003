#include "platform/linux/PortsDirectorySource.h"

#include "platform/linux/LinuxDeviceRegistry.h"
#include "tests/support/LogKeeper.h"
#include "tests/support/PseudoTerminalPair.h"
#include "tests/support/RegisteredTest.h"

#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <array>
#include <fcntl.h>
#include <memory>
#include <optional>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

QStringList loggedLines;

void keepLine(QtMsgType, const QMessageLogContext&, const QString& line) {
    loggedLines.append(line);
}

} // namespace

class PortsDirectorySourceTest : public QObject {
    Q_OBJECT
  private Q_SLOTS:
    void init();
    void cleanup();

    void standsInTheRuntimeDirectory();
    void isMadeForTheUserAlone();
    void keepsADirectoryThatIsThere();
    void describesALink();
    void listsLinksInNaturalOrder();
    void passesOver_data();
    void passesOver();
    void followsARelativeLink();
    void followsALinkToALink();
    void seesALinkComeAndGo();
    void seesATerminalGo();
    void seesATerminalComeBehindALink();
    void aLinkThatIsMadeAnewToTheSameTerminalIsTheSameDevice();
    void aLinkThatIsMadeAnewToAnotherTerminalIsAnotherDevice();
    void aLinkThatIsOlderThanItsTerminalIsNoPort();
    void aTerminalThatIsUsedKeepsItsPort();
    void aLinkThatStaysIsTheSameDevice();
    void writesOutWhatNobodySees_data();
    void writesOutWhatNobodySees();
    void passesOverADirectoryThatIsNotTheUsersAlone_data();
    void passesOverADirectoryThatIsNotTheUsersAlone();
    void passesOverADirectoryBehindALink();
    void theDirectoryMayGoAndComeBack();
    void theDirectoryMayBeReplaced();
    void theParentMayGoAndComeBack();
    void aDirectoryThatCannotBeMadeIsLoggedAndAwaited();
    void aDirectoryThatIsAFileIsLoggedOnce();
    void withoutARuntimeDirectoryThereIsNothing();
    void listsAThousandLinks();
    void joinsTheRegistry();

  private:
    [[nodiscard]] QString ports() const { return _runtime->filePath(u"quorvel/ports"_s); }
    [[nodiscard]] QString at(const QString& name) const { return ports() + u'/' + name; }
    void link(const QString& name, const QString& target) const {
        QCOMPARE(::symlink(QFile::encodeName(target).constData(),
                           QFile::encodeName(at(name)).constData()),
                 0);
    }
    void start() { _source.emplace(ports()); }
    [[nodiscard]] QStringList names();

    std::unique_ptr<QTemporaryDir> _runtime;
    std::optional<PortsDirectorySource> _source;
};

void PortsDirectorySourceTest::init() {
    ::umask(S_IWGRP | S_IWOTH);
    _runtime = std::make_unique<QTemporaryDir>();
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(_runtime->path()));
}

void PortsDirectorySourceTest::cleanup() {
    _source.reset();
    _runtime.reset();
}

QStringList PortsDirectorySourceTest::names() {
    QStringList names;
    const auto devices = _source->devices();
    for (const auto& device : devices) {
        names.append(device.baseName + device.suffixes.constFirst());
    }
    return names;
}

void PortsDirectorySourceTest::standsInTheRuntimeDirectory() {
    QCOMPARE(PortsDirectorySource::standardPath(), ports());
}

void PortsDirectorySourceTest::isMadeForTheUserAlone() {
    start();
    for (const auto& path : {_runtime->filePath(u"quorvel"_s), ports()}) {
        struct stat status {};
        QCOMPARE(::stat(QFile::encodeName(path).constData(), &status), 0);
        QCOMPARE(status.st_mode & 07777u, 0700u);
    }
    QVERIFY(names().isEmpty());
}

void PortsDirectorySourceTest::keepsADirectoryThatIsThere() {
    const PseudoTerminalPair line;
    QVERIFY(QDir().mkpath(ports()));
    link(u"a"_s, line.path());
    start();
    QCOMPARE(names(), QStringList{u"a"_s});
}

void PortsDirectorySourceTest::describesALink() {
    const PseudoTerminalPair line;
    start();
    link(u"WK keyer"_s, line.path());
    const auto devices = _source->devices();
    QCOMPARE(devices.size(), 1);
    QCOMPARE(devices[0].calloutPath, line.path());
    QCOMPARE(devices[0].dialinPath, at(u"WK keyer"_s));
    QCOMPARE(devices[0].baseName, u"WK keyer"_s);
    QCOMPARE(devices[0].suffixes, QStringList{QString()});
    QVERIFY(!devices[0].isUsb);
}

void PortsDirectorySourceTest::listsLinksInNaturalOrder() {
    const PseudoTerminalPair line;
    start();
    link(u"keyer10"_s, line.path());
    link(u"keyer9"_s, line.path());
    link(u"Ä`%^,\"'\\ ;"_s, line.path());
    QCOMPARE(names(), QStringList({u"Ä`%^,\"'\\ ;"_s, u"keyer9"_s, u"keyer10"_s}));
}

void PortsDirectorySourceTest::passesOver_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("target");
    QTest::newRow("a link that points nowhere") << u"a"_s << u"/dev/does-not-exist"_s;
    QTest::newRow("a link to itself") << u"a"_s << u"a"_s;
    QTest::newRow("a link to a file") << u"a"_s << u"/etc/passwd"_s;
    QTest::newRow("a link to a directory") << u"a"_s << u"/dev"_s;
    QTest::newRow("a link to a device that is no terminal") << u"a"_s << u"/dev/null"_s;
    QTest::newRow("a hidden link") << u".a"_s << QString();
    QTest::newRow("a name with a line break") << u"a\nb"_s << QString();
    QTest::newRow("a name with a control character") << u"a\x7F"_s << QString();
}

void PortsDirectorySourceTest::passesOver() {
    QFETCH(QString, name);
    QFETCH(QString, target);
    const PseudoTerminalPair line;
    start();
    link(name, target.isNull() ? line.path() : target);
    link(u"good"_s, line.path());
    QFile file(at(u"file"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(QDir().mkdir(at(u"directory"_s)));
    QCOMPARE(names(), QStringList{u"good"_s});
}

void PortsDirectorySourceTest::followsARelativeLink() {
    const PseudoTerminalPair line;
    start();
    link(u"a"_s, QDir(QFileInfo(ports()).canonicalFilePath()).relativeFilePath(line.path()));
    QCOMPARE(_source->devices().value(0).calloutPath, line.path());
}

void PortsDirectorySourceTest::followsALinkToALink() {
    PseudoTerminalPair line;
    start();
    const auto between = _runtime->filePath(u"between"_s);
    QVERIFY(QFile::link(line.path(), between));
    link(u"a"_s, between);
    QCOMPARE(_source->devices().value(0).calloutPath, line.path());
    QSignalSpy changed(&*_source, &DeviceSource::changed);
    line.hangUp();
    QTRY_VERIFY(!changed.isEmpty());
    QVERIFY(names().isEmpty());
}

void PortsDirectorySourceTest::seesALinkComeAndGo() {
    const PseudoTerminalPair line;
    start();
    QVERIFY(names().isEmpty());
    QSignalSpy changed(&*_source, &DeviceSource::changed);
    link(u"a"_s, line.path());
    QTRY_VERIFY(!changed.isEmpty());
    QCOMPARE(names(), QStringList{u"a"_s});
    changed.clear();
    QVERIFY(QFile::remove(at(u"a"_s)));
    QTRY_VERIFY(!changed.isEmpty());
    QVERIFY(names().isEmpty());
}

void PortsDirectorySourceTest::seesATerminalGo() {
    PseudoTerminalPair line;
    start();
    link(u"a"_s, line.path());
    QCOMPARE(names(), QStringList{u"a"_s});
    QSignalSpy changed(&*_source, &DeviceSource::changed);
    line.hangUp();
    QTRY_VERIFY(!changed.isEmpty());
    QVERIFY(names().isEmpty());
}

void PortsDirectorySourceTest::seesATerminalComeBehindALink() {
    const PseudoTerminalPair line;
    const auto between = _runtime->filePath(u"elsewhere/between"_s);
    QVERIFY(QDir().mkpath(_runtime->filePath(u"elsewhere"_s)));
    start();
    link(u"a"_s, between);
    QVERIFY(names().isEmpty());
    QSignalSpy changed(&*_source, &DeviceSource::changed);
    QVERIFY(QFile::link(line.path(), between));
    QTRY_VERIFY(!changed.isEmpty());
    QCOMPARE(names(), QStringList{u"a"_s});
}

void PortsDirectorySourceTest::aLinkThatIsMadeAnewToTheSameTerminalIsTheSameDevice() {
    const PseudoTerminalPair line;
    start();
    link(u"a"_s, line.path());
    const auto before = _source->devices();
    link(u"b"_s, line.path());
    QCOMPARE(::rename(QFile::encodeName(at(u"b"_s)).constData(),
                      QFile::encodeName(at(u"a"_s)).constData()),
             0);
    QCOMPARE(_source->devices(), before);
    const std::array<timespec, 2> later{timespec{2'000'000'000, 0}, timespec{2'000'000'000, 0}};
    QCOMPARE(::utimensat(AT_FDCWD, QFile::encodeName(at(u"a"_s)).constData(), later.data(),
                         AT_SYMLINK_NOFOLLOW),
             0);
    QCOMPARE(_source->devices(), before);
}

void PortsDirectorySourceTest::aLinkThatIsMadeAnewToAnotherTerminalIsAnotherDevice() {
    const PseudoTerminalPair first;
    const PseudoTerminalPair second;
    start();
    link(u"a"_s, first.path());
    const auto before = _source->devices().value(0).identity;
    link(u"b"_s, second.path());
    QCOMPARE(::rename(QFile::encodeName(at(u"b"_s)).constData(),
                      QFile::encodeName(at(u"a"_s)).constData()),
             0);
    QCOMPARE(names(), QStringList{u"a"_s});
    QVERIFY(_source->devices().value(0).identity != before);
}

/// Whoever made it has gone, and the number of its terminal is that of another one by now.
void PortsDirectorySourceTest::aLinkThatIsOlderThanItsTerminalIsNoPort() {
    start();
    // Which number the next terminal has is up to the system, and all programs.
    constexpr int numbers = 1000;
    for (int i = 0; i < numbers; ++i) {
        link(QString::number(i), u"/dev/pts/%1"_s.arg(i));
    }
    // Programs may set a terminal up just after they have made the link to it.
    std::this_thread::sleep_for(1100ms);
    const PseudoTerminalPair shell;
    const auto number = QFileInfo(shell.path()).fileName();
    QVERIFY(QFileInfo(at(number)).exists());
    QVERIFY(!names().contains(number));
    link(u"a"_s, shell.path());
    QVERIFY(names().contains(u"a"_s));
}

void PortsDirectorySourceTest::aTerminalThatIsUsedKeepsItsPort() {
    const PseudoTerminalPair line;
    start();
    link(u"a"_s, line.path());
    std::this_thread::sleep_for(1100ms);
    QCOMPARE(::chmod(QFile::encodeName(line.path()).constData(), 0666), 0);
    QCOMPARE(names(), QStringList{u"a"_s});
}

void PortsDirectorySourceTest::aLinkThatStaysIsTheSameDevice() {
    const PseudoTerminalPair line;
    start();
    link(u"a"_s, line.path());
    const auto before = _source->devices();
    link(u"b"_s, u"/dev/null"_s);
    QCOMPARE(_source->devices(), before);
}

void PortsDirectorySourceTest::writesOutWhatNobodySees_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("shown");
    QTest::newRow("from right to left") << u"usb\u202Elairesbsu"_s << u"usb\\u202elairesbsu"_s;
    QTest::newRow("isolated") << u"a\u2066b\u2069"_s << u"a\\u2066b\\u2069"_s;
    QTest::newRow("no width") << u"usbserial\u200B-1"_s << u"usbserial\\u200b-1"_s;
    QTest::newRow("a mark of byte order") << u"\uFEFFa"_s << u"\\ufeffa"_s;
    QTest::newRow("a line's end") << u"a\u2028b"_s << u"a\\u2028b"_s;
    QTest::newRow("a joiner of letters") << u"a\u034Fb"_s << u"a\\u034fb"_s;
    QTest::newRow("a filler") << u"a\u3164"_s << u"a\\u3164"_s;
    QTest::newRow("a variant") << u"a\uFE0F"_s << u"a\\ufe0f"_s;
    QTest::newRow("a tag") << u"a\U000E0041"_s << u"a\\ue0041"_s;
    QTest::newRow("letters of any kind stay") << u"Gr\u00FC\u00DFe \u6771\u4EAC \U0001F600"_s
                                              << u"Gr\u00FC\u00DFe \u6771\u4EAC \U0001F600"_s;
}

void PortsDirectorySourceTest::writesOutWhatNobodySees() {
    QFETCH(const QString, name);
    QFETCH(const QString, shown);
    const PseudoTerminalPair line;
    start();
    link(name, line.path());
    QCOMPARE(names(), QStringList{shown});
}

void PortsDirectorySourceTest::passesOverADirectoryThatIsNotTheUsersAlone_data() {
    QTest::addColumn<QString>("directory");
    QTest::addColumn<int>("mode");
    for (const auto& directory : {u""_s, u"quorvel"_s, u"quorvel/ports"_s}) {
        QTest::addRow("%s: others may write", qPrintable(directory)) << directory << 0707;
        QTest::addRow("%s: the group may write", qPrintable(directory)) << directory << 0770;
        if (::geteuid() == 0) {
            // Nobody else can give a directory away.
            QTest::addRow("%s: it is somebody else's", qPrintable(directory)) << directory << 0755;
        }
    }
}

void PortsDirectorySourceTest::passesOverADirectoryThatIsNotTheUsersAlone() {
    QFETCH(const QString, directory);
    QFETCH(const int, mode);
    const PseudoTerminalPair line;
    start();
    link(u"a"_s, line.path());
    QCOMPARE(names(), QStringList{u"a"_s});
    const auto path = QDir::cleanPath(_runtime->filePath(directory));
    const bool isForeign = mode == 0755;
    constexpr uid_t nobody = 65534;
    QCOMPARE(::chown(QFile::encodeName(path).constData(), isForeign ? nobody : ::geteuid(),
                     static_cast<gid_t>(-1)),
             0);
    QCOMPARE(::chmod(QFile::encodeName(path).constData(), static_cast<mode_t>(mode)), 0);
    const LogKeeper log;
    QVERIFY(names().isEmpty());
    QVERIFY(names().isEmpty());
    QCOMPARE(log.lines(), QStringList{u"The ports directory is not used: %1 is not this user's "
                                      "alone"_s.arg(path)});
}

void PortsDirectorySourceTest::passesOverADirectoryBehindALink() {
    const PseudoTerminalPair line;
    const auto elsewhere = _runtime->filePath(u"elsewhere"_s);
    QVERIFY(QDir().mkpath(elsewhere + u"/ports"_s));
    QVERIFY(QFile::link(line.path(), elsewhere + u"/ports/a"_s));
    QVERIFY(QFile::link(elsewhere, _runtime->filePath(u"quorvel"_s)));
    const LogKeeper log;
    start();
    QVERIFY(names().isEmpty());
    QCOMPARE(log.lines().size(), 1);
}

void PortsDirectorySourceTest::theDirectoryMayGoAndComeBack() {
    const PseudoTerminalPair line;
    start();
    link(u"a"_s, line.path());
    QCOMPARE(names(), QStringList{u"a"_s});
    QSignalSpy changed(&*_source, &DeviceSource::changed);
    QVERIFY(QDir(ports()).removeRecursively());
    QTRY_VERIFY(!changed.isEmpty());
    QVERIFY(names().isEmpty());
    changed.clear();
    QVERIFY(QDir().mkdir(ports()));
    QTRY_VERIFY(!changed.isEmpty());
    QVERIFY(names().isEmpty());
    changed.clear();
    link(u"b"_s, line.path());
    QTRY_VERIFY(!changed.isEmpty());
    QCOMPARE(names(), QStringList{u"b"_s});
}

void PortsDirectorySourceTest::theDirectoryMayBeReplaced() {
    const PseudoTerminalPair line;
    start();
    QVERIFY(names().isEmpty());
    QVERIFY(QDir().rename(ports(), _runtime->filePath(u"old"_s)));
    QVERIFY(QDir().mkdir(ports()));
    QVERIFY(names().isEmpty());
    QSignalSpy changed(&*_source, &DeviceSource::changed);
    link(u"a"_s, line.path());
    QTRY_VERIFY(!changed.isEmpty());
    QCOMPARE(names(), QStringList{u"a"_s});
}

void PortsDirectorySourceTest::theParentMayGoAndComeBack() {
    const PseudoTerminalPair line;
    start();
    link(u"a"_s, line.path());
    QCOMPARE(names(), QStringList{u"a"_s});
    QVERIFY(QDir(_runtime->filePath(u"quorvel"_s)).removeRecursively());
    QVERIFY(names().isEmpty());
    QSignalSpy changed(&*_source, &DeviceSource::changed);
    QVERIFY(QDir().mkdir(_runtime->filePath(u"quorvel"_s)));
    QTRY_VERIFY(!changed.isEmpty());
    QVERIFY(names().isEmpty());
    changed.clear();
    QVERIFY(QDir().mkdir(ports()));
    QTRY_VERIFY(!changed.isEmpty());
    link(u"a"_s, line.path());
    QCOMPARE(names(), QStringList{u"a"_s});
}

void PortsDirectorySourceTest::aDirectoryThatCannotBeMadeIsLoggedAndAwaited() {
    const PseudoTerminalPair line;
    const auto quorvel = _runtime->filePath(u"quorvel"_s);
    QFile file(quorvel);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QTest::ignoreMessage(QtInfoMsg, qPrintable(u"Cannot make the ports directory %1: Not a "
                                               "directory"_s.arg(ports())));
    start();
    QVERIFY(names().isEmpty());
    QSignalSpy changed(&*_source, &DeviceSource::changed);
    QVERIFY(file.remove());
    QVERIFY(QDir().mkpath(ports()));
    QTRY_VERIFY(!changed.isEmpty());
    link(u"a"_s, line.path());
    QCOMPARE(names(), QStringList{u"a"_s});
}

void PortsDirectorySourceTest::aDirectoryThatIsAFileIsLoggedOnce() {
    QVERIFY(QDir().mkdir(_runtime->filePath(u"quorvel"_s)));
    QFile file(ports());
    QVERIFY(file.open(QIODevice::WriteOnly));
    start();
    loggedLines.clear();
    const auto previous = qInstallMessageHandler(&keepLine);
    const auto first = names();
    const auto second = names();
    qInstallMessageHandler(previous);
    QVERIFY(first.isEmpty());
    QVERIFY(second.isEmpty());
    QCOMPARE(loggedLines, QStringList{u"Cannot read the ports directory "_s + ports()});
}

void PortsDirectorySourceTest::withoutARuntimeDirectoryThereIsNothing() {
    QTest::ignoreMessage(QtInfoMsg, "There is no runtime directory, and so no ports directory");
    _source.emplace(QString());
    QVERIFY(names().isEmpty());
}

void PortsDirectorySourceTest::listsAThousandLinks() {
    const PseudoTerminalPair line;
    start();
    for (int i = 0; i < 1000; ++i) {
        link(u"keyer%1"_s.arg(i), i % 2 == 0 ? line.path() : u"/dev/does-not-exist"_s);
    }
    const auto all = names();
    QCOMPARE(all.size(), 500);
    QCOMPARE(all.constLast(), u"keyer998"_s);
}

void PortsDirectorySourceTest::joinsTheRegistry() {
    PseudoTerminalPair first;
    PseudoTerminalPair second;
    LinuxDeviceRegistry::Sources sources;
    sources.push_back(std::make_unique<PortsDirectorySource>(ports()));
    LinuxDeviceRegistry registry(std::move(sources));
    const auto present = [&] {
        QStringList names;
        const auto devices = registry.matchingDevices().value();
        for (const auto device : devices) {
            names.append(registry.stringProperty(device, DeviceKey::ttyDevice));
        }
        return names;
    };
    link(u"b"_s, first.path());
    link(u"a"_s, second.path());
    QTRY_COMPARE(present(), QStringList({u"a"_s, u"b"_s}));
    first.hangUp();
    QTRY_COMPARE(present(), QStringList{u"a"_s});
    QVERIFY(QDir(ports()).removeRecursively());
    QTRY_COMPARE(present(), QStringList());
}

static const RegisteredTest<PortsDirectorySourceTest> registered;
#include "PortsDirectorySourceTest.moc"
