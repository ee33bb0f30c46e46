#include "vtui/comp/objects/Container_obj.h"
#include "vtui/comp/objects/Dimension.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <type_traits>

using VT::Comp::centred;
using VT::Comp::Dimension;
using VT::Comp::Point;

namespace {

template <typename T>
std::uint32_t word_of(T value)
{
    static_assert(std::is_trivially_copyable_v<T>);
    std::uint32_t word;
    static_assert(sizeof word == sizeof value);
    std::memcpy(&word, &value, sizeof word);
    return word;
}

TEST(Dimension, IsOneWordWithTheWidthInItsLowHalf)
{
    EXPECT_EQ(word_of(Dimension(0x1234, 0xABCD)), 0xABCD1234U);
    EXPECT_EQ(word_of(Dimension()), 0U);
}

TEST(Point, IsOneWordWithXInItsLowHalf)
{
    EXPECT_EQ(word_of(Point(0x1234, -1)), 0xFFFF1234U);
    EXPECT_EQ(word_of(Point()), 0U);
}

TEST(Dimension, OfAnObjectIsItsArea)
{
    VT::Comp::Container_obj object;
    object.height = std::uint16_t{20};
    EXPECT_EQ(size_of(object).width, 240);
    EXPECT_EQ(size_of(object).height, 20);
}

TEST(Centring, HalvesTheRoomThatIsLeft)
{
    EXPECT_EQ(centred(100, 40), 30);
    EXPECT_EQ(centred(100, 41), 29) << "59 / 2";
    EXPECT_EQ(centred(100, 100), 0);
}

TEST(Centring, OfWhatIsTooLargeRoundsTowardsZero)
{
    EXPECT_EQ(centred(100, 120), -10);
    EXPECT_EQ(centred(100, 121), -10) << "-21 / 2";
    EXPECT_EQ(centred(100, 101), 0) << "-1 / 2";
}

TEST(Centring, HasRoomForAllSizes)
{
    EXPECT_EQ(centred(65535, 0), 32767);
    EXPECT_EQ(centred(0, 65535), -32767);
}

} // namespace
