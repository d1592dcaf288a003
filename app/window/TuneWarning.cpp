#include "app/window/TuneWarning.h"

#include "app/window/SpokenNotice.h"
#include "app/window/TuneTimer.h"
#include "keyer/WinKeyerUsb.h"

using namespace Qt::StringLiterals;

namespace {
/// Stands out of light and dark themes, and white on it is read from afar.
constexpr QColor danger(0xB3, 0x00, 0x1E);
} // namespace

TuneWarning::TuneWarning(QWidget* parent) : QLabel(parent), _spoken(new SpokenNotice(this)) {
    setMargin(7);
    setAlignment(Qt::AlignCenter);
    setWordWrap(true);
    setTextFormat(Qt::PlainText);
    setAutoFillBackground(true);
    auto colors = palette();
    colors.setColor(QPalette::Window, danger);
    colors.setColor(QPalette::WindowText, Qt::white);
    setPalette(colors);
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
    if (isShown != isHidden()) {
        return;
    }
    setVisible(isShown);
    _spoken->say(isShown ? _warning : tr("Tune is off"));
}

void TuneWarning::showSeconds(const TuneTimer& timer) {
    const auto left = timer.secondsLeft();
    const auto seconds = left ? tr("%1 s, lets go in %2 s").arg(timer.seconds()).arg(*left)
                              : tr("%1 s").arg(timer.seconds());
    setText(_warning + u"  "_s + seconds);
}
