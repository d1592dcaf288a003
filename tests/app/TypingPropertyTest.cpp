#include "app/AlertBox.h"
#include "app/ApplicationKey.h"
#include "app/MenuShield.h"
#include "app/TypingWatch.h"
#include "app/window/MainWindow.h"
#include "keyer/GeneralSettings.h"
#include "tests/keyer/EngineBench.h"
#include "tests/support/RegisteredTest.h"

#include <QAbstractButton>
#include <QMenu>
#include <QMenuBar>
#include <QRandomGenerator>
#include <QTest>

#include <memory>
#include <optional>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// Whatever was clicked before, typed text works nothing that keys the transmitter. The operator
/// clicks about and types, as the keyer reports what it likes and alerts come up; mouse and keys go
/// to the native windows, as from the desktop.
class TypingPropertyTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup();

    void noTypedTextKeysDown_data();
    void noTypedTextKeysDown();

  private:
    enum class Deed { ClickControl, ClickMenu, RightClick, OpenMenu, Type, Hear, Alarm, Wait };

    void act(Deed deed);
    static void click(const QWidget& widget, QPoint place, Qt::MouseButton button = Qt::LeftButton);
    void clickSomeControl();
    void clickSomeMenu();
    void openContextMenu();
    void openMenuByKey();
    void type();
    void raiseAlert();
    [[nodiscard]] QWidget* frontWindow();

    template <typename List>
    [[nodiscard]] auto someOf(const List& list) {
        return list.at(_random.bounded(static_cast<int>(list.size())));
    }

    QRandomGenerator _random;
    std::optional<EngineBench> _bench;
    std::optional<MainWindow> _window;
    std::optional<ApplicationKey> _escape;
    std::optional<MenuShield> _menuShield;
    std::optional<TypingWatch> _typingWatch;
    std::unique_ptr<AlertBox> _alert;
};

void TypingPropertyTest::init() {
    _bench.emplace();
    _bench->settings().setObject(u"N0CALL"_s, MyCall);
    QVERIFY(_bench->connect());
    _window.emplace(_bench->engine());
    _menuShield.emplace();
    _typingWatch.emplace();
    _escape.emplace(Qt::Key_Escape);
    _window->show();
    QVERIFY(QTest::qWaitForWindowActive(&*_window));
}

void TypingPropertyTest::cleanup() {
    _alert.reset();
    _escape.reset();
    _typingWatch.reset();
    _menuShield.reset();
    _window.reset();
    _bench.reset();
}

void TypingPropertyTest::noTypedTextKeysDown_data() {
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= 40; ++seed) {
        QTest::addRow("seed %u", seed) << seed;
    }
}

void TypingPropertyTest::noTypedTextKeysDown() {
    QFETCH(const quint32, seed);
    _random.seed(seed);
    const QList<Deed> deeds{Deed::ClickControl, Deed::ClickControl, Deed::ClickControl,
                            Deed::ClickMenu,    Deed::RightClick,   Deed::OpenMenu,
                            Deed::OpenMenu,     Deed::Type,         Deed::Type,
                            Deed::Type,         Deed::Type,         Deed::Hear,
                            Deed::Alarm,        Deed::Wait};
    for (int step = 0; step < 60 && !QTest::currentTestFailed(); ++step) {
        const auto deed = someOf(deeds);
        act(deed);
        QCoreApplication::processEvents();
        const auto written = _bench->written();
        // What was clicked may have been Tune itself.
        QVERIFY2(deed == Deed::ClickControl || !written.contains("0b 01"),
                 qPrintable(u"step %1"_s.arg(step)));
    }
}

void TypingPropertyTest::act(Deed deed) {
    switch (deed) {
    case Deed::ClickControl:
        clickSomeControl();
        break;
    case Deed::ClickMenu:
        clickSomeMenu();
        break;
    case Deed::RightClick:
        openContextMenu();
        break;
    case Deed::OpenMenu:
        openMenuByKey();
        break;
    case Deed::Type:
        type();
        break;
    case Deed::Hear:
        _bench->receive({someOf(QList<int>{'E', 0xC0, 0xC1, 0xC2, 0xC4, 0xC6, 0xC9, 0x8C})});
        break;
    case Deed::Alarm:
        raiseAlert();
        break;
    case Deed::Wait:
        _alert.reset(); // once it has been up for a while, it may be answered
        _bench->clock().advance(1s * _random.bounded(3));
        break;
    }
}

void TypingPropertyTest::click(const QWidget& widget, QPoint place, Qt::MouseButton button) {
    const auto* window = widget.window();
    QTest::mouseClick(window->windowHandle(), button, {}, widget.mapTo(window, place));
}

void TypingPropertyTest::clickSomeControl() {
    QList<const QWidget*> controls;
    for (const auto* each : _window->findChild<QWidget*>(u"console"_s)->findChildren<QWidget*>()) {
        if (each->isVisible() && !each->isWindow()) {
            controls.append(each);
        }
    }
    const auto& control = *someOf(controls);
    click(control, control.rect().center());
}

void TypingPropertyTest::clickSomeMenu() {
    const auto& bar = *_window->menuBar();
    click(bar, bar.actionGeometry(someOf(bar.actions())).center());
}

/// With an item that keys down, and without the loop of its own that a view's menu runs.
void TypingPropertyTest::openContextMenu() {
    if (frontWindow() == &*_window && QApplication::activePopupWidget() == nullptr) {
        const auto& label = *_window->findChild<QWidget*>(u"speedLabel"_s);
        click(label, label.rect().center(), Qt::RightButton);
        _window->findChild<QMenu*>(u"keyerMenu"_s)->popup(label.mapToGlobal(QPoint()));
    }
}

/// By a slip: Alt instead of another key, or along with a letter.
void TypingPropertyTest::openMenuByKey() {
    auto* window = frontWindow()->windowHandle();
    if (_random.bounded(2) == 0) {
        QTest::keyClick(window, Qt::Key_Alt);
    } else {
        QTest::keyClick(window, someOf(QList{Qt::Key_E, Qt::Key_S, Qt::Key_K}), Qt::AltModifier);
    }
}

void TypingPropertyTest::type() {
    const auto typed = someOf(QStringList{u"cq cq de n0call"_s, u"tu 73 gl "_s, u" kt kt "_s,
                                          u"yes  no"_s, u"test\rkt\r"_s, u"{sn {k "_s});
    auto* window = frontWindow();
    for (const auto character : typed) {
        const auto key =
            character == u'\r' ? Qt::Key_Return : QTest::asciiToKey(character.toLatin1());
        QTest::sendKeyEvent(QTest::Click, window->windowHandle(), key, QString(character), {});
        _bench->clock().advance(150ms);
    }
}

void TypingPropertyTest::raiseAlert() {
    if (_alert != nullptr && _alert->isVisible()) {
        return;
    }
    if (auto* popup = QApplication::activePopupWidget()) {
        popup->close();
    }
    _alert = std::make_unique<AlertBox>(Alert{.messageText = u"A port has been plugged in."_s,
                                              .informativeText = u"Use it?"_s,
                                              .defaultButton = u"Yes"_s,
                                              .alternateButton = u"No"_s},
                                        &*_window);
    QObject::connect(_alert.get(), &QDialog::accepted, this,
                     [] { QFAIL("What was typed answered the alert."); });
    _alert->open();
    QTRY_VERIFY(_alert->isActiveWindow());
}

QWidget* TypingPropertyTest::frontWindow() {
    return _alert != nullptr && _alert->isVisible() ? static_cast<QWidget*>(&*_alert)
                                                    : static_cast<QWidget*>(&*_window);
}

static const RegisteredTest<TypingPropertyTest> registered;
#include "TypingPropertyTest.moc"
