#include "preferences/binding/ControlAction.h"

#include <QWidget>

#include <stdexcept>

namespace {

QMetaMethod methodOf(const QWidget& control, const QObject& controller) {
    const auto name = control.property("action").toByteArray();
    if (name.isEmpty()) {
        return {};
    }
    const auto* type = controller.metaObject();
    const auto index = type->indexOfMethod(name + "(const QObject*)");
    if (index < 0) {
        throw std::logic_error(name.toStdString() + " is no action of this pane.");
    }
    return type->method(index);
}

} // namespace

ControlAction::ControlAction(const QWidget& control, QObject& controller)
    : _control(&control), _controller(&controller), _method(methodOf(control, controller)) {}

void ControlAction::call() const {
    if (_controller && isValid()) {
        const QObject* sender = _control;
        _method.invoke(_controller, Qt::DirectConnection, Q_ARG(const QObject*, sender));
    }
}
