#pragma once

#include <QObject>

#include <functional>

class KeyboardView;
class QAction;
class QLineEdit;
class QWidget;

/// The items of the Edit menu: they act on the field of the window that has the keyboard. Undo and
/// redo can be chosen only while the keyboard view, if it is that field, has something to take
/// back. To be gone before the widgets of the window are: these give the focus away as they go.
class EditActions final : public QObject {
    Q_OBJECT
  public:
    struct Actions {
        QAction* undo;
        QAction* redo;
        QAction* cut;
        QAction* copy;
        QAction* paste;
        QAction* selectAll;
    };

    /// `window`, whose keyboard view `view` is, must outlive the actions.
    EditActions(QWidget& window, KeyboardView& view, const Actions& actions);

  private:
    using InView = std::function<void(KeyboardView&)>;
    using InField = std::function<void(QLineEdit&)>;

    void connectAction(QAction* action, const InView& inView, const InField& inField);
    void followHistory(const Actions& actions);
    void edit(const InView& inView, const InField& inField) const;

    QWidget& _window;
    KeyboardView& _view;
};
