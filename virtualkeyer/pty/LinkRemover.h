#pragma once

#include "virtualkeyer/pty/FileDescriptor.h"

#include <string>
#include <sys/stat.h>
#include <sys/types.h>

namespace virtualkeyer {

/// Removes a symbolic link when this process dies without a word, as by SIGKILL: the terminal that
/// the link names has gone then, and its number may soon be that of somebody's shell.
///
/// A process of its own does so, which waits for the end of this one. Where there is none to be
/// had, the link stays.
class LinkRemover {
  public:
    /// `link` is the status of the link `name` in the open directory `directory`. One that has
    /// taken its place by then is left alone.
    LinkRemover(int directory, const std::string& name, const struct stat& link);
    /// Ends the other process; the link is left alone.
    ~LinkRemover();
    LinkRemover(const LinkRemover&) = delete;
    LinkRemover& operator=(const LinkRemover&) = delete;

  private:
    FileDescriptor _life;
    pid_t _process = -1;
};

} // namespace virtualkeyer
