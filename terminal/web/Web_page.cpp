#include "terminal/web/Web_page.h"

#include "terminal/Touch.h"
#include "terminal/web/Page_html.h"

#include <QBuffer>
#include <QString>
#include <QThread>

#include <httplib.h>

#include <sys/socket.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <exception>
#include <future>
#include <stdexcept>
#include <system_error>
#include <utility>

namespace terminal {

namespace {

using httplib::Request;
using httplib::Response;

constexpr const char* address = "127.0.0.1";
constexpr const char* plain_text = "text/plain; charset=utf-8";
constexpr const char* json = "application/json";

using Clock = std::chrono::steady_clock;
constexpr std::chrono::seconds longest_silence{1}; ///< of a browser in which something is pressed
constexpr std::chrono::milliseconds idle_interval{100};

/// Threads for requests; the one that waits for these does something else in its spare time.
class Threads final : public httplib::ThreadPool
{
  public:
    explicit Threads(std::function<void()> in_spare_time)
        : ThreadPool(CPPHTTPLIB_THREAD_POOL_COUNT), idle(std::move(in_spare_time))
    {}
    void on_idle() override { idle(); }

  private:
    const std::function<void()> idle;
};

std::string escaped(const std::string& text) { return QString::fromStdString(text).toHtmlEscaped().toStdString(); }

std::string png(const QImage& image)
{
    QByteArray bytes;
    QBuffer file(&bytes);
    if (!file.open(QIODevice::WriteOnly) || !image.save(&file, "PNG"))
        throw std::runtime_error("cannot write the picture");
    return bytes.toStdString();
}

/// Of at most five digits.
int number(const std::string& digits) { return std::stoi(digits); }

Position place(const Request& request) { return {number(request.matches[1]), number(request.matches[2])}; }

const char* kind(Object target)
{
    switch (target.type()) {
    case Iso::Object_type::key:
        return "soft key";
    case Iso::Object_type::button:
        return "button";
    case Iso::Object_type::input_boolean:
        return "check box";
    default:
        return "number";
    }
}

void refuse(Response& response, int status, const std::string& reason)
{
    response.status = status;
    response.set_content(reason, plain_text);
}

void answer(Response& response, bool yes)
{
    response.status = 200;
    response.set_content(yes ? "true" : "false", json);
}

void explain(const Request&, Response& response, std::exception_ptr problem)
{
    try {
        std::rethrow_exception(problem);
    } catch (const std::exception& known) {
        refuse(response, 500, known.what());
    } catch (...) {
        refuse(response, 500, "unknown problem");
    }
}

} // namespace

Web_page::Web_page(Terminal& shown_terminal, Renderer& its_renderer, Screen_choice screens,
                   std::function<void()> operator_did_something, std::uint16_t port)
    : terminal(shown_terminal), renderer(its_renderer), choice(std::move(screens)),
      operated(std::move(operator_did_something)), server(std::make_unique<httplib::Server>())
{
    // Qt takes the first thread that it meets for the main thread: let that not be one of the server.
    QThread::currentThread();
    add_routes();
    listen(port);
}

Web_page::~Web_page()
{
    server->stop();
    listener.join();
    const auto locked = lock();
    if (heard)
        terminal.abort();
}

void Web_page::add_routes()
{
    server->Get(
        "/", [this](const Request&, Response& response) { response.set_content(html(), "text/html; charset=utf-8"); });
    server->Get("/screen.png",
                [this](const Request&, Response& response) { response.set_content(picture(), "image/png"); });
    server->Get("/revision", [this](const Request&, Response& response) {
        const auto locked = lock();
        response.set_content(std::to_string(terminal.revision()), plain_text);
    });
    server->Get("/page", [this](const Request&, Response& response) {
        const auto locked = lock();
        response.set_content(choice.shown(), plain_text);
    });
    server->Get("/entry", [this](const Request&, Response& response) { response.set_content(entry(), json); });
    server->Get("/controls", [this](const Request&, Response& response) { response.set_content(controls(), json); });

    // None of the requests has a body, and they may say nothing of a length: there is none to be waited for.
    const auto post = [this](const char* path, auto act) {
        server->Post(path, [act](const Request& request, Response& response, const httplib::ContentReader&) {
            response.status = 204;
            act(request, response);
        });
    };
    post("/page/(.+)", [this](const Request& request, Response& response) {
        if (!show(request.matches[1]))
            response.status = 404;
    });
    post("/press/(\\d{1,5})/(\\d{1,5})", [this](const Request& request, Response& response) {
        press(response, [&] { return terminal.press(place(request)); });
    });
    post("/press/(\\d{1,5})", [this](const Request& request, Response& response) {
        const int id = number(request.matches[1]);
        press(response, [&] { return id < Iso::null_id && terminal.press(static_cast<Iso::Object_id>(id)); });
    });
    post("/move/(\\d{1,5})/(\\d{1,5})", [this](const Request& request, Response& response) {
        operate(response, [&] { return terminal.move(place(request)); });
    });
    post("/hold", [this](const Request&, Response& response) { operate(response, [&] { return terminal.hold(); }); });
    post("/release",
         [this](const Request&, Response& response) { operate(response, [&] { return terminal.release(); }); });
    post("/abort", [this](const Request&, Response& response) { operate(response, [&] { return terminal.abort(); }); });
    post("/entry/(\\d{1,5})", [this](const Request& request, Response& response) {
        enter(number(request.matches[1]), request.get_param_value("text"), response);
    });
    post("/escape/(\\d{1,5})",
         [this](const Request& request, Response& response) { escape(number(request.matches[1]), response); });
    server->set_pre_routing_handler([this](const Request& request, Response& response) {
        if (request.method != "POST" || is_own(request)) {
            end_lost_press();
            return httplib::Server::HandlerResponse::Unhandled;
        }
        refuse(response, 403, "this is for the terminal's own page only");
        return httplib::Server::HandlerResponse::Handled;
    });
    server->set_exception_handler(explain);
    server->set_default_headers({{"Cache-Control", "no-store"}});
}

void Web_page::listen(std::uint16_t port)
{
    // The library's own choice lets two servers share a port.
    server->set_socket_options([](int socket) {
        const int on = 1;
        setsockopt(socket, SOL_SOCKET, SO_REUSEADDR, &on, sizeof(on));
    });
    // The library looks at every idle connection a hundred times a second, so none is kept for a further request.
    server->set_keep_alive_max_count(1);
    server->set_keep_alive_timeout(1);
    server->set_read_timeout(1);
    server->set_payload_max_length(1024);
    server->set_idle_interval(idle_interval);

    const int bound = port == 0 ? server->bind_to_any_port(address) : server->bind_to_port(address, port) ? port : -1;
    if (bound < 0)
        throw std::system_error(errno, std::generic_category(),
                                "cannot listen on " + std::string(address) + ":" + std::to_string(port));
    listening_port = static_cast<std::uint16_t>(bound);

    // The server asks for its threads when it has begun to run; a stop() before that would be lost.
    const auto running = std::make_shared<std::promise<void>>();
    server->new_task_queue = [this, running] {
        running->set_value();
        return new Threads([this] {
            try {
                end_lost_press();
            } catch (...) {
                // There is nobody left to whom it could be shown.
            }
        });
    };
    listener = std::thread([this] { server->listen_after_bind(); });
    running->get_future().wait();
}

/// Whether the request is for this page by one of its two names, and comes from it if it says from where.
bool Web_page::is_own(const Request& request) const
{
    constexpr std::uint16_t usual_port = 80; // which browsers leave out
    const std::string port_part = listening_port == usual_port ? "" : ":" + std::to_string(listening_port);
    const std::string hosts[] = {address + port_part, "localhost" + port_part};
    const auto all_own = [&](const char* header, const std::string& before) {
        const auto [first, last] = request.headers.equal_range(header);
        return std::all_of(first, last, [&](const auto& entry) {
            return entry.second == before + hosts[0] || entry.second == before + hosts[1];
        });
    };
    return all_own("Host", "") && all_own("Origin", "http://");
}

std::string Web_page::html() const
{
    std::string choices;
    for (const std::string& name : choice.names)
        choices += "<label><input type=\"radio\" name=\"page\" value=\"" + escaped(name) + "\"><span>" + escaped(name) +
                   "</span></label>\n";
    std::string page(page_html);
    return page.replace(page.find(choices_mark), choices_mark.size(), choices);
}

std::string Web_page::picture()
{
    QImage image;
    {
        const auto locked = lock();
        image = renderer.draw(terminal);
    }
    return png(image);
}

std::string Web_page::entry()
{
    const auto locked = lock();
    const auto open = terminal.entry();
    if (!open)
        return "null";
    return "{\"id\":" + std::to_string(terminal.open_number()) + ",\"value\":\"" + open->value() + "\",\"lowest\":\"" +
           open->lowest() + "\",\"highest\":\"" + open->highest() +
           "\",\"decimals\":" + std::to_string(open->decimals()) + "}";
}

std::string Web_page::controls()
{
    const auto locked = lock();
    std::string list;
    for (const Target& target : usable_targets(terminal)) {
        const auto add = [&list](const char* name, int value) {
            list += std::string(",\"") + name + "\":" + std::to_string(value);
        };
        list += std::string(list.empty() ? "" : ",") + "{\"kind\":\"" + kind(target.object) + '"';
        add("id", target.object.id());
        add("left", target.area.left);
        add("top", target.area.top);
        add("width", target.area.width());
        add("height", target.area.height());
        list += '}';
    }
    return '[' + list + ']';
}

bool Web_page::show(const std::string& name)
{
    const auto found = std::find(choice.names.begin(), choice.names.end(), name);
    if (found == choice.names.end())
        return false;
    const auto locked = lock();
    choice.show(static_cast<std::size_t>(found - choice.names.begin()));
    return true;
}

void Web_page::press(Response& response, const std::function<bool()>& begin)
{
    const auto locked = lock();
    if (begin())
        return follow_press(response, true);
    // Perhaps something else is pressed, in another browser; that is not for this one to hold and release.
    answer(response, false);
}

void Web_page::operate(Response& response, const std::function<bool()>& act)
{
    const auto locked = lock();
    follow_press(response, act());
}

void Web_page::follow_press(Response& response, bool something_done)
{
    heard = Clock::now();
    if (something_done)
        tell_application();
    const bool goes_on = terminal.pressed() != Iso::null_id;
    if (!goes_on)
        heard.reset();
    answer(response, goes_on);
}

void Web_page::end_lost_press()
{
    const auto locked = lock();
    if (!heard || Clock::now() - *heard < longest_silence)
        return;
    heard.reset();
    if (terminal.abort())
        tell_application();
}

void Web_page::enter(int id, const std::string& text, Response& response)
{
    const auto locked = lock();
    if (!is_open(id, response))
        return;
    const std::string refusal = terminal.enter(text);
    if (!refusal.empty())
        return refuse(response, 422, refusal);
    tell_application();
}

void Web_page::escape(int id, Response& response)
{
    const auto locked = lock();
    if (is_open(id, response) && terminal.cancel())
        tell_application();
}

/// It may have closed, or another one opened, since the viewer has seen it.
bool Web_page::is_open(int id, Response& response) const
{
    const bool open = terminal.entry() && terminal.open_number() == id;
    if (!open)
        refuse(response, 409, "this field is no longer open");
    return open;
}

void Web_page::tell_application() const
{
    if (operated)
        operated();
}

} // namespace terminal
