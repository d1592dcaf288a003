#include "keyer/ReceivedByte.h"

#include "tests/support/RegisteredTest.h"

#include <QTest>

class ReceivedByteTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void everyByteHasOneMeaning();
};

void ReceivedByteTest::everyByteHasOneMeaning() {
    for (int byte = 0; byte < 256; ++byte) {
        auto expected = ReceivedByte::Echo;
        if (byte == 0xFF) {
            expected = ReceivedByte::Error;
        } else if (byte >= 0x80 && byte <= 0x9F) {
            expected = ReceivedByte::SpeedPot;
        } else if (byte >= 0xC0 && byte <= 0xDF) {
            expected = ReceivedByte::Status;
        }
        QVERIFY2(classify(static_cast<std::uint8_t>(byte)) == expected,
                 qPrintable(QString::number(byte, 16)));
    }
}

static const RegisteredTest<ReceivedByteTest> registered;
#include "ReceivedByteTest.moc"
