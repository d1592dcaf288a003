#include "tests/support/LogKeeper.h"

#include <QMutex>
#include <QMutexLocker>

namespace {

QMutex mutex;
QStringList kept;

void keep(QtMsgType, const QMessageLogContext&, const QString& line) {
    const QMutexLocker lock(&mutex);
    kept.append(line);
}

} // namespace

LogKeeper::LogKeeper() : _previous(qInstallMessageHandler(&keep)) {
    const QMutexLocker lock(&mutex);
    kept.clear();
}

LogKeeper::~LogKeeper() {
    qInstallMessageHandler(_previous);
}

QStringList LogKeeper::lines() const {
    const QMutexLocker lock(&mutex);
    return kept;
}
