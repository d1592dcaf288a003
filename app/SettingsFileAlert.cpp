#include "app/SettingsFileAlert.h"

#include "platform/SettingsStore.h"

#include <QCoreApplication>
#include <QDir>

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(SettingsFileAlert)

  public:
    static QString informativeText(const SettingsStore& settings) {
        const auto native = &QDir::toNativeSeparators;
        if (settings.corruptFile().isNull()) {
            return tr("You may not read %1. It was left as it is, and what you choose now is "
                      "stored in %2.")
                .arg(native(settings.path()), native(settings.fileName()));
        }
        if (settings.corruptFile() == settings.path()) {
            return tr("There is something in %1 that is no setting, and the file could not be put "
                      "aside. It was left as it is, and what you choose now is stored in %2.")
                .arg(native(settings.path()), native(settings.fileName()));
        }
        return tr("There was something in it that is no setting. Nothing of it is lost: it is now "
                  "%1. Quorvel starts with the settings of a new installation.")
            .arg(native(settings.corruptFile()));
    }

    static QString messageText() { return tr("Your settings could not be read."); }
};

} // namespace

std::optional<Alert> settingsFileAlert(const SettingsStore& settings) {
    if (settings.corruptFile().isNull() && settings.fileName() == settings.path()) {
        return {};
    }
    return Alert{.messageText = Texts::messageText(),
                 .informativeText = Texts::informativeText(settings)};
}
