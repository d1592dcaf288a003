#pragma once

#include <QObject>

class QKeyEvent;

/// Keeps typed text from choosing in a menu that was opened with the mouse: a letter or a space
/// that was meant for the text switches nothing. Such a menu is worked with the mouse, until an
/// arrow or the like takes it over. Escape closes it as ever.
class MenuShield final : public QObject {
    Q_OBJECT
  public:
    explicit MenuShield(QObject* parent = nullptr);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    [[nodiscard]] bool takesKey(const QKeyEvent& event);

    /// Whether the menu that is open, or is opened next, is the mouse's.
    bool _isMouseInUse = false;
};
