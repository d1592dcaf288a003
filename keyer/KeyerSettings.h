#pragma once

#include "keyer/Setting.h"

#include <array>

/// Keys, defaults and choices of everything that the operator can set about the keyer.

inline constexpr QLatin1StringView WKDisablePaddleWatchdog{"WKDisablePaddleWatchdog"};
inline constexpr QLatin1StringView WKPaddleEchoback{"WKPaddleEchoback"};
inline constexpr QLatin1StringView WKKeyMode{"WKKeyMode"};
inline constexpr QLatin1StringView WKPaddleSwap{"WKPaddleSwap"};
inline constexpr QLatin1StringView WKSerialEchoback{"WKSerialEchoback"};
inline constexpr QLatin1StringView WKAutospace{"WKAutospace"};
inline constexpr QLatin1StringView WKContestSpacing{"WKContestSpacing"};
inline constexpr QLatin1StringView WKSpeed{"WKSpeed"};
inline constexpr QLatin1StringView WKPaddleOnlySidetone{"WKPaddleOnlySidetone"};
inline constexpr QLatin1StringView WKSidetoneFrequency{"WKSidetoneFrequency"};
inline constexpr QLatin1StringView WKWeighting{"WKWeighting"};
inline constexpr QLatin1StringView WKPTTLeadTime{"WKPTTLeadTime"};
inline constexpr QLatin1StringView WKPTTTailTime{"WKPTTTailTime"};
inline constexpr QLatin1StringView WKSpeedPotMinimum{"WKSpeedPotMinimum"};
inline constexpr QLatin1StringView WKSpeedPotRange{"WKSpeedPotRange"};
inline constexpr QLatin1StringView WKFirstExtension{"WKFirstExtension"};
inline constexpr QLatin1StringView WKKeyingCompensation{"WKKeyingCompensation"};
inline constexpr QLatin1StringView WKFarnsworthSpeed{"WKFarnsworthSpeed"};
inline constexpr QLatin1StringView WKPaddleSwitchpoint{"WKPaddleSwitchpoint"};
inline constexpr QLatin1StringView WKEnableDitDahMemory{"WKEnableDitDahMemory"};
inline constexpr QLatin1StringView WKRatio{"WKRatio"};
inline constexpr QLatin1StringView WKDitDahPriority{"WKDitDahPriority"};
inline constexpr QLatin1StringView WKPaddleHang{"WKPaddleHang"};
inline constexpr QLatin1StringView WKKeyOut1Enable{"WKKeyOut1Enable"};
inline constexpr QLatin1StringView WKKeyOut2Enable{"WKKeyOut2Enable"};
inline constexpr QLatin1StringView WKSidetoneEnable{"WKSidetoneEnable"};
inline constexpr QLatin1StringView WKPTTEnable{"WKPTTEnable"};
inline constexpr QLatin1StringView WKHSCWSpeed{"WKHSCWSpeed"};
inline constexpr QLatin1StringView WKStandaloneCommandSpeed{"WKStandaloneCommandSpeed"};
inline constexpr QLatin1StringView WKStandaloneEnableMessageBreak{"WKStandaloneEnableMessageBreak"};
inline constexpr QLatin1StringView WKStandaloneCutSerialNumbers{"WKStandaloneCutSerialNumbers"};

inline constexpr std::array<QLatin1StringView, 6> WKStandaloneMessages{
    QLatin1StringView{"WKStandaloneMessage1"}, QLatin1StringView{"WKStandaloneMessage2"},
    QLatin1StringView{"WKStandaloneMessage3"}, QLatin1StringView{"WKStandaloneMessage4"},
    QLatin1StringView{"WKStandaloneMessage5"}, QLatin1StringView{"WKStandaloneMessage6"}};

namespace KeyerChoices {

/// Bits 5 and 4 of the mode register.
inline constexpr std::array<Choice, 4> keyMode{
    {{QLatin1StringView{QT_TRANSLATE_NOOP("Setting", "Iambic B")}, 0x00},
     {QLatin1StringView{QT_TRANSLATE_NOOP("Setting", "Iambic A")}, 0x10},
     {QLatin1StringView{QT_TRANSLATE_NOOP("Setting", "Ultimatic")}, 0x20},
     {QLatin1StringView{QT_TRANSLATE_NOOP("Setting", "Bug")}, 0x30}}};

/// Bits 7 and 6 of the pin configuration.
inline constexpr std::array<Choice, 3> ditDahPriority{
    {{QLatin1StringView{QT_TRANSLATE_NOOP("Setting", "Normal")}, 0x00},
     {QLatin1StringView{QT_TRANSLATE_NOOP("Setting", "Dashes")}, 0x40},
     {QLatin1StringView{QT_TRANSLATE_NOOP("Setting", "Dots")}, 0x80}}};

/// Bits 5 and 4 of the pin configuration; word times.
inline constexpr std::array<Choice, 4> paddleHang{{{QLatin1StringView{"1.0"}, 0x00},
                                                   {QLatin1StringView{"1.33"}, 0x10},
                                                   {QLatin1StringView{"1.66"}, 0x20},
                                                   {QLatin1StringView{"2.0"}, 0x30}}};

/// Bits 3 to 0 of the sidetone byte: the keyer divides 4000 Hz by the code.
inline constexpr std::array<Choice, 10> sidetoneFrequency{{{QLatin1StringView{"400 Hz"}, 0x0A},
                                                           {QLatin1StringView{"444 Hz"}, 0x09},
                                                           {QLatin1StringView{"500 Hz"}, 0x08},
                                                           {QLatin1StringView{"571 Hz"}, 0x07},
                                                           {QLatin1StringView{"666 Hz"}, 0x06},
                                                           {QLatin1StringView{"800 Hz"}, 0x05},
                                                           {QLatin1StringView{"1000 Hz"}, 0x04},
                                                           {QLatin1StringView{"1333 Hz"}, 0x03},
                                                           {QLatin1StringView{"2000 Hz"}, 0x02},
                                                           {QLatin1StringView{"4000 Hz"}, 0x01}}};

} // namespace KeyerChoices

inline constexpr auto keyerSettings = std::to_array<Setting>({
    {WKDisablePaddleWatchdog, false},
    {WKPaddleEchoback, false},
    {WKKeyMode, QLatin1StringView{"Iambic A"}, KeyerChoices::keyMode},
    {WKPaddleSwap, false},
    {WKSerialEchoback, true},
    {WKAutospace, false},
    {WKContestSpacing, true},
    {WKSpeed, 0}, // registered for whoever reads the file; the speed pot sets the speed
    {WKPaddleOnlySidetone, true},
    {WKSidetoneFrequency, QLatin1StringView{"400 Hz"}, KeyerChoices::sidetoneFrequency},
    {WKWeighting, 0, {}, Range{-40, 40}},         // added to the neutral 50
    {WKPTTLeadTime, 0, {}, Range{0, 25}},         // x 10 ms
    {WKPTTTailTime, 10, {}, Range{0, 25}},        // x 10 ms
    {WKSpeedPotMinimum, 13, {}, Range{5, 99}},    // wpm
    {WKSpeedPotRange, 32, {}, Range{0, 32}},      // wpm
    {WKFirstExtension, 0, {}, Range{0, 250}},     // ms
    {WKKeyingCompensation, 0, {}, Range{0, 250}}, // ms
    {WKFarnsworthSpeed, 10, {}, Range{10, 99}},   // wpm
    {WKPaddleSwitchpoint, 50, {}, Range{10, 90}}, // 50 is one dit
    {WKEnableDitDahMemory, true},
    {WKRatio, 3.0, {}, Range{1.98, 3.99}}, // dits a dah; the keyer takes 33 to 66
    {WKDitDahPriority, QLatin1StringView{"Normal"}, KeyerChoices::ditDahPriority},
    {WKPaddleHang, QLatin1StringView{"1.0"}, KeyerChoices::paddleHang},
    {WKKeyOut1Enable, true},
    {WKKeyOut2Enable, false},
    {WKSidetoneEnable, true},
    {WKPTTEnable, false},
    {WKHSCWSpeed, QLatin1StringView{"1000 lpm"}},
    {WKStandaloneCommandSpeed, 10, {}, Range{5, 99}}, // wpm
    {WKStandaloneEnableMessageBreak, true},
    {WKStandaloneCutSerialNumbers, true},
    {WKStandaloneMessages[0], QLatin1StringView{"Message 1"}},
    {WKStandaloneMessages[1], QLatin1StringView{"Message 2"}},
    {WKStandaloneMessages[2], QLatin1StringView{"Message 3"}},
    {WKStandaloneMessages[3], QLatin1StringView{"Message 4"}},
    {WKStandaloneMessages[4], QLatin1StringView{"Message 5"}},
    {WKStandaloneMessages[5], QLatin1StringView{"Message 6"}},
});
