#include "platform/Error.h"

#include "platform/BundleIdentifier.h"

#include <system_error>

Error Error::ofApplication(const QString& message, const QString& suggestion) {
    return {bundleIdentifier,
            1,
            {{NSLocalizedDescriptionKey, message},
             {NSLocalizedRecoverySuggestionErrorKey, suggestion}}};
}

Error Error::ofPosix(int number, const QString& path) {
    const auto text = QString::fromStdString(std::generic_category().message(number));
    return {NSPOSIXErrorDomain,
            number,
            {{NSLocalizedDescriptionKey, text}, {NSFilePathErrorKey, path}}};
}

QString Error::localizedDescription() const {
    return userInfo.value(NSLocalizedDescriptionKey).toString();
}

QString Error::localizedRecoverySuggestion() const {
    return userInfo.value(NSLocalizedRecoverySuggestionErrorKey).toString();
}
