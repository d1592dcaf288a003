#include "tests/support/RegisteredTest.h"

#include <QApplication>

int main(int argc, char* argv[]) {
    const QApplication application(argc, argv);
    // Sizes in points come to the same everywhere.
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
    return RegisteredTests::run(argc, argv);
}
