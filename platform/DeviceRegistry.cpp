#include "platform/DeviceRegistry.h"

DeviceRegistry::DeviceRegistry(QObject* parent) : QObject(parent) {}

DeviceRegistry::~DeviceRegistry() = default;

void DeviceRegistry::holdAnnouncements() {
    ++_holds;
}

void DeviceRegistry::resumeAnnouncements() {
    if (--_holds == 0) {
        Q_EMIT announcementsResumed();
    }
}
