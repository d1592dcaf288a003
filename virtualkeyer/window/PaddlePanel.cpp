#include "virtualkeyer/window/PaddlePanel.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QWindow>

namespace virtualkeyer {

namespace {

constexpr int ditKey = Qt::Key_F;
constexpr int dahKey = Qt::Key_J;

} // namespace

PaddlePanel::PaddlePanel(QWidget* parent)
    : QGroupBox(tr("Paddle"), parent),
      _dit(new QPushButton(tr("Dit (F)"))),
      _dah(new QPushButton(tr("Dah (J)"))) {
    setToolTip(tr("Hold a button, or the keys F and J; both at once for a squeeze."));
    _dit->setAccessibleName(tr("Dit paddle"));
    _dah->setAccessibleName(tr("Dah paddle"));
    auto* layout = new QHBoxLayout(this);
    for (QPushButton* paddle : {_dit, _dah}) {
        paddle->setMinimumHeight(2 * fontMetrics().height() + 12);
        layout->addWidget(paddle);
        connect(paddle, &QPushButton::pressed, this, &PaddlePanel::tell);
        connect(paddle, &QPushButton::released, this, &PaddlePanel::tell);
    }
    qApp->installEventFilter(this);
    connect(qApp, &QGuiApplication::focusWindowChanged, this, &PaddlePanel::letGo);
}

/// The keyboard goes elsewhere when the window goes, and must not find half a panel.
PaddlePanel::~PaddlePanel() {
    qApp->disconnect(this);
    qApp->removeEventFilter(this);
}

void PaddlePanel::letGo() {
    _ditKey = false;
    _dahKey = false;
    _dit->setDown(false);
    _dah->setDown(false);
    tell();
}

bool PaddlePanel::eventFilter(QObject* watched, QEvent* event) {
    // Each key comes to a window first, and then to the control in it.
    if (!watched->isWindowType() ||
        (event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease)) {
        return QGroupBox::eventFilter(watched, event);
    }
    const auto* key = static_cast<QKeyEvent*>(event);
    if (keyOf(key->key()) == nullptr) {
        return false;
    }
    const bool isPressed = event->type() == QEvent::KeyPress;
    // A held key repeats, with a release of its own each time.
    return key->isAutoRepeat() ? takesKeys() : takeKey(key->key(), isPressed);
}

void PaddlePanel::hideEvent(QHideEvent* event) {
    letGo();
    QGroupBox::hideEvent(event);
}

bool* PaddlePanel::keyOf(int key) {
    switch (key) {
    case ditKey:
        return &_ditKey;
    case dahKey:
        return &_dahKey;
    default:
        return nullptr;
    }
}

/// Not while a menu or a list is open, which is worked by letters, nor in another window, nor while
/// text is typed.
bool PaddlePanel::takesKeys() const {
    return window()->isActiveWindow() &&
           qobject_cast<QLineEdit*>(QApplication::focusWidget()) == nullptr &&
           QApplication::activePopupWidget() == nullptr &&
           QGuiApplication::keyboardModifiers() == Qt::NoModifier;
}

/// A release is taken wherever it comes from. Whether the key was meant for the paddle.
bool PaddlePanel::takeKey(int key, bool isPressed) {
    bool& isHeld = *keyOf(key);
    const bool wasHeld = isHeld;
    isHeld = isPressed && takesKeys();
    tell();
    return isHeld || wasHeld;
}

void PaddlePanel::tell() {
    const bool dit = _ditKey || _dit->isDown();
    const bool dah = _dahKey || _dah->isDown();
    if (dit == _ditTold && dah == _dahTold) {
        return;
    }
    _ditTold = dit;
    _dahTold = dah;
    Q_EMIT moved(dit, dah);
}

} // namespace virtualkeyer
