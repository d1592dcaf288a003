#include "app/DesktopApplication.h"

#include "app/KeyShield.h"
#include "serial/ORSSerialPortManager.h"
#include "tests/support/LogKeeper.h"
#include "tests/support/RegisteredTest.h"
#include "tests/support/TestPlatform.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class DesktopApplicationTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void aQuestionIsAnsweredByItsButtons_data();
    void aQuestionIsAnsweredByItsButtons();
    void anAlertTakesNoKeyAtFirst();
    void aStatementHasOneButton();
    void anErrorShowsItsMessageAndSuggestion();
    void textIsShownAsItStands();
    void anAlertStandsAboveTheWindowInUse();
    void anAlertStandsInTheMiddleOfItsWindow();
    void anAlertThatWasMovedStaysThere();
    void devicesThatComeMeanwhileAreAnnouncedAfterwards();
    void whatCanWaitStandsOnNoOtherAlert();
    void whatIsOverByThenIsNotTold();
    void onceItEndsNothingIsAsked();
    void anAlertWithALimitClosesByItself();

  private:
    /// Runs `action` on the alert once it has been up for so long; by then it takes keys.
    void whileShown(std::function<void(QMessageBox&)> action,
                    std::chrono::seconds age = KeyShield::stillness);

    TestPlatform _platform;
    DesktopApplication _application;
    bool _wasShown = false;
};

void DesktopApplicationTest::whileShown(std::function<void(QMessageBox&)> action,
                                        std::chrono::seconds age) {
    _wasShown = false;
    QTimer::singleShot(0, this, [this, age, action = std::move(action)] {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        QVERIFY(box != nullptr);
        _wasShown = true;
        QTRY_VERIFY(box->isActiveWindow());
        _platform.clock().advance(age);
        action(*box);
    });
}

void DesktopApplicationTest::aQuestionIsAnsweredByItsButtons_data() {
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<bool>("isDefault");
    QTest::newRow("Return takes the default button") << Qt::Key_Return << true;
    QTest::newRow("Escape takes the other one") << Qt::Key_Escape << false;
}

void DesktopApplicationTest::aQuestionIsAnsweredByItsButtons() {
    QFETCH(Qt::Key, key);
    QFETCH(bool, isDefault);
    whileShown([key](QMessageBox& box) {
        QCOMPARE(box.buttons().size(), 2);
        QTest::keyClick(box.windowHandle(), key);
    });
    const auto answer = _application.runModal({.messageText = u"Ready?"_s,
                                               .informativeText = {},
                                               .defaultButton = u"Yes"_s,
                                               .alternateButton = u"No"_s});
    QVERIFY(_wasShown);
    QCOMPARE(answer == AlertAnswer::Default, isDefault);
}

void DesktopApplicationTest::anAlertTakesNoKeyAtFirst() {
    whileShown(
        [this](QMessageBox& box) {
            QTest::keyClick(box.windowHandle(), Qt::Key_Space);
            QTest::keyClick(box.windowHandle(), Qt::Key_Return);
            QVERIFY(box.isVisible());
            box.accept();
        },
        0s);
    _application.runModal({.messageText = u"Done."_s, .informativeText = {}});
    QVERIFY(_wasShown);
}

void DesktopApplicationTest::aStatementHasOneButton() {
    whileShown([](QMessageBox& box) {
        QCOMPARE(box.buttons().size(), 1);
        QTest::keyClick(box.windowHandle(), Qt::Key_Escape);
    });
    _application.runModal({.messageText = u"Done."_s, .informativeText = {}});
    QVERIFY(_wasShown);
}

void DesktopApplicationTest::anErrorShowsItsMessageAndSuggestion() {
    whileShown([](QMessageBox& box) {
        QCOMPARE(box.text(), u"It failed."_s);
        QCOMPARE(box.informativeText(), u"Try again."_s);
        box.accept();
    });
    _application.presentError(Error::ofApplication(u"It failed."_s, u"Try again."_s));
    QVERIFY(_wasShown);
}

void DesktopApplicationTest::textIsShownAsItStands() {
    whileShown([](QMessageBox& box) {
        QCOMPARE(box.textFormat(), Qt::PlainText);
        box.accept();
    });
    _application.runModal({.messageText = u"<b>port</b>"_s, .informativeText = {}});
    QVERIFY(_wasShown);
}

void DesktopApplicationTest::anAlertStandsAboveTheWindowInUse() {
    QWidget mainWindow;
    _application.setAlertParent(&mainWindow);
    const auto parentOfAnAlert = [this] {
        const QWidget* parent = nullptr;
        whileShown([&parent](QMessageBox& box) {
            parent = box.parentWidget();
            box.accept();
        });
        _application.runModal({.messageText = u"Done."_s, .informativeText = {}});
        return parent;
    };
    QCOMPARE(parentOfAnAlert(), &mainWindow);

    QWidget preferences;
    mainWindow.show();
    preferences.show();
    preferences.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&preferences));
    QCOMPARE(parentOfAnAlert(), &preferences);
}

/// Wherever that is put, and on the screen.
void DesktopApplicationTest::anAlertStandsInTheMiddleOfItsWindow() {
    QWidget window;
    window.setGeometry(0, 0, 500, 400);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    whileShown([&window](QMessageBox& box) {
        for (const auto place : {QPoint(0, 0), QPoint(120, 90), QPoint(60, 40)}) {
            window.move(place);
            const auto off = box.frameGeometry().center() - window.frameGeometry().center();
            QVERIFY2(off.manhattanLength() <= 2, qPrintable(QString::number(off.x())));
        }
        const auto screen = window.screen()->availableGeometry();
        window.move(screen.bottomRight() - QPoint(50, 50));
        QVERIFY(screen.contains(box.frameGeometry()));
        QTest::keyClick(box.windowHandle(), Qt::Key_Return);
    });
    static_cast<void>(_application.runModal({.messageText = u"Ready?"_s, .informativeText = {}}));
    QVERIFY(_wasShown);
}

/// By the operator, who wants to see what is under it.
void DesktopApplicationTest::anAlertThatWasMovedStaysThere() {
    QWidget window;
    window.setGeometry(100, 100, 500, 400);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    whileShown([&window](QMessageBox& box) {
        const auto place = box.pos() + QPoint(40, 70);
        box.move(place);
        window.move(20, 30);
        window.resize(450, 420);
        QCOMPARE(box.pos(), place);
        QTest::keyClick(box.windowHandle(), Qt::Key_Return);
    });
    static_cast<void>(_application.runModal({.messageText = u"Ready?"_s, .informativeText = {}}));
    QVERIFY(_wasShown);
}

void DesktopApplicationTest::devicesThatComeMeanwhileAreAnnouncedAfterwards() {
    auto& manager = ORSSerialPortManager::sharedSerialPortManager();
    QStringList announced;
    const auto note = [&](const Notification& notification) {
        announced.append(notification.name);
    };
    QObject observer;
    auto& center = _platform.notifications();
    center.addObserver(&observer, ORSSerialPortWasConnectedNotification, note);
    center.addObserver(&observer, ORSSerialPortWasDisconnectedNotification, note);
    qsizetype announcedMeanwhile = 0;
    whileShown([&](QMessageBox& box) {
        const auto device = _platform.devices().plug(u"a"_s, u"/dev/a"_s);
        _platform.devices().plug(u"b"_s, u"/dev/b"_s);
        _platform.devices().unplug(device);
        QCoreApplication::processEvents();
        announcedMeanwhile = announced.size();
        box.accept();
    });
    _application.runModal({.messageText = u"Wait."_s, .informativeText = {}});
    QVERIFY(_wasShown);
    QCOMPARE(announcedMeanwhile, 0);
    QTRY_COMPARE(announced, QStringList{ORSSerialPortWasConnectedNotification});
    QCOMPARE(manager.countOfAvailablePorts(), 1);
    QCOMPARE(manager.objectInAvailablePortsAtIndex(0)->name(), u"b"_s);
}

void DesktopApplicationTest::whatCanWaitStandsOnNoOtherAlert() {
    QStringList shown;
    QTimer answerer;
    QObject::connect(&answerer, &QTimer::timeout, &answerer, [&shown] {
        if (auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            shown.append(box->text());
            box->accept();
        }
    });
    whileShown([&](QMessageBox& box) {
        for (const auto& text : {u"Second."_s, u"Third."_s}) {
            _application.runModalWhenFree(
                [text] { return Alert{.messageText = text, .informativeText = {}}; });
        }
        QTest::qWait(50);
        QCOMPARE(QApplication::activeModalWidget(), &box);
        answerer.start(1);
    });
    _application.runModal({.messageText = u"First."_s, .informativeText = {}});
    QTRY_COMPARE(shown, (QStringList{u"First."_s, u"Second."_s, u"Third."_s}));
    QVERIFY(QApplication::activeModalWidget() == nullptr);
}

void DesktopApplicationTest::whatIsOverByThenIsNotTold() {
    bool wasAsked = false;
    _application.runModalWhenFree([&] {
        wasAsked = true;
        return std::optional<Alert>();
    });
    QVERIFY(!wasAsked);
    QTRY_VERIFY(wasAsked);
    QVERIFY(QApplication::activeModalWidget() == nullptr);
}

void DesktopApplicationTest::onceItEndsNothingIsAsked() {
    const LogKeeper log;
    _application.limitAlerts(0ms);
    const auto answer = _application.runModal({.messageText = u"Ready?"_s,
                                               .informativeText = {},
                                               .defaultButton = u"Yes"_s,
                                               .alternateButton = u"No"_s});
    QVERIFY(answer == AlertAnswer::Alternate);
    _application.presentError(Error::ofApplication(u"It failed."_s, u"Try again."_s));
    QCOMPARE(log.lines(), (QStringList{u"Ready?"_s, u"It failed."_s}));
}

void DesktopApplicationTest::anAlertWithALimitClosesByItself() {
    _application.limitAlerts(50ms);
    whileShown([](const QMessageBox&) {});
    const auto answer = _application.runModal({.messageText = u"Ready?"_s,
                                               .informativeText = {},
                                               .defaultButton = u"Yes"_s,
                                               .alternateButton = u"No"_s});
    QVERIFY(_wasShown);
    QVERIFY(answer == AlertAnswer::Alternate);
}

static const RegisteredTest<DesktopApplicationTest> registered;
#include "DesktopApplicationTest.moc"
