#include "app/keyboard/KeyboardViewAccessible.h"

#include "app/keyboard/KeyboardView.h"

#include <QTextCursor>

#include <algorithm>
#include <memory>

namespace {

QAccessibleInterface* makeInterface(const QString& className, QObject* object) {
    if (className != QLatin1StringView(KeyboardView::staticMetaObject.className())) {
        return nullptr;
    }
    auto* view = qobject_cast<KeyboardView*>(object);
    return view == nullptr ? nullptr : std::make_unique<KeyboardViewAccessible>(*view).release();
}

} // namespace

KeyboardViewAccessible::KeyboardViewAccessible(KeyboardView& view)
    : QAccessibleWidget(&view, QAccessible::EditableText), _view(view) {}

void KeyboardViewAccessible::install() {
    QAccessible::installFactory(makeInterface);
}

void* KeyboardViewAccessible::interface_cast(QAccessible::InterfaceType type) {
    switch (type) {
    case QAccessible::TextInterface:
        return static_cast<QAccessibleTextInterface*>(this);
    case QAccessible::EditableTextInterface:
        return static_cast<QAccessibleEditableTextInterface*>(this);
    default:
        return QAccessibleWidget::interface_cast(type);
    }
}

QAccessible::State KeyboardViewAccessible::state() const {
    auto state = QAccessibleWidget::state();
    state.editable = true;
    state.multiLine = true;
    state.selectableText = true;
    return state;
}

QString KeyboardViewAccessible::text(QAccessible::Text kind) const {
    switch (kind) {
    case QAccessible::Value:
        return _view.text();
    case QAccessible::Description: {
        if (!_view.isLinked()) {
            return tr("Not connected: nothing is sent");
        }
        const auto waiting = static_cast<int>(_view.waitingCount());
        return waiting == 0 ? tr("Nothing waits to be sent")
                            : tr("Characters still to be sent: %1").arg(waiting);
    }
    default:
        return QAccessibleWidget::text(kind);
    }
}

void KeyboardViewAccessible::setText(QAccessible::Text kind, const QString& text) {
    if (kind == QAccessible::Value) {
        _view.replaceText(0, characterCount(), text);
    } else {
        QAccessibleWidget::setText(kind, text);
    }
}

int KeyboardViewAccessible::bounded(int position) const {
    return std::clamp(position, 0, characterCount());
}

void KeyboardViewAccessible::select(int start, int end) {
    auto cursor = _view.textCursor();
    cursor.setPosition(bounded(start));
    cursor.setPosition(bounded(end), QTextCursor::KeepAnchor);
    _view.setTextCursor(cursor);
}

void KeyboardViewAccessible::selection(int index, int* start, int* end) const {
    const auto cursor = _view.textCursor();
    const bool isThere = index == 0 && cursor.hasSelection();
    *start = isThere ? cursor.selectionStart() : 0;
    *end = isThere ? cursor.selectionEnd() : 0;
}

int KeyboardViewAccessible::selectionCount() const {
    return _view.textCursor().hasSelection() ? 1 : 0;
}

void KeyboardViewAccessible::addSelection(int start, int end) {
    select(start, end);
}

void KeyboardViewAccessible::removeSelection(int index) {
    if (index == 0) {
        setCursorPosition(cursorPosition());
    }
}

void KeyboardViewAccessible::setSelection(int index, int start, int end) {
    if (index == 0) {
        select(start, end);
    }
}

int KeyboardViewAccessible::cursorPosition() const {
    return _view.textCursor().position();
}

void KeyboardViewAccessible::setCursorPosition(int position) {
    select(position, position);
}

QString KeyboardViewAccessible::text(int start, int end) const {
    return _view.text().mid(bounded(start), std::max(0, bounded(end) - bounded(start)));
}

int KeyboardViewAccessible::characterCount() const {
    return _view.document()->characterCount() - 1;
}

QRect KeyboardViewAccessible::characterRect(int offset) const {
    auto cursor = _view.textCursor();
    cursor.setPosition(bounded(offset));
    auto rect = _view.cursorRect(cursor);
    cursor.setPosition(bounded(offset + 1));
    const auto next = _view.cursorRect(cursor);
    if (next.top() == rect.top()) {
        rect.setRight(std::max(rect.left(), next.left()));
    }
    return rect.translated(_view.viewport()->mapToGlobal(QPoint(0, 0)));
}

int KeyboardViewAccessible::offsetAtPoint(const QPoint& point) const {
    return _view.cursorForPosition(_view.viewport()->mapFromGlobal(point)).position();
}

void KeyboardViewAccessible::scrollToSubstring(int start, int end) {
    const auto before = _view.textCursor();
    select(start, end);
    _view.ensureCursorVisible();
    _view.setTextCursor(before);
}

QString KeyboardViewAccessible::attributes(int, int* start, int* end) const {
    *start = 0;
    *end = characterCount();
    return {};
}

void KeyboardViewAccessible::deleteText(int start, int end) {
    replaceText(start, end, {});
}

void KeyboardViewAccessible::insertText(int offset, const QString& text) {
    replaceText(offset, offset, text);
}

void KeyboardViewAccessible::replaceText(int start, int end, const QString& text) {
    _view.replaceText(bounded(start), bounded(end), text);
}
