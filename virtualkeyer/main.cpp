#include "translations/Translations.h"
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
#include <QLocale>

#include <csignal>
#include <cstdio>
#include <optional>
#include <stdexcept>
#include <unistd.h>

using namespace virtualkeyer;

namespace {

constexpr int runtimeFailure = 1;
constexpr int badOptions = 2;

int complain(const char* what, int status) {
    std::fprintf(stderr, "quorvel-virtual-keyer: %s\n", what);
    return status;
}

void complainOfWatches() {
    complain(
        QCoreApplication::translate(
            "VirtualKeyer", "the system has no watches left; openings of the port are noticed late")
            .toLocal8Bit()
            .constData(),
        0);
}

void tellWhere(const CommandLine& commandLine, const std::string& path) {
    auto text = QCoreApplication::translate("VirtualKeyer", "Plugged in as %1 (%2)")
                    .arg(commandLine.linkName, QFile::decodeName(path.c_str())) +
                u'\n';
    if (!commandLine.isHeadless) {
        text += QCoreApplication::translate("VirtualKeyer", "There is no window yet. What is keyed "
                                                            "is printed here, until Ctrl+C.") +
                u'\n';
    }
    std::fputs(text.toLocal8Bit().constData(), stderr);
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
        complainOfWatches();
    }
    SerialKeyer keyer(commandLine.profile, std::move(listeners));
    KeyerLoop loop(keyer, terminal, commandLine.isPaddled ? STDIN_FILENO : -1);
    const std::string name = QFile::encodeName(commandLine.linkName).toStdString();
    const PortLink link(runtimeDirectory(), name, terminal.slavePath());
    tellWhere(commandLine, link.path());
    loop.run(stopSignals.descriptor());
}

} // namespace

int main(int argc, char* argv[]) {
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("quorvel-virtual-keyer"));
    QCoreApplication::setApplicationVersion(QStringLiteral(QUORVEL_VERSION));
    const Translations translations{QLocale()};
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
