#include "loggers/LoggerText.h"

#include "keyer/CharacterSet.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>

using namespace Qt::StringLiterals;

namespace {

constexpr CharacterSet sentAsTheyAre{"ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789 \"$'),./?@"};

/// What stands for something else than it does in the engine's text. "{" joins two letters.
struct Sign {
    char sign;
    QLatin1StringView text;
};

constexpr auto signs = std::to_array<Sign>({{'*', "+"_L1},
                                            {'=', "="_L1},
                                            {'<', ">"_L1},
                                            {'(', "("_L1},
                                            {'!', "{SN"_L1},
                                            {'&', "["_L1},
                                            {'>', "{BK"_L1},
                                            {':', "{OS"_L1},
                                            {';', "{KR"_L1},
                                            {'_', "{UK"_L1},
                                            {'\t', " "_L1},
                                            {'\n', " "_L1}});

constexpr char faster = '+';
constexpr char slower = '-';
constexpr char halfSpace = '~';

std::optional<QString> textOf(char byte) {
    const auto sign =
        std::find_if(signs.begin(), signs.end(), [byte](Sign each) { return each.sign == byte; });
    if (sign != signs.end()) {
        return QString(sign->text);
    }
    const auto character = QChar::fromLatin1(byte).toUpper();
    return sentAsTheyAre.characterIsMember(character) ? std::optional(QString(character))
                                                      : std::nullopt;
}

} // namespace

LoggerText LoggerText::read(QByteArrayView bytes) {
    LoggerText read;
    int halfSpaces = 0;
    const auto last = [&read]() -> Piece& { return read.pieces.back(); };
    for (const char byte : bytes) {
        const bool isAtBegin = !read.pieces.empty() && last().text.isEmpty();
        if (byte == faster || byte == slower) {
            if (!isAtBegin) {
                read.pieces.emplace_back();
            }
            last().speedSteps += byte == faster ? 1 : -1;
        } else if (byte == halfSpace) {
            ++halfSpaces;
        } else if (const auto text = textOf(byte)) {
            if (read.pieces.empty() || last().endsJoined) {
                read.pieces.emplace_back();
            }
            last().text += *text + QString(halfSpaces, u'|');
            last().endsJoined = text->startsWith(u'{');
            halfSpaces = 0;
        }
    }
    return read;
}
