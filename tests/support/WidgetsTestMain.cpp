#include "tests/support/RegisteredTest.h"
#include "translations/Translations.h"

#include <QApplication>
#include <QLocale>

#include <optional>

int main(int argc, char* argv[]) {
    const QApplication application(argc, argv);
    // Sizes in points come to the same everywhere.
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
    std::optional<Translations> translations;
    if (const auto language = qEnvironmentVariable("QUORVEL_TEST_LANGUAGE"); !language.isEmpty()) {
        QLocale::setDefault(QLocale(language));
        translations.emplace(QLocale());
    }
    return RegisteredTests::run(argc, argv);
}
