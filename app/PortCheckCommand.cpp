#include "app/PortCheckCommand.h"

#include "keyer/GeneralSettings.h"
#include "platform/Platform.h"
#include "platform/SystemClock.h"
#include "platform/linux/LinuxDeviceRegistry.h"
#include "portcheck/KeyerQuestion.h"
#include "portcheck/PortJudge.h"
#include "portcheck/linux/PortInspector.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr int badArguments = 2;
constexpr auto askOption = "--ask-keyer"_L1;

/// Nothing here brings an alert up.
class NoAlerts final : public Application {
  public:
    AlertAnswer runModal(const Alert&) override { return AlertAnswer::Alternate; }
};

void print(const QString& text) {
    std::fputs(text.toLocal8Bit().constData(), stdout);
    std::fflush(stdout);
}

/// Read apart from the store, which would put a damaged file aside, and nobody would be told.
QString wantedPort() {
    const auto name = SettingsFile::read(SettingsStore::standardPath()).values.value(WKPortName);
    const auto text = name.toString();
    return text.isEmpty() || text == noPortName ? QString() : text;
}

PortJudge::Answer answerOf(const QString& port) {
    auto answer = PortJudge::Answer::NotOpened;
    QEventLoop loop;
    KeyerQuestion question(port);
    QObject::connect(&question, &KeyerQuestion::answered, &loop, [&](PortJudge::Answer its) {
        answer = its;
        loop.quit();
    });
    question.ask();
    loop.exec();
    return answer;
}

int ask(const QString& name, const PortReport& report) {
    const bool isFree = std::ranges::any_of(
        report.entries, [&](const PortEntry& each) { return each.portToAsk == name; });
    if (!isFree) {
        const auto refusal = QCoreApplication::translate(
            "PortCheckCommand", "%1 is not asked: it is not there, or not free.");
        print(u'\n' + refusal.arg(name) + u'\n');
        return EXIT_FAILURE;
    }
    const auto title = QCoreApplication::translate("PortCheckCommand", "The keyer on %1");
    const PortReport answer{{{title.arg(name), {PortJudge::judge(answerOf(name))}}}};
    print(u'\n' + answer.asText());
    return answer.hasUsablePort() ? EXIT_SUCCESS : EXIT_FAILURE;
}

} // namespace

int PortCheckCommand::run(const QStringList& arguments) {
    const bool asks = arguments.size() == 2 && arguments[0] == askOption;
    if (!arguments.isEmpty() && !asks) {
        std::fputs("Usage: quorvel --check-ports [--ask-keyer PORT]\n", stderr);
        return badArguments;
    }
    const QTemporaryDir noSettings;
    Platform platform({.settings = std::make_unique<SettingsStore>(noSettings.filePath(u"none"_s)),
                       .clock = std::make_unique<SystemClock>(),
                       .devices = std::make_unique<LinuxDeviceRegistry>(),
                       .application = std::make_unique<NoAlerts>()});
    const auto report =
        PortJudge::judge(PortInspector::inspect(platform.devices(), {.wantedPort = wantedPort()}));
    print(report.asText());
    if (asks) {
        return ask(arguments[1], report);
    }
    return report.hasUsablePort() ? EXIT_SUCCESS : EXIT_FAILURE;
}
