#include "portcheck/SerialChips.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

/// The first that fits counts. The udev rule of the packages names the same chips.
constexpr auto chips = std::to_array<SerialChip>({
    {"0403"_L1, "6001"_L1, "FTDI FT232"_L1, "ftdi_sio"_L1},
    {"0403"_L1, "6010"_L1, "FTDI FT2232"_L1, "ftdi_sio"_L1},
    {"0403"_L1, "6011"_L1, "FTDI FT4232"_L1, "ftdi_sio"_L1},
    {"0403"_L1, "6014"_L1, "FTDI FT232H"_L1, "ftdi_sio"_L1},
    {"0403"_L1, "6015"_L1, "FTDI FT-X"_L1, "ftdi_sio"_L1},
    {"10c4"_L1, "ea60"_L1, "Silicon Labs CP210x"_L1, "cp210x"_L1},
    {"10c4"_L1, "ea70"_L1, "Silicon Labs CP2105"_L1, "cp210x"_L1},
    {"1a86"_L1, "7523"_L1, "WCH CH340"_L1, "ch341"_L1, BoardHabit::ResetsOnOpen},
    {"1a86"_L1, "5523"_L1, "WCH CH341"_L1, "ch341"_L1},
    {"1a86"_L1, "55d4"_L1, "WCH CH9102"_L1, "cdc_acm"_L1, BoardHabit::ResetsOnOpen},
    {"067b"_L1, "2303"_L1, "Prolific PL2303"_L1, "pl2303"_L1},
    {"067b"_L1, "23a3"_L1, "Prolific PL2303"_L1, "pl2303"_L1},
    {"067b"_L1, "23c3"_L1, "Prolific PL2303"_L1, "pl2303"_L1},
    {"04d8"_L1, "00dd"_L1, "Microchip MCP2221"_L1, "cdc_acm"_L1},
    // With a USB port of its processor's own the product begins with 8.
    {"2341"_L1, "8"_L1, "Arduino"_L1, "cdc_acm"_L1, BoardHabit::LeavesAt1200Baud},
    {"2a03"_L1, "8"_L1, "Arduino"_L1, "cdc_acm"_L1, BoardHabit::LeavesAt1200Baud},
    {"2341"_L1, ""_L1, "Arduino"_L1, "cdc_acm"_L1, BoardHabit::ResetsOnOpen},
    {"2a03"_L1, ""_L1, "Arduino"_L1, "cdc_acm"_L1, BoardHabit::ResetsOnOpen},
});

} // namespace

const SerialChip* SerialChips::find(const UsbChip& chip) {
    const auto* const found = std::ranges::find_if(chips, [&](const SerialChip& each) {
        // To newer releases of the toolkit a null string does not even begin with an empty one.
        return chip.vendor == each.vendor &&
               (each.product.isEmpty() || chip.product.startsWith(each.product));
    });
    return found != chips.end() ? found : nullptr;
}
