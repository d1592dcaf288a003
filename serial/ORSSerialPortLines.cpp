#include "serial/ORSSerialPort.h"

#include <sys/ioctl.h>

int ORSSerialPort::RTS() const {
    return _rts;
}

void ORSSerialPort::setRTS(int rts) {
    setOutputLine(_rts, rts, TIOCM_RTS, &ORSSerialPort::RTSChanged);
}

int ORSSerialPort::DTR() const {
    return _dtr;
}

void ORSSerialPort::setDTR(int dtr) {
    setOutputLine(_dtr, dtr, TIOCM_DTR, &ORSSerialPort::DTRChanged);
}

void ORSSerialPort::setOutputLine(int& line, int value, int bit, void (ORSSerialPort::*changed)()) {
    if (value == line) {
        return;
    }
    line = value;
    if (isOpen()) {
        int word = 0;
        static_cast<void>(::ioctl(_fileDescriptor, TIOCMGET, &word));
        word = value != 0 ? word | bit : word & ~bit;
        if (::ioctl(_fileDescriptor, TIOCMSET, &word) != 0) {
            queueErrorReport();
        }
    }
    Q_EMIT(this->*changed)();
}

// Setting each line to what the device says and then to what is wanted makes a change of every
// wanted state that differs, whatever state the device was in: the device's "on" is a bit of the
// word and never equals a wanted 1, so a wanted "on" is always written.
void ORSSerialPort::synchronizeOutputLines() {
    int word = 0;
    if (::ioctl(_fileDescriptor, TIOCMGET, &word) != 0) {
        queueErrorReport();
        word = 0;
    }
    const int rts = _rts;
    const int dtr = _dtr;
    setRTS(word & TIOCM_RTS);
    setDTR(word & TIOCM_DTR);
    setRTS(rts);
    setDTR(dtr);
}

bool ORSSerialPort::CTS() const {
    return _cts;
}

void ORSSerialPort::setCTS(bool cts) {
    setInputLine(_cts, cts, &ORSSerialPort::CTSChanged);
}

bool ORSSerialPort::DSR() const {
    return _dsr;
}

void ORSSerialPort::setDSR(bool dsr) {
    setInputLine(_dsr, dsr, &ORSSerialPort::DSRChanged);
}

bool ORSSerialPort::DCD() const {
    return _dcd;
}

void ORSSerialPort::setDCD(bool dcd) {
    setInputLine(_dcd, dcd, &ORSSerialPort::DCDChanged);
}

void ORSSerialPort::setInputLine(std::atomic<bool>& line, bool value,
                                 void (ORSSerialPort::*changed)()) {
    if (line.exchange(value) != value) {
        Q_EMIT(this->*changed)();
    }
}
