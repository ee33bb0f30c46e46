#ifndef TERMINAL_WEB_WEB_PAGE_H
#define TERMINAL_WEB_WEB_PAGE_H

#include "terminal/Terminal.h"
#include "terminal/draw/Renderer.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
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
/// the choice of screens; and takes the viewer for its operator, who presses, holds and releases what the screen shows
/// by mouse, finger or keyboard, and enters numbers in a dialog. The address is http://127.0.0.1:port()/.
///
/// Terminal and renderer stay the caller's and outlive the page. The page uses them from threads of its own, one at a
/// time and only while it is locked; so between construction and destruction of the page everybody else, too, touches
/// them only while holding lock(). What is drawn belongs to the thread that asked for it.
///
/// | request                         | what it does                                                                   |
/// |---------------------------------|--------------------------------------------------------------------------------|
/// | GET  /                          | the page itself, which needs nothing else from anywhere                        |
/// | GET  /screen.png                | what the terminal shows                                                        |
/// | GET  /revision                  | a number that changes with the screen, what is pressed, and the entry          |
/// | GET  /page                      | the name of the screen that is shown                                           |
/// | GET  /controls                  | what can be used, as a JSON list: id, kind, left, top, width, height           |
/// | GET  /entry                     | the number open for entry, as JSON: null, or its id and what Number_entry says |
/// | POST /page/<name>               | shows that screen; 404 if there is none of that name                           |
/// | POST /press/<x>/<y>             | a finger lands on that pixel of the screen                                     |
/// | POST /press/<id>                | a key of the keyboard goes down on that control or soft key                    |
/// | POST /move/<x>/<y>              | the finger is there now                                                        |
/// | POST /hold                      | it is still there, or the key still down                                       |
/// | POST /release                   | it goes up                                                                     |
/// | POST /abort                     | it is taken back                                                               |
/// | POST /entry/<id>?text=<number>  | enters that number; 422 and the reason if it is refused, 409 if it is not open |
/// | POST /escape/<id>               | leaves that number without entering one; 409 if it is not open                 |
///
/// The requests of a press answer, as JSON, whether that press goes on. It is the browser that has the clock: it says
/// /hold every 200 ms. A browser that has said nothing of its press for a second is lost, and the press is aborted; the
/// server looks for that in its spare time, and before each request.
///
/// A POST is refused with 403 if it says that it comes from another site's page, or was meant for another host: what
/// else is open in the browser does not press keys.
class Web_page
{
  public:
    /// Port 0 takes any free one. Throws std::system_error, naming the address, if it cannot be listened on.
    ///
    /// `operated`, unless it is empty, is called with the Web_page locked when the operator has done something, of
    /// which the terminal may have told the application; what it throws is shown to the viewer, unless that one is
    /// lost.
    Web_page(Terminal& terminal, Renderer& renderer, Screen_choice choice, std::function<void()> operated,
             std::uint16_t port);
    /// Lets requests that have begun finish; a client that falls silent holds it up for two seconds at most. What is
    /// pressed then is aborted.
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
    std::string controls();
    bool show(const std::string& name);
    void press(httplib::Response& response, const std::function<bool()>& begin);
    void operate(httplib::Response& response, const std::function<bool()>& act);
    void follow_press(httplib::Response& response, bool something_done);
    void end_lost_press();
    void enter(int id, const std::string& text, httplib::Response& response);
    void escape(int id, httplib::Response& response);
    bool is_open(int id, httplib::Response& response) const;
    void tell_application() const;

    Terminal& terminal;
    Renderer& renderer;
    const Screen_choice choice;
    const std::function<void()> operated;
    std::mutex mutex; ///< of terminal, renderer, `operated`, the functions of `choice`, and `heard`
    /// When a browser last said something of what it presses; nothing if it presses nothing.
    std::optional<std::chrono::steady_clock::time_point> heard;

    std::uint16_t listening_port = 0;
    std::unique_ptr<httplib::Server> server;
    std::thread listener;
};

} // namespace terminal

#endif
