// Runs a fuzz target's inputs once more, those that are kept: what has been found stays mended.
//
// Usage: fuzz-replay TARGET FOLDER
//        fuzz-replay --list
// A target that fails ends the program, as it does under the fuzzer.

#include <array>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string_view>
#include <vector>

extern "C" {
int replayDecodeMessage(const std::uint8_t* data, std::size_t size);
int replayLoggerDatagrams(const std::uint8_t* data, std::size_t size);
int replayPortNames(const std::uint8_t* data, std::size_t size);
int replayReceivePath(const std::uint8_t* data, std::size_t size);
int replaySettingsFile(const std::uint8_t* data, std::size_t size);
int replaySettingsQuotes(const std::uint8_t* data, std::size_t size);
int replayTypedText(const std::uint8_t* data, std::size_t size);
int replayVirtualKeyer(const std::uint8_t* data, std::size_t size);
}

namespace {

struct Target {
    std::string_view name;
    int (*run)(const std::uint8_t* data, std::size_t size);
};

constexpr std::array<Target, 8> targets{{{"decode-message", &replayDecodeMessage},
                                         {"logger-datagrams", &replayLoggerDatagrams},
                                         {"port-names", &replayPortNames},
                                         {"receive-path", &replayReceivePath},
                                         {"settings-file", &replaySettingsFile},
                                         {"settings-quotes", &replaySettingsQuotes},
                                         {"typed-text", &replayTypedText},
                                         {"virtual-keyer", &replayVirtualKeyer}}};

std::vector<std::uint8_t> content(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

int replay(const Target& target, const std::filesystem::path& folder) {
    int count = 0;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        const auto input = content(entry.path());
        target.run(input.data(), input.size());
        ++count;
    }
    std::cout << count << " inputs\n";
    return EXIT_SUCCESS;
}

} // namespace

int main(int argc, char* argv[]) {
    if (argc == 2 && std::string_view(argv[1]) == "--list") {
        for (const auto& target : targets) {
            std::cout << target.name << '\n';
        }
        return EXIT_SUCCESS;
    }
    for (const auto& target : targets) {
        if (argc == 3 && target.name == argv[1]) {
            return replay(target, argv[2]);
        }
    }
    std::cerr << "usage: fuzz-replay TARGET FOLDER | --list\n";
    return 2;
}
