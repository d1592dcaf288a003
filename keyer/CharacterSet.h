#pragma once

#include <QChar>

#include <cstdint>
#include <string_view>

/// An immutable set of ASCII characters.
class CharacterSet {
  public:
    consteval explicit CharacterSet(std::string_view members) {
        for (const auto member : members) {
            const auto code = static_cast<unsigned char>(member);
            _bits[code / 64] |= std::uint64_t{1} << (code % 64);
        }
    }

    [[nodiscard]] constexpr bool characterIsMember(QChar character) const {
        const auto code = character.unicode();
        return code < 128 && ((_bits[code / 64] >> (code % 64)) & 1) != 0;
    }

  private:
    std::uint64_t _bits[2] = {};
};
