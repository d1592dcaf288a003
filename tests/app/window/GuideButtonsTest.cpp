#include "app/window/Guide.h"
#include "preferences/GuideButton.h"
#include "preferences/MBPreferencesController.h"
#include "preferences/PreferencesController.h"
#include "tests/app/window/MainWindowFixture.h"
#include "tests/support/RegisteredTest.h"

#include <QSignalSpy>
#include <QTabWidget>
#include <QTest>

using namespace Qt::StringLiterals;

/// The "?" of each pane of the preferences, and what it opens.
class GuideButtonsTest : public QObject, private MainWindowFixture {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup();

    void everyPageAsksForItsChapter();
    void aClickOpensIt();
    void theFocusComesByTabAlone();

  private:
    [[nodiscard]] static const MBPreferencesController::Modules& panes() {
        return *MBPreferencesController::sharedController().modules();
    }
    [[nodiscard]] static GuideButton& buttonOf(const MBPreferencesModule& pane) {
        return *pane.view()->findChild<GuideButton*>();
    }

    std::optional<PreferencesController> _preferences;
};

void GuideButtonsTest::init() {
    open();
    _preferences.emplace(_bench->engine());
    QObject::connect(&*_preferences, &PreferencesController::guideRequested, &*_window,
                     &MainWindow::showGuide);
    _preferences->showPreferences(nullptr);
}

void GuideButtonsTest::cleanup() {
    _preferences.reset();
    close();
}

void GuideButtonsTest::everyPageAsksForItsChapter() {
    const Guide guide;
    QStringList asked;
    for (const auto& pane : panes()) {
        auto& button = buttonOf(*pane);
        auto* pages = pane->view()->findChild<QTabWidget*>();
        for (int page = 0; page < (pages != nullptr ? pages->count() : 1); ++page) {
            if (pages != nullptr) {
                pages->setCurrentIndex(page);
            }
            QVERIFY2(guide.indexOf(button.chapter()) >= 0, qPrintable(button.chapter()));
            asked.append(button.chapter());
        }
    }
    QCOMPARE(asked, QStringList({u"preferences"_s, u"messages"_s, u"keying"_s, u"paddle"_s,
                                 u"outputs"_s, u"speed"_s, u"standalone"_s}));
}

void GuideButtonsTest::aClickOpensIt() {
    const Guide guide;
    for (const auto& pane : panes()) {
        MBPreferencesController::sharedController().changeToModule(pane);
        auto& button = buttonOf(*pane);
        button.click();
        const auto& chapter = guide.chapters()[guide.indexOf(button.chapter())];
        const auto* window = _window->findChild<QWidget*>(u"guidePage"_s);
        QVERIFY(window != nullptr && window->isVisible());
        QCOMPARE(window->accessibleName(), chapter.title);
    }
    QCOMPARE(_bench->written(), "");
}

void GuideButtonsTest::theFocusComesByTabAlone() {
    for (const auto& pane : panes()) {
        const auto& button = buttonOf(*pane);
        QCOMPARE(button.focusPolicy(), Qt::TabFocus);
        QVERIFY(!button.accessibleName().isEmpty() && !button.toolTip().isEmpty());
    }
}

static const RegisteredTest<GuideButtonsTest> registered;
#include "GuideButtonsTest.moc"
