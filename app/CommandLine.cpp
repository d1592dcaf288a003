#include "app/CommandLine.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

std::optional<QString> commandLineAnswer(std::string_view option, const QString& version) {
    if (option == "--version" || option == "-v") {
        return u"quorvel %1\n"_s.arg(version);
    }
    if (option == "--help" || option == "-h") {
        return QCoreApplication::translate("CommandLine",
                                           "Usage: quorvel [options]\n"
                                           "Sends Morse code through a WinKeyer USB keyer.\n"
                                           "\n"
                                           "Options:\n"
                                           "  -h, --help     Shows this text.\n"
                                           "  -v, --version  Shows the version.\n"
                                           "  --check-ports  Tells what is in the way of each "
                                           "serial port.\n"
                                           "      --ask-keyer PORT\n"
                                           "                 Behind that: asks the keyer on this "
                                           "port, too.\n"
                                           "\n"
                                           "The toolkit's own options, such as -platform and "
                                           "-style, work too. The guide is under Help.\n");
    }
    return std::nullopt;
}
