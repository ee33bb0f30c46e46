// The members that lie in an object in the order in which they are described.

#include "vtui/comp/objects/Has_vertices.h"
#include "vtui/comp/objects/N_state_pointer_obj.h"
#include "vtui/comp/objects/Rectangle_obj.h"
#include "vtui/comp/widgets/Arrow_widget.h"
#include "vtui/comp/widgets/Border_widget.h"
#include "vtui/comp/widgets/Bordered_number_widget.h"
#include "vtui/comp/widgets/Button_background_widget.h"
#include "vtui/comp/widgets/Button_border_widget.h"
#include "vtui/comp/widgets/Button_widget.h"
#include "vtui/comp/widgets/Cds_number_widget.h"
#include "vtui/comp/widgets/Check_box_widget.h"
#include "vtui/comp/widgets/Crumb_trail.h"
#include "vtui/comp/widgets/Custom_select_widget.h"
#include "vtui/comp/widgets/Disable_widget.h"
#include "vtui/comp/widgets/Function_key.h"
#include "vtui/comp/widgets/Icon_text_button_widget.h"
#include "vtui/comp/widgets/Key_button_combo_widget.h"
#include "vtui/comp/widgets/Label_content_widget.h"
#include "vtui/comp/widgets/Labelled_input_widget.h"
#include "vtui/comp/widgets/Placement_widget.h"
#include "vtui/comp/widgets/Scroll_horizontal_widget.h"
#include "vtui/comp/widgets/Scroll_widget.h"
#include "vtui/comp/widgets/Title_widget.h"
#include "vtui/comp/widgets/Toggle_button_widget.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <functional>
#include <initializer_list>

using namespace VT::Comp;

namespace {

/// True if every address lies behind the one before it.
bool ascend(std::initializer_list<const void*> members)
{
    return std::adjacent_find(members.begin(), members.end(), std::greater_equal<const void*>()) == members.end();
}

TEST(MemberOrder, OfPlacementsIsWhatIsComputedThenWhatIsWritten)
{
    const Child_placements_array<Array_array_4> children;
    EXPECT_TRUE(ascend({&children, &children.placements, &children.attributes}));
}

TEST(MemberOrder, OfVerticesIsWhatIsComputedThenWhatIsWritten)
{
    const Vertex_array<Array_array_3> vertices;
    EXPECT_TRUE(ascend({&vertices, &vertices.points, &vertices.attributes}));
}

TEST(MemberOrder, OfAPlacementWidget)
{
    const Placement_widget widget(Placement_widget::Justification::centre);
    EXPECT_TRUE(ascend({&widget.container, &widget.content, &widget.justification}));
    EXPECT_EQ(static_cast<const void*>(&widget.container), &widget);
}

TEST(MemberOrder, OfARectangle)
{
    const Rectangle_obj rectangle;
    EXPECT_TRUE(ascend({&rectangle, &rectangle.fill, &rectangle.line}));
}

TEST(MemberOrder, OfAStatePointer)
{
    const N_state_pointer_obj<2> pointer({nullptr, nullptr});
    EXPECT_TRUE(ascend({&pointer, &pointer.target, &pointer.state, &pointer.states}));
}

TEST(MemberOrder, OfANumberWidget)
{
    const Number_widget w(Number_widget::Style(), nullptr);
    EXPECT_TRUE(ascend({&w, &w.units, &w.units_variable, &w.units_font, &w.input_number, &w.input_font, &w.container,
                        &w.placements, &w.output_number, &w.output_font, &w.specifications, &w.units_variables,
                        &w.system, &w.layout, &w.value, &w.layout_size, &w.layout_origin}));
}

TEST(MemberOrder, OfTheStyleOfANumberWidget)
{
    const Number_widget::Style s;
    EXPECT_TRUE(ascend({&s.number_font, &s.units_font, &s.backdrop, &s.layout, &s.input}));
    EXPECT_EQ(static_cast<const void*>(&s.number_font), &s);
    EXPECT_EQ(sizeof s.layout, 4U);
    EXPECT_EQ(sizeof s.input, 1U);
}

TEST(MemberOrder, OfTheSpecificationOfANumberWidget)
{
    const Number_widget::Specification s;
    EXPECT_TRUE(ascend({&s.units_type, &s.min, &s.max, &s.scale, &s.decimals}));
    EXPECT_EQ(static_cast<const void*>(&s.units_type), &s);
    EXPECT_EQ(sizeof s.units_type, 4U);
    EXPECT_EQ(sizeof s.decimals, 1U);
}

TEST(MemberOrder, OfABorderedNumberWidget)
{
    const Bordered_number_widget w(Bordered_number_widget::Style(), nullptr);
    EXPECT_TRUE(ascend({&w.number, &w.border, &w.border_line, &w.border_fill, &w.container, &w.placements}));
    EXPECT_EQ(static_cast<const void*>(&w.number), &w);
}

TEST(MemberOrder, OfTheStyleOfABorderedNumberWidget)
{
    const Bordered_number_widget::Style s;
    EXPECT_TRUE(ascend({&s.border_line, &s.border_fill, &s.number}));
    EXPECT_EQ(static_cast<const void*>(&s.border_line), &s);
}

TEST(MemberOrder, OfACdsNumberWidgetIsTheFieldThenTheBinding)
{
    double variable = 0;
    CDS::Head head(variable);
    const Cds_number_widget<double> w(head, variable, Number_widget::Style(), nullptr);
    const Number_widget& field = w;
    const CDS::Access<double, CDS::Virt_access>& binding = w;
    EXPECT_EQ(static_cast<const void*>(&field), &w);
    EXPECT_TRUE(ascend({&w.layout_origin, &binding, &w.access, &w.variable}));
}

TEST(MemberOrder, OfALabelledInputWidget)
{
    const Labelled_input_widget<Number_widget> w(nullptr, nullptr, Number_widget::Style(), nullptr);
    EXPECT_TRUE(ascend({&w.container, &w.placements, &w.label, &w.label_variable, &w.label_font, &w.input}));
    EXPECT_EQ(static_cast<const void*>(&w.container), &w);
}

TEST(MemberOrder, OfAButtonWidget)
{
    Container_obj content;
    const Button_widget w(content);
    EXPECT_TRUE(ascend({&w.container, &w.button, &w.placements}));
    EXPECT_EQ(static_cast<const void*>(&w.container), &w);
}

TEST(MemberOrder, OfAButtonBackgroundWidget)
{
    Connection_elements style;
    const Button_background_widget w(style);
    EXPECT_TRUE(ascend({&w.container, &w.placements}));
    EXPECT_EQ(static_cast<const void*>(&w.container), &w);
}

template <class Border>
void expect_order_of_border()
{
    Connection_elements style;
    const Border w(style);
    EXPECT_TRUE(ascend({&w.container, &w.placements, &w.border}));
    EXPECT_EQ(static_cast<const void*>(&w.container), &w);
}

TEST(MemberOrder, OfBothBorders)
{
    expect_order_of_border<Border_widget>();
    expect_order_of_border<Button_border_widget>();
}

TEST(MemberOrder, OfADisableWidgetStartsWithTheStyle)
{
    Connection_elements style;
    const Disable_widget w(style);
    const void* first = nullptr;
    std::memcpy(&first, static_cast<const void*>(&w), sizeof first);
    EXPECT_EQ(first, &style);
    EXPECT_TRUE(ascend({&w, &w.state_pointer}));
}

TEST(MemberOrder, OfAToggleButtonWidgetStartsWithTheButton)
{
    Container_obj off;
    Container_obj on;
    const Toggle_button_widget w(off, on);
    const Button_widget& button = w;
    EXPECT_EQ(static_cast<const void*>(&button), &w);
    EXPECT_TRUE(ascend({&w.container, &w.button, &w.placements, &w.state_pointer}));
}

TEST(MemberOrder, OfACheckBoxWidget)
{
    Connection_elements style;
    const Check_box_widget w(style, nullptr, nullptr);
    EXPECT_TRUE(ascend({&w.state_pointer, &w.container, &w.placements, &w.button}));
    EXPECT_EQ(static_cast<const void*>(&w.state_pointer), &w);
}

TEST(MemberOrder, OfALabelledButton)
{
    Rectangle_obj content;
    const Labelled_input_widget<Button_widget> w(nullptr, nullptr, content);
    EXPECT_TRUE(ascend({&w.container, &w.placements, &w.label, &w.label_variable, &w.label_font, &w.input}));
    EXPECT_EQ(static_cast<const void*>(&w.container), &w);
}

TEST(MemberOrder, OfAnIconTextWidget)
{
    Connection_elements style;
    const Icon_text_widget w(style, nullptr);
    EXPECT_TRUE(ascend({&w.caption, &w.container, &w.placements}));
    EXPECT_EQ(static_cast<const void*>(&w.caption), &w);
}

TEST(MemberOrder, OfAnIconTextButtonWidget)
{
    Connection_elements style;
    const Icon_text_button_widget w(style);
    EXPECT_TRUE(ascend({&w.button, &w.caption, &w.inner, &w.placements, &w.action}));
    EXPECT_EQ(static_cast<const void*>(&w.button), &w);
}

TEST(MemberOrder, OfAKey)
{
    const Function_key w;
    EXPECT_TRUE(ascend({&w.key, &w.placements, &w.action}));
    EXPECT_EQ(static_cast<const void*>(&w.key), &w);
    EXPECT_EQ(sizeof(Function_key), sizeof(Key_widget) + sizeof w.action);
}

TEST(MemberOrder, OfAKeyButtonComboWidget)
{
    Connection_elements style;
    const Key_button_combo_widget w(style);
    EXPECT_TRUE(ascend({&w.placements, &w.container, &w.button, &w.border, &w.icon_text, &w.soft_key}));
    EXPECT_EQ(static_cast<const void*>(&w.placements), &w);
}

TEST(MemberOrder, OfBothScrollWidgets)
{
    Connection_elements style;
    const Scroll_widget down(style, nullptr, nullptr);
    EXPECT_TRUE(ascend({&down.container, &down.placements.placements, &down.placements.attributes, &down.up_key_pointer,
                        &down.down_key_pointer, &down.track, &down.indicator, &down.indicator_fill, &down.up_key,
                        &down.down_key}));
    EXPECT_EQ(static_cast<const void*>(&down.container), &down);
    const Scroll_horizontal_widget on(style, nullptr, nullptr, nullptr);
    EXPECT_TRUE(
        ascend({&on.container, &on.placements.placements, &on.placements.attributes, &on.left_key_pointer,
                &on.right_key_pointer, &on.track, &on.indicator, &on.indicator_fill, &on.left_key, &on.right_key}));
    EXPECT_EQ(static_cast<const void*>(&on.container), &on);
}

TEST(MemberOrder, OfACustomSelectWidgetStartsWithTheSeparator)
{
    Connection_elements style;
    const Custom_select_widget<50, 2> w(style);
    EXPECT_TRUE(ascend({&w.separator, &w.container, &w.placements.placements, &w.placements.attributes, &w.selected,
                        &w.last_was_ours, &w.items}));
    EXPECT_EQ(static_cast<const void*>(&w.separator), &w);
}

TEST(MemberOrder, OfATitleWidget)
{
    Connection_elements style;
    const Title_widget w(style);
    EXPECT_TRUE(ascend({&w.text_obj, &w.text, &w.font, &w.container, &w.placements}));
    EXPECT_EQ(static_cast<const void*>(&w.text_obj), &w);
}

TEST(MemberOrder, OfALabelContentWidget)
{
    Rectangle_obj background;
    const Label_content_widget w(background, {nullptr, nullptr});
    EXPECT_TRUE(ascend({&w.container, &w.item, &w.item.content_obj, &w.placements}));
    EXPECT_EQ(static_cast<const void*>(&w.container), &w);
    EXPECT_EQ(static_cast<const void*>(&w.item.label_obj), &w.item);
}

TEST(MemberOrder, OfAnArrowWidget)
{
    Line_attributes_obj line(0, 1, 0xFFFF);
    const Arrow_widget w(line);
    EXPECT_TRUE(ascend({&w.polygon, &w.vertices}));
    EXPECT_EQ(static_cast<const void*>(&w.polygon), &w);
}

TEST(MemberOrder, OfACrumbTrail)
{
    Connection_elements style;
    const Crumb_trail w(style);
    EXPECT_TRUE(
        ascend({&w.container, &w.placements, &w.arrow, &w.corner_pixels, &w.corner_top_right, &w.corner_bottom_right,
                &w.corner_top_left, &w.corner_bottom_left, &w.frame_vertical_line, &w.frame_horizontal_line,
                &w.select_frame, &w.select_frame_placements, &w.select_line, &w.crumb_pointers}));
    EXPECT_EQ(static_cast<const void*>(&w.container), &w);
    EXPECT_EQ(static_cast<const void*>(&w.arrow_pointers), &w.crumb_pointers + 1) << "one row of pointers";
    EXPECT_EQ(static_cast<const void*>(&w.select_pointers), &w.arrow_pointers + 1);
    EXPECT_EQ(static_cast<const void*>(&w.select_line_pointers), &w.select_pointers + 1);
}

} // namespace
