#pragma once

#include "keyer/Setting.h"

#include <array>

/// One message button: the keys and defaults of its label and of the text that it sends.
struct MessageSetting {
    QLatin1StringView labelKey;
    QLatin1StringView labelDefault;
    QLatin1StringView textKey;
    QLatin1StringView textDefault;
};

/// The eight message buttons, in order.
inline constexpr auto messageSettings = std::to_array<MessageSetting>({
    {QLatin1StringView{"Message1Label"}, QLatin1StringView{"CQ"}, QLatin1StringView{"Message1"},
     QLatin1StringView{"CQ test ` `"}},
    {QLatin1StringView{"Message2Label"},
     QLatin1StringView{QT_TRANSLATE_NOOP("Setting", "Exchange")}, QLatin1StringView{"Message2"},
     QLatin1StringView{"5NN NH"}},
    {QLatin1StringView{"Message3Label"},
     QLatin1StringView{QT_TRANSLATE_NOOP("Setting", "Acknowledge")}, QLatin1StringView{"Message3"},
     QLatin1StringView{"TU `"}},
    {QLatin1StringView{"Message4Label"}, QLatin1StringView{QT_TRANSLATE_NOOP("Setting", "My Call")},
     QLatin1StringView{"Message4"}, QLatin1StringView{"`"}},
    {QLatin1StringView{"Message5Label"},
     QLatin1StringView{QT_TRANSLATE_NOOP("Setting", "Their Call")}, QLatin1StringView{"Message5"},
     QLatin1StringView{"~"}},
    {QLatin1StringView{"Message6Label"}, QLatin1StringView{"Call?"}, QLatin1StringView{"Message6"},
     QLatin1StringView{"Call?"}},
    {QLatin1StringView{"Message7Label"}, QLatin1StringView{"?"}, QLatin1StringView{"Message7"},
     QLatin1StringView{"?"}},
    {QLatin1StringView{"Message8Label"}, QLatin1StringView{QT_TRANSLATE_NOOP("Setting", "Again")},
     QLatin1StringView{"Message8"}, QLatin1StringView{"agn"}},
});

/// Seconds of quiet between the end of one beacon transmission and the start of the next.
inline constexpr Setting BeaconInterval{
    QLatin1StringView{"BeaconInterval"}, 4.2, {}, Range{0, 3600}};

/// The defaults of all message buttons and of the beacon, as the settings store registers them.
[[nodiscard]] QHash<QString, QVariant> messageDefaults();
