#pragma once

#include "virtualkeyer/pty/Operator.h"
#include "virtualkeyer/pty/SerialKeyer.h"

#include <vector>

namespace virtualkeyer {

/// Runs a keyer without a port and without a clock: its time jumps from one thing that is due to
/// the next, until an operator ends it or nothing is left that could happen. What the operators
/// throw passes through.
void runFast(SerialKeyer& keyer, const std::vector<Operator*>& operators);

} // namespace virtualkeyer
