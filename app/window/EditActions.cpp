#include "app/window/EditActions.h"

#include "app/keyboard/KeyboardView.h"

#include <QAction>
#include <QApplication>
#include <QLineEdit>

#include <functional>

EditActions::EditActions(QWidget& window, KeyboardView& view, const Actions& actions)
    : _window(window), _view(view) {
    followHistory(actions);
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

void EditActions::followHistory(const Actions& actions) {
    const auto follow = [this, undo = actions.undo, redo = actions.redo] {
        const bool isInView = _window.focusWidget() == &_view;
        undo->setEnabled(!isInView || _view.canUndoTyping());
        redo->setEnabled(!isInView || _view.canRedoTyping());
    };
    QObject::connect(&_view, &KeyboardView::canUndoTypingChanged, this, follow);
    QObject::connect(&_view, &KeyboardView::canRedoTypingChanged, this, follow);
    QObject::connect(qApp, &QApplication::focusChanged, this, follow);
    follow();
}

void EditActions::edit(const InView& inView, const InField& inField) const {
    auto* focus = _window.focusWidget();
    if (focus == &_view) {
        inView(_view);
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
