#include "tests/monkey/Monkey.h"

#include "app/keyboard/KeyboardView.h"
#include "keyer/WinKeyerUsb.h"

#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QMenu>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QTest>
#include <QWindow>

#include <array>
#include <iterator>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// An alert on a menu on an alert is deep enough.
constexpr int deepest = 4;

constexpr Qt::Key keys[] = {Qt::Key_Tab,   Qt::Key_Backtab,   Qt::Key_Return, Qt::Key_Escape,
                            Qt::Key_Space, Qt::Key_Backspace, Qt::Key_Left,   Qt::Key_Right,
                            Qt::Key_Up,    Qt::Key_Down,      Qt::Key_Home,   Qt::Key_End,
                            Qt::Key_F1,    Qt::Key_F2,        Qt::Key_F8,     Qt::Key_F10,
                            Qt::Key_F11,   Qt::Key_PageUp,    Qt::Key_A,      Qt::Key_PageDown,
                            Qt::Key_B,     Qt::Key_Delete,    Qt::Key_F,      Qt::Key_P,
                            Qt::Key_T,     Qt::Key_V,         Qt::Key_X,      Qt::Key_Z,
                            Qt::Key_Comma, Qt::Key_BraceLeft, Qt::Key_W,      Qt::Key_L,
                            Qt::Key_5,     Qt::Key_Minus,     Qt::Key_Alt,    Qt::Key_Menu};

constexpr Qt::KeyboardModifiers modifiers[] = {
    Qt::NoModifier,      Qt::NoModifier,  Qt::NoModifier,    Qt::ShiftModifier,
    Qt::ControlModifier, Qt::AltModifier, Qt::KeypadModifier};

} // namespace

Monkey::Monkey(MonkeyStation& station, quint32 seed, std::chrono::milliseconds time)
    : _station(station), _random(seed), _end(time) {
    QMetaObject::invokeMethod(this, &Monkey::step, Qt::QueuedConnection);
}

int Monkey::below(int bound) {
    return static_cast<int>(_random.bounded(static_cast<quint32>(bound)));
}

/// The next step is asked for first: it may be due in an event loop that this one runs.
void Monkey::step() {
    const QScopedValueRollback depth(_depth, _depth + 1);
    const bool isOver = _end.hasExpired();
    const bool isIdle = QApplication::activeModalWidget() == nullptr &&
                        QApplication::activePopupWidget() == nullptr;
    if (isOver && isIdle && _depth == 1) {
        QCoreApplication::exit();
        return;
    }
    QMetaObject::invokeMethod(this, &Monkey::step, Qt::QueuedConnection);
    ++_steps;
    for (int line = 0; line < MonkeyStation::lineCount; ++line) {
        static_cast<void>(_station.line(line).readAvailable());
    }
    if (isOver || _depth > deepest) {
        close();
    } else {
        act();
    }
    const auto* view = _station.window().findChild<KeyboardView*>();
    if (view->text() != WinKeyerUsb::sharedInstance().keyboardBuffer()) {
        qFatal("The view shows another text than the engine has.");
    }
}

void Monkey::act() {
    using Step = void (Monkey::*)();
    static constexpr std::array<Step, 22> steps{&Monkey::pressKey,
                                                &Monkey::pressKey,
                                                &Monkey::pressKey,
                                                &Monkey::type,
                                                &Monkey::type,
                                                &Monkey::click,
                                                &Monkey::click,
                                                &Monkey::click,
                                                &Monkey::drag,
                                                &Monkey::dropText,
                                                &Monkey::compose,
                                                &Monkey::chooseFromMenu,
                                                &Monkey::speakForKeyer,
                                                &Monkey::speakForKeyer,
                                                &Monkey::speakForKeyer,
                                                &Monkey::plug,
                                                &Monkey::sleepOrWake,
                                                &Monkey::passTime,
                                                &Monkey::resize,
                                                &Monkey::openContextMenu,
                                                &Monkey::changeSettingElsewhere,
                                                &Monkey::closeSideWindow};
    (this->*steps.at(static_cast<size_t>(below(steps.size()))))();
}

void Monkey::close() {
    if (auto* popup = QApplication::activePopupWidget()) {
        popup->close();
    } else if (auto* modal = QApplication::activeModalWidget()) {
        modal->close();
    }
}

QString Monkey::anyText() {
    static const QString characters = u"abcdefghijklmnopq rstuvwxyz0123456789 `~^#{}|\\+?/\n\té"_s;
    QString text;
    for (int left = below(8) == 0 ? below(3000) : below(20); left > 0; --left) {
        text.append(characters.at(below(static_cast<int>(characters.size()))));
    }
    return text;
}

/// One that takes input now.
QWidget* Monkey::anyWindow() {
    if (auto* popup = QApplication::activePopupWidget()) {
        return popup;
    }
    if (auto* modal = QApplication::activeModalWidget()) {
        return modal;
    }
    QWidgetList windows;
    const auto all = QApplication::topLevelWidgets();
    for (auto* each : all) {
        if (each->isVisible()) {
            windows.append(each);
        }
    }
    return windows.isEmpty() ? &_station.window() : windows.at(below(int(windows.size())));
}

QWidget* Monkey::anyWidget() {
    auto* window = anyWindow();
    QWidgetList widgets{window};
    const auto all = window->findChildren<QWidget*>();
    for (auto* each : all) {
        if (each->isVisible() && each->isEnabled() && !each->isWindow()) {
            widgets.append(each);
        }
    }
    return widgets.at(below(int(widgets.size())));
}

void Monkey::pressKey() {
    if (auto* window = anyWindow()->windowHandle()) {
        QTest::keyClick(window, keys[below(std::size(keys))],
                        modifiers[below(std::size(modifiers))]);
    }
}

void Monkey::type() {
    if (auto* focus = QApplication::focusWidget()) {
        QTest::keyClicks(focus, anyText().left(12).remove(u'\n').remove(u'\t').remove(u'é'));
    }
}

void Monkey::click() {
    auto* widget = anyWidget();
    const QPoint place(below(widget->width() + 1), below(widget->height() + 1));
    if (below(5) == 0) {
        QTest::mouseDClick(widget, Qt::LeftButton, {}, place);
    } else {
        QTest::mouseClick(widget, below(8) == 0 ? Qt::MiddleButton : Qt::LeftButton, {}, place);
    }
}

void Monkey::drag() {
    const QPointer<QWidget> widget = anyWidget();
    const auto anywhere = [&] {
        return QPoint(below(widget->width() + 1), below(widget->height() + 1));
    };
    QTest::mousePress(widget, Qt::LeftButton, {}, anywhere());
    for (int moves = below(4); moves > 0 && widget; --moves) {
        QTest::mouseMove(widget, anywhere());
    }
    if (widget) {
        QTest::mouseRelease(widget, Qt::LeftButton, {}, anywhere());
    }
}

void Monkey::dropText() {
    auto* view = _station.window().findChild<KeyboardView*>();
    if (QApplication::activeModalWidget() != nullptr) {
        return;
    }
    const QPoint place(below(view->width()), below(view->height()));
    QMimeData data;
    data.setText(anyText());
    QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(view->viewport(), &enter);
    QDragMoveEvent move(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(view->viewport(), &move);
    speakForKeyer();
    QDropEvent drop(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(view->viewport(), &drop);
}

void Monkey::compose() {
    auto* focus = QApplication::focusWidget();
    // What is only there to be read is sent no such events.
    if (focus != nullptr && focus->testAttribute(Qt::WA_InputMethodEnabled)) {
        QInputMethodEvent event(below(2) == 0 ? anyText().left(5) : QString(), {});
        if (below(2) == 0) {
            event.setCommitString(anyText().left(5), -below(3), below(3));
        }
        QApplication::sendEvent(focus, &event);
    }
}

void Monkey::chooseFromMenu() {
    auto* window = anyWindow();
    const auto actions = window->findChildren<QAction*>();
    if (actions.isEmpty() || QApplication::activePopupWidget() != nullptr) {
        return;
    }
    auto* action = actions.at(below(int(actions.size())));
    if (action->isEnabled() && action->menu() == nullptr) {
        action->trigger();
    }
}

void Monkey::openContextMenu() {
    auto* widget = anyWidget();
    const QPoint place(widget->width() / 2, widget->height() / 2);
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, widget->mapToGlobal(place));
    QApplication::sendEvent(widget, &event);
}

/// An answer that a keyer gives, or any bytes at all.
void Monkey::speakForKeyer() {
    static constexpr std::array<char, 14> answers{'\xC0', '\xC1', '\xC2', '\xC4', '\xC8',
                                                  '\xC9', '\xCA', '\xD0', '\x80', '\x9F',
                                                  'E',    'T',    ' ',    'A'};
    QByteArray bytes;
    for (int left = 1 + below(6); left > 0; --left) {
        bytes += below(5) == 0 ? static_cast<char>(below(256))
                               : answers.at(static_cast<size_t>(below(answers.size())));
    }
    static_cast<void>(_station.line(below(MonkeyStation::lineCount)).write(bytes));
}

void Monkey::plug() {
    if (below(4) == 0) {
        _station.plug(below(MonkeyStation::lineCount));
    }
}

void Monkey::sleepOrWake() {
    if (below(4) == 0) {
        _station.notifications().post(below(2) == 0 ? NSWorkspaceWillSleepNotification
                                                    : NSWorkspaceDidWakeNotification,
                                      this);
    }
}

void Monkey::passTime() {
    _station.clock().advance(std::chrono::milliseconds(below(below(4) == 0 ? 20'000 : 500)));
}

void Monkey::resize() {
    auto* window = anyWindow();
    window->resize(50 + below(1500), 50 + below(1000));
}

void Monkey::changeSettingElsewhere() {
    const auto keysStored = _station.settings().keysNotStored();
    if (!keysStored.isEmpty()) {
        _station.settings().setObject(anyText().left(30),
                                      keysStored.at(below(int(keysStored.size()))));
    }
}

void Monkey::closeSideWindow() {
    if (auto* window = anyWindow(); window != &_station.window() && below(3) == 0) {
        window->close();
    }
}
