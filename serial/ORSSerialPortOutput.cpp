#include "serial/LineOutput.h"
#include "serial/ORSSerialPort.h"
#include "serial/PortOpening.h"

#include <QSocketNotifier>

#include <algorithm>
#include <cerrno>
#include <chrono>

using namespace std::chrono_literals;
using std::chrono::steady_clock;

namespace {
/// Bytes; the image of a keyer's memory is one.
constexpr qsizetype smallWrite = 256;

/// Bits, with parity and two stop bits.
constexpr double longestByte = 12;

constexpr auto adapterTime = 20ms;
} // namespace

bool ORSSerialPort::sendData(const QByteArray& data) {
    if (!isOpen()) {
        return false;
    }
    _writeBuffer += data;
    return _writeBuffer.isEmpty() || writeOut();
}

// One attempt a call: what a short or failed write left waits for the next one. Only what a full
// line has no room for goes out by itself, as if the write had waited for it.
bool ORSSerialPort::writeOut() {
    const auto size = _writeBuffer.size();
    const auto count = LineOutput::write(_fileDescriptor, _writeBuffer);
    const int number = errno;
    noteWritten(std::max<qsizetype>(count, 0));
    const bool isCutShort = count < 0 ? number == EAGAIN : count < size;
    if (isCutShort && wasFull(size)) {
        watchForRoom();
        return true;
    }
    endWatchForRoom();
    if (count < 0) {
        errno = number;
        notifyDelegateOfPosixError();
    }
    return count >= 0;
}

void ORSSerialPort::noteWritten(qsizetype bytes) {
    _writeBuffer.remove(0, bytes);
    const auto rate = std::max<double>(static_cast<double>(_baudRate), 1);
    const std::chrono::duration<double> time(longestByte * static_cast<double>(bytes) / rate);
    _lineIsFree = std::max(_lineIsFree, steady_clock::now()) +
                  std::chrono::duration_cast<steady_clock::duration>(time);
}

/// Whether what was written may still be on its way. A driver does not know what an adapter has
/// taken and not sent.
bool ORSSerialPort::isSending() const {
    return LineOutput::waiting(_fileDescriptor) > 0 ||
           steady_clock::now() < _lineIsFree + adapterTime;
}

// There may be room again by the time it is looked for. A line that was watched had been full, and
// one with nothing to do takes a small write whole, unless something interrupts it.
bool ORSSerialPort::wasFull(qsizetype attempted) const {
    return _roomWatch || attempted > smallWrite || !LineOutput::hasRoom(_fileDescriptor);
}

void ORSSerialPort::watchForRoom() {
    if (!_roomWatch) {
        _roomWatch = std::make_unique<QSocketNotifier>(_fileDescriptor, QSocketNotifier::Write);
        QObject::connect(_roomWatch.get(), &QSocketNotifier::activated, this,
                         [this] { static_cast<void>(writeOut()); });
    }
}

// It may be the watch itself that has called.
void ORSSerialPort::endWatchForRoom() {
    if (_roomWatch) {
        _roomWatch->setEnabled(false);
        _roomWatch.release()->deleteLater();
    }
}

qsizetype ORSSerialPort::outputWaiting() const {
    return isOpen() ? _writeBuffer.size() + LineOutput::waiting(_fileDescriptor) : 0;
}

void ORSSerialPort::dropOutput() {
    if (isOpen()) {
        _writeBuffer.clear();
        endWatchForRoom();
        LineOutput::drop(_fileDescriptor);
    }
}
