#include "app/window/MainWindow.h"

#include "tests/keyer/EngineBench.h"
#include "tests/support/RegisteredTest.h"

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>

#include <memory>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

/// What a desktop of 800 by 600 leaves for a window's content.
constexpr QSize smallScreen(790, 560);

/// One of the longest texts that the window has to show.
constexpr auto longPort = "usbserial-A10KMNOP-1-1.4.2"_L1;
QString longNotice() {
    return QCoreApplication::translate(
        "KeyingRecord", "Quorvel ended while tune was on. The key may have stayed down; it has "
                        "been let go of now.");
}

} // namespace

/// Run once more with everything at twice the scale, and in each language.
class MainWindowLayoutTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void nothingIsCutOff_data();
    void nothingIsCutOff();
    void theFirstWindowFitsASmallScreen();
    void theFirstStepsFitASmallScreen();
    void theButtonsStayPutWhenTuneIsSwitchedOn();
    void theRowsAreMirrored();
    void aFontThatChangesIsFollowed();

  private:
    void open();
    void expectNothingCutOff();

    QFont _font;
    std::optional<EngineBench> _bench;
    std::unique_ptr<PseudoTerminalPair> _line;
    std::optional<MainWindow> _window;
};

void MainWindowLayoutTest::initTestCase() {
    _font = QApplication::font();
}

void MainWindowLayoutTest::init() {
    QApplication::setFont(_font);
    QApplication::setLayoutDirection(Qt::LeftToRight);
    _bench.emplace();
    _line = std::make_unique<PseudoTerminalPair>();
    _bench->platform().devices().plug(longPort, _line->path());
    _bench->settings().setObject(QString(longPort), u"WKPortName"_s);
    QVERIFY(_bench->engine().connect(nullptr));
}

void MainWindowLayoutTest::cleanup() {
    _window.reset();
    _bench.reset();
    _line.reset();
}

void MainWindowLayoutTest::open() {
    _window.emplace(_bench->engine());
    _window->show();
    QVERIFY(QTest::qWaitForWindowExposed(&*_window));
}

void MainWindowLayoutTest::nothingIsCutOff_data() {
    QTest::addColumn<int>("points");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("as it comes") << 0 << Qt::LeftToRight;
    QTest::newRow("from right to left") << 0 << Qt::RightToLeft;
    QTest::newRow("a large font") << 20 << Qt::LeftToRight;
    QTest::newRow("a large font from right to left") << 20 << Qt::RightToLeft;
}

void MainWindowLayoutTest::nothingIsCutOff() {
    QFETCH(int, points);
    QFETCH(Qt::LayoutDirection, direction);
    auto font = _font;
    if (points != 0) {
        font.setPointSize(points);
    }
    QApplication::setFont(font);
    QApplication::setLayoutDirection(direction);
    open();
    _bench->engine().setSerialNumber(123456);
    _bench->engine().setHisCallsign(u"W9XYZ/P"_s);
    for (const int tuned : {0, 1, 0}) {
        if (_bench->engine().tuneState() != 0) {
            _window->say(longNotice());
        }
        _bench->engine().setTuneState(tuned);
        QCoreApplication::processEvents();
        const auto least = _window->minimumSizeHint();
        QVERIFY2(least.width() <= smallScreen.width() && least.height() <= smallScreen.height(),
                 qPrintable(u"%1 x %2"_s.arg(least.width()).arg(least.height())));
        _window->resize(smallScreen);
        QCoreApplication::processEvents();
        expectNothingCutOff();
    }
}

void MainWindowLayoutTest::expectNothingCutOff() {
    const auto room = _window->rect();
    int count = 0;
    for (const auto* widget : _window->findChildren<QWidget*>()) {
        const bool isOfInterest = qobject_cast<const QAbstractButton*>(widget) != nullptr ||
                                  qobject_cast<const QLabel*>(widget) != nullptr ||
                                  qobject_cast<const QLineEdit*>(widget) != nullptr ||
                                  qobject_cast<const QSpinBox*>(widget) != nullptr;
        if (!isOfInterest || !widget->isVisible() || widget->window() != &*_window ||
            widget->objectName().startsWith(u"qt_")) {
            continue;
        }
        ++count;
        const auto* label = qobject_cast<const QLabel*>(widget);
        const auto wanted = label != nullptr && label->wordWrap()
                                ? QSize(0, label->heightForWidth(label->width()))
                                : widget->minimumSizeHint();
        QVERIFY2(widget->width() >= wanted.width() && widget->height() >= wanted.height(),
                 qPrintable(u"%1: %2 x %3 of %4 x %5"_s.arg(widget->objectName())
                                .arg(widget->width())
                                .arg(widget->height())
                                .arg(wanted.width())
                                .arg(wanted.height())));
        QVERIFY2(room.contains(QRect(widget->mapTo(&*_window, QPoint(0, 0)), widget->size())),
                 qPrintable(widget->objectName()));
    }
    QVERIFY2(count >= 20, qPrintable(QString::number(count)));
    const auto* callsign = _window->findChild<QLineEdit*>(u"hisCallsignTextField"_s);
    QVERIFY(callsign->fontMetrics().horizontalAdvance(callsign->text()) < callsign->width() - 8);
    const auto* view = _window->findChild<QPlainTextEdit*>(u"keyboardView"_s);
    QVERIFY(view->viewport()->height() >= 2 * view->fontMetrics().lineSpacing());
    const auto lastMenu = _window->menuBar()->actionGeometry(_window->menuBar()->actions().last());
    QVERIFY(_window->menuBar()->rect().contains(lastMenu));
}

/// With whatever it has to say, and its frame: on 1024 by 600, and on 1920 by 1080 at twice the
/// scale.
void MainWindowLayoutTest::theFirstWindowFitsASmallScreen() {
    constexpr QSize room(950, 500);
    open();
    QVERIFY(_window->width() <= room.width() && _window->height() <= room.height());
    QVERIFY(_bench->engine().disconnect(nullptr));
    _window->say(longNotice());
    QCoreApplication::processEvents();
    QVERIFY(_window->width() <= room.width() && _window->height() <= room.height());
    expectNothingCutOff();
}

void MainWindowLayoutTest::theFirstStepsFitASmallScreen() {
    constexpr QSize room(950, 540);
    QVERIFY(_bench->engine().disconnect(nullptr));
    _window.emplace(_bench->engine());
    _window->offerVirtualKeyer();
    _window->showFirstSteps();
    _window->show();
    QVERIFY(QTest::qWaitForWindowExposed(&*_window));
    QCoreApplication::processEvents();
    expectNothingCutOff();
    _window->say(longNotice());
    QCoreApplication::processEvents();
    expectNothingCutOff();
    QVERIFY2(_window->width() <= room.width() && _window->height() <= room.height(),
             qPrintable(u"%1 x %2"_s.arg(_window->width()).arg(_window->height())));
}

/// Somebody who has switched it on may want it off in a hurry.
void MainWindowLayoutTest::theButtonsStayPutWhenTuneIsSwitchedOn() {
    open();
    const auto* button = _window->findChild<QPushButton*>(u"tuneButton"_s);
    const auto* message = _window->findChild<QPushButton*>(u"message8Button"_s);
    const auto place = button->mapTo(&*_window, QPoint(0, 0));
    const auto messagePlace = message->mapTo(&*_window, QPoint(0, 0));
    _bench->engine().setTuneState(1);
    QCoreApplication::processEvents();
    QVERIFY(_window->findChild<QLabel*>(u"tuneWarning"_s)->isVisible());
    QCOMPARE(button->mapTo(&*_window, QPoint(0, 0)), place);
    QCOMPARE(message->mapTo(&*_window, QPoint(0, 0)), messagePlace);
}

void MainWindowLayoutTest::theRowsAreMirrored() {
    QApplication::setLayoutDirection(Qt::RightToLeft);
    open();
    QVERIFY(_window->findChild<QPushButton*>(u"stopButton"_s)->x() >
            _window->findChild<QPushButton*>(u"beaconButton"_s)->x());
    QVERIFY(_window->findChild<QPushButton*>(u"message1Button"_s)->x() >
            _window->findChild<QPushButton*>(u"message4Button"_s)->x());
}

void MainWindowLayoutTest::aFontThatChangesIsFollowed() {
    open();
    auto font = _font;
    font.setPointSize(20);
    QApplication::setFont(font);
    QCoreApplication::processEvents();
    QVERIFY(_window->findChild<QLabel*>(u"speedLabel"_s)->font().pointSizeF() >= 30);
    QVERIFY(_window->findChild<QPlainTextEdit*>(u"keyboardView"_s)->font().pointSizeF() > 25);
    QCOMPARE(_window->findChild<QPushButton*>(u"stopButton"_s)->font().pointSizeF(), 20.0);
}

static const RegisteredTest<MainWindowLayoutTest> registered;
#include "MainWindowLayoutTest.moc"
