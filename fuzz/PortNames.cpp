// Any names of links: what is shown of one holds nothing that nobody sees, and says the same again;
// two names have one order, whichever is asked about first.

#include "platform/VisibleText.h"
#include "platform/linux/DeviceNaming.h"

#include <algorithm>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto text =
        QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const auto shown = visibleText(text);
    const auto characters = shown.toUcs4();
    const bool hasUnseen = std::any_of(characters.begin(), characters.end(), [](char32_t each) {
        return QChar::category(each) == QChar::Other_Format ||
               QChar::category(each) == QChar::Other_Control;
    });
    if (hasUnseen || visibleText(shown) != shown) {
        std::abort();
    }
    const auto first = shown.left(shown.size() / 2);
    const auto second = shown.mid(shown.size() / 2);
    if (DeviceNaming::comesNaturallyBefore(first, second) &&
        DeviceNaming::comesNaturallyBefore(second, first)) {
        std::abort();
    }
    return 0;
}
