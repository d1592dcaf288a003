#include "tests/virtualkeyer/program/Port.h"

#include <QFile>

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

Port::Port(const QString& path)
    : _descriptor(::open(QFile::encodeName(path).constData(),
                         O_RDWR | O_NOCTTY | O_CLOEXEC | O_NONBLOCK)) {}

void Port::send(const QByteArray& bytes) const {
    if (::write(_descriptor.number(), bytes.constData(), static_cast<std::size_t>(bytes.size())) !=
        bytes.size()) {
        qFatal("the port takes no more");
    }
}

QByteArray Port::readUntil(char last) const {
    QByteArray bytes;
    while (!bytes.endsWith(last)) {
        const QByteArray next = read(1);
        if (next.isEmpty()) {
            break;
        }
        bytes += next;
    }
    return bytes;
}

QByteArray Port::read(qsizetype count, int patience) const {
    QByteArray bytes;
    while (bytes.size() < count) {
        pollfd state{_descriptor.number(), POLLIN, 0};
        char byte = 0;
        if (::poll(&state, 1, patience) != 1 || ::read(_descriptor.number(), &byte, 1) != 1) {
            break;
        }
        bytes += byte;
    }
    return bytes;
}
