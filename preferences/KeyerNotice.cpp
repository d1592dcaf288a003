#include "preferences/KeyerNotice.h"

#include "keyer/WinKeyerUsb.h"

void KeyerNotice::follow(const WinKeyerUsb& engine) {
    const auto show = [this, &engine] {
        const bool isConnected = engine.activity() != KeyerActivity::NotConnected;
        setText(isConnected ? QString() : tr("Not connected"));
    };
    connect(&engine, &WinKeyerUsb::activityChanged, this, show);
    show();
}
