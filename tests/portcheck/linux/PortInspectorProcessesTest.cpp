// What real programs that run beside it have to do with a port.

#include "platform/FileDescriptor.h"
#include "portcheck/linux/PortInspector.h"
#include "tests/support/FakeDeviceRegistry.h"
#include "tests/support/PseudoTerminalPair.h"
#include "tests/support/RegisteredTest.h"

#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include <array>
#include <fcntl.h>
#include <sys/inotify.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

/// A program that does nothing, under a name of the test's choice, until it is ended.
class OtherProgram {
  public:
    explicit OtherProgram(const QString& name, const QString& input = QProcess::nullDevice()) {
        const auto path = _directory.filePath(name);
        if (!QFile::copy(QStandardPaths::findExecutable(u"sleep"_s), path)) {
            qFatal("There is no program to run.");
        }
        _process.setStandardInputFile(input);
        _process.start(path, {u"1000"_s});
        if (!_process.waitForStarted()) {
            qFatal("The program does not start.");
        }
    }
    OtherProgram(const OtherProgram&) = delete;
    OtherProgram& operator=(const OtherProgram&) = delete;
    ~OtherProgram() {
        _process.kill();
        _process.waitForFinished();
    }

    [[nodiscard]] qint64 number() const { return _process.processId(); }

  private:
    QTemporaryDir _directory;
    QProcess _process;
};

} // namespace

class PortInspectorProcessesTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init() { _devices.plug(u"usbserial-WK1"_s, _line.path()); }
    void cleanup() { _devices.unplug(_devices.matchingDevices()->constFirst()); }

    void aPortIsTakenAsItStands();
    void aProgramThatHasThePortIsNamed();
    void theServicesThatTakePortsAreNoticed();
    void nothingIsOpened();

  private:
    [[nodiscard]] MachineFacts facts() {
        return PortInspector::inspect(_devices, {.wantedPort = u"usbserial-WK9"_s});
    }

    FakeDeviceRegistry _devices;
    PseudoTerminalPair _line;
};

void PortInspectorProcessesTest::aPortIsTakenAsItStands() {
    const auto found = facts();
    QCOMPARE(found.link.wantedPort, u"usbserial-WK9"_s);
    QCOMPARE(found.ports.size(), 1);
    const auto& port = found.ports.first();
    QCOMPARE(port.name, u"usbserial-WK1"_s);
    QCOMPARE(port.node, _line.path());
    QVERIFY(port.access.isGranted && port.users.isEmpty() && !port.isUsb);
}

void PortInspectorProcessesTest::aProgramThatHasThePortIsNamed() {
    const OtherProgram rival(u"minicom"_s, _line.path());
    QTRY_COMPARE(facts().ports.first().users,
                 QStringList{u"minicom (process %1)"_s.arg(rival.number())});
}

void PortInspectorProcessesTest::theServicesThatTakePortsAreNoticed() {
    QVERIFY(!facts().isModemManagerRunning);
    QVERIFY(!facts().isBrailleServiceRunning);
    {
        const OtherProgram modems(u"ModemManager"_s);
        QTRY_VERIFY(facts().isModemManagerRunning);
        QVERIFY(!facts().isBrailleServiceRunning);
    }
    const OtherProgram braille(u"brltty"_s);
    QTRY_VERIFY(facts().isBrailleServiceRunning);
    QVERIFY(!facts().isModemManagerRunning);
}

void PortInspectorProcessesTest::nothingIsOpened() {
    const FileDescriptor watch(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC));
    const auto path = _line.path().toLocal8Bit();
    QVERIFY(::inotify_add_watch(watch.get(), path.constData(), IN_OPEN) >= 0);
    std::array<char, 1024> event{};
    QCOMPARE(facts().ports.size(), 1);
    QCOMPARE(::read(watch.get(), event.data(), event.size()), -1);
    const FileDescriptor opened(::open(path.constData(), O_RDONLY | O_NOCTTY | O_CLOEXEC));
    QVERIFY(::read(watch.get(), event.data(), event.size()) > 0);
}

static const RegisteredTest<PortInspectorProcessesTest> registered;
#include "PortInspectorProcessesTest.moc"
