// The keyer's own memory: loading it, and messages in and out of it.

#include "keyer/KeyerCommand.h"
#include "keyer/KeyerMemory.h"
#include "keyer/LineTime.h"
#include "keyer/MorseTable.h"
#include "keyer/StoredSettings.h"
#include "keyer/WinKeyerUsb.h"
#include "platform/Platform.h"

#include <algorithm>
#include <iterator>
#include <utility>

using namespace KeyerMemory;

namespace {

std::array<QString, messageCount> storedMessages() {
    std::array<QString, messageCount> texts;
    std::transform(WKStandaloneMessages.begin(), WKStandaloneMessages.end(), texts.begin(),
                   [](QLatin1StringView key) {
                       return SettingsStore::standardUserDefaults().stringForKey(key);
                   });
    return texts;
}

void store(const Layout& layout, Image& image) {
    image[Offset::freePointer] = layout.freePointer;
    for (std::size_t i = 0; i < messageCount; ++i) {
        const auto& message = layout.messages[i];
        image[Offset::messageStarts + i] = message.start.value_or(emptySlot);
        if (message.start) {
            static_cast<void>(WinKeyerUsb::encodeMessage(message.text, *message.start, image));
        }
    }
}

QByteArray bytesOf(const Image& image) {
    QByteArray bytes;
    std::copy(image.begin(), image.end(), std::back_inserter(bytes));
    return bytes;
}

/// The character of a message byte, bit 7 being the end mark. One code has that bit of itself.
char characterOf(std::uint8_t byte) {
    const auto character =
        WinKeyerUsb::morseToAscii(static_cast<std::uint8_t>(byte & ~lastCharacterBit));
    return character != 0 ? character : WinKeyerUsb::morseToAscii(byte);
}

} // namespace

bool WinKeyerUsb::writeEeprom(Error*) {
    const auto layout = layOut(storedMessages());
    if (layout.hasRejectedCharacter()) {
        return false;
    }
    auto image = imageOf(StoredSettings());
    store(layout, image);
    Q_EMIT willLoadMemory();
    if (_isKeyerPlaying) {
        // Nothing could stop its message until the image is out.
        clearKeyer();
    }
    if (!sendToPort(KeyerCommand::adminLoadEeprom()) || !sendToPort(bytesOf(image))) {
        Q_EMIT isLoadingMemoryChanged();
        return false;
    }
    beginMemoryLoad();
    return true;
}

/// A second load queues behind the first.
void WinKeyerUsb::beginMemoryLoad() {
    auto& clock = Platform::current().clock();
    const bool isSecond = isLoadingMemory();
    if (isSecond) {
        _memoryLoad->invalidate();
    }
    const auto size = KeyerCommand::adminLoadEeprom().size() + qsizetype(Image().size());
    _memoryLoadEnd = (isSecond ? _memoryLoadEnd : clock.now()) + lineTime(size);
    _memoryLoad =
        clock.scheduleTimer(_memoryLoadEnd - clock.now(), this, [this] { endMemoryLoad(); });
    Q_EMIT isLoadingMemoryChanged();
}

void WinKeyerUsb::endMemoryLoad() {
    if (!isLoadingMemory()) {
        return;
    }
    std::exchange(_memoryLoad, nullptr)->invalidate();
    Q_EMIT isLoadingMemoryChanged();
    if (std::exchange(_sendIsDue, false)) {
        send();
    }
}

void WinKeyerUsb::sendStandaloneMessage(int number) {
    if (isLoadingMemory()) {
        return;
    }
    Q_EMIT willSend();
    _mayBeKeying = true;
    _isKeyerPlaying = true;
    static_cast<void>(
        sendToPort(KeyerCommand::adminSendStandaloneMessage(KeyerEncoding::lowByte(number))));
}

bool WinKeyerUsb::encodeMessage(const QString& message, std::uint8_t start, Image& image) {
    const auto fits = static_cast<std::size_t>(message.size()) <= image.size() - start;
    if (!fits || !std::all_of(message.begin(), message.end(),
                              [](QChar each) { return MorseTable::contains(each.unicode()); })) {
        return false;
    }
    auto next = image.begin() + start;
    for (const auto character : message) {
        *next++ = MorseTable::codeOf(character.unicode());
    }
    if (!message.isEmpty()) {
        *std::prev(next) |= lastCharacterBit;
    }
    return true;
}

QString WinKeyerUsb::decodeMessage(const Image& image, std::uint8_t start) {
    QString text;
    for (int i = 0; i < messageAreaSize; ++i) {
        const auto byte = image[(start + static_cast<unsigned>(i)) % image.size()];
        const auto isLast = (byte & lastCharacterBit) != 0;
        const auto character = isLast ? characterOf(byte) : morseToAscii(byte);
        if (character == 0) {
            break;
        }
        text.append(QLatin1Char(character));
        if (isLast) {
            break;
        }
    }
    return text;
}

char WinKeyerUsb::morseToAscii(std::uint8_t code) {
    const auto found = std::find(MorseTable::codes.begin(), MorseTable::codes.end(), code);
    if (found == MorseTable::codes.end()) {
        return 0;
    }
    return static_cast<char>(MorseTable::first +
                             static_cast<unsigned>(found - MorseTable::codes.begin()));
}
