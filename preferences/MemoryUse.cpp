#include "preferences/MemoryUse.h"

#include "keyer/MorseTable.h"

#include <algorithm>
#include <numeric>

namespace MemoryUse {

namespace {

bool isSilent(QChar character) {
    return MorseTable::contains(character.unicode()) &&
           MorseTable::codeOf(character.unicode()) == MorseTable::encode({});
}

std::optional<QChar> firstSilent(const QString& text) {
    const auto found = std::find_if(text.begin(), text.end(), isSilent);
    return found != text.end() ? std::optional(*found) : std::nullopt;
}

} // namespace

int Shares::usedBytes() const {
    return std::accumulate(messages.begin(), messages.end(), 0,
                           [](int sum, const Share& each) { return sum + each.bytes; });
}

Shares sharesOf(const KeyerMemory::Layout& layout) {
    Shares shares;
    int left = usableBytes;
    for (std::size_t i = 0; i < layout.messages.size(); ++i) {
        const auto& placement = layout.messages[i];
        const auto length = static_cast<int>(placement.length());
        auto& share = shares.messages[i];
        share.bytes = placement.isLeftOut() ? 0 : length;
        share.excess = placement.isLeftOut() ? length - left : 0;
        share.rejected = placement.rejected;
        share.silent = firstSilent(placement.text);
        left -= share.bytes;
    }
    return shares;
}

} // namespace MemoryUse
