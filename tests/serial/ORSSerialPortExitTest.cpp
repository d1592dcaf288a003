// What leaves a program by way of exit(), as one does whose screen has gone.

#include "tests/serial/PortBench.h"
#include "tests/support/RegisteredTest.h"

#include <cstdlib>
#include <sys/wait.h>
#include <unistd.h>

namespace {

PortBench* bench = nullptr;

void closeThePort() {
    if (!bench->port->close() || bench->port->isOpen()) {
        std::_Exit(2);
    }
}

/// What is registered last is run first.
[[noreturn]] void exitWithAnOpenPort() {
    bench = new PortBench;
    // The rest of the end is that of the tests' program, of which this is a copy.
    std::atexit([] { std::_Exit(EXIT_SUCCESS); });
    std::atexit(closeThePort);
    bench->port->open();
    if (!bench->port->isOpen()) {
        std::_Exit(3);
    }
    std::exit(EXIT_FAILURE);
}

} // namespace

class ORSSerialPortExitTest : public QObject {
    Q_OBJECT
  private Q_SLOTS:
    void aPortMayBeClosedWhileTheProgramExits() {
        const pid_t process = ::fork();
        if (process == 0) {
            exitWithAnOpenPort();
        }
        int status = 0;
        QCOMPARE(::waitpid(process, &status, 0), process);
        QVERIFY(WIFEXITED(status));
        QCOMPARE(WEXITSTATUS(status), EXIT_SUCCESS);
    }
};

static const RegisteredTest<ORSSerialPortExitTest> registered;
#include "ORSSerialPortExitTest.moc"
