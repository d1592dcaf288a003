#include "app/FreedMemory.h"

#include "tests/keyer/EngineBench.h"
#include "tests/support/RegisteredTest.h"

#include <QFile>
#include <QTest>

#include <memory>
#include <unistd.h>
#include <vector>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class FreedMemoryTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void aLongTextLeavesNothingBehind();
    void aShortTextIsNoOccasion();

  private:
    void leaveHoles();

    /// Lie behind what is freed, so that the end of the heap stays where it is.
    std::vector<std::unique_ptr<char[]>> _inUse;
};

namespace {

constexpr std::size_t block = 1000;
constexpr long megabyte = 1'000'000;
/// Of memory in small blocks that are free.
constexpr long holes = 32 * megabyte;

long resident() {
    QFile file(u"/proc/self/statm"_s);
    return file.open(QIODevice::ReadOnly)
               ? file.readAll().split(' ').at(1).toLong() * ::sysconf(_SC_PAGESIZE)
               : 0;
}

} // namespace

void FreedMemoryTest::leaveHoles() {
    std::vector<std::unique_ptr<char[]>> blocks;
    for (long bytes = 0; bytes < holes; bytes += block) {
        blocks.push_back(std::make_unique<char[]>(block));
    }
    _inUse.push_back(std::make_unique<char[]>(block));
}

void FreedMemoryTest::aLongTextLeavesNothingBehind() {
    EngineBench bench;
    const FreedMemory memory(bench.engine());
    leaveHoles();
    const auto before = resident();
    bench.engine().setKeyboardBuffer(u"E"_s.repeated(FreedMemory::longText + 1));
    bench.engine().clearSending();
    bench.clock().advance(FreedMemory::rest);
    QVERIFY2(before - resident() > holes / 2, qPrintable(QString::number(before - resident())));
}

void FreedMemoryTest::aShortTextIsNoOccasion() {
    EngineBench bench;
    const FreedMemory memory(bench.engine());
    leaveHoles();
    const auto before = resident();
    bench.engine().setKeyboardBuffer(u"E"_s.repeated(FreedMemory::longText));
    bench.engine().clearSending();
    bench.clock().advance(FreedMemory::rest);
    QVERIFY2(before - resident() < holes / 2, qPrintable(QString::number(before - resident())));
}

static const RegisteredTest<FreedMemoryTest> registered;
#include "FreedMemoryTest.moc"
