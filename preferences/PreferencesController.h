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

    /// What the launch owes: a pane is selected, and remembered. The window that shows it, a third
    /// of what the program would have to do at its start, is made when somebody asks for it.
    static void launch();

    /// Makes the panes and hands them to the window, which selects one; once, after all defaults
    /// are registered. A second call does nothing.
    void awakeFromNib();

    /// Shows the preferences window, in front of all others, with the pane that was shown last.
    void showPreferences(const QObject* sender);
    /// The same with the pane of the serial port.
    void showPortChoice(const QObject* sender);

    /// The serial ports that can be chosen, "None" among them.
    void setSerialPortNames(const QStringList& names);

  Q_SIGNALS:
    /// The guide is wanted, at the chapter of that name.
    void guideRequested(const QString& chapter);

  private:
    WinKeyerUsb& _engine;
    QStringList _portNames;
    std::weak_ptr<PreferencesGeneralViewController> _general;
};
