#include "platform/DeviceRegistry.h"

DeviceRegistry::DeviceRegistry(QObject* parent) : QObject(parent) {}

DeviceRegistry::~DeviceRegistry() = default;
