#pragma once

#include "virtualkeyer/pty/KeyerListener.h"
#include "virtualkeyer/sidetone/SidetoneRenderer.h"

#include <cstdint>
#include <cstdio>
#include <memory>
#include <string>

namespace virtualkeyer {

/// Saves the sidetone as a WAV file of one channel, 16 bits and 44,100 samples a second, from the
/// keyer's start on. Throws std::system_error when the file takes no more.
class WavWriter : public KeyerListener {
  public:
    static constexpr int sampleRate = 44'100;
    /// Of a full tone, as a part of the largest sample.
    static constexpr float volume = 0.5F;

    /// Makes the file or empties it; throws std::system_error when it cannot be written.
    explicit WavWriter(const std::string& path);

    void keyerDid(const Event& event, const Registers& registers) override;
    void timePassed(Time now) override;

    /// Notes the length in the file's head. Till then it claims the longest one, so that of a keyer
    /// that was killed what is there can be heard.
    void finish();

  private:
    struct Closing {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };

    void renderUntil(std::int64_t sample);
    void writeHead(std::uint32_t dataBytes);
    void write(const void* bytes, std::size_t size);

    std::string _path;
    std::unique_ptr<std::FILE, Closing> _file;
    SidetoneRenderer _renderer{sampleRate};
};

} // namespace virtualkeyer
