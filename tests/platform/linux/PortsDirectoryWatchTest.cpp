#include "platform/linux/PortsDirectorySource.h"
#include "tests/support/LogKeeper.h"
#include "tests/support/RegisteredTest.h"

#include <QTemporaryDir>
#include <QTest>

#include <cerrno>

using namespace Qt::StringLiterals;

// No watches are left on this system.
int wrappedInotifyInit(int flags) asm("__wrap_inotify_init1");
int wrappedInotifyInit(int) {
    errno = EMFILE;
    return -1;
}

class PortsDirectoryWatchTest : public QObject {
    Q_OBJECT
  private Q_SLOTS:
    void saysThatChangesAreNoticedLate() {
        const QTemporaryDir runtime;
        const auto ports = runtime.filePath(u"quorvel/ports"_s);
        const LogKeeper log;
        const PortsDirectorySource source(ports);
        QCOMPARE(log.lines(),
                 QStringList{u"Ports that come and go in %1 are noticed late: Too many "
                             "open files"_s.arg(ports)});
    }
};

static const RegisteredTest<PortsDirectoryWatchTest> registered;
#include "PortsDirectoryWatchTest.moc"
