#include "app/Translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>

using namespace Qt::StringLiterals;

Translations::Translations(const QLocale& locale, const QString& directory) {
    if (_toolkit.load(locale, u"qtbase"_s, u"_"_s,
                      QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QCoreApplication::installTranslator(&_toolkit);
    }
    if (_program.load(locale, u"quorvel"_s, u"_"_s, directory)) {
        QCoreApplication::installTranslator(&_program);
    }
}
