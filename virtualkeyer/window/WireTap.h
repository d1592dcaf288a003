#pragma once

#include "virtualkeyer/core/WireReader.h"
#include "virtualkeyer/pty/KeyerListener.h"

#include <QObject>

#include <cstddef>
#include <deque>
#include <mutex>
#include <vector>

namespace virtualkeyer {

/// Listens to the line on the keyer's thread, and hands what it has read to a window on another.
class WireTap : public QObject, public KeyerListener {
    Q_OBJECT
  public:
    /// Lines that wait for a window that does not come; older ones go.
    static constexpr std::size_t mostWaiting = 10'000;

    /// What was said since the last call. The window's thread.
    [[nodiscard]] std::vector<WireLine> takeLines();

    void keyerDid(const Event& event, const Registers& registers) override;
    void hostSent(std::uint8_t byte, bool isLost, Time at) override;
    void keyerRestarted(Time at) override;
    void timePassed(Time now) override;
    [[nodiscard]] std::optional<Time> nextWish() const override { return _reader.nextEvent(); }

  Q_SIGNALS:
    /// There are lines. Not again before they were taken; from the keyer's thread.
    void heard();

  private:
    void handOver();

    // The keyer's thread alone.
    WireReader _reader;

    std::mutex _mutex;
    std::deque<WireLine> _waiting;
    bool _isAnnounced = false;
};

} // namespace virtualkeyer
