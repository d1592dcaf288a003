#include "tests/platform/linux/FakeLogind.h"

#include <QDBusMessage>

#include <algorithm>
#include <array>
#include <fcntl.h>
#include <poll.h>
#include <stdexcept>
#include <unistd.h>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

bool isHeld(const QDBusUnixFileDescriptor& lock) {
    pollfd watched{lock.fileDescriptor(), 0, 0};
    ::poll(&watched, 1, 0);
    return (watched.revents & POLLHUP) == 0;
}

} // namespace

FakeLogind::FakeLogind(const PrivateBus& bus) : _connection(bus.connect(u"logind"_s)) {
    if (!_connection.registerObject(u"/org/freedesktop/login1"_s, this,
                                    QDBusConnection::ExportScriptableContents) ||
        !_connection.registerService(u"org.freedesktop.login1"_s)) {
        throw std::runtime_error("The login service cannot be put on the bus.");
    }
}

FakeLogind::~FakeLogind() {
    QDBusConnection::disconnectFromBus(u"logind"_s);
}

qsizetype FakeLogind::heldLocks() const {
    return std::count_if(_locks.begin(), _locks.end(), &isHeld);
}

void FakeLogind::answerRequests() {
    _delays = false;
    for (const auto& request : std::exchange(_delayed, {})) {
        _connection.send(request.createReply(QVariant::fromValue(newLock())));
    }
}

QDBusUnixFileDescriptor FakeLogind::Inhibit(const QString& what, const QString& who,
                                            const QString& why, const QString& mode) {
    _requests.append({what, who, why, mode});
    if (_refuses) {
        sendErrorReply(u"org.freedesktop.login1.OperationInProgress"_s);
        return {};
    }
    if (_delays) {
        setDelayedReply(true);
        _delayed.append(message());
        return {};
    }
    return newLock();
}

QDBusUnixFileDescriptor FakeLogind::newLock() {
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0) {
        throw std::runtime_error("There is no pipe to be had.");
    }
    QDBusUnixFileDescriptor near;
    QDBusUnixFileDescriptor far;
    near.giveFileDescriptor(ends[0]);
    far.giveFileDescriptor(ends[1]);
    _locks.append(near);
    return far;
}
