#pragma once

#include <QMetaMethod>
#include <QPointer>

class QWidget;

/// The action that a control names in its dynamic property "action": a slot or invokable
/// `void name(const QObject* sender)` of a controller. Main thread only.
class ControlAction final {
  public:
    /// Throws std::logic_error when the controller has not the action that the control names.
    ControlAction(const QWidget& control, QObject& controller);

    /// Whether the control names an action at all.
    [[nodiscard]] bool isValid() const { return _method.isValid(); }
    /// Calls the action with the control; nothing happens without an action, or when the
    /// controller is gone.
    void call() const;

  private:
    const QWidget* _control;
    QPointer<QObject> _controller;
    QMetaMethod _method;
};
