#pragma once

#include "virtualkeyer/core/Registers.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace virtualkeyer {

/// The keyer's lasting memory: standalone settings and six messages in 256 bytes.
class Memory {
  public:
    static constexpr std::size_t size = 256;
    using Image = std::array<std::uint8_t, size>;

    /// Factory settings and no messages.
    Memory();

    bool operator==(const Memory&) const = default;

    [[nodiscard]] const Image& image() const { return _image; }
    void load(std::span<const std::uint8_t, size> image);

    /// The settings that hold without a host; the factory's if the image lacks its mark.
    [[nodiscard]] Registers::Values settings() const;

    /// Message 1 to 6: each letter's elements as dots and dashes, a single space between words.
    /// Empty for any other number, an empty slot or an address outside the messages.
    [[nodiscard]] std::vector<std::string> message(int number) const;

  private:
    Image _image{};
};

} // namespace virtualkeyer
