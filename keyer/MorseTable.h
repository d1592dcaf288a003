#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

/// The keyer's code for each character that its memory can hold.
///
/// Elements stand from bit 0 upward in the order in which they are sent, 0 a dit and 1 a dah, and
/// a closing 1 marks their number.
namespace MorseTable {

inline constexpr unsigned first = 0x20;

/// Dits and dahs of the characters from 0x20 to 0x7F. Those without any cannot be keyed.
inline constexpr auto patterns = std::to_array<std::string_view>({
    "..--",   // the word space, which the keyer's memory holds as this sign
    "",       // !
    ".-..-.", // "
    "",       // #
    "...-..-",
    "", // %
    "", // &
    ".----.",  "-.--.",  "-.--.-",
    "", // *
    ".-.-.",   "--..--", "-....-", ".-.-.-", "-..-.", "-----", ".----", "..---", "...--", "....-",
    ".....",   "-....",  "--...",  "---..",  "----.",
    "-.--.", // : as (
    ".-.-",  // ;
    ".-.-.", // < as +
    "-...-",   "...-.-", "..--..", ".--.-.", ".-",    "-...",  "-.-.",  "-..",   ".",     "..-.",
    "--.",     "....",   "..",     ".---",   "-.-",   ".-..",  "--",    "-.",    "---",   ".--.",
    "--.-",    ".-.",    "...",    "-",      "..-",   "...-",  ".--",   "-..-",  "-.--",  "--..",
    ".-...", // [
    "-..-.", // backslash as /
    "-.--.", // ] as (
    "",      // ^
    "",      // _
    "",      // `
    ".-",      "-...",   "-.-.",   "-..",    ".",     "..-.",  "--.",   "....",  "..",    ".---",
    "-.-",     ".-..",   "--",     "-.",     "---",   ".--.",  "--.-",  ".-.",   "...",   "-",
    "..-",     "...-",   ".--",    "-..-",   "-.--",  "--..",
    "",      // {
    "..--.", // |
    "",      // }
    "",      // ~
    "",      // delete
});

/// The code of a pattern of up to seven elements; 0x01 for none.
[[nodiscard]] constexpr std::uint8_t encode(std::string_view pattern) {
    unsigned code = 1U << pattern.size();
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        if (pattern[i] == '-') {
            code |= 1U << i;
        }
    }
    return static_cast<std::uint8_t>(code);
}

inline constexpr auto codes = [] {
    std::array<std::uint8_t, patterns.size()> all{};
    for (std::size_t i = 0; i < all.size(); ++i) {
        all[i] = encode(patterns[i]);
    }
    return all;
}();

/// Whether `character` is one of the table's.
[[nodiscard]] constexpr bool contains(char16_t character) {
    return character >= first && character < first + codes.size();
}

/// The code of a character that the table contains.
[[nodiscard]] constexpr std::uint8_t codeOf(char16_t character) {
    return codes.at(character - first);
}

static_assert(codes.size() == 96);
static_assert(codeOf('E') == 0x02 && codeOf('T') == 0x03 && codeOf('A') == 0x06);
static_assert(codeOf('a') == codeOf('A') && codeOf('z') == codeOf('Z'));
static_assert(codeOf(' ') == 0x1C && codeOf('$') == 0xC8 && codeOf('|') == 0x2C);

} // namespace MorseTable
