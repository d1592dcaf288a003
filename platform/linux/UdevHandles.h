#pragma once

#include <libudev.h>

#include <memory>

/// Gives libudev's references back.
struct UdevUnref {
    void operator()(udev* context) const { udev_unref(context); }
    void operator()(udev_device* device) const { udev_device_unref(device); }
    void operator()(udev_enumerate* enumerate) const { udev_enumerate_unref(enumerate); }
    void operator()(udev_monitor* monitor) const { udev_monitor_unref(monitor); }
};

using UdevContext = std::unique_ptr<udev, UdevUnref>;
using UdevDevice = std::unique_ptr<udev_device, UdevUnref>;
using UdevEnumerate = std::unique_ptr<udev_enumerate, UdevUnref>;
using UdevMonitor = std::unique_ptr<udev_monitor, UdevUnref>;
