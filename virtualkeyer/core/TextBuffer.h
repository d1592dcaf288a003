#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <optional>
#include <span>

namespace virtualkeyer {

/// The text and buffered commands that wait to be sent.
///
/// Positions count from the last reset, sent bytes included, so a host can write into text that it
/// queued earlier. What has been sent cannot be reached any more.
class TextBuffer {
  public:
    explicit TextBuffer(std::size_t capacity) : _capacity(capacity) {}

    /// Writes at the input pointer; what does not fit is lost as a whole.
    void put(std::span<const std::uint8_t> bytes);
    /// The oldest byte.
    [[nodiscard]] std::optional<std::uint8_t> take();
    /// Drops the newest byte.
    void backspace();
    /// Empties the buffer and starts counting positions anew.
    void reset();
    /// Further bytes replace those from `position` on.
    void overwriteFrom(std::size_t position);
    /// Further bytes are added at `position`; what stands behind it moves on.
    void appendFrom(std::size_t position);
    /// Adds `count` bytes that send nothing, to be overwritten later.
    void insertNulls(std::size_t count);

    [[nodiscard]] bool isEmpty() const { return _bytes.empty(); }
    [[nodiscard]] std::size_t size() const { return _bytes.size(); }
    [[nodiscard]] std::size_t capacity() const { return _capacity; }

  private:
    void moveTo(std::size_t position);
    void put(std::uint8_t byte);

    std::size_t _capacity;
    std::deque<std::uint8_t> _bytes;
    std::size_t _taken = 0;
    std::size_t _input = 0;
    bool _overwrites = false;
};

} // namespace virtualkeyer
