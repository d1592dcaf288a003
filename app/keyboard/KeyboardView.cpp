#include "app/keyboard/KeyboardView.h"

#include "app/keyboard/Composition.h"
#include "app/keyboard/KeyboardViewAccessible.h"
#include "app/keyboard/TypedKey.h"
#include "keyer/WinKeyerUsb.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QInputMethod>
#include <QInputMethodEvent>
#include <QMenu>
#include <QMimeData>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextCursor>

#include <algorithm>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

QInputMethodEvent::Attribute underlined(qsizetype length) {
    QTextCharFormat format;
    format.setFontUnderline(true);
    return {QInputMethodEvent::TextFormat, 0, static_cast<int>(length), format};
}

} // namespace

KeyboardView::KeyboardView(QWidget* parent)
    : QPlainTextEdit(parent), _text(*document()), _scrollRest(this) {
    // The document knows nothing of what has been sent, and its own undo would key text twice.
    setUndoRedoEnabled(false);
    setTabChangesFocus(true);
    KeyboardViewAccessible::install();
    QObject::connect(this, &QPlainTextEdit::textChanged, this, &KeyboardView::takeOperatorsText);
    QObject::connect(this, &QPlainTextEdit::cursorPositionChanged, this,
                     &KeyboardView::followCaret);
    QObject::connect(this, &QPlainTextEdit::selectionChanged, this, &KeyboardView::followCaret);
    // The wheel moves the scroll bar, too.
    QObject::connect(verticalScrollBar(), &QScrollBar::actionTriggered, &_scrollRest,
                     &ScrollRest::noteUse);
    QObject::connect(&_scrollRest, &ScrollRest::over, this, &KeyboardView::followSending);
}

void KeyboardView::setEngine(WinKeyerUsb& engine) {
    _engine = &engine;
    QObject::connect(_engine, &WinKeyerUsb::keyboardBufferChanged, this,
                     &KeyboardView::showEnginesText);
    QObject::connect(_engine, &WinKeyerUsb::sendingProgressed, this, &KeyboardView::takeProgress);
    QObject::connect(_engine, &WinKeyerUsb::messageSendingStopped, this, &KeyboardView::dropMerge);
    showChange(TextChange::between(text(), _engine->keyboardBuffer()));
    showProgress();
}

// The operator's changes.

void KeyboardView::takeOperatorsText() {
    if (_engine == nullptr || _isChangingDocument) {
        return;
    }
    const auto before = _engine->keyboardBuffer();
    const auto typed = text();
    if (typed == before) {
        return; // a composition goes on, and is no text yet
    }
    const auto handedOver = _engine->outputBufferIndex();
    giveToEngine(typed);
    breakParagraphs();
    const auto change = TextChange::between(before, _engine->keyboardBuffer());
    if (!change.isEmpty()) {
        const auto isTyped =
            change.removed.size() + change.inserted.size() == 1 || isBeginOfWord(change);
        if (!change.removed.isEmpty() && change.position <= _messageEnd) {
            _messageEnd = -1; // who takes out the space wants none
        }
        _history.record(change, handedOver,
                        isTyped ? EditHistory::Kind::Typed : EditHistory::Kind::Whole);
    }
    showProgress();
}

void KeyboardView::giveToEngine(const QString& text) {
    const QScopedValueRollback guard(_isEngineTakingText, true);
    _engine->setKeyboardBuffer(text);
    _engine->textDidChange();
}

/// The space that was put behind a message, and the first character of the word.
bool KeyboardView::isBeginOfWord(const TextChange& change) const {
    return change.removed.isEmpty() && change.position == _messageEnd &&
           change.inserted.size() == 2;
}

void KeyboardView::replaceText(qsizetype begin, qsizetype end, const QString& text) {
    dropMerge();
    QTextCursor cursor(document());
    cursor.setPosition(static_cast<int>(begin));
    cursor.setPosition(static_cast<int>(end), QTextCursor::KeepAnchor);
    cursor.insertText(readied(text, cursor));
    if (_merge.isBegun()) {
        setTextCursor(cursor);
        enter({});
    }
}

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
    const auto complete = _merge.take(KeyboardText::inOneLine(typed, before, after));
    const bool isBehindMessage = place.selectionStart() == _messageEnd && after.isNull();
    if (isBehindMessage && before != u' ' && !complete.isEmpty() && !complete.startsWith(u' ')) {
        return u' ' + complete;
    }
    return complete;
}

bool KeyboardView::takeKeyOfMerge(const QKeyEvent& event) {
    if (!_merge.isBegun() || TypedKey::isModifier(event)) {
        return false;
    }
    if (event.key() == Qt::Key_Backspace) {
        _merge.eraseLast();
        enter({});
        return true;
    }
    dropMerge();
    return false;
}

void KeyboardView::dropMerge() {
    if (!_merge.isBegun()) {
        return;
    }
    _merge.clear();
    // What an input method enters takes the place of the selection, even when it is nothing.
    const QTextCursor selection = textCursor();
    auto caret = selection;
    caret.clearSelection();
    setTextCursor(caret);
    enter({});
    setTextCursor(selection);
}

void KeyboardView::undoTyping() {
    if (_merge.isBegun()) {
        dropMerge();
        return;
    }
    travel(_history.undo());
}

void KeyboardView::redoTyping() {
    travel(_history.redo());
}

void KeyboardView::travel(const std::optional<TextChange>& change) {
    if (!change) {
        return;
    }
    const auto wanted = change->appliedTo(_engine->keyboardBuffer());
    giveToEngine(wanted);
    if (_engine->keyboardBuffer() != wanted) {
        // The engine let something else pass this time; the other changes do not fit any more.
        _history.clear();
    }
    showProgress();
    auto caret = textCursor();
    const auto end = change->position + change->inserted.size();
    caret.setPosition(static_cast<int>(std::min(end, _engine->keyboardBuffer().size())));
    setTextCursor(caret);
    ensureCursorVisible();
}

void KeyboardView::announceHistory() {
    if (_couldUndo != canUndoTyping()) {
        _couldUndo = canUndoTyping();
        Q_EMIT canUndoTypingChanged(_couldUndo);
    }
    if (_couldRedo != canRedoTyping()) {
        _couldRedo = canRedoTyping();
        Q_EMIT canRedoTypingChanged(_couldRedo);
    }
}

// The engine's changes.

void KeyboardView::showEnginesText() {
    const auto change = TextChange::between(text(), _engine->keyboardBuffer());
    if (change.isEmpty()) {
        return;
    }
    if (!_isEngineTakingText) {
        _history.record(change, _engine->outputBufferIndex(), EditHistory::Kind::Whole);
        noteMessage(change);
    }
    showChange(change);
    if (text().isEmpty() && !_isEngineTakingText) {
        dropMerge(); // broken in on, as the text was
    }
}

void KeyboardView::noteMessage(const TextChange& change) {
    const auto end = change.position + change.inserted.size();
    const bool isAdded = change.removed.isEmpty() && end == _engine->keyboardBuffer().size();
    _messageEnd = isAdded ? end : -1;
}

void KeyboardView::showChange(const TextChange& change) {
    const auto before = textCursor();
    const auto begin = static_cast<int>(change.movedStart(before.selectionStart()));
    const auto end = static_cast<int>(change.movedEnd(before.selectionEnd()));
    const auto isReversed = before.position() < before.anchor();

    const QScopedValueRollback guard(_isChangingDocument, true);
    const Composition composition(before);
    _text.apply(change);
    if (before.hasSelection()) {
        keepSelection(begin, std::max(begin, end), isReversed);
    }
    composition.putAt(textCursor());
}

void KeyboardView::breakParagraphs() {
    const QScopedValueRollback guard(_isChangingDocument, true);
    const Composition composition(textCursor());
    _text.breakParagraphs();
    composition.putAt(textCursor());
}

void KeyboardView::keepSelection(int begin, int end, bool isReversed) {
    auto selection = textCursor();
    if (selection.selectionStart() == begin && selection.selectionEnd() == end) {
        return;
    }
    selection.setPosition(isReversed ? end : begin);
    selection.setPosition(isReversed ? begin : end, QTextCursor::KeepAnchor);
    setTextCursor(selection);
}

// How far the sending is.

SendingMarks::State KeyboardView::sendingState() const {
    return {_engine->inFlightIndex(), _engine->outputBufferIndex()};
}

qsizetype KeyboardView::waitingCount() const {
    return _engine == nullptr ? 0 : _engine->keyboardBuffer().size() - _engine->inFlightIndex();
}

void KeyboardView::takeProgress() {
    if (_isEngineTakingText) {
        return; // there is more to come
    }
    if (_engine->keyboardBuffer().isEmpty()) {
        _history.clear(); // stopped, or broken in on
    }
    showProgress();
}

void KeyboardView::showProgress() {
    _history.handOver(_engine->outputBufferIndex());
    announceHistory();
    if (_shownState != sendingState()) {
        _shownState = sendingState();
        viewport()->update();
    }
    followCaret();
    followSending();
    Q_EMIT waitingCountChanged();
}

/// The caret is a block where typing has the keyer send again what it has been given.
void KeyboardView::followCaret() {
    const bool isInSentText =
        _engine != nullptr && textCursor().selectionStart() < _engine->outputBufferIndex();
    if (_isCaretInSentText == isInSentText) {
        return;
    }
    _isCaretInSentText = isInSentText;
    const auto line = style()->pixelMetric(QStyle::PM_TextCursorWidth, nullptr, this);
    setCursorWidth(isInSentText ? std::max(2 * line, fontMetrics().averageCharWidth()) : line);
    Q_EMIT caretInSentTextChanged();
}

bool KeyboardView::isInUse() const {
    return textCursor().hasSelection() || Composition::isAt(textCursor()) || !_scrollRest.isOver();
}

void KeyboardView::followSending() {
    if (_engine == nullptr || isInUse()) {
        return;
    }
    const auto line = lineOf(static_cast<int>(_engine->inFlightIndex()));
    auto* bar = verticalScrollBar();
    if (line < bar->value() || line >= bar->value() + linesInSight()) {
        bar->setValue(line - linesInSight() / 3);
    }
}

int KeyboardView::linesInSight() const {
    return std::max(1, viewport()->height() / fontMetrics().lineSpacing());
}

int KeyboardView::lineOf(int position) const {
    // What is not laid out yet counts as one line a paragraph. So that the number holds for
    // scrolling there, the lines in sight before it must be laid out too.
    const auto target = document()->findBlock(position);
    int laidOut = 0;
    for (auto block = target; block.isValid() && laidOut <= linesInSight();
         block = block.previous()) {
        static_cast<void>(blockBoundingRect(block));
        laidOut += block == target ? 0 : block.lineCount();
    }
    const auto line = target.layout()->lineForTextPosition(position - target.position());
    return target.firstLineNumber() + (line.isValid() ? line.lineNumber() : 0);
}

void KeyboardView::paintEvent(QPaintEvent* event) {
    QPlainTextEdit::paintEvent(event);
    if (_engine == nullptr) {
        return;
    }
    auto colors = palette();
    colors.setCurrentColorGroup(hasFocus() ? QPalette::Active : QPalette::Inactive);
    const auto cursor = textCursor();
    const SendingMarks marks(_shownState, {cursor.selectionStart(), cursor.selectionEnd()}, colors,
                             event->rect());
    QPainter painter(viewport());
    painter.setClipRegion(event->region());
    for (auto block = firstVisibleBlock(); block.isValid(); block = block.next()) {
        const auto geometry = blockBoundingGeometry(block).translated(contentOffset());
        if (geometry.top() > event->rect().bottom()) {
            break;
        }
        marks.paint(painter, {block, geometry.topLeft()});
    }
}

// What the view is used by.

void KeyboardView::keyPressEvent(QKeyEvent* event) {
    _scrollRest.noteUse();
    if (event->matches(QKeySequence::Undo)) {
        undoTyping();
    } else if (event->matches(QKeySequence::Redo)) {
        redoTyping();
    } else if (TypedKey::isText(*event) || TypedKey::isLineEnd(*event)) {
        enterKey(*event);
    } else if (takeKeyOfMerge(*event)) {
        return;
    } else if (isCaretInSentText() && event->key() == Qt::Key_End && !event->modifiers()) {
        moveCursor(QTextCursor::End);
    } else {
        if (Composition::isDisturbedBy(*event) && Composition::isIn(*document())) {
            endComposition();
        }
        QPlainTextEdit::keyPressEvent(event);
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
    const auto complete = readied(event->commitString(), textCursor());
    const auto kept = _merge.kept();
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
    const auto replaced = Composition::replacementAt(textCursor(), *event);
    composed.setCommitString(complete, replaced.start, replaced.length);
    QPlainTextEdit::inputMethodEvent(&composed);
    event->setAccepted(composed.isAccepted());
}

void KeyboardView::endComposition() {
    QGuiApplication::inputMethod()->commit();
    Composition::removeFrom(*document());
}

void KeyboardView::mousePressEvent(QMouseEvent* event) {
    _scrollRest.noteUse();
    dropMerge();
    QPlainTextEdit::mousePressEvent(event);
}

void KeyboardView::mouseReleaseEvent(QMouseEvent* event) {
    _scrollRest.noteUse();
    QPlainTextEdit::mouseReleaseEvent(event);
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
    menu->exec(event->globalPos());
    _scrollRest.noteUse();
}

QMimeData* KeyboardView::createMimeDataFromSelection() const {
    auto plain = std::make_unique<QMimeData>();
    plain->setText(KeyboardText::withSpaces(textCursor().selectedText()));
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
    caret.insertText(readied(source->text(), caret));
}

// A drop is one edit of the document, whose lines are laid out anew only when it is over. Until
// then no place may be looked for in them; the base class shows the caret afterwards.
void KeyboardView::dropEvent(QDropEvent* event) {
    {
        const QScopedValueRollback guard(_isDropping, true);
        QPlainTextEdit::dropEvent(event);
    }
    if (_merge.isBegun()) {
        enter({});
    }
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
