#pragma once

#include "app/keyboard/TextChange.h"

#include <QString>
#include <QTextDocument>

/// One long line of text, shown by a document as paragraphs of bounded length.
///
/// A document lays a changed paragraph out anew as a whole, so that a single long one would make
/// each keystroke dearer than the last. Where a paragraph grows too long, a space in it is
/// therefore shown as the paragraph's end. A position in the document is always the index into
/// the text. Text without spaces stays in one piece.
class KeyboardText {
  public:
    /// No paragraph with a space in its middle is longer.
    static constexpr qsizetype longestParagraph = 1000;

    /// `document` must outlive it. It has no line ends of its own.
    explicit KeyboardText(QTextDocument& document) : _document(document) {}

    /// The text that the document shows.
    [[nodiscard]] QString text() const;

    /// Changes the document. Cursors stay with the text around them; the caret behind what is
    /// replaced gets behind what replaces it.
    void apply(const TextChange& change);

    /// Breaks what has grown too long since the last time.
    void breakParagraphs();

    /// Text from elsewhere, with nothing left in it that a document takes for a line end. A tab
    /// stands for each: no more of a Morse character than a line end is.
    [[nodiscard]] static QString withoutLineEnds(QString text);

    /// Part of a document's text, with its paragraph ends as the spaces that they are.
    [[nodiscard]] static QString withSpaces(QString text);

  private:
    void breakParagraph(const QTextBlock& paragraph);

    QTextDocument& _document;
};
