#pragma once

#include <QTranslator>

/// The texts of the program, and of the toolkit, in the language of the operator's desktop, for as
/// long as the object lives. English where there is no translation.
class Translations final {
  public:
    /// `directory` is where the program's own translations are, as quorvel_LANGUAGE.qm.
    Translations(const QLocale& locale, const QString& directory);

  private:
    QTranslator _toolkit;
    QTranslator _program;
};
