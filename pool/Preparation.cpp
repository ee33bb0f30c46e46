#include "pool/Preparation.h"

#include "pool/Names.h"

#include <algorithm>
#include <string>
#include <utility>

namespace VT {

namespace {

bool is_working_set(const VT_obj& object) { return object.get_type() == Iso::Object_type::working_set; }

void write_points(Comp::Polygon_obj& polygon)
{
    Comp::Vertices* const vertices = polygon.vertices_ptr;
    if (!vertices)
        return;
    vertices->deref();
    polygon.points = vertices->get();
    polygon.num_points = static_cast<std::uint8_t>(vertices->size());
}

} // namespace

void Preparation::fail(Error error, const VT_obj& object, const std::string& text)
{
    problems.push_back({error, object.get_id(), name_of(object), text});
}

void Preparation::collect(const std::vector<VT_obj*>& roots)
{
    for (std::size_t place = 0; place < first_new; ++place)
        if (objects[place])
            collector.collect_below(*objects[place]);
    for (VT_obj* const root : roots)
        collector.collect(*root);
    check_working_set();
}

void Preparation::check_working_set()
{
    VT_obj* root = nullptr;
    const auto take = [&](VT_obj& object) {
        if (root)
            fail(Error::two_working_sets, object,
                 "The pool has two working sets: " + describe(*root) + " and " + describe(object));
        root = &object;
    };
    for (std::size_t place = 0; place < first_new; ++place)
        if (objects[place] && is_working_set(*objects[place]))
            take(*objects[place]);
    auto& found = collector.found;
    for (std::size_t i = 0; i < found.size(); ++i)
        if (is_working_set(*found[i].object)) {
            take(*found[i].object);
            std::rotate(found.begin(), found.begin() + static_cast<std::ptrdiff_t>(i),
                        found.begin() + static_cast<std::ptrdiff_t>(i) + 1);
        }
    if (!root)
        problems.push_back({Error::no_working_set, Iso::null_id, "", "The pool has no working set"});
}

void Preparation::number()
{
    const auto& found = collector.found;
    for (const Collector::Found& entry : found)
        objects.append(*entry.object);

    for (std::size_t i = 0; i < found.size(); ++i) {
        const Iso::Object_id id = found[i].own_id;
        if (id == Iso::null_id)
            continue;
        if (const VT_obj* const other = objects.find(id))
            fail(Error::duplicate_id, *found[i].object,
                 describe(*other) + " and " + describe(*found[i].object) + " have the same id");
        else
            objects.set_id(first_new + i, id);
    }

    Iso::Object_id next = 0;
    for (std::size_t i = 0; i < found.size(); ++i) {
        if (found[i].own_id != Iso::null_id)
            continue;
        while (next != Iso::null_id && objects.is_taken(next))
            ++next;
        VT_obj& object = *found[i].object;
        if (next == Iso::null_id)
            return fail(Error::too_many_objects, object, "There is no id left for " + describe(object));
        objects.set_id(first_new + i, next);
        object.set_pool(&pool, next);
    }
}

void Preparation::write_references()
{
    for (const auto& [object, kind, own_id] : collector.found) {
        for_each_link(*kind, *object, [](const VT_obj* target, Attribute_object_id_spec& attribute) {
            if (target)
                attribute = target->get_id();
        });
        if (Comp::Child_placements* const children = placements_of(*kind, *object)) {
            children->deref();
            list_of(*kind, *object) = {children->get(), static_cast<std::uint8_t>(children->size())};
        }
        if (kind->is_parent)
            static_cast<Parent_obj*>(object)->write_children();
        if (kind->links == Kind::Links::polygon)
            write_points(static_cast<Comp::Polygon_obj&>(*object));
    }
    for_each_reference_to_new([](const VT_obj& target, auto& attribute) { attribute = target.get_id(); });
    write_lists_of_members();
}

/// Calls `reference(target, attribute)` wherever an older object has come to refer to a new one, which had no id then.
/// Other references stay as they are now: the attribute may say something newer than the pointer beside it.
template <typename F>
void Preparation::for_each_reference_to_new(F&& reference)
{
    if (collector.found.empty())
        return;
    const auto check = [&](const VT_obj* target, auto& attribute) {
        if (target && objects.is_from(first_new, target->get_id()))
            reference(*target, attribute);
    };
    for (std::size_t place = 0; place < first_new; ++place) {
        if (!objects[place])
            continue;
        VT_obj& object = *objects[place];
        const Kind& kind = kinds.of(object);
        for_each_link(kind, object, check);
        if (Comp::Child_placements* const children = placements_of(kind, object))
            for (std::size_t i = 0; i < children->size(); ++i)
                check(children->placement(i).ref, children->get()[i].object_id);
    }
}

/// A mask may have been given more children since it was prepared.
void Preparation::write_lists_of_members()
{
    for (std::size_t place = 0; place < first_new; ++place)
        if (VT_obj* const object = objects[place]; object && kinds.of(*object).is_parent)
            static_cast<Parent_obj*>(object)->write_children();
}

void Preparation::specify(Specification& specification, const Object_specification*& current)
{
    for (const Collector::Found& entry : collector.found) {
        VT_obj& object = *entry.object;
        const Object_specification& values = specification.of(object);
        current = &values;
        object.lock();
        object.__set_by_spec(values); // what it refuses it reports
        object.unlock();
    }
    current = nullptr;
}

void Preparation::cancel()
{
    for_each_reference_to_new([](const VT_obj&, auto& attribute) { attribute = Iso::null_id; });
    for (const auto& [object, kind, own_id] : collector.found) {
        for_each_link(*kind, *object, [](const VT_obj* target, Attribute_object_id_spec& attribute) {
            if (target)
                attribute = Iso::null_id;
        });
        if (placements_of(*kind, *object))
            list_of(*kind, *object) = {nullptr, 0};
        if (kind->is_parent)
            static_cast<Object_list&>(static_cast<Parent_obj&>(*object)) = {nullptr, 0};
        object->set_pool(nullptr, own_id);
    }
    objects.cut(first_new);
    write_lists_of_members();
}

} // namespace VT
