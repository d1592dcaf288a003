#include "platform/FileDescriptor.h"

#include <sys/stat.h>
#include <unistd.h>

namespace {

bool isStill(int descriptor, const struct stat& file) {
    struct stat now = {};
    return ::fstat(descriptor, &now) == 0 && now.st_dev == file.st_dev &&
           now.st_ino == file.st_ino && now.st_rdev == file.st_rdev;
}

} // namespace

FileDescriptor& FileDescriptor::operator=(FileDescriptor&& other) noexcept {
    FileDescriptor old(std::exchange(_descriptor, std::exchange(other._descriptor, none)));
    return *this;
}

FileDescriptor::~FileDescriptor() {
    static_cast<void>(close());
}

// This kernel lets go of a descriptor also when it tells of an error. The number may then be that
// of another file at once, and must not be used or closed again.
bool FileDescriptor::close() {
    struct stat file = {};
    const bool isKnown = isValid() && ::fstat(_descriptor, &file) == 0;
    if (isValid() && ::close(_descriptor) != 0 && isKnown && isStill(_descriptor, file)) {
        return false;
    }
    _descriptor = none;
    return true;
}
