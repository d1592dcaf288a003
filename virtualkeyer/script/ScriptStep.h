#pragma once

#include "virtualkeyer/core/Event.h"

#include <QString>

#include <cstdint>
#include <optional>
#include <variant>
#include <vector>

namespace virtualkeyer {

/// Contacts of the paddle close or open; those not named stay as they are.
struct MovePaddle {
    std::optional<bool> dit;
    std::optional<bool> dah;
    bool operator==(const MovePaddle&) const = default;
};

/// The speed knob is turned to `wpm`.
struct TurnKnob {
    int wpm;
    bool operator==(const TurnKnob&) const = default;
};

/// Push-button `number` (1 to 4) goes down or up; without either it does both, one after the other.
struct MoveButton {
    int number;
    std::optional<bool> isDown;
    bool operator==(const MoveButton&) const = default;
};

/// Message `number` (1 to 6) of the keyer's memory is keyed.
struct PlayMessage {
    int number;
    bool operator==(const PlayMessage&) const = default;
};

/// The adapter is plugged in or pulled.
struct MovePlug {
    bool isIn;
    bool operator==(const MovePlug&) const = default;
};

/// The keyer is of other kinds from now on: names, separated by commas.
struct ChangeProfile {
    QString names;
    bool operator==(const ChangeProfile&) const = default;
};

/// These are the line's troubles from now on: names with their numbers, separated by commas.
struct ChangeTroubles {
    QString names;
    bool operator==(const ChangeTroubles&) const = default;
};

/// A host sends these bytes.
struct SendBytes {
    std::vector<std::uint8_t> bytes;
    bool operator==(const SendBytes&) const = default;
};

/// What was keyed since the last such question is this text, in capitals and without spaces at
/// its ends.
struct ExpectKeyed {
    QString text;
    bool operator==(const ExpectKeyed&) const = default;
};

/// What the keyer has sent since the last such question is these bytes.
struct ExpectReply {
    std::vector<std::uint8_t> bytes;
    bool operator==(const ExpectReply&) const = default;
};

/// The key is down or up.
struct ExpectKey {
    bool isDown;
    bool operator==(const ExpectKey&) const = default;
};

/// The transmitter is on or off.
struct ExpectPtt {
    bool isOn;
    bool operator==(const ExpectPtt&) const = default;
};

using Expectation = std::variant<ExpectKeyed, ExpectReply, ExpectKey, ExpectPtt>;

/// An expectation, and how long it may take to be met.
struct Expect {
    Expectation what;
    Time within{0};
    bool operator==(const Expect&) const = default;
};

/// What somebody does at the keyer, or asks of it. std::monostate only lets the time come.
using ScriptAction = std::variant<std::monostate, MovePaddle, TurnKnob, MoveButton, PlayMessage,
                                  MovePlug, ChangeProfile, ChangeTroubles, SendBytes, Expect>;

/// One line of a script. Its time is `at` from the keyer's start, or `after` the line before it.
struct ScriptStep {
    std::optional<Time> at;
    Time after{0};
    ScriptAction what;
    bool operator==(const ScriptStep&) const = default;
};

} // namespace virtualkeyer
