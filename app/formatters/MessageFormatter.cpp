#include "app/formatters/MessageFormatter.h"

#include "keyer/WinKeyerUsb.h"

#include <algorithm>

QString MessageFormatter::stringForObjectValue(const QVariant& object) const {
    return object.typeId() == QMetaType::QString ? object.toString().toUpper() : QString();
}

bool MessageFormatter::getObjectValue(QVariant* object, const QString& string, QString*) const {
    *object = string.toUpper();
    return true;
}

bool MessageFormatter::isPartialStringValid(QString* partialString,
                                            TextRange* proposedSelectedRange, const QString&,
                                            TextRange originalSelectedRange, QString*) const {
    *partialString = partialString->toUpper();
    const auto forbidden =
        std::find_if_not(partialString->cbegin(), partialString->cend(), [](QChar each) {
            return WinKeyerUsb::morseKeyboardCharacterSet().characterIsMember(each);
        });
    if (forbidden != partialString->cend()) {
        partialString->remove(forbidden - partialString->cbegin(), 1);
        *proposedSelectedRange = {std::max<qsizetype>(proposedSelectedRange->location - 1, 0),
                                  originalSelectedRange.length};
    }
    return false;
}

QValidator::State MessageFormatter::validate(QString& input, int& position) const {
    if (_onePass.isOwnReplacement(input)) {
        return Acceptable;
    }
    const auto typed = input;
    TextRange proposed{position, 0};
    isPartialStringValid(&input, &proposed, {}, {}, nullptr);
    position = static_cast<int>(std::min(proposed.location, input.size()));
    _onePass.replaced(typed, input);
    return Acceptable;
}
