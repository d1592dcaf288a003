#pragma once

#include <QMainWindow>

#include <QString>

#include <memory>

class EditActions;
class BeaconCountdown;
class ChosenSpeed;
class ContactFields;
class GuideWindow;
class HeldMessages;
class KeyboardView;
class QLineEdit;
class TuneSwitch;
class WinKeyerUsb;

namespace Ui {
class MainWindow;
}

/// The station console: message buttons, the keyboard view, and the keyer's state. Its controls
/// are wired straight to the keyer engine's actions, and its menus do all that its controls do.
class MainWindow final : public QMainWindow {
    Q_OBJECT
  public:
    /// `engine` must outlive the window.
    explicit MainWindow(WinKeyerUsb& engine);
    ~MainWindow() override;

    /// The field for the other station's call sign.
    [[nodiscard]] QLineEdit& hisCallsignTextField() const;

    /// The speed, where it is not the knob's.
    [[nodiscard]] ChosenSpeed& speed() const { return *_speed; }

    /// Ends whatever the keyer may be keying, ahead of the end of the link.
    void silenceKeyer();
    /// Lets go of Tune, empties the keyer's buffer, and forgets the text.
    void stop();
    /// Tells the operator in the window what has happened; see NoticeStrip.
    void say(const QString& notice);
    /// Leads a new operator to the first message, in place of the strip that says that there is no
    /// keyer.
    void showFirstSteps();
    /// Offers to start a keyer made of software.
    void offerVirtualKeyer();
    /// Sends the text as if the operator had typed it behind what is there.
    void sendText(const QString& text);
    /// Says in the status line what there is to say of loggers; an empty text for nothing.
    void showLoggers(const QString& notice);
    /// Shows the guide, at the chapter of that name, as "tune", if there is one.
    void showGuide(const QString& chapter = {});
    /// Has the operator see the window, also when it is minimised or closed; with the token that
    /// the desktop gave for that, or an empty one.
    void comeToFront(const QString& activationToken);

  Q_SIGNALS:
    void preferencesRequested();
    /// The preferences, where the port is chosen.
    void portRequested();
    /// The check of the ports, in a window of its own.
    void portCheckRequested();
    /// The record of what was sent.
    void sentRequested();
    /// A keyer made of software.
    void virtualKeyerRequested();
    void quitRequested();
    /// The keyer's port is closed, and the operator wants it connected again.
    void connectionWanted();

  protected:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

  private:
    void setUpKeyboardView();
    void setUpTabOrder();
    void setUpKeys();
    void setUpMessages();
    void setUpNotices();
    void setUpContact();
    void setUpSwitches();
    void setUpSpeed();
    void setUpSpeech();
    void setUpMenus();
    void setUpFirstSteps();
    void enlargeFonts();
    void showNotice();
    void showWaiting();
    void showTitle();
    [[nodiscard]] bool hasSomethingToStop() const;

    WinKeyerUsb& _engine;
    std::unique_ptr<Ui::MainWindow> _ui;
    KeyboardView* _keyboardView = nullptr;
    std::unique_ptr<EditActions> _editActions;
    HeldMessages* _heldMessages = nullptr;
    BeaconCountdown* _beaconCountdown = nullptr;
    ChosenSpeed* _speed = nullptr;
    ContactFields* _contact = nullptr;
    TuneSwitch* _tuneSwitch = nullptr;
    GuideWindow* _guide = nullptr;
    QString _loggers;
};
