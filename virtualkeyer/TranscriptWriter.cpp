#include "virtualkeyer/TranscriptWriter.h"

#include "virtualkeyer/core/Transcript.h"

#include <QCoreApplication>
#include <QFile>

#include <cerrno>
#include <system_error>

namespace virtualkeyer {

namespace {

[[noreturn]] void throwNotWritten(const std::string& path) {
    const std::error_code reason(errno, std::generic_category());
    throw std::system_error(
        reason, QCoreApplication::translate("VirtualKeyer", "cannot write the transcript %1")
                    .arg(QFile::decodeName(path.c_str()))
                    .toStdString());
}

} // namespace

TranscriptWriter::TranscriptWriter(const std::string& path)
    : _path(path), _file(std::fopen(path.c_str(), "we")) {
    if (!_file) {
        throwNotWritten(path);
    }
}

void TranscriptWriter::keyerDid(const Event& event, const Registers& /*registers*/) {
    const std::string line = transcriptLine(event) + '\n';
    if (std::fputs(line.c_str(), _file.get()) < 0 || std::fflush(_file.get()) != 0) {
        throwNotWritten(_path);
    }
}

} // namespace virtualkeyer
