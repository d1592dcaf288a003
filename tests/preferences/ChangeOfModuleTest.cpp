#include "preferences/MBPreferencesController.h"

#include "tests/preferences/PreferencesWindowBench.h"
#include "tests/support/RegisteredTest.h"

#include <QTimer>

#include <algorithm>
#include <functional>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// Hands on the events of one type that reach an object.
class Watcher final : public QObject {
  public:
    Watcher(QObject& watched, QEvent::Type type, std::function<void()> action)
        : _type(type), _action(std::move(action)) {
        watched.installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == _type) {
            _action();
        }
        return QObject::eventFilter(watched, event);
    }

  private:
    QEvent::Type _type;
    std::function<void()> _action;
};

} // namespace

class ChangeOfModuleTest : public QObject, private PreferencesWindowBench {
    Q_OBJECT

  private Q_SLOTS:
    void init() { setUp(); }
    void cleanup() { tearDown(); }

    void changingTakesNineStepsInOrder_data();
    void changingTakesNineStepsInOrder();
    void theTopLeftCornerStays();
    void theWindowGrowsInSteps();
    void aWindowThatIsNotSeenChangesAtOnce();
    void aChangeWithinAChangeIsTheLast();
    void aModuleThatChangesTheModuleIsFollowed_data();
    void aModuleThatChangesTheModuleIsFollowed();
    void aWindowClosedWhileItGrowsIsWhole();
    void quittingWhileTheWindowGrowsIsSafe();
};

void ChangeOfModuleTest::changingTakesNineStepsInOrder_data() {
    QTest::addColumn<bool>("isShown");
    QTest::newRow("in a window on the screen") << true;
    QTest::newRow("in a window that is not seen") << false;
}

void ChangeOfModuleTest::changingTakesNineStepsInOrder() {
    QFETCH(bool, isShown);
    controller().setModules(list({_one, _two}));
    if (isShown) {
        show(40);
    }
    QStringList steps;
    const auto note = [&steps](const QString& step) {
        if (!steps.contains(step)) {
            steps.append(step);
        }
    };
    auto& window = controller().window();
    const Watcher oldView(*_one->view(), QEvent::ParentChange, [&] { note(u"view out"_s); });
    const Watcher resized(window, QEvent::Resize, [&] { note(u"frame"_s); });
    QObject::connect(toolbar().actions().constLast(), &QAction::toggled, &oldView, [&] {
        if (contentSize() == QSize(500, 350)) {
            note(u"item"_s);
        }
    });
    QObject::connect(&window, &QWidget::windowTitleChanged, &oldView, [&] { note(u"title"_s); });
    _two->setWhenDisplayed([&] {
        const bool isOldCurrent = controller().currentModule() == _one;
        note(isOldCurrent ? u"will be displayed"_s : u"current too early"_s);
    });
    const Watcher newView(*_two->view(), QEvent::ParentChange, [&] {
        note(controller().currentModule() == _two ? u"current"_s : u"current too late"_s);
        note(u"view in"_s);
    });
    QObject::connect(&_platform->settings(), &SettingsStore::changed, &oldView,
                     [&] { note(u"remembered"_s); });
    controller().changeToModule(_two);
    // That an item is only noted in a window of the right size tells of the frame as well.
    QCOMPARE(steps.indexOf(u"frame"_s), isShown ? 1 : -1);
    steps.removeAll(u"frame"_s);
    QCOMPARE(steps, QStringList({u"view out"_s, u"item"_s, u"title"_s, u"will be displayed"_s,
                                 u"current"_s, u"view in"_s, u"remembered"_s}));
}

void ChangeOfModuleTest::theTopLeftCornerStays() {
    controller().setModules(list({_one, _two, _three}));
    show(20);
    auto& window = controller().window();
    window.move(60, 70);
    const auto corner = window.frameGeometry().topLeft();
    const auto bottom = window.frameGeometry().bottom();
    controller().changeToModule(_two);
    QCOMPARE(window.frameGeometry().topLeft(), corner);
    QCOMPARE(window.frameGeometry().bottom(), bottom + 50);
    QCOMPARE(contentSize(), QSize(500, 350));
    controller().changeToModule(_three);
    QCOMPARE(window.frameGeometry().topLeft(), corner);
    QCOMPARE(window.frameGeometry().bottom(), bottom - 200);
    QCOMPARE(contentSize(), QSize(350, 100));
}

void ChangeOfModuleTest::theWindowGrowsInSteps() {
    controller().setModules(list({_one, _three}));
    show(200);
    QList<int> heights;
    const Watcher frame(controller().window(), QEvent::Resize,
                        [&] { heights.append(contentSize().height()); });
    controller().changeToModule(_three);
    QVERIFY2(heights.size() > 2, qPrintable(QString::number(heights.size())));
    QVERIFY(std::is_sorted(heights.crbegin(), heights.crend()));
    QCOMPARE(heights.constLast(), 100);
}

void ChangeOfModuleTest::aWindowThatIsNotSeenChangesAtOnce() {
    controller().setModules(list({_one, _two}));
    _style.emplace(3'600'000);
    controller().window().setStyle(&*_style);
    controller().changeToModule(_two);
    QCOMPARE(contentSize(), QSize(500, 350));
}

void ChangeOfModuleTest::aChangeWithinAChangeIsTheLast() {
    controller().setModules(list({_one, _two, _three}));
    show(100);
    QTimer::singleShot(20, this, [this] { controller().changeToModule(_three); });
    controller().changeToModule(_two);
    QCOMPARE(controller().currentModule().get(), _three.get());
    QCOMPARE(contentSize(), QSize(350, 100));
    QCOMPARE(selectedItem(), u"three"_s);
    QCOMPARE(remembered(), u"three"_s);
    QVERIFY(_two->view()->parent() == nullptr);
    QCOMPARE(_two->timesDisplayed(), 0);
    QVERIFY(_three->view()->isVisible());
}

void ChangeOfModuleTest::aModuleThatChangesTheModuleIsFollowed_data() {
    QTest::addColumn<bool>("isShown");
    QTest::addColumn<bool>("isWithItsView");
    QTest::addColumn<bool>("isBack");
    for (const bool isShown : {false, true}) {
        for (const bool isWithItsView : {false, true}) {
            for (const bool isBack : {false, true}) {
                QTest::addRow("%s window, %s, %s", isShown ? "a shown" : "a hidden",
                              isWithItsView ? "with its view" : "before it is displayed",
                              isBack ? "back" : "to another")
                    << isShown << isWithItsView << isBack;
            }
        }
    }
}

/// Title and view agree, and so do the item and what is remembered.
void ChangeOfModuleTest::aModuleThatChangesTheModuleIsFollowed() {
    QFETCH(const bool, isShown);
    QFETCH(const bool, isWithItsView);
    QFETCH(const bool, isBack);
    controller().setModules(list({_one, _two, _three}));
    if (isShown) {
        show(20);
    }
    const auto& last = isBack ? _one : _three;
    auto isDone = false;
    const auto change = [&] {
        if (!std::exchange(isDone, true)) {
            controller().changeToModule(last);
        }
    };
    const Watcher view(*_two->view(), QEvent::ShowToParent, [&] {
        if (isWithItsView) {
            change();
        }
    });
    if (!isWithItsView) {
        _two->setWhenDisplayed(change);
    }
    controller().changeToModule(_two);
    QVERIFY(isDone);
    QCOMPARE(controller().currentModule(), MBPreferencesController::Module(last));
    QCOMPARE(controller().window().windowTitle(), last->title());
    QCOMPARE(selectedItem(), last->identifier());
    QCOMPARE(remembered(), last->identifier());
    for (const auto& each : {_one, _two, _three}) {
        QCOMPARE(controller().window().isAncestorOf(each->view()), each == last);
    }
    QCOMPARE(contentSize(), last->view()->size());
}

void ChangeOfModuleTest::aWindowClosedWhileItGrowsIsWhole() {
    controller().setModules(list({_one, _two}));
    show(100);
    QTimer::singleShot(20, this, [] { controller().window().close(); });
    controller().changeToModule(_two);
    QVERIFY(!controller().window().isVisible());
    QCOMPARE(contentSize(), QSize(500, 350));
    QCOMPARE(controller().currentModule().get(), _two.get());
    controller().showWindow(nullptr);
    QVERIFY(_two->view()->isVisible());
}

void ChangeOfModuleTest::quittingWhileTheWindowGrowsIsSafe() {
    controller().setModules(list({_one, _two}));
    show(3'600'000);
    QTimer::singleShot(0, this, [this] {
        QTimer::singleShot(20, qApp, [] { QCoreApplication::exit(7); });
        controller().changeToModule(_two);
    });
    QCOMPARE(QApplication::exec(), 7);
    QCOMPARE(controller().currentModule().get(), _two.get());
    QCOMPARE(contentSize(), QSize(500, 350));
    QCOMPARE(remembered(), u"two"_s);
}

static const RegisteredTest<ChangeOfModuleTest> registered;
#include "ChangeOfModuleTest.moc"
