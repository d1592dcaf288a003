#include "formatters/UpperCaseFormatter.h"

#include <QCoreApplication>
#include <QKeyEvent>

UpperCaseFormatter::UpperCaseFormatter(QObject* field) : QValidator(field) {
    if (field != nullptr) {
        field->installEventFilter(this);
    }
}

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

bool UpperCaseFormatter::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress) {
        return QValidator::eventFilter(watched, event);
    }
    const auto* typed = static_cast<QKeyEvent*>(event);
    const auto upper = typed->text().toUpper();
    if (upper == typed->text()) {
        return false;
    }
    QKeyEvent replacement(QEvent::KeyPress, typed->key(), typed->modifiers(), upper,
                          typed->isAutoRepeat());
    QCoreApplication::sendEvent(watched, &replacement);
    event->setAccepted(replacement.isAccepted());
    return true;
}
