#ifndef VT_TERMINAL_LINK_H
#define VT_TERMINAL_LINK_H

#include "iso11783/Export.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace VT::Client {

/// The way to one terminal and back: whole messages of the Virtual Terminal protocol, in order. Implemented by whoever
/// owns the bus.
class VTUI_EXPORT Terminal_link
{
  public:
    virtual ~Terminal_link() = default;

    /// Hands over one message. False when the link refuses it or is down; nothing of it has then reached the terminal.
    virtual bool send(const std::uint8_t* message, std::size_t size) = 0;

    /// Fetches the terminal's next message into `message`. Waits until there is one or `timeout` has passed; false when
    /// none came. A link that knows that none can come any more may say so at once.
    virtual bool receive(std::vector<std::uint8_t>& message, std::chrono::milliseconds timeout) = 0;
};

} // namespace VT::Client

#endif
