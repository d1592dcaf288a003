#pragma once

#include <QByteArrayView>
#include <QString>

#include <vector>

/// A text from a logger, in the engine's characters. Where its speed changes, and behind each sign
/// of two joined letters, a new piece begins.
struct LoggerText {
    struct Piece {
        /// So many steps faster, or slower, from its first character on.
        int speedSteps = 0;
        QString text;
        /// Whether it ends in joined letters, which the keyer tells one by one to be sent.
        bool endsJoined = false;
    };
    std::vector<Piece> pieces;

    /// Reads any bytes. What has no Morse code is left out.
    [[nodiscard]] static LoggerText read(QByteArrayView bytes);
};
