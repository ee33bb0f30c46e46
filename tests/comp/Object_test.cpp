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

/// Where a base lies in an object, in bytes.
template <typename Base, typename Object>
std::ptrdiff_t offset_of(const Object& object)
{
    return reinterpret_cast<const char*>(static_cast<const Base*>(&object)) - reinterpret_cast<const char*>(&object);
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

TEST(Wrapper, SharesItsAddressWithItsTag)
{
    const Container_obj container;
    EXPECT_EQ(offset_of<Object>(container), 0);
    EXPECT_EQ(offset_of<VT::VT_obj>(container), 0);
    EXPECT_EQ(offset_of<Iso::Iso_object_base>(container), 0);
}

TEST(Wrapper, HasItsMixinsInTheOrderOfItsBases)
{
    const Container_obj container;
    EXPECT_LT(offset_of<Has_child_placements>(container), offset_of<Has_macros>(container));
    const Button_obj button;
    EXPECT_LT(offset_of<Has_macros>(button), offset_of<Has_child_placements>(button));
    const Key_obj key;
    EXPECT_LT(offset_of<Has_macros>(key), offset_of<Has_child_placements>(key));
    const Polygon_obj polygon;
    EXPECT_LT(offset_of<Has_vertices>(polygon), offset_of<Has_macros>(polygon));
}

template <typename Wrapper, typename... Bases>
constexpr bool has_bases = (std::is_convertible_v<Wrapper*, Bases*> && ...);

TEST(Wrapper, HasItsTagItsMixinsAndTheVtClassAsPublicBases)
{
    EXPECT_TRUE((has_bases<Container_obj, Object, Has_child_placements, Has_macros, VT::Container_obj>));
    EXPECT_TRUE((has_bases<Button_obj, Object, Has_macros, Has_child_placements, VT::Button_obj>));
    EXPECT_TRUE((has_bases<Key_obj, Object, Has_macros, Has_child_placements, VT::Key_obj>));
    EXPECT_TRUE((has_bases<Output_number_obj, Has_macros, Object, VT::Output_number_obj>));
    EXPECT_TRUE((has_bases<Input_number_obj, Has_macros, Object, VT::Input_number_obj>));
    EXPECT_TRUE((has_bases<Output_string_obj, Has_macros, Object, VT::Output_string_obj>));
    EXPECT_TRUE((has_bases<Rectangle_obj, Object, Has_macros, VT::Rectangle_obj>));
    EXPECT_TRUE((has_bases<Line_obj, Object, Has_macros, VT::Line_obj>));
    EXPECT_TRUE((has_bases<Picture_graphic_obj, Object, Has_macros, VT::Picture_graphic_obj>));
    EXPECT_TRUE((has_bases<Font_attributes_obj, Object, Has_macros, VT::Font_attributes_obj>));
    EXPECT_TRUE((has_bases<Line_attributes_obj, Object, Has_macros, VT::Line_attributes_obj>));
    EXPECT_TRUE((has_bases<Fill_attributes_obj, Object, Has_macros, VT::Fill_attributes_obj>));
    EXPECT_TRUE((has_bases<Polygon_obj, Object, Has_vertices, Has_macros, VT::Polygon_obj>));
    EXPECT_TRUE((has_bases<Object_pointer_obj, Object, VT::Object_pointer_obj>));
    EXPECT_TRUE((has_bases<N_state_pointer_obj<2>, Object_pointer_obj>));
    EXPECT_TRUE((has_bases<String_variable_obj<4>, Object, VT::String_variable_obj>));
    EXPECT_FALSE((has_bases<Object_pointer_obj, Has_macros>));
    EXPECT_FALSE((has_bases<String_variable_obj<4>, Has_macros>));
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
