#include "preferences/KeyerNotice.h"

#include "keyer/WinKeyerUsb.h"

KeyerNotice::KeyerNotice(QWidget* parent) : QLabel(parent) {
    connect(&WinKeyerUsb::sharedInstance(), &WinKeyerUsb::activityChanged, this,
            &KeyerNotice::follow);
    follow();
}

void KeyerNotice::follow() {
    const auto activity = WinKeyerUsb::sharedInstance().activity();
    setText(activity == KeyerActivity::NotConnected ? tr("Not connected") : QString());
}
