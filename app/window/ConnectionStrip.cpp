#include "app/window/ConnectionStrip.h"

#include "keyer/WinKeyerUsb.h"

#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;

ConnectionStrip::ConnectionStrip(QWidget* parent) : Strip(parent) {
    label().setObjectName(u"connectionLabel"_s);
    setText(tr("Not connected: nothing is sent, and what you type now is forgotten when a keyer is "
               "connected."));
    auto& button = addButton(tr("Choose port…"), u"choosePortButton"_s);
    button.setAccessibleName(tr("Choose port"));
    connect(&button, &QPushButton::clicked, this, &ConnectionStrip::portRequested);
}

void ConnectionStrip::setEngine(const WinKeyerUsb& engine) {
    const auto follow = [this, &engine] {
        setVisible(engine.activity() == KeyerActivity::NotConnected);
    };
    QObject::connect(&engine, &WinKeyerUsb::activityChanged, this, follow);
    follow();
}
