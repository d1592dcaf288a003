// Runs a fuzz target's inputs once more, those that are kept: what has been found stays mended. Or
// runs as many variations of them as are wanted, without a fuzzer and so without what it costs.
//
// Usage: fuzz-replay TARGET FOLDER [RUNS SEED]
//        fuzz-replay --list
// A target that fails ends the program, as it does under the fuzzer. A seed repeats its runs.

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <random>
#include <string>
#include <string_view>
#include <vector>

extern "C" {
int replayDecodeMessage(const std::uint8_t* data, std::size_t size);
int replayEnteredText(const std::uint8_t* data, std::size_t size);
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

constexpr std::array<Target, 9> targets{{{"decode-message", &replayDecodeMessage},
                                         {"entered-text", &replayEnteredText},
                                         {"logger-datagrams", &replayLoggerDatagrams},
                                         {"port-names", &replayPortNames},
                                         {"receive-path", &replayReceivePath},
                                         {"settings-file", &replaySettingsFile},
                                         {"settings-quotes", &replaySettingsQuotes},
                                         {"typed-text", &replayTypedText},
                                         {"virtual-keyer", &replayVirtualKeyer}}};

using Input = std::vector<std::uint8_t>;

constexpr std::uint64_t reportInterval = 1'000'000;

Input content(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

std::vector<Input> inputsIn(const std::filesystem::path& folder) {
    std::vector<Input> inputs;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        inputs.push_back(content(entry.path()));
    }
    return inputs;
}

void replay(const Target& target, const std::vector<Input>& inputs) {
    for (const auto& input : inputs) {
        target.run(input.data(), input.size());
    }
    std::cout << inputs.size() << " inputs\n";
}

/// Some bytes of an input are others, and it may be shorter.
Input variation(Input input, std::mt19937_64& random) {
    constexpr std::size_t longest = 64;
    const auto below = [&random](std::size_t limit) { return random() % limit; };
    input.resize(1 + below(std::min(longest, input.size() + 1)));
    for (auto changes = below(8); changes > 0; --changes) {
        input[below(input.size())] = static_cast<std::uint8_t>(below(256));
    }
    return input;
}

void vary(const Target& target, const std::vector<Input>& inputs, std::uint64_t runs,
          std::uint64_t seed) {
    std::mt19937_64 random(seed);
    for (std::uint64_t run = 0; run < runs; ++run) {
        const auto input = variation(inputs.at(random() % inputs.size()), random);
        target.run(input.data(), input.size());
        if ((run + 1) % reportInterval == 0) {
            std::cout << run + 1 << " runs\n" << std::flush;
        }
    }
    std::cout << runs << " runs\n";
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
            replay(target, inputsIn(argv[2]));
            return EXIT_SUCCESS;
        }
        if (argc == 5 && target.name == argv[1]) {
            vary(target, inputsIn(argv[2]), std::stoull(argv[3]), std::stoull(argv[4]));
            return EXIT_SUCCESS;
        }
    }
    std::cerr << "usage: fuzz-replay TARGET FOLDER [RUNS SEED] | --list\n";
    return 2;
}
