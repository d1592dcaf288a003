#include "app/SettingsFileAlert.h"

#include "platform/SettingsStore.h"

#include <QCoreApplication>
#include <QDir>

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(SettingsFileAlert)

  public:
    static QString informativeText(const SettingsStore& settings) {
        if (settings.damage() == SettingsFile::Damage::Unreadable) {
            return tr("You may not read %1. It was left as it is, and what you choose now is "
                      "stored in %2.")
                .arg(native(settings.path()), native(settings.fileName()));
        }
        return trouble(settings) + u' ' + whereabouts(settings);
    }

    static QString notStored(const SettingsStore& settings) {
        return tr("%1 cannot be written: %2. What you have changed holds until you quit, and is "
                  "lost then unless it can be stored before: %3.")
            .arg(native(settings.fileName()), settings.problem(),
                 settings.keysNotStored().join(u", "));
    }

    static QString messageText() { return tr("Your settings could not be read."); }
    static QString notStoredText() { return tr("Your settings cannot be stored."); }

  private:
    static QString native(const QString& path) { return QDir::toNativeSeparators(path); }

    static QString trouble(const SettingsStore& settings) {
        const auto path = native(settings.path());
        switch (settings.damage()) {
        case SettingsFile::Damage::OpenQuote:
            return tr("A quotation mark in %1 is not closed.").arg(path);
        case SettingsFile::Damage::NoFile:
            return tr("%1 is a pipe or a device.").arg(path);
        case SettingsFile::Damage::TooLarge:
            return tr("%1 is much too large to be settings.").arg(path);
        default:
            return tr("There is something in %1 that is no setting.").arg(path);
        }
    }

    static QString whereabouts(const SettingsStore& settings) {
        if (settings.corruptFile() == settings.path()) {
            return tr("The file could not be put aside. It was left as it is, and what you choose "
                      "now is stored in %1.")
                .arg(native(settings.fileName()));
        }
        const auto now = native(settings.corruptFile());
        return settings.damage() == SettingsFile::Damage::OpenQuote
                   ? tr("Nothing of it is lost: it is now %1. The lines that could be read are in "
                        "use.")
                         .arg(now)
                   : tr("Nothing of it is lost: it is now %1. Quorvel starts with the settings of "
                        "a new installation.")
                         .arg(now);
    }
};

} // namespace

std::optional<Alert> settingsFileAlert(const SettingsStore& settings) {
    if (settings.damage() == SettingsFile::Damage::None) {
        return {};
    }
    return Alert{.messageText = Texts::messageText(),
                 .informativeText = Texts::informativeText(settings)};
}

std::optional<Alert> settingsNotStoredAlert(const SettingsStore& settings) {
    if (settings.problem().isNull()) {
        return {};
    }
    return Alert{.messageText = Texts::notStoredText(),
                 .informativeText = Texts::notStored(settings)};
}
