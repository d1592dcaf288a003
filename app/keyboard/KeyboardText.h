#pragma once

#include "app/keyboard/TextChange.h"

#include <QString>
#include <QTextDocument>

class QTextBlock;
class QTextCursor;

/// One long line of text, shown by a document as paragraphs of bounded length.
///
/// A document lays a changed paragraph out anew as a whole, so that a single long one would make
/// each keystroke dearer than the last. Where a paragraph grows too long, a space in it is
/// therefore made the paragraph's end, or a letter where there is no space; that letter is then
/// for the view to draw behind the paragraph. A position in the document is always the index into
/// the text.
class KeyboardText {
  public:
    /// No paragraph is longer.
    static constexpr qsizetype longestParagraph = 1000;

    /// `document` must outlive it. It has no line ends of its own.
    explicit KeyboardText(QTextDocument& document) : _document(document) {}

    /// The text that the document shows.
    [[nodiscard]] QString text() const;

    /// The character at `position`; a null one where there is none.
    [[nodiscard]] QChar characterAt(int position) const;

    /// Changes the document. Cursors stay with the text around them; the caret behind what is
    /// replaced gets behind what replaces it.
    void apply(const TextChange& change);

    /// Breaks what has grown too long since the last time.
    void breakParagraphs();

    /// Text from elsewhere, in one line. White space that a line end or a tab is part of becomes
    /// a single space, or nothing where no words are on both sides of it. `before` and `after`
    /// are the characters that the text will stand between; null ones for none.
    [[nodiscard]] static QString inOneLine(const QString& text, QChar before, QChar after);

    /// The letter that the paragraph's end stands for, which no layout knows; a null one where it
    /// is a space, or the end of the text.
    [[nodiscard]] static QChar hiddenLetter(const QTextBlock& paragraph);

  private:
    static void insert(QTextCursor& cursor, const QString& text);
    void breakParagraph(const QTextBlock& paragraph);

    QTextDocument& _document;
};
