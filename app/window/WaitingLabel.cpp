#include "app/window/WaitingLabel.h"

#include <QEvent>

#include <algorithm>

void WaitingLabel::setCount(int count) {
    const auto text = count == 0 ? QString() : textFor(QString::number(count));
    const bool isOfOtherLength = text.size() != this->text().size();
    setText(text);
    if (isOfOtherLength) {
        fit();
    }
}

QString WaitingLabel::textFor(const QString& number) {
    return tr("%1 waiting").arg(number);
}

/// The widest digit may be any.
void WaitingLabel::fit() {
    const auto shown = text();
    const auto digits =
        std::count_if(shown.begin(), shown.end(), [](QChar each) { return each.isDigit(); });
    int width = 0;
    for (int digit = 0; digit <= 9 && digits > 0; ++digit) {
        const auto number = QString(digits, QChar(u'0' + digit));
        width = std::max(width, fontMetrics().horizontalAdvance(textFor(number)));
    }
    const auto margins = contentsMargins();
    setFixedSize(width + margins.left() + margins.right() + 2 * margin(), fontMetrics().height());
}

void WaitingLabel::changeEvent(QEvent* event) {
    QLabel::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        fit();
    }
}
