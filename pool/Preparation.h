#ifndef POOL_PREPARATION_H
#define POOL_PREPARATION_H

#include "pool/Collector.h"
#include "pool/Kind.h"
#include "pool/Object_table.h"
#include "pool/Result.h"
#include "pool/Specification.h"
#include "vt/Resolve_colour.h"

#include <cstddef>
#include <vector>

namespace VT {

/// One run that takes new objects into a pool, step by step in the order of its operations. An error ends the run with
/// the step that found it; cancel() then takes everything back.
class Preparation
{
  public:
    /// All that is given outlives the run.
    Preparation(Client::Object_pool_interface& owner, Object_table& table, Kinds& known_kinds,
                std::vector<Problem>& found_problems)
        : pool(owner), objects(table), kinds(known_kinds), problems(found_problems), first_new(table.size()),
          collector(owner, known_kinds, found_problems)
    {}

    /// Finds what the pool does not have yet, below what it has and below `roots`; the working set comes first.
    void collect(const std::vector<VT_obj*>& roots);
    /// Gives the new objects their ids.
    void number();
    /// Writes links, placements and points of the new objects, and what the older ones refer to the new ones with.
    void write_references();
    /// Gives the new objects what is specified for them; `current` points at it while an object takes it in.
    void specify(Specification& specification, const Object_specification*& current);

    /// Makes all new objects what they were, without an id given here and without a pool.
    void cancel();

    bool found_any() const { return !collector.found.empty(); }

    /// Children that older objects have come to list, by their places in those lists.
    struct Late_children
    {
        Attribute_object_placement* first;
        std::size_t count;
    };
    const std::vector<Late_children>& late_children() const { return late; }

  private:
    void check_working_set();
    void write_lists_of_members();
    void write_references_to_new();
    void fail(Error error, const VT_obj& object, const std::string& text);

    Client::Object_pool_interface& pool;
    Object_table& objects;
    Kinds& kinds;
    std::vector<Problem>& problems;
    std::size_t first_new;
    Collector collector;

    /// What an attribute of an older object said before this run.
    struct Former
    {
        Attribute_uint16* attribute;
        Iso::Object_id id;
    };
    std::vector<Former> rewritten;
    std::vector<Late_children> late;
};

} // namespace VT

#endif
