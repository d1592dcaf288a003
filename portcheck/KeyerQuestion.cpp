#include "portcheck/KeyerQuestion.h"

#include "keyer/KeyerCommand.h"
#include "platform/Platform.h"
#include "serial/ORSSerialPort.h"
#include "serial/ORSSerialPortManager.h"

using namespace std::chrono_literals;

namespace {

constexpr int questions = 2;
/// The boot loader of a board that starts anew is through by then.
constexpr Clock::Duration patience = 2s;

/// What comes back from a keyer first of all, apart from reports that it may make unasked, which
/// have the highest bit.
bool isAnswerOfKeyer(QByteArray received) {
    received.removeIf([](char each) { return static_cast<unsigned char>(each) >= 0x80; });
    return received.startsWith(KeyerCommand::adminEchoTest().last(1));
}

std::shared_ptr<ORSSerialPort> portNamed(const QString& name) {
    const auto& ports = ORSSerialPortManager::sharedSerialPortManager().availablePorts();
    for (const auto& port : ports.value_or(ORSSerialPortManager::Ports())) {
        if (port->name() == name) {
            return port;
        }
    }
    return nullptr;
}

} // namespace

KeyerQuestion::KeyerQuestion(const QString& portName, QObject* parent)
    : QObject(parent), _port(portNamed(portName)) {}

KeyerQuestion::~KeyerQuestion() {
    leave();
}

void KeyerQuestion::ask() {
    if (open()) {
        sendQuestion();
        return;
    }
    _timer = Platform::current().clock().scheduleTimer(
        0s, this, [this] { finish(PortJudge::Answer::NotOpened); });
}

bool KeyerQuestion::open() {
    if (!_port || _port->isOpen()) {
        return false;
    }
    _port->setBaudRate(1200);
    _port->setParity(0);
    _port->setNumberOfStopBits(2);
    _port->setUsesDTRDSRFlowControl(false);
    _port->setUsesRTSCTSFlowControl(false);
    _port->setUsesDCDOutputFlowControl(false);
    _port->setDelegate(this);
    _port->open();
    return _port->isOpen();
}

void KeyerQuestion::sendQuestion() {
    if (!hasPort()) {
        finish(PortJudge::Answer::NotOpened);
        return;
    }
    if (_questions == questions) {
        finish(_received.isEmpty() ? PortJudge::Answer::Nothing : PortJudge::Answer::SomethingElse);
        return;
    }
    ++_questions;
    constexpr int nullCommands = 4;
    for (int i = 0; i < nullCommands; ++i) {
        static_cast<void>(_port->sendData(KeyerCommand::nullCommand()));
    }
    static_cast<void>(_port->sendData(KeyerCommand::adminEchoTest()));
    _timer = Platform::current().clock().scheduleTimer(patience, this, [this] { sendQuestion(); });
}

void KeyerQuestion::serialPortDidReceiveData(ORSSerialPort&, const QByteArray& data) {
    _received += data;
    if (isAnswerOfKeyer(_received)) {
        finish(PortJudge::Answer::Keyer);
    }
}

/// Over this one's head, for a device that has gone or a machine that sleeps.
void KeyerQuestion::serialPortWasClosed(ORSSerialPort&) {
    finish(PortJudge::Answer::NotOpened);
}

void KeyerQuestion::finish(PortJudge::Answer answer) {
    leave();
    Q_EMIT answered(answer);
}

/// The keyer engine may have taken the open port over meanwhile; then it is that one's.
bool KeyerQuestion::hasPort() const {
    return _port && _port->delegate() == this;
}

void KeyerQuestion::leave() {
    if (_timer) {
        _timer->invalidate();
    }
    if (hasPort()) {
        _port->setDelegate(nullptr);
        _port->close();
    }
}
