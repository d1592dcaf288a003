#include "send/Datagrams.h"

#include <algorithm>

namespace {

/// With room for what is added on the way.
constexpr std::size_t longest = 200;

bool isText(char each) {
    return each >= ' ' && each <= '~';
}

} // namespace

std::vector<std::string> datagramsOf(std::string_view text) {
    std::string clean(text);
    std::replace_if(
        clean.begin(), clean.end(), [](char each) { return !isText(each); }, ' ');
    clean.erase(clean.find_last_not_of(' ') + 1);
    std::vector<std::string> datagrams;
    for (std::string_view rest = clean; !rest.empty();) {
        auto size = std::min(rest.size(), longest);
        if (size < rest.size()) {
            const auto space = rest.rfind(' ', size - 1);
            size = space != std::string_view::npos && space > 0 ? space + 1 : size;
        }
        datagrams.emplace_back(rest.substr(0, size));
        rest.remove_prefix(size);
    }
    // The sign for an echo is none of the text's.
    for (auto& each : datagrams) {
        while (each.ends_with('^')) {
            each.pop_back();
        }
    }
    std::erase(datagrams, "");
    return datagrams;
}
