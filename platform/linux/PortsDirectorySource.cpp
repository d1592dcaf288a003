#include "platform/linux/PortsDirectorySource.h"

#include "platform/FileDescriptor.h"
#include "platform/Log.h"
#include "platform/VisibleText.h"
#include "platform/linux/DeviceNaming.h"
#include "platform/linux/TerminalNode.h"

#include <QDir>
#include <QStandardPaths>

#include <algorithm>
#include <cerrno>
#include <sys/inotify.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

QString reason(int number) {
    return QString::fromStdString(std::generic_category().message(number));
}

/// Whether somebody else can put a link there, or where it leads.
bool isForeign(const QString& directory) {
    struct stat status {};
    return ::lstat(QFile::encodeName(directory).constData(), &status) == 0 &&
           (S_ISLNK(status.st_mode) ||
            (S_ISDIR(status.st_mode) &&
             (status.st_uid != ::geteuid() || (status.st_mode & (S_IWGRP | S_IWOTH)) != 0)));
}

/// The link that names the terminal itself, at the end of a chain of links.
QString lastLink(const QString& link) {
    constexpr int longestChain = 40;
    QString last = link;
    for (int i = 0; i < longestChain && QFileInfo(QFileInfo(last).symLinkTarget()).isSymLink();
         ++i) {
        last = QFileInfo(last).symLinkTarget();
    }
    return last;
}

/// A link that is made anew, to the same terminal, is the same port.
QString identityOf(const QFileInfo& link) {
    return link.filePath() + u' ' + link.canonicalFilePath();
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
    tellOfMissingWatches();
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
    QSet<QString> identities;
    for (const auto& link : found) {
        identities.insert(identityOf(link));
        if (const auto device = deviceAt(link)) {
            devices.append(*device);
        }
    }
    forgetAllBut(identities);
    return devices;
}

bool PortsDirectorySource::has(const SerialDevice& device) {
    const QFileInfo link(device.dialinPath);
    return link.path() == _path && link.isSymLink() && isTrusted() && deviceAt(link) == device;
}

/// The directory with those above it whose changes can make it come or go, from the top.
QStringList PortsDirectorySource::chain() const {
    const auto parent = QFileInfo(_path).path();
    return {QFileInfo(parent).path(), parent, _path};
}

/// The toolkit does without in silence, looks once a second, and misses what lasts no longer.
void PortsDirectorySource::tellOfMissingWatches() {
    const FileDescriptor probe(::inotify_init1(IN_CLOEXEC));
    if (!probe.isValid()) {
        logLine(u"Ports that come and go in %1 are noticed late: %2"_s.arg(_path, reason(errno)));
    }
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

/// A directory that is somebody else's, or open to others, or a link to one, is passed over: what
/// is in it would be opened, and keyed through.
bool PortsDirectorySource::isTrusted() {
    auto directories = chain();
    directories.first() = QFileInfo(directories.first()).canonicalFilePath();
    const auto foreign = std::find_if(directories.begin(), directories.end(), &isForeign);
    const bool isTrusted = foreign == directories.end();
    if (!isTrusted && _wasTrusted) {
        logLine(u"The ports directory is not used: %1 is not this user's alone"_s.arg(*foreign));
    }
    _wasTrusted = isTrusted;
    return isTrusted;
}

QFileInfoList PortsDirectorySource::links() {
    const QFileInfo directory(_path);
    const bool isReadable = !directory.exists() || (directory.isDir() && directory.isReadable() &&
                                                    directory.isExecutable());
    if (!isReadable && _wasReadable) {
        logLine(u"Cannot read the ports directory %1"_s.arg(_path));
    }
    _wasReadable = isReadable;
    if (!isTrusted()) {
        return {};
    }
    auto entries = QDir(_path).entryInfoList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot,
                                             QDir::Unsorted);
    entries.removeIf([](const QFileInfo& entry) {
        return !entry.isSymLink() || !DeviceNaming::isPresentable(entry.fileName());
    });
    std::sort(entries.begin(), entries.end(), [](const QFileInfo& first, const QFileInfo& second) {
        return DeviceNaming::comesNaturallyBefore(first.fileName(), second.fileName());
    });
    return entries;
}

std::optional<SerialDevice> PortsDirectorySource::deviceAt(const QFileInfo& link) {
    const auto terminal = link.canonicalFilePath();
    if (terminal.isEmpty() || !TerminalNode::isTerminal(terminal) ||
        !isItsTerminal(identityOf(link), terminal, lastLink(link.filePath()))) {
        return std::nullopt;
    }
    return SerialDevice{.identity = identityOf(link),
                        .calloutPath = terminal,
                        .dialinPath = link.filePath(),
                        .baseName = visibleText(link.fileName()),
                        .suffixes = {QString()}};
}

/// Asked of the times once: a terminal that is used and given another mode would seem to be younger
/// than its link by and by.
bool PortsDirectorySource::isItsTerminal(const QString& identity, const QString& terminal,
                                         const QString& link) {
    const auto known = _known.find(identity);
    if (known != _known.end() && TerminalNode::isStillThere(known->second)) {
        return true;
    }
    if (!TerminalNode::isYoungerThanLink(terminal, link)) {
        _known[identity] = TerminalNode::held(terminal);
        return true;
    }
    _known.erase(identity);
    if (!_passedOver.contains(identity)) {
        _passedOver.insert(identity);
        logLine(u"%1 is no port: %2 was made after it, for somebody else"_s.arg(link, terminal));
    }
    return false;
}

void PortsDirectorySource::forgetAllBut(const QSet<QString>& identities) {
    std::erase_if(_known, [&](const auto& each) { return !identities.contains(each.first); });
    _passedOver.intersect(identities);
}
