// Whose terminal a link leads to, when the times of both have been moved.

#include "platform/linux/PortsDirectorySource.h"
#include "tests/support/LogKeeper.h"
#include "tests/support/PseudoTerminalPair.h"
#include "tests/support/RegisteredTest.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <fcntl.h>
#include <memory>
#include <optional>
#include <sys/stat.h>
#include <thread>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// Programs may set a terminal up just after they have made the link to it.
constexpr auto setUpTime = 1100ms;

QByteArray encoded(const QString& path) {
    return QFile::encodeName(path);
}

/// As touch does, of the link itself.
void touch(const QString& path) {
    QCOMPARE(::utimensat(AT_FDCWD, encoded(path).constData(), nullptr, AT_SYMLINK_NOFOLLOW), 0);
}

void chmod(const QString& path, mode_t mode) {
    QCOMPARE(::chmod(encoded(path).constData(), mode), 0);
}

} // namespace

class LinkBirthTest : public QObject {
    Q_OBJECT
  private Q_SLOTS:
    void init();
    void cleanup();

    void aLeftOverLinkThatIsTouchedIsNoPort();
    void aTerminalThatIsTouchedAndGivenAnotherModeKeepsItsPort();
    void aTerminalOfTheSameNumberIsAnotherOne();
    void knowsWhetherADeviceIsStillThere();

  private:
    [[nodiscard]] QString at(const QString& name) const {
        return _runtime->filePath(u"quorvel/ports/"_s + name);
    }
    void link(const QString& name, const QString& target) const {
        QCOMPARE(::symlink(encoded(target).constData(), encoded(at(name)).constData()), 0);
    }
    [[nodiscard]] QStringList names();

    std::unique_ptr<QTemporaryDir> _runtime;
    std::optional<PortsDirectorySource> _source;
};

/// In memory, as a runtime directory is, where a link knows its birth.
void LinkBirthTest::init() {
    _runtime = std::make_unique<QTemporaryDir>(u"/dev/shm/quorvel-XXXXXX"_s);
    QVERIFY(_runtime->isValid());
    _source.emplace(_runtime->filePath(u"quorvel/ports"_s));
}

void LinkBirthTest::cleanup() {
    _source.reset();
    _runtime.reset();
}

QStringList LinkBirthTest::names() {
    QStringList names;
    for (const auto& device : _source->devices()) {
        names.append(device.baseName);
    }
    return names;
}

void LinkBirthTest::aLeftOverLinkThatIsTouchedIsNoPort() {
    // Which number the next terminal has is up to the system, and all programs.
    constexpr int numbers = 1000;
    for (int i = 0; i < numbers; ++i) {
        link(QString::number(i), u"/dev/pts/%1"_s.arg(i));
    }
    std::this_thread::sleep_for(setUpTime);
    const PseudoTerminalPair shell;
    const auto number = QFileInfo(shell.path()).fileName();
    touch(at(number));
    const LogKeeper log;
    QVERIFY(!names().contains(number));
    const auto line =
        u"%1 is no port: %2 was made after it, for somebody else"_s.arg(at(number), shell.path());
    QCOMPARE(log.lines().count(line), 1);
    QVERIFY(!names().contains(number));
    QCOMPARE(log.lines().count(line), 1);
}

/// All its times are later than the link then.
void LinkBirthTest::aTerminalThatIsTouchedAndGivenAnotherModeKeepsItsPort() {
    const PseudoTerminalPair line;
    link(u"a"_s, line.path());
    QCOMPARE(names(), QStringList{u"a"_s});
    std::this_thread::sleep_for(setUpTime);
    touch(line.path());
    chmod(line.path(), 0666);
    QCOMPARE(names(), QStringList{u"a"_s});
}

void LinkBirthTest::aTerminalOfTheSameNumberIsAnotherOne() {
    // The lowest free number is the next one's, unless another program of this machine is faster.
    for (int attempt = 0; attempt < 10; ++attempt) {
        auto line = std::make_unique<PseudoTerminalPair>();
        const auto path = line->path();
        link(u"a"_s, path);
        QCOMPARE(names(), QStringList{u"a"_s});
        std::this_thread::sleep_for(setUpTime);
        line.reset();
        const PseudoTerminalPair shell;
        if (shell.path() == path) {
            QCOMPARE(names(), QStringList());
            return;
        }
        QVERIFY(QFile::remove(at(u"a"_s)));
    }
    QFAIL("No number was used again.");
}

void LinkBirthTest::knowsWhetherADeviceIsStillThere() {
    PseudoTerminalPair line;
    link(u"a"_s, line.path());
    const auto device = _source->devices().value(0);
    QVERIFY(_source->has(device));
    auto other = device;
    other.calloutPath = u"/dev/pts/ptmx"_s;
    QVERIFY(!_source->has(other));
    line.hangUp();
    QVERIFY(!_source->has(device));
    QVERIFY(QFile::remove(at(u"a"_s)));
    const PseudoTerminalPair second;
    link(u"b"_s, second.path());
    const auto removed = _source->devices().value(0);
    QVERIFY(QFile::remove(at(u"b"_s)));
    QVERIFY(!_source->has(removed));
}

static const RegisteredTest<LinkBirthTest> registered;
#include "LinkBirthTest.moc"
