#ifndef POOL_DIALOGUE_H
#define POOL_DIALOGUE_H

#include "pool/Result.h"
#include "pool/Terminal_message.h"
#include "vt/Terminal_link.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <initializer_list>
#include <vector>

namespace VT {

/// Object records, and how they are parted to messages.
struct Records
{
    std::vector<std::uint8_t> bytes{0}; ///< one for the first message's function, then the records
    std::vector<std::size_t> ends{};    ///< of the messages, in bytes from the first record on
};

/// A frame: the function and what follows it, filled up.
bool send_frame(Client::Terminal_link& link, Iso::Function function, std::initializer_list<std::uint8_t> rest = {});

/// Working Set Maintenance. The `first` one of a session makes the terminal forget what it knew of the working set.
bool send_maintenance(Client::Terminal_link& link, bool first);

/// The questions and answers by which a pool gets into a terminal. Once a second it tells the terminal that the
/// application is alive: while it waits, and between two messages. The first step that fails leaves a problem, and the
/// steps after it must not be made.
class Dialogue
{
  public:
    Dialogue(Client::Terminal_link& terminal, std::vector<Problem>& found_problems)
        : link(terminal), problems(found_problems)
    {}

    bool begin() { return maintain(true); }
    bool ask_hardware(VT_information& information, std::chrono::milliseconds timeout);
    bool ask_memory(std::size_t pool_size, std::chrono::milliseconds timeout);
    /// Overwrites what has been sent. After each message `progress`, unless it is empty, is told how many bytes of the
    /// records the link has taken, of how many.
    bool transfer(Records& records, const std::function<void(std::size_t, std::size_t)>& progress);
    /// Ends the transfer and waits for the terminal's judgement.
    bool end(End_of_object_pool_response& response, std::chrono::milliseconds timeout);

  private:
    using Time = std::chrono::steady_clock::time_point;

    bool send(Iso::Function function, std::initializer_list<std::uint8_t> rest);
    /// Waits for a message of type T; others are skipped.
    template <class T>
    bool wait_for(T& answer, Iso::Function question, std::chrono::milliseconds timeout);
    bool receive(Time until);
    bool maintain(bool first = false);
    bool maintain_if_due();
    bool fail(Error error, const std::string& text);
    Time now() const { return link.now() + given_up; }

    Client::Terminal_link& link;
    std::vector<Problem>& problems;
    std::vector<std::uint8_t> received;
    Time::duration given_up{0}; ///< waiting that the link has spared itself
    Time maintained{};          ///< set by begin()
};

} // namespace VT

#endif
