#include "virtualkeyer/window/PaddlePanel.h"

#include "tests/support/RegisteredTest.h"

#include <QKeyEvent>
#include <QLayout>
#include <QLineEdit>
#include <QMenu>
#include <QStringList>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace virtualkeyer;

class PaddlePanelTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void twoKeysAreHeldTogether();
    void repeatsOfAHeldKeyAreNoReleases();
    void theMouseHoldsAButton();
    void anotherWindowTakesThePaddleAway();
    void aMenuTakesTheKeysButNotTheRelease();
    void aHiddenPanelHoldsNothing();
    void keysWithModifiersAreNotForThePaddle();
    void whatIsTypedIsNotForThePaddle();

  private:
    [[nodiscard]] QPushButton* button(const QString& name) const {
        for (auto* each : _panel->findChildren<QPushButton*>()) {
            if (each->accessibleName() == name) {
                return each;
            }
        }
        qFatal("no such button");
    }
    void key(QEvent::Type type, int key, bool isRepeated = false) const {
        QKeyEvent event(type, key, Qt::NoModifier, {}, isRepeated);
        QCoreApplication::sendEvent(_panel->windowHandle(), &event);
    }

    std::unique_ptr<PaddlePanel> _panel;
    QStringList _moves;
};

void PaddlePanelTest::init() {
    _moves.clear();
    _panel = std::make_unique<PaddlePanel>();
    connect(_panel.get(), &PaddlePanel::moved, this, [this](bool dit, bool dah) {
        _moves += QString(QChar(dit ? u'.' : u' ')) + QChar(dah ? u'-' : u' ');
    });
    _panel->show();
    _panel->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(_panel.get()));
    _moves.clear();
}

void PaddlePanelTest::twoKeysAreHeldTogether() {
    QTest::keyPress(_panel->windowHandle(), Qt::Key_F);
    QTest::keyPress(_panel->windowHandle(), Qt::Key_J);
    QTest::keyRelease(_panel->windowHandle(), Qt::Key_F);
    QTest::keyRelease(_panel->windowHandle(), Qt::Key_J);
    QCOMPARE(_moves, (QStringList{u". "_s, u".-"_s, u" -"_s, u"  "_s}));
}

void PaddlePanelTest::repeatsOfAHeldKeyAreNoReleases() {
    QTest::keyPress(_panel->windowHandle(), Qt::Key_F);
    for (int i = 0; i < 3; ++i) {
        key(QEvent::KeyRelease, Qt::Key_F, true);
        key(QEvent::KeyPress, Qt::Key_F, true);
    }
    QCOMPARE(_moves, QStringList{u". "_s});
    QTest::keyRelease(_panel->windowHandle(), Qt::Key_F);
    QCOMPARE(_moves, (QStringList{u". "_s, u"  "_s}));
}

void PaddlePanelTest::theMouseHoldsAButton() {
    QTest::mousePress(button(u"Dah paddle"_s), Qt::LeftButton);
    QCOMPARE(_moves, QStringList{u" -"_s});
    QTest::mouseRelease(button(u"Dah paddle"_s), Qt::LeftButton);
    QCOMPARE(_moves, (QStringList{u" -"_s, u"  "_s}));
}

void PaddlePanelTest::anotherWindowTakesThePaddleAway() {
    QTest::keyPress(_panel->windowHandle(), Qt::Key_F);
    QTest::mousePress(button(u"Dah paddle"_s), Qt::LeftButton);
    QWidget other;
    other.show();
    other.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&other));
    QCOMPARE(_moves.last(), u"  "_s);
    // Repeats of the key that is still held come to the other.
    key(QEvent::KeyPress, Qt::Key_F, true);
    QCOMPARE(_moves.last(), u"  "_s);
}

void PaddlePanelTest::aMenuTakesTheKeysButNotTheRelease() {
    QTest::keyPress(_panel->windowHandle(), Qt::Key_J);
    QMenu menu;
    menu.addAction(u"Foxtrot"_s);
    menu.popup({});
    QVERIFY(QTest::qWaitForWindowExposed(&menu));
    QTest::keyRelease(menu.windowHandle(), Qt::Key_J);
    QCOMPARE(_moves.last(), u"  "_s);
    const auto count = _moves.size();
    QTest::keyPress(_panel->windowHandle(), Qt::Key_J);
    QCOMPARE(_moves.size(), count);
}

void PaddlePanelTest::aHiddenPanelHoldsNothing() {
    QTest::keyPress(_panel->windowHandle(), Qt::Key_F);
    _panel->hide();
    QCOMPARE(_moves.last(), u"  "_s);
}

void PaddlePanelTest::keysWithModifiersAreNotForThePaddle() {
    QTest::keyPress(_panel->windowHandle(), Qt::Key_F, Qt::ControlModifier);
    QTest::keyRelease(_panel->windowHandle(), Qt::Key_F, Qt::ControlModifier);
    QCOMPARE(_moves, QStringList());
}

void PaddlePanelTest::whatIsTypedIsNotForThePaddle() {
    auto* text = new QLineEdit;
    _panel->layout()->addWidget(text);
    text->setFocus();
    QTRY_VERIFY(text->hasFocus());
    QTest::keyClick(_panel->windowHandle(), Qt::Key_F);
    QTest::keyClick(_panel->windowHandle(), Qt::Key_J);
    QCOMPARE(_moves, QStringList());
    QCOMPARE(text->text(), u"fj"_s);
    // A key that was held before lets go all the same.
    text->clearFocus();
    QTest::keyPress(_panel->windowHandle(), Qt::Key_F);
    text->setFocus();
    QTest::keyRelease(_panel->windowHandle(), Qt::Key_F);
    QCOMPARE(_moves, (QStringList{u". "_s, u"  "_s}));
}

static const RegisteredTest<PaddlePanelTest> registered;
#include "PaddlePanelTest.moc"
