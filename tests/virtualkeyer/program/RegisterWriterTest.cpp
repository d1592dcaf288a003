#include "virtualkeyer/RegisterWriter.h"
#include "tests/support/RegisteredTest.h"
#include "virtualkeyer/core/Keyer.h"
#include "virtualkeyer/pty/SerialKeyer.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <stdexcept>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace virtualkeyer;

namespace {

QString allOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromLatin1(file.readAll()) : QString();
}

/// An image of memory with factory settings and the messages "CQ T" and, third, "E".
Memory::Image loadedImage() {
    Memory::Image image = Memory().image();
    image[15] = 0x0C;
    image[16] = 12;
    const auto messages = std::to_array<std::uint8_t>({0x15, 0x1B, 0x1C, 0x83, 0x82});
    std::ranges::copy(messages, image.begin() + 24);
    const auto addresses =
        std::to_array<std::uint8_t>({24 + 5, 24, 0x10, 24 + 4, 0x10, 0x10, 0x10});
    std::ranges::copy(addresses, image.begin() + 17);
    return image;
}

} // namespace

class RegisterWriterTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void everyRegisterHasItsLine();
    void theMemoryIsTold();
    void theSpeedInForceIsTold();
    void theFileIsThereFromTheStart();
    void aCommandOfTheHostChangesTheFile();
    void aLoadedMemoryChangesTheFile();
    void nothingIsWrittenWithoutAChange();
    void aFileThatCannotBeWrittenIsAnError();
};

void RegisterWriterTest::everyRegisterHasItsLine() {
    Registers registers(20);
    const std::array<std::uint8_t, Registers::count> values{0x95, 33, 0x8A, 61, 4,  5,  13,
                                                            32,   7,  8,    15, 55, 41, 0x06};
    registers.load(values);
    QCOMPARE(QString::fromStdString(registerText(registers, Memory())).section(u"memory-"_s, 0, 0),
             u"mode 149\n"
             "speed 33\n"
             "sidetone 138\n"
             "weighting 61\n"
             "lead-in 4\n"
             "tail 5\n"
             "pot-minimum 13\n"
             "pot-range 32\n"
             "first-extension 7\n"
             "compensation 8\n"
             "farnsworth 15\n"
             "switchpoint 55\n"
             "ratio 41\n"
             "pin-configuration 6\n"
             "wpm 33\n"_s);
}

void RegisterWriterTest::theMemoryIsTold() {
    Memory memory;
    memory.load(loadedImage());
    const auto text = QString::fromStdString(registerText(Registers(20), memory));
    QCOMPARE(text.mid(text.indexOf(u"memory-"_s)), u"memory-mode 0\n"
                                                   "memory-speed 0\n"
                                                   "memory-sidetone 5\n"
                                                   "memory-weighting 50\n"
                                                   "memory-lead-in 0\n"
                                                   "memory-tail 0\n"
                                                   "memory-pot-minimum 10\n"
                                                   "memory-pot-range 15\n"
                                                   "memory-first-extension 0\n"
                                                   "memory-compensation 0\n"
                                                   "memory-farnsworth 0\n"
                                                   "memory-switchpoint 50\n"
                                                   "memory-ratio 50\n"
                                                   "memory-pin-configuration 7\n"
                                                   "memory-extra-flags 12\n"
                                                   "memory-command-speed 12\n"
                                                   "memory-message1 CQ T\n"
                                                   "memory-message2\n"
                                                   "memory-message3 E\n"
                                                   "memory-message4\n"
                                                   "memory-message5\n"
                                                   "memory-message6\n"_s);
}

void RegisterWriterTest::theSpeedInForceIsTold() {
    Registers registers(20);
    QVERIFY(registerText(registers, Memory()).find("\nwpm 20\n") != std::string::npos);
    registers.setHighSpeed(10);
    QVERIFY(registerText(registers, Memory()).find("\nwpm 200\n") != std::string::npos);
}

void RegisterWriterTest::theFileIsThereFromTheStart() {
    const QTemporaryDir directory;
    const auto path = directory.filePath(u"registers"_s);
    RegisterWriter writer(path.toStdString());
    QVERIFY(QFile::exists(path));
    const SerialKeyer keyer({}, {&writer});
    QCOMPARE(allOf(path), QString::fromStdString(registerText(Registers(), Memory())));
}

void RegisterWriterTest::aCommandOfTheHostChangesTheFile() {
    const QTemporaryDir directory;
    const auto path = directory.filePath(u"registers"_s);
    RegisterWriter writer(path.toStdString());
    SerialKeyer keyer({}, {&writer});
    for (const auto byte : std::to_array<std::uint8_t>({0x00, 0x02, 0x03, 60})) { // open, weighting
        keyer.send(byte, 0ms);
    }
    keyer.advance(36ms);
    QVERIFY(allOf(path).contains(u"\nweighting 50\n"_s));
    keyer.advance(37ms);
    QVERIFY(allOf(path).contains(u"\nweighting 60\n"_s));
    QCOMPARE(QDir(directory.path()).entryList(QDir::Files), {u"registers"_s});
}

void RegisterWriterTest::aLoadedMemoryChangesTheFile() {
    const QTemporaryDir directory;
    const auto path = directory.filePath(u"registers"_s);
    RegisterWriter writer(path.toStdString());
    SerialKeyer keyer({}, {&writer});
    for (const auto byte : std::to_array<std::uint8_t>({0x00, 0x0D})) {
        keyer.send(byte, 0ms);
    }
    for (const std::uint8_t byte : loadedImage()) {
        keyer.send(byte, 0ms);
    }
    keyer.advance(3s);
    QVERIFY(allOf(path).contains(u"\nmemory-message1 CQ T\n"_s));
}

void RegisterWriterTest::nothingIsWrittenWithoutAChange() {
    const QTemporaryDir directory;
    const auto path = directory.filePath(u"registers"_s);
    RegisterWriter writer(path.toStdString());
    SerialKeyer keyer({}, {&writer});
    QVERIFY(QFile::remove(path));
    keyer.send(0x13, 0ms);
    keyer.advance(1s);
    QVERIFY(!QFile::exists(path));
}

void RegisterWriterTest::aFileThatCannotBeWrittenIsAnError() {
    QVERIFY_THROWS_EXCEPTION(std::runtime_error, RegisterWriter("/nowhere/at/all"));
}

static const RegisteredTest<RegisterWriterTest> registered;
#include "RegisterWriterTest.moc"
