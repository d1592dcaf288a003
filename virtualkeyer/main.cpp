#include "virtualkeyer/CommandLine.h"
#include "virtualkeyer/RegisterWriter.h"
#include "virtualkeyer/TextPrinter.h"
#include "virtualkeyer/TranscriptWriter.h"
#include "virtualkeyer/pty/KeyerLoop.h"
#include "virtualkeyer/pty/PortLink.h"
#include "virtualkeyer/pty/RuntimeDirectory.h"
#include "virtualkeyer/pty/StopSignals.h"

#include <QCoreApplication>
#include <QFile>

#include <csignal>
#include <cstdio>
#include <optional>
#include <stdexcept>
#include <unistd.h>

using namespace virtualkeyer;

namespace {

constexpr int runtimeFailure = 1;
constexpr int badOptions = 2;
constexpr auto noWindow = "There is no window yet. What is keyed is printed here, until Ctrl+C.\n";

int complain(const char* what, int status) {
    std::fprintf(stderr, "quorvel-virtual-keyer: %s\n", what);
    return status;
}

/// Makes the writer of a file and adds it to the listeners, if there is to be one.
template <typename Writer>
void writeTo(const QString& path, std::optional<Writer>& writer,
             std::vector<KeyerListener*>& listeners) {
    if (!path.isEmpty()) {
        listeners.push_back(&writer.emplace(QFile::encodeName(path).toStdString()));
    }
}

void run(const CommandLine& commandLine, std::vector<KeyerListener*> listeners) {
    const StopSignals stopSignals;
    PseudoTerminal terminal;
    if (terminal.watch() < 0) {
        complain("the system has no watches left; openings of the port are noticed late", 0);
    }
    SerialKeyer keyer(commandLine.profile, std::move(listeners));
    KeyerLoop loop(keyer, terminal, commandLine.isPaddled ? STDIN_FILENO : -1);
    const std::string name = QFile::encodeName(commandLine.linkName).toStdString();
    const PortLink link(runtimeDirectory(), name, terminal.slavePath());
    std::fprintf(stderr, "Plugged in as %s (%s)\n%s", name.c_str(), link.path().c_str(),
                 commandLine.isHeadless ? "" : noWindow);
    loop.run(stopSignals.descriptor());
}

} // namespace

int main(int argc, char* argv[]) {
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("quorvel-virtual-keyer"));
    QCoreApplication::setApplicationVersion(QStringLiteral(QUORVEL_VERSION));
    // A reader of the keyed text that goes away is an error like any other, not a sudden death.
    std::signal(SIGPIPE, SIG_IGN);

    const CommandLine commandLine = CommandLine::parse(QCoreApplication::arguments());
    if (!commandLine.error.isEmpty()) {
        return complain(commandLine.error.toLocal8Bit().constData(), badOptions);
    }
    if (!commandLine.answer.isEmpty()) {
        return std::fputs(commandLine.answer.toLocal8Bit().constData(), stdout) < 0;
    }

    TextPrinter printer;
    std::optional<TranscriptWriter> transcript;
    std::optional<RegisterWriter> registers;
    std::vector<KeyerListener*> listeners{&printer};
    try {
        writeTo(commandLine.transcriptPath, transcript, listeners);
        writeTo(commandLine.registersPath, registers, listeners);
    } catch (const std::runtime_error& error) {
        return complain(error.what(), badOptions);
    }
    try {
        run(commandLine, std::move(listeners));
    } catch (const std::exception& error) {
        return complain(error.what(), runtimeFailure);
    }
    return 0;
}
