#pragma once

#include "virtualkeyer/pty/Operator.h"

namespace virtualkeyer {

/// Works the paddle by what is read from a descriptor: "." closes the dit contact and "-" the other
/// one, and anything else opens both, as does the end of what is read.
class TypedPaddle : public Operator {
  public:
    /// Does not own the descriptor.
    explicit TypedPaddle(int descriptor) : _descriptor(descriptor) {}

    [[nodiscard]] int descriptor() const override { return _descriptor; }
    void work(SerialKeyer& keyer, bool isReadable, Time now) override;

  private:
    int _descriptor;
};

} // namespace virtualkeyer
