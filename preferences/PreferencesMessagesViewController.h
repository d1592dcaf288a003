#pragma once

#include "preferences/MBPreferencesModule.h"
#include "preferences/binding/SettingBinder.h"

#include <QObject>

#include <memory>

class WinKeyerUsb;

namespace Ui {
class PreferencesMessagesPane;
}

/// The preferences pane of the eight messages, the labels of their buttons, and the beacon. Main
/// thread only.
class PreferencesMessagesViewController final : public QObject, public MBPreferencesModule {
    Q_OBJECT
  public:
    /// The pane's identifier.
    static constexpr QLatin1StringView name{"PreferencesMessagesPane"};

    /// Registers the defaults of all that. To be called before any setting is read.
    static void initialize();

    /// `engine` must outlive the pane.
    explicit PreferencesMessagesViewController(const WinKeyerUsb& engine);
    ~PreferencesMessagesViewController() override;

    [[nodiscard]] QString title() const override;
    [[nodiscard]] QString identifier() const override;
    [[nodiscard]] QIcon image() const override;
    [[nodiscard]] QWidget* view() const override { return _view.get(); }

  private:
    void awakeFromNib();
    void explainTokens();

    const WinKeyerUsb& _engine;
    std::unique_ptr<QWidget> _view;
    std::unique_ptr<Ui::PreferencesMessagesPane> _ui;
    std::unique_ptr<SettingBinder> _binder;
};
