#include "virtualkeyer/NamedProfiles.h"

#include <QtGlobal>

#include <algorithm>
#include <array>

namespace virtualkeyer {

namespace {

using namespace std::chrono_literals;

constexpr std::array profiles{
    NamedProfile{"default", QT_TRANSLATE_NOOP("NamedProfile", "a version 2 keyer, firmware 23"),
                 [](Profile&) {}},
    NamedProfile{"late-echo",
                 QT_TRANSLATE_NOOP(
                     "NamedProfile",
                     "echoes after the letter space, \"|\" too; keys \"?\" for what has no Morse"),
                 [](Profile& profile) {
                     profile.echoTime = EchoTime::AfterLetterSpace;
                     profile.echoesHalfSpace = true;
                     profile.unknownCharacter = UnknownCharacter::QuestionMark;
                 }},
    NamedProfile{
        "no-echo",
        QT_TRANSLATE_NOOP("NamedProfile", "never echoes the text, whatever the host has set"),
        [](Profile& profile) { profile.echoesText = false; }},
    NamedProfile{"status-after-open",
                 QT_TRANSLATE_NOOP("NamedProfile", "sends a status byte after the version byte"),
                 [](Profile& profile) { profile.reportsStatusAfterOpen = true; }},
    NamedProfile{
        "echo-then-idle",
        QT_TRANSLATE_NOOP("NamedProfile", "sends the last echo and the idle status back to back"),
        [](Profile& profile) { profile.idleTime = IdleTime::WithEcho; }},
    NamedProfile{"idle-then-echo",
                 QT_TRANSLATE_NOOP("NamedProfile", "the same, the idle status first"),
                 [](Profile& profile) {
                     profile.idleTime = IdleTime::WithEcho;
                     profile.endOrder = EndOrder::IdleThenEcho;
                 }},
    NamedProfile{
        "early-xoff",
        QT_TRANSLATE_NOOP("NamedProfile",
                          "asks for a pause at 21 waiting bytes, and again for every more"),
        [](Profile& profile) { profile.xoffRule = XoffRule::TwentyOneRepeated; }},
    NamedProfile{
        "abrupt-clear",
        QT_TRANSLATE_NOOP("NamedProfile", "drops the key in mid-letter when the buffer is cleared"),
        [](Profile& profile) { profile.clearInLetter = ClearInLetter::DropsKey; }},
    NamedProfile{
        "boot-loader",
        QT_TRANSLATE_NOOP("NamedProfile", "restarts when the port is opened and is deaf for 1.3 s"),
        [](Profile& profile) { profile.bootLoaderTime = 1300ms; }},
    NamedProfile{"start-beep",
                 QT_TRANSLATE_NOOP("NamedProfile",
                                   "beeps for half a second before it obeys its first command"),
                 [](Profile& profile) { profile.firstCommandBeep = 500ms; }},
    NamedProfile{"no-memory-load",
                 QT_TRANSLATE_NOOP("NamedProfile", "throws a loaded memory away without a word"),
                 [](Profile& profile) { profile.memoryLoad = MemoryLoad::ThrownAway; }},
    NamedProfile{"single-break-in",
                 QT_TRANSLATE_NOOP("NamedProfile", "reports break-in by a single C2 first"),
                 [](Profile& profile) { profile.breakInReport = BreakInReport::Single; }},
    NamedProfile{"late-break-in",
                 QT_TRANSLATE_NOOP("NamedProfile",
                                   "is idle for the host until the paddle has keyed for 160 ms"),
                 [](Profile& profile) { profile.breakInDelay = 160ms; }},
    NamedProfile{"echo-before-break-in",
                 QT_TRANSLATE_NOOP("NamedProfile",
                                   "echoes the letter that the paddle cut before the break-in"),
                 [](Profile& profile) { profile.cutLetterEcho = CutLetterEcho::BeforeBreakIn; }},
    NamedProfile{"kept-text",
                 QT_TRANSLATE_NOOP("NamedProfile",
                                   "keys what waited when the paddle has rested, unless the host "
                                   "clears it"),
                 [](Profile& profile) { profile.textAtBreakIn = TextAtBreakIn::Kept; }},
    NamedProfile{
        "repeat-after-pause",
        QT_TRANSLATE_NOOP("NamedProfile", "keys a letter once more that a pause came into"),
        [](Profile& profile) { profile.resumeAfterPause = ResumeAfterPause::RepeatsLetter; }},
    NamedProfile{"speed-stays",
                 QT_TRANSLATE_NOOP("NamedProfile",
                                   "stays at the last speed when the host gives it back to the "
                                   "knob"),
                 [](Profile& profile) { profile.speedGivenBack = SpeedGivenBack::Nowhere; }},
    NamedProfile{
        "idle-knob",
        QT_TRANSLATE_NOOP("NamedProfile", "reports the knob to a host, and does not obey it"),
        [](Profile& profile) { profile.knobInHostMode = KnobInHostMode::Reported; }},
    NamedProfile{
        "bare-xoff",
        QT_TRANSLATE_NOOP("NamedProfile", "asks for a pause by C1, without the bit for busy"),
        [](Profile& profile) { profile.xoffStatus = XoffStatus::Bare; }},
    NamedProfile{
        "buttons-at-release",
        QT_TRANSLATE_NOOP("NamedProfile",
                          "reports press and release of a push-button together, at the release"),
        [](Profile& profile) { profile.buttonReport = ButtonReport::AtRelease; }},
    NamedProfile{"button-breaks-in",
                 QT_TRANSLATE_NOOP("NamedProfile",
                                   "takes a push-button in the midst of text for a break-in"),
                 [](Profile& profile) { profile.buttonInText = ButtonInText::BreaksIn; }},
    NamedProfile{"tune-yields",
                 QT_TRANSLATE_NOOP("NamedProfile",
                                   "ends a tune for the paddle, a letter or a message, without a "
                                   "word"),
                 [](Profile& profile) { profile.tuneEnd = TuneEnd::ByAnyKeying; }},
    NamedProfile{
        "no-tune-in-text",
        QT_TRANSLATE_NOOP("NamedProfile", "swallows a tune that begins in the midst of text"),
        [](Profile& profile) { profile.tuneInText = TuneInText::Swallowed; }},
    NamedProfile{"slow-greeting",
                 QT_TRANSLATE_NOOP("NamedProfile",
                                   "says and does nothing for 0.44 s behind its version byte"),
                 [](Profile& profile) { profile.silenceAfterOpen = 440ms; }},
    NamedProfile{
        "deaf-after-clear",
        QT_TRANSLATE_NOOP("NamedProfile", "swallows text for 0.1 s after the buffer was cleared"),
        [](Profile& profile) { profile.deafAfterClear = 100ms; }},
};

} // namespace

std::span<const NamedProfile> namedProfiles() {
    return profiles;
}

std::optional<Profile> profileNamed(std::string_view names) {
    Profile profile;
    for (std::size_t at = 0; at <= names.size();) {
        const std::size_t end = std::min(names.find(',', at), names.size());
        const auto found =
            std::ranges::find(profiles, names.substr(at, end - at), &NamedProfile::name);
        if (found == profiles.end()) {
            return std::nullopt;
        }
        found->differFromDefault(profile);
        at = end + 1;
    }
    return profile;
}

} // namespace virtualkeyer
