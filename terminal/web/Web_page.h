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
#include <vector>

namespace terminal {

class Http_server;
struct Http_answer;
struct Http_request;

/// The screens that an application lets the viewer choose from. Both functions are called with the Web_page locked.
struct Screen_choice
{
    std::vector<std::string> names;
    std::function<std::string()> shown;           ///< the name of the screen that the terminal shows now
    std::function<void(std::size_t choice)> show; ///< what it throws is shown to the viewer
};

/// The page's time, which tests make their own.
struct Web_settings
{
    std::function<std::chrono::steady_clock::time_point()> now = std::chrono::steady_clock::now;
    std::chrono::milliseconds between_looks{100}; ///< at what has taken too long
};

/// Shows a terminal in web browsers on this machine, from construction to destruction: its screen, kept up to date, and
/// the choice of screens; and takes the viewer for its operator, who presses, holds and releases what the screen shows
/// by mouse, finger or keyboard, and enters numbers in a dialog. The address is http://127.0.0.1:port()/.
///
/// Terminal and renderer stay the caller's and outlive the page. The page has one thread. That one alone answers, and
/// calls terminal, renderer, the functions of Screen_choice and `operated`; it does so only while it has locked the
/// page. So between construction and destruction of the page everybody else, too, touches terminal and renderer only
/// while holding lock(), and holds it briefly: all browsers wait. What is drawn belongs to the page's thread.
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
/// page looks for that ten times a second, and before each request.
///
/// What else is open in the browser neither presses keys nor shows this page in a frame, and Http_server limits what a
/// client may take of time and memory.
class Web_page
{
  public:
    /// Port 0 takes any free one. Throws std::system_error, naming the address, if it cannot be listened on.
    ///
    /// `operated`, unless it is empty, is called with the Web_page locked when the operator has done something, of
    /// which the terminal may have told the application; what it throws is shown to the viewer, unless that one is
    /// lost.
    Web_page(Terminal& terminal, Renderer& renderer, Screen_choice choice, std::function<void()> operated,
             std::uint16_t port, Web_settings settings = {});
    /// Not to be called with the page locked, nor by a function that the page calls. Waits for the answer that is being
    /// made, but for no client. What is pressed then is aborted.
    ~Web_page();
    Web_page(const Web_page&) = delete;
    Web_page& operator=(const Web_page&) = delete;

    std::uint16_t port() const;

    /// Keeps the page away from terminal and renderer for as long as the result lives.
    [[nodiscard]] std::unique_lock<std::mutex> lock() { return std::unique_lock(mutex); }

  private:
    Http_answer answer(const Http_request& request);
    Http_answer read(const std::string& path);
    Http_answer operate(const Http_request& request);
    const std::string& picture();
    void end_lost_press();
    // These are called with the page locked.
    std::string entry();
    std::string controls();
    Http_answer show(const std::string& name);
    Http_answer press(bool begun);
    Http_answer follow_press(bool something_done);
    Http_answer enter(int id, const std::string& query);
    Http_answer escape(int id);
    bool is_open(int id) const;
    void tell_application() const;

    Terminal& terminal;
    Renderer& renderer;
    const Screen_choice choice;
    const std::function<void()> operated;
    const std::function<std::chrono::steady_clock::time_point()> now;
    const std::string html;
    std::mutex mutex; ///< of terminal, renderer, `operated` and the functions of `choice`
    // Of the page's thread alone, until it has ended:
    /// When a browser last said something of what it presses; nothing if it presses nothing.
    std::optional<std::chrono::steady_clock::time_point> heard;
    std::optional<std::uint32_t> pictured; ///< the revision of the last picture
    std::string last_picture;              ///< as a file

    std::unique_ptr<Http_server> server;
};

} // namespace terminal

#endif
