#include "tests/terminal/web/Http_client.h"

#include <fcntl.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cstdlib>
#include <utility>

namespace terminal {

namespace {

constexpr int patience = 10'000; ///< milliseconds

bool is_ready(int descriptor, short events, int milliseconds)
{
    pollfd waited_for{descriptor, events, 0};
    return poll(&waited_for, 1, milliseconds) == 1;
}

} // namespace

Raw_connection::Raw_connection(std::uint16_t port, std::uint32_t address)
    : descriptor(socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0)), connected(false)
{
    sockaddr_in there{};
    there.sin_family = AF_INET;
    there.sin_port = htons(port);
    there.sin_addr.s_addr = htonl(address);
    connect(descriptor, reinterpret_cast<const sockaddr*>(&there), sizeof(there));
    int problem = -1;
    socklen_t size = sizeof(problem);
    if (is_ready(descriptor, POLLOUT, 500) && getsockopt(descriptor, SOL_SOCKET, SO_ERROR, &problem, &size) == 0)
        connected = problem == 0;
}

Raw_connection::~Raw_connection()
{
    if (descriptor >= 0)
        close(descriptor);
}

Raw_connection::Raw_connection(Raw_connection&& other) noexcept
    : descriptor(std::exchange(other.descriptor, -1)), connected(other.connected)
{}

std::size_t Raw_connection::send(const std::string& text)
{
    std::size_t sent = 0;
    while (sent < text.size() && is_ready(descriptor, POLLOUT, patience)) {
        const ssize_t taken = ::send(descriptor, text.data() + sent, text.size() - sent, MSG_NOSIGNAL);
        if (taken < 0)
            break;
        sent += static_cast<std::size_t>(taken);
    }
    return sent;
}

std::string Raw_connection::receive(const std::string& end)
{
    std::string all;
    char part[4096];
    const auto has_ended = [&] {
        return !end.empty() && all.size() >= end.size() && all.compare(all.size() - end.size(), end.size(), end) == 0;
    };
    while (!has_ended() && is_ready(descriptor, POLLIN, patience)) {
        const ssize_t taken = recv(descriptor, part, sizeof(part), 0);
        if (taken <= 0)
            break;
        all.append(part, static_cast<std::size_t>(taken));
    }
    return all;
}

bool Raw_connection::is_closed() { return is_ready(descriptor, POLLRDHUP, 0); }

bool Raw_connection::waits_to_be_closed() { return is_ready(descriptor, POLLRDHUP, patience); }

std::string Answer::header(const std::string& name) const
{
    const std::size_t line = head.find("\r\n" + name + ": ");
    if (line == std::string::npos)
        return "";
    const std::size_t start = line + name.size() + 4;
    return head.substr(start, head.find("\r\n", start) - start);
}

Answer parse_answer(const std::string& text)
{
    const std::size_t end_of_head = text.find("\r\n\r\n");
    if (text.rfind("HTTP/1.1 ", 0) != 0 || end_of_head == std::string::npos)
        return {};
    Answer answer;
    answer.status = std::atoi(text.c_str() + 9);
    answer.head = text.substr(0, end_of_head + 2);
    answer.body = text.substr(end_of_head + 4);
    return answer;
}

std::string Http_client::beginning(const std::string& method, const std::string& target) const
{
    return method + " " + target + " HTTP/1.1\r\nHost: 127.0.0.1:" + std::to_string(port) + "\r\n";
}

Answer Http_client::ask(const std::string& method, const std::string& target, const std::string& headers) const
{
    Raw_connection connection(port);
    const bool has_host = headers.find("Host:") != std::string::npos;
    const std::string line = method + " " + target + " HTTP/1.1\r\n";
    connection.send((has_host ? line : beginning(method, target)) + headers + "Connection: close\r\n\r\n");
    return parse_answer(connection.receive());
}

} // namespace terminal
