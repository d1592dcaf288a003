#include "virtualkeyer/core/MorseTable.h"

#include <algorithm>
#include <array>

namespace virtualkeyer {

namespace {

struct Entry {
    char character;
    std::string_view elements;
};

constexpr std::array table{
    Entry{'A', ".-"},     Entry{'B', "-..."},   Entry{'C', "-.-."},    Entry{'D', "-.."},
    Entry{'E', "."},      Entry{'F', "..-."},   Entry{'G', "--."},     Entry{'H', "...."},
    Entry{'I', ".."},     Entry{'J', ".---"},   Entry{'K', "-.-"},     Entry{'L', ".-.."},
    Entry{'M', "--"},     Entry{'N', "-."},     Entry{'O', "---"},     Entry{'P', ".--."},
    Entry{'Q', "--.-"},   Entry{'R', ".-."},    Entry{'S', "..."},     Entry{'T', "-"},
    Entry{'U', "..-"},    Entry{'V', "...-"},   Entry{'W', ".--"},     Entry{'X', "-..-"},
    Entry{'Y', "-.--"},   Entry{'Z', "--.."},   Entry{'0', "-----"},   Entry{'1', ".----"},
    Entry{'2', "..---"},  Entry{'3', "...--"},  Entry{'4', "....-"},   Entry{'5', "....."},
    Entry{'6', "-...."},  Entry{'7', "--..."},  Entry{'8', "---.."},   Entry{'9', "----."},
    Entry{'.', ".-.-.-"}, Entry{',', "--..--"}, Entry{'?', "..--.."},  Entry{'/', "-..-."},
    Entry{'+', ".-.-."},  Entry{'=', "-...-"},  Entry{'@', ".--.-."},  Entry{'-', "-....-"},
    Entry{'(', "-.--."},  Entry{')', "-.--.-"}, Entry{'\'', ".----."}, Entry{'"', ".-..-."},
    Entry{'<', ".-.-."},  Entry{'>', "...-.-"}, Entry{'$', "...-..-"}, Entry{'[', ".-..."},
    Entry{'\\', "-..-."}, Entry{']', "-.--."},  Entry{':', "-.--."},   Entry{';', ".-.-"},
};

constexpr char upperCase(char character) {
    return character >= 'a' && character <= 'z' ? static_cast<char>(character - 'a' + 'A')
                                                : character;
}

} // namespace

std::string_view elementsOf(char character) {
    const auto* found = std::ranges::find(table, upperCase(character), &Entry::character);
    return found == table.end() ? std::string_view{} : found->elements;
}

std::optional<char> characterOf(std::string_view elements) {
    const auto* found = std::ranges::find(table, elements, &Entry::elements);
    if (found == table.end()) {
        return std::nullopt;
    }
    return found->character;
}

} // namespace virtualkeyer
