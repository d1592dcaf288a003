#pragma once

#include "virtualkeyer/core/Event.h"

namespace virtualkeyer {

class Registers;

/// What the registers make of each element and space.
struct Timing {
    Time dit;            ///< key-down time of a dit
    Time dah;            ///< key-down time of a dah
    Time gap;            ///< key-up time after each element
    Time restOfLetter;   ///< from the end of a letter's last gap to the end of its letter space
    Time restOfWord;     ///< from the end of the letter space to the end of the word space
    Time unit;           ///< the dit length D that the letters are made of
    Time spaceUnit;      ///< the dit length D that spaces, tail and hang are made of
    Time firstExtension; ///< added to the first element after receive
    Time leadIn;         ///< from PTT to key-down
    Time tail;           ///< PTT after the host's text, from the last key-up
    Time hang;           ///< PTT after the paddle, from the last key-up
    Time wordSpace;      ///< a paddle pause that makes a word
    Time lookAgain;      ///< from an element's start until the paddle is looked at again
};

/// One dit at `wpm`: 1200/wpm ms.
[[nodiscard]] Time ditLength(int wpm);

/// Whether a mark of this length is a dah rather than a dit.
[[nodiscard]] bool isDah(const Timing& timing, Time mark);
/// The shortest space that ends a letter: the middle between a gap and a letter space.
[[nodiscard]] Time letterLimit(const Timing& timing);
/// The shortest space that ends a word.
[[nodiscard]] Time wordLimit(const Timing& timing);

/// The timing that follows from `registers` now.
[[nodiscard]] Timing timingOf(const Registers& registers);

} // namespace virtualkeyer
