// Uses the whole program at random: quorvel-monkey SECONDS [SEED].

#include "tests/monkey/Monkey.h"

#include <QApplication>

#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

/// What the program logs is of no interest, unless it is the last thing it does. The toolkit bears
/// a place in a text that has none such, but whoever asked for it did not know the text.
void log(QtMsgType type, const QMessageLogContext&, const QString& line) {
    if (type != QtInfoMsg && !line.startsWith("This plugin does not support"_L1)) {
        std::fprintf(stderr, "%s\n", qPrintable(line));
    }
    if (type == QtFatalMsg || line.startsWith("QTextCursor::"_L1)) {
        std::abort();
    }
}

} // namespace

int main(int argc, char* argv[]) {
    qInstallMessageHandler(&log);
    QApplication application(argc, argv);
    const auto arguments = QCoreApplication::arguments();
    const int seconds = arguments.value(1).toInt();
    if (seconds <= 0) {
        std::fprintf(stderr, "usage: quorvel-monkey SECONDS [SEED]\n");
        return 2;
    }
    const auto seed =
        arguments.size() > 2 ? arguments.at(2).toUInt() : QRandomGenerator::global()->generate();
    std::printf("seed %u\n", seed);
    std::fflush(stdout);
    QApplication::setQuitOnLastWindowClosed(false);
    MonkeyStation station;
    const Monkey monkey(station, seed, std::chrono::seconds(seconds));
    const int status = QApplication::exec();
    std::printf("%llu steps, clean\n", static_cast<unsigned long long>(monkey.steps()));
    return status;
}
