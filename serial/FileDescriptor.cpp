#include "serial/FileDescriptor.h"

#include <unistd.h>

FileDescriptor& FileDescriptor::operator=(FileDescriptor&& other) noexcept {
    FileDescriptor old(std::exchange(_descriptor, std::exchange(other._descriptor, none)));
    return *this;
}

FileDescriptor::~FileDescriptor() {
    static_cast<void>(close());
}

bool FileDescriptor::close() {
    if (isValid() && ::close(_descriptor) != 0) {
        return false;
    }
    _descriptor = none;
    return true;
}
