#include "app/ApplicationKey.h"

#include "app/AlertBox.h"
#include "app/DesktopApplication.h"
#include "app/KeyShield.h"
#include "app/window/GuideWindow.h"
#include "app/window/MainWindow.h"
#include "tests/keyer/EngineBench.h"
#include "tests/support/RegisteredTest.h"

#include <QComboBox>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPointer>
#include <QShortcut>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <optional>

using namespace Qt::StringLiterals;

/// Keys are pressed on native windows, as the desktop does, so that they take the whole way.
class ApplicationKeyTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup();

    void stopsOnceFromEveryControl();
    void stopsFromAMenu();
    void stopsFromTheMenuBar();
    void stopsFromAContextMenu();
    void stopsFromAnAlertAndClosesIt();
    void stopsFromTheGuideAndTheAboutBox();
    void isLeftToAWindowThatHasItsOwn();
    void stopsOnceFromAPopupOfSuchAWindow();
    void otherKeysStopNothing();
    void ctrlAndQAreHeardFromEveryWindow();

  private:
    void press(QWidget& window, Qt::Key key = Qt::Key_Escape);

    std::optional<EngineBench> _bench;
    std::optional<MainWindow> _window;
    std::optional<ApplicationKey> _escape;
};

void ApplicationKeyTest::init() {
    _bench.emplace();
    QVERIFY(_bench->connect());
    _window.emplace(_bench->engine());
    _escape.emplace(Qt::Key_Escape);
    QObject::connect(&*_escape, &ApplicationKey::pressed, &*_window, &MainWindow::stop);
    _window->show();
    QVERIFY(QTest::qWaitForWindowActive(&*_window));
}

void ApplicationKeyTest::cleanup() {
    _escape.reset();
    _window.reset();
    _bench.reset();
}

void ApplicationKeyTest::press(QWidget& window, Qt::Key key) {
    QTest::keyClick(window.windowHandle(), key);
}

void ApplicationKeyTest::stopsOnceFromEveryControl() {
    int count = 0;
    for (auto* control : _window->findChildren<QWidget*>()) {
        if ((control->focusPolicy() & Qt::TabFocus) == 0 || !control->isVisible() ||
            !control->isEnabled() || control->window() != &*_window) {
            continue;
        }
        control->setFocus();
        press(*_window);
        QVERIFY2(_bench->written() == "0a", qPrintable(control->objectName()));
        ++count;
    }
    QVERIFY2(count >= 17, qPrintable(QString::number(count)));
}

void ApplicationKeyTest::stopsFromAMenu() {
    auto* menu = _window->findChild<QMenu*>(u"sendMenu"_s);
    menu->popup(_window->mapToGlobal(QPoint(10, 10)));
    QVERIFY(QTest::qWaitForWindowExposed(menu));
    press(*_window);
    QVERIFY(!menu->isVisible());
    QCOMPARE(_bench->written(), "0a");
}

void ApplicationKeyTest::stopsFromTheMenuBar() {
    _window->menuBar()->setActiveAction(_window->menuBar()->actions().constFirst());
    press(*_window);
    press(*_window);
    QCOMPARE(_bench->written(), "0a 0a");
}

void ApplicationKeyTest::stopsFromAContextMenu() {
    QMenu menu;
    menu.addAction(u"Copy"_s);
    menu.popup(_window->mapToGlobal(QPoint(10, 10)));
    QVERIFY(QTest::qWaitForWindowExposed(&menu));
    press(*_window);
    QVERIFY(!menu.isVisible());
    QCOMPARE(_bench->written(), "0a");
}

void ApplicationKeyTest::stopsFromAnAlertAndClosesIt() {
    DesktopApplication application;
    application.setAlertParent(&*_window);
    QTimer::singleShot(0, &*_window, [this] {
        auto* const box = QApplication::activeModalWidget();
        QVERIFY(box != nullptr);
        QTRY_VERIFY(box->isActiveWindow());
        press(*box);
        // The alert takes no key at first, but the stop is none of its business.
        QVERIFY(box->isVisible());
        QCOMPARE(_bench->written(), "0a");
        _bench->clock().advance(KeyShield::stillness);
        press(*box);
        QVERIFY(!box->isVisible());
    });
    const auto answer = application.runModal({.messageText = u"Ready?"_s,
                                              .informativeText = {},
                                              .defaultButton = u"Yes"_s,
                                              .alternateButton = u"No"_s});
    QCOMPARE(answer, AlertAnswer::Alternate);
    QCOMPARE(_bench->written(), "0a");
}

void ApplicationKeyTest::stopsFromTheGuideAndTheAboutBox() {
    for (const auto* name : {"guideAction", "aboutAction"}) {
        _window->findChild<QAction*>(QString::fromLatin1(name))->trigger();
        QPointer<QWidget> opened;
        for (auto* each : QApplication::topLevelWidgets()) {
            if (each->isVisible() && each != &*_window) {
                opened = each;
            }
        }
        QVERIFY(!opened.isNull());
        QVERIFY(QTest::qWaitForWindowExposed(opened));
        press(*opened);
        // A box that goes does so in the event loop, which may have run.
        QVERIFY(opened.isNull() || !opened->isVisible());
        QCOMPARE(_bench->written(), "0a");
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

void ApplicationKeyTest::isLeftToAWindowThatHasItsOwn() {
    QWidget other;
    int presses = 0;
    const QShortcut own(Qt::Key_Escape, &other, [&presses] { ++presses; });
    other.show();
    other.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&other));
    press(other);
    QCOMPARE(presses, 1);
    QCOMPARE(_bench->written(), "");
}

void ApplicationKeyTest::stopsOnceFromAPopupOfSuchAWindow() {
    QWidget other;
    const QShortcut own(Qt::Key_Escape, &other,
                        [this] { _bench->engine().stopMessageSending(nullptr); });
    QComboBox box(&other);
    box.addItems({u"a"_s, u"b"_s});
    other.show();
    other.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&other));
    box.showPopup();
    QVERIFY(QApplication::activePopupWidget() != nullptr);
    press(other);
    QVERIFY(QApplication::activePopupWidget() == nullptr);
    QCOMPARE(_bench->written(), "0a");
}

void ApplicationKeyTest::otherKeysStopNothing() {
    press(*_window, Qt::Key_Shift);
    QCOMPARE(_bench->written(), "");
}

void ApplicationKeyTest::ctrlAndQAreHeardFromEveryWindow() {
    const ApplicationKey quit(Qt::CTRL | Qt::Key_Q);
    const QSignalSpy presses(&quit, &ApplicationKey::pressed);
    QWidget other;
    AlertBox alert({.messageText = u"Ready?"_s, .informativeText = {}}, &*_window);
    _window->findChild<QAction*>(u"guideAction"_s)->trigger();
    auto* guide = _window->findChild<GuideWindow*>();
    other.show();
    int heard = 0;
    for (QWidget* each : {&other, static_cast<QWidget*>(guide), static_cast<QWidget*>(&alert)}) {
        each->show();
        QVERIFY(QTest::qWaitForWindowExposed(each));
        press(*each, Qt::Key_Q);
        QCOMPARE(presses.size(), heard);
        QTest::keyClick(each->windowHandle(), Qt::Key_Q, Qt::ControlModifier);
        QCOMPARE(presses.size(), ++heard);
    }
}

static const RegisteredTest<ApplicationKeyTest> registered;
#include "ApplicationKeyTest.moc"
