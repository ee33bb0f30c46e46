#include "pool/Preparation.h"

#include "pool/Names.h"

#include <algorithm>
#include <mutex>
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
    write_references_to_new();
    write_lists_of_members();
}

/// Where an older object has come to refer to a new one, which had no id then. Other references stay as they are now:
/// the attribute may say something newer than the pointer beside it.
void Preparation::write_references_to_new()
{
    if (collector.found.empty())
        return;
    const auto write = [&](const VT_obj* target, Attribute_uint16& attribute) {
        if (!target || !objects.is_from(first_new, target->get_id()))
            return;
        rewritten.push_back({&attribute, attribute});
        attribute = target->get_id();
    };
    for (std::size_t place = 0; place < first_new; ++place) {
        if (!objects[place])
            continue;
        VT_obj& object = *objects[place];
        const Kind& kind = kinds.of(object);
        for_each_link(kind, object, write);
        if (Comp::Child_placements* const children = placements_of(kind, object))
            for (std::size_t i = 0; i < children->size(); ++i)
                write(children->placement(i).ref, children->get()[i].object_id);
    }
}

/// A mask may have been given more children since it was prepared.
void Preparation::write_lists_of_members()
{
    for (std::size_t place = 0; place < first_new; ++place) {
        VT_obj* const object = objects[place];
        if (!object || !kinds.of(*object).is_parent)
            continue;
        auto& parent = static_cast<Parent_obj&>(*object);
        const std::uint8_t before = parent.num_objects;
        parent.write_children();
        if (parent.num_objects > before)
            late.push_back({parent.objects + before, std::size_t{parent.num_objects} - before});
    }
}

void Preparation::specify(Specification& specification, const Object_specification*& current)
{
    for (const Collector::Found& entry : collector.found) {
        VT_obj& object = *entry.object;
        const Object_specification& values = specification.of(object);
        current = &values;
        const std::lock_guard hold(object);
        object.__set_by_spec(values); // what it refuses it reports
    }
    current = nullptr;
}

void Preparation::cancel()
{
    for (const auto& [attribute, id] : rewritten)
        *attribute = id;
    for (const auto& [object, kind, own_id] : collector.found) {
        for_each_link(*kind, *object, [](const VT_obj* target, Attribute_object_id_spec& attribute) {
            if (target)
                attribute = Iso::null_id;
        });
        clear_lists(*kind, *object);
        object->set_pool(nullptr, own_id);
    }
    objects.cut(first_new);
    write_lists_of_members(); // without the new children, which are strangers again
}

} // namespace VT
