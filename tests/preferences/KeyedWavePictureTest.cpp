#include "preferences/KeyedWavePicture.h"

#include "tests/support/RegisteredTest.h"

#include <QImage>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// How much of the pixel row at `height` (0 the scale, 1 the top of the waves) has the colour.
double part(const QImage& image, double height, const QColor& color) {
    const int scale = QFontMetrics(QFont()).height() + 6;
    const int y = static_cast<int>((image.height() - scale) * (1 - height));
    int count = 0;
    for (int x = 0; x < image.width(); ++x) {
        count += image.pixelColor(x, y) == color ? 1 : 0;
    }
    return static_cast<double>(count) / image.width();
}

} // namespace

class KeyedWavePictureTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();

    void theKeyedWaveIsAsWideAsItIsLong_data();
    void theKeyedWaveIsAsWideAsItIsLong();
    void timeRunsFromLeftToRightInEveryLanguage();
    void thePlainWaveStandsOutBehind();
    void anyTextCanBePainted_data();
    void anyTextCanBePainted();

  private:
    [[nodiscard]] static QColor color() { return QPalette().color(QPalette::Highlight); }
};

void KeyedWavePictureTest::init() {
    auto palette = QPalette();
    palette.setColor(QPalette::Highlight, QColor(10, 20, 200));
    QApplication::setPalette(palette);
}

void KeyedWavePictureTest::theKeyedWaveIsAsWideAsItIsLong_data() {
    QTest::addColumn<int>("weighting");
    QTest::addColumn<double>("expected");
    // 8 of the 13 dits of a plain AN, and each of four elements longer or shorter.
    QTest::newRow("plain") << 50 << 8.0 / 13;
    QTest::newRow("heavy") << 70 << (8.0 + 4 * 0.4) / 13.4;
    QTest::newRow("light") << 30 << (8.0 - 4 * 0.4) / 13;
}

void KeyedWavePictureTest::theKeyedWaveIsAsWideAsItIsLong() {
    QFETCH(const int, weighting);
    QFETCH(const double, expected);
    KeyedWavePicture picture;
    picture.resize(1300, 200);
    picture.setWord(u"AN"_s, {.weighting = weighting});
    const auto painted = part(picture.grab().toImage(), 0.1, color());
    QVERIFY2(std::abs(painted - expected) < 0.03, qPrintable(QString::number(painted)));
}

void KeyedWavePictureTest::timeRunsFromLeftToRightInEveryLanguage() {
    KeyedWavePicture picture;
    picture.setLayoutDirection(Qt::RightToLeft);
    picture.resize(1300, 200);
    picture.setWord(u"B"_s, {}); // its dah comes first
    const auto image = picture.grab().toImage();
    const auto half = image.width() / 2;
    QVERIFY(part(image.copy(0, 0, half, image.height()), 0.1, color()) >
            part(image.copy(half, 0, half, image.height()), 0.1, color()));
}

void KeyedWavePictureTest::thePlainWaveStandsOutBehind() {
    KeyedWavePicture picture;
    picture.resize(1300, 200);
    picture.setWord(u"AN"_s, {.weighting = 90});
    const auto image = picture.grab().toImage();
    QVERIFY(part(image, 0.1, color()) > 0.5);
    QCOMPARE(part(image, 0.85, color()), 0.0);
    const auto background = QPalette().color(QPalette::Base);
    // The plain wave fills 8 of 13 dits there, the grid's lines hardly anything.
    QVERIFY(part(image, 0.85, background) < 0.5);
    QVERIFY(part(image, 0.85, background) > 0.2);
}

void KeyedWavePictureTest::anyTextCanBePainted_data() {
    QTest::addColumn<QString>("word");
    QTest::addColumn<QSize>("size");
    QTest::newRow("no text") << QString() << QSize(300, 100);
    QTest::newRow("a text without Morse code") << u"#"_s << QSize(300, 100);
    QTest::newRow("no room") << u"AN"_s << QSize(1, 1);
    QTest::newRow("hardly any room") << u"AN"_s << QSize(30, 20);
}

void KeyedWavePictureTest::anyTextCanBePainted() {
    QFETCH(const QString, word);
    QFETCH(const QSize, size);
    KeyedWavePicture picture;
    picture.setMinimumSize(1, 1);
    picture.resize(size);
    picture.setWord(word, {.wpm = 99});
    QCOMPARE(picture.grab().size(), size);
}

static const RegisteredTest<KeyedWavePictureTest> registered;
#include "KeyedWavePictureTest.moc"
