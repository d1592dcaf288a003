#pragma once

#include <QLocale>
#include <QStringList>
#include <QTranslator>

/// The texts of the program, and of the toolkit, in the language of the operator's desktop, for as
/// long as the object lives. English, in which they are written, where there is no translation.
class Translations final {
  public:
    /// There has to be an application, which is given the texts.
    explicit Translations(const QLocale& locale);

    /// As in the file's name, "de"; empty for English. `wanted` has the languages that the operator
    /// reads, the best first, as QLocale::uiLanguages() tells them.
    [[nodiscard]] static QString languageFor(const QStringList& wanted);

    /// All that there are, as in the files' names.
    [[nodiscard]] static QStringList languages();

  private:
    QTranslator _toolkit;
    QTranslator _program;
};
