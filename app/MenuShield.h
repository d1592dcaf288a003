#pragma once

#include <QObject>

class QKeyEvent;
class QMenu;

/// Keeps typed text from choosing in a menu: a letter or a space that was meant for the text
/// switches nothing in one that was opened with the mouse. In one that a key opened, which may have
/// been hit by a slip, it chooses no item that keys or sends, which has the property "sends"; nor
/// does Return. An arrow or the like takes either menu over. Escape closes it as ever.
class MenuShield final : public QObject {
    Q_OBJECT
  public:
    explicit MenuShield(QObject* parent = nullptr);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    [[nodiscard]] bool takesKey(const QMenu& menu, const QKeyEvent& event);

    /// Whether the menu that is open, or is opened next, is the mouse's.
    bool _isMouseInUse = false;
    /// Whether the menu that is open has been taken over.
    bool _isTakenOver = false;
};
