#ifndef POOL_OBJECT_TABLE_H
#define POOL_OBJECT_TABLE_H

#include "iso11783/Object_type.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace VT {

class VT_obj;

/// The objects of a pool: in the order of their records, and by id. An object that was removed leaves its place and its
/// id behind, so that what the terminal knows by that id is never mistaken for another object. Objects are not owned.
class Object_table
{
  public:
    VT_obj* find(Iso::Object_id id) const { return is_taken(id) ? objects[places[id]] : nullptr; }

    /// True for the ids of objects that were removed, too.
    bool is_taken(Iso::Object_id id) const { return id < places.size() && places[id] != no_place; }

    /// True if the object of that id stands in place `first` or behind it.
    bool is_from(std::size_t first, Iso::Object_id id) const { return is_taken(id) && places[id] >= first; }

    /// One more than the largest id given.
    std::size_t ids() const { return places.size(); }

    /// The number of places; some may be empty.
    std::size_t size() const { return objects.size(); }
    /// Null where an object was removed.
    VT_obj* operator[](std::size_t place) const { return objects[place]; }

    /// Appends an object, which is found by id after the next set_id().
    void append(VT_obj& object) { objects.push_back(&object); }
    void set_id(std::size_t place, Iso::Object_id id)
    {
        if (id >= places.size())
            places.resize(id + std::size_t{1}, no_place);
        places[id] = static_cast<std::uint32_t>(place);
    }

    /// Empties the place of `id`.
    void remove(Iso::Object_id id)
    {
        if (is_taken(id))
            objects[places[id]] = nullptr;
    }

    /// Takes back everything from `place` on, as if it had never been there.
    void cut(std::size_t place)
    {
        objects.resize(place);
        for (std::uint32_t& entry : places)
            if (entry != no_place && entry >= place)
                entry = no_place;
    }

  private:
    static constexpr std::uint32_t no_place = ~std::uint32_t{0};

    std::vector<VT_obj*> objects;
    std::vector<std::uint32_t> places; ///< by id
};

} // namespace VT

#endif
