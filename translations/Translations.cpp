#include "translations/Translations.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QLibraryInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr auto directory = ":/translations"_L1;
constexpr auto prefix = "quorvel_"_L1;
constexpr auto suffix = ".qm"_L1;

/// The translation for a language as QLocale names it, "pt-BR": of the country, or else of all.
QString translationFor(QString language) {
    language.replace(u'-', u'_');
    while (!language.isEmpty()) {
        if (QFile::exists(directory + u'/' + prefix + language + suffix)) {
            return language;
        }
        language.truncate(std::max(qsizetype{0}, language.lastIndexOf(u'_')));
    }
    return {};
}

} // namespace

Translations::Translations(const QLocale& locale) {
    const auto language = languageFor(locale.uiLanguages());
    // Both or none: a window in two languages is read by nobody.
    if (!language.isEmpty() && _program.load(prefix + language, directory)) {
        QCoreApplication::installTranslator(&_program);
        if (_toolkit.load("qtbase_"_L1 + language,
                          QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
            QCoreApplication::installTranslator(&_toolkit);
        }
    }
}

/// English has no file, and yet it may be what the operator reads best.
QString Translations::languageFor(const QStringList& wanted) {
    for (const auto& each : wanted) {
        const auto language = translationFor(each);
        if (!language.isEmpty() || QLocale(each).language() == QLocale::English) {
            return language;
        }
    }
    return {};
}

QStringList Translations::languages() {
    auto names = QDir(directory).entryList({prefix + u'*' + suffix}, QDir::Files, QDir::Name);
    for (auto& name : names) {
        name = name.sliced(prefix.size()).chopped(suffix.size());
    }
    return names;
}
