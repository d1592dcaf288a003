#include "virtualkeyer/script/ScriptHand.h"

#include "virtualkeyer/pty/NamedTroubles.h"
#include "virtualkeyer/pty/SerialKeyer.h"

#include <array>
#include <utility>

namespace virtualkeyer {

namespace {

constexpr std::array<std::uint8_t, 4> buttonBits{0x01, 0x02, 0x04, 0x10};

} // namespace

struct ScriptHand::Doing {
    ScriptHand& hand;
    SerialKeyer& keyer;
    Time at;

    void operator()(const std::monostate& /*nothing*/) const {}
    void operator()(const MovePaddle& move) const {
        hand._dit = move.dit.value_or(hand._dit);
        hand._dah = move.dah.value_or(hand._dah);
        keyer.setPaddle(hand._dit, hand._dah, at);
    }
    void operator()(const TurnKnob& turn) const { keyer.setPot(turn.wpm, at); }
    void operator()(const MoveButton& move) const {
        const std::uint8_t bit = buttonBits.at(static_cast<std::size_t>(move.number - 1));
        const bool isDown = move.isDown.value_or(true);
        const int buttons = isDown ? hand._buttons | bit : hand._buttons & ~bit;
        hand._buttons = static_cast<std::uint8_t>(buttons);
        keyer.setPushButtons(hand._buttons, at);
    }
    void operator()(const PlayMessage& play) const { keyer.playMessage(play.number, at); }
    void operator()(const MovePlug& move) const {
        if (move.isIn) {
            keyer.plugIn(at);
        } else {
            keyer.pull(at);
        }
    }
    void operator()(const ChangeProfile& change) const {
        keyer.setProfile(hand._profileByName(change.names.toStdString()).value(), at);
    }
    void operator()(const ChangeTroubles& change) const {
        keyer.setTroubles(troublesNamed(change.names.toStdString()).value(), at);
    }
    void operator()(const SendBytes& send) const {
        for (const std::uint8_t byte : send.bytes) {
            keyer.send(byte, at);
        }
    }
    void operator()(const Expect& /*expect*/) const {}
};

ScriptHand::ScriptHand(ProfileByName profileByName) : _profileByName(std::move(profileByName)) {}

bool ScriptHand::knows(const ScriptAction& action) const {
    const auto* change = std::get_if<ChangeProfile>(&action);
    return change == nullptr || _profileByName(change->names.toStdString()).has_value();
}

void ScriptHand::act(const ScriptAction& action, SerialKeyer& keyer, Time at) {
    std::visit(Doing{*this, keyer, at}, action);
}

} // namespace virtualkeyer
