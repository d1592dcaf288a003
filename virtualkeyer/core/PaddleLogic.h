#pragma once

#include "virtualkeyer/core/Registers.h"

#include <optional>

namespace virtualkeyer {

enum class Element { Dit, Dah };

/// Which element the paddle asks for next: its contacts, and what is remembered of them.
class PaddleLogic {
  public:
    /// The contacts are closed or open from now on. A contact that closes while the paddle is
    /// looked at is remembered until its element is keyed.
    void setContacts(bool dit, bool dah);
    [[nodiscard]] bool isHeld(Element element) const;
    /// Whether a contact is closed that may key.
    [[nodiscard]] bool asksForKey() const { return !_isLocked && isPressed(); }

    /// Nothing is keyed: every touch counts.
    void rest();
    /// `element` begins; the paddle is not looked at until look().
    void start(Element element);
    /// The paddle is looked at again. In iambic mode B a squeeze now counts to its next element.
    void look(PaddleMode mode);

    /// The element to key now, if any.
    [[nodiscard]] std::optional<Element> next(PaddleMode mode, UltimaticPriority priority);

    /// Asks for nothing more until both contacts are open.
    void lock();

  private:
    struct Contact {
        bool isHeld = false;
        bool isRemembered = false;
        [[nodiscard]] bool isWanted() const { return isHeld || isRemembered; }
    };

    [[nodiscard]] bool isPressed() const { return _dit.isHeld || _dah.isHeld; }
    void set(Contact& contact, Element element, bool isHeld);
    [[nodiscard]] Contact& contact(Element element) {
        return element == Element::Dit ? _dit : _dah;
    }
    [[nodiscard]] Element choose(PaddleMode mode, UltimaticPriority priority);

    Contact _dit;
    Contact _dah;
    std::optional<Element> _current;
    Element _lastClosed = Element::Dit;
    bool _looks = true;
    bool _isLocked = false;
};

} // namespace virtualkeyer
