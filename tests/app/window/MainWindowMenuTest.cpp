#include "app/keyboard/KeyboardView.h"
#include "app/window/AboutBox.h"
#include "app/window/GuideWindow.h"
#include "tests/app/window/MainWindowFixture.h"
#include "tests/support/RegisteredTest.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QShortcut>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTest>

using namespace Qt::StringLiterals;

/// The main window's menus, and the keys that go with them.
class MainWindowMenuTest : public QObject, private MainWindowFixture {
    Q_OBJECT

  private Q_SLOTS:
    void init() { open(); }
    void cleanup() { close(); }

    void aHeldKeySendsItsMessageOnce();
    void theMenusDoWhatTheControlsDo();
    void theMenusSwitchesAreInStepWithTheButtons();
    void everyShortcutIsTakenOnce();
    void everyShortcutWorksFromEveryControl();
    void messageKeysDoNothingInOtherWindows();
    void aKeyOpensTheMenuBar();
    void theEditMenuActsOnTheFocusedField();
    void preferencesAndQuitAreAskedFor();
    void theGuideAndTheAboutBoxOpen();
    void theWindowMayGoWithTheFocusInItsMenuBar();

  private:
    void trigger(const QString& action) { find<QAction>(action)->trigger(); }
    [[nodiscard]] QList<QWidget*> tabOrder();
};

QList<QWidget*> MainWindowMenuTest::tabOrder() {
    QList<QWidget*> controls;
    for (auto* control : find<QWidget>(u"console"_s)->findChildren<QWidget*>()) {
        if ((control->focusPolicy() & Qt::TabFocus) != 0 && control->isVisible()) {
            controls.append(control);
        }
    }
    return controls;
}

void MainWindowMenuTest::aHeldKeySendsItsMessageOnce() {
    _bench->settings().setObject(u"E"_s, u"Message1"_s);
    auto* window = _window->windowHandle();
    QTest::simulateEvent(window, true, Qt::Key_F1, Qt::NoModifier, {}, false);
    QTest::simulateEvent(window, true, Qt::Key_F1, Qt::NoModifier, {}, true);
    QCOMPARE(_bench->engine().keyboardBuffer(), u"E"_s);
}

void MainWindowMenuTest::theMenusDoWhatTheControlsDo() {
    for (int number = 1; number <= 8; ++number) {
        const auto text = u"TEXT %1"_s.arg(number);
        _bench->settings().setObject(text, u"Message%1"_s.arg(number));
        _bench->engine().clearSending();
        trigger(u"message%1Action"_s.arg(number));
        QCOMPARE(_bench->engine().keyboardBuffer(), text);
    }
    trigger(u"stopAction"_s);
    QCOMPARE(_bench->engine().keyboardBuffer(), u""_s);
    trigger(u"incrementSerialNumberAction"_s);
    trigger(u"incrementSerialNumberAction"_s);
    trigger(u"decrementSerialNumberAction"_s);
    QCOMPARE(_bench->engine().serialNumber(), 2);
    trigger(u"hisCallsignAction"_s);
    QVERIFY(find<QWidget>(u"hisCallsignTextField"_s)->hasFocus());
    trigger(u"keyboardAction"_s);
    QVERIFY(find<QWidget>(u"keyboardView"_s)->hasFocus());
}

void MainWindowMenuTest::theMenusSwitchesAreInStepWithTheButtons() {
    for (const auto* name : {"tune", "pause", "hscw", "beacon"}) {
        auto* action = find<QAction>(QString::fromLatin1(name) + u"Action"_s);
        auto* button = find<QPushButton>(QString::fromLatin1(name) + u"Button"_s);
        action->trigger();
        QVERIFY2(action->isChecked() && button->isChecked(), name);
        button->click();
        QVERIFY2(!action->isChecked() && !button->isChecked(), name);
    }
    QCOMPARE(_bench->written(), "0b 01 0b 00 06 01 06 00 1d 0a 02 00");
    QVERIFY(_bench->engine().disconnect(nullptr));
    QVERIFY(!find<QAction>(u"tuneAction"_s)->isEnabled());
    QVERIFY(!find<QAction>(u"hscwAction"_s)->isEnabled());
    QVERIFY(_bench->connect());
    QVERIFY(find<QAction>(u"tuneAction"_s)->isEnabled());
    QVERIFY(find<QAction>(u"hscwAction"_s)->isEnabled());
}

void MainWindowMenuTest::everyShortcutIsTakenOnce() {
    QStringList taken;
    for (const auto* action : _window->findChildren<QAction*>()) {
        for (const auto& shortcut : action->shortcuts()) {
            taken.append(shortcut.toString());
        }
    }
    for (const auto* shortcut : _window->findChildren<QShortcut*>()) {
        taken.append(shortcut->key().toString());
    }
    QVERIFY(taken.contains(u"F8"_s) && taken.contains(u"Esc"_s) && taken.contains(u"Ctrl+Q"_s));
    auto once = taken;
    once.removeDuplicates();
    QCOMPARE(taken, once);
}

void MainWindowMenuTest::everyShortcutWorksFromEveryControl() {
    const QList<std::pair<Qt::Key, Qt::KeyboardModifier>> keys{
        {Qt::Key_F1, Qt::NoModifier},       {Qt::Key_F8, Qt::NoModifier},
        {Qt::Key_T, Qt::ControlModifier},   {Qt::Key_P, Qt::ControlModifier},
        {Qt::Key_H, Qt::ControlModifier},   {Qt::Key_B, Qt::ControlModifier},
        {Qt::Key_L, Qt::ControlModifier},   {Qt::Key_M, Qt::ControlModifier},
        {Qt::Key_Up, Qt::ControlModifier},  {Qt::Key_Down, Qt::ControlModifier},
        {Qt::Key_Q, Qt::ControlModifier},   {Qt::Key_Comma, Qt::ControlModifier},
        {Qt::Key_F11, Qt::NoModifier},      {Qt::Key_W, Qt::AltModifier},
        {Qt::Key_PageUp, Qt::NoModifier},   {Qt::Key_PageUp, Qt::ShiftModifier},
        {Qt::Key_PageDown, Qt::NoModifier}, {Qt::Key_PageDown, Qt::ShiftModifier},
        {Qt::Key_0, Qt::ControlModifier}};
    for (auto* control : tabOrder()) {
        for (const auto& [key, modifier] : keys) {
            int triggered = 0;
            const QObject listener;
            for (const auto* action : _window->findChildren<QAction*>()) {
                if (action->shortcut() == QKeySequence(key | modifier)) {
                    QObject::connect(action, &QAction::triggered, &listener,
                                     [&triggered] { ++triggered; });
                }
            }
            control->setFocus();
            press(key, modifier);
            QVERIFY2(triggered == 1,
                     qPrintable(control->objectName() + QKeySequence(key).toString()));
        }
    }
}

void MainWindowMenuTest::messageKeysDoNothingInOtherWindows() {
    trigger(u"guideAction"_s);
    trigger(u"aboutAction"_s);
    QWidget preferences;
    preferences.show();
    const QList<QWidget*> windows{_window->findChild<GuideWindow*>(),
                                  _window->findChild<AboutBox*>(), &preferences};
    for (auto* window : windows) {
        window->activateWindow();
        QTRY_VERIFY(window->isActiveWindow());
        for (int key = Qt::Key_F1; key <= Qt::Key_F8; ++key) {
            QTest::keyClick(window->windowHandle(), static_cast<Qt::Key>(key));
        }
        QCOMPARE(_bench->engine().keyboardBuffer(), u""_s);
    }
    QCOMPARE(_bench->written(), "");
}

void MainWindowMenuTest::aKeyOpensTheMenuBar() {
    press(Qt::Key_F10);
    auto* menu = find<QMenu>(u"fileMenu"_s);
    QVERIFY(menu->isVisible());
    press(Qt::Key_Escape);
    QVERIFY(!menu->isVisible());
}

void MainWindowMenuTest::theEditMenuActsOnTheFocusedField() {
    auto* field = find<QLineEdit>(u"hisCallsignTextField"_s);
    field->setFocus();
    QTest::keyClicks(field, u"K1A"_s);
    trigger(u"selectAllAction"_s);
    QCOMPARE(field->selectedText(), u"K1A"_s);
    trigger(u"copyAction"_s);
    QCOMPARE(QGuiApplication::clipboard()->text(), u"K1A"_s);
    trigger(u"cutAction"_s);
    QCOMPARE(field->text(), u""_s);
    trigger(u"undoAction"_s);
    QCOMPARE(field->text(), u"K1A"_s);
    trigger(u"redoAction"_s);
    QCOMPARE(field->text(), u""_s);

    auto* view = find<KeyboardView>(u"keyboardView"_s);
    view->setFocus();
    trigger(u"pasteAction"_s);
    QCOMPARE(view->text(), u"K1A"_s);
    trigger(u"selectAllAction"_s);
    QCOMPARE(view->textCursor().selectedText(), u"K1A"_s);
    _bench->engine().stopMessageSending(nullptr);
    _bench->engine().setPauseState(1);
    QVERIFY(!find<QAction>(u"undoAction"_s)->isEnabled());
    QTest::keyClicks(view, u"DE K"_s);
    QVERIFY(!find<QAction>(u"redoAction"_s)->isEnabled());
    trigger(u"undoAction"_s);
    QCOMPARE(view->text(), u"DE "_s);
    trigger(u"redoAction"_s);
    QCOMPARE(view->text(), u"DE K"_s);

    _bench->engine().stopMessageSending(nullptr);
    QVERIFY(!find<QAction>(u"undoAction"_s)->isEnabled());
    auto* box = find<QSpinBox>(u"serialNumberBox"_s);
    box->setFocus();
    QVERIFY(find<QAction>(u"undoAction"_s)->isEnabled());
    trigger(u"selectAllAction"_s);
    trigger(u"copyAction"_s);
    QCOMPARE(QGuiApplication::clipboard()->text(), u"1"_s);
}

void MainWindowMenuTest::preferencesAndQuitAreAskedFor() {
    const QSignalSpy preferences(&*_window, &MainWindow::preferencesRequested);
    const QSignalSpy quit(&*_window, &MainWindow::quitRequested);
    press(Qt::Key_Comma, Qt::ControlModifier);
    QCOMPARE(preferences.size(), 1);
    press(Qt::Key_Q, Qt::ControlModifier);
    QCOMPARE(quit.size(), 1);
}

void MainWindowMenuTest::theGuideAndTheAboutBoxOpen() {
    trigger(u"guideAction"_s);
    const auto* guide = _window->findChild<GuideWindow*>();
    QVERIFY(guide->isVisible());
    trigger(u"guideAction"_s);
    QCOMPARE(_window->findChildren<GuideWindow*>().size(), 1);

    trigger(u"aboutAction"_s);
    auto* about = _window->findChild<AboutBox*>();
    QVERIFY(about->isVisible());
    QVERIFY(!about->isModal());
    QVERIFY(about->text().startsWith(u"Quorvel"));
    about->close();
    QTRY_VERIFY(_window->findChild<AboutBox*>() == nullptr);
}

/// The menu bar gives the focus away when the keyboard view is no more.
void MainWindowMenuTest::theWindowMayGoWithTheFocusInItsMenuBar() {
    _window->menuBar()->setFocus();
    QVERIFY(_window->menuBar()->hasFocus());
    _window.reset();
    QVERIFY(QApplication::focusWidget() == nullptr);
}

static const RegisteredTest<MainWindowMenuTest> registered;
#include "MainWindowMenuTest.moc"
