#include "portcheck/SerialChips.h"

#include "tests/support/RegisteredTest.h"

#include <QFile>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;

class SerialChipsTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void everyChipOfTheUdevRuleIsKnown();
    void aChipIsFoundByVendorAndProduct();
};

/// What users may open by the rule, the check can name.
void SerialChipsTest::everyChipOfTheUdevRuleIsKnown() {
    QFile file(QStringLiteral(QUORVEL_RULES));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const auto rules = QString::fromUtf8(file.readAll());
    static const QRegularExpression rule(
        u"ATTRS\\{idVendor\\}==\"([^\"]+)\"(?:, ATTRS\\{idProduct\\}==\"([^\"]+)\")?"_s);
    int count = 0;
    for (const auto& match : rule.globalMatch(rules)) {
        for (const auto& vendor : match.captured(1).split(u'|')) {
            for (const auto& product : match.captured(2).split(u'|')) {
                QVERIFY2(SerialChips::find({vendor, product}) != nullptr,
                         qPrintable(vendor + u':' + product));
                ++count;
            }
        }
    }
    QVERIFY2(count >= 15, qPrintable(QString::number(count)));
}

void SerialChipsTest::aChipIsFoundByVendorAndProduct() {
    QCOMPARE(SerialChips::find({u"0403"_s, u"6001"_s})->module, "ftdi_sio"_L1);
    QCOMPARE(SerialChips::find({u"0403"_s, u"0000"_s}), nullptr);
    QCOMPARE(SerialChips::find({}), nullptr);
    // An Uno has a chip in front of it, a Leonardo has none.
    QCOMPARE(SerialChips::find({u"2341"_s, u"0043"_s})->habit, BoardHabit::ResetsOnOpen);
    QCOMPARE(SerialChips::find({u"2341"_s, u"8036"_s})->habit, BoardHabit::LeavesAt1200Baud);
}

static const RegisteredTest<SerialChipsTest> registered;
#include "SerialChipsTest.moc"
