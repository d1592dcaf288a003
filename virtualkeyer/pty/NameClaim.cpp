#include "virtualkeyer/pty/NameClaim.h"

#include "virtualkeyer/pty/SystemFailure.h"

#include <QCoreApplication>
#include <QFile>

#include <array>
#include <fcntl.h>
#include <stdexcept>
#include <sys/file.h>
#include <sys/stat.h>

namespace virtualkeyer {

namespace {

QString alreadyHeld(const QString& name, const QString& process) {
    if (process.isEmpty()) {
        return QCoreApplication::translate("VirtualKeyer",
                                           "a running virtual keyer already holds the name %1")
            .arg(name);
    }
    return QCoreApplication::translate(
               "VirtualKeyer", "a running virtual keyer (process %1) already holds the name %2")
        .arg(process, name);
}

struct Note {
    std::string process;
    std::string text;
};

Note readNote(int file) {
    std::array<char, 256> buffer{};
    const ssize_t size = ::pread(file, buffer.data(), buffer.size(), 0);
    const std::string content(buffer.data(), size > 0 ? static_cast<std::size_t>(size) : 0);
    const auto blank = content.find(' ');
    if (blank == std::string::npos) {
        return {};
    }
    return {content.substr(0, blank), content.substr(blank + 1)};
}

} // namespace

NameClaim::NameClaim(int directory, const std::string& name)
    : _directory(directory), _fileName(name + ".lock") {
    while (!tryLock(name)) {
    }
    _noteOfPredecessor = readNote(_file.number()).text;
}

NameClaim::~NameClaim() {
    ::unlinkat(_directory, _fileName.c_str(), 0);
}

void NameClaim::setNote(const std::string& note) {
    const std::string content = std::to_string(::getpid()) + ' ' + note;
    checked(::ftruncate(_file.number(), 0), "cannot empty " + _fileName);
    if (::pwrite(_file.number(), content.data(), content.size(), 0) !=
        static_cast<ssize_t>(content.size())) {
        throwSystemFailure("cannot write " + _fileName);
    }
}

/// Locks the file; false when its last holder removed it in between, and it has to be made anew.
bool NameClaim::tryLock(const std::string& name) {
    _file = FileDescriptor(checked(
        ::openat(_directory, _fileName.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600),
        "cannot open " + _fileName));
    if (::flock(_file.number(), LOCK_EX | LOCK_NB) < 0) {
        if (errno != EWOULDBLOCK) {
            throwSystemFailure("cannot lock " + _fileName);
        }
        const auto process = readNote(_file.number()).process;
        throw std::runtime_error(
            alreadyHeld(QFile::decodeName(name.c_str()), QString::fromStdString(process))
                .toStdString());
    }
    struct stat locked {};
    struct stat present {};
    checked(::fstat(_file.number(), &locked), "cannot look at " + _fileName);
    return ::fstatat(_directory, _fileName.c_str(), &present, AT_SYMLINK_NOFOLLOW) == 0 &&
           locked.st_dev == present.st_dev && locked.st_ino == present.st_ino;
}

} // namespace virtualkeyer
