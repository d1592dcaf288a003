#include "app/window/GuidePage.h"

#include <QImage>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextCursor>

#include <algorithm>
#include <cmath>

void GuidePage::fitPictures() {
    QList<QTextFragment> pictures; // a change of one would end the walk
    for (auto block = document()->begin(); block.isValid(); block = block.next()) {
        for (auto each = block.begin(); !each.atEnd(); ++each) {
            if (each.fragment().charFormat().isImageFormat()) {
                pictures.append(each.fragment());
            }
        }
    }
    // Whether the scroll bar is there or not: a picture that took its place would bring it back.
    const auto bar = verticalScrollBar()->sizeHint().width();
    const auto margins = static_cast<int>(std::ceil(2 * document()->documentMargin()));
    for (const auto& each : pictures) {
        setWidth(each, maximumViewportSize().width() - bar - margins);
    }
}

void GuidePage::setWidth(const QTextFragment& fragment, int room) {
    auto format = fragment.charFormat().toImageFormat();
    const auto size = sizeOf(format.name());
    const auto width = std::min(size.width(), room);
    if (width <= 0 || std::lround(format.width()) == width) {
        return;
    }
    format.setWidth(width);
    format.setHeight(size.height() * width / size.width());
    QTextCursor cursor(document());
    cursor.setPosition(fragment.position());
    cursor.setPosition(fragment.position() + fragment.length(), QTextCursor::KeepAnchor);
    cursor.setCharFormat(format);
}

QSize GuidePage::sizeOf(const QString& picture) const {
    return document()->resource(QTextDocument::ImageResource, QUrl(picture)).value<QImage>().size();
}

void GuidePage::resizeEvent(QResizeEvent* event) {
    QTextBrowser::resizeEvent(event);
    fitPictures();
}
