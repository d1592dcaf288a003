// Any bytes from the keyer, in any chunks, while text waits: the engine goes on, sends no more
// characters than there are, and knows its place in the text.

#include "fuzz/FuzzEngine.h"

#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

void check(WinKeyerUsb& engine) {
    const auto length = engine.keyboardBuffer().size();
    if (engine.outputBufferIndex() < 0 || engine.outputBufferIndex() > length ||
        engine.inFlightIndex() < 0 || engine.inFlightIndex() > engine.outputBufferIndex()) {
        std::abort();
    }
}

} // namespace

/// The first byte says how long each chunk is.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 2) {
        return 0;
    }
    auto& fuzz = FuzzEngine::instance();
    fuzz.reset();
    fuzz.type(u"CQ DE ` ~ K"_s);
    const QByteArray bytes(reinterpret_cast<const char*>(data + 1),
                           static_cast<qsizetype>(size - 1));
    const qsizetype chunk = 1 + data[0] % 8;
    for (qsizetype at = 0; at < bytes.size(); at += chunk) {
        fuzz.receive(bytes.mid(at, chunk));
        check(fuzz.engine());
    }
    return 0;
}
