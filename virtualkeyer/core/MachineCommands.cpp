#include "virtualkeyer/core/Machine.h"

#include <algorithm>

// What each command does. Those of the version after this one are consumed without effect.

namespace virtualkeyer {

void Keyer::Machine::obeyAdmin(const Command& command) {
    Outbox& outbox = _board.outbox;
    switch (command.code) {
    case 1:
        return coldStart();
    case 2:
        return open();
    case 3:
        return close();
    case 4:
        return outbox.answer(command.parameters[0], _now);
    case 5: // paddle A/D
    case 6: // speed A/D
    case 9:
        return outbox.answer(0, _now);
    case 7:
        for (const std::uint8_t value : _board.registers.block()) {
            outbox.answer(value, _now);
        }
        return;
    case 10:
        return _board.status.selectVersion1();
    case 11:
        return _board.status.selectVersion2(_now);
    case 12:
        for (const std::uint8_t byte : _memory.image()) {
            outbox.answer(byte, _now);
        }
        return;
    case 13:
        return loadMemory(command.parameters);
    case 14:
        if (!_paddle.isBreakingIn()) {
            _sender.play(_memory.message(command.parameters[0]), _now);
        }
        return;
    case 17:
        return setBaud(9600);
    case 18:
        return setBaud(1200);
    default:
        return;
    }
}

void Keyer::Machine::obeyImmediate(const Command& command) {
    const auto& parameters = command.parameters;
    switch (command.code) {
    case 0x01:
        return set(Register::Sidetone, parameters[0]);
    case 0x02:
        return set(Register::Speed, parameters[0]);
    case 0x03:
        return set(Register::Weighting, parameters[0]);
    case 0x04:
        set(Register::LeadIn, parameters[0]);
        return set(Register::Tail, parameters[1]);
    case 0x05:
        set(Register::PotMinimum, parameters[0]);
        return set(Register::PotRange, parameters[1]);
    case 0x06:
        return _sender.setPaused(parameters[0] != 0, _now);
    case 0x07:
        return _board.outbox.answer(_board.registers.potByte(), _now);
    case 0x08:
        return _sender.backspace(_now);
    case 0x09:
        return set(Register::PinConfiguration, parameters[0]);
    case 0x0A:
        return clear();
    case 0x0B:
        return keyImmediate(parameters[0] != 0);
    case 0x0C:
        return _board.registers.setHighSpeed(parameters[0]);
    case 0x0D:
        return set(Register::Farnsworth, parameters[0]);
    case 0x0E:
        return set(Register::Mode, parameters[0]);
    case 0x0F:
        _board.registers.load(std::span(parameters).first<Registers::count>());
        return registersChanged();
    case 0x10:
        return set(Register::FirstExtension, parameters[0]);
    case 0x11:
        return set(Register::Compensation, parameters[0]);
    case 0x12:
        return set(Register::Switchpoint, parameters[0]);
    case 0x14:
        _softwarePaddle = parameters[0];
        return touchPaddle();
    case 0x15:
        return _board.status.report(_now);
    case 0x16:
        if (!_paddle.isBreakingIn()) {
            _sender.movePointer(parameters, _now);
        }
        return;
    case 0x17:
        return set(Register::Ratio, parameters[0]);
    default:
        return;
    }
}

void Keyer::Machine::coldStart() {
    close();
    _parser.reset();
    _board.status.selectVersion1();
    _startup.restart(_now, _now);
    setBaud(1200);
}

void Keyer::Machine::open() {
    _board.outbox.setOpen(true);
    _board.status.selectVersion1();
    _board.outbox.answer(_board.profile.firmware, _now);
    if (_board.profile.reportsStatusAfterOpen) {
        _board.status.report(_now);
    }
}

void Keyer::Machine::close() {
    // First of all, so that nothing of what ends here reaches the host.
    _board.outbox.setOpen(false);
    _softwarePaddle = 0;
    _sender.stop(_now);
    _paddle.stop(_now);
    _tune.release(_now);
    _tune.reportEnd(_now);
    _board.lines.releaseAll(_now);
    _board.ptt.drop(_now);
    standAlone();
}

void Keyer::Machine::standAlone() {
    _board.registers.restoreFactory();
    _board.registers.load(_memory.settings());
    registersChanged();
}

void Keyer::Machine::setBaud(int baud) {
    if (baud == _baud) {
        return;
    }
    _baud = baud;
    _board.outbox.post(_now, LineSpeed{baud});
}

void Keyer::Machine::loadMemory(const std::vector<std::uint8_t>& bytes) {
    if (_board.profile.memoryLoad == MemoryLoad::ThrownAway) {
        return;
    }
    _memory.load(std::span(bytes).first<Memory::size>());
    if (!_board.outbox.isOpen()) {
        standAlone();
    }
}

void Keyer::Machine::set(Register which, std::uint8_t value) {
    _board.registers.set(which, value);
    registersChanged();
}

void Keyer::Machine::registersChanged() {
    _board.lines.refresh(_now);
    _board.ptt.refresh(_now);
    // The mode may have swapped the contacts.
    touchPaddle();
}

void Keyer::Machine::keyImmediate(bool isDown) {
    if (isDown) {
        _tune.start(_now);
    } else {
        _tune.release(_now);
    }
}

void Keyer::Machine::clear() {
    _tune.release(_now);
    _sender.clear(_now);
    _tune.reportEnd(_now);
}

} // namespace virtualkeyer
