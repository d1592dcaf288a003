#include "preferences/MBPreferencesController.h"

#include "keyer/WinKeyerUsb.h"
#include "tests/preferences/PreferencesWindowBench.h"
#include "tests/support/LogKeeper.h"
#include "tests/support/RegisteredTest.h"

#include <QAccessible>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QScreen>
#include <QToolButton>
#include <QVBoxLayout>

#include <array>
#include <atomic>
#include <thread>
#include <vector>

using namespace Qt::StringLiterals;

class MBPreferencesControllerTest : public QObject, private PreferencesWindowBench {
    Q_OBJECT

  private Q_SLOTS:
    void init() { setUp(); }
    void cleanup() { tearDown(); }

    void thereIsOneController();
    void concurrentFirstCallsMakeOneController();
    void theWindowIsEmptyAtFirst();
    void theWindowCanBeMovedAndClosedOnly();
    void theToolbarIsAsItShouldBe();
    void itemsAreTheModules();
    void anUnknownItemIsBare();
    void aPictureThatCannotBeLoadedIsToldOf();
    void theLaterOfTwoLikeModulesIsFound();
    void theFirstModuleIsShownAtFirst();
    void theModuleShownLastIsShownAgain();
    void aModuleThatIsGoneFallsBackToTheFirst();
    void theSameListChangesNothing();
    void aNewListLeavesTheFirstItem();
    void anEmptyListKeepsWhatIsShown();
    void anItemSelectsItsModule();
    void aViewThatIsLeftAtOnceIsNoWindow();
    void aScreenReaderSelectsAModule();
    void theShownModuleCanBeSelectedAgain();
    void otherSendersSelectNothing();
    void aModuleIsSelectedByItsIdentifier();
    void noModuleLeavesTheWindowEmpty();
    void aModuleWithoutViewLeavesTheWindowEmpty();
    void openingCentersTheWindow();
    void aTextThatGrowsHasRoom();
    void closingAndOpeningShowsTheSame();
    void escapeStopsTheKeyer();
    void itemsAreReachedByKeyboard();
    void theFirstControlOfTheModuleHasTheFocus();
    void theEndOfThePlatformEndsAll();
};

void MBPreferencesControllerTest::thereIsOneController() {
    QCOMPARE(&controller(), &MBPreferencesController::sharedController());
    QCOMPARE(controller().parent(), &_platform->platform());
    QVERIFY(controller().modules() == nullptr);
    QVERIFY(controller().currentModule() == nullptr);
}

void MBPreferencesControllerTest::concurrentFirstCallsMakeOneController() {
    std::array<std::atomic<MBPreferencesController*>, 4> seen{};
    std::vector<std::jthread> callers;
    for (auto& each : seen) {
        callers.emplace_back([&each] { each = &MBPreferencesController::sharedController(); });
    }
    for (auto& each : seen) {
        QTRY_VERIFY(each.load() != nullptr);
        QCOMPARE(each.load(), &controller());
    }
    QCOMPARE(controller().thread(), thread());
    QCOMPARE(_platform->platform().findChildren<MBPreferencesController*>().size(), 1);
}

void MBPreferencesControllerTest::theWindowIsEmptyAtFirst() {
    QVERIFY(!controller().window().isVisible());
    QCOMPARE(controller().window().size(), QSize(300, 200));
    QVERIFY(toolbar().actions().isEmpty());
}

void MBPreferencesControllerTest::theWindowCanBeMovedAndClosedOnly() {
    const auto& window = controller().window();
    QCOMPARE(window.minimumSize(), window.maximumSize());
    const auto flags = window.windowFlags();
    QVERIFY(flags.testFlag(Qt::MSWindowsFixedSizeDialogHint));
    QVERIFY(flags.testFlag(Qt::WindowTitleHint));
    QVERIFY(flags.testFlag(Qt::WindowCloseButtonHint));
    QVERIFY(!flags.testFlag(Qt::WindowMinimizeButtonHint));
    QVERIFY(!flags.testFlag(Qt::WindowMaximizeButtonHint));
}

void MBPreferencesControllerTest::theToolbarIsAsItShouldBe() {
    QCOMPARE(toolbar().objectName(), u"PreferencesToolbar"_s);
    QCOMPARE(toolbar().toolButtonStyle(), Qt::ToolButtonTextUnderIcon);
    QVERIFY(!toolbar().isMovable());
    QVERIFY(!toolbar().toggleViewAction()->isVisible());
    QCOMPARE(controller().window().contextMenuPolicy(), Qt::NoContextMenu);
    QCOMPARE(controller().toolbarDefaultItemIdentifiers(), QStringList());
}

void MBPreferencesControllerTest::itemsAreTheModules() {
    controller().setModules(list({_one, _two, _three}));
    const QStringList names{u"one"_s, u"two"_s, u"three"_s};
    QCOMPARE(items(), names);
    QCOMPARE(controller().toolbarAllowedItemIdentifiers(), names);
    QCOMPARE(controller().toolbarSelectableItemIdentifiers(), names);
    for (const auto* item : toolbar().actions()) {
        QCOMPARE(item->text(), u"The "_s + item->objectName());
        QVERIFY(!item->icon().isNull());
        QVERIFY(item->isCheckable());
    }
}

void MBPreferencesControllerTest::anUnknownItemIsBare() {
    controller().setModules(list({_one}));
    const auto item = controller().toolbarItemForItemIdentifier(u"other"_s);
    QCOMPARE(item->objectName(), u"other"_s);
    QCOMPARE(item->text(), QString());
    QVERIFY(item->icon().isNull());
    item->trigger();
    QCOMPARE(_one->timesDisplayed(), 1);
    QCOMPARE(controller().currentModule().get(), _one.get());
}

void MBPreferencesControllerTest::aPictureThatCannotBeLoadedIsToldOf() {
    const LogKeeper log;
    controller().setModules(list({_one, _two}));
    QCOMPARE(log.lines(), QStringList());

    _two->spoilImage();
    const auto item = controller().toolbarItemForItemIdentifier(u"two"_s);
    QCOMPARE(item->text(), u"The two"_s);
    QCOMPARE(log.lines(), QStringList{u"Unable to load the picture of the pane The two"_s});
}

void MBPreferencesControllerTest::theLaterOfTwoLikeModulesIsFound() {
    const auto late = std::make_shared<RecordingModule>(u"one"_s, QSize(200, 200));
    controller().setModules(list({_one, _two, late}));
    QCOMPARE(controller().moduleForIdentifier(u"one"_s).get(), late.get());
    QVERIFY(controller().moduleForIdentifier(u"One"_s) == nullptr);
    toolbar().actions().constFirst()->trigger();
    QCOMPARE(controller().currentModule().get(), late.get());
}

void MBPreferencesControllerTest::theFirstModuleIsShownAtFirst() {
    controller().setModules(list({_one, _two}));
    QCOMPARE(controller().currentModule().get(), _one.get());
    QCOMPARE(selectedItem(), u"one"_s);
    QCOMPARE(remembered(), u"one"_s);
    QCOMPARE(controller().window().windowTitle(), u"The one"_s);
    QCOMPARE(contentSize(), QSize(400, 300));
}

void MBPreferencesControllerTest::theModuleShownLastIsShownAgain() {
    _platform->settings().setObject(u"two"_s, u"MBPreferencesSelection"_s);
    controller().setModules(list({_one, _two}));
    QCOMPARE(controller().currentModule().get(), _two.get());
    QCOMPARE(_one->timesDisplayed(), 0);
    controller().setSelectedPreferenceItemWithIdentifier(u"one"_s);
    QCOMPARE(remembered(), u"one"_s);
}

void MBPreferencesControllerTest::aModuleThatIsGoneFallsBackToTheFirst() {
    _platform->settings().setObject(u"gone"_s, u"MBPreferencesSelection"_s);
    controller().setModules(list({_one, _two}));
    QCOMPARE(controller().currentModule().get(), _one.get());
    QCOMPARE(remembered(), u"one"_s);
}

void MBPreferencesControllerTest::theSameListChangesNothing() {
    const auto modules = list({_one, _two});
    controller().setModules(modules);
    const auto before = toolbar().actions();
    controller().setModules(modules);
    QCOMPARE(toolbar().actions(), before);
    QCOMPARE(_one->timesDisplayed(), 1);
    controller().setModules(list(*modules));
    QCOMPARE(_one->timesDisplayed(), 2);
}

void MBPreferencesControllerTest::aNewListLeavesTheFirstItem() {
    controller().setModules(list({_one, _two}));
    auto* first = toolbar().actions().constFirst();
    controller().setModules(list({_three, _two}));
    QCOMPARE(items(), QStringList({u"one"_s, u"three"_s, u"two"_s}));
    QCOMPARE(toolbar().actions().constFirst(), first);
    QCOMPARE(controller().currentModule().get(), _three.get());
    // The item that is left over has no module any more.
    first->trigger();
    QCOMPARE(controller().currentModule().get(), _three.get());
}

void MBPreferencesControllerTest::anEmptyListKeepsWhatIsShown() {
    controller().setModules(list({_one, _two}));
    controller().setModules(list({}));
    QCOMPARE(items(), QStringList{u"one"_s});
    QCOMPARE(controller().currentModule().get(), _one.get());
    QCOMPARE(remembered(), u"one"_s);
}

void MBPreferencesControllerTest::anItemSelectsItsModule() {
    controller().setModules(list({_one, _two}));
    show(0);
    auto* button = toolbar().widgetForAction(toolbar().actions().constLast());
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(controller().currentModule().get(), _two.get());
    QCOMPARE(selectedItem(), u"two"_s);
    QVERIFY(_two->view()->isVisible());
    QVERIFY(!_one->view()->isVisible());
    QVERIFY(_one->view()->parent() == nullptr);
}

/// As by keys that came faster than the window was painted.
void MBPreferencesControllerTest::aViewThatIsLeftAtOnceIsNoWindow() {
    controller().setModules(list({_one, _two}));
    show(0);
    controller().changeToModule(_two);
    controller().changeToModule(_one);
    QCoreApplication::processEvents();
    QVERIFY(!_two->view()->isVisible());
    QVERIFY(_one->view()->isVisible());
    QVERIFY(controller().window().isActiveWindow());
}

void MBPreferencesControllerTest::aScreenReaderSelectsAModule() {
    controller().setModules(list({_one, _two}));
    show(0);
    auto* button =
        qobject_cast<QToolButton*>(toolbar().widgetForAction(toolbar().actions().constLast()));
    auto* actions = QAccessible::queryAccessibleInterface(button)->actionInterface();
    actions->doAction(actions->actionNames().constFirst());
    QTRY_COMPARE(controller().currentModule().get(), _two.get());
    QCOMPARE(_two->timesDisplayed(), 1);
    QCOMPARE(selectedItem(), u"two"_s);
    QVERIFY(button->isChecked());

    actions->doAction(actions->actionNames().constFirst());
    QTRY_VERIFY(button->isChecked());
    QCOMPARE(selectedItem(), u"two"_s);
    QCOMPARE(_two->timesDisplayed(), 1);
}

void MBPreferencesControllerTest::theShownModuleCanBeSelectedAgain() {
    controller().setModules(list({_one, _two}));
    toolbar().actions().constFirst()->trigger();
    QCOMPARE(_one->timesDisplayed(), 2);
    QCOMPARE(selectedItem(), u"one"_s);
    QVERIFY(_one->view()->parent() != nullptr);
}

void MBPreferencesControllerTest::otherSendersSelectNothing() {
    controller().setModules(list({_one, _two}));
    QObject stranger;
    stranger.setObjectName(u"two"_s);
    controller().selectModule(&stranger);
    controller().selectModule(nullptr);
    QCOMPARE(controller().currentModule().get(), _one.get());
    controller().selectModule(toolbar().actions().constLast());
    QCOMPARE(controller().currentModule().get(), _two.get());
}

void MBPreferencesControllerTest::aModuleIsSelectedByItsIdentifier() {
    controller().setModules(list({_one, _two}));
    controller().setSelectedPreferenceItemWithIdentifier(u"two"_s);
    QCOMPARE(controller().currentModule().get(), _two.get());
}

void MBPreferencesControllerTest::noModuleLeavesTheWindowEmpty() {
    controller().setModules(list({_one, _two}));
    controller().setSelectedPreferenceItemWithIdentifier(u"other"_s);
    QVERIFY(controller().currentModule() == nullptr);
    QVERIFY(_one->view()->parent() == nullptr);
    QCOMPARE(contentSize().height(), 0);
    QCOMPARE(controller().window().windowTitle(), QString());
    QCOMPARE(selectedItem(), QString());
    QCOMPARE(remembered(), QString());
    controller().setSelectedPreferenceItemWithIdentifier(u"two"_s);
    QCOMPARE(contentSize(), QSize(500, 350));
}

void MBPreferencesControllerTest::aModuleWithoutViewLeavesTheWindowEmpty() {
    _two->dropView();
    controller().setModules(list({_one, _two}));
    controller().changeToModule(_two);
    QCOMPARE(controller().currentModule().get(), _two.get());
    QCOMPARE(contentSize().height(), 0);
    QCOMPARE(_two->timesDisplayed(), 1);
    QCOMPARE(remembered(), u"two"_s);
    controller().changeToModule(_one);
    QVERIFY(_one->view()->parent() != nullptr);
}

void MBPreferencesControllerTest::openingCentersTheWindow() {
    controller().setModules(list({_one}));
    show(0);
    auto& window = controller().window();
    const auto middle = window.screen()->availableGeometry().center();
    for (int i = 0; i < 2; ++i) {
        const auto distance = window.frameGeometry().center() - middle;
        // The frame is not known before the window is first shown.
        QVERIFY(distance.manhattanLength() <= 4);
        window.move(3, 4);
        if (i == 0) {
            window.close();
        }
        controller().showWindow(nullptr);
    }
    QVERIFY((window.frameGeometry().center() - middle).manhattanLength() <= 2);
}

void MBPreferencesControllerTest::aTextThatGrowsHasRoom() {
    auto* layout = new QVBoxLayout(_one->view());
    auto* label = new QLabel(u"Few words."_s);
    label->setWordWrap(true);
    layout->addWidget(label);
    _one->view()->resize(300, 60);
    controller().setModules(list({_one, _two}));
    controller().showWindow(this);
    const auto before = controller().window().frameGeometry();
    label->setText(u"A good many words, which need more than one line or two. "_s.repeated(6));
    QTRY_VERIFY(label->height() >= label->heightForWidth(label->width()));
    QCOMPARE(controller().window().frameGeometry().topLeft(), before.topLeft());
    QCOMPARE(controller().window().frameGeometry().width(), before.width());
    // And from the beginning, when it is shown next.
    controller().changeToModule(_two);
    label->setText(u"Still more words, and all of them have to be read. "_s.repeated(12));
    controller().changeToModule(_one);
    QVERIFY(label->height() >= label->heightForWidth(label->width()));
}

void MBPreferencesControllerTest::closingAndOpeningShowsTheSame() {
    controller().setModules(list({_one, _two}));
    show(0);
    controller().changeToModule(_two);
    QTest::keyClick(&controller().window(), Qt::Key_W, Qt::ControlModifier);
    QVERIFY(!controller().window().isVisible());
    controller().showWindow(nullptr);
    QVERIFY(controller().window().isVisible());
    QVERIFY(_two->view()->isVisible());
}

void MBPreferencesControllerTest::escapeStopsTheKeyer() {
    controller().setModules(list({_one}));
    show(0);
    auto& engine = WinKeyerUsb::sharedInstance();
    engine.setKeyboardBuffer(u"CQ TEST"_s);
    QTest::keyClick(&controller().window(), Qt::Key_Escape);
    QCOMPARE(engine.keyboardBuffer(), u""_s);
    QVERIFY(controller().window().isVisible());
    engine.setKeyboardBuffer(u"CQ TEST"_s);
    controller().cancel(this);
    QCOMPARE(engine.keyboardBuffer(), u""_s);
}

void MBPreferencesControllerTest::itemsAreReachedByKeyboard() {
    controller().setModules(list({_one, _two}));
    show(0);
    toolbar().widgetForAction(toolbar().actions().constFirst())->setFocus(Qt::TabFocusReason);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    QCOMPARE(controller().currentModule().get(), _two.get());
}

void MBPreferencesControllerTest::theFirstControlOfTheModuleHasTheFocus() {
    QLineEdit disabled(_one->view());
    disabled.setEnabled(false);
    QLineEdit first(_one->view());
    QLineEdit second(_one->view());
    QLineEdit other(_two->view());
    controller().setModules(list({_one, _two}));
    show(0);
    QCOMPARE(QApplication::focusWidget(), &first);
    QTest::mouseClick(toolbar().widgetForAction(toolbar().actions().constLast()), Qt::LeftButton);
    QCOMPARE(QApplication::focusWidget(), &other);
}

void MBPreferencesControllerTest::theEndOfThePlatformEndsAll() {
    controller().setModules(list({_one, _two}));
    show(0);
    const std::weak_ptr<RecordingModule> module = _one;
    _one.reset();
    const QPointer<QMainWindow> window = &controller().window();
    // A module that somebody else keeps keeps its view, shown or not.
    controller().changeToModule(_two);
    const QPointer<QWidget> view = _two->view();
    _platform.reset();
    QVERIFY(window.isNull());
    QVERIFY(module.expired());
    QVERIFY(!view.isNull());
}

static const RegisteredTest<MBPreferencesControllerTest> registered;
#include "MBPreferencesControllerTest.moc"
