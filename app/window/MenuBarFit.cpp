#include "app/window/MenuBarFit.h"

#include <QApplication>
#include <QEvent>
#include <QMenuBar>
#include <QScopedValueRollback>

#include <algorithm>

namespace {

/// Of the usual size: below it letters would be hard to read for whom it was chosen.
constexpr double smallest = 0.75;
/// Margins stay as wide as they are.
constexpr double step = 0.03;

} // namespace

MenuBarFit::MenuBarFit(QMenuBar& bar) : QObject(&bar), _bar(bar) {
    _bar.installEventFilter(this);
}

bool MenuBarFit::eventFilter(QObject* watched, QEvent* event) {
    const auto type = event->type();
    const bool mayBeOther = type == QEvent::Resize || type == QEvent::ApplicationFontChange ||
                            type == QEvent::ActionChanged;
    const bool isFiltered = QObject::eventFilter(watched, event);
    if (mayBeOther && !_isFitting) {
        fit();
    }
    return isFiltered;
}

/// By where the last menu is: the width that the bar asks for is too small from right to left.
bool MenuBarFit::isCutOff() const {
    const auto menus = _bar.actions();
    return !menus.isEmpty() && !_bar.rect().contains(_bar.actionGeometry(menus.constLast()));
}

void MenuBarFit::fit() {
    const QScopedValueRollback guard(_isFitting, true);
    auto font = QApplication::font(&_bar);
    const auto usual = font.pointSizeF();
    _bar.setFont(font);
    for (double part = 1 - step; isCutOff() && part >= smallest; part -= step) {
        font.setPointSizeF(usual * part);
        _bar.setFont(font);
    }
}
