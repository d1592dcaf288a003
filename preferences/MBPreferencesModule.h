#pragma once

#include <QIcon>
#include <QString>

class QWidget;

/// One page of the preferences window. Main thread only.
class MBPreferencesModule {
  public:
    MBPreferencesModule() = default;
    MBPreferencesModule(const MBPreferencesModule&) = delete;
    MBPreferencesModule& operator=(const MBPreferencesModule&) = delete;
    virtual ~MBPreferencesModule() = default;

    /// The label of the toolbar's item, and the window's title.
    [[nodiscard]] virtual QString title() const = 0;
    /// Names the module in the toolbar and in the settings. Of two modules that share one, the
    /// later is found.
    [[nodiscard]] virtual QString identifier() const = 0;
    [[nodiscard]] virtual QIcon image() const = 0;
    /// What the window shows: the module's own, and nobody else's to delete. nullptr for none.
    [[nodiscard]] virtual QWidget* view() const = 0;

    /// The window has taken its size for the module; the view comes into it next.
    virtual void willBeDisplayed() {}
};
