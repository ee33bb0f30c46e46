#include "bench/Class_sizes.h"

#include "nv_store/NV_number.h"
#include "vtui/comp/Connection_elements.h"
#include "vtui/comp/objects/Button_obj.h"
#include "vtui/comp/objects/Container_obj.h"
#include "vtui/comp/objects/Input_number_obj.h"
#include "vtui/comp/objects/Key_obj.h"
#include "vtui/comp/objects/Line_obj.h"
#include "vtui/comp/objects/N_state_pointer_obj.h"
#include "vtui/comp/objects/Output_number_obj.h"
#include "vtui/comp/objects/Output_string_obj.h"
#include "vtui/comp/objects/Polygon_obj.h"
#include "vtui/comp/widgets/Arrow_widget.h"
#include "vtui/comp/widgets/Border_widget.h"
#include "vtui/comp/widgets/Bordered_number_widget.h"
#include "vtui/comp/widgets/Button_background_widget.h"
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
#include "vtui/comp/widgets/Nv_number_widget.h"
#include "vtui/comp/widgets/Placement_widget.h"
#include "vtui/comp/widgets/Scroll_horizontal_widget.h"
#include "vtui/comp/widgets/Scroll_widget.h"
#include "vtui/comp/widgets/Title_widget.h"
#include "vtui/comp/widgets/Toggle_button_widget.h"

#include <cstdio>

void print_class_sizes()
{
    using namespace VT::Comp;
    using Stored_number = NV_store::NV_number<double, Data_item::float64>;
    struct Row
    {
        const char* name;
        std::size_t bytes;
    };
    const Row rows[] = {
        {"Button_obj", sizeof(Button_obj)},
        {"Container_obj", sizeof(Container_obj)},
        {"Fill_attributes_obj", sizeof(Fill_attributes_obj)},
        {"Font_attributes_obj", sizeof(Font_attributes_obj)},
        {"Input_number_obj", sizeof(Input_number_obj)},
        {"Key_obj", sizeof(Key_obj)},
        {"Line_attributes_obj", sizeof(Line_attributes_obj)},
        {"Line_obj", sizeof(Line_obj)},
        {"N_state_pointer_obj<2>", sizeof(N_state_pointer_obj<2>)},
        {"Object_pointer_obj", sizeof(Object_pointer_obj)},
        {"Output_number_obj", sizeof(Output_number_obj)},
        {"Output_string_obj", sizeof(Output_string_obj)},
        {"Picture_graphic_obj", sizeof(Picture_graphic_obj)},
        {"Polygon_obj", sizeof(Polygon_obj)},
        {"Rectangle_obj", sizeof(Rectangle_obj)},
        {"String_variable_obj<4>", sizeof(String_variable_obj<4>)},
        {"Child_placements_array<Array_array_4>", sizeof(Child_placements_array<Array_array_4>)},
        {"Placement_widget", sizeof(Placement_widget)},
        {"Title_widget", sizeof(Title_widget)},
        {"Label_content_widget", sizeof(Label_content_widget)},
        {"Number_widget", sizeof(Number_widget)},
        {"Number_widget::Specification", sizeof(Number_widget::Specification)},
        {"Nv_number_widget<N>", sizeof(Nv_number_widget<Stored_number>)},
        {"  its number", sizeof(Stored_number)},
        {"  what the store keeps of it", sizeof(NV_store::Record)},
        {"Bordered_number_widget", sizeof(Bordered_number_widget)},
        {"Cds_number_widget<double>", sizeof(Cds_number_widget<double>)},
        {"Labelled_input_widget<Number_widget>", sizeof(Labelled_input_widget<Number_widget>)},
        {"Button_widget", sizeof(Button_widget)},
        {"Button_background_widget", sizeof(Button_background_widget)},
        {"Button_border_widget", sizeof(Button_border_widget)},
        {"Border_widget", sizeof(Border_widget)},
        {"Disable_widget", sizeof(Disable_widget)},
        {"Toggle_button_widget", sizeof(Toggle_button_widget)},
        {"Check_box_widget", sizeof(Check_box_widget)},
        {"Icon_text_widget", sizeof(Icon_text_widget)},
        {"Icon_text_button_widget", sizeof(Icon_text_button_widget)},
        {"Key_widget", sizeof(Key_widget)},
        {"Function_key", sizeof(Function_key)},
        {"Key_button_combo_widget", sizeof(Key_button_combo_widget)},
        {"Labelled_input_widget<Button_widget>", sizeof(Labelled_input_widget<Button_widget>)},
        {"Arrow_widget", sizeof(Arrow_widget)},
        {"Crumb_trail", sizeof(Crumb_trail)},
        {"Scroll_widget", sizeof(Scroll_widget)},
        {"Scroll_horizontal_widget", sizeof(Scroll_horizontal_widget)},
        {"Custom_select_widget<50, 2>", sizeof(Custom_select_widget<50, 2>)},
        {"  its buttons, on the heap", 50 * sizeof(Toggle_button_widget)},
        {"Disable_cover_widget_impl<5>", sizeof(Disable_cover_widget_impl<5>)},
        {"Connection_elements", sizeof(Connection_elements)},
    };
    std::printf("bytes per object, %zu-bit\n", 8 * sizeof(void*));
    for (const Row& row : rows)
        std::printf("%8zu  %s\n", row.bytes, row.name);
}
