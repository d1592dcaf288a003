#include "portcheck/linux/RunningPrograms.h"

#include <QDir>
#include <QFile>

#include <algorithm>

using namespace Qt::StringLiterals;

bool RunningPrograms::include(const QString& name) {
    const auto wanted = name.toLocal8Bit();
    const auto processes = QDir(u"/proc"_s).entryList({u"[1-9]*"_s}, QDir::Dirs);
    return std::ranges::any_of(processes, [&](const QString& number) {
        QFile file(u"/proc/%1/comm"_s.arg(number));
        return file.open(QIODevice::ReadOnly) && file.readAll().trimmed() == wanted;
    });
}
