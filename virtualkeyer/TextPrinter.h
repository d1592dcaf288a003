#pragma once

#include "virtualkeyer/core/KeyLineDecoder.h"
#include "virtualkeyer/pty/KeyerListener.h"

namespace virtualkeyer {

/// Reads the keyed text from the key line and prints each letter to standard output at once.
/// Throws std::system_error when standard output takes no more.
class TextPrinter : public KeyerListener {
  public:
    void keyerDid(const Event& event, const Registers& registers) override;
    void timePassed(Time now) override;
    [[nodiscard]] std::optional<Time> nextWish() const override;

  private:
    void print();

    KeyLineDecoder _decoder;
};

} // namespace virtualkeyer
