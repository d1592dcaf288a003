#include "preferences/MemoryGauge.h"

#include "tests/support/RegisteredTest.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

KeyerMemory::Layout layoutOf(const std::array<QString, KeyerMemory::messageCount>& texts) {
    return KeyerMemory::layOut(texts);
}

} // namespace

class MemoryGaugeTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void itTellsTheUseInFigures();
    void itTellsWhichMessagesAreLeftOut();
    void theBarIsAsLongAsTheUse_data();
    void theBarIsAsLongAsTheUse();
    void neighborsDifferInColor();
};

void MemoryGaugeTest::itTellsTheUseInFigures() {
    MemoryGauge gauge;
    QCOMPARE(gauge.text(), u"0 of 232 bytes used"_s);
    gauge.setMemory(layoutOf({QString(100, u'E'), QString(53, u'T')}));
    QCOMPARE(gauge.text(), u"153 of 232 bytes used"_s);
    QCOMPARE(gauge.accessibleDescription(), gauge.text());
    QCOMPARE(gauge.accessibleName(), u"Keyer memory"_s);
}

void MemoryGaugeTest::itTellsWhichMessagesAreLeftOut() {
    MemoryGauge gauge;
    gauge.setMemory(layoutOf({u"CQ"_s, QString(230, u'E'), QString(240, u'E'), u"TU"_s}));
    QCOMPARE(gauge.text(), u"4 of 232 bytes used; left out: 2, 3"_s);
    QCOMPARE(gauge.accessibleDescription(), gauge.text());
}

void MemoryGaugeTest::theBarIsAsLongAsTheUse_data() {
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("from the left") << Qt::LeftToRight;
    QTest::newRow("from the right where people read so") << Qt::RightToLeft;
}

void MemoryGaugeTest::theBarIsAsLongAsTheUse() {
    QFETCH(const Qt::LayoutDirection, direction);
    MemoryGauge gauge;
    gauge.setLayoutDirection(direction);
    gauge.resize(466, gauge.sizeHint().height()); // 2 pixels a byte, and the outline
    gauge.setMemory(layoutOf({QString(100, u'E')}));
    const auto image = gauge.grab().toImage();
    const auto isFull = [&](int byte) {
        const int x = 1 + 2 * byte;
        const int place = direction == Qt::LeftToRight ? x : image.width() - 1 - x;
        return image.pixelColor(place, 3) == gauge.palette().color(QPalette::Highlight);
    };
    QVERIFY(isFull(0));
    QVERIFY(isFull(99));
    QVERIFY(!isFull(100));
    QVERIFY(!isFull(231));
}

void MemoryGaugeTest::neighborsDifferInColor() {
    MemoryGauge gauge;
    gauge.resize(466, gauge.sizeHint().height());
    gauge.setMemory(layoutOf({QString(40, u'E'), QString(), QString(40, u'E'), QString(40, u'E')}));
    const auto image = gauge.grab().toImage();
    const auto color = [&](int byte) { return image.pixelColor(1 + 2 * byte, 3); };
    QCOMPARE(color(0), color(39));
    QVERIFY(color(39) != color(40));
    QVERIFY(color(79) != color(80));
    QVERIFY(color(119) != color(120));
}

static const RegisteredTest<MemoryGaugeTest> registered;
#include "MemoryGaugeTest.moc"
