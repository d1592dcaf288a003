#include "app/formatters/UpperCaseFormatter.h"

QString UpperCaseFormatter::stringForObjectValue(const QVariant& object) const {
    return object.typeId() == QMetaType::QString ? object.toString().toUpper() : QString();
}

bool UpperCaseFormatter::getObjectValue(QVariant* object, const QString& string, QString*) const {
    *object = string.toUpper();
    return true;
}

QValidator::State UpperCaseFormatter::validate(QString& input, int& position) const {
    if (!_onePass.isOwnReplacement(input)) {
        const auto edited = input;
        replace(input, position);
        _onePass.replaced(edited, input);
    }
    return Acceptable;
}
