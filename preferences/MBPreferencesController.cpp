#include "preferences/MBPreferencesController.h"

#include "keyer/WinKeyerUsb.h"
#include "platform/Log.h"
#include "platform/Platform.h"
#include "preferences/WindowFrame.h"

#include <QAction>
#include <QActionGroup>
#include <QCoreApplication>
#include <QEventLoop>
#include <QPointer>
#include <QScreen>
#include <QShortcut>
#include <QStyle>
#include <QThread>
#include <QToolBar>
#include <QVBoxLayout>
#include <QVariantAnimation>
#include <QWindow>

#include <algorithm>
#include <mutex>
#include <stdexcept>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView MBPreferencesSelection{"MBPreferencesSelection"};

/// The first widget of the view that the Tab key reaches; nullptr if there is none.
QWidget* firstControl(const QWidget& view) {
    for (auto* each = view.nextInFocusChain(); each != &view; each = each->nextInFocusChain()) {
        if (view.isAncestorOf(each) && each->isEnabled() &&
            (each->focusPolicy() & Qt::TabFocus) == Qt::TabFocus) {
            return each;
        }
    }
    return nullptr;
}

} // namespace

MBPreferencesController& MBPreferencesController::sharedController() {
    static std::mutex mutex;
    static QPointer<MBPreferencesController> shared;
    const auto make = [] {
        const std::lock_guard lock(mutex);
        if (shared.isNull()) {
            shared = new MBPreferencesController;
            shared->setParent(&Platform::current());
        }
    };
    if (QThread::currentThread() == QCoreApplication::instance()->thread()) {
        make();
    } else if (!Platform::current().mainQueue()->sync(make, {})) {
        throw std::logic_error("The program has ended.");
    }
    const std::lock_guard lock(mutex);
    return *shared;
}

MBPreferencesController::MBPreferencesController() : _contentView(new QWidget) {
    _window.setWindowFlags(Qt::Window | Qt::MSWindowsFixedSizeDialogHint | Qt::CustomizeWindowHint |
                           Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                           Qt::WindowCloseButtonHint);
    _window.setContextMenuPolicy(Qt::NoContextMenu); // it would hide the toolbar
    _window.setCentralWidget(_contentView);
    auto* layout = new QVBoxLayout(_contentView);
    layout->setContentsMargins({});
    setUpToolbar();
    setUpKeys();
    _window.installEventFilter(this);
    _window.setFixedSize(300, 200);
}

MBPreferencesController::~MBPreferencesController() {
    // The module owns its view, which must not go with the window first.
    takeViewOut();
}

void MBPreferencesController::rememberOneOf(const QStringList& identifiers) {
    auto& settings = SettingsStore::standardUserDefaults();
    if (!identifiers.contains(settings.stringForKey(MBPreferencesSelection))) {
        settings.setObject(identifiers.constFirst(), MBPreferencesSelection);
    }
}

void MBPreferencesController::setUpToolbar() {
    _toolbar = _window.addToolBar(tr("Preferences"));
    _toolbar->setObjectName(u"PreferencesToolbar"_s);
    _toolbar->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    _toolbar->setIconSize({32, 32});
    _toolbar->setMovable(false);
    _toolbar->toggleViewAction()->setVisible(false);
    _items = new QActionGroup(_toolbar);
}

void MBPreferencesController::setUpKeys() {
    const auto* escape = new QShortcut(Qt::Key_Escape, &_window);
    connect(escape, &QShortcut::activated, this, [this, escape] { cancel(escape); });
    const auto* close = new QShortcut(QKeySequence::Close, &_window);
    connect(close, &QShortcut::activated, &_window, &QWidget::close);
}

void MBPreferencesController::setModules(const std::shared_ptr<const Modules>& modules) {
    if (modules == _modules) {
        return;
    }
    _modules = modules;
    rebuildToolbarItems();
    if (_modules == nullptr || _modules->isEmpty()) {
        return;
    }
    const auto& settings = SettingsStore::standardUserDefaults();
    const auto last = moduleForIdentifier(settings.stringForKey(MBPreferencesSelection));
    changeToModule(last != nullptr ? last : _modules->constFirst());
}

void MBPreferencesController::rebuildToolbarItems() {
    const auto items = _toolbar->actions();
    for (auto i = items.size() - 1; i >= 1; --i) {
        _toolbar->removeAction(items.at(i));
        items.at(i)->deleteLater(); // it may be the one that led here
    }
    for (const auto& identifier : toolbarAllowedItemIdentifiers()) {
        auto* item = toolbarItemForItemIdentifier(identifier).release();
        item->setParent(_toolbar);
        _items->addAction(item);
        _toolbar->addAction(item);
        _toolbar->widgetForAction(item)->setFocusPolicy(Qt::TabFocus);
    }
}

QStringList MBPreferencesController::toolbarAllowedItemIdentifiers() const {
    QStringList identifiers;
    if (_modules != nullptr) {
        for (const auto& module : *_modules) {
            identifiers.append(module->identifier());
        }
    }
    return identifiers;
}

QStringList MBPreferencesController::toolbarSelectableItemIdentifiers() const {
    return toolbarAllowedItemIdentifiers();
}

std::unique_ptr<QAction>
MBPreferencesController::toolbarItemForItemIdentifier(const QString& identifier) {
    auto item = std::make_unique<QAction>();
    item->setObjectName(identifier);
    if (const auto module = moduleForIdentifier(identifier)) {
        item->setText(module->title());
        const auto image = module->image();
        if (image.pixmap(_toolbar->iconSize()).isNull()) {
            // Qt says nothing when a plugin that it draws pictures with is not installed.
            logLine(u"Unable to load the picture of the pane %1"_s.arg(module->title()));
        }
        item->setIcon(image);
        item->setCheckable(true);
        connect(item.get(), &QAction::triggered, this,
                [this, sender = item.get()] { selectModule(sender); });
        connect(item.get(), &QAction::toggled, this, [this, sender = item.get()] {
            QMetaObject::invokeMethod(
                sender, [this, sender, change = _changes] { followItem(*sender, change); },
                Qt::QueuedConnection);
        });
    }
    return item;
}

/// A screen reader switches an item on or off without triggering it: what nothing has followed when
/// the event loop comes round is followed here.
void MBPreferencesController::followItem(QAction& item, int change) {
    if (change != _changes) {
        return;
    }
    const bool isShown = moduleForIdentifier(item.objectName()) == _currentModule;
    if (item.isChecked() && !isShown) {
        selectModule(&item);
    } else if (isShown && _items->checkedAction() == nullptr) {
        item.setChecked(true);
    }
}

MBPreferencesController::Module
MBPreferencesController::moduleForIdentifier(const QString& identifier) const {
    Module found;
    if (_modules != nullptr) {
        for (const auto& module : *_modules) {
            if (module->identifier() == identifier) {
                found = module;
            }
        }
    }
    return found;
}

void MBPreferencesController::showWindow(const QObject*) {
    center();
    _window.show();
    _window.raise();
    _window.activateWindow();
}

void MBPreferencesController::center() {
    const auto frame =
        WindowFrame::centered(_window.frameGeometry(), _window.screen()->availableGeometry());
    _isCenteredWithoutFrame = frame.size() == _window.size();
    _window.move(frame.topLeft());
}

/// A window manager gives the window its frame only once it is shown for the first time.
void MBPreferencesController::centerInFrame() {
    auto* handle = _window.windowHandle();
    if (!_isCenteredWithoutFrame || handle == nullptr || handle->frameMargins().isNull()) {
        return;
    }
    _isCenteredWithoutFrame = false;
    const auto frame =
        WindowFrame::centered(handle->frameGeometry(), _window.screen()->availableGeometry());
    handle->setFramePosition(frame.topLeft());
}

bool MBPreferencesController::eventFilter(QObject* watched, QEvent* event) {
    if (watched == &_window) {
        centerInFrame();
    } else if (event->type() == QEvent::LayoutRequest) {
        fitGrownView();
    }
    return QObject::eventFilter(watched, event);
}

void MBPreferencesController::selectModule(const QObject* sender) {
    const auto* item = qobject_cast<const QAction*>(sender);
    if (item == nullptr) {
        return;
    }
    if (const auto module = moduleForIdentifier(item->objectName())) {
        changeToModule(module);
    }
}

void MBPreferencesController::setSelectedPreferenceItemWithIdentifier(const QString& identifier) {
    changeToModule(moduleForIdentifier(identifier));
}

void MBPreferencesController::changeToModule(Module module) {
    const auto change = ++_changes;
    takeViewOut();
    setFrame(frameFor(module.get()));
    if (change != _changes) {
        return; // another change has begun and ended meanwhile: it is the later one
    }
    selectToolbarItem(module != nullptr ? module->identifier() : QString());
    _window.setWindowTitle(module != nullptr ? module->title() : QString());
    if (module != nullptr) {
        module->willBeDisplayed();
    }
    if (change != _changes) {
        return; // the module has made another change
    }
    _currentModule = std::move(module);
    showView();
    SettingsStore::standardUserDefaults().setObject(
        _currentModule != nullptr ? QVariant(_currentModule->identifier()) : QVariant(),
        MBPreferencesSelection);
}

void MBPreferencesController::showView() {
    auto* view = _currentModule != nullptr ? _currentModule->view() : nullptr;
    if (view != nullptr) {
        _contentView->layout()->addWidget(view);
        view->installEventFilter(this);
        view->show();
        auto* first = firstControl(*view);
        if (first != nullptr && _window.focusWidget() == nullptr) {
            first->setFocus(); // the window would begin with the toolbar
        }
    }
}

void MBPreferencesController::takeViewOut() {
    auto* view = _currentModule != nullptr ? _currentModule->view() : nullptr;
    if (view != nullptr && view->parentWidget() == _contentView) {
        if (auto* focused = _window.focusWidget(); view->isAncestorOf(focused)) {
            focused->clearFocus(); // else the toolbar had it next
        }
        view->removeEventFilter(this);
        view->hide(); // the layout may be about to show it, which by then is a window of its own
        _contentView->layout()->removeWidget(view);
        view->setParent(nullptr);
    }
}

QRect MBPreferencesController::frameFor(const MBPreferencesModule* module) const {
    auto* view = module != nullptr ? module->view() : nullptr;
    // A view that was laid out for another font, or for less text, may need more than it had.
    auto content = view != nullptr ? view->size().expandedTo(view->minimumSizeHint()) : QSize(0, 0);
    if (view != nullptr && view->hasHeightForWidth()) {
        content.setHeight(std::max(content.height(), view->heightForWidth(content.width())));
    }
    const auto toolbar = QSize(0, _toolbar->sizeHint().height());
    const auto border = _window.frameGeometry().size() - _window.size();
    return WindowFrame::forContent(_window.frameGeometry(), content, toolbar + border);
}

QSize MBPreferencesController::sizeIn(const QRect& frame) const {
    return frame.size() - (_window.frameGeometry().size() - _window.size());
}

/// The text of a label that wraps may have become longer.
void MBPreferencesController::fitGrownView() {
    const auto* view = _currentModule != nullptr ? _currentModule->view() : nullptr;
    if (view != nullptr && view->parentWidget() == _contentView) {
        const auto size = sizeIn(frameFor(_currentModule.get()));
        if (size != _window.size()) {
            _window.setFixedSize(size);
        }
    }
}

/// A window on the screen grows and shrinks before the operator's eyes. Nothing that the operator
/// does comes in between; the keyer and the clock go on, and may begin a later change, which then
/// has the window.
void MBPreferencesController::setFrame(const QRect& frame) {
    const auto size = sizeIn(frame);
    const auto resize = [this, change = _changes](const QSize& each) {
        if (change == _changes) {
            _window.setFixedSize(each);
        }
    };
    const auto duration =
        _window.style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, &_window);
    if (_window.isVisible() && duration > 0) {
        QVariantAnimation growth;
        growth.setDuration(duration);
        growth.setEasingCurve(QEasingCurve::InOutQuad);
        growth.setStartValue(_window.size());
        growth.setEndValue(size);
        QEventLoop untilGrown;
        connect(&growth, &QVariantAnimation::valueChanged, &untilGrown,
                [resize](const QVariant& each) { resize(each.toSize()); });
        connect(&growth, &QVariantAnimation::finished, &untilGrown, &QEventLoop::quit);
        growth.start();
        untilGrown.exec(QEventLoop::ExcludeUserInputEvents);
    }
    resize(size);
}

void MBPreferencesController::selectToolbarItem(const QString& identifier) {
    for (auto* item : _toolbar->actions()) {
        item->setChecked(item->objectName() == identifier);
    }
}

void MBPreferencesController::cancel(const QObject* sender) {
    WinKeyerUsb::sharedInstance().stopMessageSending(sender);
}
