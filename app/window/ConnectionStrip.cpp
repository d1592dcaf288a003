#include "app/window/ConnectionStrip.h"

#include "keyer/WinKeyerUsb.h"

#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;

ConnectionStrip::ConnectionStrip(QWidget* parent) : Strip(parent) {
    label().setObjectName(u"connectionLabel"_s);
    setText(tr("Not connected: nothing is sent, and what you type now is forgotten when a keyer is "
               "connected."));
    auto& check = addButton(tr("Check ports…"), u"checkPortsButton"_s);
    check.setAccessibleName(tr("Check ports"));
    connect(&check, &QPushButton::clicked, this, &ConnectionStrip::portCheckRequested);
    auto& choose = addButton(tr("Choose port…"), u"choosePortButton"_s);
    choose.setAccessibleName(tr("Choose port"));
    connect(&choose, &QPushButton::clicked, this, &ConnectionStrip::portRequested);
    setTabOrder(&choose, &check);
}

void ConnectionStrip::setEngine(const WinKeyerUsb& engine) {
    _engine = &engine;
    QObject::connect(&engine, &WinKeyerUsb::activityChanged, this, &ConnectionStrip::showIfNeeded);
    showIfNeeded();
}

void ConnectionStrip::setMuted(bool isMuted) {
    _isMuted = isMuted;
    showIfNeeded();
}

void ConnectionStrip::showIfNeeded() {
    setVisible(!_isMuted && _engine->activity() == KeyerActivity::NotConnected);
}
