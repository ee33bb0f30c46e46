#ifndef TERMINAL_NESTING_H
#define TERMINAL_NESTING_H

#include "terminal/Object_pool.h"

#include <array>
#include <cstdint>
#include <vector>

namespace terminal {

/// How the objects of a pool stand inside each other: as children, as keys of a soft key mask, as items of a list, as
/// targets of an object pointer. Refuses what must not stand where it stands, loops, and what would take forever to
/// draw: an object used by many parents is measured once, however often it would be drawn.
///
/// A child must be of a type that its parent takes. In addition, what is shown through containers and pointers counts
/// as if it stood in the parent itself: a button takes no container with an input in it, a container no pointer to a
/// key. Hidden containers are no exception, since they may be shown later.
class Nesting
{
  public:
    static constexpr std::uint32_t max_drawn = 1'000'000; ///< objects in one drawing, each as often as it is drawn
    static constexpr std::uint8_t max_depth = 64;         ///< objects inside each other, the outermost included

    /// Measures the pool anew. On a fault the measures are void.
    Pool_fault measure(const Object_pool& pool);

    /// Whether the measures show already that `pointer` may point at `target`, which is of a type that it takes, so
    /// that the pool need not be measured again. The measures stay valid: they are bounds, exact after measure() and
    /// not exceeded afterwards.
    bool covers(Object pointer, Object target) const;

  private:
    /// What must not be everywhere.
    enum Content : std::uint8_t { drawing = 1, control = 2, key = 4 };

    struct Node
    {
        std::uint32_t drawn = 0;  ///< the object and all that is drawn inside it
        std::uint8_t depth = 0;   ///< 0: not measured yet
        std::uint8_t content = 0; ///< what shows here, through containers and pointers
        bool open = false;        ///< being measured; to meet it again is a loop
    };
    struct Frame;
    using Stack = std::array<Frame, max_depth>;

    static std::uint8_t own_content(Iso::Object_type type);
    static std::uint8_t content_of(Set types);
    static Frame open_frame(Object object);

    Pool_fault measure_from(const Object_pool& pool, Object root, Stack& stack);

    std::vector<Node> nodes; ///< by object id
};

} // namespace terminal

#endif
