#include "virtualkeyer/pty/PortLink.h"
#include "tests/support/RegisteredTest.h"
#include "virtualkeyer/pty/PseudoTerminal.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include <array>
#include <csignal>
#include <cstdlib>
#include <memory>
#include <stdexcept>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using virtualkeyer::PortLink;
using virtualkeyer::PseudoTerminal;

namespace {

/// A process that plugs in and then lives until it is killed.
class OtherKeyer {
  public:
    OtherKeyer(const std::string& runtimeDirectory, const std::string& target) {
        std::array<int, 2> ready{};
        if (::pipe(ready.data()) < 0) {
            qFatal("no pipe");
        }
        _process = ::fork();
        if (_process == 0) {
            const PortLink link(runtimeDirectory, "usbserial-virtual", target);
            [[maybe_unused]] const auto size = ::write(ready[1], "x", 1);
            while (true) {
                ::pause();
            }
        }
        char plugged = 0;
        ::close(ready[1]);
        _isPluggedIn = ::read(ready[0], &plugged, 1) == 1;
        ::close(ready[0]);
    }
    ~OtherKeyer() { crash(); }

    [[nodiscard]] bool isPluggedIn() const { return _isPluggedIn; }
    [[nodiscard]] pid_t process() const { return _process; }

    void crash() {
        if (_process <= 0) {
            return;
        }
        ::kill(_process, SIGKILL);
        ::waitpid(_process, nullptr, 0);
        _process = 0;
    }

    /// As when all its processes are killed at once, and nobody is left to remove the link.
    void crashWithEverything() {
        QFile children(u"/proc/%1/task/%1/children"_s.arg(_process));
        if (!children.open(QIODevice::ReadOnly)) {
            qFatal("no list of children");
        }
        const auto processes = children.readAll().simplified().split(' ');
        for (const auto& each : processes) {
            ::kill(each.toInt(), SIGKILL);
        }
        crash();
    }

  private:
    pid_t _process = 0;
    bool _isPluggedIn = false;
};

} // namespace

class PortLinkTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void aFreshLinkPointsAtTheTerminalAndGoesWithItsOwner();
    void theDirectoriesAreForTheirOwnerOnly();
    void aDirectoryThatOthersMayWriteToIsRefused_data();
    void aDirectoryThatOthersMayWriteToIsRefused();
    void aDirectoryBehindALinkIsRefused();
    void thePortsDirectoryHoldsTheLinkOnly();
    void nothingIsLeftBesideThePortsAfterwards();
    void aCrashedKeyersLinkIsReplaced_data();
    void aCrashedKeyersLinkIsReplaced();
    void aLinkThatPointsNowhereIsReplaced();
    void aLivingKeyersNameIsRefused();
    void aSecondNameNextToALivingKeyerIsFine();
    void whatNoVirtualKeyerMadeIsRefusedAndLeftAlone_data();
    void whatNoVirtualKeyerMadeIsRefusedAndLeftAlone();
    void aForeignLinkInACrashedKeyersPlaceIsLeftAlone();
    void aKilledKeyerTakesItsLinkAlong();
    void aKilledKeyersTerminalGoesAtOnce();
    void aForeignLinkPutInAKilledKeyersPlaceStays();
    void aForeignLinkPutInOurPlaceSurvivesOurEnd();
    void aRuntimeDirectoryThatIsMissingIsAnError();
    void namesThatCanBeAPort_data();
    void namesThatCanBeAPort();

  private:
    [[nodiscard]] std::string runtime() const { return _directory->path().toStdString(); }
    [[nodiscard]] QString ports() const { return _directory->path() + u"/quorvel/ports"_s; }
    [[nodiscard]] QString linkPath() const { return ports() + u"/usbserial-virtual"_s; }
    [[nodiscard]] QString target() const { return QFile::symLinkTarget(linkPath()); }
    [[nodiscard]] QStringList portNames() const {
        return QDir(ports()).entryList(QDir::AllEntries | QDir::System | QDir::Hidden |
                                       QDir::NoDotAndDotDot);
    }
    [[nodiscard]] QString refusal(const std::string& name = "usbserial-virtual") const {
        try {
            const PortLink link(runtime(), name, "/dev/null");
        } catch (const std::runtime_error& error) {
            return QString::fromLocal8Bit(error.what());
        }
        return {};
    }

    std::unique_ptr<QTemporaryDir> _directory;
};

void PortLinkTest::init() {
    _directory = std::make_unique<QTemporaryDir>();
    QVERIFY(_directory->isValid());
}

void PortLinkTest::aFreshLinkPointsAtTheTerminalAndGoesWithItsOwner() {
    const PseudoTerminal terminal;
    {
        const PortLink link(runtime(), "usbserial-virtual", terminal.slavePath());
        QCOMPARE(QString::fromStdString(link.path()), linkPath());
        QVERIFY(QFileInfo(linkPath()).isSymLink());
        QCOMPARE(target(), QString::fromStdString(terminal.slavePath()));
    }
    QVERIFY(!QFileInfo(linkPath()).isSymLink());
    QVERIFY(QDir(ports()).exists());
}

void PortLinkTest::theDirectoriesAreForTheirOwnerOnly() {
    const PortLink link(runtime(), "usbserial-virtual", "/dev/null");
    for (const QString& path : {_directory->path() + u"/quorvel"_s, ports()}) {
        struct stat status {};
        QCOMPARE(::stat(QFile::encodeName(path).constData(), &status), 0);
        QCOMPARE(status.st_mode & 0777U, 0700U);
    }
}

void PortLinkTest::aDirectoryThatOthersMayWriteToIsRefused_data() {
    QTest::addColumn<QString>("directory");
    QTest::addColumn<uint>("mode");
    QTest::newRow("the group, to the upper one") << u"/quorvel"_s << 0770U;
    QTest::newRow("anybody, to the ports'") << u"/quorvel/ports"_s << 0707U;
}

/// Whoever may put a link there would have the keyer's place.
void PortLinkTest::aDirectoryThatOthersMayWriteToIsRefused() {
    QFETCH(const QString, directory);
    QFETCH(const uint, mode);
    QVERIFY(QDir().mkpath(ports()));
    const auto path = QFile::encodeName(_directory->path() + directory);
    QCOMPARE(::chmod(path.constData(), mode), 0);
    QVERIFY_THROWS_EXCEPTION(std::runtime_error,
                             PortLink(runtime(), "usbserial-virtual", "/dev/null"));
    QCOMPARE(portNames(), QStringList());
}

void PortLinkTest::aDirectoryBehindALinkIsRefused() {
    const QTemporaryDir elsewhere;
    QVERIFY(QDir(_directory->path()).mkdir(u"quorvel"_s));
    QVERIFY(QFile::link(elsewhere.path(), ports()));
    QVERIFY_THROWS_EXCEPTION(std::runtime_error,
                             PortLink(runtime(), "usbserial-virtual", "/dev/null"));
    QVERIFY(QDir(elsewhere.path()).isEmpty());
}

void PortLinkTest::thePortsDirectoryHoldsTheLinkOnly() {
    const PortLink link(runtime(), "usbserial-virtual", "/dev/null");
    QCOMPARE(portNames(), QStringList{u"usbserial-virtual"_s});
}

void PortLinkTest::nothingIsLeftBesideThePortsAfterwards() {
    const QString claims = _directory->path() + u"/quorvel/virtual-keyers"_s;
    const auto filter = QDir::AllEntries | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot;
    {
        const PortLink link(runtime(), "usbserial-virtual", "/dev/null");
        QCOMPARE(QDir(claims).entryList(filter), QStringList{u"usbserial-virtual.lock"_s});
    }
    QCOMPARE(QDir(claims).entryList(filter), QStringList{});
}

void PortLinkTest::aCrashedKeyersLinkIsReplaced_data() {
    QTest::addColumn<QString>("oldTarget");
    QTest::newRow("its terminal is gone") << u"/dev/pts/99999"_s;
    QTest::newRow("its terminal's number has been given to somebody else") << u"/dev/ptmx"_s;
    QTest::newRow("its terminal's number is our own terminal's now") << QString();
}

void PortLinkTest::aCrashedKeyersLinkIsReplaced() {
    QFETCH(QString, oldTarget);
    const PseudoTerminal terminal;
    OtherKeyer other(runtime(),
                     oldTarget.isEmpty() ? terminal.slavePath() : oldTarget.toStdString());
    QVERIFY(other.isPluggedIn());
    other.crashWithEverything();
    QVERIFY(QFileInfo(linkPath()).isSymLink());
    {
        const PortLink link(runtime(), "usbserial-virtual", terminal.slavePath());
        QCOMPARE(target(), QString::fromStdString(terminal.slavePath()));
    }
    QCOMPARE(portNames(), QStringList{});
}

void PortLinkTest::aLinkThatPointsNowhereIsReplaced() {
    QVERIFY(QDir().mkpath(ports()));
    QVERIFY(QFile::link(u"/dev/pts/99999"_s, linkPath()));
    const PortLink link(runtime(), "usbserial-virtual", "/dev/null");
    QCOMPARE(target(), u"/dev/null"_s);
}

void PortLinkTest::aLivingKeyersNameIsRefused() {
    const PseudoTerminal terminal;
    OtherKeyer other(runtime(), terminal.slavePath());
    QVERIFY(other.isPluggedIn());
    QCOMPARE(refusal(), u"a running virtual keyer (process %1) already holds the name "
                        "usbserial-virtual"_s.arg(other.process()));
    QCOMPARE(target(), QString::fromStdString(terminal.slavePath()));
    QVERIFY2(!refusal().isEmpty(), "the refused attempt must not let go of the other's name");
}

void PortLinkTest::aSecondNameNextToALivingKeyerIsFine() {
    OtherKeyer other(runtime(), "/dev/null");
    QVERIFY(other.isPluggedIn());
    const PortLink link(runtime(), "second", "/dev/null");
    QCOMPARE(portNames(), (QStringList{u"second"_s, u"usbserial-virtual"_s}));
}

void PortLinkTest::whatNoVirtualKeyerMadeIsRefusedAndLeftAlone_data() {
    QTest::addColumn<QString>("kind");
    QTest::newRow("a link to a terminal") << u"link"_s;
    QTest::newRow("a file") << u"file"_s;
    QTest::newRow("a directory") << u"directory"_s;
}

void PortLinkTest::whatNoVirtualKeyerMadeIsRefusedAndLeftAlone() {
    QFETCH(QString, kind);
    const PseudoTerminal foreign;
    QVERIFY(QDir().mkpath(ports()));
    if (kind == "link"_L1) {
        QVERIFY(QFile::link(QString::fromStdString(foreign.slavePath()), linkPath()));
    } else if (kind == "file"_L1) {
        QVERIFY(QFile(linkPath()).open(QIODevice::WriteOnly));
    } else {
        QVERIFY(QDir().mkdir(linkPath()));
    }
    QCOMPARE(refusal(), linkPath() + u" is in the way and no virtual keyer made it"_s);
    const QFileInfo info(linkPath());
    QCOMPARE(info.isSymLink(), kind == "link"_L1);
    QCOMPARE(info.isDir(), kind == "directory"_L1);
    QVERIFY(info.exists());
}

void PortLinkTest::aForeignLinkInACrashedKeyersPlaceIsLeftAlone() {
    const PseudoTerminal terminal;
    OtherKeyer other(runtime(), terminal.slavePath());
    QVERIFY(other.isPluggedIn());
    other.crashWithEverything();
    QVERIFY(QFile::remove(linkPath()));
    QVERIFY(QFile::link(QString::fromStdString(terminal.slavePath()), linkPath()));
    QVERIFY(!refusal().isEmpty());
    QVERIFY(QFileInfo(linkPath()).isSymLink());
}

void PortLinkTest::aKilledKeyerTakesItsLinkAlong() {
    const PseudoTerminal terminal;
    OtherKeyer other(runtime(), terminal.slavePath());
    QVERIFY(other.isPluggedIn());
    other.crash();
    QTRY_VERIFY(!QFileInfo(linkPath()).isSymLink());
}

void PortLinkTest::aKilledKeyersTerminalGoesAtOnce() {
    QString path;
    {
        std::array<int, 2> ready{};
        QCOMPARE(::pipe(ready.data()), 0);
        const auto process = ::fork();
        if (process == 0) {
            const PseudoTerminal terminal;
            const PortLink link(runtime(), "usbserial-virtual", terminal.slavePath());
            [[maybe_unused]] const auto size =
                ::write(ready[1], terminal.slavePath().data(), terminal.slavePath().size());
            ::raise(SIGKILL);
        }
        ::close(ready[1]);
        std::array<char, 64> name{};
        const auto size = ::read(ready[0], name.data(), name.size());
        ::close(ready[0]);
        ::waitpid(process, nullptr, 0);
        path = QString::fromLocal8Bit(name.data(), size);
    }
    QVERIFY(path.startsWith(u"/dev/pts/"_s));
    QTRY_VERIFY(!QFile::exists(path));
}

void PortLinkTest::aForeignLinkPutInAKilledKeyersPlaceStays() {
    const PseudoTerminal terminal;
    OtherKeyer other(runtime(), terminal.slavePath());
    QVERIFY(other.isPluggedIn());
    QVERIFY(QFile::remove(linkPath()));
    QVERIFY(QFile::link(u"/dev/null"_s, linkPath()));
    other.crash();
    QTest::qWait(100);
    QCOMPARE(target(), u"/dev/null"_s);
}

void PortLinkTest::aForeignLinkPutInOurPlaceSurvivesOurEnd() {
    {
        const PortLink link(runtime(), "usbserial-virtual", "/dev/null");
        QVERIFY(QFile::remove(linkPath()));
        QVERIFY(QFile::link(u"/dev/null"_s, linkPath()));
    }
    QVERIFY(QFileInfo(linkPath()).isSymLink());
}

void PortLinkTest::aRuntimeDirectoryThatIsMissingIsAnError() {
    const std::string missing = runtime() + "/missing";
    QVERIFY_THROWS_EXCEPTION(std::system_error,
                             PortLink(missing, "usbserial-virtual", "/dev/null"));
}

void PortLinkTest::namesThatCanBeAPort_data() {
    QTest::addColumn<std::string>("name");
    QTest::addColumn<bool>("isValid");
    QTest::newRow("the usual name") << std::string("usbserial-virtual") << true;
    QTest::newRow("a name with a blank and an umlaut") << std::string("Kl\xc3\xa4ng 2") << true;
    QTest::newRow("an empty name") << std::string() << false;
    QTest::newRow("a path") << std::string("../ttyUSB0") << false;
    QTest::newRow("a name with a slash at the end") << std::string("keyer/") << false;
    QTest::newRow("the directory itself") << std::string(".") << false;
    QTest::newRow("the parent directory") << std::string("..") << false;
    QTest::newRow("a hidden name") << std::string(".keyer") << false;
    QTest::newRow("a name with a line break") << std::string("a\nb") << false;
    QTest::newRow("a name with a null character") << std::string("a\0b", 3) << false;
    QTest::newRow("the longest name") << std::string(200, 'x') << true;
    QTest::newRow("a name that is too long") << std::string(201, 'x') << false;
}

void PortLinkTest::namesThatCanBeAPort() {
    QFETCH(std::string, name);
    QTEST(PortLink::isValidName(name), "isValid");
}

static const RegisteredTest<PortLinkTest> registered;
#include "PortLinkTest.moc"
