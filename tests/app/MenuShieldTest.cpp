#include "app/MenuShield.h"

#include "tests/support/RegisteredTest.h"

#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QTest>

#include <optional>

using namespace Qt::StringLiterals;

/// Mouse and keys go to the native window, as from the desktop.
class MenuShieldTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup();

    void whatIsTypedChoosesNothingInAMenuOfTheMouse_data();
    void whatIsTypedChoosesNothingInAMenuOfTheMouse();
    void aContextMenuOfTheMouseIsNoDifferent();
    void escapeClosesIt();
    void theMouseChooses();
    void anArrowTakesItOver();
    void aMenuOfTheKeyboardTakesLetters();
    void whatIsTypedSendsNothingInAMenuOfTheKeyboard_data();
    void whatIsTypedSendsNothingInAMenuOfTheKeyboard();
    void anArrowTakesAMenuOfTheKeyboardOver();
    void aMenuIsTakenOverOnce();
    void aClickBeforehandDoesNotMatter();

  private:
    void clickMenuTitle();
    void pressMenuKey();
    void type(const QString& text);
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(_window->windowHandle(), key, modifiers);
    }

    std::optional<MenuShield> _shield;
    std::optional<QMainWindow> _window;
    QMenu* _menu = nullptr;
    int _tunes = 0;
    int _guides = 0;
};

void MenuShieldTest::init() {
    _tunes = 0;
    _guides = 0;
    _shield.emplace();
    _window.emplace();
    _menu = _window->menuBar()->addMenu(u"&Keyer"_s);
    auto* tune = _menu->addAction(u"&Tune"_s);
    tune->setProperty("sends", true);
    QObject::connect(tune, &QAction::triggered, this, [this] { ++_tunes; });
    QObject::connect(_menu->addAction(u"&Guide"_s), &QAction::triggered, this,
                     [this] { ++_guides; });
    _window->resize(400, 300);
    _window->show();
    QVERIFY(QTest::qWaitForWindowActive(&*_window));
}

void MenuShieldTest::cleanup() {
    _window.reset();
    _shield.reset();
}

void MenuShieldTest::clickMenuTitle() {
    const auto* bar = _window->menuBar();
    const auto title = bar->actionGeometry(_menu->menuAction()).center();
    QTest::mouseClick(_window->windowHandle(), Qt::LeftButton, {}, bar->mapTo(&*_window, title));
    QVERIFY(QTest::qWaitForWindowExposed(_menu));
}

void MenuShieldTest::pressMenuKey() {
    press(Qt::Key_K, Qt::AltModifier);
    QVERIFY(QTest::qWaitForWindowExposed(_menu));
}

void MenuShieldTest::type(const QString& text) {
    for (const auto character : text) {
        QTest::sendKeyEvent(QTest::Click, _window->windowHandle(),
                            QTest::asciiToKey(character.toLatin1()), character, {});
    }
}

void MenuShieldTest::whatIsTypedChoosesNothingInAMenuOfTheMouse_data() {
    QTest::addColumn<QString>("text");
    QTest::newRow("the letter of an item") << u"tu 73"_s;
    QTest::newRow("spaces, the first of which goes to an item") << u"cq cq cq"_s;
    QTest::newRow("line ends") << u"c\rc\r"_s;
}

void MenuShieldTest::whatIsTypedChoosesNothingInAMenuOfTheMouse() {
    QFETCH(const QString, text);
    clickMenuTitle();
    type(text);
    QCOMPARE(_tunes, 0);
    QVERIFY(_menu->isVisible());
    _menu->setActiveAction(_menu->actions().constFirst()); // where the pointer rests
    type(text);
    QCOMPARE(_tunes, 0);
}

void MenuShieldTest::aContextMenuOfTheMouseIsNoDifferent() {
    QTest::mouseClick(_window->windowHandle(), Qt::RightButton);
    _menu->popup(_window->mapToGlobal(QPoint(50, 50)));
    QVERIFY(QTest::qWaitForWindowExposed(_menu));
    type(u"t t g "_s);
    QCOMPARE(_tunes + _guides, 0);
}

void MenuShieldTest::escapeClosesIt() {
    clickMenuTitle();
    press(Qt::Key_Escape);
    QVERIFY(!_menu->isVisible());
}

void MenuShieldTest::theMouseChooses() {
    clickMenuTitle();
    const auto place = _menu->actionGeometry(_menu->actions().constFirst()).center();
    QTest::mouseMove(_menu, place);
    QTest::mouseClick(_menu, Qt::LeftButton, {}, place);
    QCOMPARE(_tunes, 1);
}

void MenuShieldTest::anArrowTakesItOver() {
    clickMenuTitle();
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    QCOMPARE(_tunes, 1);
}

void MenuShieldTest::aMenuOfTheKeyboardTakesLetters() {
    pressMenuKey();
    type(u"g"_s);
    QCOMPARE(_guides, 1);
}

void MenuShieldTest::whatIsTypedSendsNothingInAMenuOfTheKeyboard_data() {
    QTest::addColumn<QString>("text");
    QTest::newRow("the letter of an item") << u"tu 73"_s;
    QTest::newRow("a space, which goes to the first item") << u" "_s;
    QTest::newRow("a line end") << u"\r"_s;
}

void MenuShieldTest::whatIsTypedSendsNothingInAMenuOfTheKeyboard() {
    QFETCH(const QString, text);
    pressMenuKey();
    QCOMPARE(_menu->activeAction(), _menu->actions().constFirst());
    type(text);
    QCOMPARE(_tunes, 0);
    QVERIFY(_menu->isVisible());
}

void MenuShieldTest::anArrowTakesAMenuOfTheKeyboardOver() {
    pressMenuKey();
    press(Qt::Key_Down);
    press(Qt::Key_Up);
    press(Qt::Key_Return);
    QCOMPARE(_tunes, 1);
}

void MenuShieldTest::aMenuIsTakenOverOnce() {
    anArrowTakesAMenuOfTheKeyboardOver();
    pressMenuKey();
    type(u" "_s);
    QCOMPARE(_tunes, 1);
}

void MenuShieldTest::aClickBeforehandDoesNotMatter() {
    QTest::mouseClick(_window->windowHandle(), Qt::LeftButton, {}, QPoint(200, 200));
    aMenuOfTheKeyboardTakesLetters();
}

static const RegisteredTest<MenuShieldTest> registered;
#include "MenuShieldTest.moc"
