#pragma once

#include "keyer/KeyerMemory.h"

/// How standalone messages share the keyer's memory, for the operator to see.
namespace MemoryUse {

/// One message's part.
struct Share {
    /// Bytes that it takes in the memory; 0 when it is empty or left out.
    int bytes = 0;
    /// How many bytes it is too long for the room that the messages before it leave; 0 when it
    /// fits.
    int excess = 0;
    /// The first character that the keyer has no place for: nothing can be saved with it.
    std::optional<QChar> rejected = {};
    /// The first character that takes a byte and is sent as nothing.
    std::optional<QChar> silent = {};

    [[nodiscard]] bool isLeftOut() const { return excess > 0; }
    bool operator==(const Share&) const = default;
};

struct Shares {
    std::array<Share, KeyerMemory::messageCount> messages;

    [[nodiscard]] int usedBytes() const;
    bool operator==(const Shares&) const = default;
};

/// One byte is never used: the keyer's pointer to the first free byte has to stay inside.
inline constexpr int usableBytes = KeyerMemory::messageAreaSize - 1;

[[nodiscard]] Shares sharesOf(const KeyerMemory::Layout& layout);

} // namespace MemoryUse
