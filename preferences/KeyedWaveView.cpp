#include "preferences/KeyedWaveView.h"

#include "keyer/StoredSettings.h"
#include "keyer/WinKeyerUsb.h"
#include "platform/SettingsStore.h"
#include "preferences/KeyedWavePicture.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QSpinBox>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace {

constexpr int slowest = 5;
constexpr int fastest = 99;

/// Short, and yet it has both elements and both spaces, and begins with a dit, which shows the
/// first extension best.
constexpr QLatin1StringView word{"AN"};

/// What the keyer's speed pot says, in wpm, while there is a keyer that has told.
std::optional<int> speedOfPot(const WinKeyerUsb& engine) {
    const auto wpm = engine.speedOfPot();
    const bool isKnown = engine.activity() != KeyerActivity::NotConnected && wpm > 0;
    return isKnown ? std::optional(static_cast<int>(*wpm)) : std::nullopt;
}

QString inMilliseconds(const QLocale& locale, KeyedWave::Milliseconds length) {
    return KeyedWaveView::tr("%1 ms").arg(locale.toString(std::round(length.count() * 10) / 10));
}

QString inWords(const QLocale& locale, const KeyedWave::Lengths& lengths) {
    auto words =
        KeyedWaveView::tr("Dit %1, dah %2, gap %3, letter space %4")
            .arg(inMilliseconds(locale, lengths.dit), inMilliseconds(locale, lengths.dah),
                 inMilliseconds(locale, lengths.gap), inMilliseconds(locale, lengths.letterSpace));
    if (lengths.firstExtension > KeyedWave::Milliseconds(0)) {
        words = KeyedWaveView::tr("%1, first element %2 longer")
                    .arg(words, inMilliseconds(locale, lengths.firstExtension));
    }
    return words;
}

} // namespace

KeyedWaveView::KeyedWaveView(QWidget* parent)
    : QWidget(parent),
      _speed(new QSpinBox(this)),
      _lengths(new QLabel(this)),
      _picture(new KeyedWavePicture(this)) {
    layOut();
    connect(_speed, &QSpinBox::valueChanged, this, &KeyedWaveView::showWave);
    connect(&SettingsStore::standardUserDefaults(), &SettingsStore::changed, this,
            &KeyedWaveView::showWave);
    showWave();
}

void KeyedWaveView::follow(const WinKeyerUsb& engine) {
    const auto take = [this, &engine] { takeKeyersSpeed(speedOfPot(engine)); };
    connect(&engine, &WinKeyerUsb::speedStringChanged, this, take);
    connect(&engine, &WinKeyerUsb::activityChanged, this, take);
    take();
}

void KeyedWaveView::layOut() {
    auto* label = new QLabel(tr("&Picture at"), this);
    label->setBuddy(_speed);
    _speed->setObjectName(QStringLiteral("pictureSpeed"));
    _speed->setRange(slowest, fastest);
    _speed->setValue(KeyedWave::Timing{}.wpm);
    _speed->setSuffix(tr(" wpm"));
    _lengths->setObjectName(QStringLiteral("lengths"));
    _lengths->setWordWrap(true);
    _picture->setAccessibleName(tr("Keyed wave of %1").arg(word));
    _picture->setToolTip(tr("The letters %1 as they are keyed with these settings, in front of "
                            "plain keying at the same speed. The lines of the grid are one dit "
                            "apart.")
                             .arg(word));

    auto* row = new QHBoxLayout;
    row->addWidget(label);
    row->addWidget(_speed);
    row->addWidget(_lengths, 1);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->addLayout(row);
    column->addWidget(_picture, 1);
}

void KeyedWaveView::takeKeyersSpeed(std::optional<int> wpm) {
    _speed->setEnabled(!wpm);
    _speed->setToolTip(wpm ? tr("The keyer's speed pot is at this speed, and the picture follows "
                                "it.")
                           : tr("The speed that the picture is drawn for. It follows the keyer's "
                                "speed pot once the keyer is connected."));
    if (wpm) {
        _speed->setRange(std::min(slowest, *wpm), std::max(fastest, *wpm));
        _speed->setValue(*wpm);
    }
}

void KeyedWaveView::showWave() {
    const auto timing = KeyedWave::timingOf(StoredSettings(), _speed->value());
    _picture->setWord(word, timing);
    const auto words = inWords(locale(), KeyedWave::lengthsOf(timing));
    _lengths->setText(words);
    _picture->setAccessibleDescription(words);
}
