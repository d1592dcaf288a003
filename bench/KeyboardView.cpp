// What the operator waits for when the text in the keyboard view is long: a keystroke, an appended
// message and an echo, each from the event to the end of the repainting that it asks for.

#include "app/keyboard/KeyboardView.h"
#include "tests/keyer/EngineBench.h"

#include <QApplication>
#include <QPainter>
#include <QTest>

#include <algorithm>
#include <benchmark/benchmark.h>
#include <chrono>
#include <cstdio>
#include <functional>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr double targetMs = 20;
constexpr int longestText = 100'000;
/// Of text without spaces, for comparison.
constexpr int longestWord = 5000;

/// What stands in the view.
enum class Text { Words, OneWord };

/// The view, shown as large as in the main window, with `length` characters in it.
class Station {
  public:
    Station(Text kind, qsizetype length) : _length(length) {
        const auto word = kind == Text::Words ? u"PARIS "_s : u"PARIS"_s;
        _text = word.repeated(length / word.size() + 1).left(length);
    }

    [[nodiscard]] bool start() {
        if (!_bench.connect()) {
            return false;
        }
        auto font = _view.font();
        font.setPointSize(16);
        _view.setFont(font);
        _view.resize(700, 300);
        _view.show();
        static_cast<void>(QTest::qWaitForWindowExposed(&_view));
        startOver();
        return true;
    }

    /// The length is what it was at first, and half of the text is sent.
    void startOver() {
        _bench.engine().clearSending();
        _bench.engine().appendMessage(_text);
        _view.moveCursor(QTextCursor::End);
        for (qsizetype i = 0; i < _text.size() / 2; ++i) {
            echo();
            if (i % 250 == 0) {
                drain();
            }
        }
        settle();
    }

    void pressKey() { QTest::keyClick(&_view, Qt::Key_E); }
    void appendMessage() { _bench.engine().appendMessage(u"TU N0CALL"_s); }
    void echo() { _bench.engine().serialPortDidReceiveData(_bench.port(), QByteArray(1, 'E')); }

    /// Everything that is due is done. Painting would wait for the next frame, and takes place at
    /// once, all of the view.
    void settle() {
        QCoreApplication::processEvents();
        _view.repaint();
        _view.viewport()->repaint();
    }

    void drain() { static_cast<void>(_bench.line().readAvailable()); }

    [[nodiscard]] bool isUsedUp() {
        auto& engine = _bench.engine();
        return engine.keyboardBuffer().size() > _length + _length / 50 + 100 ||
               engine.outputBufferIndex() + 1 >= engine.keyboardBuffer().size();
    }

  private:
    qsizetype _length;
    QString _text;
    EngineBench _bench;
    KeyboardView _view{_bench.engine()};
};

double at(std::vector<double>& sorted, double part) {
    return sorted[static_cast<std::size_t>(part * static_cast<double>(sorted.size() - 1))];
}

void run(benchmark::State& state, Text kind, void (Station::*operation)()) {
    Station station(kind, static_cast<qsizetype>(state.range(0)));
    if (!station.start()) {
        state.SkipWithError("There is no line to the keyer.");
        return;
    }
    std::vector<double> times;
    for (auto unused : state) {
        const auto start = std::chrono::steady_clock::now();
        (station.*operation)();
        station.settle();
        const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
        state.SetIterationTime(taken.count());
        times.push_back(taken.count() * 1000);
        station.drain();
        if (station.isUsedUp()) {
            station.startOver();
        }
    }
    std::ranges::sort(times);
    state.counters["median_ms"] = at(times, 0.5);
    state.counters["p99_ms"] = at(times, 0.99);
    state.counters["max_ms"] = times.back();
}

void registerAll() {
    const auto add = [](const char* name, Text kind, void (Station::*operation)(), int most) {
        benchmark::RegisterBenchmark(name,
                                     [=](benchmark::State& state) { run(state, kind, operation); })
            ->Arg(1000)
            ->Arg(most)
            ->UseManualTime()
            ->Iterations(500);
    };
    add("keystroke", Text::Words, &Station::pressKey, longestText);
    add("message", Text::Words, &Station::appendMessage, longestText);
    add("echo", Text::Words, &Station::echo, longestText);
    add("keystroke, no spaces", Text::OneWord, &Station::pressKey, longestWord);
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    registerAll();
    benchmark::RunSpecifiedBenchmarks();
    std::printf("target: each of the three under %.0f ms with %d characters\n", targetMs,
                longestText);
}
