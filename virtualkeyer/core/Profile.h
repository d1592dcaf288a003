#pragma once

#include "virtualkeyer/core/Event.h"

#include <cstddef>
#include <cstdint>
#include <optional>

namespace virtualkeyer {

/// When a letter of the host's text is echoed.
enum class EchoTime {
    BeforeLetterSpace, ///< one dit after the letter's last key-up
    AfterLetterSpace,  ///< three dits after it, so text that comes letter by letter idles between
};

/// When the keyer reports that it has nothing left to send.
enum class IdleTime {
    AfterLetterSpace, ///< the last letter's space belongs to the sending
    WithEcho,         ///< as soon as the last letter is echoed
};

/// Which byte goes first when the last echo and the idle status leave together.
enum class EndOrder { EchoThenIdle, IdleThenEcho };

/// What becomes of a character that has no Morse.
enum class UnknownCharacter {
    Skipped,      ///< neither keyed nor echoed
    QuestionMark, ///< keyed and echoed as "?"
};

/// When the keyer asks the host to stop sending.
enum class XoffRule {
    OverTwoThirds,     ///< more than two thirds of the buffer wait; one status byte each way
    TwentyOneRepeated, ///< 21 bytes or more wait; the status is repeated for every byte added
};

/// What a clear command does to the letter under way.
enum class ClearInLetter {
    Finishes, ///< the letter is keyed to its end and echoed
    DropsKey, ///< the key goes up at once; the letter is not echoed
};

/// What becomes of a memory image that the host loads.
enum class MemoryLoad { Kept, ThrownAway };

/// How paddle keying shows in the status bytes.
enum class BreakInReport {
    Level,  ///< C6 while it lasts, then C4 and C0
    Single, ///< C2 once, then C6; C0 at the end
};

/// What becomes of the text that waits, and of what arrives, while the paddle keys.
enum class TextAtBreakIn {
    Dropped,
    Kept, ///< keyed when the paddle has rested, unless the host clears it
};

/// When the letter is echoed that the paddle has cut short.
enum class CutLetterEcho { AfterBreakIn, BeforeBreakIn };

/// What a resume does with a letter in which the pause came.
enum class ResumeAfterPause { GoesOn, RepeatsLetter };

/// What the command does that gives the speed back to the knob.
enum class SpeedGivenBack { ToKnob, Nowhere };

/// What turning the knob does while a host has opened the keyer.
enum class KnobInHostMode {
    Obeyed,
    Reported, ///< the speed stays what it was when the host opened the keyer
};

/// The status byte while the buffer is nearly full.
enum class XoffStatus {
    WithBusy, ///< C5 while text is being keyed
    Bare,     ///< C1 then, too
};

/// When the push-buttons are reported.
enum class ButtonReport {
    AsTheyMove,
    AtRelease, ///< all that were pressed, and at once that none is
};

/// What a push-button does while text is being keyed.
enum class ButtonInText {
    Reports,
    BreaksIn, ///< the text is dropped as by the paddle, and the button not reported
};

/// What else ends a tune than its own command and a clear.
enum class TuneEnd {
    ByCommand,
    ByAnyKeying, ///< the paddle, a letter or a stored message, and the host is told nothing of it
};

/// What becomes of a tune that begins while text is being keyed.
enum class TuneInText { Keyed, Swallowed };

/// Where keyers differ: one choice each. The defaults describe a version 2 keyer.
struct Profile {
    /// Answer to the open command, 20 to 23.
    std::uint8_t firmware = 23;
    /// Bytes of text that may wait.
    std::size_t bufferSize = 128;
    /// Where the speed pot stands at power-up, in words per minute.
    int potWpm = 20;
    EchoTime echoTime = EchoTime::BeforeLetterSpace;
    IdleTime idleTime = IdleTime::AfterLetterSpace;
    EndOrder endOrder = EndOrder::EchoThenIdle;
    /// Whether text is echoed when the host has asked for it.
    bool echoesText = true;
    /// Whether the half space "|" is echoed.
    bool echoesHalfSpace = false;
    UnknownCharacter unknownCharacter = UnknownCharacter::Skipped;
    /// Whether a status byte follows the version byte.
    bool reportsStatusAfterOpen = false;
    XoffRule xoffRule = XoffRule::OverTwoThirds;
    ClearInLetter clearInLetter = ClearInLetter::Finishes;
    /// How long a boot loader swallows every byte after the port was opened; 0 for a keyer that
    /// does not restart then. Boards that do take 1000 to 1300 ms.
    Time bootLoaderTime{0};
    /// How long the keyer beeps at its first command before it obeys; 0 for no beep. 500 ms is
    /// usual.
    Time firstCommandBeep{0};
    MemoryLoad memoryLoad = MemoryLoad::Kept;
    BreakInReport breakInReport = BreakInReport::Level;
    /// How long the paddle has keyed before the host is told; till then it takes the keyer for
    /// idle. Boards that are late are so by 20 to 160 ms.
    Time breakInDelay{0};
    TextAtBreakIn textAtBreakIn = TextAtBreakIn::Dropped;
    CutLetterEcho cutLetterEcho = CutLetterEcho::AfterBreakIn;
    ResumeAfterPause resumeAfterPause = ResumeAfterPause::GoesOn;
    SpeedGivenBack speedGivenBack = SpeedGivenBack::ToKnob;
    KnobInHostMode knobInHostMode = KnobInHostMode::Obeyed;
    XoffStatus xoffStatus = XoffStatus::WithBusy;
    ButtonReport buttonReport = ButtonReport::AsTheyMove;
    ButtonInText buttonInText = ButtonInText::Reports;
    TuneEnd tuneEnd = TuneEnd::ByCommand;
    TuneInText tuneInText = TuneInText::Keyed;
    /// How long the keyer says and does nothing behind its version byte; it keeps what comes
    /// meanwhile. 440 ms is usual where it does.
    Time silenceAfterOpen{0};
    /// How long text is swallowed after a clear.
    Time deafAfterClear{0};
    /// The longest time that the tune command holds the key; nothing for no limit.
    std::optional<Time> tuneLimit;
};

} // namespace virtualkeyer
