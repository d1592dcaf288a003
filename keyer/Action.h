#pragma once

#include <QObject>

/// What an action may ask of the control that sent it, by dynamic or static property, so that
/// nobody who handles actions needs to know a widget.
namespace Action {

/// The control's integer "tag": which of several like controls it is. 0 without one.
[[nodiscard]] int tag(const QObject* sender);

/// The state of a two-state control: 1 on, 0 off, -1 mixed.
/// Its "state" property where it has one, else what "checked" and "checkState" say.
[[nodiscard]] int state(const QObject* sender);

} // namespace Action
