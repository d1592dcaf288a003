#pragma once

#include "platform/Application.h"

#include <QList>

#include <functional>

/// Answers alerts without a window: with the answers that a test has laid out, in turn, then
/// always with the default one.
class RecordingApplication final : public Application {
  public:
    [[nodiscard]] const QList<Alert>& alerts() const { return _alerts; }
    void clear() { _alerts.clear(); }

    void answerNext(AlertAnswer answer) { _answers.append(answer); }

    /// Runs while each alert is up, as an event loop of its own would.
    void setWhileShown(std::function<void(const Alert&)> action) {
        _whileShown = std::move(action);
    }

    AlertAnswer runModal(const Alert& alert) override;

  private:
    QList<Alert> _alerts;
    QList<AlertAnswer> _answers;
    std::function<void(const Alert&)> _whileShown;
};
