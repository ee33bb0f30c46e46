#ifndef TESTS_TERMINAL_WEB_HTTP_CLIENT_H
#define TESTS_TERMINAL_WEB_HTTP_CLIENT_H

#include <cstddef>
#include <cstdint>
#include <string>

namespace terminal {

/// A TCP connection to this machine that sends what it is told to, sensible or not.
class Raw_connection
{
  public:
    /// Waits half a second at most. A system that has to ask a second time waits longer.
    explicit Raw_connection(std::uint16_t port, std::uint32_t address = 0x7F000001);
    ~Raw_connection();
    Raw_connection(Raw_connection&& other) noexcept;
    Raw_connection(const Raw_connection&) = delete;
    Raw_connection& operator=(const Raw_connection&) = delete;

    bool is_connected() const { return connected; }
    /// How much of it the system and the other end take before that one closes the connection.
    std::size_t send(const std::string& text);
    /// What comes up to that end, or until the other end closes or has been silent for ten seconds.
    std::string receive(const std::string& end = {});
    /// Whether the other end has closed it, with or without something to say.
    bool is_closed();
    /// Waits for that; false if it takes ten seconds.
    bool waits_to_be_closed();

  private:
    int descriptor;
    bool connected;
};

/// What a server answers.
struct Answer
{
    int status = -1;  ///< -1 if it does not answer
    std::string head; ///< status line and headers
    std::string body;

    std::string header(const std::string& name) const;
};

/// What that text says: the first answer, if it is whole.
Answer parse_answer(const std::string& text);

/// Asks one thing on each connection, as a browser does.
class Http_client
{
  public:
    explicit Http_client(std::uint16_t server_port) : port(server_port) {}

    /// Headers are lines, each with its end. They have their Host unless they bring one.
    Answer get(const std::string& target, const std::string& headers = {}) const { return ask("GET", target, headers); }
    Answer post(const std::string& target, const std::string& headers = {}) const
    {
        return ask("POST", target, headers);
    }
    Answer ask(const std::string& method, const std::string& target, const std::string& headers = {}) const;

    /// The beginning of a request: what comes before further headers and the empty line.
    std::string beginning(const std::string& method, const std::string& target) const;

  private:
    std::uint16_t port;
};

} // namespace terminal

#endif
