#include "translations/Translations.h"
#include "virtualkeyer/CommandLine.h"
#include "virtualkeyer/Session.h"
#include "virtualkeyer/WindowProgram.h"
#include "virtualkeyer/pty/StopSignals.h"
#include "virtualkeyer/script/ScriptError.h"

#include <QCoreApplication>
#include <QLocale>

#include <csignal>
#include <cstdio>
#include <optional>
#include <stdexcept>

using namespace virtualkeyer;

namespace {

int complain(const char* what, ExitStatus status) {
    virtualkeyer::complain(what);
    return static_cast<int>(status);
}

} // namespace

int main(int argc, char* argv[]) {
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("quorvel-virtual-keyer"));
    QCoreApplication::setApplicationVersion(QStringLiteral(QUORVEL_VERSION));
    const Translations translations{QLocale()};
    // A reader of the keyed text that goes away is an error like any other, not a sudden death.
    std::signal(SIGPIPE, SIG_IGN);

    CommandLine commandLine = CommandLine::parse(QCoreApplication::arguments());
    if (!commandLine.error.isEmpty()) {
        return complain(commandLine.error.toLocal8Bit().constData(), ExitStatus::BadOptions);
    }
    if (!commandLine.answer.isEmpty()) {
        return std::fputs(commandLine.answer.toLocal8Bit().constData(), stdout) < 0;
    }

    if (!commandLine.isHeadless && !commandLine.isFast) {
        becomeWindowProgram(argv);
        commandLine.lacksWindow = true;
    }

    std::optional<Session> session;
    try {
        session.emplace(commandLine);
    } catch (const std::runtime_error& error) {
        return complain(error.what(), ExitStatus::BadOptions);
    }
    try {
        const StopSignals stopSignals;
        session->run(stopSignals.descriptor());
    } catch (const ScriptError& error) {
        return complain(error.what(), ExitStatus::BadOptions);
    } catch (const std::exception& error) {
        return complain(error.what(), ExitStatus::Failure);
    }
    return static_cast<int>(session->exitStatus());
}
