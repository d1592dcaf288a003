#include "app/window/ConnectionStrip.h"

#include "keyer/WinKeyerUsb.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;

ConnectionStrip::ConnectionStrip(QWidget* parent) : QFrame(parent) {
    setFrameStyle(QFrame::Box | QFrame::Plain);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    auto* label = new QLabel(tr("Not connected: nothing is sent, and what you type now is "
                                "forgotten when a keyer is connected."));
    label->setObjectName(u"connectionLabel"_s);
    label->setForegroundRole(QPalette::ToolTipText);
    label->setWordWrap(true);
    auto* button = new QPushButton(tr("Choose port…"));
    button->setObjectName(u"choosePortButton"_s);
    button->setAccessibleName(tr("Choose port"));
    button->setFocusPolicy(Qt::TabFocus);
    connect(button, &QPushButton::clicked, this, &ConnectionStrip::portRequested);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(8, 4, 4, 4);
    row->addWidget(label, 1);
    row->addWidget(button);
    setAccessibleName(label->text());
    hide();
}

void ConnectionStrip::setEngine(const WinKeyerUsb& engine) {
    const auto follow = [this, &engine] {
        setVisible(engine.activity() == KeyerActivity::NotConnected);
    };
    QObject::connect(&engine, &WinKeyerUsb::activityChanged, this, follow);
    follow();
}
