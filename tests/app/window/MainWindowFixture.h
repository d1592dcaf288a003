#pragma once

#include "app/window/MainWindow.h"
#include "keyer/GeneralSettings.h"
#include "tests/keyer/EngineBench.h"

#include <QTest>
#include <QWindow>

#include <optional>

/// The main window, active, with a keyer on the far end of its line.
class MainWindowFixture {
  protected:
    /// The test fails when the keyer or the window does not come.
    void open() {
        using namespace Qt::StringLiterals;
        _bench.emplace();
        _bench->settings().setObject(u"N0CALL"_s, MyCall);
        QVERIFY(_bench->connect());
        _window.emplace(_bench->engine());
        _window->show();
        QVERIFY(QTest::qWaitForWindowActive(&*_window));
    }

    void close() {
        _window.reset();
        _bench.reset();
    }

    /// On the native window, as the desktop does.
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(_window->windowHandle(), key, modifiers);
    }

    /// Types on the native window, so that the text goes where the focus is.
    void type(const QString& text) {
        for (const auto character : text) {
            QTest::keyClick(_window->windowHandle(), character.toLatin1());
        }
    }

    /// Clicks on the native window.
    void click(const QWidget& widget) {
        QTest::mouseClick(_window->windowHandle(), Qt::LeftButton, {},
                          widget.mapTo(&*_window, widget.rect().center()));
    }

    template <typename Object>
    [[nodiscard]] Object* find(const QString& name) {
        return _window->findChild<Object*>(name);
    }

    std::optional<EngineBench> _bench;
    std::optional<MainWindow> _window;
};
