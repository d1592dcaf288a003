#include "app/QuorvelStyle.h"

#include <QAbstractScrollArea>
#include <QPainter>
#include <QStyleOption>

namespace {

constexpr int hintOpacity = 150;
constexpr qreal cornerRadius = 2;

/// Half-way between the text and what it stands on, so it differs from both in every theme.
QColor edgeColor(const QPalette& palette) {
    const auto text = palette.color(QPalette::WindowText);
    const auto window = palette.color(QPalette::Window);
    return {(text.red() + window.red()) / 2, (text.green() + window.green()) / 2,
            (text.blue() + window.blue()) / 2};
}

void drawEdge(const QStyleOption& option, QPainter& painter) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(edgeColor(option.palette));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5), cornerRadius,
                            cornerRadius);
    painter.restore();
}

/// A line that has the keyboard has an edge of the style's own.
bool hasEdgeOfFocus(const QStyleOption& option) {
    return option.state.testFlag(QStyle::State_HasFocus);
}

} // namespace

void QuorvelStyle::polish(QPalette& palette) {
    QProxyStyle::polish(palette);
    auto hint = palette.color(QPalette::Text);
    hint.setAlpha(hintOpacity);
    palette.setColor(QPalette::PlaceholderText, hint);
}

void QuorvelStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                 QPainter* painter, const QWidget* widget) const {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    const bool isScrolledField =
        element == PE_Frame && qobject_cast<const QAbstractScrollArea*>(widget) != nullptr;
    if (isScrolledField || (element == PE_FrameLineEdit && !hasEdgeOfFocus(*option))) {
        drawEdge(*option, *painter);
    }
}

void QuorvelStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                      QPainter* painter, const QWidget* widget) const {
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (control == CC_SpinBox && !hasEdgeOfFocus(*option)) {
        drawEdge(*option, *painter);
    }
}

int QuorvelStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                            QStyleHintReturn* data) const {
    return hint == SH_MenuBar_AltKeyNavigation ? 0
                                               : QProxyStyle::styleHint(hint, option, widget, data);
}
