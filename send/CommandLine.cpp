#include "send/CommandLine.h"

#include <array>
#include <charconv>
#include <getopt.h>
#include <string_view>

namespace {

constexpr auto usage = "Usage: quorvel-send [options] [text...]\n"
                       "Has the running Quorvel key a text, by default that of standard input.\n"
                       "\n"
                       "Options:\n"
                       "  -h, --help        Shows this text.\n"
                       "  -v, --version     Shows the version.\n"
                       "  -w, --wait        Waits until the text has been keyed.\n"
                       "  -s, --speed WPM   Sets the speed first, 5 to 60.\n"
                       "  -a, --abort       Ends what is being sent first.\n"
                       "  -p, --port PORT   The UDP port that Quorvel listens on, 6789.\n";

/// Nothing for what is no number, or out of the range.
std::optional<int> number(std::string_view text, int minimum, int maximum) {
    int value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    const bool isNumber = error == std::errc() && end == text.data() + text.size();
    return isNumber && value >= minimum && value <= maximum ? std::optional(value) : std::nullopt;
}

void takeOption(int option, CommandLine& asked) {
    switch (option) {
    case 'h':
        asked.answer = usage;
        break;
    case 'v':
        asked.answer = "quorvel-send " QUORVEL_VERSION "\n";
        break;
    case 'w':
        asked.hasToWait = true;
        break;
    case 'a':
        asked.isAbort = true;
        break;
    case 's':
        asked.speed = number(optarg, 5, 60);
        if (!asked.speed) {
            asked.error = std::string("no speed: ") + optarg;
        }
        break;
    case 'p':
        if (const auto port = number(optarg, 1, 65535)) {
            asked.port = static_cast<std::uint16_t>(*port);
        } else {
            asked.error = std::string("no port: ") + optarg;
        }
        break;
    default:
        asked.error = "see quorvel-send --help";
    }
}

} // namespace

CommandLine CommandLine::parse(int argc, char* argv[]) {
    constexpr std::array<option, 7> options{{{"help", no_argument, nullptr, 'h'},
                                             {"version", no_argument, nullptr, 'v'},
                                             {"wait", no_argument, nullptr, 'w'},
                                             {"speed", required_argument, nullptr, 's'},
                                             {"abort", no_argument, nullptr, 'a'},
                                             {"port", required_argument, nullptr, 'p'},
                                             {nullptr, 0, nullptr, 0}}};
    CommandLine asked;
    for (int option = 0; option >= 0;) {
        option = getopt_long(argc, argv, "hvws:ap:", options.data(), nullptr);
        if (option >= 0) {
            takeOption(option, asked);
        }
    }
    for (int i = optind; i < argc; ++i) {
        asked.text = asked.text ? *asked.text + ' ' + argv[i] : std::string(argv[i]);
    }
    // What is only to set something waits for no input.
    if (!asked.text && (asked.isAbort || asked.speed)) {
        asked.text = "";
    }
    return asked;
}
