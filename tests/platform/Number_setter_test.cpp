#include "tests/Bytes.h"
#include "tests/Fake_pool.h"
#include "tests/platform/Objects.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

constexpr float infinity = std::numeric_limits<float>::infinity();

/// Change Attribute of the object 0x0102.
Bytes message(int attribute, const Bytes& value) { return frame(0xAF, w(0x0102), attribute, value); }

/// A pool that has a number of a test under the id 0x0102, told all of it.
class NumberSetter : public ::testing::Test
{
  protected:
    NumberSetter()
    {
        for (VT::Number_field_obj* const number :
             {static_cast<VT::Number_field_obj*>(&output), static_cast<VT::Number_field_obj*>(&input)})
            pool.take(*number, 0x0102);
    }

    Messages news() { return std::exchange(pool.sent, {}); }

    Fake_pool pool;
    VT::Output_number_obj output = objects::output_number();
    VT::Input_number_obj input = objects::input_number();
};

TEST_F(NumberSetter, SendsTheFormatOfAnOutputNumber)
{
    pool.live = true;
    output.set_offset(-100);
    output.set_scale(0.25F);
    output.set_number_of_decimals(7);
    EXPECT_EQ(news(), (Messages{message(7, {0x9C, 0xFF, 0xFF, 0xFF}), //
                                message(8, {0x00, 0x00, 0x80, 0x3E}), //
                                message(9, {0x07, 0x00, 0x00, 0x00})}));
    EXPECT_EQ(output.offset, -100);
    EXPECT_EQ(output.scale, 0.25F);
    EXPECT_EQ(output.number_of_decimals, 7);
    EXPECT_FALSE(output.is_changed());
}

TEST_F(NumberSetter, SendsTheFormatAndTheLimitsOfAnInputNumber)
{
    pool.live = true;
    input.set_min_value(0x01020304);
    input.set_max_value(0xFFFFFFFE);
    input.set_offset(std::numeric_limits<std::int32_t>::min());
    input.set_scale(-1.5F);
    input.set_number_of_decimals(3);
    EXPECT_EQ(news(), (Messages{message(7, {0x04, 0x03, 0x02, 0x01}),  //
                                message(8, {0xFE, 0xFF, 0xFF, 0xFF}),  //
                                message(9, {0x00, 0x00, 0x00, 0x80}),  //
                                message(10, {0x00, 0x00, 0xC0, 0xBF}), //
                                message(11, {0x03, 0x00, 0x00, 0x00})}));
    EXPECT_EQ(input.min_value, 0x01020304U);
    EXPECT_EQ(input.max_value, 0xFFFFFFFEU);
    EXPECT_EQ(input.offset, std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(input.scale, -1.5F);
    EXPECT_EQ(input.number_of_decimals, 3);
    EXPECT_FALSE(input.is_changed());
}

TEST_F(NumberSetter, SendsNothingThatTheTerminalHas)
{
    pool.live = true;
    input.set_min_value(10);
    input.set_max_value(2000);
    input.set_offset(-5);
    input.set_scale(0.5F);
    input.set_number_of_decimals(2);
    EXPECT_TRUE(news().empty()) << "the values it was built with";
    input.set_max_value(7);
    EXPECT_EQ(news(), (Messages{message(8, d(7))}));
    input.set_max_value(7);
    EXPECT_TRUE(news().empty());
    input.set_max_value(2000);
    EXPECT_EQ(news(), (Messages{message(8, d(2000))}));
}

TEST_F(NumberSetter, KeepsWhatItCannotSendYet)
{
    input.set_min_value(11);
    output.set_offset(-6);
    EXPECT_TRUE(news().empty());
    EXPECT_EQ(input.min_value, 11U);
    EXPECT_EQ(output.offset, -6);
    EXPECT_TRUE(input.is_changed());
    EXPECT_TRUE(output.is_changed());

    pool.live = true;
    input.set_min_value(11);
    output.set_offset(-6);
    EXPECT_EQ(news(), (Messages{message(7, d(11)), message(7, d(-6))})) << "the terminal has not been told";
    EXPECT_FALSE(input.is_changed());
    EXPECT_FALSE(output.is_changed());
}

TEST_F(NumberSetter, SendsNothingThatAnUploadHasTold)
{
    input.set_max_value(11);
    input.set_scale(2);
    pool.live = true;
    input.upload(true);
    input.set_max_value(11);
    input.set_scale(2);
    EXPECT_TRUE(news().empty());
    EXPECT_FALSE(input.is_changed());
}

TEST_F(NumberSetter, SendsTheBitsOfAnyScale)
{
    pool.live = true;
    output.set_scale(0.1F);
    output.set_scale(infinity);
    output.set_scale(0);
    EXPECT_EQ(news(), (Messages{message(8, {0xCD, 0xCC, 0xCC, 0x3D}), //
                                message(8, {0x00, 0x00, 0x80, 0x7F}), //
                                message(8, {0x00, 0x00, 0x00, 0x00})}));
    output.set_scale(std::nanf(""));
    output.set_scale(std::nanf(""));
    EXPECT_EQ(news().size(), 2U) << "what is no number differs from itself";
}

TEST_F(NumberSetter, SendsAReferenceOnlyIfTheTerminalHasAnother)
{
    pool.live = true;
    output.set_font_attributes(21);
    output.set_variable_reference(22);
    EXPECT_TRUE(news().empty());
    output.set_font_attributes(23);
    EXPECT_EQ(news(), (Messages{message(4, d(23))}));
}

TEST_F(NumberSetter, SendsAValueAlways)
{
    pool.live = true;
    output.set_value(1234);
    EXPECT_EQ(news(), (Messages{frame(0xA8, w(0x0102), 0xFF, d(1234))}));
}

TEST(Attribute, IsCarriedSignExtendedOrAsTheBitsOfItsFloat)
{
    EXPECT_EQ(VT::Attribute_uint8(std::uint8_t{0xFE}).bits(), 0xFEU);
    EXPECT_EQ(VT::Attribute_uint16(std::uint16_t{0xFEDC}).bits(), 0xFEDCU);
    EXPECT_EQ(VT::Attribute_int16(std::int16_t{-2}).bits(), 0xFFFFFFFEU);
    EXPECT_EQ(VT::Attribute_uint32(0xFEDCBA98U).bits(), 0xFEDCBA98U);
    EXPECT_EQ(VT::Attribute_int32(-2).bits(), 0xFFFFFFFEU);
    EXPECT_EQ(VT::Attribute_real(-0.0F).bits(), 0x80000000U);
    EXPECT_EQ(VT::Attribute_real(1.0F).bits(), 0x3F800000U);
}

TEST(VtObject, IsChangedByAnythingInItsRecord)
{
    VT::Attribute_object_placement child;
    auto container = objects::container(&child, 1);
    EXPECT_FALSE(container.is_changed());
    child.y = std::int16_t{3};
    EXPECT_TRUE(container.is_changed());
    child.y.set_told();
    container.width = std::uint16_t{240};
    EXPECT_FALSE(container.is_changed()) << "the width it had";
    container.width = std::uint16_t{241};
    EXPECT_TRUE(container.is_changed());
}

TEST(StringVariable, ReservesItsLengthWhateverItsText)
{
    char text[] = "ab\0\0";
    const auto variable = objects::string_variable(text, 4);
    EXPECT_EQ(variable.get_length(), 4);
    EXPECT_EQ(variable.num_chars(), 2);
}

} // namespace
