#pragma once

#include <QTest>

#include <functional>

/// Test classes of one program. Several share one, because linking takes a good part of a build.
class RegisteredTests {
  public:
    using Run = std::function<int(int argc, char** argv)>;

    /// To be called before main() begins, which RegisteredTest does.
    static void add(const char* name, Run run);

    /// Runs the class that the first argument names, with the other arguments. Returns the number
    /// of failures; without such a class it lists those that there are, which is a failure.
    [[nodiscard]] static int run(int argc, char** argv);
};

/// Makes a test class known to the program that its file is linked into.
template <typename Test>
class RegisteredTest {
  public:
    RegisteredTest() {
        RegisteredTests::add(Test::staticMetaObject.className(), [](int argc, char** argv) {
            Test test;
            return QTest::qExec(&test, argc, argv);
        });
    }
};
