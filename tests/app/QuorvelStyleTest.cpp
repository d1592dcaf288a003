#include "app/QuorvelStyle.h"

#include "tests/app/Themes.h"
#include "tests/support/RegisteredTest.h"

#include <QApplication>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QSpinBox>
#include <QStyleFactory>
#include <QTest>

#include <algorithm>
#include <memory>

using namespace Qt::StringLiterals;

class QuorvelStyleTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void initTestCase();

    void edgesAreSeen_data();
    void edgesAreSeen();
    void hintsAreSeen();
    void escapeFromAMenuGivesTheKeyboardBack();
    void altAloneTakesNoKeyboard();
};

void QuorvelStyleTest::initTestCase() {
    QApplication::setStyle(new QuorvelStyle(QStyleFactory::create(u"Fusion"_s)));
}

void QuorvelStyleTest::edgesAreSeen_data() {
    QTest::addColumn<QString>("field");
    QTest::addColumn<QPalette>("palette");
    for (const auto* field : {"line", "number", "text"}) {
        QTest::addRow("%s in a dark theme", field) << QString::fromLatin1(field) << darkTheme();
        QTest::addRow("%s in a light theme", field) << QString::fromLatin1(field) << lightTheme();
    }
}

void QuorvelStyleTest::edgesAreSeen() {
    QFETCH(QString, field);
    QFETCH(QPalette, palette);
    std::unique_ptr<QWidget> widget;
    if (field == u"line") {
        widget = std::make_unique<QLineEdit>();
    } else if (field == u"number") {
        auto box = std::make_unique<QSpinBox>();
        box->setButtonSymbols(QAbstractSpinBox::NoButtons);
        widget = std::move(box);
    } else {
        widget = std::make_unique<QPlainTextEdit>();
    }
    widget->setPalette(palette);
    widget->resize(200, 60);
    const auto picture = widget->grab().toImage();
    const auto inside = palette.color(QPalette::Base);
    double strongest = 0;
    for (int x = 0; x < 3; ++x) {
        strongest = std::max(strongest, contrast(picture.pixelColor(x, 30), inside));
    }
    QVERIFY2(strongest >= 3, qPrintable(QString::number(strongest)));
}

void QuorvelStyleTest::hintsAreSeen() {
    auto palette = darkTheme();
    QApplication::style()->polish(palette);
    QCOMPARE(palette.color(QPalette::PlaceholderText).lightness(),
             palette.color(QPalette::Text).lightness());
}

/// A window with a menu and a field, which has the keyboard.
class WindowWithMenu : public QMainWindow {
  public:
    WindowWithMenu() : menu(*menuBar()->addMenu(u"&Keyer"_s)) {
        QObject::connect(menu.addAction(u"&Tune"_s), &QAction::triggered, this,
                         [this] { ++tunes; });
        setCentralWidget(&field);
        show();
        field.setFocus();
    }

    void press(int key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(windowHandle(), static_cast<Qt::Key>(key), modifiers);
    }

    QMenu& menu;
    QLineEdit field;
    int tunes = 0;
};

void QuorvelStyleTest::escapeFromAMenuGivesTheKeyboardBack() {
    WindowWithMenu window;
    QVERIFY(QTest::qWaitForWindowActive(&window));
    window.press(Qt::Key_K, Qt::AltModifier);
    QVERIFY(window.menu.isVisible());
    window.press(Qt::Key_Escape);
    QVERIFY(!window.menu.isVisible());
    QVERIFY(window.field.hasFocus());
    QTest::keyClick(window.windowHandle(), 'k');
    QTest::keyClick(window.windowHandle(), 't');
    QCOMPARE(window.field.text(), u"kt"_s);
    QCOMPARE(window.tunes, 0);
}

void QuorvelStyleTest::altAloneTakesNoKeyboard() {
    WindowWithMenu window;
    QVERIFY(QTest::qWaitForWindowActive(&window));
    window.press(Qt::Key_Alt, Qt::AltModifier);
    QTest::keyClick(window.windowHandle(), 'k');
    QTest::keyClick(window.windowHandle(), 't');
    QCOMPARE(window.field.text(), u"kt"_s);
    QCOMPARE(window.tunes, 0);
}

static const RegisteredTest<QuorvelStyleTest> registered;
#include "QuorvelStyleTest.moc"
