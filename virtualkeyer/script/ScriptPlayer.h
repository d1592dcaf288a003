#pragma once

#include "virtualkeyer/core/KeyLineDecoder.h"
#include "virtualkeyer/pty/KeyerListener.h"
#include "virtualkeyer/pty/Operator.h"
#include "virtualkeyer/script/ScriptHand.h"
#include "virtualkeyer/script/ScriptStep.h"

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace virtualkeyer {

/// Works the keyer as a script says, each step at its very time however late that is noticed, and
/// holds what the keyer does against what the script expects.
///
/// It has to be among the keyer's listeners as well as among its operators.
class ScriptPlayer : public Operator, public KeyerListener {
  public:
    /// What was expected and what was found instead, in the words of a script.
    using Disappointment =
        std::function<void(int line, const QString& expected, const QString& found)>;

    ScriptPlayer(ProfileByName profileByName, Disappointment disappointment);

    /// A further step, of line `line`; it is done after those before it and not before `notBefore`.
    /// False when it names no profile that there is.
    [[nodiscard]] bool add(const ScriptStep& step, int line, Time notBefore = Time{0});
    /// There are no more steps than those added.
    void close() { _isClosed = true; }

    /// The keyer goes on when the script is over.
    void stayAfterwards() { _stays = true; }

    /// Whether each expectation so far was met.
    [[nodiscard]] bool isContent() const { return _isContent; }
    /// The line of the step that is done next; nothing when all are done.
    [[nodiscard]] std::optional<int> nextLine() const;

    void work(SerialKeyer& keyer, bool isReadable, Time now) override;
    [[nodiscard]] std::optional<Time> nextWish() const override;
    [[nodiscard]] bool hasEnded() const override { return _isClosed && _steps.empty() && !_stays; }

    void keyerDid(const Event& event, const Registers& registers) override;
    void timePassed(Time now) override;

  private:
    struct Waiting {
        ScriptStep step;
        int line;
        Time notBefore;
    };

    [[nodiscard]] Time dueTime() const;
    [[nodiscard]] bool carryOut(SerialKeyer& keyer, Time due, Time now);
    [[nodiscard]] bool meet(const Expect& expect, Time due, Time now);
    [[nodiscard]] bool isMet(const Expectation& expectation) const;
    [[nodiscard]] QString found(const Expectation& expectation) const;
    void forget(const Expectation& expectation);

    ScriptHand _hand;
    Disappointment _disappointment;
    std::deque<Waiting> _steps;
    bool _isClosed = false;
    bool _stays = false;
    bool _isContent = true;
    bool _isWaiting = false; // for an expectation that still has time
    bool _hasChanged = false;
    Time _last{0}; // of the step before
    Time _now{0};

    KeyLineDecoder _decoder;
    std::string _keyed;
    std::vector<std::uint8_t> _replies;
    bool _isKeyDown = false;
    bool _isPttOn = false;
};

} // namespace virtualkeyer
