#include "tests/support/RegisteredTest.h"

#include <QCoreApplication>

int main(int argc, char* argv[]) {
    const QCoreApplication application(argc, argv);
    return RegisteredTests::run(argc, argv);
}
