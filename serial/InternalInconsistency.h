#pragma once

#include <stdexcept>

/// A mistake of the program itself: something was asked for that is never valid.
class InternalInconsistency final : public std::logic_error {
  public:
    using std::logic_error::logic_error;
};
