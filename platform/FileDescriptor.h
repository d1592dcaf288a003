#pragma once

#include <utility>

/// Owns an open file descriptor.
class FileDescriptor {
  public:
    FileDescriptor() = default;
    explicit FileDescriptor(int descriptor) : _descriptor(descriptor) {}
    FileDescriptor(FileDescriptor&& other) noexcept
        : _descriptor(std::exchange(other._descriptor, none)) {}
    FileDescriptor& operator=(FileDescriptor&& other) noexcept;
    ~FileDescriptor();

    [[nodiscard]] bool isValid() const { return _descriptor >= 0; }
    [[nodiscard]] int get() const { return _descriptor; }

    /// False when the system refused to close it; it is still owned then.
    [[nodiscard]] bool close();

  private:
    static constexpr int none = -1;

    int _descriptor = none;
};
