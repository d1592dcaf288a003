#pragma once

#include <QObject>

/// Hears the Escape key wherever it is pressed in the application and no shortcut of a window takes
/// it: in menus and other popups, in alerts and in side windows. What the key does there besides,
/// such as closing an alert, goes on as ever.
class EscapeKey final : public QObject {
    Q_OBJECT
  public:
    explicit EscapeKey(QObject* parent = nullptr);

  Q_SIGNALS:
    void pressed();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};
