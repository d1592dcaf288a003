#include "portcheck/PortJudge.h"

#include "portcheck/SerialChips.h"

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;
using Kind = PortFinding::Kind;

namespace {

/// The application itself, also another instance, and the guard that stands by while it is
/// connected. The system cuts names to 15 characters.
bool isQuorvel(const QString& user) {
    return user.startsWith("quorvel ("_L1) || user.startsWith("quorvel-key-gua"_L1);
}

QStringList others(const PortFacts& port) {
    auto users = port.users;
    users.removeIf(&isQuorvel);
    return users;
}

bool isHeldByQuorvel(const PortFacts& port, const LinkFacts& link) {
    return port.name == link.connectedPort || std::ranges::any_of(port.users, &isQuorvel);
}

QString describe(const UsbChip& chip) {
    const auto* const known = SerialChips::find(chip);
    return known != nullptr ? QString(known->name)
                            : PortJudge::tr("USB device %1:%2").arg(chip.vendor, chip.product);
}

QString titleOf(const PortFacts& port) {
    return port.isUsb ? u"%1 (%2, %3)"_s.arg(port.name, port.node, describe(port.chip))
                      : u"%1 (%2)"_s.arg(port.name, port.node);
}

PortFinding groupFinding(const NodeAccess& access) {
    if (access.isMember) {
        return {Kind::Problem,
                PortJudge::tr(
                    "You may not open it yet: you are a member of the group %1, but this session "
                    "began before that.")
                    .arg(access.group),
                PortJudge::tr("Log out, and log in again.")};
    }
    return {
        Kind::Problem,
        PortJudge::tr("You may not open it: the members of the group %1 may.").arg(access.group),
        PortJudge::tr("Become a member, then log out and log in again:"),
        u"sudo adduser \"$USER\" %1"_s.arg(access.group)};
}

/// Who sits at the machine needs no group; who does not, or whose device came before the rule,
/// does.
PortFinding refusal(const PortFacts& port) {
    auto finding =
        !port.access.group.isNull()
            ? groupFinding(port.access)
            : PortFinding{Kind::Problem, PortJudge::tr("You may not open it: root alone may."),
                          PortJudge::tr("See who may:"), u"ls -l "_s + port.node};
    if (port.isForTheSeatedUser) {
        finding.what +=
            u' ' + PortJudge::tr("Whoever sits at this machine may as well, but this session "
                                 "is not the one at its screen.");
    } else if (port.isUsb && SerialChips::find(port.chip) != nullptr) {
        finding.what +=
            u' ' + PortJudge::tr("With Quorvel's package installed, whoever sits at the machine "
                                 "may as well: pull the adapter out and plug it in again.");
    }
    return finding;
}

std::optional<PortFinding> accessFinding(const PortFacts& port) {
    if (!port.access.isThere) {
        return PortFinding{
            Kind::Problem, PortJudge::tr("It has just gone."),
            PortJudge::tr("Plug it in again, and use another cable or socket if it goes by "
                          "itself.")};
    }
    if (!port.access.isGranted) {
        return refusal(port);
    }
    return std::nullopt;
}

std::optional<PortFinding> usersFinding(const PortFacts& port) {
    const auto users = others(port);
    if (users.isEmpty()) {
        return std::nullopt;
    }
    return PortFinding{
        Kind::Problem, PortJudge::tr("Another program has it open: %1.").arg(users.join(", "_L1)),
        PortJudge::tr("End that program. This shows all that have it, those of other users "
                      "too:"),
        u"sudo fuser -v "_s + port.node};
}

QString ignoreRule(const UsbChip& chip) {
    return u"echo 'SUBSYSTEM==\"tty\", ATTRS{idVendor}==\"%1\", ATTRS{idProduct}==\"%2\", "
           "ENV{ID_MM_PORT_IGNORE}=\"1\"' | sudo tee -a /etc/udev/rules.d/90-keyer-no-modem.rules"_s
               .arg(chip.vendor, chip.product);
}

std::optional<PortFinding> modemFinding(const PortFacts& port, const MachineFacts& facts) {
    if (!port.isUsb || port.isNoModem || !facts.isModemManagerRunning) {
        return std::nullopt;
    }
    return PortFinding{
        Kind::Hint,
        PortJudge::tr("The service for modems, ModemManager, may send its questions to this "
                      "port when it is plugged in, and a keyer may key them."),
        PortJudge::tr("Keep it away with this rule, then plug the adapter in again:"),
        ignoreRule(port.chip)};
}

std::optional<PortFinding> brailleFinding(const PortFacts& port, const MachineFacts& facts) {
    if (!port.isForBraille || !facts.isBrailleServiceRunning) {
        return std::nullopt;
    }
    return PortFinding{
        Kind::Hint,
        PortJudge::tr("The service for braille displays, brltty, takes this chip for one of "
                      "them, and may take the port away."),
        PortJudge::tr("If nobody here reads braille, remove the service:"),
        u"sudo apt remove brltty"_s};
}

/// The driver is asked for less whenever the port is opened, so that a closed one tells nothing.
std::optional<PortFinding> latencyFinding(const PortFacts& port, const LinkFacts& link) {
    if (port.latency <= 1 || port.isLatencyWritable || !isHeldByQuorvel(port, link)) {
        return std::nullopt;
    }
    return PortFinding{
        Kind::Hint,
        PortJudge::tr(
            "The adapter gathers what it receives for %1 ms, which could not be lowered: the "
            "paddle's break-in and the echo come late.")
            .arg(port.latency),
        PortJudge::tr("Lower it until the adapter is plugged in again:"),
        u"echo 1 | sudo tee /sys/bus/usb-serial/devices/%1/latency_timer"_s.arg(
            port.node.section(u'/', -1))};
}

std::optional<PortFinding> habitFinding(const PortFacts& port) {
    const auto* const chip = port.isUsb ? SerialChips::find(port.chip) : nullptr;
    if (chip == nullptr || chip->habit == BoardHabit::None) {
        return std::nullopt;
    }
    if (chip->habit == BoardHabit::ResetsOnOpen) {
        return PortFinding{
            Kind::Hint,
            PortJudge::tr("Many a board with this chip starts anew when its port is opened. "
                          "Quorvel asks such a keyer again after 2 s.")};
    }
    return PortFinding{
        Kind::Hint,
        PortJudge::tr("A board of this kind leaves its program when a port at 1200 baud is "
                      "closed, which is a keyer's speed."),
        PortJudge::tr("Pull it out and plug it in again after Quorvel has left it.")};
}

PortFinding silence() {
    return {Kind::Problem, PortJudge::tr("It is open, and nothing answers."),
            PortJudge::tr(
                "Is it the keyer's port? Has the keyer power? A keyer that another program has set "
                "to a speed other than 1200 baud keeps it until it has been without power.")};
}

PortFinding stateOf(const PortFacts& port, const LinkFacts& link) {
    if (port.name == link.connectedPort) {
        return link.hasAnswered
                   ? PortFinding{Kind::Good, PortJudge::tr("It is open, and the keyer answers.")}
                   : silence();
    }
    if (isHeldByQuorvel(port, link)) {
        return {Kind::Good, PortJudge::tr("Quorvel has it open.")};
    }
    return {Kind::Good,
            PortJudge::tr("Nothing is in the way. Whether a keyer is on it, only asking tells.")};
}

PortEntry judgePort(const PortFacts& port, const MachineFacts& facts) {
    PortEntry entry{titleOf(port)};
    if (port.name == facts.link.wantedPort) {
        entry.title = PortJudge::tr("%1, the port chosen last").arg(entry.title);
    }
    const bool isConnected = port.name == facts.link.connectedPort;
    const auto add = [&entry](const std::optional<PortFinding>& finding) {
        if (finding) {
            entry.findings.append(*finding);
        }
    };
    if (!isConnected) {
        add(accessFinding(port));
    }
    add(usersFinding(port));
    const bool isFree = entry.findings.isEmpty();
    if (isFree) {
        add(stateOf(port, facts.link));
    }
    add(modemFinding(port, facts));
    add(brailleFinding(port, facts));
    add(latencyFinding(port, facts.link));
    add(habitFinding(port));
    if (isFree && !isHeldByQuorvel(port, facts.link)) {
        entry.portToAsk = port.name;
    }
    return entry;
}

PortFinding judgeUndriven(const AdapterFacts& adapter) {
    const auto* const chip = SerialChips::find(adapter.chip);
    return {
        Kind::Problem, PortJudge::tr("It is plugged in, but no driver has taken it."),
        PortJudge::tr("Have the kernel load its driver. If there is none, the system may have been "
                      "updated since it was started: start it anew."),
        u"sudo modprobe "_s + (chip != nullptr ? chip->module : "usbserial"_L1)};
}

PortFinding judgeTaken(const AdapterFacts& adapter, const MachineFacts& facts) {
    if (!adapter.users.isEmpty()) {
        return {Kind::Problem,
                PortJudge::tr("A program has taken it away from its driver: %1.")
                    .arg(adapter.users.join(", "_L1)),
                PortJudge::tr("End that program, then plug the adapter in again.")};
    }
    if (facts.isBrailleServiceRunning) {
        return {
            Kind::Problem,
            PortJudge::tr("It was taken away from its driver, it seems by the service for braille "
                          "displays, brltty, which takes the chip for one of them."),
            PortJudge::tr(
                "If nobody here reads braille, remove the service, then plug the adapter in "
                "again:"),
            u"sudo apt remove brltty"_s};
    }
    return {Kind::Problem,
            PortJudge::tr("A program of another user has taken it away from its driver."),
            PortJudge::tr("See which programs use USB devices directly:"),
            u"sudo fuser -v /dev/bus/usb/*/*"_s};
}

PortEntry judgeAdapter(const AdapterFacts& adapter, const MachineFacts& facts) {
    PortEntry entry{
        PortJudge::tr("%1 in USB socket %2").arg(describe(adapter.chip), adapter.place)};
    if (adapter.driver.isNull()) {
        entry.findings.append(judgeUndriven(adapter));
    } else if (adapter.driver == "usbfs"_L1) {
        entry.findings.append(judgeTaken(adapter, facts));
    } else {
        entry.findings.append(
            {Kind::Problem,
             PortJudge::tr("The driver %1 has taken it, which makes no port of it.")
                 .arg(adapter.driver),
             PortJudge::tr(
                 "Have that driver let go of all its devices, then plug the adapter in again:"),
             u"sudo modprobe -r "_s + adapter.driver});
    }
    return entry;
}

PortEntry judgeMissing(const QString& wanted) {
    return {PortJudge::tr("%1, the port chosen last").arg(wanted),
            {{Kind::Problem, PortJudge::tr("It is not there."),
              PortJudge::tr(
                  "Plug the keyer in. If it is, it has another name now, as after a change of "
                  "adapter: choose that in File > Preferences…, General.")}}};
}

PortEntry judgeNoAdapter() {
    return {PortJudge::tr("USB adapters"),
            {{Kind::Problem, PortJudge::tr("No USB serial adapter is there."),
              PortJudge::tr(
                  "Plug the keyer in. If it is, try another socket and another cable: many a cable "
                  "charges only. This shows what is plugged in:"),
              u"lsusb"_s}}};
}

PortEntry judgeNoUdev() {
    return {PortJudge::tr("This machine"),
            {{Kind::Problem,
              PortJudge::tr(
                  "udev does not run: what is plugged in now goes unnoticed, and may be opened by "
                  "root alone."),
              PortJudge::tr("Start it:"), u"sudo systemctl start systemd-udevd"_s}}};
}

} // namespace

PortReport PortJudge::judge(const MachineFacts& facts) {
    PortReport report;
    if (!facts.isUdevRunning) {
        report.entries.append(judgeNoUdev());
    }
    const auto& wanted = facts.link.wantedPort;
    if (!wanted.isNull() && std::ranges::none_of(facts.ports, [&](const PortFacts& each) {
            return each.name == wanted;
        })) {
        report.entries.append(judgeMissing(wanted));
    }
    auto ports = facts.ports;
    std::ranges::stable_partition(ports,
                                  [&](const PortFacts& each) { return each.name == wanted; });
    for (const auto& port : ports) {
        report.entries.append(judgePort(port, facts));
    }
    for (const auto& adapter : facts.adapters) {
        report.entries.append(judgeAdapter(adapter, facts));
    }
    if (facts.adapters.isEmpty() && facts.link.connectedPort.isNull() &&
        std::ranges::none_of(facts.ports, [](const PortFacts& each) { return each.isUsb; })) {
        report.entries.append(judgeNoAdapter());
    }
    return report;
}

PortFinding PortJudge::judge(Answer answer) {
    switch (answer) {
    case Answer::Keyer:
        return {Kind::Good, PortJudge::tr("A keyer answers on it.")};
    case Answer::SomethingElse:
        return {Kind::Problem,
                PortJudge::tr("Something answers on it, but not as a keyer does at 1200 baud."),
                PortJudge::tr(
                    "It is another device's port, or the keyer has been set to another speed by "
                    "another program: take its power away for a moment.")};
    case Answer::Nothing:
        return {Kind::Problem, PortJudge::tr("Nothing answers on it."),
                PortJudge::tr("Is it the keyer's port? Has the keyer power?")};
    case Answer::NotOpened:
        return {Kind::Problem, PortJudge::tr("It could not be opened."),
                PortJudge::tr("Check the ports again.")};
    }
    return silence();
}
