#include "keyer/KeyerMemory.h"

#include "keyer/MorseTable.h"

#include <algorithm>

namespace KeyerMemory {

namespace {

std::optional<QChar> firstWithoutCode(const QString& text) {
    const auto found = std::find_if(
        text.begin(), text.end(), [](QChar each) { return !MorseTable::contains(each.unicode()); });
    return found != text.end() ? std::optional(*found) : std::nullopt;
}

} // namespace

bool Layout::hasRejectedCharacter() const {
    return std::any_of(messages.begin(), messages.end(),
                       [](const Placement& each) { return each.rejected.has_value(); });
}

int Layout::bytesLeft() const {
    return static_cast<int>(std::tuple_size_v<Image>) - freePointer;
}

Layout layOut(std::span<const QString, messageCount> texts) {
    Layout layout;
    for (std::size_t i = 0; i < messageCount; ++i) {
        auto& message = layout.messages[i];
        message.text = texts[i].toUpper();
        message.rejected = firstWithoutCode(message.text);
        if (!message.text.isEmpty() && message.length() + layout.freePointer <= 0xFF) {
            message.start = layout.freePointer;
            layout.freePointer = static_cast<std::uint8_t>(layout.freePointer + message.length());
        }
    }
    return layout;
}

} // namespace KeyerMemory
