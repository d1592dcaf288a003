#include "keyer/KeyerCommand.h"

namespace KeyerCommand {

namespace {

/// A command's own byte, always the first of its write.
enum Code : std::uint8_t {
    Admin = 0x00,
    SidetoneControl = 0x01,
    SetWpmSpeed = 0x02,
    SetWeighting = 0x03,
    SetPttLeadTail = 0x04,
    SetupSpeedPot = 0x05,
    SetPauseState = 0x06,
    GetSpeedPot = 0x07,
    SetPinConfiguration = 0x09,
    ClearBuffer = 0x0A,
    KeyImmediate = 0x0B,
    SetFarnsworthWpm = 0x0D,
    SetWinKeyerMode = 0x0E,
    LoadDefaults = 0x0F,
    SetFirstExtension = 0x10,
    SetKeyCompensation = 0x11,
    SetPaddleSwitchpoint = 0x12,
    NullCommand = 0x13,
    SetDitDahRatio = 0x17,
    MergeLetters = 0x1B,
    BufferedSpeedChange = 0x1C,
    HscwSpeedChange = 0x1D,
    CancelBufferedSpeedChange = 0x1E,
};

/// The byte after Admin.
enum AdminCode : std::uint8_t {
    HostOpen = 0x02,
    HostClose = 0x03,
    EchoTest = 0x04,
    SetWK2Mode = 0x0B,
    LoadEeprom = 0x0D,
    SendStandaloneMessage = 0x0E,
};

constexpr std::uint8_t potIsPresent = 0xFF;
constexpr std::uint8_t speedFromPot = 0;

template <typename... Bytes>
QByteArray bytes(Bytes... values) {
    const char array[] = {static_cast<char>(values)...};
    return {array, sizeof...(values)};
}

} // namespace

QByteArray adminHostOpen() {
    return bytes(Admin, HostOpen);
}

QByteArray adminHostClose() {
    return bytes(Admin, HostClose);
}

QByteArray adminEchoTest() {
    return bytes(Admin, EchoTest, 'U');
}

QByteArray adminSetWK2Mode() {
    return bytes(Admin, SetWK2Mode);
}

QByteArray adminLoadEeprom() {
    return bytes(Admin, LoadEeprom);
}

QByteArray adminSendStandaloneMessage(std::uint8_t number) {
    return bytes(Admin, SendStandaloneMessage, number);
}

QByteArray sidetoneControl(std::uint8_t sidetone) {
    return bytes(SidetoneControl, sidetone);
}

QByteArray setWpmSpeedFromPot() {
    return bytes(SetWpmSpeed, speedFromPot);
}

QByteArray setWpmSpeed(std::uint8_t wpm) {
    return bytes(SetWpmSpeed, wpm);
}

QByteArray setWeighting(std::uint8_t weighting) {
    return bytes(SetWeighting, weighting);
}

QByteArray setPttLeadTail(std::uint8_t lead, std::uint8_t tail) {
    return bytes(SetPttLeadTail, lead, tail);
}

QByteArray setupSpeedPot(std::uint8_t minimum, std::uint8_t range) {
    return bytes(SetupSpeedPot, minimum, range, potIsPresent);
}

QByteArray setPauseState(Pause pause) {
    return bytes(SetPauseState, pause);
}

QByteArray getSpeedPot() {
    return bytes(GetSpeedPot);
}

QByteArray setPinConfiguration(std::uint8_t pins) {
    return bytes(SetPinConfiguration, pins);
}

QByteArray clearBuffer() {
    return bytes(ClearBuffer);
}

QByteArray keyImmediate(KeyLine line) {
    return bytes(KeyImmediate, line);
}

QByteArray setFarnsworthWpm(std::uint8_t speed) {
    return bytes(SetFarnsworthWpm, speed);
}

QByteArray setWinKeyerMode(std::uint8_t mode) {
    return bytes(SetWinKeyerMode, mode);
}

QByteArray loadDefaults(const KeyerEncoding::DefaultsBlock& block) {
    auto command = bytes(LoadDefaults);
    for (const auto value : block) {
        command.append(static_cast<char>(value));
    }
    return command;
}

QByteArray setFirstExtension(std::uint8_t extension) {
    return bytes(SetFirstExtension, extension);
}

QByteArray setKeyCompensation(std::uint8_t compensation) {
    return bytes(SetKeyCompensation, compensation);
}

QByteArray setPaddleSwitchpoint(std::uint8_t switchpoint) {
    return bytes(SetPaddleSwitchpoint, switchpoint);
}

QByteArray nullCommand() {
    return bytes(NullCommand);
}

QByteArray setDitDahRatio(std::uint8_t ratio) {
    return bytes(SetDitDahRatio, ratio);
}

QByteArray mergeLetters(char first, char second) {
    return bytes(MergeLetters, first, second);
}

QByteArray hscwSpeedChange(std::uint8_t speed) {
    return bytes(HscwSpeedChange, speed);
}

QByteArray bufferedSpeedChange(std::uint8_t wpm) {
    return bytes(BufferedSpeedChange, wpm);
}

QByteArray cancelBufferedSpeedChange() {
    return bytes(CancelBufferedSpeedChange);
}

bool endsSetSpeed(const QByteArray& command) {
    return command == setWpmSpeedFromPot() || command == cancelBufferedSpeedChange() ||
           command.startsWith(static_cast<char>(LoadDefaults));
}

bool isSetting(const QByteArray& command) {
    switch (static_cast<std::uint8_t>(command.front())) {
    case SidetoneControl:
    case SetWpmSpeed:
    case SetWeighting:
    case SetPttLeadTail:
    case SetupSpeedPot:
    case SetPauseState:
    case SetPinConfiguration:
    case SetFarnsworthWpm:
    case SetWinKeyerMode:
    case SetFirstExtension:
    case SetKeyCompensation:
    case SetPaddleSwitchpoint:
    case SetDitDahRatio:
        return true;
    default:
        return false;
    }
}

} // namespace KeyerCommand
