#include "virtualkeyer/Session.h"

#include "virtualkeyer/NamedProfiles.h"
#include "virtualkeyer/pty/KeyerLoop.h"
#include "virtualkeyer/pty/KeyerPort.h"
#include "virtualkeyer/pty/RuntimeDirectory.h"
#include "virtualkeyer/script/FastLoop.h"
#include "virtualkeyer/script/ScriptError.h"

#include <QCoreApplication>
#include <QFile>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace virtualkeyer {

namespace {

constexpr auto standardInput = "-"_L1;

/// Makes the writer of a file and adds it to the listeners, if there is to be one.
template <typename Writer>
void writeTo(const QString& path, std::optional<Writer>& writer,
             std::vector<KeyerListener*>& listeners) {
    if (!path.isEmpty()) {
        listeners.push_back(&writer.emplace(QFile::encodeName(path).toStdString()));
    }
}

} // namespace

void complain(const char* what) {
    std::fprintf(stderr, "quorvel-virtual-keyer: %s\n", what);
}

Session::Session(const CommandLine& commandLine)
    : _commandLine(commandLine), _listeners{&_printer} {
    writeTo(commandLine.transcriptPath, _transcript, _listeners);
    writeTo(commandLine.registersPath, _registers, _listeners);
    writeTo(commandLine.wavPath, _wav, _listeners);
    if (commandLine.isPaddled) {
        _operators.push_back(&_paddle.emplace(STDIN_FILENO));
    }
    if (!commandLine.scriptPath.isEmpty()) {
        openScript();
    }
}

void Session::openScript() {
    const QString& path = _commandLine.scriptPath;
    _script.emplace(profileNamed, [path](int line, const QString& expected, const QString& found) {
        complain(QCoreApplication::translate("VirtualKeyer", "%1:%2: expected %3, but it is %4")
                     .arg(path)
                     .arg(line)
                     .arg(expected, found)
                     .toLocal8Bit()
                     .constData());
    });
    const bool isTyped = path == standardInput;
    if (!isTyped) {
        _scriptFile =
            FileDescriptor(::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC));
        if (!_scriptFile.isOpen()) {
            throw ScriptError(
                QCoreApplication::translate("VirtualKeyer", "cannot read the script %1: %2")
                    .arg(path, QString::fromLocal8Bit(std::strerror(errno)))
                    .toStdString());
        }
    }
    _scriptReader.emplace(isTyped ? STDIN_FILENO : _scriptFile.number(), path, *_script);
    if (!isTyped || _commandLine.isFast) {
        _scriptReader->readAll();
    }
    _operators.push_back(&*_scriptReader);
    _operators.push_back(&*_script);
    _listeners.push_back(&*_script);
}

void Session::add(KeyerListener& listener, Operator& keyerOperator) {
    _listeners.push_back(&listener);
    _operators.push_back(&keyerOperator);
    if (_script) {
        _script->stayAfterwards();
    }
}

void Session::run(int stopDescriptor) {
    runKeyer(stopDescriptor);
    if (_wav) {
        _wav->finish();
    }
}

void Session::runKeyer(int stopDescriptor) {
    if (!_commandLine.isFast) {
        return runInRealTime(stopDescriptor);
    }
    SerialKeyer keyer(_commandLine.profile, _listeners, _commandLine.troubles, _commandLine.seed);
    runFast(keyer, _operators);
}

void Session::runInRealTime(int stopDescriptor) {
    KeyerPort port(runtimeDirectory(), QFile::encodeName(_commandLine.linkName).toStdString());
    if (port.terminal().watch() < 0) {
        complain(QCoreApplication::translate(
                     "VirtualKeyer",
                     "the system has no watches left; openings of the port are noticed late")
                     .toLocal8Bit()
                     .constData());
    }
    SerialKeyer keyer(_commandLine.profile, _listeners, _commandLine.troubles, _commandLine.seed);
    KeyerLoop loop(keyer, port, _operators);
    tellWhere(port.path());
    loop.run(stopDescriptor);
}

ExitStatus Session::exitStatus() const {
    if (!_script) {
        return ExitStatus::Success;
    }
    const auto line = _script->nextLine();
    if (line) {
        complain(QCoreApplication::translate("VirtualKeyer", "%1:%2: not done before the end")
                     .arg(_commandLine.scriptPath)
                     .arg(*line)
                     .toLocal8Bit()
                     .constData());
    }
    return _script->isContent() && !line ? ExitStatus::Success : ExitStatus::Disappointed;
}

void Session::tellWhere(const std::string& path) const {
    auto text = QCoreApplication::translate("VirtualKeyer", "Plugged in as %1 (%2)")
                    .arg(_commandLine.linkName, QFile::decodeName(path.c_str())) +
                u'\n';
    if (_commandLine.lacksWindow) {
        text += QCoreApplication::translate("VirtualKeyer", "No window can be shown. What is keyed "
                                                            "is printed here, until Ctrl+C.") +
                u'\n';
    }
    std::fputs(text.toLocal8Bit().constData(), stderr);
}

} // namespace virtualkeyer
