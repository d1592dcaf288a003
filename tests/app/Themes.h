#pragma once

#include <QColor>
#include <QPalette>

#include <algorithm>
#include <cmath>

/// How well one colour is seen on another: from 1, no difference, to 21, black on white.
inline double contrast(const QColor& one, const QColor& other) {
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    const auto luminance = [&linear](const QColor& color) {
        return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
               0.0722 * linear(color.blueF());
    };
    const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

inline QPalette theme(const QColor& window, const QColor& base, const QColor& text) {
    QPalette palette(window);
    palette.setColor(QPalette::Base, base);
    for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText}) {
        palette.setColor(role, text);
    }
    palette.setColor(QPalette::PlaceholderText, QColor(0, 0, 0, 128));
    return palette;
}

inline QPalette darkTheme() {
    return theme(QColor(35, 38, 41), QColor(27, 30, 32), QColor(239, 240, 241));
}

inline QPalette lightTheme() {
    return theme(QColor(239, 239, 239), Qt::white, Qt::black);
}
