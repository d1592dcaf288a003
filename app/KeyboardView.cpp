#include "app/KeyboardView.h"

#include "keyer/WinKeyerUsb.h"

#include <QScopedValueRollback>
#include <QTextCursor>

#include <algorithm>

KeyboardView::KeyboardView(QWidget* parent) : QPlainTextEdit(parent) {
    // Taking a change back would send again what the keyer has dropped, and the engine's changes
    // are not the operator's to take back.
    setUndoRedoEnabled(false);
    QObject::connect(this, &QPlainTextEdit::textChanged, this, &KeyboardView::takeOperatorsText);
}

void KeyboardView::setEngine(WinKeyerUsb& engine) {
    _engine = &engine;
    QObject::connect(_engine, &WinKeyerUsb::keyboardBufferChanged, this,
                     &KeyboardView::showEnginesText);
    showEnginesText();
}

void KeyboardView::takeOperatorsText() {
    if (_engine != nullptr && !_isShowingEnginesText) {
        _engine->setKeyboardBuffer(toPlainText());
        _engine->textDidChange();
    }
}

void KeyboardView::showEnginesText() {
    const auto shown = toPlainText();
    const auto wanted = _engine->keyboardBuffer();
    if (shown == wanted) {
        return;
    }
    // Only what differs is replaced, so that caret and selection stay with the text around it.
    const auto [shownEnd, wantedEnd] =
        std::mismatch(shown.begin(), shown.end(), wanted.begin(), wanted.end());
    const auto prefix = shownEnd - shown.begin();
    const auto shortest = std::min(shown.size(), wanted.size()) - prefix;
    const auto suffix =
        std::mismatch(shown.rbegin(), shown.rbegin() + shortest, wanted.rbegin()).first -
        shown.rbegin();

    const QScopedValueRollback guard(_isShowingEnginesText, true);
    QTextCursor cursor(document());
    cursor.setPosition(static_cast<int>(prefix));
    cursor.setPosition(static_cast<int>(shown.size() - suffix), QTextCursor::KeepAnchor);
    cursor.insertText(wanted.mid(prefix, wanted.size() - suffix - prefix));
}

void KeyboardView::focusInEvent(QFocusEvent* event) {
    QPlainTextEdit::focusInEvent(event);
    if (_engine != nullptr && _engine->textShouldBeginEditing(this)) {
        _engine->textDidBeginEditing(this);
    }
}

void KeyboardView::focusOutEvent(QFocusEvent* event) {
    if (_engine != nullptr && _engine->textShouldEndEditing(this)) {
        _engine->textDidEndEditing(this);
    }
    QPlainTextEdit::focusOutEvent(event);
}
