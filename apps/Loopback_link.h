#ifndef APPS_LOOPBACK_LINK_H
#define APPS_LOOPBACK_LINK_H

#include "terminal/Terminal.h"
#include "vt/Terminal_link.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <utility>
#include <vector>

namespace apps {

/// A terminal in this process, and the link to it. Messages arrive at once: nothing is ever waited for. While the link
/// is down it refuses messages and the terminal knows of no application.
class Loopback_link final : public VT::Client::Terminal_link
{
  public:
    explicit Loopback_link(const terminal::Hardware& hardware = {})
        : terminal(hardware, [this](const std::uint8_t* message, std::size_t size) {
              inbox.emplace_back(message, message + size);
          })
    {}

    terminal::Terminal terminal;

    void set_down(bool is_down)
    {
        down = is_down;
        if (!down)
            return;
        terminal.disconnect();
        inbox.clear();
    }

    bool send(const std::uint8_t* message, std::size_t size) override
    {
        if (!down)
            terminal.receive(message, size);
        return !down;
    }

    bool receive(std::vector<std::uint8_t>& message, std::chrono::milliseconds) override
    {
        if (inbox.empty())
            return false;
        message = std::move(inbox.front());
        inbox.pop_front();
        return true;
    }

  private:
    std::deque<std::vector<std::uint8_t>> inbox; ///< from the terminal, not fetched yet
    bool down{false};
};

} // namespace apps

#endif
