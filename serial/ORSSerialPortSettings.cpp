#include "platform/Log.h"
#include "serial/LineSettings.h"
#include "serial/ORSSerialPort.h"

using namespace Qt::StringLiterals;

unsigned long ORSSerialPort::baudRate() const {
    return _baudRate;
}

void ORSSerialPort::setBaudRate(unsigned long baudRate) {
    _baudRate = baudRate;
    setPortOptions();
    Q_EMIT baudRateChanged();
}

unsigned ORSSerialPort::numberOfStopBits() const {
    return _numberOfStopBits;
}

void ORSSerialPort::setNumberOfStopBits(unsigned numberOfStopBits) {
    if (numberOfStopBits == _numberOfStopBits) {
        return;
    }
    _numberOfStopBits = numberOfStopBits;
    setPortOptions();
    Q_EMIT numberOfStopBitsChanged();
}

bool ORSSerialPort::shouldEchoReceivedData() const {
    return _shouldEchoReceivedData;
}

void ORSSerialPort::setShouldEchoReceivedData(bool shouldEcho) {
    if (shouldEcho == _shouldEchoReceivedData) {
        return;
    }
    _shouldEchoReceivedData = shouldEcho;
    setPortOptions();
    Q_EMIT shouldEchoReceivedDataChanged();
}

unsigned ORSSerialPort::parity() const {
    return _parity;
}

void ORSSerialPort::setParity(unsigned parity) {
    if (parity == _parity) {
        return;
    }
    _parity = parity <= 2 ? parity : 0;
    setPortOptions();
    Q_EMIT parityChanged();
}

bool ORSSerialPort::usesRTSCTSFlowControl() const {
    return _usesRTSCTSFlowControl;
}

void ORSSerialPort::setUsesRTSCTSFlowControl(bool uses) {
    setFlowControl(_usesRTSCTSFlowControl, uses, &ORSSerialPort::usesRTSCTSFlowControlChanged);
}

bool ORSSerialPort::usesDTRDSRFlowControl() const {
    return _usesDTRDSRFlowControl;
}

void ORSSerialPort::setUsesDTRDSRFlowControl(bool uses) {
    if (uses && !_usesDTRDSRFlowControl) {
        logLine(u"DTR/DSR flow control has no effect on %1 on this system"_s.arg(_name));
    }
    setFlowControl(_usesDTRDSRFlowControl, uses, &ORSSerialPort::usesDTRDSRFlowControlChanged);
}

bool ORSSerialPort::usesDCDOutputFlowControl() const {
    return _usesDCDOutputFlowControl;
}

void ORSSerialPort::setUsesDCDOutputFlowControl(bool uses) {
    if (uses && !_usesDCDOutputFlowControl) {
        logLine(u"DCD output flow control has no effect on %1 on this system"_s.arg(_name));
    }
    setFlowControl(_usesDCDOutputFlowControl, uses,
                   &ORSSerialPort::usesDCDOutputFlowControlChanged);
}

void ORSSerialPort::setFlowControl(bool& setting, bool uses, void (ORSSerialPort::*changed)()) {
    if (uses == setting) {
        return;
    }
    const auto keep = shared_from_this();
    const bool wasOpen = isOpen();
    close();
    setting = uses;
    setPortOptions();
    if (wasOpen) {
        open();
    }
    Q_EMIT(this->*changed)();
}

void ORSSerialPort::setPortOptions() {
    if (!isOpen()) {
        return;
    }
    const int result = LineSettings::apply({.baudRate = _baudRate,
                                            .parity = _parity,
                                            .numberOfStopBits = _numberOfStopBits,
                                            .echoesReceivedData = _shouldEchoReceivedData,
                                            .usesRtsCts = _usesRTSCTSFlowControl},
                                           _fileDescriptor);
    if (result != 0) {
        logLine(u"Unable to set options on %1: %2"_s.arg(description()).arg(result));
    }
}
