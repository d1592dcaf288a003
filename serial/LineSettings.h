#pragma once

#include "serial/LineSpeed.h"

#include <optional>
#include <termios.h>

/// How characters travel on a serial line. Parity: 0 none, 1 odd, 2 even.
struct LineSettings {
    unsigned long baudRate;
    unsigned parity;
    unsigned numberOfStopBits;
    bool echoesReceivedData;
    bool usesRtsCts;

    /// Makes a raw line of 8 data bits with these settings. 0, else the failed call's result.
    [[nodiscard]] static int apply(const LineSettings& settings, int descriptor);

    /// The edits that apply() makes to the line's record, but for a speed without a constant.
    static void edit(termios& record, const LineSettings& settings);
};

/// The settings that a line had when it was opened.
class SavedLineSettings {
  public:
    /// Reads them; what cannot be read is not restored.
    explicit SavedLineSettings(int descriptor);

    /// Puts them back once all output has been sent, after taking off hardware flow control, so
    /// that output which nobody takes does not hold up the close.
    void restore(int descriptor) const;

  private:
    std::optional<termios> _record;
    std::optional<LineSpeed::Speed> _speed;
};
