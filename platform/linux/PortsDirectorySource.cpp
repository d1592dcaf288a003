#include "platform/linux/PortsDirectorySource.h"

#include "platform/Log.h"
#include "platform/linux/DeviceNaming.h"
#include "platform/linux/TerminalNode.h"

#include <QDir>
#include <QStandardPaths>

#include <algorithm>
#include <cerrno>
#include <sys/stat.h>
#include <system_error>

using namespace Qt::StringLiterals;

namespace {

QString reason(int number) {
    return QString::fromStdString(std::generic_category().message(number));
}

bool isPresentable(const QString& name) {
    return std::none_of(name.begin(), name.end(),
                        [](QChar each) { return each.category() == QChar::Other_Control; });
}

/// Tells a link from one of the same name that took its place.
QString identityOf(const QString& link, const QString& target) {
    struct stat status {};
    if (::lstat(QFile::encodeName(link).constData(), &status) != 0) {
        return {};
    }
    return u"%1 %2 %3.%4 %5"_s.arg(link)
        .arg(status.st_ino)
        .arg(status.st_mtim.tv_sec)
        .arg(status.st_mtim.tv_nsec)
        .arg(target);
}

} // namespace

QString PortsDirectorySource::standardPath() {
    const auto runtime = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    return runtime.isEmpty() ? QString() : runtime + u"/quorvel/ports"_s;
}

PortsDirectorySource::PortsDirectorySource(const QString& path) : _path(path) {
    connect(&_watcher, &QFileSystemWatcher::directoryChanged, this, &DeviceSource::changed);
    if (_path.isEmpty()) {
        logLine(u"There is no runtime directory, and so no ports directory"_s);
        return;
    }
    makeDirectories();
}

QList<SerialDevice> PortsDirectorySource::devices() {
    if (_path.isEmpty()) {
        return {};
    }
    watchAnew(chain());
    const auto found = links();
    watch(targetDirectories(found));
    QList<SerialDevice> devices;
    for (const auto& link : found) {
        if (const auto device = deviceAt(link)) {
            devices.append(*device);
        }
    }
    return devices;
}

/// The directory with those above it whose changes can make it come or go, from the top.
QStringList PortsDirectorySource::chain() const {
    const auto parent = QFileInfo(_path).path();
    return {QFileInfo(parent).path(), parent, _path};
}

void PortsDirectorySource::makeDirectories() {
    const auto directories = chain();
    for (const auto& directory : directories.sliced(1)) {
        if (::mkdir(QFile::encodeName(directory).constData(), S_IRWXU) != 0 && errno != EEXIST) {
            logLine(u"Cannot make the ports directory %1: %2"_s.arg(directory, reason(errno)));
            return;
        }
    }
}

/// Watches these directories and no others. A watch that is there already is made anew, for the
/// directory at a path may be another one than it was. What happens after this call is reported,
/// so the caller reads the directories afterwards.
void PortsDirectorySource::watchAnew(const QStringList& directories) {
    if (const auto watched = _watcher.directories(); !watched.isEmpty()) {
        _watcher.removePaths(watched);
    }
    watch(directories);
}

void PortsDirectorySource::watch(const QStringList& directories) {
    for (const auto& directory : directories) {
        if (QFileInfo(directory).isDir()) {
            _watcher.addPath(directory);
        }
    }
}

/// Where the links' terminals come and go. A link itself does not change when its terminal does.
QStringList PortsDirectorySource::targetDirectories(const QFileInfoList& links) const {
    QStringList directories;
    for (const auto& link : links) {
        directories.append(QFileInfo(link.symLinkTarget()).path());
        if (const auto terminal = link.canonicalFilePath(); !terminal.isEmpty()) {
            directories.append(QFileInfo(terminal).path());
        }
    }
    directories.removeDuplicates();
    return directories;
}

QFileInfoList PortsDirectorySource::links() {
    const QFileInfo directory(_path);
    const bool isReadable = !directory.exists() || (directory.isDir() && directory.isReadable() &&
                                                    directory.isExecutable());
    if (!isReadable && _wasReadable) {
        logLine(u"Cannot read the ports directory %1"_s.arg(_path));
    }
    _wasReadable = isReadable;
    auto entries = QDir(_path).entryInfoList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot,
                                             QDir::Unsorted);
    entries.removeIf([](const QFileInfo& entry) {
        return !entry.isSymLink() || !isPresentable(entry.fileName());
    });
    std::sort(entries.begin(), entries.end(), [](const QFileInfo& first, const QFileInfo& second) {
        return DeviceNaming::comesNaturallyBefore(first.fileName(), second.fileName());
    });
    return entries;
}

std::optional<SerialDevice> PortsDirectorySource::deviceAt(const QFileInfo& link) const {
    const auto terminal = link.canonicalFilePath();
    if (terminal.isEmpty() || !TerminalNode::isTerminal(terminal)) {
        return std::nullopt;
    }
    const auto path = link.filePath();
    return SerialDevice{.identity = identityOf(path, terminal),
                        .calloutPath = terminal,
                        .dialinPath = path,
                        .baseName = link.fileName(),
                        .suffixes = {QString()}};
}
