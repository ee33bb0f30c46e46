#include "pool/Dialogue.h"

#include "iso11783/Function.h"
#include "pool/Names.h"

#include <algorithm>
#include <array>
#include <string>

namespace VT {

namespace {

using std::chrono::milliseconds;

constexpr milliseconds maintenance_period{1000};

/// The version of the terminal's functions that the application is written for.
constexpr std::uint8_t version = 4;

} // namespace

bool send_frame(Client::Terminal_link& link, Iso::Function function, std::initializer_list<std::uint8_t> rest)
{
    std::array<std::uint8_t, Iso::frame_size> frame;
    frame.fill(0xFF);
    frame[0] = static_cast<std::uint8_t>(function);
    std::copy(rest.begin(), rest.end(), frame.begin() + 1);
    return link.send(frame.data(), frame.size());
}

bool send_maintenance(Client::Terminal_link& link, bool first)
{
    return send_frame(link, Iso::Function::working_set_maintenance, {first, version});
}

bool Dialogue::fail(Error error, const std::string& text)
{
    problems.push_back({error, Iso::null_id, "", text});
    return false;
}

bool Dialogue::send(Iso::Function function, std::initializer_list<std::uint8_t> rest)
{
    return send_frame(link, function, rest) || fail(Error::link_refused, "The link refused " + name_of(function));
}

bool Dialogue::maintain(bool first)
{
    maintained = now();
    return send_maintenance(link, first) ||
           fail(Error::link_refused, "The link refused " + name_of(Iso::Function::working_set_maintenance));
}

bool Dialogue::maintain_if_due() { return now() < maintained + maintenance_period || maintain(); }

/// A link may give up waiting early; it has waited all the same.
bool Dialogue::receive(Time until)
{
    const auto left = [&] { return std::max(until - now(), Time::duration::zero()); };
    if (link.receive(received, std::chrono::ceil<milliseconds>(left())))
        return true;
    given_up += left();
    return false;
}

template <class T>
bool Dialogue::wait_for(T& answer, Iso::Function question, milliseconds timeout)
{
    const Time end = now() + timeout;
    while (now() < end) {
        if (!maintain_if_due())
            return false;
        if (!receive(std::min(end, maintained + maintenance_period)))
            continue;
        const Terminal_message message = decode(received.data(), received.size());
        if (const T* const wanted = std::get_if<T>(&message)) {
            answer = *wanted;
            return true;
        }
        const auto* const unknown = std::get_if<Unsupported_function_response>(&message);
        if (unknown && unknown->function == question)
            return fail(Error::unusable_terminal, "The terminal does not know " + name_of(question));
    }
    return fail(Error::timed_out, "The terminal did not answer " + name_of(question) + " within " +
                                      std::to_string(timeout.count()) + " ms");
}

bool Dialogue::ask_hardware(VT_information& information, milliseconds timeout)
{
    if (!send(Iso::Function::get_hardware, {}) || !wait_for(information, Iso::Function::get_hardware, timeout))
        return false;
    return information.has_pixels() ||
           fail(Error::unusable_terminal, "The terminal says that its data mask has no pixels");
}

bool Dialogue::ask_memory(std::size_t pool_size, milliseconds timeout)
{
    const auto byte = [pool_size](unsigned i) { return static_cast<std::uint8_t>(pool_size >> (8 * i)); };
    Memory_response response;
    if (!send(Iso::Function::get_memory, {0xFF, byte(0), byte(1), byte(2), byte(3)}) ||
        !wait_for(response, Iso::Function::get_memory, timeout))
        return false;
    return response.enough ||
           fail(Error::not_enough_memory, "The terminal has no room for " + std::to_string(pool_size) + " bytes");
}

bool Dialogue::transfer(Records& records, const std::function<void(std::size_t, std::size_t)>& progress)
{
    const std::size_t total = records.bytes.size() - 1;
    std::size_t sent = 0;
    for (const std::size_t end : records.ends) {
        std::uint8_t* const message = records.bytes.data() + sent;
        *message = static_cast<std::uint8_t>(Iso::Function::object_pool_transfer);
        if (!link.send(message, 1 + end - sent))
            return fail(Error::link_refused,
                        "The link refused the pool at byte " + std::to_string(sent) + " of " + std::to_string(total));
        sent = end;
        if (progress)
            progress(sent, total);
        if (!maintain_if_due())
            return false;
    }
    return true;
}

bool Dialogue::end(End_of_object_pool_response& response, milliseconds timeout)
{
    return send(Iso::Function::end_of_object_pool, {}) &&
           wait_for(response, Iso::Function::end_of_object_pool, timeout);
}

} // namespace VT
