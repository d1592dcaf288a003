#include "platform/Platform.h"

#include <stdexcept>

namespace {
Platform* currentPlatform = nullptr;
}

Platform::Platform(Services services)
    : _services(std::move(services)), _mainQueue(std::make_shared<MainQueue>()) {
    if (currentPlatform != nullptr) {
        throw std::logic_error("There is a platform already.");
    }
    currentPlatform = this;
}

Platform::~Platform() {
    while (!children().isEmpty()) {
        delete children().constLast();
    }
    _mainQueue->shutDown();
    currentPlatform = nullptr;
}

Platform& Platform::current() {
    if (currentPlatform == nullptr) {
        throw std::logic_error("There is no platform yet.");
    }
    return *currentPlatform;
}
