#include "preferences/binding/Explanation.h"

#include <QTextDocument>
#include <QWidget>

void explain(QWidget& widget, const QString& text) {
    // A plain tool tip would be one line, however long.
    widget.setToolTip(Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal));
    widget.setAccessibleDescription(text);
}
