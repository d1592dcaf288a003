#include "platform/linux/DeviceSource.h"

DeviceSource::DeviceSource() = default;

DeviceSource::~DeviceSource() = default;
