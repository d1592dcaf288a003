#pragma once

#include <QObject>

class QWidget;

/// Tells whether a window is there for the operator to see. One that is minimised, or behind
/// others, is. Main thread only.
class WindowWatch final : public QObject {
    Q_OBJECT
  public:
    /// `window` must outlive the watch.
    explicit WindowWatch(QWidget& window, QObject* parent = nullptr);

  Q_SIGNALS:
    void visibleChanged(bool isVisible);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QWidget& _window;
    bool _isVisible;
};
