// Has the running Quorvel key a text, as a logger does.

#include "send/CommandLine.h"
#include "send/Connection.h"
#include "send/Datagrams.h"

#include <cstdio>
#include <exception>
#include <iterator>
#include <string>

namespace {

constexpr std::string_view escape = "\x1B";

/// How the program ends.
enum End : int { Done = 0, NotKeyed = 1, BadOptions = 2, NobodyListens = 3 };

int complain(const char* what, End end) {
    std::fprintf(stderr, "quorvel-send: %s\n", what);
    return end;
}

std::string standardInput() {
    std::string text;
    for (int each = std::getchar(); each != EOF; each = std::getchar()) {
        text += static_cast<char>(each);
    }
    return text;
}

/// Sends the text, and what it asks for is told of each piece before the next goes.
End sendAndWait(const Connection& connection, const std::string& text) {
    for (const auto& datagram : datagramsOf(text)) {
        if (!connection.send(std::string(escape) + "h") || !connection.send(datagram)) {
            return NobodyListens;
        }
        const auto reply = connection.reply();
        if (reply != "h") {
            return reply.empty() ? NobodyListens : NotKeyed;
        }
    }
    return connection.isHeard() ? Done : NobodyListens;
}

End send(const Connection& connection, const std::string& text) {
    for (const auto& datagram : datagramsOf(text)) {
        if (!connection.send(datagram)) {
            return NobodyListens;
        }
    }
    return connection.isHeard() ? Done : NobodyListens;
}

End run(const CommandLine& asked) {
    const auto text = asked.text ? *asked.text : standardInput();
    const Connection connection(asked.port);
    // Ahead of all else it is known whether there is anybody to be told.
    static_cast<void>(connection.send(escape));
    if (!connection.isHeard()) {
        return NobodyListens;
    }
    if (asked.isAbort) {
        static_cast<void>(connection.send(std::string(escape) + "4"));
    }
    if (asked.speed) {
        static_cast<void>(
            connection.send(std::string(escape) + "2" + std::to_string(*asked.speed)));
    }
    return asked.hasToWait ? sendAndWait(connection, text) : send(connection, text);
}

} // namespace

int main(int argc, char* argv[]) {
    const auto asked = CommandLine::parse(argc, argv);
    if (!asked.error.empty()) {
        return complain(asked.error.c_str(), BadOptions);
    }
    if (!asked.answer.empty()) {
        return std::fputs(asked.answer.c_str(), stdout) < 0 ? BadOptions : Done;
    }
    try {
        switch (run(asked)) {
        case NotKeyed:
            return complain("it was not keyed, or not whole", NotKeyed);
        case NobodyListens:
            return complain("Quorvel does not listen: is it running, and does it accept text from "
                            "loggers?",
                            NobodyListens);
        default:
            return Done;
        }
    } catch (const std::exception& error) {
        return complain(error.what(), NobodyListens);
    }
}
