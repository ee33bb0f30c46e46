#ifndef TERMINAL_WEB_HTTP_SERVER_H
#define TERMINAL_WEB_HTTP_SERVER_H

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace terminal {

struct Http_request
{
    std::string method; ///< GET for HEAD, too
    std::string path;   ///< as it was sent, up to the question mark
    std::string query;  ///< as it was sent, behind the question mark
};

struct Http_answer
{
    unsigned status = 204;
    std::string type; ///< of the body
    std::string body;
};

/// What a server does. All the functions are called by the server's one thread, and throw nothing.
struct Http_service
{
    std::function<Http_answer(const Http_request&)> answer;
    std::function<void()> in_spare_time; ///< called again and again with that interval, however much there is to answer
    std::chrono::milliseconds interval;
    std::function<std::chrono::steady_clock::time_point()> now;
    std::vector<std::pair<std::string, std::string>> headers; ///< of every answer
};

/// Answers HTTP requests without a body on 127.0.0.1, from construction to destruction, in a thread of its own.
///
/// A request for another host is refused with 403, and so is one other than GET and HEAD that comes from another host's
/// page, as browsers say in Origin. So a page from elsewhere changes nothing here, and reads nothing by giving its own
/// name this address.
///
/// No client is trusted. A request has two seconds to arrive, from its first byte to its last, the first one of a
/// connection from when that is accepted; its answer has two seconds to be taken; there are so many connections, and so
/// many bytes in the head of a request. Whoever wants more is cut off. A connection between two requests costs no time
/// and may stay, but when there are too many, the one that has waited longest makes room for the new one; if none
/// waits, the one whose request or answer takes longest.
class Http_server
{
  public:
    static constexpr std::size_t most_connections = 128; ///< as many again may wait to be accepted
    static constexpr std::uint32_t longest_head = 16 * 1024;
    static constexpr std::chrono::seconds longest_time{2};

    /// Port 0 takes any free one. Throws std::system_error, naming the address, if it cannot be listened on.
    Http_server(std::uint16_t port, Http_service service);
    /// Waits for the answer that is being made, if any, and for no client.
    ~Http_server();
    Http_server(const Http_server&) = delete;
    Http_server& operator=(const Http_server&) = delete;

    std::uint16_t port() const;

  private:
    class Implementation;
    const std::unique_ptr<Implementation> implementation;
};

} // namespace terminal

#endif
