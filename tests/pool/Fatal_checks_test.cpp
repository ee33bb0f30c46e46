// What ends the process while a pool is prepared, with the whole message.

#include "tests/Death.h"
#include "tests/pool/Screen.h"
#include "vtui/comp/objects/Container_obj.h"
#include "vtui/comp/objects/Fill_attributes_obj.h"
#include "vtui/comp/objects/Key_obj.h"
#include "vtui/comp/objects/Output_string_obj.h"
#include "vtui/comp/objects/String_variable_obj.h"

#include <gtest/gtest.h>

namespace {

template <class... Objects>
void prepare(Objects&... objects)
{
    Screen screen;
    (screen.pool.add(objects), ...);
    static_cast<void>(screen.pool.prepare());
}

constexpr int failure = 255;

} // namespace

using testing::ExitedWithCode;
using testing::KilledBySignal;

TEST(PoolFatalCheckDeathTest, KeyWithoutACode)
{
    C::Key_obj key;
    key.set_name("stop");
    key.key_code = 0;
    EXPECT_EXIT(prepare(key), ExitedWithCode(failure), "^FATAL ERROR!  Key 'stop' has a key code of 0\n$");
}

TEST(PoolFatalCheckDeathTest, OutputStringWithAValueBesideItsVariable)
{
    C::String_variable_obj<4> variable;
    C::Output_string_obj string;
    string.set_name("unit");
    string.set_variable(&variable);
    string.length = 1;
    EXPECT_EXIT(prepare(string), ExitedWithCode(failure),
                "^FATAL ERROR!  The Output_string 'unit' has a non-NULL variable reference but specifies a non-zero "
                "length\\.\n$");
}

TEST(PoolFatalCheckDeathTest, OutputStringWhoseVariableIsNone)
{
    C::Output_string_obj string;
    string.set_name("unit");
    string.variable_reference = 1; // the mask
    EXPECT_EXIT(prepare(string), ExitedWithCode(failure),
                "^FATAL ERROR!  The variable referenced by 'unit' is not a String Variable\\.\n$");
}

TEST(PoolFatalCheckDeathTest, FillWithATypeThatDoesNotFitItsPattern)
{
    C::Fill_attributes_obj without(3, 0);
    without.set_name("hatch");
    constexpr const char* message =
        "^FATAL ERROR!  Fill_attribute 'hatch' can only have fill type of '3' with a valid fill pattern\n$";
    EXPECT_EXIT(prepare(without), ExitedWithCode(failure), message);

    const std::uint8_t pixels[8]{};
    C::Picture_graphic_obj picture(8, 8, 8, 0, 0, 0, sizeof pixels, pixels);
    C::Fill_attributes_obj plain(2, 0);
    plain.set_name("hatch");
    plain.set_pattern(&picture);
    EXPECT_EXIT(prepare(plain), ExitedWithCode(failure), message);
}

TEST(PoolFatalCheckDeathTest, FillWhosePatternIsNoPicture)
{
    C::Fill_attributes_obj fill(3, 0);
    fill.set_name("hatch");
    fill.fill_pattern = 1; // the mask
    EXPECT_EXIT(prepare(fill), ExitedWithCode(failure),
                "^FATAL ERROR!  Fill_attribute 'hatch' has a fill pattern which is not a picture\n$");
}

TEST(PoolFatalCheckDeathTest, FillWhosePatternIsNoMultipleOfEightWide)
{
    const std::uint8_t pixels[144]{};
    C::Picture_graphic_obj picture(12, 12, 12, 2, 0, 0, sizeof pixels, pixels);
    C::Fill_attributes_obj fill(3, 0);
    fill.set_name("hatch");
    fill.set_pattern(&picture);
    EXPECT_EXIT(prepare(fill), ExitedWithCode(failure),
                "^FATAL ERROR!  The width of the fill pattern for Fill_attribute 'hatch' is 12 which is not divisible "
                "by 8\\.\n\tThis is necessary for some VTs\n$");
}

TEST(PoolFatalCheckDeathTest, PlacementWithoutAChild)
{
    With_child<C::Container_obj> parent(nullptr);
    EXPECT_EXIT(prepare(parent.parent), KilledBySignal(SIGABRT),
                death::assertion(
                    "false", "../../../../lib/vtui/comp/objects/Has_child_placements", 213,
                    "void VT::Comp::Child_placements_array<Array_type>::deref() [with Array_type = Array_array_1]"));
}
