#include "app/window/TuneWarning.h"

#include "app/window/TuneTimer.h"
#include "keyer/WinKeyerUsb.h"

#include <QAccessible>

using namespace Qt::StringLiterals;

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

void TuneWarning::setEngine(const WinKeyerUsb& engine, const TuneTimer& timer) {
    _warning = text();
    const auto count = [this, &timer] { showSeconds(timer); };
    QObject::connect(&timer, &TuneTimer::secondsChanged, this, count);
    count();
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

void TuneWarning::showSeconds(const TuneTimer& timer) {
    const auto left = timer.secondsLeft();
    const auto seconds = left ? tr("%1 s, lets go in %2 s").arg(timer.seconds()).arg(*left)
                              : tr("%1 s").arg(timer.seconds());
    setText(_warning + u"  "_s + seconds);
}
