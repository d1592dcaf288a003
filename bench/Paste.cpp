// What a pasted text costs: until the event loop comes round again, a key typed behind it, a stop,
// each the longest of some rounds; and the memory that is kept when it is all over. The arguments
// are the length and the word that makes it up.

#include "app/FreedMemory.h"
#include "app/keyboard/KeyboardView.h"
#include "app/window/MainWindow.h"
#include "tests/keyer/EngineBench.h"

#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QTest>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

constexpr int rounds = 5;
/// Milliseconds.
constexpr int firstPainting = 100;

template <typename Action>
double milliseconds(const Action& action) {
    const auto start = std::chrono::steady_clock::now();
    action();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
        .count();
}

/// Of this process, in KiB.
long proportionalSetSize() {
    QFile file(u"/proc/self/smaps_rollup"_s);
    if (file.open(QIODevice::ReadOnly)) {
        for (const auto& line : file.readAll().split('\n')) {
            if (line.startsWith("Pss:")) {
                return line.mid(4).simplified().split(' ').constFirst().toLong();
            }
        }
    }
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const int length = argc > 1 ? std::atoi(argv[1]) : 100'000;
    const auto word = argc > 2 ? QString::fromUtf8(argv[2]) : u"PARIS "_s;
    EngineBench bench;
    if (!bench.connect()) {
        return EXIT_FAILURE;
    }
    const FreedMemory memory(bench.engine());
    MainWindow window(bench.engine());
    window.show();
    static_cast<void>(QTest::qWaitForWindowExposed(&window));
    auto& view = *window.findChild<KeyboardView*>();
    view.setFocus();
    const auto settle = [] { QCoreApplication::processEvents(); };
    QTest::qWait(firstPainting);
    const auto before = proportionalSetSize();
    double paste = 0;
    double key = 0;
    double stop = 0;
    for (int round = 0; round < rounds; ++round) {
        QApplication::clipboard()->setText(word.repeated(length / word.size()));
        paste = std::max(paste, milliseconds([&] { view.paste(); }));
        settle();
        key = std::max(key, milliseconds([&] { QTest::keyClick(&view, Qt::Key_E); }));
        settle();
        QApplication::clipboard()->clear();
        stop = std::max(stop, milliseconds([&] { window.stop(); }));
        settle();
        bench.clock().advance(FreedMemory::rest);
        static_cast<void>(bench.line().readAvailable());
    }
    std::printf("paste_ms %.1f\nkey_ms %.1f\nstop_ms %.1f\nkept_kib %ld\n", paste, key, stop,
                proportionalSetSize() - before);
    return EXIT_SUCCESS;
}
