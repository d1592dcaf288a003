#include "keyer/MessageSettings.h"

QHash<QString, QVariant> messageDefaults() {
    auto defaults = defaultsOf(std::span(&BeaconInterval, 1));
    for (const auto& message : messageSettings) {
        defaults.insert(message.labelKey, shownText(message.labelDefault));
        defaults.insert(message.textKey, QString(message.textDefault));
    }
    return defaults;
}
