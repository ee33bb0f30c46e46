#ifndef TERMINAL_TERMINAL_H
#define TERMINAL_TERMINAL_H

#include "iso11783/Function.h"
#include "terminal/Commands.h"
#include "terminal/Live_pool.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string_view>
#include <vector>

namespace terminal {

/// What the terminal tells of itself.
struct Hardware
{
    std::uint16_t mask_size = 480; ///< the data mask is a square of as many pixels
    std::uint8_t soft_key_width = 60;
    std::uint8_t soft_key_height = 60;
    std::uint8_t physical_soft_keys = 8;
    std::uint8_t virtual_soft_keys = 64;
    std::uint8_t boot_time = 0xFF;              ///< in seconds; 0xFF: not told
    std::uint8_t version = 4;                   ///< of the terminal's functions
    std::size_t memory = std::size_t{16} << 20; ///< bytes of object records that the terminal takes
};

/// A Virtual Terminal for one application, without its screen and its clock: takes the application's messages, holds
/// its pool, answers, and tells what the operator does. Answers and events go to `send`, complete messages of eight
/// bytes or, for a text, more.
///
/// A message that is too short for its function is ignored, as is an answer to one of the terminal's own events. A
/// function that the terminal does not know is answered with Function::unsupported_function and its number. Macros are
/// checked but not executed, and enter_text() does not apply the validation of an input's attributes.
class Terminal
{
  public:
    using Send = std::function<void(const std::uint8_t* message, std::size_t count)>;

    Terminal(const Hardware& properties, Send send_message);

    void receive(const std::uint8_t* message, std::size_t count);
    /// The application is gone: forgets its pool.
    void disconnect();

    const Hardware& hardware() const { return properties; }
    /// The live pool; empty while there is none.
    const Object_pool& pool() const { return live.objects(); }
    /// Changes whenever anything in the pool does, and the screen may look different.
    std::uint32_t revision() const { return live.revision(); }
    Object working_set() const { return live.working_set(); }
    /// What the screen shows: a data or alarm mask, and its soft key mask. Empty while there is no pool; a mask without
    /// soft keys has an empty soft key mask.
    Object active_mask() const;
    Object active_soft_key_mask() const;

    /// The Terminal Status message, which the owner of the clock sends: each second, and when a mask changes.
    Frame status(std::uint8_t working_set_address) const;

    /// What the operator does. Each tells the application; false, and nothing happens, where there is no such object to
    /// be used, a button or input is disabled, or the value does not fit. A number goes to the variable of the input
    /// if it has one, to the input itself otherwise; the same with a text.
    bool use_key(Iso::Object_id key, Iso::Activation activation);
    bool use_button(Iso::Object_id button, Iso::Activation activation);
    bool select_input(Iso::Object_id input, bool selected, bool open_for_input);
    bool enter_number(Iso::Object_id input, std::uint32_t value);
    bool enter_text(Iso::Object_id input, std::string_view text);
    bool escape(Iso::Object_id input);

  private:
    void answer(Iso::Function function, std::initializer_list<std::uint8_t> rest);
    void transfer(const std::uint8_t* records, std::size_t count);
    void end_of_pool();
    bool activate(Iso::Function function, Object object, Iso::Activation activation);

    Hardware properties;
    Send send;
    Live_pool live;
    std::vector<std::uint8_t> upload; ///< transferred, not ended yet
    bool upload_overflow = false;     ///< more was transferred than there is memory for
};

} // namespace terminal

#endif
