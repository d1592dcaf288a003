#include "tests/keyer/EngineBench.h"

#include "keyer/GeneralSettings.h"
#include "keyer/KeyerSettings.h"
#include "keyer/MessageSettings.h"

#include <QFile>
#include <QTest>

namespace {
constexpr char endMark = '\xEE'; // no byte that the engine sends
}

EngineBench::EngineBench() : _device(_platform.devices().plug(portName, _line.path())) {
    settings().registerDefaults(defaultsOf(keyerSettings));
    settings().registerDefaults(messageDefaults());
    settings().registerDefaults(defaultsOf(generalSettings));
    settings().setObject(QString(portName), WKPortName);
    _port = ORSSerialPort::serialPortWithDevice(_device);
}

bool EngineBench::connect() {
    const auto isConnected = engine().connect(nullptr);
    static_cast<void>(written());
    return isConnected;
}

QByteArray EngineBench::written() {
    if (_port->isOpen()) {
        static_cast<void>(_port->sendData(QByteArray(1, endMark)));
    } else {
        QFile node(_line.path());
        static_cast<void>(node.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
        node.write(&endMark, 1);
    }
    QByteArray bytes;
    while (!bytes.endsWith(endMark)) {
        const auto next = _line.read(1);
        if (next.isEmpty()) {
            return "the line is dead";
        }
        bytes += next;
    }
    bytes.chop(1);
    return bytes.toHex(' ');
}

void EngineBench::receive(std::initializer_list<int> bytes) {
    QByteArray data;
    for (const auto byte : bytes) {
        data.append(static_cast<char>(byte));
    }
    engine().serialPortDidReceiveData(*_port, data);
}

void EngineBench::type(const QString& text) {
    engine().setKeyboardBuffer(text);
    engine().textDidChange();
}
