#pragma once

#include <QObject>

#include <optional>

class QAbstractButton;

/// Has a double click on a button be one: what it does once is never meant twice by it, as little
/// as by a third click that follows as fast. Whoever means it twice takes the key, or the time
/// between two clicks. Main thread only.
class SingleClick final : public QObject {
    Q_OBJECT
  public:
    /// The button owns it.
    explicit SingleClick(QAbstractButton& button);

    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    /// When the mouse was last pressed on it, in milliseconds of the events' own clock.
    std::optional<quint64> _lastPress;
};
