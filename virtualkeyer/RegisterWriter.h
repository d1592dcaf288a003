#pragma once

#include "virtualkeyer/pty/KeyerListener.h"

#include <string>

namespace virtualkeyer {

/// What a keyer holds, a line "name value" each, values in decimal: its registers; the speed in
/// force; and, with "memory-" before the name, the settings and messages of its lasting memory.
/// An empty message is a name without a value.
[[nodiscard]] std::string registerText(const Registers& registers, const Memory& memory);

/// Keeps a file up to date with what the keyer holds. Each change replaces the file as a whole, so
/// that who reads it never sees a half of it. Throws std::runtime_error when it cannot be written.
class RegisterWriter : public KeyerListener {
  public:
    /// Makes the file or empties it.
    explicit RegisterWriter(std::string path);

    void keyerDid(const Event& /*event*/, const Registers& /*registers*/) override {}
    void keyerHolds(const Registers& registers, const Memory& memory) override;

  private:
    void write() const;

    std::string _path;
    std::string _text;
};

} // namespace virtualkeyer
