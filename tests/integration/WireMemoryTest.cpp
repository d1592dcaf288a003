#include "keyer/KeyerMemory.h"
#include "keyer/KeyerSettings.h"
#include "tests/integration/Station.h"
#include "tests/support/RegisteredTest.h"

#include <QTest>

#include <optional>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using virtualkeyer::Register;

/// The keyer's own memory, loaded over the line and then used by the keyer.
class WireMemoryTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup() { _station.reset(); }

    void sixMessagesArePlayed();
    void theDefaultMessagesArePlayed();
    void everyCharacterIsPlayedAsItsSign();
    void anEmptySlotPlaysNothing();
    void aMessageThatDidNotFitPlaysNothing();
    void loadingTakesTheLinesTimeAndNothingElse();
    void theKeyerWorksAloneWithTheLoadedSettings();
    void textIsSentAsBeforeAfterLoading();

  private:
    [[nodiscard]] bool load(const std::array<QString, KeyerMemory::messageCount>& texts);
    [[nodiscard]] QString played(int number);

    std::optional<Station> _station;
};

void WireMemoryTest::init() {
    _station.emplace();
    QVERIFY(_station->setUp());
}

bool WireMemoryTest::load(const std::array<QString, KeyerMemory::messageCount>& texts) {
    for (std::size_t i = 0; i < texts.size(); ++i) {
        _station->settings().setObject(texts[i], WKStandaloneMessages[i]);
    }
    return _station->engine().writeEeprom(nullptr) && _station->waitForQuiet();
}

QString WireMemoryTest::played(int number) {
    _station->engine().sendStandaloneMessage(number);
    return _station->waitForQuiet() ? _station->keyed() : u"never quiet"_s;
}

void WireMemoryTest::sixMessagesArePlayed() {
    const std::array texts{u"CQ CQ DE N0CALL"_s, u"5NN 001"_s, u"TU"_s, u"QRL?"_s,
                           u"TEST ="_s,          u"73 / GL"_s};
    QVERIFY(load(texts));
    QCOMPARE(_station->keyed(), QString());
    for (int number = 1; number <= 6; ++number) {
        QCOMPARE(played(number), texts[static_cast<std::size_t>(number - 1)]);
    }
}

void WireMemoryTest::theDefaultMessagesArePlayed() {
    QVERIFY(_station->engine().writeEeprom(nullptr));
    QVERIFY(_station->waitForQuiet());
    QCOMPARE(played(1), u"MESSAGE 1"_s);
    QCOMPARE(played(6), u"MESSAGE 6"_s);
}

void WireMemoryTest::everyCharacterIsPlayedAsItsSign() {
    // Signs that share their elements with another are read as that one.
    QVERIFY(load({u"abcdefghijklmnopqrstuvwxyz0123456789"_s, u"\"$'()"_s, u"+,-./"_s, u";=>?@["_s,
                  u"<:]\\"_s, QString()}));
    QCOMPARE(played(1), u"ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789"_s);
    QCOMPARE(played(2).left(1), u"\""_s);
    QCOMPARE(played(3), u"+,-./"_s);
    QCOMPARE(played(4), u";=>?@["_s);
    QCOMPARE(played(5), u"+((/"_s);
}

void WireMemoryTest::anEmptySlotPlaysNothing() {
    QVERIFY(load({u"CQ"_s, QString(u""_s), u"TU"_s}));
    QCOMPARE(played(2), QString());
    QCOMPARE(played(3), u"TU"_s);
}

void WireMemoryTest::aMessageThatDidNotFitPlaysNothing() {
    QVERIFY(load({QString(232, u'E'), u"TU"_s}));
    QCOMPARE(played(1), QString());
    QCOMPARE(played(2), u"TU"_s);
}

void WireMemoryTest::loadingTakesTheLinesTimeAndNothingElse() {
    const auto begin = _station->now();
    QVERIFY(_station->engine().writeEeprom(nullptr));
    QCOMPARE(_station->now().count(), begin.count());
    QVERIFY(_station->waitForQuiet());
    QCOMPARE((_station->now() - begin).count(), (Station::Time(258 * 11s) / 1200).count());
    QCOMPARE(_station->received(), QByteArray());
}

void WireMemoryTest::theKeyerWorksAloneWithTheLoadedSettings() {
    auto& settings = _station->settings();
    settings.setObject(u"800 Hz"_s, WKSidetoneFrequency);
    settings.setObject(5, WKWeighting);
    settings.setObject(u"Bug"_s, WKKeyMode);
    QVERIFY(load({}));
    QVERIFY(_station->disconnect());
    _station->pass(1s);
    QCOMPARE(_station->registers().value(Register::Mode), std::uint8_t{0x31});
    QCOMPARE(_station->registers().value(Register::Sidetone), std::uint8_t{0x85});
    QCOMPARE(_station->registers().value(Register::Weighting), std::uint8_t{55});
}

void WireMemoryTest::textIsSentAsBeforeAfterLoading() {
    QVERIFY(load({u"CQ"_s}));
    _station->type(u"PARIS"_s);
    QVERIFY(_station->waitForQuiet());
    QCOMPARE(_station->keyed(), u"PARIS"_s);
}

static const RegisteredTest<WireMemoryTest> registered;
#include "WireMemoryTest.moc"
