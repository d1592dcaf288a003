// How long the keyer waits for the next character: from the moment at which its echo is on the
// line until the next byte is there, through the port's reader, the main queue and the engine.
//
// The line's own share is measured too, with a bare thread in the place of all that.

#include "tests/keyer/EngineBench.h"

#include <QCoreApplication>
#include <QEventLoop>

#include <algorithm>
#include <array>
#include <benchmark/benchmark.h>
#include <chrono>
#include <fcntl.h>
#include <poll.h>
#include <thread>
#include <unistd.h>
#include <vector>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

using Clock = std::chrono::steady_clock;
using Seconds = std::chrono::duration<double>;

constexpr int rounds = 3000;
/// Between two rounds, so that everybody has gone to sleep as between two echoes of a keyer.
constexpr auto pause = 2ms;

/// The next bytes on the line; false when none come.
bool awaitBytes(int descriptor) {
    pollfd waited{descriptor, POLLIN, 0};
    std::array<char, 64> bytes{};
    return ::poll(&waited, 1, 5000) == 1 && ::read(descriptor, bytes.data(), bytes.size()) > 0;
}

/// The keyer's end of the line: echoes, and takes the time until the answer. Fewer than `rounds`
/// times when an answer fails to come.
std::vector<Seconds> echoAndWait(int farEnd) {
    std::vector<Seconds> times;
    while (times.size() < rounds) {
        std::this_thread::sleep_for(pause);
        const auto start = Clock::now();
        if (::write(farEnd, "E", 1) != 1 || !awaitBytes(farEnd)) {
            break;
        }
        times.emplace_back(Clock::now() - start);
    }
    return times;
}

void report(benchmark::State& state, const std::vector<Seconds>& times) {
    if (times.size() < rounds) {
        state.SkipWithError("The next byte did not come.");
        return;
    }
    auto next = times.begin();
    for ([[maybe_unused]] const auto& each : state) {
        state.SetIterationTime((next++)->count());
    }
    auto sorted = times;
    std::ranges::sort(sorted);
    const auto milliseconds = [&](size_t index) { return sorted[index].count() * 1e3; };
    state.counters["median_ms"] = milliseconds(sorted.size() / 2);
    state.counters["p99_ms"] = milliseconds(sorted.size() * 99 / 100);
    state.counters["max_ms"] = milliseconds(sorted.size() - 1);
}

void engine(benchmark::State& state) {
    EngineBench bench;
    if (!bench.connect()) {
        state.SkipWithError("There is no line to the keyer.");
        return;
    }
    bench.engine().appendMessage(u"E"_s.repeated(rounds + 1));
    static_cast<void>(awaitBytes(bench.line().farEnd()));

    QEventLoop loop;
    std::vector<Seconds> times;
    {
        const std::jthread keyer([&] {
            times = echoAndWait(bench.line().farEnd());
            QMetaObject::invokeMethod(&loop, &QEventLoop::quit, Qt::QueuedConnection);
        });
        loop.exec();
    }
    report(state, times);
    state.SetLabel("target: median 0.2 ms, p99 2 ms");
}

void bareLine(benchmark::State& state) {
    const PseudoTerminalPair line;
    const int nearEnd = ::open(qPrintable(line.path()), O_RDWR | O_NOCTTY | O_CLOEXEC);
    {
        const std::jthread host([nearEnd] {
            for (int i = 0; i < rounds && awaitBytes(nearEnd); ++i) {
                static_cast<void>(::write(nearEnd, "E", 1));
            }
        });
        report(state, echoAndWait(line.farEnd()));
    }
    ::close(nearEnd);
    state.SetLabel("the line alone");
}

BENCHMARK(engine)->Iterations(rounds)->UseManualTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(bareLine)->Iterations(rounds)->UseManualTime()->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
