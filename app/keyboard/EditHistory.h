#pragma once

#include "app/keyboard/TextChange.h"

#include <QList>

#include <optional>

/// The changes of a text that is being sent, as far as they can be taken back.
///
/// What has been handed to the keyer is sent, whatever becomes of the text. So only changes of
/// text that still waits are kept: taking back any other would key text twice, or pretend that it
/// was not keyed. All positions are indexes into the text as it is when the change is due.
///
/// A mark in the text goes back and forth with the changes: where it stood cannot be told from the
/// text alone when what was around it comes back.
class EditHistory {
  public:
    /// Where the mark stands before and after a change; -1 for nowhere.
    struct Mark {
        qsizetype before;
        qsizetype after;
    };
    /// A change to be made, and where the mark stands then.
    struct Step {
        TextChange change;
        qsizetype mark;
    };
    enum class Kind {
        /// Characters typed or deleted one by one, which make one step a word.
        Typed,
        /// A step of its own.
        Whole
    };

    /// The text has changed; its first `handedOver` characters were with the keyer before. A
    /// change among those ends the history before it.
    void record(const TextChange& change, qsizetype handedOver, Kind kind, Mark mark = {-1, -1});

    /// The keyer has been handed the first `handedOver` characters: forgets what they concern.
    void handOver(qsizetype handedOver);

    /// The step that takes back the last change; nothing when there is none. It is redone next.
    [[nodiscard]] std::optional<Step> undo();
    /// The step that makes again what was taken back last; nothing when there is none.
    [[nodiscard]] std::optional<Step> redo();

    [[nodiscard]] bool canUndo() const { return !_done.isEmpty(); }
    [[nodiscard]] bool canRedo() const { return !_undone.isEmpty(); }

    void clear();

  private:
    struct Entry {
        TextChange change;
        Mark mark;
    };

    /// Drops the last change that concerns handed-over text, and all that come before it in the
    /// list and so could be reached only past it.
    static void dropHandedOver(QList<Entry>& entries, qsizetype handedOver);
    [[nodiscard]] bool continuesLast(const TextChange& change) const;

    QList<Entry> _done;
    QList<Entry> _undone;
    bool _isLastOpen = false;
};
