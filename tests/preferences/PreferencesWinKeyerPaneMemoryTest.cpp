#include "keyer/KeyerSettings.h"
#include "preferences/PreferencesWinKeyerViewController.h"
#include "tests/keyer/EngineBench.h"
#include "tests/preferences/PaneOperator.h"
#include "tests/support/RegisteredTest.h"

#include <QProgressBar>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>

#include <optional>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// The page of the keyer's pane that works with the keyer's own memory.
class PreferencesWinKeyerPaneMemoryTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup();

    void buttonsSendTheStandaloneMessages();
    void savingTakesWhatIsBeingTyped();
    void savingShowsItsProgress();
    void savingThatFailsShowsNone();

  private:
    [[nodiscard]] QWidget& view() { return *_controller->view(); }
    [[nodiscard]] SettingsStore& settings() { return _bench->settings(); }
    void showPage() { view().findChild<QTabWidget*>()->setCurrentIndex(4); }

    std::optional<EngineBench> _bench;
    std::optional<PreferencesWinKeyerViewController> _controller;
    std::optional<PaneOperator> _operator;
};

void PreferencesWinKeyerPaneMemoryTest::init() {
    _bench.emplace();
    QVERIFY(_bench->connect());
    _controller.emplace(_bench->engine());
    _operator.emplace(view());
    showPage();
}

void PreferencesWinKeyerPaneMemoryTest::cleanup() {
    _operator.reset();
    _controller.reset();
    _bench.reset();
}

void PreferencesWinKeyerPaneMemoryTest::buttonsSendTheStandaloneMessages() {
    for (auto* button : view().findChildren<QPushButton*>()) {
        if (button->property("action").toString() == u"sendStandaloneMessage") {
            const auto number = button->text().back().digitValue();
            QTest::mouseClick(button, Qt::LeftButton);
            QCOMPARE(_bench->written(), "00 0e 0" + QByteArray::number(number));
            QTest::keyClick(button, Qt::Key_Space);
            QCOMPARE(_bench->written(), "00 0e 0" + QByteArray::number(number));
        }
    }
}

void PreferencesWinKeyerPaneMemoryTest::savingTakesWhatIsBeingTyped() {
    _operator->type(WKStandaloneCommandSpeed, u"25"_s);
    QCOMPARE(settings().integerForKey(WKStandaloneCommandSpeed), 10);
    // As a screen reader presses it: the focus stays in the field.
    view().findChild<QPushButton*>(u"save"_s)->click();
    QCOMPARE(settings().integerForKey(WKStandaloneCommandSpeed), 25);
    const auto saved = _bench->written();
    _controller->saveSettings(nullptr);
    QCOMPARE(saved, _bench->written());
}

void PreferencesWinKeyerPaneMemoryTest::savingShowsItsProgress() {
    auto* save = view().findChild<QPushButton*>(u"save"_s);
    auto* progress = view().findChild<QProgressBar*>();
    QVERIFY(!progress->isVisible());
    QTest::mouseClick(save, Qt::LeftButton);
    QVERIFY(_bench->written().startsWith("00 0d a5"));
    QVERIFY(progress->isVisible());
    _operator->enter(WKWeighting, u"-12"_s); // the pane stays usable
    QCOMPARE(_bench->written(), "03 26");
    showPage();
    _bench->clock().advance(3s);
    QVERIFY(!progress->isVisible());
    QVERIFY(_bench->platform().application().alerts().isEmpty());
}

void PreferencesWinKeyerPaneMemoryTest::savingThatFailsShowsNone() {
    settings().setObject(u"GR\u00DCN"_s, WKStandaloneMessages[0]);
    QTest::mouseClick(view().findChild<QPushButton*>(u"save"_s), Qt::LeftButton);
    QCOMPARE(_bench->platform().application().alerts().size(), 1);
    QVERIFY(!view().findChild<QProgressBar*>()->isVisible());
    QCOMPARE(_bench->written(), "");
}

static const RegisteredTest<PreferencesWinKeyerPaneMemoryTest> registered;
#include "PreferencesWinKeyerPaneMemoryTest.moc"
