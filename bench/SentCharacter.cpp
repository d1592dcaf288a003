// What one sent character costs the program, all in all: the echo, the engine, the write, and the
// repainting of the main window, in instructions. Counted under callgrind by scripts/bench.sh:
// what one run takes beyond a shorter one is what the further characters cost.

#include "app/keyboard/KeyboardView.h"
#include "app/window/MainWindow.h"
#include "tests/keyer/EngineBench.h"

#include <QApplication>
#include <QEvent>
#include <QTest>

#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

/// Whether the keyboard view has been painted.
class Painting : public QObject {
  public:
    bool isDone = false;
    bool eventFilter(QObject*, QEvent* event) override {
        isDone = isDone || event->type() == QEvent::Paint;
        return false;
    }
};

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const int characters = argc > 1 ? std::atoi(argv[1]) : 100;
    EngineBench bench;
    if (!bench.connect()) {
        return EXIT_FAILURE;
    }
    MainWindow window(bench.engine());
    window.show();
    static_cast<void>(QTest::qWaitForWindowExposed(&window));
    bench.engine().appendMessage(u"PARIS "_s.repeated(400));
    Painting painting;
    window.findChild<KeyboardView*>()->viewport()->installEventFilter(&painting);
    for (int i = 0; i < characters; ++i) {
        painting.isDone = false;
        bench.engine().serialPortDidReceiveData(bench.port(), QByteArray(1, 'E'));
        while (!painting.isDone) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
        static_cast<void>(bench.line().readAvailable());
    }
    return EXIT_SUCCESS;
}
