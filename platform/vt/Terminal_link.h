#ifndef VT_TERMINAL_LINK_H
#define VT_TERMINAL_LINK_H

#include "iso11783/Export.h"
#include "iso11783/Function.h"

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
    /// Nobody else maintains the working set while this takes: a link that returns only when a long message has gone
    /// sends Working Set Maintenance itself, each second, or says by longest_message() what goes within one.
    virtual bool send(const std::uint8_t* message, std::size_t size) = 0;

    /// Fetches the terminal's next message into `message`. Waits until there is one or `timeout` has passed; false when
    /// none came. A link that knows that none can come any more may say so at once.
    virtual bool receive(std::vector<std::uint8_t>& message, std::chrono::milliseconds timeout) = 0;

    /// How long a message may be, in bytes, its function included: no less than a frame (Iso::frame_size), which is
    /// what a smaller number counts as. Object records go in as few messages as that allows, none of them cut in two.
    /// Unless a link says less it is what an extended transport session carries, and a whole pool goes in one message;
    /// a link that knows plain sessions only says Iso::transport_size.
    virtual std::size_t longest_message() const { return Iso::extended_transport_size; }

    /// The clock by which receive() waits. A link that plays a terminal may have a time of its own, in which a load
    /// that takes minutes is over at once.
    virtual std::chrono::steady_clock::time_point now() const { return std::chrono::steady_clock::now(); }
};

} // namespace VT::Client

#endif
