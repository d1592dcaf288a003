#pragma once

#include <QAccessible>

/// While it lives, assistive tools are told of no change: for windows in the making, of which
/// nobody knows yet. Each control that is filled would be told of otherwise, and a screen reader,
/// which asks back about each, speaks nothing for ten seconds. Main thread only.
class UnspokenMaking final {
  public:
    UnspokenMaking() : _former(QAccessible::installUpdateHandler([](QAccessibleEvent*) {})) {}
    ~UnspokenMaking() { QAccessible::installUpdateHandler(_former); }
    Q_DISABLE_COPY_MOVE(UnspokenMaking)

  private:
    QAccessible::UpdateHandler _former;
};
