#include "app/keyboard/SentCalls.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QTextCursor>
#include <QTextLayout>

namespace {

constexpr int callProperty = QTextFormat::UserProperty;
constexpr double smallerBy = 0.65;

QFont smallFont(QFont font) {
    font.setPointSizeF(font.pointSizeF() * smallerBy);
    return font;
}

/// Some space of its own on either side.
double gapIn(const QFont& font) {
    return QFontMetricsF(font).averageCharWidth() / 4;
}

QTextCharFormat formatFor(const QString& call, const QFont& font) {
    QTextCharFormat format;
    format.setProperty(callProperty, call);
    format.setFontLetterSpacingType(QFont::AbsoluteSpacing);
    format.setFontLetterSpacing(QFontMetricsF(smallFont(font)).horizontalAdvance(call) +
                                2 * gapIn(font));
    return format;
}

/// Calls `action` with the position and the call of each sign of the paragraph that has one.
template <typename Action>
void forEachCall(const QTextBlock& paragraph, const Action& action) {
    for (auto each = paragraph.begin(); !each.atEnd(); ++each) {
        const auto fragment = each.fragment();
        const auto call = fragment.charFormat().stringProperty(callProperty);
        for (int i = 0; !call.isEmpty() && i < fragment.length(); ++i) {
            action(fragment.position() + i, call);
        }
    }
}

} // namespace

void SentCalls::note(int position, const QString& call, const QFont& font) {
    if (_document.characterAt(position) != u'~') {
        return; // it is the end of a paragraph, where no call finds room
    }
    QTextCursor sign(&_document);
    sign.setPosition(position);
    sign.setPosition(position + 1, QTextCursor::KeepAnchor);
    sign.setCharFormat(call.isEmpty() ? QTextCharFormat() : formatFor(call, font));
}

void SentCalls::fit(const QFont& font) {
    for (auto paragraph = _document.begin(); paragraph.isValid(); paragraph = paragraph.next()) {
        QList<std::pair<int, QString>> calls;
        forEachCall(paragraph, [&calls](int position, const QString& call) {
            calls.append({position, call});
        });
        for (const auto& [position, call] : calls) {
            note(position, call, font);
        }
    }
}

void SentCalls::paint(QPainter& painter, const QTextBlock& paragraph, QPointF origin,
                      const QFont& font, const QPalette& palette) {
    painter.setFont(smallFont(font));
    painter.setPen(palette.color(QPalette::Text));
    const auto& layout = *paragraph.layout();
    const auto ofSign = QFontMetricsF(font).horizontalAdvance(u'~') + gapIn(font);
    forEachCall(paragraph, [&](int position, const QString& call) {
        auto index = position - paragraph.position();
        if (index >= layout.preeditAreaPosition() && !layout.preeditAreaText().isEmpty()) {
            index += static_cast<int>(layout.preeditAreaText().size());
        }
        const auto line = layout.lineForTextPosition(index);
        if (line.isValid()) {
            painter.drawText(
                origin + QPointF(line.cursorToX(index) + ofSign, line.y() + line.ascent()), call);
        }
    });
}
