#include "tests/Allocations.h"
#include "tests/Fake_pool.h"
#include "tests/comp/Parts.h"
#include "vt/Button_obj.h"
#include "vt/Mask_obj.h"
#include "vt/Working_set_obj.h"
#include "vtui/comp/Connection_elements.h"
#include "vtui/comp/objects/Button_obj.h"
#include "vtui/comp/objects/Input_number_obj.h"
#include "vtui/comp/objects/Line_obj.h"
#include "vtui/comp/objects/N_state_pointer_obj.h"
#include "vtui/comp/objects/Output_number_obj.h"
#include "vtui/comp/objects/Output_string_obj.h"
#include "vtui/comp/objects/Polygon_obj.h"
#include "vtui/comp/widgets/Border_widget.h"
#include "vtui/comp/widgets/Bordered_number_widget.h"
#include "vtui/comp/widgets/Button_background_widget.h"
#include "vtui/comp/widgets/Button_border_widget.h"
#include "vtui/comp/widgets/Check_box_widget.h"
#include "vtui/comp/widgets/Disable_widget.h"
#include "vtui/comp/widgets/Function_key.h"
#include "vtui/comp/widgets/Icon_text_button_widget.h"
#include "vtui/comp/widgets/Icon_text_widget.h"
#include "vtui/comp/widgets/Key_button_combo_widget.h"
#include "vtui/comp/widgets/Key_widget.h"
#include "vtui/comp/widgets/Labelled_input_widget.h"
#include "vtui/comp/widgets/Placement_widget.h"
#include "vtui/comp/widgets/Toggle_button_widget.h"

#include <gtest/gtest.h>

using namespace VT::Comp;

namespace {

/// How often `operation` allocates.
template <typename Operation>
std::size_t allocations_of(Operation operation)
{
    const std::size_t before = allocations();
    operation();
    return allocations() - before;
}

/// A pool that only counts what it is asked to send.
class Counting_pool final : public Fake_pool
{
  public:
    std::size_t count{0};

    void send(const std::uint8_t*, std::size_t, const void*, std::size_t) override { ++count; }
    void upload(VT::VT_obj&) override { ++count; }

    /// Without a key for the map.
    VT::String_variable_obj* find_text(const char* name) override
    {
        for (auto& [key, text] : texts)
            if (key == name)
                return &text.object;
        return nullptr;
    }
};

/// A pool that is live as soon as the objects of a test are in it.
class Allocation : public ::testing::Test
{
  protected:
    template <typename... Objects>
    void go_live(Objects&... objects)
    {
        Iso::Object_id id = 0;
        (pool.take(objects, id++), ...);
        pool.live = true;
    }

    /// That many messages and not one allocation.
    template <typename Operation>
    void expect_sent(std::size_t messages, Operation operation)
    {
        pool.count = 0;
        EXPECT_EQ(allocations_of(operation), 0U);
        EXPECT_EQ(pool.count, messages);
    }

    Counting_pool pool;
};

TEST_F(Allocation, InThisProgramIsCounted)
{
    // Called by name: a new expression without an effect may be left out.
    EXPECT_EQ(allocations_of([] { operator delete(operator new(1)); }), 1U);
}

TEST_F(Allocation, InTheLibrariesIsCounted)
{
    VT::Data_mask_obj mask;
    EXPECT_GT(allocations_of([&] { mask.add(mask, 0, 0); }), 0U);
}

TEST_F(Allocation, IsNotNeededToBuildComponents)
{
    EXPECT_EQ(allocations_of([] {
                  Connection_elements set;
                  Placement_widget widget(Placement_widget::Justification::centre);
                  Output_string_obj string;
                  widget.set_content(&string);
              }),
              0U);
}

TEST_F(Allocation, IsNotNeededToLayOutAPlacementWidget)
{
    Container_obj content;
    Placement_widget widget(Placement_widget::Justification::left);
    const auto lay_out = [&] {
        widget.set_content(&content);
        widget.set_justification(Placement_widget::Justification::centre);
        widget.set_size({100, 50});
    };
    EXPECT_EQ(allocations_of(lay_out), 0U);
    go_live(content, widget.container);
    EXPECT_EQ(allocations_of(lay_out), 0U);
}

TEST_F(Allocation, IsNotNeededToSizeTheStyle)
{
    Connection_elements set;
    EXPECT_EQ(allocations_of([&] {
                  set.set_sizes(480);
                  set.cover.set_size({1, 1});
                  set.cover.root_at_size(Dimension(100, 3));
              }),
              0U);
    go_live(set.rect_red, set.cover_512, set.font_0);
    EXPECT_EQ(allocations_of([&] { set.set_sizes(200); }), 0U);
}

TEST_F(Allocation, IsNotNeededToFormatATextBeforeAndAfterItHasAnId)
{
    String_variable_obj<4> text;
    EXPECT_EQ(allocations_of([&] { text.format("%u%s", 12U, "abc"); }), 0U);
    go_live(text);
    expect_sent(1, [&] { text.format("%u%s", 12U, "abc"); });
}

TEST_F(Allocation, IsNotNeededToLink)
{
    Fill_attributes_obj fill(2, 1);
    Line_attributes_obj line(0, 1, 0xFFFF);
    Font_attributes_obj font;
    Picture_graphic_obj picture(8, 8, 8, 0, 0, 0, 0, nullptr);
    String_variable_obj<4> text;
    Rectangle_obj rectangle;
    Polygon_obj polygon;
    Line_obj stroke(1, 1, 0);
    Output_number_obj output;
    Input_number_obj input;
    Output_string_obj string;
    Object_pointer_obj pointer;
    const auto link = [&] {
        rectangle.set_fill(&fill);
        rectangle.set_line(&line);
        polygon.set_fill(&fill);
        polygon.set_line(&line);
        stroke.set_line(&line);
        fill.set_pattern(&picture);
        output.set_font(&font);
        input.set_font(&font);
        string.set_font(&font);
        string.set_variable(&text);
        pointer.set_target(&rectangle);
    };
    expect_sent(0, link);
    go_live(fill, line, font, picture, text, rectangle, polygon, stroke, output, input, string, pointer);
    expect_sent(11, link);
}

TEST_F(Allocation, IsNotNeededToChangeAState)
{
    Container_obj off;
    Container_obj on;
    N_state_pointer_obj<2> pointer({&off, &on});
    expect_sent(0, [&] { pointer.set_state(1); });
    go_live(off, on, pointer);
    expect_sent(1, [&] { pointer.set_state(0); });
}

TEST_F(Allocation, IsNotNeededToSendACommand)
{
    VT::Attribute_object_placement children[3];
    children[0].object_id = std::uint16_t{7};
    children[1].object_id = std::uint16_t{8};
    children[2].object_id = std::uint16_t{8};
    Container_obj container;
    container.objects = children;
    container.num_objects = 3;
    Rectangle_obj rectangle;
    Button_obj button;
    Input_number_obj number;
    VT::Data_mask_obj mask;
    VT::Soft_key_mask_obj keys;
    VT::Working_set_obj set;
    set.add_mask(mask);
    go_live(container, rectangle, button, number, mask, keys, set);
    expect_sent(1, [&] { container.set_hidden(true); });
    expect_sent(1, [&] { container.set_child_location(0, 1, 2); });
    expect_sent(1, [&] { container.set_child_location(1, 1, 2); });
    expect_sent(1, [&] { rectangle.change_size(1, 2); });
    expect_sent(1, [&] { button.set_background_colour(3); });
    expect_sent(1, [&] { button.set_enabled(false); });
    expect_sent(1, [&] { number.set_enabled(true); });
    expect_sent(1, [&] { number.set_value(3); });
    expect_sent(1, [&] { number.change_attribute("max_value", 3); });
    expect_sent(0, [&] { number.upload(false); });
    expect_sent(1, [&] { number.upload(true); });
    expect_sent(1, [&] { mask.set_soft_key_mask(&keys); });
    expect_sent(1, [&] { set.set_active_mask(mask); });
}

/// A field in each of its forms, an input, in kilometres and miles an hour.
class Number_fields
{
  public:
    Labelled_input_widget<Number_widget> labelled{&font, &text, style(), speed(), speed(), nullptr};
    Bordered_number_widget bordered{{nullptr, nullptr, style()}, speed(), nullptr};

    void initialise(VT::vtui_pool* pool)
    {
        labelled.input.init(pool, nullptr);
        bordered.init(pool, nullptr);
    }

    void lay_out()
    {
        labelled.set_size(labelled.get_preferred_size(), {2, 3});
        labelled.input.set_layout({50, 20}, {1, 2});
        bordered.set_preferred_size();
    }

    void switch_units()
    {
        labelled.input.set_system(Units_man::us);
        Units_man units;
        units.set_system_type(Units_man::imperial);
        labelled.input.handle_event(units);
    }

    void change_value()
    {
        labelled.input.set_value(12);
        labelled.input.increment(3);
        labelled.input.decrement(1);
        VT::VT_change_numeric_value_event event{labelled.input.input_number.get_id(), 77};
        labelled.input.handle_event(event);
        labelled.input.handle_event(VT::VT_information{});
    }

    static Number_widget::Specification speed() { return {Units_man::speed, 0, 50, 0.1, 1}; }

  private:
    Number_widget::Style style() { return {&font, &font, &backdrop, Number_widget::stacked, true}; }

    Font_attributes_obj font;
    Rectangle_obj backdrop;
    String_variable_obj<4> text;
};

TEST_F(Allocation, IsNotNeededForANumberFieldOutsideAPool)
{
    EXPECT_EQ(allocations_of([] {
                  Number_fields fields;
                  fields.initialise(nullptr);
                  fields.lay_out();
                  fields.switch_units();
                  fields.change_value();
              }),
              0U);
}

TEST_F(Allocation, OfTheUnitsTextsIsAllThatANumberFieldAsksOfItsPool)
{
    Number_fields first;
    first.initialise(&pool);
    EXPECT_EQ(pool.texts.size(), 1U) << "one for both";
    Number_fields second;
    EXPECT_EQ(allocations_of([&] { second.initialise(&pool); }), 0U) << "it has been made";
}

TEST_F(Allocation, IsNotNeededForANumberFieldInALivePool)
{
    Number_fields fields;
    fields.initialise(&pool);
    Number_widget& number = fields.labelled.input;
    go_live(number.container, number.input_number, number.output_number, number.units, *number.units_variable,
            fields.labelled.container, fields.labelled.label);
    expect_sent(0, [&] { fields.lay_out(); });
    // Both scales, both decimals, the maximum, the text and both values; for the next system both values and the
    // upload.
    expect_sent(11, [&] { fields.switch_units(); });
    expect_sent(7, [&] { fields.change_value(); }); // three values in both numbers and one in the output number
    expect_sent(1, [&] { fields.labelled.set_label(number.units_variable); });
    Units_man units;
    units.set_system_type(Units_man::us);
    expect_sent(1, [&] { units.write_texts(pool); });
}

/// One of each kind of button and key with what lies around it.
struct Buttons
{
    Connection_elements style;
    Rectangle_obj icon;
    Output_string_obj text;
    String_variable_obj<4> name;
    int runs{0};

    Button_widget plain{icon};
    Toggle_button_widget toggle{icon, text};
    Check_box_widget check_box{style, &icon, &text};
    Button_background_widget background{style};
    Button_border_widget button_border{style};
    Border_widget border{style};
    Disable_widget disable{style};
    Icon_text_widget icon_text{style, nullptr};
    Icon_text_button_widget icon_button{style};
    Key_widget key;
    Function_key function_key{[this] { ++runs; }};
    Key_button_combo_widget combo{style};
    Labelled_input_widget<Button_widget> labelled{&style.font_1, nullptr, icon};

    Buttons()
    {
        icon_button.action = [this] { ++runs; };
        key.set_content(&icon);
        function_key.set_content(&icon);
        combo.set_icon(&icon, &icon);
    }

    void lay_out()
    {
        const Dimension size(100, 40);
        plain.set_size(size);
        plain.set_size(size, {}, {});
        toggle.set_size(size);
        check_box.set_size(check_box.get_preferred_size());
        background.set_size(size);
        button_border.set_size(size);
        border.set_size(size);
        icon_text.set_size(size);
        icon_button.set_size(size);
        key.set_size(size);
        function_key.set_size(size);
        combo.set_size(size);
        combo.soft_key.set_size(size);
        labelled.set_size(labelled.get_preferred_size(), {5, 3});
    }

    void change()
    {
        plain.set_content({&text, 3, 4});
        plain.set_hidden(true);
        background.set_hidden(true);
        toggle.toggle();
        check_box.set_checked(true);
        check_box.handle_event({Iso::Activation::released, check_box.button.get_id(), VT::VT_obj::NULL_ID, 1});
        disable.set_disabled(true);
        disable.set_size({100, 40});
        button_border.handle_event(VT::VT_information{});
        border.handle_event(VT::VT_information{});
        change_faces();
        release();
    }

    void change_faces()
    {
        icon_text.set_icon(&text);
        icon_text.set_text(&name);
        icon_button.set_icon(&text);
        icon_button.set_text(&name);
        key.set_content(&text);
        key.set_background_colour(3);
        function_key.set_background_colour(3);
        combo.set_icon(&text, &text);
        combo.set_text(&name);
        labelled.set_label(&name);
    }

    /// The operator lets go of whatever runs an action.
    void release()
    {
        VT::Button_activation_event button{Iso::Activation::released, icon_button.button.button.get_id(),
                                           VT::VT_obj::NULL_ID, 1};
        icon_button.handle_event(button);
        VT::Soft_key_activation_event soft_key{Iso::Activation::released, function_key.key.get_id(),
                                               VT::VT_obj::NULL_ID, 1};
        function_key.handle_event(soft_key);
    }
};

TEST_F(Allocation, IsNotNeededForButtonsOutsideAPool)
{
    EXPECT_EQ(allocations_of([] {
                  Buttons buttons;
                  buttons.lay_out();
                  buttons.change();
                  EXPECT_EQ(buttons.runs, 2);
              }),
              0U);
}

TEST_F(Allocation, IsNotNeededForButtonsInALivePool)
{
    Buttons b;
    go_live(b.plain.container, b.plain.button, b.toggle.state_pointer, b.check_box.state_pointer, b.check_box.button,
            b.background.container, b.button_border.container, b.button_border.border, b.border.container,
            b.border.border, b.disable.state_pointer, b.text, b.icon, b.style.null_pointer, b.style.cover_512,
            b.style.cover_128, b.icon_text.container, b.icon_text.caption, b.icon_button.button.container,
            b.icon_button.button.button, b.icon_button.inner, b.icon_button.caption, b.key.key, b.function_key.key,
            b.combo.container, b.combo.icon_text.container, b.combo.icon_text.caption, b.combo.soft_key.key,
            b.labelled.container, b.labelled.label, b.name);
    parts::list_children(b.button_border.container);
    parts::list_children(b.border.container);
    expect_sent(1, [&] { b.lay_out(); }); // the button with icon and text uploads its margin
    // An upload, two containers hidden, a toggle, a box set and flipped, a cover and another, two borders put back;
    // four texts, two colours.
    expect_sent(16, [&] { b.change(); });
    EXPECT_EQ(b.runs, 2);
}

} // namespace
