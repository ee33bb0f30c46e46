#include "Records.h"

#include "terminal/Nesting.h"

#include <gtest/gtest.h>

#include <string>

using namespace records;
using terminal::Nesting;
using terminal::Object_pool;
using terminal::Pool_fault;

namespace {

Pool_fault measure(const Bytes& bytes)
{
    Object_pool pool;
    EXPECT_FALSE(pool.parse(bytes));
    return Nesting().measure(pool);
}

void expect(const Pool_fault& fault, std::uint16_t parent, std::uint16_t object, std::uint8_t code = Pool_fault::other)
{
    EXPECT_EQ(fault.parent, parent);
    EXPECT_EQ(fault.object, object);
    EXPECT_EQ(fault.code, code);
}

/// A parent of that type with id 60 and one child or item; the rest is the complete pool.
Bytes parent_of(Type type, std::uint16_t child)
{
    switch (type) {
    case Type::working_set:
        return record(60, type, 0, 1, w(data_mask), 1, 0, 0, at(child, 0, 0));
    case Type::data_mask:
        return mask_of(60, {child});
    case Type::alarm_mask:
        return record(60, type, 0, w(null_id), 0, 0, 1, 0, at(child, 0, 0));
    case Type::container:
        return container_of(60, {child});
    case Type::soft_key_mask:
        return record(60, type, 0, 1, 0, w(child));
    case Type::key:
        return record(60, type, 0, 0, 1, 0, at(child, 0, 0));
    case Type::button:
        return record(60, type, w(1), w(1), 0, 0, 0, 0, 1, 0, at(child, 0, 0));
    default:
        return record(60, Type::input_list, w(1), w(1), w(null_id), 0, 1, 0, 0, w(child));
    }
}

constexpr Type parents[] = {Type::working_set,   Type::data_mask, Type::alarm_mask, Type::container,
                            Type::soft_key_mask, Type::key,       Type::button,     Type::input_list};
constexpr Id drawings[] = {container, output_string, output_number, line, rectangle, ellipse, polygon, picture};
constexpr Id controls[] = {button, input_boolean, input_string, input_number, input_list};
constexpr Id never_children[] = {working_set,     data_mask,       alarm_mask,      soft_key_mask,   font,
                                 line_attributes, fill_attributes, number_variable, string_variable, macro,
                                 input_attributes};

bool takes_drawings(Type type) { return type != Type::soft_key_mask; }
bool takes_controls(Type type)
{
    return type == Type::data_mask || type == Type::alarm_mask || type == Type::container;
}

/// Whether the parent takes the child as it is, through a pointer, and through a pointer to a pointer.
void expect_taken(Type parent, Id child, bool taken)
{
    const Bytes direct = join(complete_pool(), parent_of(parent, child));
    const Bytes indirect = join(complete_pool(), parent_of(parent, 61), pointer_to(61, child));
    const Bytes twice = join(complete_pool(), parent_of(parent, 61), pointer_to(61, 62), pointer_to(62, child));
    SCOPED_TRACE("type " + std::to_string(static_cast<int>(parent)) + " with child " + std::to_string(child));
    if (taken) {
        EXPECT_FALSE(measure(direct));
        EXPECT_FALSE(measure(indirect));
        EXPECT_FALSE(measure(twice));
    } else {
        expect(measure(direct), 60, child);
        expect(measure(indirect), 60, 61);
        expect(measure(twice), 60, 61);
    }
}

/// Containers from 1000 on, each with the next one in it twice, down to an empty one.
Bytes doubling_tower(unsigned levels)
{
    Bytes bytes;
    for (unsigned i = 0; i < levels; ++i) {
        const auto id = static_cast<std::uint16_t>(1000 + i);
        const auto inner = static_cast<std::uint16_t>(id + 1);
        append(bytes, i + 1 == levels ? container_of(id, {}) : container_of(id, {inner, inner}));
    }
    return bytes;
}

/// Containers one in the other. `step` is the way from an id to that of the next container inside.
Bytes chain(unsigned length, int first, int step)
{
    Bytes bytes;
    int id = first;
    for (unsigned i = 0; i + 1 < length; ++i, id += step)
        append(bytes, container_of(static_cast<std::uint16_t>(id), {static_cast<std::uint16_t>(id + step)}));
    append(bytes, container_of(static_cast<std::uint16_t>(id), {}));
    return bytes;
}

} // namespace

TEST(Nesting, TakesTheCompletePool) { EXPECT_FALSE(measure(complete_pool())); }

TEST(Nesting, KnowsWhichChildEachParentTakes)
{
    for (const Type parent : parents) {
        for (const Id child : drawings)
            expect_taken(parent, child, takes_drawings(parent));
        for (const Id child : controls)
            expect_taken(parent, child, takes_controls(parent));
        expect_taken(parent, key, parent == Type::soft_key_mask);
        EXPECT_FALSE(measure(join(complete_pool(), parent_of(parent, null_id))));
        EXPECT_FALSE(measure(join(complete_pool(), parent_of(parent, 61), pointer_to(61, null_id))));
        for (const Id child : never_children)
            expect(measure(join(complete_pool(), parent_of(parent, child))), 60, child);
    }
}

TEST(Nesting, FindsControlsDeepInsideKeysButtonsAndLists)
{
    for (const Type parent : parents) {
        for (const Id child : controls) {
            if (!takes_drawings(parent))
                continue;
            const Bytes deep = join(complete_pool(), parent_of(parent, 61), container_of(61, {output_string, 62}),
                                    pointer_to(62, 63), container_of(63, {child}));
            if (takes_controls(parent)) {
                EXPECT_FALSE(measure(deep));
            } else
                expect(measure(deep), 60, 61);
        }
    }
}

TEST(Nesting, FindsControlsInHiddenContainersToo)
{
    const Bytes hidden = record(61, Type::container, w(1), w(1), 1, 1, 0, at(input_number, 0, 0));
    expect(measure(join(complete_pool(), parent_of(Type::button, 61), hidden)), 60, 61);
}

TEST(Nesting, NamesTheParentOfAMissingChild)
{
    expect(measure(container_of(7, {8})), 7, 8, Pool_fault::missing_object);
    expect(measure(join(mask_of(1, {7}), container_of(7, {9, 8}), container_of(9, {}))), 7, 8,
           Pool_fault::missing_object);
    expect(measure(pointer_to(7, 8)), 7, 8, Pool_fault::missing_object);
    expect(measure(record(7, Type::soft_key_mask, 0, 1, 0, w(8))), 7, 8, Pool_fault::missing_object);
}

TEST(Nesting, RefusesLoops)
{
    expect(measure(container_of(7, {7})), 7, 7);
    expect(measure(pointer_to(7, 7)), 7, 7);
    expect(measure(join(container_of(7, {8}), container_of(8, {7}))), 8, 7);
    expect(measure(join(pointer_to(7, 8), pointer_to(8, 7))), 8, 7);
    expect(measure(join(container_of(7, {8}), pointer_to(8, 7))), 8, 7);
    expect(measure(join(mask_of(1, {7}), container_of(7, {9, 8}), pointer_to(8, 10), container_of(9, {}),
                        container_of(10, {9, 7}))),
           10, 7);
}

TEST(Nesting, RefusesLongLoops)
{
    for (const unsigned length : {63u, 64u, 65u, 1000u, 65000u}) {
        Bytes bytes;
        for (unsigned i = 0; i < length; ++i) {
            const auto inner = static_cast<std::uint16_t>((i + 1) % length);
            append(bytes, i % 2 ? pointer_to(static_cast<std::uint16_t>(i), inner)
                                : container_of(static_cast<std::uint16_t>(i), {inner}));
        }
        EXPECT_EQ(measure(bytes).code, Pool_fault::other) << length;
    }
}

TEST(Nesting, TakesTheSameChildManyTimes)
{
    EXPECT_FALSE(measure(join(container_of(7, {8, 8, 8}), container_of(8, {9, 9}), container_of(9, {}))));
}

TEST(Nesting, TakesSixtyFourLevelsAndNotOneMore)
{
    // Outermost first, and innermost first, so that depth is found on the way down as well as on the way back.
    EXPECT_FALSE(measure(chain(64, 100, 1)));
    EXPECT_FALSE(measure(chain(64, 5000, -1)));
    expect(measure(chain(65, 100, 1)), 163, 164);
    expect(measure(chain(65, 5000, -1)), 5000, 4999);
    EXPECT_TRUE(measure(chain(60000, 0, 1)));
    EXPECT_TRUE(measure(chain(60000, 60000, -1)));
}

TEST(Nesting, TakesAMillionDrawnObjectsAndNotMore)
{
    EXPECT_FALSE(measure(doubling_tower(19))); // 524287 drawn
    expect(measure(doubling_tower(20)), 1000, 1001);
    EXPECT_TRUE(measure(doubling_tower(60)));
    // 15 × 256 + 143 + 1 = 3984, and 251 × 3984 + 15 + 1 = a million.
    const Bytes inside =
        join(record(9, Type::rectangle, w(null_id), w(1), w(1), 0, w(null_id), 0),
             container_of(11, std::vector<std::uint16_t>(255, 9)), container_of(12, std::vector<std::uint16_t>(142, 9)),
             container_of(13, std::vector<std::uint16_t>(14, 9)));
    std::vector<std::uint16_t> blocks(15, 11);
    blocks.push_back(12);
    std::vector<std::uint16_t> outermost(251, 10);
    outermost.push_back(13);
    EXPECT_FALSE(measure(join(inside, container_of(10, blocks), container_of(7, outermost))));
    outermost.push_back(9);
    expect(measure(join(inside, container_of(10, blocks), container_of(7, outermost))), 7, 9);
}

TEST(Nesting, TakesAPoolOfEveryId)
{
    // A tree of 255 children a parent over all 65535 ids.
    Bytes bytes;
    for (unsigned id = 0; id < 65535; ++id) {
        std::vector<std::uint16_t> children;
        for (unsigned child = id * 255 + 1; child <= id * 255 + 255 && child < 65535; ++child)
            children.push_back(static_cast<std::uint16_t>(child));
        append(bytes, container_of(static_cast<std::uint16_t>(id), children));
    }
    EXPECT_FALSE(measure(bytes));
}
