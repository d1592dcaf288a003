#pragma once

#include "keyer/KeyerWatch.h"
#include "tests/integration/Station.h"

/// A station, and what its operator is told of a keyer that says nothing.
class WatchedStation : public Station {
  public:
    explicit WatchedStation(const virtualkeyer::Profile& profile = {},
                            const virtualkeyer::Troubles& troubles = {}, std::uint32_t seed = 1)
        : Station(profile, troubles, seed) {
        QObject::connect(&_watch, &KeyerWatch::neverAnswered, &_watch, [this] { complain(); });
        QObject::connect(&_watch, &KeyerWatch::fellSilent, &_watch, [this] { complain(); });
        QObject::connect(&_watch, &KeyerWatch::settled, &_watch,
                         [this] { _isComplaining = false; });
    }

    /// Since the beginning.
    [[nodiscard]] bool hasComplained() const { return _hasComplained; }
    /// Whether that is still so: the keyer has not been heard since, and nobody has asked again.
    [[nodiscard]] bool isComplaining() const { return _isComplaining; }
    void askAgain() {
        _isComplaining = false;
        _watch.askAgain();
    }

    /// Lets time pass until the key has gone down and up so many times in all.
    [[nodiscard]] bool waitForEdges(std::size_t count) {
        return waitUntil([this, count] { return edges().size() >= count; });
    }

    /// The paddle is touched for a dit.
    void tap() {
        setPaddle(true, false);
        pass(std::chrono::milliseconds{20});
        setPaddle(false, false);
    }

  private:
    void complain() {
        _hasComplained = true;
        _isComplaining = true;
    }

    KeyerWatch _watch{engine(), nullptr};
    bool _hasComplained = false;
    bool _isComplaining = false;
};
