#pragma once

#include "app/keyboard/EditHistory.h"
#include "app/keyboard/KeptText.h"
#include "app/keyboard/KeyboardText.h"
#include "app/keyboard/ScrollRest.h"
#include "app/keyboard/SendingMarks.h"
#include "app/keyboard/SentCalls.h"

#include <QPlainTextEdit>

#include <optional>

class WinKeyerUsb;

/// The text that is being sent, for the operator to type into, marked with how far it is sent.
///
/// Bound both ways to the keyer engine's text: whatever way the operator's text takes, the engine
/// filters it, and what the engine makes of it, or adds, shows here. Its changes leave caret,
/// selection and a composition of an input method with their text. The view follows the sending
/// while it is not in use. What is typed right behind an added message is a word of its own, and
/// "{" is kept back until its two letters have been typed, as all is while the paddle is in use. A
/// position in the document is the index
/// into the engine's text, but some spaces are ends of paragraphs there; see KeyboardText.
class KeyboardView final : public QPlainTextEdit {
    Q_OBJECT
  public:
    /// Binds the view to `engine`, which must outlive it.
    explicit KeyboardView(WinKeyerUsb& engine, QWidget* parent = nullptr);

    /// What the view shows, with all its spaces. Equal to the engine's text between two events.
    [[nodiscard]] QString text() const { return _text.text(); }

    /// Puts `text` in place of the characters [begin, end), as if the operator had typed it.
    void replaceText(qsizetype begin, qsizetype end, const QString& text);

    /// How many characters are on their way or wait; 0 while no keyer is connected, when what is
    /// typed goes nowhere.
    [[nodiscard]] qsizetype waitingCount() const;

    /// Whether a keyer is connected, or is to be again when the machine wakes up.
    [[nodiscard]] bool isLinked() const;

    /// How many characters are held elsewhere: they wait, too, and while there are any, what is
    /// typed is kept back behind them, whatever the paddle does.
    void setHeldElsewhere(qsizetype count);
    /// Whether typed text is kept back because the paddle, or something else, was ahead of it.
    [[nodiscard]] bool isHoldingText() const { return _isHoldingText; }
    /// That text.
    [[nodiscard]] QString heldText() const { return _isHoldingText ? _kept.all() : QString(); }
    /// What is typed next is another word. How much of that text is ahead of it.
    [[nodiscard]] qsizetype endHeldWord();
    /// Puts `call` in place of each "~" in that text.
    void putCallIntoHeldText(const QString& call);
    /// Has such text sent, unless the paddle is in use yet.
    void handOverHeldText();
    /// The same with the first `count` characters, behind which a message comes.
    void handOverHeldText(qsizetype count);
    /// Forgets it, and a "{" that waits for its letters.
    void dropHeldText();

    /// Whether what is typed at the caret would make the keyer send again what it has been given.
    [[nodiscard]] bool isCaretInSentText() const { return _isCaretInSentText; }

    [[nodiscard]] bool canUndoTyping() const { return _history.canUndo(); }
    [[nodiscard]] bool canRedoTyping() const { return _history.canRedo(); }

  public Q_SLOTS:
    /// Takes back the last word typed, other edit, or added message, if all of it still waits;
    /// otherwise does nothing. undo() of the base class never does anything.
    void undoTyping();
    /// Makes again what undoTyping() took back, under the same condition.
    void redoTyping();

  Q_SIGNALS:
    void canUndoTypingChanged(bool canUndo);
    void canRedoTypingChanged(bool canRedo);
    /// isCaretInSentText() is another one now.
    void caretInSentTextChanged();
    /// waitingCount() or isHoldingText() may be another one now.
    void waitingCountChanged();

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    [[nodiscard]] QMimeData* createMimeDataFromSelection() const override;
    [[nodiscard]] bool canInsertFromMimeData(const QMimeData* source) const override;
    void insertFromMimeData(const QMimeData* source) override;

  private:
    void followEngine();
    void takeOperatorsText();
    void takeText(const QString& typed);
    void giveToEngine(const QString& text);
    void enterKey(const QKeyEvent& event);
    void enter(const QString& text);
    void enterLong(const QString& text);
    void dropCurrentFormat();
    [[nodiscard]] QString readied(const QString& typed, const QTextCursor& place);
    [[nodiscard]] QString releasedText();
    [[nodiscard]] qsizetype mergeLeftOpenIn(QStringView text) const;
    void keepMessageApart(const QString& before);
    [[nodiscard]] KeptText::Stretch takeBrokenMerge(const QString& text, const TextChange& change);
    void recordEdit(const TextChange& change, qsizetype handedOver);
    [[nodiscard]] bool isBeginOfWord(const TextChange& change) const;
    [[nodiscard]] qsizetype messageEndAfter(const TextChange& change) const;
    [[nodiscard]] bool isPaddleInUse() const;
    void showKept();
    void followCaretWithKept();
    [[nodiscard]] bool takeKeyOfKept(const QKeyEvent& event);
    void dropMerge();
    void travel(const std::optional<EditHistory::Step>& step);
    void announceHistory();

    void showEnginesText();
    void showChange(const TextChange& change);
    void breakParagraphs();
    void endComposition();
    void keepSelection(int begin, int end, bool isReversed);

    void followCaret();
    void followLink();
    void takeProgress();
    void showProgress();
    void updateMarks();
    void updateMarksBehind(const TextChange& change);
    template <typename Action>
    void forEachParagraphInSight(const Action& action) const;
    void keepShapes();
    void forgetShapes();
    void noteSentCall(qsizetype position, const QString& call);
    void followSending();
    [[nodiscard]] bool isInUse() const;
    [[nodiscard]] int linesInSight() const;
    [[nodiscard]] int lineOf(int position) const;
    [[nodiscard]] SendingMarks::State sendingState() const;

    WinKeyerUsb& _engine;
    KeyboardText _text;
    EditHistory _history;
    KeptText _kept;
    /// Where the message that was added last ends, wherever edits have moved it; -1 without one.
    qsizetype _messageEnd = -1;
    SendingMarks::State _shownState;
    SentCalls _sentCalls;
    ScrollRest _scrollRest;
    /// How many paragraphs keep the shapes of their letters, at most.
    int _keptShapes = 0;
    bool _isChangingDocument = false;
    bool _isEngineTakingText = false;
    bool _isDropping = false;
    bool _couldUndo = false;
    bool _couldRedo = false;
    bool _isCaretInSentText = false;
    qsizetype _heldElsewhere = 0;
    bool _isHoldingText = false;
    /// Of held text, how much is handed over ahead of a message.
    std::optional<qsizetype> _handedOverAhead;
};
