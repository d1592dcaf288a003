#pragma once

#include "keyer/CharacterSet.h"

/// The characters that can be typed or stored in a message: what the keyer can key, the tokens
/// "`", "#" and "~", and the control characters "%", "^", "{" and "|".
inline constexpr CharacterSet morseKeyboardCharacters{"ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789"
                                                      "\"$'()+-/:;<=>@"
                                                      "[]\\"
                                                      ",.? "
                                                      "|"
                                                      "`~#{%^"};
