#pragma once

#include "platform/Application.h"

#include <QList>
#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <chrono>
#include <functional>
#include <optional>

/// The application on the desktop: shows alerts as modal windows.
class DesktopApplication final : public Application {
  public:
    /// What there is to tell by the time it can be told; nothing when it is over.
    using LateAlert = std::function<std::optional<Alert>()>;

    DesktopApplication();

    AlertAnswer runModal(const Alert& alert) override;

    /// Shows an alert from the event loop, and not before any other has been answered.
    void runModalWhenFree(const LateAlert& alert);

    /// The window that alerts belong to while none of the application's is active; nullptr for
    /// none.
    void setAlertParent(QWidget* window) { _alertParent = window; }

    /// From now on nothing is asked: an alert closes by itself after that time, which counts as
    /// its alternate answer, and with no time at all it is only logged.
    void limitAlerts(std::chrono::milliseconds limit) { _limit = limit; }

  private:
    [[nodiscard]] QWidget* windowInUse() const;
    AlertAnswer show(const Alert& alert);
    void showWaiting();

    QPointer<QWidget> _alertParent;
    std::optional<std::chrono::milliseconds> _limit;
    int _alertsUp = 0;
    QList<LateAlert> _waiting;
    QTimer _showSoon;
};
