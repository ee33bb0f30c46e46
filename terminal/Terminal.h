#ifndef TERMINAL_TERMINAL_H
#define TERMINAL_TERMINAL_H

#include "iso11783/Function.h"
#include "terminal/Area.h"
#include "terminal/Commands.h"
#include "terminal/Hardware.h"
#include "terminal/Live_pool.h"
#include "terminal/Number_entry.h"
#include "terminal/Press.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace terminal {

/// A Virtual Terminal for one application, without its screen and its clock: takes the application's messages, holds
/// its pool, answers, takes the operator's finger and entries, and tells what the operator does. Answers and events go
/// to `send`, complete messages of eight bytes or, for a text, more.
///
/// One thing at a time is pressed, by press(), until release(), abort() or a move() that leaves it. The press ends by
/// itself, aborted, when the application disables or replaces what is pressed, hides it or what it lies in, moves it
/// away from under the finger or something over it, or shows another mask; a soft key's also with another soft key
/// mask. When the application goes away, it is forgotten. All messages of one press name the mask and the key code that
/// it began with.
///
/// One input number at a time is open for entry: selected and open for input, by release() or select_input(). It closes
/// by enter(), cancel() and escape(), when it is selected otherwise, and by itself when the application replaces or
/// disables it, has it shown in other units, shows another mask or goes away. Whatever closes it but escape(), an
/// application that still has that input is told that it is no longer selected.
///
/// It stores no pools: it has no version labels, knows none, and has no memory to store one under.
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
    /// Changes whenever anything in the pool does, and the screen may look different, a press begins or ends, or a
    /// number opens or closes.
    std::uint32_t revision() const { return live.revision() + n_operations; }
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

    /// A finger lands on the screen: on the pixel `place` of Screen_layout, with the soft keys from `first_key` on in
    /// the cells. target_at() says what it means there. False, and nothing happens, where that is nothing usable, while
    /// something is pressed already, and while a number is open, because its entry covers the screen.
    ///
    /// A soft key or an enabled button tells the application of the press and its end. But a latchable button changes
    /// over at once, pressed or released, and that is all: it does not stay pressed. An enabled check box or input
    /// number does nothing yet.
    bool press(Position place, std::size_t first_key = 0);
    /// The same by the keyboard, on a soft key or control that is shown somewhere: see shows().
    bool press(Iso::Object_id target);
    /// What is pressed, or the null id.
    Iso::Object_id pressed() const { return pressing.thing(); }

    // What becomes of the press; false, and nothing happens, if there is none.
    /// The owner of the clock says, about every 200 ms, that it lasts; false also for an input, which tells nothing.
    bool hold();
    /// The press ends: a check box changes over, an input number opens for entry.
    bool release();
    /// The finger is at that pixel now, on the screen or not. If it no longer means what is pressed, that is abort(),
    /// and true; to come back does not press again. A press by the keyboard is not concerned.
    bool move(Position place);
    /// The press ends without effect: a soft key or button is told to be aborted.
    bool abort();

    /// A tap: press() and, if that was something, release().
    bool touch(Position place, std::size_t first_key = 0);

    /// The input number that is open for entry, or the null id.
    Iso::Object_id open_number() const { return opened.number; }
    /// What can be entered into it now.
    std::optional<Number_entry> entry() const;
    /// The operator ends the entry with a number, written as a text. Returns why it is refused, and the entry stays
    /// open; or nothing, and the input has the number and is closed.
    std::string enter(std::string_view text);
    /// The operator ends the entry without a number: escape(), and the input is closed; false if none is open.
    bool cancel();

  private:
    /// The input number that is open for entry, the mask it was opened in, and how it showed its value then.
    struct Opened
    {
        Iso::Object_id number = Iso::null_id;
        Iso::Object_id mask = Iso::null_id;
        Number_format format;
    };

    void take(const std::uint8_t* message, std::size_t count);
    void answer(Iso::Function function, std::initializer_list<std::uint8_t> rest);
    void transfer(const std::uint8_t* records, std::size_t count);
    void end_of_pool();
    void tell(const Frame& message) { send(message.data(), message.size()); }
    bool press(Object thing, const std::optional<Press::Finger>& finger);
    bool latch(Object button);
    Press take_press();
    void set_opened(const Opened& now);
    void close_entry();
    bool entry_is_void() const; ///< the number that is open is no longer to be entered

    Hardware properties;
    Send send;
    Live_pool live;
    Press pressing;
    Opened opened;
    std::uint32_t n_operations = 0;   ///< beginnings and ends of presses and entries
    std::vector<std::uint8_t> upload; ///< transferred, not ended yet
    bool upload_overflow = false;     ///< more was transferred than there is memory for
};

} // namespace terminal

#endif
