#include "platform/VisibleText.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

struct Range {
    char32_t first;
    char32_t last;
};

/// Letters and marks that have no width and no look: joiners, fillers, selectors of a variant.
constexpr std::array<Range, 9> unseen{{{0x034F, 0x034F},
                                       {0x115F, 0x1160},
                                       {0x17B4, 0x17B5},
                                       {0x180B, 0x180F},
                                       {0x2800, 0x2800},
                                       {0x3164, 0x3164},
                                       {0xFE00, 0xFE0F},
                                       {0xFFA0, 0xFFA0},
                                       {0xE0000, 0xE0FFF}}};

bool isUnseen(char32_t character) {
    switch (QChar::category(character)) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    default:
        return std::ranges::any_of(unseen, [character](const Range& each) {
            return character >= each.first && character <= each.last;
        });
    }
}

} // namespace

QString visibleText(const QString& text) {
    QString shown;
    for (const char32_t character : text.toUcs4()) {
        shown += isUnseen(character)
                     ? u"\\u%1"_s.arg(static_cast<uint>(character), 4, 16, QChar(u'0'))
                     : QString::fromUcs4(&character, 1);
    }
    return shown;
}
