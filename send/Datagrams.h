#pragma once

#include <string>
#include <string_view>
#include <vector>

/// The text in pieces that a datagram takes, each as long as can be without a word's end being lost
/// between two. A word that is too long is cut. What is no text, such as a line's end, is a space.
[[nodiscard]] std::vector<std::string> datagramsOf(std::string_view text);
