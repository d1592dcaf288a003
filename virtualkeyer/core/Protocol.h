#pragma once

#include <cstdint>

// The bytes that a host sends, as the keyer reads them. Written from the keyer's side and by
// itself, so that a mistake in the application's commands is not made here once more.

namespace virtualkeyer {

/// The first byte of a command. From Ptt on they wait in the buffer with the text.
enum class Opcode : std::uint8_t {
    Admin = 0x00, ///< an AdminCommand follows
    Sidetone = 0x01,
    Speed = 0x02,
    Weighting = 0x03,
    PttTimes = 0x04,
    PotSetup = 0x05,
    Pause = 0x06,
    ReadPot = 0x07,
    Backspace = 0x08,
    PinConfiguration = 0x09,
    ClearBuffer = 0x0A,
    KeyImmediate = 0x0B,
    HighSpeed = 0x0C,
    Farnsworth = 0x0D,
    Mode = 0x0E,
    LoadDefaults = 0x0F,
    FirstExtension = 0x10,
    Compensation = 0x11,
    Switchpoint = 0x12,
    Null = 0x13,
    SoftwarePaddle = 0x14,
    ReadStatus = 0x15,
    MovePointer = 0x16, ///< a PointerMove follows
    Ratio = 0x17,

    Ptt = 0x18,
    TimedKey = 0x19,
    Wait = 0x1A,
    Merge = 0x1B,
    TemporarySpeed = 0x1C,
    OutputOrHighSpeed = 0x1D, ///< 0 and 1 select the key output, more is a speed
    EndTemporarySpeed = 0x1E,
    BufferedNull = 0x1F,
};

/// What comes after Opcode::Admin.
enum class AdminCommand : std::uint8_t {
    Calibrate = 0,
    Reset = 1,
    Open = 2,
    Close = 3,
    Echo = 4,
    ReadPaddle = 5,
    ReadSpeed = 6,
    ReadValues = 7,
    Debug = 8,
    ReadCalibration = 9,
    Version1Status = 10,
    Version2Status = 11,
    DumpMemory = 12,
    LoadMemory = 13,
    PlayMessage = 14,
    LoadX1Mode = 15,
    Baud9600 = 17,
    Baud1200 = 18,
};

/// What comes after Opcode::MovePointer; all but Reset take one parameter more.
enum class PointerMove : std::uint8_t { Reset = 0, Overwrite = 1, Append = 2, InsertNulls = 3 };

inline constexpr auto firstBuffered = static_cast<std::uint8_t>(Opcode::Ptt);
/// What is below this is an Opcode.
inline constexpr std::uint8_t firstText = 0x20;
inline constexpr std::uint8_t lastText = 0x7F;

} // namespace virtualkeyer
