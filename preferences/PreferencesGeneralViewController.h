#pragma once

#include "preferences/MBPreferencesModule.h"
#include "preferences/binding/SettingBinder.h"

#include <QObject>
#include <QStringList>

#include <memory>

class WinKeyerUsb;

namespace Ui {
class PreferencesGeneralPane;
}

/// The preferences pane of the keyer's serial port and the operator's call sign. Main thread only.
class PreferencesGeneralViewController final : public QObject, public MBPreferencesModule {
    Q_OBJECT
  public:
    /// The pane's identifier.
    static constexpr QLatin1StringView name{"PreferencesGeneralPane"};

    /// `engine` must outlive the pane.
    explicit PreferencesGeneralViewController(const WinKeyerUsb& engine);
    ~PreferencesGeneralViewController() override;

    /// The ports that can be chosen, "None" among them. A stored port that is not among them stays
    /// chosen and is shown as absent.
    void setSerialPortNames(const QStringList& names);

    [[nodiscard]] QString title() const override;
    [[nodiscard]] QString identifier() const override;
    [[nodiscard]] QIcon image() const override;
    [[nodiscard]] QWidget* view() const override { return _view.get(); }

  public Q_SLOTS:
    /// Has the application's delegate open the keyer link again, on the port that is stored. A call
    /// from within that, as while an alert is up, is made up for when it has ended.
    void changeSerialPort(const QObject* sender);

  private:
    void showLink();

    const WinKeyerUsb& _engine;
    std::unique_ptr<QWidget> _view;
    std::unique_ptr<Ui::PreferencesGeneralPane> _ui;
    bool _isPortPresent = true;
    bool _isChangingPort = false;
    bool _hasToChangeAgain = false;
    std::unique_ptr<SettingBinder> _binder;
};
