#include "virtualkeyer/TranscriptWriter.h"

#include "virtualkeyer/core/Transcript.h"
#include "virtualkeyer/pty/SystemFailure.h"

namespace virtualkeyer {

TranscriptWriter::TranscriptWriter(const std::string& path)
    : _path(path), _file(std::fopen(path.c_str(), "we")) {
    if (!_file) {
        throwSystemFailure("cannot write the transcript " + path);
    }
}

void TranscriptWriter::keyerDid(const Event& event, const Registers& /*registers*/) {
    const std::string line = transcriptLine(event) + '\n';
    if (std::fputs(line.c_str(), _file.get()) < 0 || std::fflush(_file.get()) != 0) {
        throwSystemFailure("cannot write the transcript " + _path);
    }
}

} // namespace virtualkeyer
