#include "formatters/UpperCaseFormatter.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>

#include <algorithm>
#include <limits>
#include <utility>

namespace {

/// What an edit has put in, and how much it has taken out for it.
struct Edit {
    QString entered;
    qsizetype removed;
};

Edit editBetween(const QString& before, const QString& after) {
    const auto shorter = std::min(before.size(), after.size());
    qsizetype front = 0;
    while (front < shorter && before.at(front) == after.at(front)) {
        ++front;
    }
    qsizetype back = 0;
    while (back < shorter - front &&
           before.at(before.size() - 1 - back) == after.at(after.size() - 1 - back)) {
        ++back;
    }
    return {after.mid(front, after.size() - front - back), before.size() - front - back};
}

} // namespace

UpperCaseFormatter::UpperCaseFormatter(QLineEdit* field) : QValidator(field), _field(field) {
    if (field == nullptr) {
        return;
    }
    field->setMaxLength(std::numeric_limits<int>::max());
    field->installEventFilter(this);
    _text = field->text();
    _hadSelection = field->hasSelectedText();
    connect(field, &QLineEdit::textChanged, this, [this](const QString& text) { _text = text; });
    connect(field, &QLineEdit::selectionChanged, this,
            [this] { _hadSelection = _field->hasSelectedText(); });
}

QString UpperCaseFormatter::stringForObjectValue(const QVariant& object) const {
    return object.typeId() == QMetaType::QString ? object.toString().toUpper() : QString();
}

bool UpperCaseFormatter::getObjectValue(QVariant* object, const QString& string, QString*) const {
    *object = string.toUpper();
    return true;
}

QValidator::State UpperCaseFormatter::validate(QString& input, int& position) const {
    const bool isOwnReplacement = std::exchange(_replacement, std::nullopt) == input;
    if (isOwnReplacement || !isEdit(input)) {
        return Acceptable;
    }
    const auto edited = input;
    replace(input, position);
    if (isTakenBackOnRefusal() && changesNothing(edited, input)) {
        return Invalid;
    }
    if (input != edited) {
        _replacement = input;
    }
    return Acceptable;
}

/// A field also asks when Return is pressed and when it is left. An edit may bring the same text
/// again, in place of what was selected.
bool UpperCaseFormatter::isEdit(const QString& input) const {
    return _field == nullptr || input != _text || _field->hasSelectedText() != _hadSelection;
}

/// Whether all that was entered is refused, and there is nothing else that a pass would do.
bool UpperCaseFormatter::changesNothing(const QString& edited, const QString& replacement) const {
    auto [entered, removed] = editBetween(_text, edited);
    if (entered.isEmpty()) {
        return false;
    }
    int position = 0;
    replace(entered, position);
    return entered.isEmpty() && (removed > 0 || replacement == _text);
}

/// A field takes back what was just entered, but neither a text that was set as a whole, which
/// leaves nothing to be undone, nor what was itself undone.
bool UpperCaseFormatter::isTakenBackOnRefusal() const {
    return _field != nullptr && _field->isUndoAvailable() && !_field->isRedoAvailable();
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
