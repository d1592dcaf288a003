// Any bytes as a settings file: what is left when the lines with an open quotation mark are gone
// has none, and is made of whole lines of the file.

#include "platform/SettingsText.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray text(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const auto sound = SettingsText::withoutOpenQuotes(text);
    if (sound && (sound->size() >= text.size() || SettingsText::withoutOpenQuotes(*sound))) {
        std::abort();
    }
    return 0;
}
