#pragma once

#include "platform/Application.h"

#include <QPointer>
#include <QWidget>

#include <chrono>
#include <optional>

/// The application on the desktop: shows alerts as modal windows.
class DesktopApplication final : public Application {
  public:
    AlertAnswer runModal(const Alert& alert) override;

    /// The window that alerts belong to while none of the application's is active; nullptr for
    /// none.
    void setAlertParent(QWidget* window) { _alertParent = window; }

    /// From now on nothing is asked: an alert closes by itself after that time, which counts as
    /// its alternate answer, and with no time at all it is only logged.
    void limitAlerts(std::chrono::milliseconds limit) { _limit = limit; }

  private:
    [[nodiscard]] QWidget* windowInUse() const;

    QPointer<QWidget> _alertParent;
    std::optional<std::chrono::milliseconds> _limit;
};
