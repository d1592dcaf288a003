#pragma once

#include "preferences/MBPreferencesModule.h"

#include <QList>
#include <QMainWindow>
#include <QObject>
#include <QStringList>

#include <memory>

class QAction;
class QActionGroup;
class QToolBar;

/// The preferences window: a toolbar whose items select one module at a time, whose view is then
/// all that the window holds. The module shown last is remembered from one launch to the next.
/// Main thread only, but for sharedController().
class MBPreferencesController final : public QObject {
    Q_OBJECT
  public:
    using Module = std::shared_ptr<MBPreferencesModule>;
    using Modules = QList<Module>;

    /// The one controller of the running program, made at the first call, and its window with it.
    /// Any thread: a window can only be made on the main thread, which others then wait for while
    /// its event loop runs. Throws std::logic_error on another thread once the platform has ended.
    [[nodiscard]] static MBPreferencesController& sharedController();
    ~MBPreferencesController() override;

    /// Remembers the first of these identifiers of modules as the one shown last, unless one of
    /// them is remembered already: what selecting a module does where there is no window yet.
    static void rememberOneOf(const QStringList& identifiers);

    [[nodiscard]] const std::shared_ptr<const Modules>& modules() const { return _modules; }
    /// Puts items for the modules behind the toolbar's first item, which is never removed, and
    /// selects the module that was shown last, else the first. The same list changes nothing.
    void setModules(const std::shared_ptr<const Modules>& modules);
    /// The later of two modules with the same identifier; empty for none.
    [[nodiscard]] Module moduleForIdentifier(const QString& identifier) const;

    /// The module whose view is shown; empty before the first selection.
    [[nodiscard]] const Module& currentModule() const { return _currentModule; }
    void setCurrentModule(const Module& module) { _currentModule = module; }

    /// Puts the window, frame and all, in the middle of its screen and in front of all others.
    void showWindow(const QObject* sender);
    /// Changes to the module of the toolbar's item that sends; another sender is ignored.
    void selectModule(const QObject* sender);
    /// Changes to the module with that identifier, or to none.
    void setSelectedPreferenceItemWithIdentifier(const QString& identifier);
    /// Takes the shown view out of the window, brings the window to the size of the module's view,
    /// its top left corner staying, and shows that view. Returns when the window has its size
    /// and the view; without a module the window is left empty and nothing is remembered. Where
    /// another change begins while the window grows, that one is the last.
    void changeToModule(Module module);
    /// Stops the keyer's sending.
    void cancel(const QObject* sender);

    // What the toolbar may hold, by identifiers.

    [[nodiscard]] QStringList toolbarAllowedItemIdentifiers() const;
    [[nodiscard]] QStringList toolbarSelectableItemIdentifiers() const;
    /// None: the items come with the modules.
    [[nodiscard]] QStringList toolbarDefaultItemIdentifiers() const { return {}; }
    /// A new item, which the caller gives a parent. Bare when no module has the identifier.
    [[nodiscard]] std::unique_ptr<QAction> toolbarItemForItemIdentifier(const QString& identifier);

    [[nodiscard]] QMainWindow& window() { return _window; }

    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    MBPreferencesController();

    void setUpToolbar();
    void setUpKeys();
    void rebuildToolbarItems();
    void followItem(QAction& item, int change);
    void selectToolbarItem(const QString& identifier);
    [[nodiscard]] QRect frameFor(const MBPreferencesModule* module) const;
    [[nodiscard]] QSize sizeIn(const QRect& frame) const;
    void setFrame(const QRect& frame);
    void fitGrownView();
    void center();
    void centerInFrame();
    void showView();
    void takeViewOut();

    QMainWindow _window;
    QWidget* _contentView;
    QToolBar* _toolbar = nullptr;
    QActionGroup* _items = nullptr;
    std::shared_ptr<const Modules> _modules;
    Module _currentModule;
    /// Counts the changes of module: what runs while a window grows may begin another one.
    int _changes = 0;
    /// The window was centred before it had its frame.
    bool _isCenteredWithoutFrame = false;
};
