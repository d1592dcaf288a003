#include "platform/linux/InstanceLock.h"

#include "platform/Uninterrupted.h"

#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <utility>

using namespace Qt::StringLiterals;

QString InstanceLock::standardPath() {
    const auto runtime = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    return runtime.isEmpty() ? QString() : runtime + u"/quorvel/instance.lock"_s;
}

bool InstanceLock::take() {
    if (_path.isEmpty() || _file.isValid()) {
        return true;
    }
    ::mkdir(QFile::encodeName(QFileInfo(_path).path()).constData(), S_IRWXU);
    const auto name = QFile::encodeName(_path);
    FileDescriptor file(uninterrupted([&] {
        return ::open(name.constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW,
                      S_IRUSR | S_IWUSR);
    }));
    const int result = uninterrupted([&] { return ::flock(file.get(), LOCK_EX | LOCK_NB); });
    if (file.isValid() && result != 0 && errno == EWOULDBLOCK) {
        return false;
    }
    _file = std::move(file);
    return true;
}
