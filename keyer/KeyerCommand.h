#pragma once

#include "keyer/KeyerEncoding.h"

#include <QByteArray>

/// Every byte string that is sent to the keyer, text apart. Each is handed to the port in one
/// write.
namespace KeyerCommand {

/// Of Key Immediate.
enum class KeyLine : std::uint8_t { Up = 0, Down = 1 };
/// Of Set Pause State.
enum class Pause : std::uint8_t { Resume = 0, Pause = 1 };

/// Opens host mode; the keyer answers with its firmware version, one byte.
[[nodiscard]] QByteArray adminHostOpen();
/// Leaves host mode; no answer.
[[nodiscard]] QByteArray adminHostClose();
/// The keyer sends the test character, "U", back.
[[nodiscard]] QByteArray adminEchoTest();
/// Has push-buttons reported in status bytes.
[[nodiscard]] QByteArray adminSetWK2Mode();
/// Announces the 256-byte memory image, which follows in a write of its own; no answer.
[[nodiscard]] QByteArray adminLoadEeprom();
/// Keys one of the messages in the keyer's own memory; `number` is sent as it is.
[[nodiscard]] QByteArray adminSendStandaloneMessage(std::uint8_t number);

/// `sidetone` as KeyerEncoding::sidetone() makes it.
[[nodiscard]] QByteArray sidetoneControl(std::uint8_t sidetone);
/// Hands the speed to the speed pot.
[[nodiscard]] QByteArray setWpmSpeedFromPot();
/// A speed of the computer's own, 5 to 99 wpm; at once, also within a text.
[[nodiscard]] QByteArray setWpmSpeed(std::uint8_t wpm);
/// 10 to 90, 50 neutral.
[[nodiscard]] QByteArray setWeighting(std::uint8_t weighting);
/// Both in units of 10 ms, 0 to 25.
[[nodiscard]] QByteArray setPttLeadTail(std::uint8_t lead, std::uint8_t tail);
/// Lowest speed and span of the pot, wpm.
[[nodiscard]] QByteArray setupSpeedPot(std::uint8_t minimum, std::uint8_t range);
/// Pauses or resumes keying; what is in the keyer's buffer stays there.
[[nodiscard]] QByteArray setPauseState(Pause pause);
/// The keyer answers with the position of its speed pot, one byte.
[[nodiscard]] QByteArray getSpeedPot();
/// `pins` as KeyerEncoding::pinConfiguration() makes it.
[[nodiscard]] QByteArray setPinConfiguration(std::uint8_t pins);
/// Empties the keyer's buffer and stops what it keys.
[[nodiscard]] QByteArray clearBuffer();
/// Keys the transmitter down or up at once, ahead of buffered text.
[[nodiscard]] QByteArray keyImmediate(KeyLine line);
/// 10 to 99 wpm.
[[nodiscard]] QByteArray setFarnsworthWpm(std::uint8_t speed);
/// `mode` as KeyerEncoding::modeRegister() makes it.
[[nodiscard]] QByteArray setWinKeyerMode(std::uint8_t mode);
/// All of the keyer's settings at once.
[[nodiscard]] QByteArray loadDefaults(const KeyerEncoding::DefaultsBlock& block);
/// Lengthens the first element after receiving, 0 to 250 ms.
[[nodiscard]] QByteArray setFirstExtension(std::uint8_t extension);
/// Lengthens every element at the cost of the gap after it, 0 to 250 ms.
[[nodiscard]] QByteArray setKeyCompensation(std::uint8_t compensation);
/// 10 to 90, 50 being one dit; 0 turns paddle memory off.
[[nodiscard]] QByteArray setPaddleSwitchpoint(std::uint8_t switchpoint);
/// Does nothing; synchronises the keyer's parser.
[[nodiscard]] QByteArray nullCommand();
/// 33 to 66, 50 for 1:3.
[[nodiscard]] QByteArray setDitDahRatio(std::uint8_t ratio);
/// Keys two characters without the space between them, as one sign. Buffered.
[[nodiscard]] QByteArray mergeLetters(char first, char second);
/// High-speed CW at `speed` hundred letters a minute. Buffered.
[[nodiscard]] QByteArray hscwSpeedChange(std::uint8_t speed);
/// A speed of 5 to 99 wpm from its place in the text on. Buffered.
[[nodiscard]] QByteArray bufferedSpeedChange(std::uint8_t wpm);
/// Back to the speed before the last buffered change. Buffered.
[[nodiscard]] QByteArray cancelBufferedSpeedChange();

/// Whether `command` has the keyer go back to a speed that is not the one set by setWpmSpeed().
[[nodiscard]] bool endsSetSpeed(const QByteArray& command);

/// Whether a command sets something that the keyer keeps, be it only that it is paused; the block
/// of loadDefaults() is not meant.
[[nodiscard]] bool isSetting(const QByteArray& command);

} // namespace KeyerCommand
