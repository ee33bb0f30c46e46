#include "terminal/web/Web_page.h"

#include "terminal/web/Page_html.h"

#include <QBuffer>
#include <QString>
#include <QThread>

#include <httplib.h>

#include <sys/socket.h>

#include <algorithm>
#include <cerrno>
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

std::string escaped(const std::string& text) { return QString::fromStdString(text).toHtmlEscaped().toStdString(); }

std::string png(const QImage& image)
{
    QByteArray bytes;
    QBuffer file(&bytes);
    if (!file.open(QIODevice::WriteOnly) || !image.save(&file, "PNG"))
        throw std::runtime_error("cannot write the picture");
    return bytes.toStdString();
}

void explain(const Request&, Response& response, std::exception_ptr problem)
{
    response.status = 500;
    try {
        std::rethrow_exception(problem);
    } catch (const std::exception& known) {
        response.set_content(known.what(), plain_text);
    } catch (...) {
        response.set_content("unknown problem", plain_text);
    }
}

} // namespace

Web_page::Web_page(const Terminal& shown_terminal, Renderer& its_renderer, Screen_choice screens, std::uint16_t port)
    : terminal(shown_terminal), renderer(its_renderer), choice(std::move(screens)),
      server(std::make_unique<httplib::Server>())
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
    // A request to show a screen may say nothing of a length: there is no body that one would have to wait for.
    server->Post("/page/(.+)", [this](const Request& request, Response& response, const httplib::ContentReader&) {
        response.status = show(request.matches[1]) ? 204 : 404;
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

    const int bound = port == 0 ? server->bind_to_any_port(address) : server->bind_to_port(address, port) ? port : -1;
    if (bound < 0)
        throw std::system_error(errno, std::generic_category(),
                                "cannot listen on " + std::string(address) + ":" + std::to_string(port));
    listening_port = static_cast<std::uint16_t>(bound);

    // The server asks for its threads when it has begun to run; a stop() before that would be lost.
    const auto running = std::make_shared<std::promise<void>>();
    server->new_task_queue = [running] {
        running->set_value();
        return new httplib::ThreadPool(CPPHTTPLIB_THREAD_POOL_COUNT);
    };
    listener = std::thread([this] { server->listen_after_bind(); });
    running->get_future().wait();
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

bool Web_page::show(const std::string& name)
{
    const auto found = std::find(choice.names.begin(), choice.names.end(), name);
    if (found == choice.names.end())
        return false;
    const auto locked = lock();
    choice.show(static_cast<std::size_t>(found - choice.names.begin()));
    return true;
}

} // namespace terminal
