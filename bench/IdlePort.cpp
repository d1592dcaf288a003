// What an open port costs while nothing happens on it: processor time of all threads together.

#include "serial/ORSSerialPort.h"
#include "tests/support/PseudoTerminalPair.h"
#include "tests/support/SystemCallFaults.h"
#include "tests/support/TestPlatform.h"

#include <QCoreApplication>
#include <QTimer>

#include <chrono>
#include <cstdio>
#include <ctime>

using namespace Qt::StringLiterals;

namespace {

using Seconds = std::chrono::duration<double>;

constexpr auto duration = std::chrono::seconds(10);
constexpr double target = 1;

Seconds processorTime() {
    timespec time = {};
    ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}

/// In percent of one core, with the event loop running.
double load() {
    const auto start = std::chrono::steady_clock::now();
    const auto before = processorTime();
    QTimer::singleShot(duration, QCoreApplication::instance(), &QCoreApplication::quit);
    QCoreApplication::exec();
    const Seconds passed = std::chrono::steady_clock::now() - start;
    return (processorTime() - before) / passed * 100;
}

double loadOfOpenPort() {
    const TestPlatform platform;
    const PseudoTerminalPair line;
    const auto port =
        ORSSerialPort::serialPortWithDevice(platform.devices().plug(u"line"_s, line.path()));
    port->open();
    const double result = port->isOpen() ? load() : -1;
    port->close();
    return result;
}

void print(const char* name, double load) {
    std::printf("%-36s %5.2f %% of one core\n", name, load);
}

} // namespace

int main(int argc, char* argv[]) {
    const QCoreApplication application(argc, argv);
    SystemCallFaults calls;
    print("no port", load());
    print("a line that refuses its modem lines", loadOfOpenPort());
    calls.setModemWord(0);
    print("a line with modem lines", loadOfOpenPort());
    std::printf("target: less than %.0f %%\n", target);
}
