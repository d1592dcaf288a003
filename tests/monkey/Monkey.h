#pragma once

#include "tests/monkey/MonkeyStation.h"

#include <QDeadlineTimer>
#include <QObject>
#include <QRandomGenerator>

class QWidget;

/// Uses the whole program without sense, one step after the other, from the event loop and from
/// those that its alerts and menus run; then closes what is open, and ends the event loop.
class Monkey final : public QObject {
    Q_OBJECT
  public:
    Monkey(MonkeyStation& station, quint32 seed, std::chrono::milliseconds time);

    [[nodiscard]] quint64 steps() const { return _steps; }

  private:
    void step();
    void act();
    void close();
    [[nodiscard]] int below(int bound);
    [[nodiscard]] QString anyText();
    [[nodiscard]] QWidget* anyWindow();
    [[nodiscard]] QWidget* anyWidget();
    void pressKey();
    void type();
    void click();
    void drag();
    void dropText();
    void compose();
    void chooseFromMenu();
    void openContextMenu();
    void speakForKeyer();
    void plug();
    void sleepOrWake();
    void passTime();
    void resize();
    void changeSettingElsewhere();
    void closeSideWindow();

    MonkeyStation& _station;
    QRandomGenerator _random;
    QDeadlineTimer _end;
    quint64 _steps = 0;
    int _depth = 0;
};
