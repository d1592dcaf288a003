#include "tests/virtualkeyer/program/KeyerProcess.h"

#include <csignal>

using namespace Qt::StringLiterals;

namespace {

constexpr int patience = 10'000;

} // namespace

KeyerProcess::KeyerProcess(const QTemporaryDir& runtime) : _runtime(runtime.path()) {
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"XDG_RUNTIME_DIR"_s, _runtime);
    // Without a display there is no window.
    environment.remove(u"DISPLAY"_s);
    environment.remove(u"WAYLAND_DISPLAY"_s);
    // Without a locale of UTF-8 the toolkit has something to say on standard error.
    environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
    _process.setProcessEnvironment(environment);
    _process.setReadChannel(QProcess::StandardError);
}

KeyerProcess::~KeyerProcess() {
    if (_process.state() != QProcess::NotRunning) {
        end(SIGKILL);
    }
}

bool KeyerProcess::plugIn(const QStringList& arguments) {
    _process.start(QStringLiteral(KEYER_PROGRAM), arguments);
    while (!errors().contains(u'\n') && _process.state() != QProcess::NotRunning) {
        static_cast<void>(_process.waitForReadyRead(patience));
    }
    return errors().startsWith(u"Plugged in as "_s);
}

int KeyerProcess::runToEnd(const QStringList& arguments) {
    _process.start(QStringLiteral(KEYER_PROGRAM), arguments);
    return waitForEnd();
}

void KeyerProcess::end(int signalNumber) {
    ::kill(static_cast<pid_t>(_process.processId()), signalNumber);
    static_cast<void>(waitForEnd());
}

QString KeyerProcess::output() {
    _output += _process.readAllStandardOutput();
    return QString::fromLocal8Bit(_output);
}

QString KeyerProcess::errors() {
    _errors += _process.readAllStandardError();
    return QString::fromLocal8Bit(_errors);
}

QString KeyerProcess::linkPath() const {
    return _runtime + u"/quorvel/ports/usbserial-virtual"_s;
}

int KeyerProcess::waitForEnd() {
    const bool hasEnded =
        _process.state() == QProcess::NotRunning || _process.waitForFinished(patience);
    return hasEnded && _process.exitStatus() == QProcess::NormalExit ? _process.exitCode() : -1;
}
