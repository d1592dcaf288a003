#pragma once

#include <unistd.h>
#include <utility>

namespace virtualkeyer {

/// Owns one file descriptor and closes it. Empty (-1) after a move or by default.
class FileDescriptor {
  public:
    FileDescriptor() = default;
    explicit FileDescriptor(int number) : _number(number) {}
    FileDescriptor(FileDescriptor&& other) noexcept : _number(std::exchange(other._number, -1)) {}
    FileDescriptor& operator=(FileDescriptor&& other) noexcept {
        std::swap(_number, other._number);
        return *this;
    }
    FileDescriptor(const FileDescriptor&) = delete;
    FileDescriptor& operator=(const FileDescriptor&) = delete;
    ~FileDescriptor() {
        if (_number >= 0) {
            ::close(_number);
        }
    }

    [[nodiscard]] int number() const { return _number; }
    [[nodiscard]] bool isOpen() const { return _number >= 0; }

  private:
    int _number = -1;
};

} // namespace virtualkeyer
