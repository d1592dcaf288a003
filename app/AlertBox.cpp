#include "app/AlertBox.h"

#include "app/KeyShield.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

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
