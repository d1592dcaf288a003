#include "loggers/SenderNames.h"

#include "loggers/SocketUsers.h"
#include "platform/MainQueue.h"
#include "platform/Platform.h"
#include "platform/WorkerThread.h"

#include <algorithm>

namespace {

constexpr int restsForALook = 9;

} // namespace

SenderNames::SenderNames(QObject* parent)
    : QObject(parent), _reports(std::make_shared<MainQueue>()) {}

SenderNames::~SenderNames() {
    _reports->shutDown();
}

void SenderNames::find(const LoggerAddress& logger) {
    std::erase(_wanted, logger);
    if (_wanted.size() >= mostWanted) {
        _wanted.pop_front();
    }
    _wanted.push_back(logger);
    findNext();
}

void SenderNames::findNext() {
    if (_isBusy || _wanted.empty()) {
        return;
    }
    const auto logger = _wanted.front();
    _wanted.pop_front();
    _isBusy = true;
    _begun = Platform::current().clock().now();
    _look = startWorker("logger-name", [this, logger, reports = _reports](const std::stop_token&) {
        const auto name = SocketUsers::of(logger.port);
        reports->async([this, logger, name] { tell(logger, name); });
    });
}

void SenderNames::tell(const LoggerAddress& logger, const QString& name) {
    auto& clock = Platform::current().clock();
    const auto rest =
        std::max<Clock::Duration>(shortestRest, restsForALook * (clock.now() - _begun));
    clock.scheduleTimer(rest, this, [this] {
        _isBusy = false;
        findNext();
    });
    Q_EMIT found(logger, name);
}
