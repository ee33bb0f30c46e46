#include "tests/Death.h"
#include "vtui/comp/objects/Button_obj.h"
#include "vtui/comp/objects/Container_obj.h"
#include "vtui/comp/objects/Fill_attributes_obj.h"
#include "vtui/comp/objects/Font_attributes_obj.h"
#include "vtui/comp/objects/Input_number_obj.h"
#include "vtui/comp/objects/Key_obj.h"
#include "vtui/comp/objects/Line_attributes_obj.h"
#include "vtui/comp/objects/Line_obj.h"
#include "vtui/comp/objects/N_state_pointer_obj.h"
#include "vtui/comp/objects/Output_number_obj.h"
#include "vtui/comp/objects/Output_string_obj.h"
#include "vtui/comp/objects/Picture_graphic_obj.h"
#include "vtui/comp/objects/Polygon_obj.h"
#include "vtui/comp/objects/Rectangle_obj.h"
#include "vtui/comp/objects/String_variable_obj.h"
#include "vtui/comp/widgets/Placement_widget.h"

#include <gtest/gtest.h>

#include <type_traits>
#include <vector>

using namespace VT::Comp;

namespace {

death::Words copied()
{
    return death::assertion("false", "../../../../lib/vtui/comp/objects/Object", 165,
                            "VT::Comp::Object::Object(const VT::Comp::Object&)");
}

template <typename Component>
void copy(const Component& original)
{
    const Component second(original);
    static_cast<void>(second);
}

TEST(Element, IsTheRootOfObjectsAndWidgetsAndHasNothingVirtual)
{
    EXPECT_TRUE((std::is_base_of_v<Element, Object>));
    EXPECT_TRUE((std::is_base_of_v<Element, Widget>));
    EXPECT_FALSE(std::is_polymorphic_v<Element>);
    EXPECT_FALSE(std::is_polymorphic_v<Object>);
    EXPECT_TRUE(std::is_empty_v<Object>);
    EXPECT_TRUE(std::is_empty_v<Element>);
}

TEST(HasMacros, IsOneNullPointer)
{
    EXPECT_EQ(sizeof(Has_macros), sizeof(void*));
    EXPECT_EQ(Has_macros().macros_ptr, nullptr);
}

TEST(WrapperDeathTest, CopyingEndsTheProcess)
{
    EXPECT_DEATH(copy(Container_obj()), copied());
    EXPECT_DEATH(copy(Button_obj()), copied());
    EXPECT_DEATH(copy(Key_obj()), copied());
    EXPECT_DEATH(copy(Output_number_obj()), copied());
    EXPECT_DEATH(copy(Input_number_obj()), copied());
    EXPECT_DEATH(copy(Output_string_obj()), copied());
    EXPECT_DEATH(copy(Rectangle_obj()), copied());
    EXPECT_DEATH(copy(Line_obj(1, 1, 0)), copied());
    EXPECT_DEATH(copy(Picture_graphic_obj(1, 1, 1, 0, 0, 0, 0, nullptr)), copied());
    EXPECT_DEATH(copy(Font_attributes_obj()), copied());
    EXPECT_DEATH(copy(Line_attributes_obj(0, 0, 0)), copied());
    EXPECT_DEATH(copy(Fill_attributes_obj(0, 0)), copied());
    EXPECT_DEATH(copy(Polygon_obj()), copied());
    EXPECT_DEATH(copy(Object_pointer_obj()), copied());
    EXPECT_DEATH(copy(N_state_pointer_obj<2>({nullptr, nullptr})), copied());
    EXPECT_DEATH(copy(String_variable_obj<4>()), copied());
}

TEST(WrapperDeathTest, MovingIsCopying)
{
    Container_obj container;
    EXPECT_DEATH(Container_obj(std::move(container)), copied());
}

TEST(WidgetVector, GrowsFromZeroToOne)
{
    std::vector<Placement_widget> widgets;
    widgets.emplace_back(Placement_widget::Justification::top);
    ASSERT_EQ(widgets.size(), 1U);
    EXPECT_EQ(widgets[0].get_width(), 240);
    EXPECT_EQ(widgets[0].justification, Placement_widget::Justification::top);
}

TEST(WidgetVectorDeathTest, EndsTheProcessWhenItReallocatesForASecond)
{
    std::vector<Placement_widget> widgets;
    widgets.emplace_back(Placement_widget::Justification::top);
    ASSERT_EQ(widgets.capacity(), 1U);
    EXPECT_DEATH(widgets.emplace_back(Placement_widget::Justification::top), copied());
}

} // namespace
