#include "platform/linux/DeviceNaming.h"

#include <QCollator>

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

namespace DeviceNaming {

QString freeSuffix(const SerialDevice& device, const QSet<QString>& taken) {
    const auto found =
        std::find_if(device.suffixes.begin(), device.suffixes.end(), [&](const QString& suffix) {
            return !taken.contains(device.baseName + suffix);
        });
    return found != device.suffixes.end() ? *found : device.suffixes.constLast();
}

bool comesNaturallyBefore(const QString& first, const QString& second) {
    // Of one language for everybody: the list has the same order on every desktop. The C locale
    // would do, but knows no numbers.
    static const auto collator = [] {
        QCollator natural{QLocale(QLocale::English)};
        natural.setNumericMode(true);
        return natural;
    }();
    const auto order = collator.compare(first, second);
    // "a01" and "a1" are equal up to here; something must still tell them apart.
    return order != 0 ? order < 0 : first < second;
}

bool isPresentable(const QString& name) {
    return std::none_of(name.begin(), name.end(),
                        [](QChar each) { return each.category() == QChar::Other_Control; });
}

QString visible(const QString& name) {
    QString shown;
    for (const char32_t character : name.toUcs4()) {
        shown += isUnseen(character)
                     ? u"\\u%1"_s.arg(static_cast<uint>(character), 4, 16, QChar(u'0'))
                     : QString::fromUcs4(&character, 1);
    }
    return shown;
}

} // namespace DeviceNaming
