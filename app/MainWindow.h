#pragma once

#include <QMainWindow>

#include <memory>

class QLineEdit;
class WinKeyerUsb;

namespace Ui {
class MainWindow;
}

/// The station console: message buttons, the keyboard view, and the keyer's state. Its controls
/// are wired straight to the keyer engine's actions.
class MainWindow final : public QMainWindow {
    Q_OBJECT
  public:
    /// `engine` must outlive the window.
    explicit MainWindow(WinKeyerUsb& engine);
    ~MainWindow() override;

    /// The field for the other station's call sign.
    [[nodiscard]] QLineEdit& hisCallsignTextField() const;

  private:
    void setUpMessageButtons();
    void setUpContact();
    void setUpPause();
    void showMessageLabels();
    void showSpeed();

    WinKeyerUsb& _engine;
    std::unique_ptr<Ui::MainWindow> _ui;
};
