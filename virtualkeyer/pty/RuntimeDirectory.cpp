#include "virtualkeyer/pty/RuntimeDirectory.h"

#include <QFile>
#include <QStandardPaths>

namespace virtualkeyer {

std::string runtimeDirectory() {
    const QByteArray directory = qgetenv("XDG_RUNTIME_DIR");
    if (!directory.isEmpty()) {
        return directory.toStdString();
    }
    return QFile::encodeName(QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation))
        .toStdString();
}

} // namespace virtualkeyer
