// What udev and sysfs tell of ports and adapters.

#include "portcheck/linux/PortInspector.h"

#include "platform/linux/LinuxDeviceRegistry.h"
#include "platform/linux/UdevSource.h"
#include "portcheck/PortJudge.h"
#include "tests/support/RegisteredTest.h"
#include "tests/support/UdevTestbed.h"

#include <QTest>

#include <grp.h>
#include <optional>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

class PortInspectorTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init() { _machine.emplace(); }
    void cleanup() { _machine.reset(); }

    void anAdapterIsKnownByItsChip();
    void whatTheRulesSaidIsRead();
    void withoutRulesNothingIsAssumed();
    void anAdapterWithAPortIsNotListedTwice();
    void anAdapterWithoutADriverIsFound();
    void anAdapterThatAProgramHasIsFound();
    void whatIsNoSerialChipIsPassedOver();
    void theTimerIsRead();
    void aRefusedNodeIsNoticed();

  private:
    [[nodiscard]] static MachineFacts facts();
    [[nodiscard]] static PortFacts port() { return facts().ports.value(0); }

    std::optional<UdevTestbed> _machine;
};

MachineFacts PortInspectorTest::facts() {
    LinuxDeviceRegistry::Sources sources;
    sources.push_back(std::make_unique<UdevSource>());
    LinuxDeviceRegistry devices(std::move(sources));
    return PortInspector::inspect(devices, {});
}

void PortInspectorTest::anAdapterIsKnownByItsChip() {
    _machine->addAdapter({.kernelName = u"ttyUSB0"_s,
                          .place = u"1-1.2"_s,
                          .serialNumber = u"WK1"_s,
                          .vendor = u"1a86"_s,
                          .product = u"7523"_s});
    QCOMPARE(port().name, u"usbserial-WK1"_s);
    QCOMPARE(port().node, u"/dev/ttyUSB0"_s);
    QVERIFY(port().isUsb);
    QCOMPARE(port().chip, (UsbChip{u"1a86"_s, u"7523"_s}));
}

void PortInspectorTest::whatTheRulesSaidIsRead() {
    _machine->addAdapter({.kernelName = u"ttyUSB0"_s,
                          .place = u"1-1"_s,
                          .serialNumber = u"WK1"_s,
                          .properties = {u"TAGS=:systemd:uaccess:"_s, u"ID_MM_PORT_IGNORE=1"_s,
                                         u"BRLTTY_BRAILLE_DRIVER=at"_s}});
    QVERIFY(port().isForTheSeatedUser && port().isNoModem && port().isForBraille);
}

void PortInspectorTest::withoutRulesNothingIsAssumed() {
    _machine->addAdapter({.kernelName = u"ttyUSB0"_s,
                          .place = u"1-1"_s,
                          .serialNumber = u"WK1"_s,
                          .properties = {u"TAGS=:systemd:"_s, u"ID_MM_PORT_IGNORE=0"_s}});
    QVERIFY(!port().isForTheSeatedUser && !port().isNoModem && !port().isForBraille);
    QCOMPARE(port().latency, 0);
}

void PortInspectorTest::anAdapterWithAPortIsNotListedTwice() {
    _machine->addAdapter({.kernelName = u"ttyUSB0"_s, .place = u"1-1"_s, .serialNumber = u"WK1"_s});
    QCOMPARE(facts().ports.size(), 1);
    QVERIFY(facts().adapters.isEmpty());
}

void PortInspectorTest::anAdapterWithoutADriverIsFound() {
    _machine->addAdapter(
        {.kernelName = u"ttyUSB0"_s, .place = u"1-12"_s, .serialNumber = u"WK1"_s});
    // The path of the one with a port begins like its own.
    _machine->addAdapterWithoutPort(u"1-1"_s, u"10c4"_s, u"ea60"_s, {});
    QCOMPARE(facts().adapters.size(), 1);
    QCOMPARE(facts().adapters.first().place, u"1-1"_s);
    QCOMPARE(facts().adapters.first().chip.vendor, u"10c4"_s);
    QVERIFY(facts().adapters.first().driver.isNull());
}

void PortInspectorTest::anAdapterThatAProgramHasIsFound() {
    _machine->addAdapterWithoutPort(u"1-3"_s, u"0403"_s, u"6001"_s, u"usbfs"_s);
    QCOMPARE(facts().adapters.size(), 1);
    QCOMPARE(facts().adapters.first().driver, u"usbfs"_s);
}

void PortInspectorTest::whatIsNoSerialChipIsPassedOver() {
    _machine->addAdapterWithoutPort(u"1-4"_s, u"046d"_s, u"c077"_s, u"usbhid"_s);
    QVERIFY(facts().adapters.isEmpty() && facts().ports.isEmpty());
}

void PortInspectorTest::theTimerIsRead() {
    _machine->addAdapter({.kernelName = u"ttyUSB0"_s,
                          .place = u"1-1"_s,
                          .serialNumber = u"WK1"_s,
                          .latency = u"16"_s});
    QCOMPARE(port().latency, 16);
    QVERIFY(port().isLatencyWritable);
}

/// As somebody who may open nothing, in a process of its own.
void PortInspectorTest::aRefusedNodeIsNoticed() {
    _machine->addAdapter({.kernelName = u"ttyUSB0"_s, .place = u"1-1"_s, .serialNumber = u"WK1"_s});
    _machine->setNodeMode(u"ttyUSB0"_s, 0060);
    constexpr uid_t nobody = 65534;
    const auto process = ::fork();
    if (process == 0) {
        const bool isNobody = ::geteuid() != 0 || (::setgroups(0, nullptr) == 0 &&
                                                   ::setgid(nobody) == 0 && ::setuid(nobody) == 0);
        // Where the tests do not run as root, the node's group is their user's.
        const auto told = ::getegid() == nobody
                              ? u"You may not open it: the members of the group"_s
                              : u"You may not open it yet: you are a member of the group"_s;
        const auto report = PortJudge::judge(facts());
        ::_exit(isNobody && report.asText().contains(told) ? 0 : 1);
    }
    int status = 1;
    QCOMPARE(::waitpid(process, &status, 0), process);
    QCOMPARE(status, 0);
}

static const RegisteredTest<PortInspectorTest> registered;
#include "PortInspectorTest.moc"
