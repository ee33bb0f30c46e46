#include "tests/Virtual_slot.h"
#include "vtui/comp/objects/Array_array.h"

#include <gtest/gtest.h>

#include <type_traits>
#include <vector>

namespace {

std::vector<int> destroyed;

struct Element
{
    ~Element() { destroyed.push_back(number); }
    int number{0};
};

template <template <typename> class Array_type>
std::size_t capacity()
{
    return Array_type<int>().size();
}

TEST(ArrayArray, HasAsManyElementsAsItsNameSays)
{
    EXPECT_EQ(capacity<Array_array_1>(), 1U);
    EXPECT_EQ(capacity<Array_array_2>(), 2U);
    EXPECT_EQ(capacity<Array_array_3>(), 3U);
    EXPECT_EQ(capacity<Array_array_4>(), 4U);
    EXPECT_EQ(capacity<Array_array_8>(), 8U);
    EXPECT_EQ((Array_array<int, 15>().size()), 15U);
    EXPECT_TRUE((std::is_base_of_v<Array_array<int, 4>, Array_array_4<int>>));
}

TEST(ArrayArray, HoldsItsElementsInItselfSideBySide)
{
    Array_array_4<int> array;
    EXPECT_EQ(&array[3] - &array[0], 3);
    const auto* const first = reinterpret_cast<const char*>(&array);
    const auto* const last = reinterpret_cast<const char*>(&array[3]);
    EXPECT_GT(last, first);
    EXPECT_LT(last, first + sizeof array);
    array[2] = 5;
    EXPECT_EQ(array[2], 5);
}

TEST(ArrayArray, StartsWithZeroes)
{
    Array_array_3<int> array;
    EXPECT_EQ(array[0], 0);
    EXPECT_EQ(array[2], 0);
}

TEST(ArrayArray, DestroysItsElementsFromTheLastToTheFirst)
{
    destroyed.clear();
    {
        Array_array_3<Element> array;
        for (int i = 0; i < 3; ++i)
            array[static_cast<std::size_t>(i)].number = i;
    }
    EXPECT_EQ(destroyed, (std::vector<int>{2, 1, 0}));
}

TEST(ArrayArray, HasItsVirtualOperationsBehindTheTwoDestructors)
{
    EXPECT_TRUE(std::has_virtual_destructor_v<Array_array_4<int>>);
    EXPECT_EQ(virtual_slot(&Array_array_4<int>::size), 2U);
    EXPECT_EQ(virtual_slot(&Array_array_4<int>::operator[]), 3U);
}

} // namespace
