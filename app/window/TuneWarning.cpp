#include "app/window/TuneWarning.h"

#include "keyer/WinKeyerUsb.h"

#include <QAccessible>

TuneWarning::TuneWarning(QWidget* parent) : QLabel(parent) {
    setFrameStyle(QFrame::Box | QFrame::Plain);
    setLineWidth(3);
    setMargin(4);
    setAlignment(Qt::AlignCenter);
    setWordWrap(true);
    setTextFormat(Qt::PlainText);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Highlight);
    setForegroundRole(QPalette::HighlightedText);
    hide();
}

void TuneWarning::setEngine(const WinKeyerUsb& engine) {
    const auto follow = [this, &engine] { setShown(engine.tuneState() != 0); };
    QObject::connect(&engine, &WinKeyerUsb::tuneStateChanged, this, follow);
    follow();
}

void TuneWarning::setShown(bool isShown) {
    setVisible(isShown);
    if (isShown) {
        QAccessibleEvent alert(this, QAccessible::Alert);
        QAccessible::updateAccessibility(&alert);
    }
}
