#pragma once

#include "virtualkeyer/core/Profile.h"
#include "virtualkeyer/script/ScriptStep.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string_view>

namespace virtualkeyer {

class SerialKeyer;

/// The kind of keyer of these names, or nothing where there is none.
using ProfileByName = std::function<std::optional<Profile>(std::string_view names)>;

/// Does to a keyer what a step of a script says. It remembers which contacts and buttons it holds.
class ScriptHand {
  public:
    explicit ScriptHand(ProfileByName profileByName);

    /// Whether it knows all names in the action.
    [[nodiscard]] bool knows(const ScriptAction& action) const;

    /// An expectation is left to others. A button without a direction goes down and stays there.
    void act(const ScriptAction& action, SerialKeyer& keyer, Time at);

  private:
    struct Doing;

    ProfileByName _profileByName;
    bool _dit = false;
    bool _dah = false;
    std::uint8_t _buttons = 0;
};

} // namespace virtualkeyer
