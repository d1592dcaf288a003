#include "tests/app/Themes.h"
#include "app/window/MainWindow.h"
#include "tests/keyer/EngineBench.h"
#include "tests/support/RegisteredTest.h"

#include <QLabel>
#include <QTest>

#include <optional>

using namespace Qt::StringLiterals;

/// What the main window shows in the colours of light and dark desktops.
class ThemesTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup();

    void theTuneStripIsInTheColourOfDanger_data();
    void theTuneStripIsInTheColourOfDanger();

  private:
    QPalette _before;
    std::optional<EngineBench> _bench;
    std::optional<MainWindow> _window;
};

void ThemesTest::init() {
    _before = QApplication::palette();
    _bench.emplace();
    QVERIFY(_bench->connect());
    _window.emplace(_bench->engine());
}

void ThemesTest::cleanup() {
    _window.reset();
    _bench.reset();
    QApplication::setPalette(_before);
}

void ThemesTest::theTuneStripIsInTheColourOfDanger_data() {
    QTest::addColumn<QPalette>("palette");
    QTest::addRow("dark") << darkTheme();
    QTest::addRow("light") << lightTheme();
}

/// As painted: its ground is red, and what is read on it stands out.
void ThemesTest::theTuneStripIsInTheColourOfDanger() {
    QFETCH(const QPalette, palette);
    QApplication::setPalette(palette);
    _bench->engine().setTuneState(1);
    _window->show();
    QVERIFY(QTest::qWaitForWindowExposed(&*_window));
    auto* strip = _window->findChild<QWidget*>(u"tuneWarning"_s);
    QVERIFY(strip->isVisible());
    const auto picture = strip->grab().toImage();
    const auto ground = picture.pixelColor(8, picture.height() / 2);
    QVERIFY2(ground.red() > 100 && ground.green() < 60 && ground.blue() < 60,
             qPrintable(ground.name()));
    double strongest = 0;
    for (int x = 8; x < picture.width() - 8; ++x) {
        for (int y = 8; y < picture.height() - 8; ++y) {
            strongest = std::max(strongest, contrast(picture.pixelColor(x, y), ground));
        }
    }
    QVERIFY2(strongest >= 4.5, qPrintable(QString::number(strongest)));
    QVERIFY(contrast(ground, palette.color(QPalette::Window)) >= 1.5);
}

static const RegisteredTest<ThemesTest> registered;
#include "ThemesTest.moc"
