#include "portcheck/linux/NodeReader.h"

#include "tests/support/PseudoTerminalPair.h"
#include "tests/support/RegisteredTest.h"

#include <QTest>

#include <functional>
#include <grp.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr uid_t nobody = 65534;
constexpr int notMet = 1;

/// Whether a condition holds for a user that may do nothing special, in a process of its own: what
/// may be opened goes by the real user, which is not taken on for a while.
bool holdsForNobody(const std::function<bool()>& condition) {
    const auto process = ::fork();
    if (process == 0) {
        const bool isNobody = ::geteuid() != 0 || (::setgroups(0, nullptr) == 0 &&
                                                   ::setgid(nobody) == 0 && ::setuid(nobody) == 0);
        ::_exit(isNobody && condition() ? 0 : notMet);
    }
    int status = notMet;
    return ::waitpid(process, &status, 0) == process && status == 0;
}

QString groupOf(const QString& path) {
    struct stat status {};
    if (::stat(path.toLocal8Bit().constData(), &status) != 0) {
        return {};
    }
    const auto* const group = ::getgrgid(status.st_gid);
    return group != nullptr ? QString::fromLocal8Bit(group->gr_name)
                            : QString::number(status.st_gid);
}

/// Whether the kernel counts this process among the members of the node's group.
bool isInGroupOf(const QString& path) {
    struct stat status {};
    return ::stat(path.toLocal8Bit().constData(), &status) == 0 && status.st_gid == ::getegid();
}

} // namespace

class NodeReaderTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void aNodeOfOnesOwnMayBeOpened();
    void aRefusedNodeNamesItsGroup();
    void aNodeOfNoGroupNamesNone();
    void whoIsAMemberIsKnown();
    void whatIsNotThereIsToldSo();

  private:
    void setMode(mode_t mode) {
        QCOMPARE(::chmod(_line.path().toLocal8Bit().constData(), mode), 0);
    }

    PseudoTerminalPair _line;
};

void NodeReaderTest::aNodeOfOnesOwnMayBeOpened() {
    setMode(0600);
    const auto access = NodeReader::access(_line.path());
    QVERIFY(access.isThere && access.isGranted);
    QVERIFY(access.group.isNull());
}

/// It is refused to its owner as well, who runs the tests where they do not run as root, and whose
/// group it may be.
void NodeReaderTest::aRefusedNodeNamesItsGroup() {
    setMode(0060);
    const auto group = groupOf(_line.path());
    QVERIFY(!group.isEmpty());
    QVERIFY(holdsForNobody([&] {
        const auto access = NodeReader::access(_line.path());
        return access.isThere && !access.isGranted && access.group == group &&
               access.isMember == isInGroupOf(_line.path());
    }));
}

void NodeReaderTest::aNodeOfNoGroupNamesNone() {
    setMode(0000);
    QVERIFY(holdsForNobody([&] {
        const auto access = NodeReader::access(_line.path());
        return access.isThere && !access.isGranted && access.group.isNull();
    }));
}

void NodeReaderTest::whoIsAMemberIsKnown() {
    setMode(0660);
    if (::chown(_line.path().toLocal8Bit().constData(), static_cast<uid_t>(-1), ::getegid()) != 0) {
        QFAIL("The node's group could not be changed.");
    }
    QVERIFY(NodeReader::access(_line.path()).isMember);
}

void NodeReaderTest::whatIsNotThereIsToldSo() {
    const auto access = NodeReader::access(u"/dev/no-such-port"_s);
    QVERIFY(!access.isThere && !access.isGranted);
}

static const RegisteredTest<NodeReaderTest> registered;
#include "NodeReaderTest.moc"
