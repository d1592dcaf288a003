#pragma once

#include <QObject>
#include <QStringList>

#include <memory>

class PreferencesGeneralViewController;

/// Makes the preferences' panes, and opens their window. Main thread only.
class PreferencesController final : public QObject {
    Q_OBJECT
  public:
    using QObject::QObject;

    /// Makes the panes and hands them to the window, which selects one. To be called once, after
    /// all defaults are registered.
    void awakeFromNib();

    /// Shows the preferences window, in front of all others.
    void showPreferences(const QObject* sender);

    /// The serial ports that can be chosen, "None" among them; from awakeFromNib on.
    void setSerialPortNames(const QStringList& names);

  private:
    std::weak_ptr<PreferencesGeneralViewController> _general;
};
