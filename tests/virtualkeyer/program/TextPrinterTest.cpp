#include "virtualkeyer/TextPrinter.h"

#include "tests/support/RegisteredTest.h"

#include <QTest>

using namespace std::chrono_literals;
using namespace virtualkeyer;

class TextPrinterTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void itAsksToBeWokenForTheEndOfALetter();
};

void TextPrinterTest::itAsksToBeWokenForTheEndOfALetter() {
    const Registers registers;
    TextPrinter printer;
    QVERIFY(!printer.nextWish());
    printer.keyerDid({0ms, KeyLine{true, 1}}, registers);
    QVERIFY(!printer.nextWish());
    printer.keyerDid({60ms, KeyLine{false, 1}}, registers);
    QVERIFY(printer.nextWish().value() > 120ms);
    QVERIFY(printer.nextWish().value() < 240ms);
}

static const RegisteredTest<TextPrinterTest> registered;
#include "TextPrinterTest.moc"
