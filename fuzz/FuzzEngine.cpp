#include "fuzz/FuzzEngine.h"

#include "keyer/MessageSettings.h"

#include <QCoreApplication>

#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

/// Lives as long as the process, as what Qt needs of it.
QCoreApplication& makeApplication() {
    static int count = 1;
    static char name[] = "fuzz";
    static char* arguments[] = {name, nullptr};
    static QCoreApplication application(count, arguments);
    return application;
}

void forget(QtMsgType, const QMessageLogContext&, const QString&) {}

} // namespace

FuzzEngine& FuzzEngine::instance() {
    qInstallMessageHandler(&forget);
    static_cast<void>(makeApplication());
    static FuzzEngine engine;
    return engine;
}

FuzzEngine::FuzzEngine() {
    for (int i = 1; i <= 4; ++i) {
        _bench.settings().setObject(u"CQ ` ~ ^# {AR}|\\TEST+"_s, u"Message%1"_s.arg(i));
    }
    if (!_bench.connect()) {
        std::abort();
    }
    _writes.emplace(_bench.port().fileDescriptor());
}

void FuzzEngine::receive(const QByteArray& bytes) {
    engine().serialPortDidReceiveData(_bench.port(), bytes);
}

void FuzzEngine::reset() {
    engine().stopMessageSending(nullptr);
    engine().setHisCallsign({});
    engine().setPauseState(0);
    engine().setBeaconState(0);
    engine().setHscwState(0);
    static_cast<void>(written());
}
