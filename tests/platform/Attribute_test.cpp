#include "vt/Attribute.h"
#include "vt/Resolve_colour.h"

#include <gtest/gtest.h>

#include <limits>
#include <sstream>
#include <string>
#include <type_traits>

namespace {

/// Counts how often it is flushed.
class Flush_counter : public std::stringbuf
{
  public:
    int flushes{0};

  protected:
    int sync() override
    {
        ++flushes;
        return 0;
    }
};

template <typename A>
std::string printed(const A& attribute, unsigned indent)
{
    std::ostringstream out;
    attribute.print(out, indent, "name");
    return out.str();
}

TEST(Attribute, HasNotChangedAtFirst)
{
    const VT::Attribute_uint16 attribute{240};
    EXPECT_EQ(attribute, 240);
    EXPECT_FALSE(attribute.changed());
}

TEST(Attribute, StartsAtZeroUnlessAValueIsGiven)
{
    EXPECT_EQ(VT::Attribute_uint8{}, 0);
    EXPECT_EQ(VT::Attribute_int32{}, 0);
    EXPECT_EQ(VT::Attribute_real{}, 0.0F);
}

TEST(Attribute, AnotherValueIsAChange)
{
    VT::Attribute_int16 attribute{-5};
    attribute = std::int16_t{5};
    EXPECT_EQ(attribute, 5);
    EXPECT_TRUE(attribute.changed());
}

TEST(Attribute, TheSameValueIsNoChange)
{
    VT::Attribute_uint32 attribute{7};
    attribute = 7U;
    EXPECT_FALSE(attribute.changed());
}

TEST(Attribute, StaysChangedUntilTheTerminalHasBeenTold)
{
    VT::Attribute_uint8 attribute{1};
    attribute = std::uint8_t{2};
    attribute = std::uint8_t{2};
    EXPECT_TRUE(attribute.changed());
    attribute.set_told();
    EXPECT_FALSE(attribute.changed());
    EXPECT_EQ(attribute, 2);
    attribute = std::uint8_t{3};
    EXPECT_TRUE(attribute.changed());
}

TEST(Attribute, AssigningAnAttributeTakesItsValueAndRecordsTheChange)
{
    const VT::Attribute_real other{2.5F};
    VT::Attribute_real attribute{1.0F};
    attribute = other;
    EXPECT_EQ(attribute, 2.5F);
    EXPECT_TRUE(attribute.changed());

    VT::Attribute_real same{2.5F};
    same = attribute;
    EXPECT_FALSE(same.changed()) << "the other one's change is not taken over";
}

TEST(Attribute, HoldsTheWholeRangeOfItsType)
{
    VT::Attribute_int32 low{};
    low = std::numeric_limits<std::int32_t>::min();
    EXPECT_EQ(low, std::numeric_limits<std::int32_t>::min());
    VT::Attribute_uint32 high{};
    high = std::numeric_limits<std::uint32_t>::max();
    EXPECT_EQ(high, std::numeric_limits<std::uint32_t>::max());
}

TEST(Attribute, HasTheTypeThatItsNameSays)
{
    const auto holds = [](auto attribute, auto value) {
        return std::is_same_v<decltype(attribute), VT::Attribute<decltype(value)>>;
    };
    EXPECT_TRUE(holds(VT::Attribute_uint8{}, std::uint8_t{}));
    EXPECT_TRUE(holds(VT::Attribute_uint16{}, std::uint16_t{}));
    EXPECT_TRUE(holds(VT::Attribute_int16{}, std::int16_t{}));
    EXPECT_TRUE(holds(VT::Attribute_uint32{}, std::uint32_t{}));
    EXPECT_TRUE(holds(VT::Attribute_int32{}, std::int32_t{}));
    EXPECT_TRUE(holds(VT::Attribute_real{}, float{}));
}

TEST(AttributeDump, IsOneLineOfTypeAndNameIndentedByTwoSpacesALevel)
{
    EXPECT_EQ(printed(VT::Attribute_uint16{240}, 0), "Type: 1\tName: name\n");
    EXPECT_EQ(printed(VT::Attribute_uint16{240}, 1), "  Type: 1\tName: name\n");
    EXPECT_EQ(printed(VT::Attribute_uint16{240}, 3), "      Type: 1\tName: name\n");
}

TEST(AttributeDump, NumbersTheTypes)
{
    EXPECT_EQ(printed(VT::Attribute_uint8{}, 0), "Type: 0\tName: name\n");
    EXPECT_EQ(printed(VT::Attribute_uint16{}, 0), "Type: 1\tName: name\n");
    EXPECT_EQ(printed(VT::Attribute_int16{}, 0), "Type: 2\tName: name\n");
    EXPECT_EQ(printed(VT::Attribute_uint32{}, 0), "Type: 3\tName: name\n");
    EXPECT_EQ(printed(VT::Attribute_int32{}, 0), "Type: 4\tName: name\n");
    EXPECT_EQ(printed(VT::Attribute_real{}, 0), "Type: 5\tName: name\n");
    EXPECT_EQ(printed(VT::Attribute_object_id_spec{}, 0), "Type: 6\tName: name\n") << "an id is no plain number";
    EXPECT_EQ(printed(VT::Attribute_colour(nullptr, 7), 0), "Type: 7\tName: name\n");
    EXPECT_EQ(printed(VT::Attribute_string(nullptr, 0), 0), "Type: 8\tName: name\n");
}

TEST(AttributeDump, FlushesTheStream)
{
    Flush_counter buffer;
    std::ostream out(&buffer);
    VT::Attribute_uint8{}.print(out, 2, "hidden");
    EXPECT_EQ(buffer.flushes, 1);
}

TEST(AttributeDump, ANullNameLeavesTheStreamFailedAndPrintsNothingMore)
{
    Flush_counter buffer;
    std::ostream out(&buffer);
    VT::Attribute_uint8{}.print(out, 1, nullptr);
    EXPECT_TRUE(out.fail());
    EXPECT_EQ(buffer.str(), "  Type: 0\tName: ");
    VT::Attribute_uint8{}.print(out, 1, "next");
    EXPECT_EQ(buffer.str(), "  Type: 0\tName: ") << "a failed stream stays silent";
}

TEST(AttributeDump, APointShowsItsCoordinatesOneLevelDeeper)
{
    std::ostringstream out;
    VT::Attribute_point{}.print(out, 1);
    EXPECT_EQ(out.str(), "  Type: 9\tName: point\n"
                         "    Type: 1\tName: point_x\n"
                         "    Type: 1\tName: point_y\n");
}

TEST(AttributeDump, APlacementShowsItsChildAndItsPositionOneLevelDeeper)
{
    std::ostringstream out;
    VT::Attribute_object_placement{}.print(out, 1);
    EXPECT_EQ(out.str(), "  Type: 10\tName: object_placement\n"
                         "    Type: 1\tName: object_id\n"
                         "    Type: 2\tName: x\n"
                         "    Type: 2\tName: y\n");
}

TEST(AttributeObjectId, IsNullUntilItIsSet)
{
    const VT::Attribute_object_id_spec reference;
    EXPECT_EQ(reference, 0xFFFF);
    EXPECT_FALSE(reference.changed());
}

TEST(AttributePlacement, NamesNoChildAndLiesAtTheOriginAtFirst)
{
    const VT::Attribute_object_placement placement;
    EXPECT_EQ(placement.object_id, 0xFFFF);
    EXPECT_EQ(placement.x, 0);
    EXPECT_EQ(placement.y, 0);
    EXPECT_FALSE(placement.changed());
}

TEST(AttributePlacement, HasChangedWhenAnyOfItsAttributesHas)
{
    VT::Attribute_object_placement child;
    child.object_id = std::uint16_t{1};
    EXPECT_TRUE(child.changed());
    VT::Attribute_object_placement across;
    across.x = std::int16_t{-1};
    EXPECT_TRUE(across.changed());
    VT::Attribute_object_placement down;
    down.y = std::int16_t{1};
    EXPECT_TRUE(down.changed());
}

TEST(AttributePoint, HasChangedWhenEitherCoordinateHas)
{
    VT::Attribute_point point;
    EXPECT_FALSE(point.changed());
    point.x = std::uint16_t{1};
    EXPECT_TRUE(point.changed());
    VT::Attribute_point other;
    other.y = std::uint16_t{1};
    EXPECT_TRUE(other.changed());
}

TEST(AttributeString, EndsAtTheFirstNulOrWithTheCapacity)
{
    char text[] = "abcd";
    EXPECT_EQ(VT::Attribute_string(text, 4).num_chars(), 4);
    EXPECT_EQ(VT::Attribute_string(text, 3).num_chars(), 3);
    text[1] = '\0';
    EXPECT_EQ(VT::Attribute_string(text, 4).num_chars(), 1);
}

TEST(AttributeString, WithoutABufferHasNoCharacters)
{
    const VT::Attribute_string none(nullptr, 0);
    EXPECT_EQ(none.num_chars(), 0);
    EXPECT_STREQ(none.text(), "");
}

TEST(AttributeString, RemembersAChangeUntilTheTerminalHasBeenTold)
{
    char text[] = "a";
    VT::Attribute_string string(text, 1);
    EXPECT_FALSE(string.changed());
    string.set_changed();
    EXPECT_TRUE(string.changed());
    string.set_told();
    EXPECT_FALSE(string.changed());
}

} // namespace
