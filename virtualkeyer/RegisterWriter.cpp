#include "virtualkeyer/RegisterWriter.h"

#include "virtualkeyer/MessageText.h"
#include "virtualkeyer/core/Memory.h"

#include <QCoreApplication>
#include <QFile>
#include <QSaveFile>

#include <array>
#include <stdexcept>
#include <string_view>
#include <utility>

namespace virtualkeyer {

namespace {

constexpr std::array<std::string_view, Registers::count> names{
    "mode",       "speed",       "sidetone",  "weighting",        "lead-in",
    "tail",       "pot-minimum", "pot-range", "first-extension",  "compensation",
    "farnsworth", "switchpoint", "ratio",     "pin-configuration"};

constexpr std::size_t extraFlagsAt = 15;
constexpr std::size_t commandSpeedAt = 16;
constexpr int messageCount = 6;

std::string line(std::string_view name, int value) {
    return std::string(name) + ' ' + std::to_string(value) + '\n';
}

} // namespace

std::string registerText(const Registers& registers, const Memory& memory) {
    std::string text;
    for (std::size_t i = 0; i < names.size(); ++i) {
        text += line(names[i], registers.value(static_cast<Register>(i)));
    }
    text += line("wpm", registers.wpm());

    const Registers::Values settings = memory.settings();
    for (std::size_t i = 0; i < names.size(); ++i) {
        text += "memory-" + line(names[i], settings[i]);
    }
    text += line("memory-extra-flags", memory.image()[extraFlagsAt]);
    text += line("memory-command-speed", memory.image()[commandSpeedAt]);
    for (int number = 1; number <= messageCount; ++number) {
        const std::string message = messageText(memory, number);
        text += "memory-message" + std::to_string(number) + (message.empty() ? "" : " ") + message +
                '\n';
    }
    return text;
}

RegisterWriter::RegisterWriter(std::string path) : _path(std::move(path)) {
    write();
}

void RegisterWriter::keyerHolds(const Registers& registers, const Memory& memory) {
    std::string text = registerText(registers, memory);
    if (text == _text) {
        return;
    }
    _text = std::move(text);
    write();
}

void RegisterWriter::write() const {
    QSaveFile file(QFile::decodeName(_path.c_str()));
    const bool isWritten =
        file.open(QIODevice::WriteOnly) && file.write(_text.c_str()) >= 0 && file.commit();
    if (!isWritten) {
        throw std::runtime_error(
            QCoreApplication::translate("VirtualKeyer", "cannot write the registers %1: %2")
                .arg(QFile::decodeName(_path.c_str()), file.errorString())
                .toStdString());
    }
}

} // namespace virtualkeyer
