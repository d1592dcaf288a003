#include "virtualkeyer/core/Keyer.h"

#include "virtualkeyer/core/Machine.h"

namespace virtualkeyer {

Keyer::Keyer(const Profile& profile) : _machine(std::make_unique<Machine>(profile)) {}

Keyer::~Keyer() = default;

void Keyer::restart(Time at) {
    _machine->restart(at);
}

void Keyer::setProfile(const Profile& profile, Time at) {
    _machine->setProfile(profile, at);
}

void Keyer::playMessage(int number, Time at) {
    _machine->playMessage(number, at);
}

void Keyer::portOpened(Time at) {
    _machine->portOpened(at);
}

void Keyer::reset(Time at) {
    _machine->reset(at);
}

void Keyer::receive(std::uint8_t byte, Time at) {
    _machine->receive(byte, at);
}

void Keyer::setPaddle(bool dit, bool dah, Time at) {
    _machine->setPaddle(dit, dah, at);
}

void Keyer::setPot(int wpm, Time at) {
    _machine->setPot(wpm, at);
}

void Keyer::setPushButtons(std::uint8_t mask, Time at) {
    _machine->setPushButtons(mask, at);
}

void Keyer::advance(Time until) {
    _machine->advance(until);
}

std::optional<Time> Keyer::nextEvent() const {
    return _machine->nextEvent();
}

std::vector<Event> Keyer::takeEvents() {
    return _machine->takeEvents();
}

const Registers& Keyer::registers() const {
    return _machine->registers();
}

const Memory& Keyer::memory() const {
    return _machine->memory();
}

std::uint8_t Keyer::status() const {
    return _machine->status();
}

bool Keyer::isDeaf() const {
    return _machine->isDeaf();
}

} // namespace virtualkeyer
