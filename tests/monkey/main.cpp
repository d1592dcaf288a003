// Uses the whole program at random: quorvel-monkey SECONDS [SEED].

#include "tests/monkey/Monkey.h"

#include <QApplication>

#include <cstdio>
#include <cstdlib>

namespace {

/// What the program logs is of no interest, unless it is the last thing it does.
void log(QtMsgType type, const QMessageLogContext&, const QString& line) {
    if (type != QtInfoMsg) {
        std::fprintf(stderr, "%s\n", qPrintable(line));
    }
    if (type == QtFatalMsg) {
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
