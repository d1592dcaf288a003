// Any text, typed, pasted or dropped, changed at any moment while the keyer echoes: the engine goes
// on, and everything that it sends is a character or a command of the keyer's.

#include "fuzz/FuzzEngine.h"

#include <cstdlib>

namespace {

/// Each character is changed into the text at the place that the one before it names.
QString edited(QString text, char16_t place, char16_t what) {
    const auto at = text.isEmpty() ? 0 : place % (text.size() + 1);
    if (what % 7 == 0 && at < text.size()) {
        return text.remove(at, 1 + what % 5);
    }
    return text.insert(at, QChar(what));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    auto& fuzz = FuzzEngine::instance();
    fuzz.reset();
    const auto text =
        QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    fuzz.type(text);
    for (qsizetype i = 0; i + 1 < text.size() && i < 32; i += 2) {
        fuzz.type(edited(fuzz.engine().keyboardBuffer(), text[i].unicode(), text[i + 1].unicode()));
        fuzz.receive("E");
        if (fuzz.engine().outputBufferIndex() > fuzz.engine().keyboardBuffer().size()) {
            std::abort();
        }
    }
    return 0;
}
