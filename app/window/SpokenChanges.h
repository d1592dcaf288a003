#pragma once

#include <QList>
#include <QObject>

class ChosenSpeed;
class KeyboardView;
class QWidget;
class SpokenNotice;
class SwitchButton;
class WinKeyerUsb;

/// Has a screen reader speak what changes at the station without being where the focus is: switches
/// that a key works, a speed that is set, and text that the paddle dropped. What is keyed is not
/// spoken, for it is heard. Main thread only.
class SpokenChanges final : public QObject {
    Q_OBJECT
  public:
    /// All of them must outlive it.
    SpokenChanges(const WinKeyerUsb& engine, const KeyboardView& view, QWidget* window);

    void follow(const SwitchButton& button);
    /// `label` shows the speed.
    void follow(const ChosenSpeed& speed, const QWidget& label);

  private:
    void followText();

    const WinKeyerUsb& _engine;
    SpokenNotice* _notice;
    qsizetype _unsent = 0;
};
