#include "virtualkeyer/WindowProgram.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace virtualkeyer {

namespace {

bool hasDisplay() {
    return !qEnvironmentVariableIsEmpty("DISPLAY") ||
           !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
}

} // namespace

void becomeWindowProgram(char* arguments[]) {
    if (!hasDisplay()) {
        return;
    }
    const auto name = u"quorvel-virtual-keyer-window"_s;
    const QDir here(QCoreApplication::applicationDirPath());
    const QString installed =
        QDir(here.filePath(QStringLiteral(QUORVEL_LIBEXEC_DIRECTORY))).filePath(name);
    for (const QString& path : {here.filePath(name), installed}) {
        ::execv(QFile::encodeName(path).constData(), arguments);
    }
}

} // namespace virtualkeyer
