#include "app/keyboard/KeyboardView.h"

#include "app/keyboard/Composition.h"
#include "app/keyboard/KeyboardViewAccessible.h"
#include "keyer/WinKeyerUsb.h"

#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QStyle>
#include <QTextBlock>
#include <QTextCursor>

#include <algorithm>
#include <utility>

KeyboardView::KeyboardView(WinKeyerUsb& engine, QWidget* parent)
    : QPlainTextEdit(parent),
      _engine(engine),
      _text(*document()),
      _sentCalls(*document()),
      _scrollRest(this) {
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
    followEngine();
}

void KeyboardView::followEngine() {
    QObject::connect(&_engine, &WinKeyerUsb::keyboardBufferChanged, this,
                     &KeyboardView::showEnginesText);
    QObject::connect(&_engine, &WinKeyerUsb::sendingProgressed, this, &KeyboardView::takeProgress);
    QObject::connect(&_engine, &WinKeyerUsb::activityChanged, this, &KeyboardView::followLink);
    QObject::connect(&_engine, &WinKeyerUsb::reopeningFailed, this, &KeyboardView::takeProgress);
    QObject::connect(&_engine, &WinKeyerUsb::callsignSent, this, &KeyboardView::noteSentCall);
    QObject::connect(&_engine, &WinKeyerUsb::messageSendingStopped, this,
                     &KeyboardView::dropHeldText);
    showChange(TextChange::between(text(), _engine.keyboardBuffer()));
    showProgress();
}

// The operator's changes.

void KeyboardView::takeOperatorsText() {
    if (_isChangingDocument) {
        return;
    }
    const auto typed = text();
    if (typed != _engine.keyboardBuffer()) { // else a composition goes on, and is no text yet
        takeText(typed);
        if (!_isDropping) {
            followCaretWithKept();
        }
    }
}

void KeyboardView::takeText(const QString& typed) {
    const auto before = _engine.keyboardBuffer();
    const auto handedOver = _engine.outputBufferIndex();
    const auto merge = takeBrokenMerge(typed, TextChange::between(before, typed));
    giveToEngine(QString(typed).remove(merge.position, merge.length));
    breakParagraphs();
    if (const auto change = TextChange::between(before, _engine.keyboardBuffer());
        !change.isEmpty()) {
        updateMarksBehind(change);
        recordEdit(change, handedOver);
    }
    showProgress();
}

void KeyboardView::giveToEngine(const QString& text) {
    {
        const QScopedValueRollback guard(_isEngineTakingText, true);
        _engine.setKeyboardBuffer(text);
        _engine.textDidChange();
    }
    // Only what has become of it, once.
    showChange(TextChange::between(this->text(), _engine.keyboardBuffer()));
}

/// The places of the marks are counted from the beginning of the text, and so are those of other
/// characters after a change ahead of them.
void KeyboardView::updateMarksBehind(const TextChange& change) {
    if (change.position < _shownState.waiting) {
        viewport()->update();
    }
}

void KeyboardView::recordEdit(const TextChange& change, qsizetype handedOver) {
    const auto isTyped =
        change.removed.size() + change.inserted.size() == 1 || isBeginOfWord(change);
    const auto former = std::exchange(_messageEnd, messageEndAfter(change));
    _history.record(change, handedOver,
                    isTyped ? EditHistory::Kind::Typed : EditHistory::Kind::Whole,
                    {former, _messageEnd});
}

/// Where the "{" stands that is to be sent and that a message ends with, if `text` ends with it.
qsizetype KeyboardView::mergeLeftOpenIn(QStringView text) const {
    return KeptText::mergeOpenAtEnd(text, _engine.outputBufferIndex());
}

/// What of `text` is not to be sent. An edit that takes a letter from "{" has the rest of it wait
/// for one again, where it stood. What is typed behind a message is no letter of it, and the
/// message by itself would be sent without its "{".
KeptText::Stretch KeyboardView::takeBrokenMerge(const QString& text, const TextChange& change) {
    if (change.removed.isEmpty() && change.position == _messageEnd) {
        const auto sign = mergeLeftOpenIn(QStringView(text).first(change.position));
        return sign >= 0 ? KeptText::Stretch{sign, 1} : KeptText::Stretch();
    }
    const auto merge = KeptText::openMergeAt(text, change.position);
    if (merge.length == 0 || merge.position < _engine.outputBufferIndex()) {
        return {};
    }
    _kept.add(text.mid(merge.position, merge.length));
    if (!_isDropping) {
        auto caret = textCursor();
        caret.setPosition(static_cast<int>(merge.position));
        setTextCursor(caret);
    }
    return merge;
}

/// The space that was put behind a message, and the first character of the word.
bool KeyboardView::isBeginOfWord(const TextChange& change) const {
    return change.removed.isEmpty() && change.position == _messageEnd &&
           change.inserted.size() == 2;
}

/// Whoever takes out just the space, or corrects the message's own last word, wants to go on there
/// without one. Where words are taken out as a whole, the next one is apart from what is left.
qsizetype KeyboardView::messageEndAfter(const TextChange& change) const {
    const auto end = change.position + change.removed.size();
    if (change.removed.isEmpty() || _messageEnd < change.position || _messageEnd > end) {
        return change.movedEnd(_messageEnd);
    }
    const bool isOfWholeWords = change.removed.size() > 1 && change.removed.startsWith(u' ');
    return isOfWholeWords && change.position > 0 ? change.position : -1;
}

void KeyboardView::replaceText(qsizetype begin, qsizetype end, const QString& text) {
    dropMerge();
    QTextCursor cursor(document());
    cursor.setPosition(static_cast<int>(begin));
    cursor.setPosition(static_cast<int>(end), QTextCursor::KeepAnchor);
    cursor.insertText(readied(text, cursor), QTextCharFormat());
    if (!_kept.isEmpty()) {
        setTextCursor(cursor);
        showKept();
    }
}

void KeyboardView::undoTyping() {
    if (!_kept.isEmpty()) {
        dropHeldText();
        return;
    }
    travel(_history.undo());
}

void KeyboardView::redoTyping() {
    dropMerge();
    travel(_history.redo());
}

void KeyboardView::travel(const std::optional<EditHistory::Step>& step) {
    if (!step) {
        return;
    }
    const auto& change = step->change;
    const auto wanted = change.appliedTo(_engine.keyboardBuffer());
    _messageEnd = step->mark;
    giveToEngine(wanted);
    if (_engine.keyboardBuffer() != wanted) {
        // The engine let something else pass this time; the other changes do not fit any more.
        _history.clear();
        _messageEnd = -1;
    }
    showProgress();
    auto caret = textCursor();
    const auto end = change.position + change.inserted.size();
    caret.setPosition(static_cast<int>(std::min(end, _engine.keyboardBuffer().size())));
    setTextCursor(caret);
    ensureCursorVisible();
    followCaretWithKept();
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
    if (_isEngineTakingText) {
        return; // there is more to come
    }
    const auto before = text();
    const auto size = _engine.keyboardBuffer().size();
    const bool isAdded = size > before.size() && _engine.keyboardBuffer().startsWith(before);
    if (isAdded) {
        keepMessageApart(before);
    }
    const auto change = TextChange::between(before, _engine.keyboardBuffer());
    if (change.isEmpty()) {
        return;
    }
    const auto former = std::exchange(_messageEnd, isAdded ? _engine.keyboardBuffer().size() : -1);
    _history.record(change, _engine.outputBufferIndex(), EditHistory::Kind::Whole,
                    {former, _messageEnd});
    showChange(change);
    if (_engine.keyboardBuffer().isEmpty()) {
        dropMerge(); // broken in on, as the text was
    }
}

/// A message that ends with "{" is not joined to the one that is added behind it.
void KeyboardView::keepMessageApart(const QString& before) {
    if (const auto sign = mergeLeftOpenIn(before); sign >= 0) {
        const QScopedValueRollback guard(_isEngineTakingText, true);
        _engine.setKeyboardBuffer(_engine.keyboardBuffer().remove(sign, 1));
    }
}

void KeyboardView::showChange(const TextChange& change) {
    if (change.isEmpty()) {
        return;
    }
    const auto before = textCursor();
    const auto begin = static_cast<int>(change.movedStart(before.selectionStart()));
    const auto end = static_cast<int>(change.movedEnd(before.selectionEnd()));
    const auto isReversed = before.position() < before.anchor();

    updateMarksBehind(change);
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
    return {_engine.inFlightIndex(), _engine.outputBufferIndex(), isLinked()};
}

bool KeyboardView::isLinked() const {
    return _engine.activity() != KeyerActivity::NotConnected || _engine.isAsleep();
}

qsizetype KeyboardView::waitingCount() const {
    if (!isLinked()) {
        return 0;
    }
    return _engine.keyboardBuffer().size() - _engine.inFlightIndex() + heldText().size() +
           _heldElsewhere;
}

void KeyboardView::setHeldElsewhere(qsizetype count) {
    if (std::exchange(_heldElsewhere, count) != count) {
        Q_EMIT waitingCountChanged();
    }
}

/// What was typed while it went nowhere is not sent later on, of itself.
void KeyboardView::followLink() {
    if (!_shownState.isLinked && isLinked() && !_engine.keyboardBuffer().isEmpty()) {
        _engine.clearSending();
    }
    takeProgress();
}

void KeyboardView::takeProgress() {
    if (_isEngineTakingText) {
        return; // there is more to come
    }
    if (_engine.keyboardBuffer().isEmpty()) {
        _history.clear(); // stopped, or broken in on
    }
    showProgress();
}

void KeyboardView::showProgress() {
    _history.handOver(_engine.outputBufferIndex());
    announceHistory();
    updateMarks();
    followCaret();
    followSending();
    Q_EMIT waitingCountChanged();
}

/// Has the marks that are others now painted.
void KeyboardView::updateMarks() {
    const auto before = std::exchange(_shownState, sendingState());
    if (before.isLinked != _shownState.isLinked) {
        viewport()->update();
    } else if (before != _shownState) {
        const SendingMarks::Range changed{std::min(before.inFlight, _shownState.inFlight),
                                          std::max(before.waiting, _shownState.waiting)};
        forEachParagraphInSight([&](const SendingMarks::Paragraph& paragraph) {
            // A letter may reach a little beyond its place.
            const auto area = SendingMarks::area(paragraph, changed).adjusted(-1, 0, 1, 0);
            viewport()->update(area.toAlignedRect());
        });
    }
}

template <typename Action>
void KeyboardView::forEachParagraphInSight(const Action& action) const {
    for (auto block = firstVisibleBlock(); block.isValid(); block = block.next()) {
        const auto geometry = blockBoundingGeometry(block).translated(contentOffset());
        if (geometry.top() > viewport()->height()) {
            break;
        }
        action(SendingMarks::Paragraph{block, geometry.topLeft()});
    }
}

/// An edit may have moved the sign away meanwhile; then it is sent once more.
void KeyboardView::noteSentCall(qsizetype position, const QString& call) {
    const auto sign = static_cast<int>(position);
    if (_engine.isPortOpen() && _text.characterAt(sign) == u'~') {
        const QScopedValueRollback guard(_isChangingDocument, true);
        _sentCalls.note(sign, call, font());
    }
}

/// The caret is a block where typing has the keyer send again what it has been given.
void KeyboardView::followCaret() {
    const bool isInSentText =
        hasFocus() && textCursor().selectionStart() < _engine.outputBufferIndex();
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
    if (isInUse()) {
        return;
    }
    const auto line = lineOf(static_cast<int>(_engine.inFlightIndex()));
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
    keepShapes();
    QPlainTextEdit::paintEvent(event);
    auto colors = palette();
    colors.setCurrentColorGroup(hasFocus() ? QPalette::Active : QPalette::Inactive);
    const auto cursor = textCursor();
    const SendingMarks marks(_shownState, {cursor.selectionStart(), cursor.selectionEnd()}, colors,
                             event->rect());
    QPainter painter(viewport());
    painter.setClipRegion(event->region());
    forEachParagraphInSight([&](const SendingMarks::Paragraph& paragraph) {
        marks.paint(painter, paragraph);
        SentCalls::paint(painter, paragraph.block, paragraph.origin, font(), colors);
    });
}

/// A layout forgets the shapes of its letters when it has drawn them. Those in sight are kept, for
/// they are drawn again with each character that is sent; of the others no more than those.
void KeyboardView::keepShapes() {
    int inSight = 0;
    forEachParagraphInSight([&](const SendingMarks::Paragraph& paragraph) {
        auto& layout = *paragraph.block.layout();
        _keptShapes += layout.cacheEnabled() ? 0 : 1;
        layout.setCacheEnabled(true);
        ++inSight;
    });
    if (_keptShapes > 2 * inSight + 2) {
        forgetShapes();
    }
}

void KeyboardView::forgetShapes() {
    for (auto block = document()->begin(); block.isValid(); block = block.next()) {
        auto& layout = *block.layout();
        if (layout.cacheEnabled()) {
            layout.setCacheEnabled(false);
            layout.beginLayout(); // it is laid out again when it comes in sight
            layout.endLayout();
        }
    }
    _keptShapes = 0;
}

void KeyboardView::changeEvent(QEvent* event) {
    QPlainTextEdit::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        _sentCalls.fit(font());
    }
}
