#include "virtualkeyer/core/TraceTable.h"

#include <array>
#include <cstdio>
#include <string_view>

namespace virtualkeyer {

namespace {

constexpr std::array<std::string_view, 6> kindNames{"dit",          "dah",        "space",
                                                    "letter space", "word space", "pause"};

std::string milliseconds(Time time) {
    const auto microseconds = std::chrono::duration_cast<std::chrono::microseconds>(time).count();
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%lld.%03lld",
                  static_cast<long long>(microseconds / 1000),
                  static_cast<long long>(microseconds % 1000));
    return text.data();
}

std::string row(std::string_view line, const Stretch& stretch, std::string_view what) {
    return std::string(line) + ',' + milliseconds(stretch.from) + ',' + milliseconds(stretch.to) +
           ',' + milliseconds(stretch.length()) + ',' + std::string(what) + '\n';
}

/// A comma, or a quotation mark, would otherwise be the table's own.
std::string quoted(char character) {
    return character == '"' ? "\"\"\"\"" : std::string("\"") + character + '"';
}

} // namespace

std::string traceTable(const KeyTrace& trace) {
    std::string table = "line,from_ms,to_ms,length_ms,what\n";
    for (const TraceElement& element : trace.elements()) {
        table += row("key", element.stretch, kindNames[static_cast<std::size_t>(element.kind)]);
    }
    for (const TraceLetter& letter : trace.letters()) {
        table += row("letter", letter.stretch, quoted(letter.character));
    }
    for (const Stretch& transmission : trace.transmissions()) {
        table += row("ptt", transmission, "on");
    }
    return table;
}

} // namespace virtualkeyer
