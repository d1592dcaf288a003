#pragma once

#include "portcheck/PortFacts.h"

#include <QObject>
#include <QString>

class KeyerQuestion;
class PortCheckWindow;
class QWidget;
class WinKeyerUsb;

/// The check of the ports in the running program: its window, and what it goes by. Main thread
/// only.
class PortCheck final : public QObject {
    Q_OBJECT
  public:
    /// `engine` and `parent` must outlive it; the window belongs to the parent.
    PortCheck(WinKeyerUsb& engine, QWidget& parent);
    ~PortCheck() override;

    /// Opens the window, or brings it to the front, and looks anew.
    void show();

    /// What the program knows of its link. A port that was to be opened in vain is forgotten by
    /// the settings, and is the chosen one here.
    [[nodiscard]] LinkFacts link() const;

  private:
    void noteWantedPort();
    [[nodiscard]] PortCheckWindow* makeWindow();

    WinKeyerUsb& _engine;
    QWidget& _parent;
    PortCheckWindow* _window = nullptr;
    QString _wantedPort;
};
