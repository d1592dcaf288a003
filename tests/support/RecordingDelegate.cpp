#include "tests/support/RecordingDelegate.h"

#include <QCoreApplication>
#include <QThread>

using namespace Qt::StringLiterals;

void RecordingDelegate::serialPortDidReceiveData(ORSSerialPort& port, const QByteArray& data) {
    _received += data;
    _blockSizes.append(data.size());
    record(port, u"data"_s);
}

void RecordingDelegate::serialPortWasOpened(ORSSerialPort& port) {
    record(port, u"opened"_s);
}

void RecordingDelegate::serialPortWillBeClosed(ORSSerialPort& port) {
    record(port, u"closing"_s);
}

void RecordingDelegate::serialPortWasClosed(ORSSerialPort& port) {
    record(port, u"closed"_s);
}

void RecordingDelegate::serialPortWasRemovedFromSystem(ORSSerialPort& port) {
    record(port, u"removed"_s);
}

void RecordingDelegate::serialPortDidEncounterError(ORSSerialPort& port, const Error& error) {
    _errors.append(error);
    record(port, u"error"_s);
}

void RecordingDelegate::record(ORSSerialPort& port, const QString& event) {
    if (QThread::currentThread() != QCoreApplication::instance()->thread()) {
        _events.append(u"thread"_s);
    }
    const bool repeats = event == u"data"_s || event == u"error"_s;
    if (!repeats || _events.isEmpty() || _events.constLast() != event) {
        _events.append(event);
    }
    _all.append(event);
    if (_reaction) {
        _reaction(port, event);
    }
}
