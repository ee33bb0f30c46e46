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

/// Sends object records, in messages that fit a transport session. `message` begins with a byte that is free, and the
/// records follow; bytes that have been sent are overwritten. After each message `go_on` is asked (unless it is empty)
/// and told how many bytes of the records have been sent. Returns how many of them the link took: all, unless it
/// refused or `go_on` ended it.
std::size_t transfer_records(Client::Terminal_link& link, std::vector<std::uint8_t>& message,
                             const std::function<bool(std::size_t sent)>& go_on);

/// A frame: the function and what follows it, filled up.
bool send_frame(Client::Terminal_link& link, Iso::Function function, std::initializer_list<std::uint8_t> rest = {});

/// Working Set Maintenance. The `first` one of a session makes the terminal forget what it knew of the working set.
bool send_maintenance(Client::Terminal_link& link, bool first);

/// The questions and answers by which a pool gets into a terminal. Whatever takes longer than a second is interrupted
/// to tell the terminal that the application is alive. The first step that fails leaves a problem, and the steps after
/// it must not be made.
class Dialogue
{
  public:
    Dialogue(Client::Terminal_link& terminal, std::vector<Problem>& found_problems)
        : link(terminal), problems(found_problems)
    {}

    bool begin() { return maintain(true); }
    bool ask_hardware(VT_information& information, std::chrono::milliseconds timeout);
    bool ask_memory(std::size_t pool_size, std::chrono::milliseconds timeout);
    /// As transfer_records().
    bool transfer(std::vector<std::uint8_t>& message, const std::function<void(std::size_t, std::size_t)>& progress);
    /// Ends the transfer and waits for the terminal's judgement.
    bool end(End_of_object_pool_response& response, std::chrono::milliseconds timeout);

  private:
    using Clock = std::chrono::steady_clock;

    bool send(Iso::Function function, std::initializer_list<std::uint8_t> rest);
    /// Waits for a message of type T; others are skipped.
    template <class T>
    bool wait_for(T& answer, Iso::Function question, std::chrono::milliseconds timeout);
    bool maintain(bool first = false);
    bool fail(Error error, const std::string& text);

    Client::Terminal_link& link;
    std::vector<Problem>& problems;
    std::vector<std::uint8_t> received;
    Clock::time_point maintained{Clock::now()};
};

} // namespace VT

#endif
