#include "app/AlertBox.h"

#include "app/KeyShield.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// There to be read, and to be passed over.
QLabel* makeHint(const QString& text) {
    auto* hint = new QLabel(text);
    hint->setObjectName(u"keyHint"_s);
    hint->setAlignment(Qt::AlignCenter);
    hint->setForegroundRole(QPalette::PlaceholderText);
    // The buttons are not to move when it goes.
    auto policy = hint->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    hint->setSizePolicy(policy);
    return hint;
}

} // namespace

AlertBox::AlertBox(const Alert& alert, QWidget* parent) : QMessageBox(parent) {
    setIcon(alert.alternateButton.isNull() ? QMessageBox::Warning : QMessageBox::Question);
    setTextFormat(Qt::PlainText);
    setText(alert.messageText);
    setInformativeText(alert.informativeText);
    addButtons(alert);
    addHint();
    if (parent != nullptr) {
        parent->window()->installEventFilter(this);
    }
}

/// A window manager gives the box its frame when it shows it.
bool AlertBox::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate && !std::exchange(_hasBeenActive, true)) {
        center();
    }
    return QMessageBox::event(event);
}

/// The window of the first alert of all has only just been opened, and gets its place afterwards.
bool AlertBox::eventFilter(QObject* watched, QEvent* event) {
    if ((event->type() == QEvent::Move || event->type() == QEvent::Resize) && isWhereItWasPut()) {
        center();
    }
    return QMessageBox::eventFilter(watched, event);
}

// By what is within the frames: of a window that has only just been mapped, the toolkit knows the
// frame's size too late. Both frames are alike.
void AlertBox::center() {
    if (parentWidget() == nullptr || !isVisible()) {
        return;
    }
    const auto& window = *parentWidget()->window();
    const auto corner = window.geometry().topLeft() - window.frameGeometry().topLeft();
    const QMargins frame(corner.x(), corner.y(), corner.x(), corner.x());
    const auto room = window.screen()->availableGeometry().marginsRemoved(frame);
    auto place = geometry();
    place.moveCenter(window.geometry().center());
    place.moveRight(std::min(place.right(), room.right()));
    place.moveBottom(std::min(place.bottom(), room.bottom()));
    place.moveLeft(std::max(place.left(), room.left()));
    place.moveTop(std::max(place.top(), room.top()));
    setGeometry(place);
    _place = place.topLeft();
}

/// To the pixel or so that a scaled screen rounds by.
bool AlertBox::isWhereItWasPut() const {
    constexpr int rounding = 2;
    return !_place || (geometry().topLeft() - *_place).manhattanLength() <= rounding;
}

void AlertBox::addButtons(const Alert& alert) {
    _defaultButton = alert.defaultButton.isNull()
                         ? static_cast<QAbstractButton*>(addButton(QMessageBox::Ok))
                         : addButton(alert.defaultButton, QMessageBox::AcceptRole);
    if (!alert.alternateButton.isNull()) {
        addButton(alert.alternateButton, QMessageBox::RejectRole);
    }
}

/// The last thing to be set up: the box lays itself out anew whenever a text of its own changes.
void AlertBox::addHint() {
    auto* grid = qobject_cast<QGridLayout*>(layout());
    auto* hint = makeHint(tr("Takes keys when you have stopped typing for a second"));
    grid->addWidget(hint, grid->rowCount(), 0, 1, grid->columnCount());
    QObject::connect(new KeyShield(*this), &KeyShield::lifted, hint, &QLabel::hide);
}

AlertAnswer AlertBox::answer() const {
    return clickedButton() == _defaultButton ? AlertAnswer::Default : AlertAnswer::Alternate;
}
