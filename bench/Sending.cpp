// What one sent character costs the main thread: from the echo that lets it go to the return of
// the write. It must not grow with the text.

#include "tests/keyer/EngineBench.h"

#include <QCoreApplication>

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <map>

using namespace Qt::StringLiterals;

namespace {

/// Characters between two drainings of the line; a pseudo-terminal holds some thousands.
constexpr int batch = 250;

QString textOf(qsizetype length) {
    return u"PARIS "_s.repeated(length / 6 + 1).left(length);
}

/// Sends the text from its beginning. The keyer's echo of each character is still to come.
void startOver(WinKeyerUsb& engine, const QString& text) {
    engine.clearSending();
    engine.appendMessage(text);
}

void sendCharacter(benchmark::State& state) {
    EngineBench bench;
    if (!bench.connect()) {
        state.SkipWithError("There is no line to the keyer.");
        return;
    }
    auto& engine = bench.engine();
    const auto text = textOf(static_cast<qsizetype>(state.range(0)));
    const QByteArray echo(1, 'E');
    startOver(engine, text);
    while (state.KeepRunningBatch(batch)) {
        for (int i = 0; i < batch; ++i) {
            engine.serialPortDidReceiveData(bench.port(), echo);
        }
        state.PauseTiming();
        static_cast<void>(bench.line().readAvailable());
        if (engine.outputBufferIndex() + batch > text.size()) {
            startOver(engine, text);
        }
        state.ResumeTiming();
    }
}

BENCHMARK(sendCharacter)->RangeMultiplier(10)->Range(1000, 1'000'000)->Repetitions(5);

/// Prints as usual and keeps the best time of each length.
class BestTimes : public benchmark::ConsoleReporter {
  public:
    void ReportRuns(const std::vector<Run>& runs) override {
        ConsoleReporter::ReportRuns(runs);
        for (const auto& run : runs) {
            if (run.run_type == Run::RT_Iteration && !run.error_occurred) {
                auto& best = _best.try_emplace(run.run_name.args, 1e300).first->second;
                best = std::min(best, run.GetAdjustedCPUTime());
            }
        }
    }

    /// The dearest length's time by the cheapest one's; 0 when nothing was measured.
    [[nodiscard]] double ratio() const {
        if (_best.empty()) {
            return 0;
        }
        const auto [least, most] =
            std::ranges::minmax_element(_best, {}, [](const auto& each) { return each.second; });
        return most->second / least->second;
    }

  private:
    std::map<std::string, double> _best;
};

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    BestTimes reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    std::printf("slowest length by fastest length: %.2f (target: at most 1.3)\n", reporter.ratio());
}
