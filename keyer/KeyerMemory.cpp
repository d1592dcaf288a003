#include "keyer/KeyerMemory.h"

#include "keyer/MorseTable.h"

#include <algorithm>

namespace KeyerMemory {

namespace {

template <typename Predicate>
std::optional<QChar> first(const QString& text, Predicate isWanted) {
    const auto found = std::find_if(text.begin(), text.end(),
                                    [&](QChar each) { return isWanted(each.unicode()); });
    return found != text.end() ? std::optional(*found) : std::nullopt;
}

bool hasNoCode(char16_t character) {
    return !MorseTable::contains(character);
}

bool isSilent(char16_t character) {
    return MorseTable::contains(character) &&
           MorseTable::codeOf(character) == MorseTable::encode({});
}

bool isEndMark(char16_t character) {
    return MorseTable::contains(character) &&
           (MorseTable::codeOf(character) & lastCharacterBit) != 0;
}

Placement placementOf(const QString& text, std::uint8_t freePointer) {
    Placement message{.text = text.toUpper()};
    message.rejected = first(message.text, hasNoCode);
    message.silent = first(message.text, isSilent);
    message.ending = first(message.text, isEndMark);
    message.excess = std::max(0, static_cast<int>(message.length()) + freePointer - 0xFF);
    if (!message.text.isEmpty() && !message.isLeftOut()) {
        message.start = freePointer;
    }
    return message;
}

} // namespace

bool Layout::hasRejectedCharacter() const {
    return std::any_of(messages.begin(), messages.end(),
                       [](const Placement& each) { return each.rejected.has_value(); });
}

Layout layOut(std::span<const QString, messageCount> texts) {
    Layout layout;
    for (std::size_t i = 0; i < messageCount; ++i) {
        layout.messages[i] = placementOf(texts[i], layout.freePointer);
        layout.freePointer =
            static_cast<std::uint8_t>(layout.freePointer + layout.messages[i].bytes());
    }
    return layout;
}

} // namespace KeyerMemory
