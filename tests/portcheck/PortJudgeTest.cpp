#include "portcheck/PortJudge.h"

#include "tests/support/RegisteredTest.h"

#include <QTest>

using namespace Qt::StringLiterals;
using Kind = PortFinding::Kind;

namespace {

/// A port as it should be, of an adapter with a common chip.
PortFacts soundPort() {
    return {.name = u"usbserial-WK1"_s,
            .node = u"/dev/ttyUSB0"_s,
            .isUsb = true,
            .chip = {u"0403"_s, u"6001"_s},
            .access = {.isThere = true, .isGranted = true, .group = u"dialout"_s},
            .isForTheSeatedUser = true,
            .isNoModem = true};
}

MachineFacts machineWith(const PortFacts& port) {
    return {.ports = {port}};
}

MachineFacts machineWith(const AdapterFacts& adapter) {
    return {.adapters = {adapter}};
}

/// A change of a machine with one sound port.
template <typename Change>
MachineFacts soundBut(Change change) {
    auto facts = machineWith(soundPort());
    change(facts, facts.ports.first());
    return facts;
}

} // namespace

class PortJudgeTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void eachCaseHasItsWords_data();
    void eachCaseHasItsWords();
    void aSoundPortMayBeAsked();
    void aPortWithAProblemIsNotAsked_data();
    void aPortWithAProblemIsNotAsked();
    void theGuardOfTheApplicationIsNoRival();
    void theChosenPortComesFirst();
    void aMachineWithoutPortsIsToldSo();
    void anAnswerHasItsWords();
};

void PortJudgeTest::eachCaseHasItsWords_data() {
    QTest::addColumn<MachineFacts>("facts");
    QTest::addColumn<Kind>("kind");
    QTest::addColumn<QString>("words");
    QTest::addColumn<QString>("command");
    const auto row = [](const char* name, const MachineFacts& facts, Kind kind,
                        const QString& words, const QString& command = {}) {
        QTest::newRow(name) << facts << kind << words << command;
    };
    row("nothing is in the way", machineWith(soundPort()), Kind::Good, u"Nothing is in the way"_s);
    row("no member", soundBut([](auto&, auto& port) {
            port.access.isGranted = false;
            port.isForTheSeatedUser = false;
        }),
        Kind::Problem, u"the members of the group dialout may"_s,
        u"sudo adduser \"$USER\" dialout"_s);
    row("a known chip that the rule has not reached", soundBut([](auto&, auto& port) {
            port.access.isGranted = false;
            port.isForTheSeatedUser = false;
        }),
        Kind::Problem, u"plug it in again"_s, u"sudo adduser \"$USER\" dialout"_s);
    row("somebody who does not sit there",
        soundBut([](auto&, auto& port) { port.access.isGranted = false; }), Kind::Problem,
        u"not the one at its screen"_s, u"sudo adduser \"$USER\" dialout"_s);
    row("a member since this session began", soundBut([](auto&, auto& port) {
            port.access.isGranted = false;
            port.access.isMember = true;
        }),
        Kind::Problem, u"this session began before that"_s);
    row("root's alone", soundBut([](auto&, auto& port) {
            port.access.isGranted = false;
            port.access.group = QString();
        }),
        Kind::Problem, u"root alone may"_s, u"ls -l /dev/ttyUSB0"_s);
    row("gone", soundBut([](auto&, auto& port) { port.access = {}; }), Kind::Problem,
        u"It has just gone"_s);
    row("another program",
        soundBut([](auto&, auto& port) { port.users = {u"minicom (process 7)"_s}; }), Kind::Problem,
        u"Another program has it open: minicom (process 7)."_s, u"sudo fuser -v /dev/ttyUSB0"_s);
    row("another instance", soundBut([](auto&, auto& port) {
            port.users = {u"quorvel (process 7)"_s, u"quorvel-key-gua (process 8)"_s};
        }),
        Kind::Good, u"Quorvel has it open."_s);
    row("the modem service", soundBut([](auto& facts, auto& port) {
            facts.isModemManagerRunning = true;
            port.isNoModem = false;
        }),
        Kind::Hint, u"ModemManager"_s,
        u"echo 'SUBSYSTEM==\"tty\", ATTRS{idVendor}==\"0403\", ATTRS{idProduct}==\"6001\", "
        "ENV{ID_MM_PORT_IGNORE}=\"1\"' | sudo tee -a /etc/udev/rules.d/90-keyer-no-modem.rules"_s);
    row("the braille service", soundBut([](auto& facts, auto& port) {
            facts.isBrailleServiceRunning = true;
            port.isForBraille = true;
        }),
        Kind::Hint, u"brltty"_s, u"sudo apt remove brltty"_s);
    row("a timer that stays", soundBut([](auto& facts, auto& port) {
            port.latency = 16;
            facts.link.connectedPort = port.name;
        }),
        Kind::Hint, u"for 16 ms, which could not be lowered"_s,
        u"echo 1 | sudo tee /sys/bus/usb-serial/devices/ttyUSB0/latency_timer"_s);
    row("a board that starts anew", soundBut([](auto&, auto& port) {
            port.chip = {u"1a86"_s, u"7523"_s};
        }),
        Kind::Hint, u"starts anew when its port is opened"_s);
    row("a board that leaves", soundBut([](auto&, auto& port) {
            port.chip = {u"2341"_s, u"8036"_s};
        }),
        Kind::Hint, u"leaves its program when a port at 1200 baud is closed"_s);
    row("open, and no answer",
        soundBut([](auto& facts, auto& port) { facts.link.connectedPort = port.name; }),
        Kind::Problem, u"It is open, and nothing answers."_s);
    row("open, and an answer", soundBut([](auto& facts, auto& port) {
            facts.link = {.connectedPort = port.name, .hasAnswered = true};
        }),
        Kind::Good, u"the keyer answers"_s);
    row("no driver", machineWith(AdapterFacts{u"1-2"_s, {u"10c4"_s, u"ea60"_s}}), Kind::Problem,
        u"no driver has taken it"_s, u"sudo modprobe cp210x"_s);
    row("another driver", machineWith(AdapterFacts{u"1-2"_s, {u"0403"_s, u"6001"_s}, u"visor"_s}),
        Kind::Problem, u"The driver visor has taken it"_s, u"sudo modprobe -r visor"_s);
    row("a program in place of the driver",
        machineWith(
            AdapterFacts{u"1-2"_s, {u"0403"_s, u"6001"_s}, u"usbfs"_s, {u"openocd (process 9)"_s}}),
        Kind::Problem, u"taken it away from its driver: openocd (process 9)."_s);
    auto braille = machineWith(AdapterFacts{u"1-2"_s, {u"0403"_s, u"6001"_s}, u"usbfs"_s});
    row("a hidden program in place of the driver", braille, Kind::Problem,
        u"A program of another user"_s, u"sudo fuser -v /dev/bus/usb/*/*"_s);
    braille.isBrailleServiceRunning = true;
    row("the braille service in place of the driver", braille, Kind::Problem,
        u"it seems by the service for braille displays"_s, u"sudo apt remove brltty"_s);
    row("nothing there", {}, Kind::Problem, u"No USB serial adapter is there."_s, u"lsusb"_s);
    row("no udev", {.isUdevRunning = false}, Kind::Problem, u"udev does not run"_s,
        u"sudo systemctl start systemd-udevd"_s);
    row("a port that is missing", {.link = {.wantedPort = u"usbserial-WK9"_s}}, Kind::Problem,
        u"It is not there."_s);
}

void PortJudgeTest::eachCaseHasItsWords() {
    QFETCH(MachineFacts, facts);
    QFETCH(Kind, kind);
    QFETCH(QString, words);
    QFETCH(QString, command);
    const auto report = PortJudge::judge(facts);
    QList<PortFinding> found;
    for (const auto& entry : report.entries) {
        for (const auto& finding : entry.findings) {
            if (finding.what.contains(words)) {
                found.append(finding);
            }
        }
    }
    QVERIFY2(found.size() == 1, qPrintable(report.asText({}, {})));
    QCOMPARE(found.first().kind, kind);
    QCOMPARE(found.first().command, command);
}

void PortJudgeTest::aSoundPortMayBeAsked() {
    const auto report = PortJudge::judge(machineWith(soundPort()));
    QCOMPARE(report.entries.size(), 1);
    QCOMPARE(report.entries.first().title, u"usbserial-WK1 (/dev/ttyUSB0, FTDI FT232)"_s);
    QCOMPARE(report.entries.first().findings.size(), 1);
    QCOMPARE(report.entries.first().portToAsk, u"usbserial-WK1"_s);
}

void PortJudgeTest::aPortWithAProblemIsNotAsked_data() {
    QTest::addColumn<MachineFacts>("facts");
    QTest::newRow("refused") << soundBut([](auto&, auto& port) { port.access.isGranted = false; });
    QTest::newRow("held by another program")
        << soundBut([](auto&, auto& port) { port.users = {u"minicom (process 7)"_s}; });
    QTest::newRow("held by another instance")
        << soundBut([](auto&, auto& port) { port.users = {u"quorvel (process 7)"_s}; });
    QTest::newRow("connected") << soundBut(
        [](auto& facts, auto& port) { facts.link.connectedPort = port.name; });
}

void PortJudgeTest::aPortWithAProblemIsNotAsked() {
    QFETCH(MachineFacts, facts);
    QVERIFY(PortJudge::judge(facts).entries.first().portToAsk.isNull());
}

/// But another program beside it is one.
void PortJudgeTest::theGuardOfTheApplicationIsNoRival() {
    auto facts = machineWith(soundPort());
    facts.link = {.connectedPort = u"usbserial-WK1"_s, .hasAnswered = true};
    facts.ports.first().users = {u"quorvel-key-gua (process 8)"_s};
    QVERIFY(!PortJudge::judge(facts).entries.first().hasProblem());
    facts.ports.first().users.append(u"quorvel-virtual (process 9)"_s);
    QVERIFY(PortJudge::judge(facts).entries.first().hasProblem());
}

void PortJudgeTest::theChosenPortComesFirst() {
    auto facts = machineWith(soundPort());
    facts.link.wantedPort = u"usbserial-WK9"_s;
    const auto report = PortJudge::judge(facts);
    QCOMPARE(report.entries.size(), 2);
    QCOMPARE(report.entries.first().title, u"usbserial-WK9, the port chosen last"_s);
    facts.link.wantedPort = u"usbserial-WK1"_s;
    auto other = soundPort();
    other.name = u"usbserial-WK0"_s;
    facts.ports.prepend(other);
    QCOMPARE(PortJudge::judge(facts).entries.size(), 2);
    QVERIFY(PortJudge::judge(facts).entries.first().title.endsWith(u"the port chosen last"));
}

/// A port of the machine's own is one, too, yet seldom the one that is meant.
void PortJudgeTest::aMachineWithoutPortsIsToldSo() {
    const PortFacts own{.name = u"ttyS0"_s,
                        .node = u"/dev/ttyS0"_s,
                        .access = {.isThere = true, .isGranted = true}};
    auto facts = machineWith(own);
    facts.isModemManagerRunning = true;
    const auto report = PortJudge::judge(facts);
    QCOMPARE(report.entries.size(), 2);
    QCOMPARE(report.entries.first().title, u"ttyS0 (/dev/ttyS0)"_s);
    QCOMPARE(report.entries.first().findings.size(), 1);
    QVERIFY(report.entries.last().hasProblem());
    facts.link.connectedPort = u"ttyS0"_s;
    QCOMPARE(PortJudge::judge(facts).entries.size(), 1);
}

void PortJudgeTest::anAnswerHasItsWords() {
    QCOMPARE(PortJudge::judge(PortJudge::Answer::Keyer).kind, Kind::Good);
    for (const auto each : {PortJudge::Answer::SomethingElse, PortJudge::Answer::Nothing,
                            PortJudge::Answer::NotOpened}) {
        const auto finding = PortJudge::judge(each);
        QCOMPARE(finding.kind, Kind::Problem);
        QVERIFY(!finding.advice.isEmpty());
    }
    QVERIFY(PortJudge::judge(PortJudge::Answer::SomethingElse).advice.contains(u"speed"));
}

static const RegisteredTest<PortJudgeTest> registered;
#include "PortJudgeTest.moc"
