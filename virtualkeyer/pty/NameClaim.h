#pragma once

#include "virtualkeyer/pty/FileDescriptor.h"

#include <string>

namespace virtualkeyer {

/// A name held by this process for as long as it lives, with a note for whoever takes it next.
///
/// It is a locked file NAME.lock. The kernel lets go of the lock however the process ends, so a
/// name that can be claimed has no living holder, and a note found in it is from a crashed one.
class NameClaim {
  public:
    /// Claims `name` in the open directory `directory`, which must outlive the claim.
    /// Throws std::runtime_error when a living process has it, std::system_error otherwise.
    NameClaim(int directory, const std::string& name);
    ~NameClaim();
    NameClaim(const NameClaim&) = delete;
    NameClaim& operator=(const NameClaim&) = delete;

    /// The note that a crashed holder left, without its process number; empty when there is none.
    [[nodiscard]] const std::string& noteOfPredecessor() const { return _noteOfPredecessor; }

    /// Replaces the note by this process's number and `note`, which is one line.
    void setNote(const std::string& note);

  private:
    [[nodiscard]] bool tryLock(const std::string& name);

    int _directory;
    std::string _fileName;
    FileDescriptor _file;
    std::string _noteOfPredecessor;
};

} // namespace virtualkeyer
