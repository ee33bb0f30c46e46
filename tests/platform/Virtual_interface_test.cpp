#include "tests/Virtual_slot.h"
#include "vt/VT_obj.h"

#include <gtest/gtest.h>

#include <type_traits>

using VT::VT_obj;

TEST(VtObject, HasItsVirtualOperationsInThisOrder)
{
    // Slots 0 and 1 are the two destructors.
    EXPECT_TRUE(std::has_virtual_destructor_v<VT_obj>);
    EXPECT_EQ(virtual_slot(&VT_obj::get_name), 2U);
    EXPECT_EQ(virtual_slot(&VT_obj::get_extended_type), 3U);
    EXPECT_EQ(virtual_slot(&VT_obj::_get_width), 4U);
    EXPECT_EQ(virtual_slot(&VT_obj::_get_height), 5U);
    EXPECT_EQ(virtual_slot(&VT_obj::check_scale_area), 6U);
    EXPECT_EQ(virtual_slot(&VT_obj::__set_by_spec), 7U);
    EXPECT_EQ(virtual_slot(&VT_obj::__set_scale), 8U);
    EXPECT_EQ(virtual_slot(&VT_obj::visit), 9U);
}
