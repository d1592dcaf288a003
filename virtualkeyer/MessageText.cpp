#include "virtualkeyer/MessageText.h"

#include "virtualkeyer/core/KeyLineDecoder.h"
#include "virtualkeyer/core/MorseTable.h"

namespace virtualkeyer {

std::string messageText(const Memory& memory, int number) {
    std::string text;
    for (const std::string& letter : memory.message(number)) {
        text += letter == " " ? ' ' : characterOf(letter).value_or(KeyLineDecoder::unknown);
    }
    return text;
}

} // namespace virtualkeyer
