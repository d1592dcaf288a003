#include "virtualkeyer/core/WireReader.h"

#include "tests/support/RegisteredTest.h"

#include <QTest>

#include <initializer_list>

using namespace std::chrono_literals;
using namespace virtualkeyer;
using Kind = WireLine::Kind;

namespace {

constexpr auto version = 23;

/// Each line as its kind and its bytes.
std::vector<std::pair<Kind, std::vector<std::uint8_t>>> kindsOf(WireReader& reader) {
    std::vector<std::pair<Kind, std::vector<std::uint8_t>>> kinds;
    for (const WireLine& line : reader.takeLines()) {
        kinds.emplace_back(line.kind, line.bytes);
    }
    return kinds;
}

using Kinds = std::vector<std::pair<Kind, std::vector<std::uint8_t>>>;

} // namespace

class WireReaderTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void everyCommandIsOneLine_data();
    void everyCommandIsOneLine();
    void aClosedKeyersBytesAreDiscarded();
    void aByteThatIsNoTextIsDiscarded();
    void anAnswerIsOneLine_data();
    void anAnswerIsOneLine();
    void anAnswerThatNeverComesLeavesTheRestAsItIs();
    void whatTheKeyerSaysOfItself();
    void pushButtonsAreOfVersion2Alone();
    void aLineHasTheTimeOfItsLastByte();
    void aCommandThatStandsStillIsToldOnce();
    void lostBytesEndWhatHadBegun();
    void aKeyerThatStartsAnewIsClosed();

  private:
    void send(std::initializer_list<int> bytes, Time at = Time{0}) {
        for (const int byte : bytes) {
            _reader.fromHost(static_cast<std::uint8_t>(byte), false, at);
        }
    }
    void say(int byte, Time at = Time{0}) {
        _reader.fromKeyer(static_cast<std::uint8_t>(byte), Registers(20), at);
    }
    void open() {
        send({0x00, 0x02});
        say(version);
        static_cast<void>(_reader.takeLines());
    }

    WireReader _reader;
};

void WireReaderTest::init() {
    _reader = {};
}

void WireReaderTest::everyCommandIsOneLine_data() {
    QTest::addColumn<QByteArray>("bytes");
    const auto add = [](QByteArray bytes) {
        QTest::newRow(bytes.left(4).toHex(' ').constData()) << bytes;
    };
    for (int code = 0x01; code < firstText; ++code) {
        QByteArray bytes(1, static_cast<char>(code));
        bytes.append(QByteArray(static_cast<int>(parameterCount(static_cast<std::uint8_t>(code))),
                                code == int{0x16} ? '\0' : '\x22'));
        add(bytes);
    }
    for (int number = 0; number <= 20; ++number) {
        const bool takesOne = number == 0 || number == 4 || number == 14 || number == 15;
        add(QByteArray(1, '\0') + static_cast<char>(number) +
            QByteArray(number == 13 ? 256
                       : takesOne   ? 1
                                    : 0,
                       '\x21'));
    }
    add(QByteArray::fromHex("160105"));
    add("A");
}

void WireReaderTest::everyCommandIsOneLine() {
    QFETCH(QByteArray, bytes);
    open();
    for (const char byte : bytes) {
        QCOMPARE(_reader.takeLines().size(), 0U);
        _reader.fromHost(static_cast<std::uint8_t>(byte), false, 0s);
    }
    QCOMPARE(kindsOf(_reader), (Kinds{{Kind::Command, {bytes.begin(), bytes.end()}}}));
}

void WireReaderTest::aClosedKeyersBytesAreDiscarded() {
    send({0x02, 'A', 0x00, 0x03});
    QCOMPARE(kindsOf(_reader), (Kinds{{Kind::Discarded, {0x02}},
                                      {Kind::Discarded, {'A'}},
                                      {Kind::Command, {0x00, 0x03}}}));
    open();
    send({'A', 0x00, 0x03, 'A'});
    QCOMPARE(
        kindsOf(_reader),
        (Kinds{{Kind::Command, {'A'}}, {Kind::Command, {0x00, 0x03}}, {Kind::Discarded, {'A'}}}));
}

void WireReaderTest::aByteThatIsNoTextIsDiscarded() {
    open();
    send({0x80, 0xFF});
    QCOMPARE(kindsOf(_reader), (Kinds{{Kind::Discarded, {0x80}}, {Kind::Discarded, {0xFF}}}));
}

void WireReaderTest::anAnswerIsOneLine_data() {
    QTest::addColumn<QByteArray>("question");
    QTest::addColumn<int>("length");
    QTest::newRow("open") << QByteArray::fromHex("0002") << 1;
    QTest::newRow("echo") << QByteArray::fromHex("0004C4") << 1;
    QTest::newRow("paddle") << QByteArray::fromHex("0005") << 1;
    QTest::newRow("speed") << QByteArray::fromHex("0006") << 1;
    QTest::newRow("values") << QByteArray::fromHex("0007") << 15;
    QTest::newRow("calibration") << QByteArray::fromHex("0009") << 1;
    QTest::newRow("memory") << QByteArray::fromHex("000C") << 256;
}

/// Whatever its bytes look like.
void WireReaderTest::anAnswerIsOneLine() {
    QFETCH(QByteArray, question);
    QFETCH(int, length);
    for (const char byte : question) {
        _reader.fromHost(static_cast<std::uint8_t>(byte), false, 0s);
    }
    static_cast<void>(_reader.takeLines());
    for (int i = 0; i < length; ++i) {
        QCOMPARE(_reader.takeLines().size(), 0U);
        say(0xC4);
    }
    const auto lines = _reader.takeLines();
    QCOMPARE(lines.size(), 1U);
    QCOMPARE(lines[0].kind, Kind::Answer);
    QCOMPARE(lines[0].question, static_cast<AdminCommand>(question[1]));
    QCOMPARE(lines[0].bytes, std::vector<std::uint8_t>(static_cast<std::size_t>(length), 0xC4));
    say(0xC4);
    QCOMPARE(kindsOf(_reader), (Kinds{{Kind::Status, {0xC4}}}));
}

void WireReaderTest::anAnswerThatNeverComesLeavesTheRestAsItIs() {
    open();
    send({0x00, 0x0C});
    say(0xA5);
    static_cast<void>(_reader.takeLines());
    say(0xC4, 2s);
    QCOMPARE(kindsOf(_reader), (Kinds{{Kind::Status, {0xC4}}}));
}

void WireReaderTest::whatTheKeyerSaysOfItself() {
    open();
    Registers registers(20);
    registers.set(Register::PotMinimum, 15);
    _reader.fromKeyer(0x83, registers, 1s);
    _reader.fromKeyer('C', registers, 1s);
    _reader.fromKeyer(0xC6, registers, 1s);
    const auto lines = _reader.takeLines();
    QCOMPARE(lines.size(), 3U);
    QCOMPARE(lines[0].kind, Kind::Knob);
    QCOMPARE(lines[0].knobMinimum, 15);
    QCOMPARE(lines[1].kind, Kind::Echo);
    QCOMPARE(lines[2].kind, Kind::Status);
    QVERIFY(!lines[0].isFromHost());
}

void WireReaderTest::pushButtonsAreOfVersion2Alone() {
    const auto read = [this] {
        static_cast<void>(_reader.takeLines());
        say(0xC9);
        return _reader.takeLines().back().kind;
    };
    open();
    QCOMPARE(read(), Kind::Status);
    send({0x00, 0x0B});
    QCOMPARE(read(), Kind::Buttons);
    send({0x00, 0x0A});
    QCOMPARE(read(), Kind::Status);
    send({0x00, 0x0B});
    open();
    QCOMPARE(read(), Kind::Status);
}

void WireReaderTest::aLineHasTheTimeOfItsLastByte() {
    open();
    send({0x04}, 10ms);
    send({0x00}, 20ms);
    send({0x0A}, 30ms);
    const auto lines = _reader.takeLines();
    QCOMPARE(lines.size(), 1U);
    QCOMPARE(lines[0].at.count(), Time{30ms}.count());
    QVERIFY(lines[0].isFromHost());
}

void WireReaderTest::aCommandThatStandsStillIsToldOnce() {
    open();
    QVERIFY(!_reader.nextEvent());
    send({0x04, 0x00}, 1s);
    QCOMPARE(_reader.nextEvent().value().count(), Time{1s + WireReader::patience}.count());
    _reader.advance(2s);
    QCOMPARE(_reader.takeLines().size(), 0U);
    _reader.advance(10s);
    _reader.advance(20s);
    QVERIFY(!_reader.nextEvent());
    QCOMPARE(kindsOf(_reader), (Kinds{{Kind::Unfinished, {0x04, 0x00}}}));
    // The keyer waits on, and so does its reader.
    send({0x0A}, 30s);
    QCOMPARE(kindsOf(_reader), (Kinds{{Kind::Command, {0x04, 0x00, 0x0A}}}));
    send({0x02}, 40s);
    QVERIFY(_reader.nextEvent());
}

void WireReaderTest::lostBytesEndWhatHadBegun() {
    open();
    send({0x04, 0x00}, 1s);
    _reader.fromHost(0x02, true, 1s);
    QCOMPARE(kindsOf(_reader), (Kinds{{Kind::Unfinished, {0x04, 0x00}}, {Kind::Lost, {0x02}}}));
    send({'A'}, 1s);
    QCOMPARE(kindsOf(_reader), (Kinds{{Kind::Command, {'A'}}}));
}

void WireReaderTest::aKeyerThatStartsAnewIsClosed() {
    open();
    send({0x00, 0x0C, 0x02});
    static_cast<void>(_reader.takeLines());
    _reader.restart(5s);
    const auto lines = _reader.takeLines();
    QCOMPARE(lines.size(), 2U);
    QCOMPARE(lines[0].kind, Kind::Unfinished);
    QCOMPARE(lines[1].kind, Kind::Restarted);
    QCOMPARE(lines[1].at.count(), Time{5s}.count());
    send({'A'});
    say(0xC0);
    QCOMPARE(kindsOf(_reader), (Kinds{{Kind::Discarded, {'A'}}, {Kind::Status, {0xC0}}}));
}

static const RegisteredTest<WireReaderTest> registered;
#include "WireReaderTest.moc"
