#include "platform/SettingsText.h"

#include <algorithm>

namespace {

bool isLineEnd(char character) {
    return character == '\n' || character == '\r';
}

/// Whether a quotation mark is open at the end of the line. A semicolon outside quotation marks
/// begins a comment; a backslash takes the meaning off what follows it.
bool leavesQuoteOpen(QByteArrayView line) {
    bool isOpen = false;
    for (qsizetype i = 0; i < line.size(); ++i) {
        const char character = line.at(i);
        if (character == '\\') {
            ++i;
        } else if (character == '"') {
            isOpen = !isOpen;
        } else if (character == ';' && !isOpen) {
            break;
        }
    }
    return isOpen;
}

} // namespace

std::optional<QByteArray> SettingsText::withoutOpenQuotes(const QByteArray& text) {
    QByteArray sound;
    for (qsizetype start = 0; start < text.size();) {
        const auto* const end = std::find_if(text.begin() + start, text.end(), isLineEnd);
        const qsizetype length = std::min<qsizetype>(end - text.begin() + 1, text.size()) - start;
        const auto line = QByteArrayView(text).sliced(start, length);
        if (!leavesQuoteOpen(line)) {
            sound += line;
        }
        start += length;
    }
    return sound.size() == text.size() ? std::nullopt : std::optional(sound);
}
