#pragma once

#include <QProxyStyle>

/// The desktop's style, but with edges of fields and a hint in empty ones that can be seen: on dark
/// desktops both are as dark as what is around them. And the menu bar does not take the keyboard
/// when Alt is pressed alone, or when Escape has closed a menu: what is typed then is text, and no
/// choice in a menu.
class QuorvelStyle final : public QProxyStyle {
    Q_OBJECT
  public:
    using QProxyStyle::QProxyStyle;

    void polish(QPalette& palette) override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override;

    [[nodiscard]] int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                                QStyleHintReturn* data) const override;

    using QProxyStyle::polish;
};
