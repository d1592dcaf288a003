#include "app/EditActions.h"

#include "app/KeyboardView.h"

#include <QAction>
#include <QLineEdit>

#include <functional>

EditActions::EditActions(QWidget& window, const Actions& actions, QObject* parent)
    : QObject(parent), _window(window) {
    connectAction(actions.undo, std::mem_fn(&KeyboardView::undoTyping),
                  std::mem_fn(&QLineEdit::undo));
    connectAction(actions.redo, std::mem_fn(&KeyboardView::redoTyping),
                  std::mem_fn(&QLineEdit::redo));
    connectAction(actions.cut, std::mem_fn(&KeyboardView::cut), std::mem_fn(&QLineEdit::cut));
    connectAction(actions.copy, std::mem_fn(&KeyboardView::copy), std::mem_fn(&QLineEdit::copy));
    connectAction(actions.paste, std::mem_fn(&KeyboardView::paste), std::mem_fn(&QLineEdit::paste));
    connectAction(actions.selectAll, std::mem_fn(&KeyboardView::selectAll),
                  std::mem_fn(&QLineEdit::selectAll));
}

void EditActions::connectAction(QAction* action, const InView& inView, const InField& inField) {
    QObject::connect(action, &QAction::triggered, this,
                     [this, inView, inField] { edit(inView, inField); });
}

void EditActions::edit(const InView& inView, const InField& inField) const {
    auto* focus = _window.focusWidget();
    if (auto* view = qobject_cast<KeyboardView*>(focus)) {
        inView(*view);
        return;
    }
    auto* field = qobject_cast<QLineEdit*>(focus);
    if (field == nullptr && focus != nullptr) {
        // The serial number's box has its field within.
        field = focus->findChild<QLineEdit*>();
    }
    if (field != nullptr) {
        inField(*field);
    }
}
