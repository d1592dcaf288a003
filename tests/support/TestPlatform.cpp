#include "tests/support/TestPlatform.h"

using namespace Qt::StringLiterals;

TestPlatform::TestPlatform() {
    auto clock = std::make_unique<ManualClock>();
    auto devices = std::make_unique<FakeDeviceRegistry>();
    auto application = std::make_unique<RecordingApplication>();
    _clock = clock.get();
    _devices = devices.get();
    _application = application.get();
    _platform = std::make_unique<Platform>(Platform::Services{
        .settings = std::make_unique<SettingsStore>(settingsPath()),
        .clock = std::move(clock),
        .devices = std::move(devices),
        .application = std::move(application),
    });
}

QString TestPlatform::settingsPath() const {
    return _directory.filePath(u"quorvel.conf"_s);
}
