#pragma once

#include "app/keyboard/KeyboardView.h"
#include "keyer/GeneralSettings.h"
#include "tests/keyer/EngineBench.h"

#include <QTest>

/// A keyboard view in front of a connected engine, with the keyboard's focus.
class KeyboardStation {
  public:
    explicit KeyboardStation(QSize size = {400, 200}) {
        bench.settings().setObject(QStringLiteral("N0CALL"), MyCall);
        isReady = bench.connect();
        view.resize(size);
        view.show();
        view.setFocus();
        isReady = QTest::qWaitForWindowExposed(&view) && isReady;
    }

    [[nodiscard]] WinKeyerUsb& engine() { return bench.engine(); }

    /// From now on nothing is handed to the keyer.
    void pause() {
        engine().setPauseState(1);
        static_cast<void>(bench.written());
    }

    void resume() { engine().setPauseState(0); }

    void echo(int count = 1) {
        for (int i = 0; i < count; ++i) {
            bench.receive({'E'});
        }
    }

    void keys(const QString& characters) { QTest::keyClicks(&view, characters); }
    void key(Qt::Key code, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(&view, code, modifiers);
    }
    void keys(QKeySequence::StandardKey sequence) { QTest::keySequence(&view, sequence); }

    EngineBench bench;
    KeyboardView view{bench.engine()};
    bool isReady = false;
};
