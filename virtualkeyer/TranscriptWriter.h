#pragma once

#include "virtualkeyer/pty/KeyerListener.h"

#include <cstdio>
#include <memory>
#include <string>

namespace virtualkeyer {

/// Writes one line for each event to a file, at once, so that a script can follow it.
/// Throws std::system_error when the file takes no more.
class TranscriptWriter : public KeyerListener {
  public:
    /// Makes the file or empties it; throws std::system_error when it cannot be written.
    explicit TranscriptWriter(const std::string& path);

    void keyerDid(const Event& event, const Registers& registers) override;

  private:
    struct Closing {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };

    std::string _path;
    std::unique_ptr<std::FILE, Closing> _file;
};

} // namespace virtualkeyer
