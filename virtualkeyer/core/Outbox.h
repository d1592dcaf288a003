#pragma once

#include "virtualkeyer/core/Event.h"

#include <utility>
#include <vector>

namespace virtualkeyer {

/// Collects what the keyer does until somebody asks.
class Outbox {
  public:
    /// A host that has not opened the keyer gets nothing but answers.
    void setOpen(bool isOpen) { _isOpen = isOpen; }
    [[nodiscard]] bool isOpen() const { return _isOpen; }

    /// The answer to a command.
    void answer(std::uint8_t byte, Time at) { post(at, HostByte{byte}); }
    /// A byte that nobody asked for: echo, status, pot.
    void tell(std::uint8_t byte, Time at) {
        if (_isOpen) {
            post(at, HostByte{byte});
        }
    }
    void post(Time at, decltype(Event::what) what) { _events.push_back({at, what}); }

    [[nodiscard]] std::vector<Event> take() { return std::exchange(_events, {}); }

  private:
    bool _isOpen = false;
    std::vector<Event> _events;
};

} // namespace virtualkeyer
