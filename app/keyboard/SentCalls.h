#pragma once

#include <QFont>
#include <QPalette>
#include <QPointF>
#include <QTextBlock>
#include <QTextDocument>

class QPainter;

/// The call signs that were sent for the "~" signs of a text, each shown small beside its sign.
///
/// They stand in the formats of the document, with room made for them by letter spacing: the text
/// itself knows nothing of them, and whatever moves a sign moves its call along.
class SentCalls {
  public:
    /// `document` must outlive it.
    explicit SentCalls(QTextDocument& document) : _document(document) {}

    /// Has `call` shown beside the sign at `position`, in a text of this font.
    void note(int position, const QString& call, const QFont& font);

    /// Makes room anew, for a text of another font.
    void fit(const QFont& font);

    /// Draws the calls of a paragraph over it, which was drawn at `origin`.
    static void paint(QPainter& painter, const QTextBlock& paragraph, QPointF origin,
                      const QFont& font, const QPalette& palette);

  private:
    QTextDocument& _document;
};
