#include "preferences/PreferencesController.h"

#include "keyer/KeyerSettings.h"
#include "keyer/MessageSettings.h"
#include "keyer/WinKeyerUsb.h"
#include "preferences/MBPreferencesController.h"
#include "preferences/PreferencesGeneral.h"
#include "preferences/PreferencesMessagesViewController.h"
#include "preferences/PreferencesWinKeyer.h"
#include "preferences/binding/ExplanationLine.h"
#include "tests/support/RegisteredTest.h"
#include "tests/support/TestPlatform.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QTabWidget>
#include <QTest>

#include <optional>

using namespace Qt::StringLiterals;

class PreferencesControllerTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup();

    void thePanesAreInOrder();
    void theFirstLaunchShowsTheGeneralPane();
    void thePaneShownLastIsShownAtTheNextLaunch();
    void showingOpensTheOneWindow();
    void eachPaneFitsASmallScreen();
    void nothingOfAPaneCoversAnother();
    void everyExplanationIsSeenWhole();
    void theLinkToAnOrdinaryAdapterIsToldInFull();
    void thePortsReachTheirPane();
    void portsBeforeThePanesAreNoMatter();
    void theLaunchMakesNoWidgets();
    void theLaunchRemembersAPane_data();
    void theLaunchRemembersAPane();
    void theChoiceOfThePortIsShownWhateverWasShownLast();

  private:
    [[nodiscard]] static MBPreferencesController& window() {
        return MBPreferencesController::sharedController();
    }
    void launch() {
        _platform.emplace();
        PreferencesWinKeyer::initialize();
        PreferencesMessagesViewController::initialize();
        PreferencesGeneral::initialize();
    }

    /// Turns to the page that holds the control.
    static void bringToFront(QWidget& control) {
        for (auto* each = &control; each->parentWidget() != nullptr; each = each->parentWidget()) {
            if (auto* pages = qobject_cast<QTabWidget*>(each->parentWidget()->parentWidget())) {
                pages->setCurrentWidget(each);
            }
        }
    }

    std::optional<TestPlatform> _platform;
};

void PreferencesControllerTest::init() {
    launch();
}

void PreferencesControllerTest::cleanup() {
    _platform.reset();
}

void PreferencesControllerTest::thePanesAreInOrder() {
    PreferencesController(WinKeyerUsb::sharedInstance()).awakeFromNib();
    QCOMPARE(window().toolbarAllowedItemIdentifiers(),
             QStringList({u"PreferencesGeneralPane"_s, u"PreferencesMessagesPane"_s,
                          u"PreferencesWinKeyerPane"_s}));
    QVERIFY(!window().window().isVisible());
}

void PreferencesControllerTest::theFirstLaunchShowsTheGeneralPane() {
    PreferencesController(WinKeyerUsb::sharedInstance()).awakeFromNib();
    QCOMPARE(window().currentModule()->identifier(), u"PreferencesGeneralPane"_s);
    QCOMPARE(_platform->settings().stringForKey(u"MBPreferencesSelection"_s),
             u"PreferencesGeneralPane"_s);
}

void PreferencesControllerTest::thePaneShownLastIsShownAtTheNextLaunch() {
    PreferencesController(WinKeyerUsb::sharedInstance()).awakeFromNib();
    window().setSelectedPreferenceItemWithIdentifier(u"PreferencesMessagesPane"_s);
    const auto remembered = _platform->settings().stringForKey(u"MBPreferencesSelection"_s);
    QCOMPARE(remembered, u"PreferencesMessagesPane"_s);
    _platform.reset();
    launch();
    _platform->settings().setObject(remembered, u"MBPreferencesSelection"_s);
    PreferencesController(WinKeyerUsb::sharedInstance()).awakeFromNib();
    QCOMPARE(window().currentModule()->identifier(), u"PreferencesMessagesPane"_s);
}

void PreferencesControllerTest::showingOpensTheOneWindow() {
    PreferencesController controller(WinKeyerUsb::sharedInstance());
    controller.awakeFromNib();
    controller.showPreferences(this);
    QVERIFY(QTest::qWaitForWindowActive(&window().window()));
    QVERIFY(window().currentModule()->view()->isVisible());
}

void PreferencesControllerTest::eachPaneFitsASmallScreen() {
    PreferencesController controller(WinKeyerUsb::sharedInstance());
    controller.awakeFromNib();
    controller.showPreferences(this);
    for (const auto& pane : *window().modules()) {
        window().changeToModule(pane);
        const auto size = window().window().size();
        QVERIFY2(size.width() <= 800 && size.height() <= 600, qPrintable(pane->title()));
        QVERIFY2(pane->view()->minimumSizeHint().width() <= pane->view()->width(),
                 qPrintable(pane->title()));
    }
}

void PreferencesControllerTest::nothingOfAPaneCoversAnother() {
    PreferencesController controller(WinKeyerUsb::sharedInstance());
    controller.awakeFromNib();
    controller.showPreferences(this);
    for (const auto& pane : *window().modules()) {
        window().changeToModule(pane);
        QTest::qWait(0);
        const auto widgets =
            pane->view()->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
        for (const auto* one : widgets) {
            for (const auto* other : widgets) {
                const bool bothAreSeen = one->isVisible() && other->isVisible();
                QVERIFY2(one == other || !bothAreSeen ||
                             !one->geometry().intersects(other->geometry()),
                         qPrintable(one->objectName() + u" and "_s + other->objectName()));
            }
        }
    }
}

/// Also where there is more to tell than usual: of numbers that nobody could have chosen here.
void PreferencesControllerTest::everyExplanationIsSeenWhole() {
    for (const auto& setting : keyerSettings) {
        if (setting.range) {
            _platform->settings().setObject(setting.range->maximum + 100, setting.key);
        }
    }
    _platform->settings().setObject(4000.0, BeaconInterval.key);
    PreferencesController controller(WinKeyerUsb::sharedInstance());
    controller.awakeFromNib();
    controller.showPreferences(this);
    QVERIFY(QTest::qWaitForWindowActive(&window().window()));
    for (const auto& pane : *window().modules()) {
        window().changeToModule(pane);
        auto& line = *pane->view()->findChild<ExplanationLine*>();
        for (auto* control : pane->view()->findChildren<QWidget*>()) {
            if (!control->property("setting").isValid() || !control->isEnabled()) {
                continue;
            }
            bringToFront(*control);
            control->setFocus();
            const auto name = control->objectName().toUtf8();
            QVERIFY2(control->hasFocus(), name);
            QVERIFY2(line.text().contains(u"efault"), name);
            QTRY_VERIFY2(line.height() >= line.heightForWidth(line.width()), name);
            QVERIFY2(pane->view()->rect().contains(line.geometry()), name);
        }
    }
}

void PreferencesControllerTest::theLinkToAnOrdinaryAdapterIsToldInFull() {
    PreferencesController controller(WinKeyerUsb::sharedInstance());
    controller.awakeFromNib();
    controller.showPreferences(this);
    auto* link = window().currentModule()->view()->findChild<QLabel*>(u"linkLabel"_s);
    for (const auto& port : {u"usbserial-A50285BI"_s, u"usbserial-FTDI_FT232R_USB_UART_A50285BI"_s,
                             u"usbserial-Prolific Technology Inc. USB-Serial Controller D"_s}) {
        link->setText(u"Connected to %1; the keyer has not answered yet"_s.arg(port));
        QTRY_VERIFY(link->height() >= link->heightForWidth(link->width()));
        QVERIFY(link->width() >= link->minimumSizeHint().width());
    }
}

void PreferencesControllerTest::thePortsReachTheirPane() {
    PreferencesController controller(WinKeyerUsb::sharedInstance());
    controller.awakeFromNib();
    controller.setSerialPortNames({u"None"_s, u"usbserial-A"_s});
    const auto* chooser = window()
                              .moduleForIdentifier(u"PreferencesGeneralPane"_s)
                              ->view()
                              ->findChild<QComboBox*>(u"serialPortChooser"_s);
    QCOMPARE(chooser->itemText(1), u"usbserial-A"_s);
}

void PreferencesControllerTest::portsBeforeThePanesAreNoMatter() {
    PreferencesController controller(WinKeyerUsb::sharedInstance());
    controller.setSerialPortNames({u"None"_s});
    controller.awakeFromNib();
    QCOMPARE(window().modules()->size(), 3);
}

void PreferencesControllerTest::theLaunchMakesNoWidgets() {
    const auto before = QApplication::allWidgets().size();
    PreferencesController::launch();
    PreferencesController controller(WinKeyerUsb::sharedInstance());
    controller.setSerialPortNames({u"None"_s, u"usbserial-A"_s});
    QCOMPARE(QApplication::allWidgets().size(), before);
    controller.showPreferences(this);
    QVERIFY(QApplication::allWidgets().size() > before + 100);
    const auto* chooser =
        window().currentModule()->view()->findChild<QComboBox*>(u"serialPortChooser"_s);
    QCOMPARE(chooser->itemText(1), u"usbserial-A"_s);
}

void PreferencesControllerTest::theLaunchRemembersAPane_data() {
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    QTest::addRow("the first launch") << QString() << u"PreferencesGeneralPane"_s;
    QTest::addRow("a pane that there is")
        << u"PreferencesWinKeyerPane"_s << u"PreferencesWinKeyerPane"_s;
    QTest::addRow("a pane that there is no more") << u"Other"_s << u"PreferencesGeneralPane"_s;
}

void PreferencesControllerTest::theLaunchRemembersAPane() {
    QFETCH(const QString, before);
    const auto key = u"MBPreferencesSelection"_s;
    if (!before.isNull()) {
        _platform->settings().setObject(before, key);
    }
    PreferencesController::launch();
    QTEST(_platform->settings().stringForKey(key), "after");
    PreferencesController controller(WinKeyerUsb::sharedInstance());
    controller.showPreferences(this);
    QTEST(window().currentModule()->identifier(), "after");
    QCOMPARE(window().modules()->size(), 3);
}

void PreferencesControllerTest::theChoiceOfThePortIsShownWhateverWasShownLast() {
    _platform->settings().setObject(u"PreferencesWinKeyerPane"_s, u"MBPreferencesSelection"_s);
    PreferencesController::launch();
    PreferencesController controller(WinKeyerUsb::sharedInstance());
    controller.showPortChoice(this);
    QVERIFY(window().window().isVisible());
    QCOMPARE(window().currentModule()->identifier(), u"PreferencesGeneralPane"_s);
    const auto modules = window().modules();
    controller.showPreferences(this);
    QCOMPARE(window().modules(), modules);
}

static const RegisteredTest<PreferencesControllerTest> registered;
#include "PreferencesControllerTest.moc"
