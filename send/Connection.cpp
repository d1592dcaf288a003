#include "send/Connection.h"

#include <array>
#include <cerrno>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <system_error>
#include <unistd.h>

namespace {

/// Within it the system tells that nobody listens.
constexpr int moment = 50;
constexpr int betweenProbes = 1000;
/// A request that means nothing: it only shows whether somebody listens.
constexpr std::string_view probe = "\x1B";

[[noreturn]] void fail(const char* what) {
    throw std::system_error(errno, std::generic_category(), what);
}

} // namespace

Connection::Connection(std::uint16_t port)
    : _socket(::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0)) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    if (_socket < 0 ||
        ::connect(_socket, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0) {
        fail("socket");
    }
}

Connection::~Connection() {
    ::close(_socket);
}

bool Connection::send(std::string_view datagram) const {
    if (::send(_socket, datagram.data(), datagram.size(), 0) >= 0) {
        return true;
    }
    if (errno != ECONNREFUSED) {
        fail("send");
    }
    return false;
}

/// Of a datagram that nobody takes the next one learns.
bool Connection::isHeard() const {
    static_cast<void>(waitForInput(moment));
    return send(probe);
}

std::string Connection::reply() const {
    while (true) {
        if (waitForInput(betweenProbes)) {
            std::array<char, 512> text;
            const auto size = ::recv(_socket, text.data(), text.size(), 0);
            if (size < 0 && errno != ECONNREFUSED) {
                fail("recv");
            }
            std::string reply(text.data(), size < 0 ? 0 : static_cast<std::size_t>(size));
            reply.erase(reply.find_last_not_of("\r\n") + 1);
            return reply;
        }
        if (!send(probe)) {
            return {};
        }
    }
}

bool Connection::waitForInput(int milliseconds) const {
    pollfd input{_socket, POLLIN, 0};
    return ::poll(&input, 1, milliseconds) > 0;
}
