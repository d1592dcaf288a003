#pragma once

#include <QList>
#include <QString>
#include <QTextLayout>

class QTextCursor;

/// What is being composed with an input method at a caret. It is no part of the text: it stands
/// in the layout of the caret's paragraph, and is lost there when the paragraph's text changes.
class Composition {
  public:
    [[nodiscard]] static bool isAt(const QTextCursor& caret);

    /// Takes the composition out of the layout.
    explicit Composition(const QTextCursor& caret);
    /// Puts it in again where the caret is by now.
    void putAt(const QTextCursor& caret) const;

  private:
    QString _text;
    QList<QTextLayout::FormatRange> _formats;
};
