#pragma once

#include <cstdint>
#include <random>

namespace virtualkeyer {

/// Chance that comes out the same for the same seed, on every machine.
class Chance {
  public:
    explicit Chance(std::uint32_t seed) : _generator(seed) {}

    /// From 0 to below 1.
    [[nodiscard]] double next() {
        return static_cast<double>(_generator()) / (static_cast<double>(std::mt19937::max()) + 1);
    }
    /// Whether what happens to `share` of all, 0 to 1, happens now. Asks nobody where none is.
    [[nodiscard]] bool happens(double share) { return share > 0 && next() < share; }

  private:
    std::mt19937 _generator;
};

} // namespace virtualkeyer
