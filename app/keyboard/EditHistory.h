#pragma once

#include "app/keyboard/TextChange.h"

#include <QList>

#include <optional>

/// The changes of a text that is being sent, as far as they can be taken back.
///
/// What has been handed to the keyer is sent, whatever becomes of the text. So only changes of
/// text that still waits are kept: taking back any other would key text twice, or pretend that it
/// was not keyed. All positions are indexes into the text as it is when the change is due.
class EditHistory {
  public:
    enum class Kind {
        /// Characters typed or deleted one by one, which make one step a word.
        Typed,
        /// A step of its own.
        Whole
    };

    /// The text has changed; its first `handedOver` characters were with the keyer before. A
    /// change among those ends the history before it.
    void record(const TextChange& change, qsizetype handedOver, Kind kind);

    /// The keyer has been handed the first `handedOver` characters: forgets what they concern.
    void handOver(qsizetype handedOver);

    /// The change that takes back the last one; nothing when there is none. It is redone next.
    [[nodiscard]] std::optional<TextChange> undo();
    /// The change that makes again what was taken back last; nothing when there is none.
    [[nodiscard]] std::optional<TextChange> redo();

    [[nodiscard]] bool canUndo() const { return !_done.isEmpty(); }
    [[nodiscard]] bool canRedo() const { return !_undone.isEmpty(); }

    void clear();

  private:
    [[nodiscard]] bool continuesLast(const TextChange& change) const;

    QList<TextChange> _done;
    QList<TextChange> _undone;
    bool _isLastOpen = false;
};
