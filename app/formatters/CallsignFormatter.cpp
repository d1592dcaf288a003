#include "app/formatters/CallsignFormatter.h"

#include "keyer/CharacterSet.h"

#include <algorithm>

namespace {

constexpr CharacterSet callsignCharacters{
    "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz/"};

/// The character after a deleted one is not looked at: the next edit sees to it.
QString replacementFor(const QString& text) {
    QString replacement = text.toUpper();
    for (qsizetype i = 0; i < replacement.size(); ++i) {
        if (!callsignCharacters.characterIsMember(replacement.at(i))) {
            replacement.remove(i, 1);
        }
    }
    return replacement;
}

} // namespace

QString CallsignFormatter::stringForObjectValue(const QVariant& object) const {
    return object.typeId() == QMetaType::QString ? object.toString().toUpper() : QString();
}

bool CallsignFormatter::getObjectValue(QVariant* object, const QString& string, QString*) const {
    *object = string.toUpper();
    return true;
}

bool CallsignFormatter::isPartialStringValid(const QString& partialString, QString* newString,
                                             QString*) const {
    *newString = replacementFor(partialString);
    return false;
}

QValidator::State CallsignFormatter::validate(QString& input, int& position) const {
    if (_onePass.isOwnReplacement(input)) {
        return Acceptable;
    }
    const auto typed = input;
    const auto behind = replacementFor(input.mid(position));
    isPartialStringValid(typed, &input, nullptr);
    position = static_cast<int>(std::max<qsizetype>(input.size() - behind.size(), 0));
    _onePass.replaced(typed, input);
    return Acceptable;
}
