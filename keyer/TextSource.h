#pragma once

/// Who a text is from that the engine is given to send.
struct TextSource {
    enum class Kind { Keyboard, Message, PushButton, Beacon, Logger };

    Kind kind = Kind::Keyboard;
    /// Of a message or push-button, from 1 on; of a logger, the port that it sends from. Else 0.
    int number = 0;

    [[nodiscard]] friend bool operator==(const TextSource&, const TextSource&) = default;
};
