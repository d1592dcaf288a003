#include "app/window/ConnectionStrip.h"

#include "keyer/WinKeyerUsb.h"

#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;

ConnectionStrip::ConnectionStrip(QWidget* parent) : Strip(parent) {
    label().setObjectName(u"connectionLabel"_s);
    auto& check = addButton(tr("Check ports…"), u"checkPortsButton"_s);
    check.setAccessibleName(tr("Check ports"));
    connect(&check, &QPushButton::clicked, this, &ConnectionStrip::portCheckRequested);
    auto& choose = addButton(tr("Choose port…"), u"choosePortButton"_s);
    choose.setAccessibleName(tr("Choose port"));
    connect(&choose, &QPushButton::clicked, this, &ConnectionStrip::portRequested);
    setTabOrder(&choose, &check);
    _buttons = {&choose, &check};
    say(false);
}

void ConnectionStrip::setEngine(const WinKeyerUsb& engine) {
    _engine = &engine;
    QObject::connect(&engine, &WinKeyerUsb::activityChanged, this, &ConnectionStrip::follow);
    QObject::connect(&engine, &WinKeyerUsb::reopeningFailed, this, &ConnectionStrip::follow);
    follow();
}

void ConnectionStrip::setMuted(bool isMuted) {
    _isMuted = isMuted;
    follow();
}

void ConnectionStrip::follow() {
    const bool isAsleep = _engine->isAsleep();
    say(isAsleep);
    setVisible(_engine->activity() == KeyerActivity::NotConnected && (isAsleep || !_isMuted));
}

/// Asleep, there is no port to choose: the one that is chosen comes back.
void ConnectionStrip::say(bool isAsleep) {
    setText(isAsleep ? tr("The computer goes to sleep: nothing is sent now, and what you enter "
                          "waits until you take Pause off.")
                     : tr("Not connected: nothing is sent, and what you type now is forgotten "
                          "when a keyer is connected."));
    for (auto* button : _buttons) {
        button->setVisible(!isAsleep);
    }
}
