#pragma once

namespace virtualkeyer {

/// Goes on as the program that has the window, with the same arguments, where there is a display.
/// It is a program of its own, so that this one is not kept waiting by a toolkit that it has no use
/// for. Returns only when that cannot be.
void becomeWindowProgram(char* arguments[]);

} // namespace virtualkeyer
