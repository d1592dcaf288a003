// Any settings and any messages: what goes into the image can be read back out of it.
//
// A failure prints the smallest case that shows it, and its seed; RC_PARAMS takes what was printed.

#include "keyer/KeyerMemory.h"
#include "keyer/WinKeyerUsb.h"
#include "tests/support/RegisteredTest.h"

#include <QTest>

#include <algorithm>
#include <cmath>
#include <map>
#include <rapidcheck.h>

using namespace KeyerMemory;
using namespace Qt::StringLiterals;

namespace {

/// Settings with arbitrary values, each made the first time that it is asked for.
class ArbitrarySettings {
  public:
    [[nodiscard]] bool flag(QLatin1StringView key) const {
        return valueOf(_flags, key, rc::gen::arbitrary<bool>());
    }
    [[nodiscard]] qint64 integer(QLatin1StringView key) const {
        return valueOf(_integers, key, rc::gen::inRange<qint64>(-1000, 1000));
    }
    [[nodiscard]] double real(QLatin1StringView key) const {
        const auto hundredths = valueOf(_integers, key, rc::gen::inRange<qint64>(0, 1500));
        return static_cast<double>(hundredths) / 100;
    }
    [[nodiscard]] std::uint8_t code(QLatin1StringView key, std::span<const Choice> choices) const {
        const auto count = static_cast<qint64>(choices.size());
        const auto chosen = valueOf(_integers, key, rc::gen::inRange<qint64>(0, count + 1));
        // One beyond the list stands for a text that is not in it.
        return chosen < count ? choices[static_cast<std::size_t>(chosen)].code : std::uint8_t{0};
    }

  private:
    template <typename Value>
    static Value valueOf(std::map<QLatin1StringView, Value>& values, QLatin1StringView key,
                         const rc::Gen<Value>& generator) {
        if (const auto found = values.find(key); found != values.end()) {
            return found->second;
        }
        return values[key] = *generator;
    }

    mutable std::map<QLatin1StringView, bool> _flags;
    mutable std::map<QLatin1StringView, qint64> _integers;
};

static_assert(SettingsSource<ArbitrarySettings>);

bool isSet(const Image& image, std::size_t offset, int bit) {
    return ((image.at(offset) >> bit) & 1) != 0;
}

void fieldIs(const Image& image, std::size_t offset, qint64 value) {
    RC_ASSERT(int{image.at(offset)} == ((value % 256) + 256) % 256);
}

void settingsCanBeReadBack() {
    const ArbitrarySettings settings;
    const auto image = imageOf(settings);
    RC_ASSERT(isSet(image, 0x01, 7) == settings.flag(WKDisablePaddleWatchdog));
    RC_ASSERT(!isSet(image, 0x01, 6));
    RC_ASSERT((image[0x01] & 0x30) == settings.code(WKKeyMode, KeyerChoices::keyMode));
    RC_ASSERT(isSet(image, 0x01, 3) == settings.flag(WKPaddleSwap));
    RC_ASSERT(!isSet(image, 0x01, 2));
    RC_ASSERT(isSet(image, 0x01, 1) == settings.flag(WKAutospace));
    RC_ASSERT(isSet(image, 0x01, 0) == settings.flag(WKContestSpacing));
    RC_ASSERT(int{image[0x02]} == 0);
    RC_ASSERT(isSet(image, 0x03, 7) == settings.flag(WKPaddleOnlySidetone));
    RC_ASSERT((image[0x03] & 0x7F) ==
              settings.code(WKSidetoneFrequency, KeyerChoices::sidetoneFrequency));
    fieldIs(image, 0x04, settings.integer(WKWeighting) + 50);
    fieldIs(image, 0x05, settings.integer(WKPTTLeadTime));
    fieldIs(image, 0x06, settings.integer(WKPTTTailTime));
    fieldIs(image, 0x07, settings.integer(WKSpeedPotMinimum));
    fieldIs(image, 0x08, settings.integer(WKSpeedPotRange));
    fieldIs(image, 0x09, settings.integer(WKFirstExtension));
    fieldIs(image, 0x0A, settings.integer(WKKeyingCompensation));
    fieldIs(image, 0x0B, settings.integer(WKFarnsworthSpeed));
    fieldIs(image, 0x0C, settings.integer(WKPaddleSwitchpoint));
    fieldIs(image, 0x0D, static_cast<qint64>(std::floor(settings.real(WKRatio) / 0.06)));
    RC_ASSERT((image[0x0E] & 0xC0) ==
              settings.code(WKDitDahPriority, KeyerChoices::ditDahPriority));
    RC_ASSERT((image[0x0E] & 0x30) == settings.code(WKPaddleHang, KeyerChoices::paddleHang));
    RC_ASSERT(isSet(image, 0x0E, 3) == settings.flag(WKKeyOut2Enable));
    RC_ASSERT(isSet(image, 0x0E, 2) == settings.flag(WKKeyOut1Enable));
    RC_ASSERT(isSet(image, 0x0E, 1) == settings.flag(WKSidetoneEnable));
    RC_ASSERT(isSet(image, 0x0E, 0) == settings.flag(WKPTTEnable));
    RC_ASSERT(isSet(image, 0x0F, 3) == settings.flag(WKStandaloneCutSerialNumbers));
    RC_ASSERT(isSet(image, 0x0F, 2) == settings.flag(WKStandaloneEnableMessageBreak));
    RC_ASSERT((image[0x0F] & 0xF3) == 0);
    fieldIs(image, 0x10, settings.integer(WKStandaloneCommandSpeed));
}

/// Texts whose characters no other shares its elements with.
QString someText() {
    const auto character =
        rc::gen::elementOf(std::string("ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789 ,.?;=>@[|"));
    return QString::fromStdString(*rc::gen::scale(1.5, rc::gen::container<std::string>(character)));
}

void messagesCanBeReadBack() {
    std::array<QString, messageCount> texts;
    std::generate(texts.begin(), texts.end(), someText);
    const auto layout = layOut(texts);
    Image image{};
    int used = 0;
    for (std::size_t i = 0; i < messageCount; ++i) {
        const auto& message = layout.messages.at(i);
        const auto length = static_cast<int>(texts.at(i).size());
        RC_ASSERT(!message.rejected);
        // It fits exactly when it leaves the last byte of the memory free.
        RC_ASSERT(message.start.has_value() == (length > 0 && used + length <= 231));
        if (message.start) {
            RC_ASSERT(int{*message.start} == 0x18 + used);
            RC_ASSERT(WinKeyerUsb::encodeMessage(message.text, *message.start, image));
            used += length;
        }
    }
    RC_ASSERT(layout.usedBytes() == used);
    for (std::size_t i = 0; i < messageCount; ++i) {
        if (const auto& start = layout.messages.at(i).start) {
            RC_ASSERT(WinKeyerUsb::decodeMessage(image, *start) == texts.at(i));
        }
    }
}

} // namespace

class KeyerMemoryPropertyTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void settings() { QVERIFY(rc::check("settings can be read back", settingsCanBeReadBack)); }
    void messages() { QVERIFY(rc::check("messages can be read back", messagesCanBeReadBack)); }
};

static const RegisteredTest<KeyerMemoryPropertyTest> registered;
#include "KeyerMemoryPropertyTest.moc"
