#ifndef POOL_COLLECTOR_H
#define POOL_COLLECTOR_H

#include "pool/Kind.h"
#include "pool/Result.h"

#include <vector>

namespace VT {

/// Finds the objects that are reachable and not in a pool yet, each once, parents before their children. What it finds
/// it marks as the pool's, by the pool pointer.
class Collector
{
  public:
    struct Found
    {
        VT_obj* object;
        const Kind* kind;
        Iso::Object_id own_id; ///< that the object came with, or the null id
    };

    Collector(Client::Object_pool_interface& owner, Kinds& known_kinds, std::vector<Problem>& found_problems)
        : pool(owner), kinds(known_kinds), problems(found_problems)
    {}

    /// `root`, unless the pool has it already, and everything below it.
    void collect(VT_obj& root);
    /// Everything below `member`, which the pool has already.
    void collect_below(VT_obj& member);

    /// In the order they were found.
    std::vector<Found> found;

  private:
    void collect_pending();
    void expand(const Kind& kind, VT_obj& object);
    void check_lists(const Kind& kind, VT_obj& object);
    void report_stranger(const VT_obj& object);

    Client::Object_pool_interface& pool;
    Kinds& kinds;
    std::vector<Problem>& problems;
    std::vector<VT_obj*> pending;         ///< a stack: a screen nests as deep as it likes
    std::vector<const VT_obj*> strangers; ///< objects of other pools, each reported once
};

} // namespace VT

#endif
