#pragma once

#include <QObject>
#include <QStringList>

#include <memory>

class PreferencesGeneralViewController;
class WinKeyerUsb;

/// Makes the preferences' panes, and opens their window. Main thread only.
class PreferencesController final : public QObject {
    Q_OBJECT
  public:
    /// `engine` must outlive the panes, which live as long as the preferences' window.
    explicit PreferencesController(WinKeyerUsb& engine);

    /// Makes the panes and hands them to the window, which selects one. To be called once, after
    /// all defaults are registered.
    void awakeFromNib();

    /// Shows the preferences window, in front of all others.
    void showPreferences(const QObject* sender);

    /// The serial ports that can be chosen, "None" among them; from awakeFromNib on.
    void setSerialPortNames(const QStringList& names);

  private:
    WinKeyerUsb& _engine;
    std::weak_ptr<PreferencesGeneralViewController> _general;
};
