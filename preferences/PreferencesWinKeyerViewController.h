#pragma once

#include "preferences/MBPreferencesModule.h"
#include "preferences/binding/SettingBinder.h"

#include <QObject>

#include <memory>

class WinKeyerUsb;

namespace Ui {
class PreferencesWinKeyerPane;
}

/// The preferences pane of the keyer: its timing, modes, outputs and own messages.
///
/// Each action reads the settings as they are stored at that moment and sends the one command that
/// they belong to, so that a change is heard at once; the control has stored its value before it
/// calls. Nothing is checked: what lies outside a command's range wraps to its low 8 bits, and the
/// controls keep to the range. While no keyer is connected the commands are dropped in silence,
/// and the settings reach the keyer when it is next connected. Main thread only.
class PreferencesWinKeyerViewController final : public QObject, public MBPreferencesModule {
    Q_OBJECT
  public:
    /// The pane's identifier.
    static constexpr QLatin1StringView name{"PreferencesWinKeyerPane"};

    /// Makes the view and binds its controls to their settings and actions. `engine` must outlive
    /// the pane.
    explicit PreferencesWinKeyerViewController(WinKeyerUsb& engine);
    ~PreferencesWinKeyerViewController() override;

    [[nodiscard]] QString title() const override;
    [[nodiscard]] QString identifier() const override;
    [[nodiscard]] QIcon image() const override;
    [[nodiscard]] QWidget* view() const override { return _view.get(); }

  public Q_SLOTS:
    // Actions. But for changeEnableDitDahMemory and sendStandaloneMessage the sender is ignored.

    void changeWeight(const QObject* sender);
    void changeRatio(const QObject* sender);
    void changeFirstExtension(const QObject* sender);
    void changeKeyingCompensation(const QObject* sender);
    /// Key mode, paddle swap, watchdog, echoes, autospace and contest spacing.
    void changeWinKeyer2Mode(const QObject* sender);
    /// Pitch, and whether only the paddle sounds it.
    void changeSidetone(const QObject* sender);
    /// Lead-in and tail.
    void changePTT(const QObject* sender);
    /// Sets the pot up, hands the speed to it, and asks where it stands: three commands.
    void changeSpeedPot(const QObject* sender);
    void changeFarnsworthSpeed(const QObject* sender);
    void changePaddleSwitchpoint(const QObject* sender);
    /// Sends the stored switchpoint when the control is on; else 0, which turns the memory off.
    void changeEnableDitDahMemory(const QObject* sender);
    /// Ultimatic priority, paddle hang time, outputs, sidetone and PTT.
    void changePinConfiguration(const QObject* sender);
    /// Has the keyer key the message of its memory that the control's tag numbers, 1 to 6.
    void sendStandaloneMessage(const QObject* sender);
    /// Loads the settings and the standalone messages into the keyer's memory. Tells the operator
    /// when that fails, and returns once that is answered.
    void saveSettings(const QObject* sender);

  private:
    void setUpCorner();
    /// Tells when neither output is on, as the transmitter stays silent then for no other reason.
    void showWhetherKeyed();

    WinKeyerUsb& _engine;
    std::unique_ptr<QWidget> _view;
    std::unique_ptr<Ui::PreferencesWinKeyerPane> _ui;
    std::unique_ptr<SettingBinder> _binder;
};
