#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace virtualkeyer {

/// The registers, in the order in which the host loads and reads them.
enum class Register : std::uint8_t {
    Mode,
    Speed, ///< words per minute; 0 leaves it to the pot
    Sidetone,
    Weighting,
    LeadIn, ///< 10 ms steps
    Tail,   ///< 10 ms steps
    PotMinimum,
    PotRange,
    FirstExtension, ///< ms
    Compensation,   ///< ms
    Farnsworth,
    Switchpoint,
    Ratio,
    PinConfiguration,
};

/// How the paddle's contacts become elements.
enum class PaddleMode : std::uint8_t { IambicB, IambicA, Ultimatic, Bug };

/// Which contact wins in ultimatic mode while both are closed.
enum class UltimaticPriority : std::uint8_t { Last, Dah, Dit };

/// What the host has set, and the speeds that stand above the speed register.
class Registers {
  public:
    static constexpr std::size_t count = 14;
    /// Length of the block that the host loads or reads; its last byte is always 0.
    static constexpr std::size_t blockSize = 15;
    using Values = std::array<std::uint8_t, count>;

    /// What a keyer fresh from the factory holds.
    static constexpr Values factoryValues{0x00, 0, 0x05, 50, 0, 0, 10, 15, 0, 0, 0, 50, 50, 0x07};

    explicit Registers(int potWpm = 20) : _potWpm(potWpm), _obeyedPotWpm(potWpm) {}

    bool operator==(const Registers&) const = default;

    /// Sets one register; a value outside its range leaves it as it was. A new speed cancels the
    /// temporary and the high speed.
    void set(Register which, std::uint8_t value);
    /// Factory values; the pot stays where it is.
    void restoreFactory();
    /// Sets all registers, each as set() does.
    void load(std::span<const std::uint8_t, count> values);
    [[nodiscard]] std::uint8_t value(Register which) const;
    /// The block as the host reads it.
    [[nodiscard]] std::array<std::uint8_t, blockSize> block() const;

    /// The pot stands at `wpm`; it counts within the minimum and range that the host has set.
    void setPot(int wpm) { _potWpm = _obeyedPotWpm = wpm; }
    /// The pot stands at `wpm`, and the speed does not follow it before restoreFactory().
    void setPotUnheeded(int wpm) { _potWpm = wpm; }
    [[nodiscard]] int potWpm() const;
    /// The pot's byte to the host.
    [[nodiscard]] std::uint8_t potByte() const;

    /// Buffered speed, 5 to 99 wpm; other values are passed over.
    void setTemporarySpeed(int wpm);
    void cancelTemporarySpeed();
    /// High-speed CW, `hundreds` of letters a minute; 0 is passed over.
    void setHighSpeed(int hundreds);
    /// High-speed CW that ends with the temporary speed.
    void setTemporaryHighSpeed(int hundreds);
    /// The speed in force, in words per minute.
    [[nodiscard]] int wpm() const;

    [[nodiscard]] bool watchdog() const { return !modeBit(7); }
    [[nodiscard]] bool paddleEcho() const { return modeBit(6); }
    [[nodiscard]] PaddleMode paddleMode() const;
    [[nodiscard]] bool swapsPaddle() const { return modeBit(3); }
    [[nodiscard]] bool serialEcho() const { return modeBit(2); }
    [[nodiscard]] bool autospace() const { return modeBit(1); }
    [[nodiscard]] bool contestSpacing() const { return modeBit(0); }

    [[nodiscard]] UltimaticPriority ultimaticPriority() const;
    /// Dits that the paddle's hang time lasts beyond a word space: 1, 2, 4 or 8.
    [[nodiscard]] int hangDits() const;
    /// Whether key output 1 or 2 is keyed.
    [[nodiscard]] bool keysOutput(int output) const;
    /// Keys `output` (1 or 2) and not the other.
    void selectOutput(int output);
    [[nodiscard]] bool sidetoneOn() const { return pinBit(1); }
    [[nodiscard]] bool pttOn() const { return pinBit(0); }

    /// The sidetone's pitch in Hz.
    [[nodiscard]] int sidetoneHz() const;
    [[nodiscard]] bool sidetoneForPaddleOnly() const;

  private:
    [[nodiscard]] bool modeBit(unsigned bit) const;
    [[nodiscard]] bool pinBit(unsigned bit) const;
    [[nodiscard]] int withinPotRange(int wpm) const;

    Values _values = factoryValues;
    int _potWpm;
    int _obeyedPotWpm;
    int _highSpeed = 0;
    int _temporarySpeed = 0;
};

} // namespace virtualkeyer
