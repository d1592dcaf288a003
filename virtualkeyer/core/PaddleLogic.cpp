#include "virtualkeyer/core/PaddleLogic.h"

namespace virtualkeyer {

namespace {

constexpr Element opposite(Element element) {
    return element == Element::Dit ? Element::Dah : Element::Dit;
}

} // namespace

void PaddleLogic::setContacts(bool dit, bool dah) {
    set(_dit, Element::Dit, dit);
    set(_dah, Element::Dah, dah);
    if (!isPressed()) {
        _isLocked = false;
    }
}

void PaddleLogic::set(Contact& contact, Element element, bool isHeld) {
    if (isHeld && !contact.isHeld) {
        _lastClosed = element;
        if (_looks && !_isLocked) {
            contact.isRemembered = true;
        }
    }
    contact.isHeld = isHeld;
}

bool PaddleLogic::isHeld(Element element) const {
    return element == Element::Dit ? _dit.isHeld : _dah.isHeld;
}

void PaddleLogic::rest() {
    _current.reset();
    _looks = true;
}

void PaddleLogic::start(Element element) {
    // Of two contacts closed from rest the second is remembered only once it has opened.
    if (Contact& other = contact(opposite(element)); !_current && other.isHeld) {
        other.isRemembered = false;
    }
    _current = element;
    _looks = false;
    contact(element).isRemembered = false;
}

void PaddleLogic::look(PaddleMode mode) {
    _looks = true;
    if (mode != PaddleMode::IambicB || !_current) {
        return;
    }
    Contact& other = contact(opposite(*_current));
    if (other.isHeld) {
        other.isRemembered = true;
    }
}

std::optional<Element> PaddleLogic::next(PaddleMode mode, UltimaticPriority priority) {
    if (mode == PaddleMode::Bug && !_dah.isHeld) {
        _dah.isRemembered = false;
    }
    if (_isLocked || (!_dit.isWanted() && !_dah.isWanted())) {
        return std::nullopt;
    }
    if (_dit.isWanted() && _dah.isWanted()) {
        return choose(mode, priority);
    }
    return _dit.isWanted() ? Element::Dit : Element::Dah;
}

Element PaddleLogic::choose(PaddleMode mode, UltimaticPriority priority) {
    if (mode == PaddleMode::Bug) {
        return Element::Dah;
    }
    if (mode != PaddleMode::Ultimatic) {
        return opposite(_current.value_or(_lastClosed));
    }
    Element chosen = _lastClosed;
    if (priority != UltimaticPriority::Last) {
        chosen = priority == UltimaticPriority::Dah ? Element::Dah : Element::Dit;
    }
    // The contact that loses while both are closed must not come in after they have opened.
    if (_dit.isHeld && _dah.isHeld) {
        contact(opposite(chosen)).isRemembered = false;
    }
    return chosen;
}

void PaddleLogic::lock() {
    _isLocked = true;
    _dit.isRemembered = false;
    _dah.isRemembered = false;
}

} // namespace virtualkeyer
