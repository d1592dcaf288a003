// Any bytes as the keyer's memory: decoding a message from anywhere in them ends, stays within
// bounds, and gives a text that encodes and decodes to itself.

#include "keyer/KeyerMemory.h"
#include "keyer/WinKeyerUsb.h"

#include <algorithm>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) {
        return 0;
    }
    KeyerMemory::Image image{};
    std::copy_n(data + 1, std::min(size - 1, image.size()), image.begin());
    const auto text = WinKeyerUsb::decodeMessage(image, data[0]);
    if (text.size() > KeyerMemory::messageAreaSize) {
        std::abort();
    }
    // A dollar sign inside would end the second decoding early, having the end mark of itself.
    const auto whole = text.left(text.indexOf(u'$') + 1);
    const auto& expected = whole.isEmpty() ? text : whole;
    KeyerMemory::Image again{};
    const auto start = static_cast<std::uint8_t>(KeyerMemory::Offset::messages);
    if (!WinKeyerUsb::encodeMessage(expected, start, again) ||
        WinKeyerUsb::decodeMessage(again, start) != expected) {
        std::abort();
    }
    return 0;
}
