#pragma once

#include "virtualkeyer/core/Keyer.h"
#include "virtualkeyer/core/Memory.h"
#include "virtualkeyer/core/Paddle.h"
#include "virtualkeyer/core/Parser.h"
#include "virtualkeyer/core/Sender.h"
#include "virtualkeyer/core/Startup.h"
#include "virtualkeyer/core/Tune.h"

namespace virtualkeyer {

/// The keyer's parts, wired together: gives each command to the part that obeys it, and decides
/// who has the key.
class Keyer::Machine {
  public:
    explicit Machine(const Profile& profile);

    void restart(Time at);
    void setProfile(const Profile& profile, Time at);
    void playMessage(int number, Time at);
    void portOpened(Time at);
    void reset(Time at);
    void receive(std::uint8_t byte, Time at);
    void setPaddle(bool dit, bool dah, Time at);
    void setPot(int wpm, Time at);
    void setPushButtons(std::uint8_t mask, Time at);
    void advance(Time until);
    [[nodiscard]] std::optional<Time> nextEvent() const;
    [[nodiscard]] std::vector<Event> takeEvents() { return _board.outbox.take(); }
    [[nodiscard]] const Registers& registers() const { return _board.registers; }
    [[nodiscard]] const Memory& memory() const { return _memory; }
    [[nodiscard]] std::uint8_t status() const { return _board.status.byte(); }
    [[nodiscard]] bool isDeaf() const { return _startup.isDeaf(_now); }

  private:
    void runNext(Time now);
    void settle();
    void accept(std::uint8_t byte);

    void obey(const Command& command);
    void obeyAdmin(const Command& command);
    void obeyImmediate(const Command& command);
    void enqueue(const Command& command);

    void coldStart();
    void open();
    void close();
    void standAlone();
    void setBaud(int baud);
    void loadMemory(const std::vector<std::uint8_t>& bytes);
    void set(Register which, std::uint8_t value);
    void setSpeed(std::uint8_t wpm);
    void registersChanged();
    void keyImmediate(bool isDown);
    void clear();
    void touchPaddle();
    void yieldTune();
    [[nodiscard]] bool keepsText() const;
    void breakInByButton();
    void play(int number);

    Board _board;
    Memory _memory;
    Parser _parser;
    Sender _sender{_board};
    Paddle _paddle{_board};
    Tune _tune{_board};
    Startup _startup{_board};
    Time _now{0};
    int _baud = 1200;
    bool _dit = false;
    bool _dah = false;
    std::uint8_t _softwarePaddle = 0;
    std::optional<Time> _clearedAt;
};

} // namespace virtualkeyer
