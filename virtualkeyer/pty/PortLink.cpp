#include "virtualkeyer/pty/PortLink.h"

#include "virtualkeyer/pty/SystemFailure.h"

#include <QCoreApplication>
#include <QFile>

#include <algorithm>
#include <fcntl.h>
#include <stdexcept>
#include <sys/stat.h>

namespace virtualkeyer {

namespace {

FileDescriptor openDirectory(int parent, const std::string& name) {
    if (::mkdirat(parent, name.c_str(), 0700) < 0 && errno != EEXIST) {
        throwSystemFailure("cannot make the directory " + name);
    }
    FileDescriptor directory(
        checked(::openat(parent, name.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC),
                "cannot open the directory " + name));
    struct stat status {};
    checked(::fstat(directory.number(), &status), "cannot look at the directory " + name);
    if (status.st_uid != ::geteuid()) {
        throw std::runtime_error(
            QCoreApplication::translate("VirtualKeyer", "the directory %1 belongs to another user")
                .arg(QFile::decodeName(name.c_str()))
                .toStdString());
    }
    if ((status.st_mode & (S_IWGRP | S_IWOTH)) != 0) {
        throw std::runtime_error("others may write to the directory " + name);
    }
    return directory;
}

} // namespace

PortLink::PortLink(const std::string& runtimeDirectory, const std::string& name,
                   const std::string& target)
    : _name(name),
      _path(runtimeDirectory + "/quorvel/ports/" + name),
      _home(openDirectory(AT_FDCWD, runtimeDirectory + "/quorvel")),
      _ports(openDirectory(_home.number(), "ports")),
      _claims(openDirectory(_home.number(), "virtual-keyers")),
      _claim(_claims.number(), name) {
    makeWay();
    plugIn(target);
    struct stat link {};
    if (::fstatat(_ports.number(), _name.c_str(), &link, AT_SYMLINK_NOFOLLOW) == 0) {
        _remover.emplace(_ports.number(), _name, link);
    }
}

PortLink::~PortLink() {
    if (identityOf(_ports.number(), _name) == _identity) {
        ::unlinkat(_ports.number(), _name.c_str(), 0);
    }
}

bool PortLink::isValidName(std::string_view name) {
    constexpr std::size_t longest = 200;
    return !name.empty() && name.size() <= longest && name.front() != '.' &&
           std::ranges::none_of(name, [](char c) {
               const auto code = static_cast<unsigned char>(c);
               return c == '/' || code < 0x20 || code == 0x7F;
           });
}

std::string PortLink::identityOf(int directory, const std::string& name) {
    struct stat status {};
    if (::fstatat(directory, name.c_str(), &status, AT_SYMLINK_NOFOLLOW) < 0 ||
        !S_ISLNK(status.st_mode)) {
        return {};
    }
    return std::to_string(status.st_dev) + ' ' + std::to_string(status.st_ino) + ' ' +
           std::to_string(status.st_mtim.tv_sec) + ' ' + std::to_string(status.st_mtim.tv_nsec);
}

/// Removes what may be replaced under the port's name, and refuses to touch anything else.
void PortLink::makeWay() {
    struct stat status {};
    if (::fstatat(_ports.number(), _name.c_str(), &status, AT_SYMLINK_NOFOLLOW) < 0) {
        if (errno != ENOENT) {
            throwSystemFailure("cannot look at " + _path);
        }
        return;
    }
    const std::string present = identityOf(_ports.number(), _name);
    const bool isLink = !present.empty();
    const bool isFromCrashedKeyer = isLink && present == _claim.noteOfPredecessor();
    const bool pointsNowhere =
        isLink && ::fstatat(_ports.number(), _name.c_str(), &status, 0) < 0 && errno == ENOENT;
    if (!isFromCrashedKeyer && !pointsNowhere) {
        throw std::runtime_error(
            QCoreApplication::translate("VirtualKeyer",
                                        "%1 is in the way and no virtual keyer made it")
                .arg(QFile::decodeName(_path.c_str()))
                .toStdString());
    }
    checked(::unlinkat(_ports.number(), _name.c_str(), 0), "cannot remove " + _path);
}

/// Makes the link beside the ports directory, notes which one it is, and only then gives it its
/// place: a crash at any point leaves no link that the next keyer does not know.
void PortLink::plugIn(const std::string& target) {
    const std::string draft = _name + ".link";
    ::unlinkat(_claims.number(), draft.c_str(), 0);
    checked(::symlinkat(target.c_str(), _claims.number(), draft.c_str()), "cannot make " + draft);
    _identity = identityOf(_claims.number(), draft);
    _claim.setNote(_identity);
    const int placed = ::linkat(_claims.number(), draft.c_str(), _ports.number(), _name.c_str(), 0);
    const int reason = errno;
    ::unlinkat(_claims.number(), draft.c_str(), 0);
    errno = reason;
    checked(placed, "cannot make " + _path);
}

} // namespace virtualkeyer
