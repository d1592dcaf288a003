#include "serial/ORSSerialPortDelegate.h"

void ORSSerialPortDelegate::serialPortDidReceiveData(ORSSerialPort&, const QByteArray&) {}

void ORSSerialPortDelegate::serialPortWasOpened(ORSSerialPort&) {}

void ORSSerialPortDelegate::serialPortWillBeClosed(ORSSerialPort&) {}

void ORSSerialPortDelegate::serialPortWasClosed(ORSSerialPort&) {}

void ORSSerialPortDelegate::serialPortWasRemovedFromSystem(ORSSerialPort&) {}

void ORSSerialPortDelegate::serialPortDidEncounterError(ORSSerialPort&, const Error&) {}

bool ORSSerialPortDelegate::hearsErrorsOfOpenPort() const {
    return true;
}
