#ifndef TESTS_POOL_FAKE_TERMINAL_H
#define TESTS_POOL_FAKE_TERMINAL_H

#include "iso11783/Function.h"
#include "tests/Bytes.h"
#include "vt/Terminal_link.h"

#include <chrono>
#include <deque>
#include <limits>
#include <map>
#include <vector>

/// A link that keeps what was sent, and answers each function with a message set beforehand, after a status message
/// that nobody asked for.
class Fake_terminal : public VT::Client::Terminal_link
{
  public:
    std::vector<Bytes> sent;
    std::size_t refuse_from{std::numeric_limits<std::size_t>::max()}; ///< this message and all after it are refused
    std::size_t longest{Iso::extended_transport_size};                ///< bytes that one message may have

    /// By the function asked; a function without an answer is met with silence.
    std::map<std::uint8_t, Bytes> answers{
        {0xC7, frame(0xC7, 0xFF, 2, 3, w(480), w(480))},
        {0xC0, frame(0xC0, 4, 0)},
        {0x12, frame(0x12, 0, w(0xFFFF), w(0xFFFF), 0)},
    };

    bool send(const std::uint8_t* message, std::size_t size) override
    {
        if (sent.size() >= refuse_from)
            return false;
        sent.emplace_back(message, message + size);
        if (const auto answer = answers.find(*message); answer != answers.end()) {
            inbox.push_back(frame(0xFE, 0x26, w(1), w(0xFFFF), 0, 0));
            inbox.push_back(answer->second);
        }
        return true;
    }

    bool receive(std::vector<std::uint8_t>& message, std::chrono::milliseconds) override
    {
        if (inbox.empty())
            return false;
        message = inbox.front();
        inbox.pop_front();
        return true;
    }

    std::size_t longest_message() const override { return longest; }

    /// What was sent since the last call.
    std::vector<Bytes> take_sent()
    {
        std::vector<Bytes> messages;
        messages.swap(sent);
        return messages;
    }

    std::deque<Bytes> inbox; ///< what the terminal says next
};

#endif
