#ifndef TERMINAL_PRESS_H
#define TERMINAL_PRESS_H

#include "iso11783/Function.h"
#include "terminal/Commands.h"
#include "terminal/Object.h"

#include <cstddef>
#include <cstdint>
#include <optional>

namespace terminal {

class Terminal;

/// That the operator used a soft key or button of that mask.
Frame activation(Object key_or_button, Iso::Object_id mask, Iso::Activation change);

/// What the operator holds down, from the moment on in which a finger lands or a key of the keyboard goes down. It
/// remembers what it is about, so that all messages of one press agree, whatever becomes of the pool meanwhile; a thing
/// that comes with a new upload is no longer the same, of which the terminal takes care.
class Press
{
  public:
    /// Where it is, and which soft key was in the first cell when it landed.
    struct Finger
    {
        Position place;
        std::size_t first_key;
    };

    /// Nothing is pressed.
    Press() = default;
    /// That thing is pressed, which can be used: without a finger by the keyboard.
    Press(const Terminal& terminal, Object thing, const std::optional<Finger>& finger);

    explicit operator bool() const { return id != Iso::null_id; }
    Iso::Object_id thing() const { return id; }

    /// Whether it is a soft key or button, of which the application is told at once and until the end. An input only
    /// acts when it is released.
    bool is_told() const { return static_cast<bool>(*this) && told; }
    /// For what is told.
    Frame message(Iso::Activation change) const;

    /// The finger, if it is one, is elsewhere now.
    void move_to(Position place);
    /// Whether that thing is still there to be used, in the same mask, and a finger still means it.
    bool is_on(const Terminal& terminal) const;

  private:
    Iso::Object_id id = Iso::null_id;
    Iso::Object_id mask = Iso::null_id;
    Iso::Object_id soft_key_mask = Iso::null_id; ///< of a soft key only
    std::optional<Finger> finger;
    bool told = false;
    Frame pressed{};
};

} // namespace terminal

#endif
