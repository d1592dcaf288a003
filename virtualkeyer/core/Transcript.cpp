#include "virtualkeyer/core/Transcript.h"

#include <array>
#include <cstdio>

namespace virtualkeyer {

namespace {

std::string hex(std::uint8_t value) {
    std::array<char, 3> text{};
    std::snprintf(text.data(), text.size(), "%02X", value);
    return text.data();
}

struct Description {
    std::string operator()(const HostByte& byte) const { return "host " + hex(byte.value); }
    std::string operator()(const KeyLine& line) const {
        return (line.isDown ? "key down " : "key up ") + std::to_string(line.output);
    }
    std::string operator()(const PttLine& line) const { return line.isOn ? "ptt on" : "ptt off"; }
    std::string operator()(const Tone& tone) const {
        return tone.frequency == 0 ? "tone off" : "tone " + std::to_string(tone.frequency);
    }
    std::string operator()(const LineSpeed& speed) const {
        return "line " + std::to_string(speed.baud) + " baud";
    }
};

} // namespace

std::string transcriptLine(const Event& event) {
    const auto microseconds = std::chrono::duration_cast<std::chrono::microseconds>(event.at);
    std::array<char, 32> time{};
    std::snprintf(time.data(), time.size(), "%lld.%03lld",
                  static_cast<long long>(microseconds.count() / 1000),
                  static_cast<long long>(microseconds.count() % 1000));
    return std::string(time.data()) + ' ' + std::visit(Description{}, event.what);
}

} // namespace virtualkeyer
