#include "Records.h"

#include <gtest/gtest.h>

using namespace records;
using terminal::Object_pool;
using terminal::Pool_fault;

namespace {

Pool_fault parse(const Bytes& bytes)
{
    Object_pool pool;
    const Pool_fault fault = pool.parse(bytes);
    if (fault) {
        EXPECT_TRUE(pool.empty() && pool.id_end() == 0) << "a faulty pool leaves something behind";
    }
    return fault;
}

void expect_fault(const Bytes& bytes, std::uint16_t object, std::uint8_t code)
{
    const Pool_fault fault = parse(bytes);
    EXPECT_EQ(fault.parent, null_id);
    EXPECT_EQ(fault.object, object);
    EXPECT_EQ(fault.code, code);
}

} // namespace

TEST(PoolParser, TakesAnEmptyPool) { EXPECT_FALSE(parse({})); }

TEST(PoolParser, KeepsTheBytesAsTheyCame)
{
    Object_pool pool;
    ASSERT_FALSE(pool.parse(complete_pool()));
    EXPECT_EQ(bytes_of(pool), complete_pool());
    EXPECT_EQ(pool.size(), complete_pool().size());
    EXPECT_EQ(pool.id_end(), 51u);
}

TEST(PoolParser, TakesAPoolCutBetweenRecordsAndRefusesItCutAnywhereElse)
{
    const Bytes whole = complete_pool();
    Object_pool pool;
    ASSERT_FALSE(pool.parse(whole));
    std::vector<bool> is_border(whole.size() + 1);
    std::size_t border = 0;
    pool.for_each([&](terminal::Object object) {
        is_border[border] = true;
        border += object.size();
    });
    is_border[border] = true;
    ASSERT_EQ(border, whole.size());

    std::size_t last_border = 0;
    for (std::size_t length = 0; length <= whole.size(); ++length) {
        if (is_border[length])
            last_border = length;
        // A vector of exactly this length: reading beyond it is seen by the address sanitizer.
        const Pool_fault fault = parse(Bytes(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length)));
        ASSERT_EQ(static_cast<bool>(fault), !is_border[length]) << "at " << length;
        const bool names_id = length - last_border >= 2;
        if (fault) {
            ASSERT_EQ(fault.object, names_id ? Iso::read<std::uint16_t>(&whole[last_border]) : null_id);
        }
    }
}

TEST(PoolParser, NamesAnObjectOfAnUnknownType)
{
    for (const int type : {17, 18, 19, 29, 30, 100, 255})
        expect_fault(join(w(77), type, repeat(100, 0)), 77, Pool_fault::not_supported);
}

TEST(PoolParser, RefusesTheNullIdAsAnId) { expect_fault(pointer_to(null_id, 3), null_id, Pool_fault::other); }

TEST(PoolParser, NamesAnIdThatComesTwice)
{
    expect_fault(join(pointer_to(5, 6), pointer_to(6, 5), pointer_to(5, 7)), 5, Pool_fault::other);
}

TEST(PoolParser, RefusesCountsThatPromiseMoreThanThereIs)
{
    const auto other = Pool_fault::other;
    expect_fault(record(9, Type::container, w(1), w(1), 0, 255, 0, at(1, 0, 0)), 9, other);
    expect_fault(record(9, Type::container, w(1), w(1), 0, 0, 1), 9, other);
    expect_fault(record(9, Type::soft_key_mask, 0, 2, 0, w(1)), 9, other);
    expect_fault(record(9, Type::polygon, w(1), w(1), w(1), w(1), 0, 2, 0, w(1), w(1), w(1)), 9, other);
    expect_fault(record(9, Type::working_set, 0, 1, w(1), 0, 0, 1, "e"), 9, other);
    expect_fault(record(9, Type::string_variable, w(0xFFFF), repeat(0xFFFE, 'x')), 9, other);
    expect_fault(record(9, Type::macro, w(9), repeat(8, 0xFF)), 9, other);
    expect_fault(record(9, Type::input_string, w(1), w(1), 0, w(1), w(1), 0, w(1), 0, 255, repeat(254, 'x')), 9, other);
    expect_fault(record(9, Type::output_string, w(1), w(1), 0, w(1), 0, w(1), 0, w(3), "abc"), 9, other);
    expect_fault(record(9, Type::input_attributes, 0, 3, "abc"), 9, other);
}

TEST(PoolParser, RefusesPictureLengthsUpToTheLargestNumber)
{
    for (const std::uint32_t length : {5u, 0x7FFFFFFFu, 0x80000000u, 0xFFFFFFEFu, 0xFFFFFFF0u, 0xFFFFFFFFu}) {
        for (const int macros : {0, 255}) {
            expect_fault(record(9, Type::picture_graphic, w(1), w(1), w(1), 2, 0, 0, d(length), macros, repeat(4, 0)),
                         9, Pool_fault::other);
        }
    }
}

TEST(PoolParser, TakesTheLongestTextsAndLists)
{
    Bytes children;
    for (int i = 0; i < 255; ++i)
        append(children, at(1, 0, 0));
    Object_pool pool;
    ASSERT_FALSE(pool.parse(join(record(1, Type::string_variable, w(0xFFFF), repeat(0xFFFF, 'x')),
                                 record(2, Type::container, w(1), w(1), 0, 255, 255, children, repeat(510, 1)))));
    EXPECT_EQ(pool.find(1).text().size(), 0xFFFFu);
    EXPECT_EQ(pool.find(2).children().size(), 255u);
    EXPECT_EQ(pool.find(2).macros().size(), 255u);
    EXPECT_EQ(pool.find(2).macros()[254].macro, 1);
}

TEST(PoolParser, TakesEveryIdThereIs)
{
    Bytes bytes;
    for (unsigned id = 0; id < 65535; ++id)
        append(bytes, record(static_cast<std::uint16_t>(id), Type::number_variable, d(id)));
    Object_pool pool;
    ASSERT_FALSE(pool.parse(bytes));
    EXPECT_EQ(pool.find(0).u32(terminal::Field::value), 0u);
    EXPECT_EQ(pool.find(65534).u32(terminal::Field::value), 65534u);
    EXPECT_FALSE(pool.find(null_id));
    EXPECT_EQ(bytes_of(pool), bytes);
}

TEST(PoolParser, KeepsTheOthersOfAnOlderPool)
{
    Object_pool older;
    Object_pool newer;
    ASSERT_FALSE(older.parse(join(text(1, "one"), text(2, "two"), text(300, "far"))));
    ASSERT_FALSE(newer.parse(join(text(2, "new and longer"), text(4, "four"))));
    newer.keep_others_of(older);
    EXPECT_EQ(bytes_of(newer), join(text(1, "one"), text(2, "new and longer"), text(4, "four"), text(300, "far")));
    EXPECT_EQ(newer.size(), bytes_of(newer).size()) << "the replaced record takes room no longer";
}
