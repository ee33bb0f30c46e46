// What every wrapper is made of: its bases, where they lie, and how they are reached.

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

#include <gtest/gtest.h>

#include <cxxabi.h>
#include <tuple>
#include <type_traits>
#include <typeindex>
#include <vector>

using namespace VT::Comp;

namespace {

/// One of each.
struct Wrappers
{
    Container_obj container;
    Button_obj button;
    Key_obj key;
    Output_number_obj output_number;
    Input_number_obj input_number;
    Output_string_obj output_string;
    Rectangle_obj rectangle;
    Line_obj line{1, 1, 0};
    Picture_graphic_obj picture{1, 1, 1, 0, 0, 0, 0, nullptr};
    Font_attributes_obj font;
    Line_attributes_obj line_attributes{0, 0, 0};
    Fill_attributes_obj fill{0, 0};
    Polygon_obj polygon;
    Object_pointer_obj pointer;
    N_state_pointer_obj<2> toggle{{nullptr, nullptr}};
    String_variable_obj<1> text_1;
    String_variable_obj<2> text_2;
    String_variable_obj<4> text_4;

    template <typename F>
    void for_each(F&& use)
    {
        std::apply([&](auto&... wrapper) { (use(wrapper), ...); },
                   std::tie(container, button, key, output_number, input_number, output_string, rectangle, line,
                            picture, font, line_attributes, fill, polygon, pointer, toggle, text_1, text_2, text_4));
    }
};

using Types = std::vector<std::type_index>;

template <typename... T>
Types types()
{
    return {typeid(T)...};
}

/// The public bases of a class in the order of their declaration, as its run-time type information lists them. An empty
/// base has no address of its own that would tell.
template <typename Wrapper>
Types bases()
{
    const auto* const several = dynamic_cast<const abi::__vmi_class_type_info*>(&typeid(Wrapper));
    if (!several)
        return {*dynamic_cast<const abi::__si_class_type_info&>(typeid(Wrapper)).__base_type};
    Types found;
    const abi::__base_class_type_info* const first = several->__base_info;
    for (unsigned i = 0; i < several->__base_count; ++i)
        if (first[i].__is_public_p() && !first[i].__is_virtual_p())
            found.emplace_back(*first[i].__base_type);
    return found;
}

TEST(Wrapper, HasItsBasesInThisOrder)
{
    EXPECT_EQ(bases<Container_obj>(), (types<Object, Has_child_placements, Has_macros, VT::Container_obj>()));
    EXPECT_EQ(bases<Button_obj>(), (types<Object, Has_macros, Has_child_placements, VT::Button_obj>()));
    EXPECT_EQ(bases<Key_obj>(), (types<Object, Has_macros, Has_child_placements, VT::Key_obj>()));
    EXPECT_EQ(bases<Output_number_obj>(), (types<Has_macros, Object, VT::Output_number_obj>()));
    EXPECT_EQ(bases<Input_number_obj>(), (types<Has_macros, Object, VT::Input_number_obj>()));
    EXPECT_EQ(bases<Output_string_obj>(), (types<Has_macros, Object, VT::Output_string_obj>()));
    EXPECT_EQ(bases<Rectangle_obj>(), (types<Object, Has_macros, VT::Rectangle_obj>()));
    EXPECT_EQ(bases<Line_obj>(), (types<Object, Has_macros, VT::Line_obj>()));
    EXPECT_EQ(bases<Picture_graphic_obj>(), (types<Object, Has_macros, VT::Picture_graphic_obj>()));
    EXPECT_EQ(bases<Font_attributes_obj>(), (types<Object, Has_macros, VT::Font_attributes_obj>()));
    EXPECT_EQ(bases<Line_attributes_obj>(), (types<Object, Has_macros, VT::Line_attributes_obj>()));
    EXPECT_EQ(bases<Fill_attributes_obj>(), (types<Object, Has_macros, VT::Fill_attributes_obj>()));
    EXPECT_EQ(bases<Polygon_obj>(), (types<Object, Has_vertices, Has_macros, VT::Polygon_obj>()));
    EXPECT_EQ(bases<Object_pointer_obj>(), (types<Object, VT::Object_pointer_obj>()));
    EXPECT_EQ(bases<N_state_pointer_obj<2>>(), types<Object_pointer_obj>());
    EXPECT_EQ(bases<String_variable_obj<1>>(), (types<Object, VT::String_variable_obj>()));
    EXPECT_EQ(bases<String_variable_obj<2>>(), (types<Object, VT::String_variable_obj>()));
    EXPECT_EQ(bases<String_variable_obj<4>>(), (types<Object, VT::String_variable_obj>()));
}

TEST(Wrapper, SharesItsAddressWithItsTagAndItsVtObject)
{
    Wrappers().for_each([](auto& wrapper) {
        SCOPED_TRACE(typeid(wrapper).name());
        const void* const address = &wrapper;
        EXPECT_EQ(static_cast<Object*>(&wrapper), address);
        EXPECT_EQ(static_cast<Element*>(&wrapper), address);
        EXPECT_EQ(static_cast<VT::VT_obj*>(&wrapper), address);
        EXPECT_EQ(static_cast<Iso::Iso_object_base*>(&wrapper), address);
    });
}

/// The mixin of an object, as somebody finds it who knows the VT object only; null if the class has none.
template <typename Mixin, typename Wrapper>
void expect_mixin(Wrapper& wrapper)
{
    VT::VT_obj* const object = &wrapper;
    if constexpr (std::is_base_of_v<Mixin, Wrapper>)
        EXPECT_EQ(dynamic_cast<Mixin*>(object), static_cast<Mixin*>(&wrapper));
    else
        EXPECT_EQ(dynamic_cast<Mixin*>(object), nullptr);
}

TEST(Wrapper, HasMixinsThatAreReachedFromAVtObject)
{
    Wrappers().for_each([](auto& wrapper) {
        SCOPED_TRACE(typeid(wrapper).name());
        expect_mixin<Has_macros>(wrapper);
        expect_mixin<Has_child_placements>(wrapper);
        expect_mixin<Has_vertices>(wrapper);
    });
}

} // namespace
