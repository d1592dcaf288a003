// What the operator does to the keyboard view: keys, input methods, the mouse, the clipboard.

#include "app/keyboard/Composition.h"
#include "app/keyboard/KeyboardView.h"
#include "app/keyboard/TypedKey.h"
#include "keyer/WinKeyerUsb.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QInputMethod>
#include <QInputMethodEvent>
#include <QMenu>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QTextCursor>

#include <algorithm>
#include <memory>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

QInputMethodEvent::Attribute underlined(qsizetype length) {
    QTextCharFormat format;
    format.setFontUnderline(true);
    return {QInputMethodEvent::TextFormat, 0, static_cast<int>(length), format};
}

/// What is kept of a long paste is laid out in one piece, and anew with each key.
QString inShort(const QString& text) {
    constexpr qsizetype shown = KeyboardText::longestParagraph / 2;
    return text.size() <= 2 * shown ? text : text.first(shown) + u" … "_s + text.last(shown);
}

} // namespace

/// Text that goes where the caret is, as if it had been composed there.
void KeyboardView::enter(const QString& text) {
    QInputMethodEvent event;
    event.setCommitString(text);
    inputMethodEvent(&event);
}

/// What is to go into the text at `place`, instead of its selection, of what was typed there.
QString KeyboardView::readied(const QString& typed, const QTextCursor& place) {
    const auto before = _text.characterAt(place.selectionStart() - 1);
    const auto after = _text.characterAt(place.selectionEnd());
    _kept.add(KeyboardText::inOneLine(typed, before, after));
    _isHoldingText =
        _kept.hasComplete() && (_isHoldingText || _heldElsewhere > 0 || isPaddleInUse());
    const auto complete = _isHoldingText ? QString() : releasedText();
    const bool isBehindMessage = place.selectionStart() == _messageEnd && after.isNull();
    if (isBehindMessage && before != u' ' && !complete.isEmpty() && !complete.startsWith(u' ')) {
        return u' ' + complete;
    }
    return complete;
}

bool KeyboardView::isPaddleInUse() const {
    return _engine.activity() == KeyerActivity::BreakIn;
}

/// A message brings the space ahead of it along.
QString KeyboardView::releasedText() {
    if (!_handedOverAhead) {
        return _kept.release();
    }
    auto text = _kept.release(std::exchange(*_handedOverAhead, 0)); // once
    while (text.endsWith(u' ')) {
        text.chop(1);
    }
    return text;
}

qsizetype KeyboardView::endHeldWord() {
    const auto end = _isHoldingText ? _kept.endWord() : 0;
    if (end > 0) {
        showKept();
    }
    return end;
}

void KeyboardView::putCallIntoHeldText(const QString& call) {
    if (_isHoldingText) {
        _kept.replace(u'~', call);
        showKept();
    }
}

void KeyboardView::handOverHeldText() {
    _isHoldingText = false;
    showKept();
}

void KeyboardView::handOverHeldText(qsizetype count) {
    {
        const QScopedValueRollback ahead(_handedOverAhead, std::optional(count));
        handOverHeldText();
    }
    _isHoldingText = _kept.hasComplete();
}

/// As being composed where the caret is. What an input method composes takes the place of the
/// selection, even when it is nothing.
void KeyboardView::showKept() {
    const QTextCursor selection = textCursor();
    auto caret = selection;
    caret.clearSelection();
    setTextCursor(caret);
    enter({});
    if (selection.hasSelection()) {
        setTextCursor(selection);
    }
}

bool KeyboardView::takeKeyOfKept(const QKeyEvent& event) {
    if (_kept.isEmpty() || event.key() != Qt::Key_Backspace || textCursor().hasSelection()) {
        return false;
    }
    _kept.eraseLast();
    showKept();
    return true;
}

/// Held text goes in where the caret is by then.
void KeyboardView::followCaretWithKept() {
    if (!_kept.isEmpty()) {
        showKept();
    }
}

void KeyboardView::dropMerge() {
    if (!_kept.isEmpty()) {
        _kept.dropMerge();
        showKept();
    }
}

void KeyboardView::dropHeldText() {
    if (!_kept.isEmpty()) {
        _kept.clear();
        _isHoldingText = false;
        showKept();
    }
}

void KeyboardView::keyPressEvent(QKeyEvent* event) {
    _scrollRest.noteUse();
    if (event->matches(QKeySequence::Undo)) {
        undoTyping();
    } else if (event->matches(QKeySequence::Redo)) {
        redoTyping();
    } else if (TypedKey::isText(*event) || TypedKey::isLineEnd(*event)) {
        enterKey(*event);
    } else if (takeKeyOfKept(*event)) {
        return;
    } else if (isCaretInSentText() && event->key() == Qt::Key_End && !event->modifiers()) {
        moveCursor(QTextCursor::End);
    } else {
        if (!TypedKey::isModifier(*event)) {
            dropMerge();
        }
        if (Composition::isDisturbedBy(*event) && Composition::isIn(*document())) {
            endComposition();
        }
        QPlainTextEdit::keyPressEvent(event);
        followCaretWithKept();
    }
}

/// A letter with Alt is a command, if one that nobody knows, and Return over a selection a slip.
void KeyboardView::enterKey(const QKeyEvent& event) {
    if ((event.modifiers() & TypedKey::commandKeys) != 0) {
        return;
    }
    if (!TypedKey::isLineEnd(event)) {
        enter(event.text());
    } else if (!textCursor().hasSelection()) {
        enter(u"\n"_s);
    }
}

/// What is kept back of a merge stands in front of what an input method composes.
void KeyboardView::inputMethodEvent(QInputMethodEvent* event) {
    _scrollRest.noteUse();
    auto complete = readied(event->commitString(), textCursor());
    const auto replaced = Composition::replacementAt(textCursor(), *event);
    const bool isInsertion = replaced.start == 0 && replaced.length == 0;
    if (complete.size() > KeyboardText::longestParagraph && isInsertion) {
        enterLong(std::exchange(complete, {}));
    }
    const auto kept = inShort(_kept.all());
    QList<QInputMethodEvent::Attribute> attributes;
    if (!kept.isEmpty()) {
        attributes.append(underlined(kept.size()));
    }
    for (auto attribute : event->attributes()) {
        const bool isOfText = attribute.type == QInputMethodEvent::Selection;
        attribute.start += isOfText ? 0 : static_cast<int>(kept.size());
        attributes.append(attribute);
    }
    QInputMethodEvent composed(kept + event->preeditString(), attributes);
    if (!complete.isEmpty()) {
        dropCurrentFormat();
    }
    composed.setCommitString(complete, replaced.start, replaced.length);
    QPlainTextEdit::inputMethodEvent(&composed);
    event->setAccepted(composed.isAccepted());
    Q_EMIT waitingCountChanged();
}

/// What is typed beside a sign has no call. Whatever is selected, which goes next, may lose with
/// its format what the end of a paragraph stands for.
void KeyboardView::dropCurrentFormat() {
    const QScopedValueRollback guard(_isChangingDocument, true);
    setCurrentCharFormat(QTextCharFormat());
}

/// Instead of the selection, by way of the engine: the document would take it for one paragraph,
/// and lay that out as a whole.
void KeyboardView::enterLong(const QString& text) {
    auto caret = textCursor();
    if (Composition::isAt(caret)) {
        Composition::removeFrom(*document()); // what is composed from now on follows the text
    }
    const auto before = _engine.keyboardBuffer();
    const auto begin = caret.selectionStart();
    const auto behind = before.size() - caret.selectionEnd();
    takeText(QString(before).replace(begin, before.size() - behind - begin, text));
    const auto end = std::max<qsizetype>(0, _engine.keyboardBuffer().size() - behind);
    caret.setPosition(static_cast<int>(end));
    setTextCursor(caret);
    ensureCursorVisible();
}

void KeyboardView::endComposition() {
    QGuiApplication::inputMethod()->commit();
    Composition::removeFrom(*document());
}

void KeyboardView::mousePressEvent(QMouseEvent* event) {
    _scrollRest.noteUse();
    dropMerge();
    QPlainTextEdit::mousePressEvent(event);
    followCaretWithKept();
}

/// The middle button would paste whatever was selected last on the desktop, and so key it. It is
/// the wheel, which is pressed by a slip when it is turned.
void KeyboardView::mouseReleaseEvent(QMouseEvent* event) {
    _scrollRest.noteUse();
    if (event->button() != Qt::MiddleButton) {
        QPlainTextEdit::mouseReleaseEvent(event);
    }
}

void KeyboardView::contextMenuEvent(QContextMenuEvent* event) {
    const std::unique_ptr<QMenu> menu(createStandardContextMenu(event->pos()));
    if (auto* undo = menu->findChild<QAction*>(u"edit-undo"_s)) {
        undo->disconnect();
        undo->setEnabled(canUndoTyping());
        QObject::connect(undo, &QAction::triggered, this, &KeyboardView::undoTyping);
    }
    if (auto* redo = menu->findChild<QAction*>(u"edit-redo"_s)) {
        redo->disconnect();
        redo->setEnabled(canRedoTyping());
        QObject::connect(redo, &QAction::triggered, this, &KeyboardView::redoTyping);
    }
    for (const auto& name : {u"edit-undo"_s, u"edit-redo"_s, u"edit-paste"_s}) {
        if (auto* action = menu->findChild<QAction*>(name)) {
            action->setProperty("sends", true);
        }
    }
    menu->exec(event->globalPos());
    _scrollRest.noteUse();
}

QMimeData* KeyboardView::createMimeDataFromSelection() const {
    auto plain = std::make_unique<QMimeData>();
    const auto selection = textCursor();
    const auto begin = selection.selectionStart();
    plain->setText(text().mid(begin, selection.selectionEnd() - begin));
    return plain.release();
}

// The base class counts a composition as text when it looks for the place under the mouse, too.
bool KeyboardView::canInsertFromMimeData(const QMimeData* source) const {
    return source->hasText() && !Composition::isIn(*document());
}

void KeyboardView::insertFromMimeData(const QMimeData* source) {
    if (!source->hasText()) {
        return; // a pasted picture leaves even the selection alone
    }
    if (!_isDropping) {
        enter(source->text());
        return;
    }
    auto caret = textCursor();
    caret.insertText(readied(source->text(), caret), QTextCharFormat());
}

// A drop is one edit of the document, whose lines are laid out anew only when it is over. Until
// then no place may be looked for in them; the base class shows the caret afterwards.
void KeyboardView::dropEvent(QDropEvent* event) {
    {
        const QScopedValueRollback guard(_isDropping, true);
        QPlainTextEdit::dropEvent(event);
    }
    followCaretWithKept();
}

void KeyboardView::focusInEvent(QFocusEvent* event) {
    QPlainTextEdit::focusInEvent(event);
    if (_engine.textShouldBeginEditing(this)) {
        _engine.textDidBeginEditing(this);
    }
    followCaret();
}

void KeyboardView::focusOutEvent(QFocusEvent* event) {
    if (_engine.textShouldEndEditing(this)) {
        _engine.textDidEndEditing(this);
    }
    QPlainTextEdit::focusOutEvent(event);
    followCaret();
}
