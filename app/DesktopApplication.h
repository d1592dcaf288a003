#pragma once

#include "platform/Application.h"

#include <QPointer>
#include <QWidget>

/// The application on the desktop: shows alerts as modal windows.
class DesktopApplication final : public Application {
  public:
    AlertAnswer runModal(const Alert& alert) override;

    /// The window that alerts belong to while none of the application's is active; nullptr for
    /// none.
    void setAlertParent(QWidget* window) { _alertParent = window; }

  private:
    [[nodiscard]] QWidget* windowInUse() const;

    QPointer<QWidget> _alertParent;
};
