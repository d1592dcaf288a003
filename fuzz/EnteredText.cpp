// Any text, pasted or dropped at once or typed character by character, with slips taken back: one
// line of it is entered, and nothing is let go of that begins to join two letters and does not.

#include "app/keyboard/KeptText.h"
#include "app/keyboard/KeyboardText.h"

#include <algorithm>
#include <cstdlib>

namespace {

void check(bool holds) {
    if (!holds) {
        std::abort();
    }
}

void checkLine(const QString& line) {
    for (const auto end : u"\t\n\v\f\r\u0085\u2028\u2029") {
        check(end == u'\0' || !line.contains(end));
    }
}

/// Of what is complete: behind each sign are the two letters that it joins.
void checkMerges(const QString& text) {
    for (auto sign = text.indexOf(u'{'); sign >= 0; sign = text.indexOf(u'{', sign + 3)) {
        check(sign + 2 < text.size());
        check(!text.mid(sign + 1, 2).contains(u'{') && !text.mid(sign + 1, 2).contains(u' '));
    }
}

} // namespace

/// The first byte says how the text comes, the two next what stands on both sides of its place.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr std::size_t head = 3;
    if (size < head) {
        return 0;
    }
    const auto text = QString::fromUtf8(reinterpret_cast<const char*>(data + head),
                                        static_cast<qsizetype>(size - head));
    const QChar before(char16_t{data[1]});
    const QChar after(char16_t{data[2]});
    const auto line = KeyboardText::inOneLine(text, before, after);
    checkLine(line);
    check(line.size() <= text.size());
    check(KeyboardText::inOneLine(line, before, after) == line);
    KeptText kept;
    QString entered;
    const qsizetype step = data[0] % 2 == 0 ? std::max<qsizetype>(line.size(), 1) : 1;
    for (qsizetype at = 0; at < line.size(); at += step) {
        kept.add(line.mid(at, step));
        if (line[at] == u'<') {
            kept.eraseLast();
        } else if (line[at] == u'>') {
            kept.dropMerge();
        }
        if (data[0] % 4 < 2) {
            entered += kept.release();
        }
    }
    entered += kept.release();
    check(!kept.hasComplete());
    checkMerges(entered);
    return 0;
}
