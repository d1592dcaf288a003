#include "app/SettingsFileAlert.h"

#include "platform/SettingsStore.h"

#include <QCoreApplication>
#include <QDir>

#include <algorithm>

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
        return tr("%1 cannot be written: %2. What is not stored holds until you quit, and is lost "
                  "then unless it can be stored before: %3.")
            .arg(native(settings.fileName()), settings.problem(), listed(settings.keysNotStored()));
    }

    static QString damaged(const SettingsStore& settings) {
        return trouble(settings) + u' ' +
               tr("Nothing of it is lost: it is now %1. Of what cannot be read, the last settings "
                  "hold, and have been stored anew.")
                   .arg(native(settings.corruptFile()));
    }

    static QString messageText() { return tr("Your settings could not be read."); }
    static QString damagedText() { return tr("Your settings were damaged by another program."); }
    static QString notStoredText() { return tr("Your settings cannot be stored."); }

  private:
    static QString native(const QString& path) { return QDir::toNativeSeparators(path); }

    /// All settings may be among them, which is more than anybody reads.
    static QString listed(const QStringList& keys) {
        constexpr qsizetype most = 8;
        const auto first = keys.first(std::min(most, keys.size())).join(tr(", "));
        return keys.size() > most ? tr("%1 … (%2 in all)").arg(first).arg(keys.size()) : first;
    }

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

std::optional<Alert> settingsDamagedAlert(const SettingsStore& settings) {
    if (settings.corruptFile().isNull()) {
        return {};
    }
    return Alert{.messageText = Texts::damagedText(), .informativeText = Texts::damaged(settings)};
}

std::optional<Alert> settingsNotStoredAlert(const SettingsStore& settings) {
    if (settings.problem().isNull()) {
        return {};
    }
    return Alert{.messageText = Texts::notStoredText(),
                 .informativeText = Texts::notStored(settings)};
}
