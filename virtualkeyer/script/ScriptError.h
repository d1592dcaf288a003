#pragma once

#include <stdexcept>

namespace virtualkeyer {

/// A script that cannot be read or understood; what() says where and why.
class ScriptError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

} // namespace virtualkeyer
