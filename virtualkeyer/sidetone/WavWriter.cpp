#include "virtualkeyer/sidetone/WavWriter.h"

#include <QCoreApplication>
#include <QFile>
#include <QtEndian>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cmath>
#include <cstring>
#include <limits>
#include <system_error>

namespace virtualkeyer {

namespace {

constexpr std::size_t headBytes = 44;
constexpr std::uint32_t bytesPerSample = 2;
constexpr std::uint32_t longest =
    std::numeric_limits<std::uint32_t>::max() - headBytes - bytesPerSample + 1;

[[noreturn]] void throwNotWritten(const std::string& path) {
    const std::error_code reason(errno, std::generic_category());
    throw std::system_error(reason,
                            QCoreApplication::translate("VirtualKeyer", "cannot write the sound %1")
                                .arg(QFile::decodeName(path.c_str()))
                                .toStdString());
}

/// Puts the parts of a WAV file's head one behind the other.
class Head {
  public:
    void tag(const char* text) {
        std::memcpy(_next, text, 4);
        _next += 4;
    }
    template <typename Number>
    void number(Number value) {
        qToLittleEndian(value, _next);
        _next += sizeof value;
    }
    [[nodiscard]] const std::array<char, headBytes>& bytes() const { return _bytes; }

  private:
    std::array<char, headBytes> _bytes{};
    char* _next = _bytes.data();
};

} // namespace

WavWriter::WavWriter(const std::string& path) : _path(path), _file(std::fopen(path.c_str(), "we")) {
    if (!_file) {
        throwNotWritten(path);
    }
    writeHead(longest);
}

void WavWriter::keyerDid(const Event& event, const Registers& /*registers*/) {
    if (const auto* tone = std::get_if<Tone>(&event.what)) {
        renderUntil(_renderer.sampleAt(event.at));
        _renderer.setTone(tone->frequency, event.at);
    }
}

void WavWriter::timePassed(Time now) {
    renderUntil(_renderer.sampleAt(now));
}

void WavWriter::finish() {
    const auto dataBytes = std::min<std::int64_t>(_renderer.position() * bytesPerSample, longest);
    if (std::fseek(_file.get(), 0, SEEK_SET) != 0) {
        throwNotWritten(_path);
    }
    writeHead(static_cast<std::uint32_t>(dataBytes));
    if (std::fseek(_file.get(), 0, SEEK_END) != 0 || std::fflush(_file.get()) != 0) {
        throwNotWritten(_path);
    }
}

void WavWriter::renderUntil(std::int64_t sample) {
    std::array<float, 1024> rendered{};
    std::array<qint16, rendered.size()> samples{};
    while (_renderer.position() < sample) {
        const auto left = static_cast<std::size_t>(sample - _renderer.position());
        const auto part = std::span(rendered).first(std::min(left, rendered.size()));
        _renderer.render(part);
        std::ranges::transform(part, samples.begin(), [](float value) {
            constexpr float largest = std::numeric_limits<qint16>::max();
            return qToLittleEndian(static_cast<qint16>(std::lround(value * volume * largest)));
        });
        write(samples.data(), part.size() * bytesPerSample);
    }
}

void WavWriter::writeHead(std::uint32_t dataBytes) {
    constexpr std::uint32_t formatBytes = 16;
    constexpr std::uint16_t linear = 1;
    constexpr std::uint16_t channels = 1;
    Head head;
    head.tag("RIFF");
    head.number<std::uint32_t>(dataBytes + headBytes - 8);
    head.tag("WAVE");
    head.tag("fmt ");
    head.number(formatBytes);
    head.number(linear);
    head.number(channels);
    head.number<std::uint32_t>(sampleRate);
    head.number<std::uint32_t>(sampleRate * bytesPerSample);
    head.number<std::uint16_t>(bytesPerSample);
    head.number<std::uint16_t>(8 * bytesPerSample);
    head.tag("data");
    head.number(dataBytes);
    write(head.bytes().data(), headBytes);
}

void WavWriter::write(const void* bytes, std::size_t size) {
    if (std::fwrite(bytes, 1, size, _file.get()) != size) {
        throwNotWritten(_path);
    }
}

} // namespace virtualkeyer
