#include "tests/platform/linux/PrivateBus.h"

#include <QFile>

#include <csignal>
#include <stdexcept>
#include <sys/prctl.h>

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView configuration{R"(<busconfig>
  <listen>unix:dir=%1</listen>
  <policy context="default">
    <allow send_destination="*"/>
    <allow receive_sender="*"/>
    <allow own="*"/>
  </policy>
</busconfig>
)"};

} // namespace

PrivateBus::PrivateBus() {
    QFile file(_directory.filePath(u"bus.conf"_s));
    if (!file.open(QIODevice::WriteOnly)) {
        throw std::runtime_error("There is no place for the bus.");
    }
    file.write(QString(configuration).arg(_directory.path()).toUtf8());
    file.close();
    // It ends with the test program, however that ends.
    _daemon.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
    // It complains of limits that only root may raise.
    _daemon.setStandardErrorFile(QProcess::nullDevice());
    _daemon.start(u"dbus-daemon"_s, {u"--config-file="_s + file.fileName(), u"--nofork"_s,
                                     u"--nopidfile"_s, u"--print-address"_s});
    while (!_daemon.canReadLine() && _daemon.waitForReadyRead()) {
    }
    _address = QString::fromUtf8(_daemon.readLine()).trimmed();
    if (_address.isEmpty()) {
        throw std::runtime_error("The bus does not start.");
    }
}

PrivateBus::~PrivateBus() {
    _daemon.kill();
    _daemon.waitForFinished();
}

QDBusConnection PrivateBus::connect(const QString& name) const {
    return QDBusConnection::connectToBus(_address, name);
}
