#include "keyer/KeyerCommand.h"
#include "keyer/DefaultSettings.h"
#include "tests/support/RegisteredTest.h"

#include <QTest>

using namespace KeyerCommand;

class KeyerCommandTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void bytesOfEachCommand_data();
    void bytesOfEachCommand();
};

void KeyerCommandTest::bytesOfEachCommand_data() {
    QTest::addColumn<QByteArray>("command");
    QTest::addColumn<QByteArray>("hex");

    const auto row = [](const char* name, const QByteArray& command, const char* hex) {
        QTest::newRow(name) << command << QByteArray(hex);
    };
    row("host open", adminHostOpen(), "00 02");
    row("host close", adminHostClose(), "00 03");
    row("the echo test asks for a U", adminEchoTest(), "00 04 55");
    row("WK2 mode", adminSetWK2Mode(), "00 0b");
    row("load memory announces the image only", adminLoadEeprom(), "00 0d");
    row("standalone message 1", adminSendStandaloneMessage(1), "00 0e 01");
    row("a standalone number is sent as given", adminSendStandaloneMessage(255), "00 0e ff");
    row("sidetone", sidetoneControl(0x8A), "01 8a");
    row("speed is left to the pot", setWpmSpeedFromPot(), "02 00");
    row("a speed of the computer's own", setWpmSpeed(28), "02 1c");
    row("neutral weighting", setWeighting(50), "03 32");
    row("weighting 100", setWeighting(100), "03 64");
    row("PTT lead before tail", setPttLeadTail(1, 10), "04 01 0a");
    row("the pot set-up ends with FF", setupSpeedPot(13, 32), "05 0d 20 ff");
    row("the pot set-up ends with FF whatever its values", setupSpeedPot(0, 0), "05 00 00 ff");
    row("pause", setPauseState(Pause::Pause), "06 01");
    row("resume", setPauseState(Pause::Resume), "06 00");
    row("get speed pot", getSpeedPot(), "07");
    row("pin configuration", setPinConfiguration(0x06), "09 06");
    row("clear buffer", clearBuffer(), "0a");
    row("key down", keyImmediate(KeyLine::Down), "0b 01");
    row("key up", keyImmediate(KeyLine::Up), "0b 00");
    row("Farnsworth", setFarnsworthWpm(10), "0d 0a");
    row("mode register", setWinKeyerMode(0x15), "0e 15");
    row("all defaults", loadDefaults(KeyerEncoding::defaultsBlock(DefaultSettings())),
        "0f 15 00 8a 32 00 0a 0d 20 00 00 0a 32 32 06 00");
    row("first extension", setFirstExtension(250), "10 fa");
    row("key compensation", setKeyCompensation(7), "11 07");
    row("paddle switchpoint", setPaddleSwitchpoint(50), "12 32");
    row("null command", nullCommand(), "13");
    row("ratio", setDitDahRatio(50), "17 32");
    row("merged letters", mergeLetters('A', 'R'), "1b 41 52");
    row("high-speed CW", hscwSpeedChange(19), "1d 13");
    row("a buffered speed", bufferedSpeedChange(28), "1c 1c");
    row("end of a buffered speed", cancelBufferedSpeedChange(), "1e");
}

void KeyerCommandTest::bytesOfEachCommand() {
    QFETCH(QByteArray, command);
    QFETCH(QByteArray, hex);
    QCOMPARE(command.toHex(' '), hex);
}

static const RegisteredTest<KeyerCommandTest> registered;
#include "KeyerCommandTest.moc"
