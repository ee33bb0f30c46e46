#include "terminal/web/Http_server.h"

#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/steady_timer.hpp>
#include <boost/beast/core/flat_buffer.hpp>
#include <boost/beast/http.hpp>

#include <algorithm>
#include <optional>
#include <system_error>
#include <thread>
#include <tuple>

namespace terminal {

namespace {

namespace asio = boost::asio;
namespace http = boost::beast::http;
using asio::ip::tcp;
using boost::beast::string_view;
using boost::system::error_code;
using Time_point = std::chrono::steady_clock::time_point;

/// With which a request is refused that could not be read; 0 if there is nobody to be told.
unsigned refusal_of(error_code problem)
{
    if (problem == http::error::header_limit || problem == http::error::buffer_overflow)
        return 431;
    if (problem == http::error::body_limit)
        return 413;
    if (problem == http::error::end_of_stream || problem == http::error::partial_message)
        return 0;
    const bool is_malformed = problem.category() == make_error_code(http::error::bad_method).category();
    return is_malformed ? 400 : 0;
}

using Message = http::request<http::empty_body>;

bool only_reads(const Message& message)
{
    return message.method() == http::verb::get || message.method() == http::verb::head;
}

Http_request readable(const Message& message)
{
    const string_view target = message.target();
    const std::size_t path_end = std::min(target.find('?'), target.size());
    const std::size_t query_start = std::min(path_end + 1, target.size());
    return {std::string(only_reads(message) ? "GET" : message.method_string()), std::string(target.substr(0, path_end)),
            std::string(target.substr(query_start))};
}

/// Whether each of the message's headers of that name is one of the hosts with that text before.
bool is_own(const Message& message, http::field name, const std::string& before, const std::vector<std::string>& hosts)
{
    const auto [first, last] = message.equal_range(name);
    return std::all_of(first, last, [&](const auto& header) {
        return std::any_of(hosts.begin(), hosts.end(),
                           [&](const std::string& host) { return header.value() == before + host; });
    });
}

/// A client, and one request of it after the other. The operation under way keeps it alive.
class Connection : public std::enable_shared_from_this<Connection>
{
  public:
    Connection(tcp::socket accepted, const Http_service& its_service, const std::vector<std::string>& server_hosts)
        : socket(std::move(accepted)), service(its_service), own_hosts(server_hosts), buffer(Http_server::longest_head)
    {}

    void read()
    {
        enter(Phase::busy);
        parser.emplace();
        parser->header_limit(Http_server::longest_head);
        parser->body_limit(0);
        http::async_read(socket, buffer, *parser, [this, self = shared_from_this()](error_code problem, std::size_t) {
            if (!socket.is_open()) // given up, although all of it had come
                return;
            if (!problem)
                return answer();
            const unsigned refusal = refusal_of(problem);
            if (refusal == 0)
                return close();
            send({refusal, {}, {}}, false);
        });
    }

    bool is_open() const { return socket.is_open(); }
    bool is_overdue(Time_point now) const { return phase == Phase::busy && now - since >= Http_server::longest_time; }
    /// The lower, the sooner it is given up.
    auto rank() const { return std::tuple(phase, since); }

    /// What it has not taken yet is dropped.
    void give_up()
    {
        error_code ignored;
        socket.set_option(tcp::socket::linger(true, 0), ignored);
        close();
    }

  private:
    enum class Phase { idle, busy };

    void close()
    {
        error_code ignored;
        socket.close(ignored);
    }

    void enter(Phase next)
    {
        phase = next;
        since = service.now();
    }

    void answer()
    {
        const Message& message = parser->get();
        if (message.count(http::field::host) != 1)
            return send({400, {}, {}}, false);
        const bool is_meant = is_own(message, http::field::host, "", own_hosts) &&
                              (only_reads(message) || is_own(message, http::field::origin, "http://", own_hosts));
        if (!is_meant)
            return send({403, "text/plain; charset=utf-8", "this is for the page that comes from here"}, false);
        send(service.answer(readable(message)), message.keep_alive());
    }

    void send(Http_answer answer, bool stays)
    {
        response = {};
        response.result(answer.status);
        for (const auto& [name, value] : service.headers)
            response.set(name, value);
        if (!answer.type.empty())
            response.set(http::field::content_type, answer.type);
        response.keep_alive(stays);
        response.body() = std::move(answer.body);
        if (response.result() != http::status::no_content) // which has no length either
            response.prepare_payload();
        if (parser->get().method() == http::verb::head)
            response.body().clear();

        enter(Phase::busy); // making the answer may have taken a while, which was not the client's fault
        http::async_write(socket, response, [this, stays, self = shared_from_this()](error_code problem, std::size_t) {
            if (problem || !stays)
                return close();
            wait();
        });
    }

    /// For the first byte of the next request.
    void wait()
    {
        if (buffer.size() > 0) // it came with the one before
            return read();
        enter(Phase::idle);
        socket.async_wait(tcp::socket::wait_read, [this, self = shared_from_this()](error_code problem) {
            if (problem)
                return close();
            read();
        });
    }

    tcp::socket socket;
    const Http_service& service;
    const std::vector<std::string>& own_hosts;
    boost::beast::flat_buffer buffer;
    std::optional<http::request_parser<http::empty_body>> parser;
    http::response<http::string_body> response;
    Phase phase;
    Time_point since;
};

} // namespace

class Http_server::Implementation
{
  public:
    Implementation(std::uint16_t port, Http_service its_service) : service(std::move(its_service))
    {
        listen(port);
        add_own_hosts();
        accept();
        look();
        thread = std::thread([this] { context.run(); });
    }

    ~Implementation()
    {
        context.stop();
        thread.join();
    }

    std::uint16_t port() const { return listening_port; }

  private:
    void listen(std::uint16_t port)
    try {
        const tcp::endpoint here(asio::ip::address_v4::loopback(), port);
        acceptor.open(here.protocol());
        acceptor.set_option(tcp::acceptor::reuse_address(true)); // of a connection that was just closed
        acceptor.bind(here);
        acceptor.listen(most_connections);
        listening_port = acceptor.local_endpoint().port();
    } catch (const boost::system::system_error& problem) {
        throw std::system_error(problem.code().value(), std::generic_category(),
                                "cannot listen on 127.0.0.1:" + std::to_string(port));
    }

    void add_own_hosts()
    {
        constexpr std::uint16_t usual_port = 80; // which browsers leave out
        const std::string port_part = listening_port == usual_port ? "" : ":" + std::to_string(listening_port);
        for (const char* name : {"127.0.0.1", "localhost", "[::1]"})
            own_hosts.push_back(name + port_part);
    }

    void accept()
    {
        accepting = true;
        acceptor.async_accept([this](error_code problem, tcp::socket socket) {
            accepting = !problem;
            if (problem) // there are no more descriptors, perhaps; the next look tries again
                return;
            socket.set_option(tcp::no_delay(true), problem);
            make_room();
            connections.push_back(std::make_shared<Connection>(std::move(socket), service, own_hosts));
            connections.back()->read();
            accept();
        });
    }

    void make_room()
    {
        drop_closed();
        if (connections.size() < most_connections)
            return;
        const auto given_up = std::min_element(connections.begin(), connections.end(),
                                               [](const auto& a, const auto& b) { return a->rank() < b->rank(); });
        (*given_up)->give_up();
        connections.erase(given_up);
    }

    void look()
    {
        timer.expires_after(service.interval);
        timer.async_wait([this](error_code) {
            const Time_point now = service.now();
            for (const auto& connection : connections) {
                if (connection->is_overdue(now))
                    connection->give_up();
            }
            drop_closed();
            service.in_spare_time();
            if (!accepting)
                accept();
            look();
        });
    }

    void drop_closed()
    {
        const auto closed = [](const auto& connection) { return !connection->is_open(); };
        connections.erase(std::remove_if(connections.begin(), connections.end(), closed), connections.end());
    }

    Http_service service;
    std::vector<std::string> own_hosts; ///< with the port, unless it is 80
    asio::io_context context{1};
    tcp::acceptor acceptor{context};
    std::uint16_t listening_port = 0;
    asio::steady_timer timer{context};
    bool accepting = false;
    std::vector<std::shared_ptr<Connection>> connections; ///< the oldest first
    std::thread thread;
};

Http_server::Http_server(std::uint16_t port, Http_service service)
    : implementation(std::make_unique<Implementation>(port, std::move(service)))
{}

Http_server::~Http_server() = default;

std::uint16_t Http_server::port() const { return implementation->port(); }

} // namespace terminal
