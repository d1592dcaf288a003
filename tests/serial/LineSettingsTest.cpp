#include "serial/LineSettings.h"

#include "tests/support/PseudoTerminalPair.h"
#include "tests/support/RegisteredTest.h"

#include <QTest>

#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr LineSettings plain{.baudRate = 19200,
                             .parity = 0,
                             .numberOfStopBits = 1,
                             .echoesReceivedData = false,
                             .usesRtsCts = false};

termios edited(const LineSettings& settings, tcflag_t controlBefore = 0) {
    termios record{};
    record.c_cflag = controlBefore;
    LineSettings::edit(record, settings);
    return record;
}

} // namespace

class LineSettingsTest : public QObject {
    Q_OBJECT
  private Q_SLOTS:
    void everyLineIsRaw() {
        termios record{};
        record.c_lflag = ICANON | ISIG | ECHO | IEXTEN;
        record.c_iflag = ICRNL | IXON | ISTRIP;
        record.c_oflag = OPOST;
        record.c_cflag = CS7;
        LineSettings::edit(record, plain);
        QCOMPARE(record.c_lflag & (ICANON | ISIG | ECHO | IEXTEN), 0U);
        QCOMPARE(record.c_iflag & (ICRNL | IXON | ISTRIP), 0U);
        QCOMPARE(record.c_oflag & OPOST, 0U);
        QCOMPARE(record.c_cflag & CSIZE, unsigned(CS8));
        QCOMPARE(record.c_cflag & (CREAD | CLOCAL | HUPCL), unsigned(CREAD | CLOCAL | HUPCL));
        QCOMPARE(int(record.c_cc[VMIN]), 1);
        QCOMPARE(int(record.c_cc[VTIME]), 2);
    }

    void parityIsSet_data() {
        QTest::addColumn<unsigned>("parity");
        QTest::addColumn<unsigned>("before");
        QTest::addColumn<unsigned>("after");
        QTest::newRow("none after even") << 0U << unsigned(PARENB) << 0U;
        QTest::newRow("odd after none") << 1U << 0U << unsigned(PARENB | PARODD);
        QTest::newRow("even after odd") << 2U << unsigned(PARENB | PARODD) << unsigned(PARENB);
        QTest::newRow("none keeps the odd flag")
            << 0U << unsigned(PARENB | PARODD) << unsigned(PARODD);
    }

    void parityIsSet() {
        QFETCH(unsigned, parity);
        QFETCH(unsigned, before);
        QFETCH(unsigned, after);
        auto settings = plain;
        settings.parity = parity;
        QCOMPARE(edited(settings, before).c_cflag & (PARENB | PARODD), after);
    }

    void stopBitsAreSet_data() {
        QTest::addColumn<unsigned>("number");
        QTest::addColumn<bool>("areTwo");
        QTest::newRow("none is one") << 0U << false;
        QTest::newRow("one") << 1U << false;
        QTest::newRow("two") << 2U << true;
        QTest::newRow("more is two") << 7U << true;
    }

    void stopBitsAreSet() {
        QFETCH(unsigned, number);
        QFETCH(bool, areTwo);
        auto settings = plain;
        settings.numberOfStopBits = number;
        QCOMPARE((edited(settings).c_cflag & CSTOPB) != 0, areTwo);
        QCOMPARE((edited(settings, CSTOPB).c_cflag & CSTOPB) != 0, areTwo);
    }

    void echoAndFlowControlAreSetAndCleared() {
        auto settings = plain;
        QCOMPARE(edited(settings, CRTSCTS).c_cflag & CRTSCTS, 0U);
        QCOMPARE(edited(settings).c_lflag & ECHO, 0U);
        settings.usesRtsCts = true;
        settings.echoesReceivedData = true;
        QVERIFY((edited(settings).c_cflag & CRTSCTS) != 0);
        QVERIFY((edited(settings).c_lflag & ECHO) != 0);
    }

    void theLineTakesARate_data() {
        QTest::addColumn<unsigned long>("rate");
        for (const auto rate : {50UL, 110UL, 300UL, 1200UL, 9600UL, 19200UL, 38400UL, 57600UL,
                                115200UL, 1000000UL, 1234UL, 31250UL, 250000UL, 3000000UL}) {
            QTest::addRow("%lu", rate) << rate;
        }
    }

    void theLineTakesARate() {
        QFETCH(unsigned long, rate);
        const PseudoTerminalPair line;
        for (const auto before : {9600UL, 4321UL}) {
            auto settings = plain;
            settings.baudRate = before;
            QCOMPARE(LineSettings::apply(settings, line.farEnd()), 0);
            settings.baudRate = rate;
            QCOMPARE(LineSettings::apply(settings, line.farEnd()), 0);
            const auto speed = LineSpeed::current(line.farEnd());
            QVERIFY(speed.has_value());
            QCOMPARE(speed->input, unsigned(rate));
            QCOMPARE(speed->output, unsigned(rate));
        }
    }

    void aRateTooGreatForTheSystemIsRefused() {
        const PseudoTerminalPair line;
        auto settings = plain;
        settings.baudRate = 1UL << 32U;
        QCOMPARE(LineSettings::apply(settings, line.farEnd()), -1);
    }

    void aRateOfItsOwnComesBackAtRestore() {
        const PseudoTerminalPair line;
        auto settings = plain;
        settings.baudRate = 1234;
        QCOMPARE(LineSettings::apply(settings, line.farEnd()), 0);
        const SavedLineSettings saved(line.farEnd());
        for (const auto between : {1200UL, 4321UL}) {
            settings.baudRate = between;
            QCOMPARE(LineSettings::apply(settings, line.farEnd()), 0);
            saved.restore(line.farEnd());
            QCOMPARE(LineSpeed::current(line.farEnd())->output, 1234U);
        }
    }

    void whatIsNoTerminalHasNoSettings() {
        const int descriptor = ::open("/dev/null", O_RDWR | O_CLOEXEC);
        QCOMPARE(LineSettings::apply(plain, descriptor), -1);
        QVERIFY(!LineSpeed::current(descriptor));
        QCOMPARE(LineSpeed::setNonStandard(descriptor, {1234, 1234}), -1);
        ::close(descriptor);
    }
};

static const RegisteredTest<LineSettingsTest> registered;
#include "LineSettingsTest.moc"
