#pragma once

#include <QList>
#include <QString>
#include <QTextLayout>

class QInputMethodEvent;
class QKeyEvent;
class QTextCursor;
class QTextDocument;

/// What is being composed with an input method at a caret. It is no part of the text: it stands
/// in the layout of the caret's paragraph, and is lost there when the paragraph's text changes.
class Composition {
  public:
    [[nodiscard]] static bool isAt(const QTextCursor& caret);
    /// Also where the caret has been moved away from it.
    [[nodiscard]] static bool isIn(const QTextDocument& document);
    /// Whether the key moves the caret by lines. The base class counts a composition as text when
    /// it looks for a place in a line, and so may put the caret behind the end of the text.
    [[nodiscard]] static bool isDisturbedBy(const QKeyEvent& event);

    /// A stretch of the text, its start counted from the caret.
    struct Stretch {
        int start;
        int length;
    };
    /// What the input method wants replaced, as far as there is text: it may know the text only as
    /// it was before the keyer had it emptied. What is selected goes first.
    [[nodiscard]] static Stretch replacementAt(const QTextCursor& caret,
                                               const QInputMethodEvent& event);

    /// Drops whatever is being composed.
    static void removeFrom(QTextDocument& document);

    /// Takes the composition out of the layout.
    explicit Composition(const QTextCursor& caret);
    /// Puts it in again where the caret is by now.
    void putAt(const QTextCursor& caret) const;

  private:
    QString _text;
    QList<QTextLayout::FormatRange> _formats;
};
