#include "virtualkeyer/core/Machine.h"
#include "virtualkeyer/core/Protocol.h"

#include <algorithm>

// What each command does. Those of the version after this one are consumed without effect.

namespace virtualkeyer {

void Keyer::Machine::obeyAdmin(const Command& command) {
    Outbox& outbox = _board.outbox;
    switch (static_cast<AdminCommand>(command.code)) {
    case AdminCommand::Reset:
        return coldStart();
    case AdminCommand::Open:
        return open();
    case AdminCommand::Close:
        return close();
    case AdminCommand::Echo:
        return outbox.answer(command.parameters[0], _now);
    case AdminCommand::ReadPaddle:
    case AdminCommand::ReadSpeed:
    case AdminCommand::ReadCalibration:
        return outbox.answer(0, _now);
    case AdminCommand::ReadValues:
        for (const std::uint8_t value : _board.registers.block()) {
            outbox.answer(value, _now);
        }
        return;
    case AdminCommand::Version1Status:
        return _board.status.selectVersion1();
    case AdminCommand::Version2Status:
        return _board.status.selectVersion2(_now);
    case AdminCommand::DumpMemory:
        for (const std::uint8_t byte : _memory.image()) {
            outbox.answer(byte, _now);
        }
        return;
    case AdminCommand::LoadMemory:
        return loadMemory(command.parameters);
    case AdminCommand::PlayMessage:
        return play(command.parameters[0]);
    case AdminCommand::Baud9600:
        return setBaud(9600);
    case AdminCommand::Baud1200:
        return setBaud(1200);
    default:
        return;
    }
}

void Keyer::Machine::obeyImmediate(const Command& command) {
    const auto& parameters = command.parameters;
    switch (static_cast<Opcode>(command.code)) {
    case Opcode::Sidetone:
        return set(Register::Sidetone, parameters[0]);
    case Opcode::Speed:
        return setSpeed(parameters[0]);
    case Opcode::Weighting:
        return set(Register::Weighting, parameters[0]);
    case Opcode::PttTimes:
        set(Register::LeadIn, parameters[0]);
        return set(Register::Tail, parameters[1]);
    case Opcode::PotSetup:
        set(Register::PotMinimum, parameters[0]);
        return set(Register::PotRange, parameters[1]);
    case Opcode::Pause:
        return _sender.setPaused(parameters[0] != 0, _now);
    case Opcode::ReadPot:
        return _board.outbox.answer(_board.registers.potByte(), _now);
    case Opcode::Backspace:
        return _sender.backspace(_now);
    case Opcode::PinConfiguration:
        return set(Register::PinConfiguration, parameters[0]);
    case Opcode::ClearBuffer:
        return clear();
    case Opcode::KeyImmediate:
        return keyImmediate(parameters[0] != 0);
    case Opcode::HighSpeed:
        return _board.registers.setHighSpeed(parameters[0]);
    case Opcode::Farnsworth:
        return set(Register::Farnsworth, parameters[0]);
    case Opcode::Mode:
        return set(Register::Mode, parameters[0]);
    case Opcode::LoadDefaults:
        _board.registers.load(std::span(parameters).first<Registers::count>());
        return registersChanged();
    case Opcode::FirstExtension:
        return set(Register::FirstExtension, parameters[0]);
    case Opcode::Compensation:
        return set(Register::Compensation, parameters[0]);
    case Opcode::Switchpoint:
        return set(Register::Switchpoint, parameters[0]);
    case Opcode::SoftwarePaddle:
        _softwarePaddle = parameters[0];
        return touchPaddle();
    case Opcode::ReadStatus:
        return _board.status.report(_now);
    case Opcode::MovePointer:
        if (!_paddle.isBreakingIn()) {
            _sender.movePointer(parameters, _now);
        }
        return;
    case Opcode::Ratio:
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
    if (_board.profile.silenceAfterOpen > Time{0}) {
        _startup.hold(_now + _board.profile.silenceAfterOpen);
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

void Keyer::Machine::play(int number) {
    if (!_paddle.isBreakingIn()) {
        yieldTune();
        _sender.play(_memory.message(number), _now);
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

void Keyer::Machine::setSpeed(std::uint8_t wpm) {
    if (wpm != 0 || _board.profile.speedGivenBack == SpeedGivenBack::ToKnob) {
        set(Register::Speed, wpm);
    }
}

void Keyer::Machine::keyImmediate(bool isDown) {
    const bool isSwallowed =
        _board.status.has(Status::Sending) && _board.profile.tuneInText == TuneInText::Swallowed;
    if (isDown && !isSwallowed) {
        _tune.start(_now);
    } else {
        _tune.release(_now);
    }
}

/// Something else wants the key.
void Keyer::Machine::yieldTune() {
    if (_tune.isOn() && _board.profile.tuneEnd == TuneEnd::ByAnyKeying) {
        _tune.release(_now);
        _board.status.forget(Status::Tuning | Status::TuneKeyed);
    }
}

void Keyer::Machine::clear() {
    _clearedAt = _now;
    _tune.release(_now);
    _sender.clear(_now);
    _tune.reportEnd(_now);
}

} // namespace virtualkeyer
