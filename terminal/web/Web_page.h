#ifndef TERMINAL_WEB_WEB_PAGE_H
#define TERMINAL_WEB_WEB_PAGE_H

#include "terminal/Terminal.h"
#include "terminal/draw/Renderer.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace httplib {
class Server;
struct Request;
struct Response;
} // namespace httplib

namespace terminal {

/// The screens that an application lets the viewer choose from. Both functions are called with the Web_page locked.
struct Screen_choice
{
    std::vector<std::string> names;
    std::function<std::string()> shown;           ///< the name of the screen that the terminal shows now
    std::function<void(std::size_t choice)> show; ///< what it throws is shown to the viewer
};

/// Shows a terminal in web browsers on this machine, from construction to destruction: its screen, kept up to date, and
/// the choice of screens; and takes the viewer for its operator, whose clicks and taps are touches, and who enters
/// numbers in a dialog. The address is http://127.0.0.1:port()/.
///
/// Terminal and renderer stay the caller's and outlive the page. The page uses them from threads of its own, one at a
/// time and only while it is locked; so between construction and destruction of the page everybody else, too, touches
/// them only while holding lock(). What is drawn belongs to the thread that asked for it.
///
///     GET  /                     the page itself, which needs nothing else from anywhere
///     GET  /screen.png           what the terminal shows
///     GET  /revision             a number that changes with the screen and the entry
///     GET  /page                 the name of the screen that is shown
///     GET  /entry                the number that is open for entry, as JSON: null, or its id and what Number_entry
///     says POST /page/<name>          shows that screen; 404 if there is none of that name POST /touch/<x>/<y> touches
///     that pixel of the screen POST /entry/<id>?text=<…>  enters that number; 422 and the reason if it is refused, 409
///     if it is not open POST /escape/<id>          leaves that number without entering one; 409 if it is not open
///
/// A POST is refused with 403 if it says that it comes from another site's page, or was meant for another host: what
/// else is open in the browser does not press keys.
class Web_page
{
  public:
    /// Port 0 takes any free one. Throws std::system_error, naming the address, if it cannot be listened on.
    ///
    /// `operated`, unless it is empty, is called with the Web_page locked when the operator has done something that the
    /// terminal told the application; what it throws is shown to the viewer.
    Web_page(Terminal& terminal, Renderer& renderer, Screen_choice choice, std::function<void()> operated,
             std::uint16_t port);
    /// Lets requests that have begun finish; a client that falls silent holds it up for two seconds at most.
    ~Web_page();
    Web_page(const Web_page&) = delete;
    Web_page& operator=(const Web_page&) = delete;

    std::uint16_t port() const { return listening_port; }

    /// Keeps the page away from terminal and renderer for as long as the result lives.
    [[nodiscard]] std::unique_lock<std::mutex> lock() { return std::unique_lock(mutex); }

  private:
    void add_routes();
    void listen(std::uint16_t port);
    bool is_own(const httplib::Request& request) const;
    std::string html() const;
    std::string picture();
    std::string entry();
    bool show(const std::string& name);
    void touch(Position place);
    void enter(int id, const std::string& text, httplib::Response& response);
    void escape(int id, httplib::Response& response);
    bool is_open(int id, httplib::Response& response) const;
    void tell_application() const;

    Terminal& terminal;
    Renderer& renderer;
    const Screen_choice choice;
    const std::function<void()> operated;
    std::mutex mutex; ///< of terminal, renderer, `operated` and the functions of `choice`

    std::uint16_t listening_port = 0;
    std::unique_ptr<httplib::Server> server;
    std::thread listener;
};

} // namespace terminal

#endif
