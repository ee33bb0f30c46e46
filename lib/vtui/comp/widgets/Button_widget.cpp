#include "vtui/comp/widgets/Button_widget.h"

namespace VT::Comp {

void Button_widget::construct(VT::VT_obj& content)
{
    placements.placements[0] = {&button, 0, 0};
    placements.placements[1] = {&content, 0, 0}; // stays, whatever set_content() is given
    placements.placements[2] = {&content, 0, 0};
    container.placements_ptr = &placements;
}

void Button_widget::set_height(unsigned short height)
{
    container.height = height;
    button.height = height;
}

void Button_widget::set_width(unsigned short width)
{
    container.width = width;
    button.width = width;
}

void Button_widget::set_size(Dimension size)
{
    set_width(size.width);
    set_height(size.height);
    placements.deref();
}

void Button_widget::set_content(Child_placement content)
{
    get_content() = content;
    if (container.get_id() == VT::VT_obj::NULL_ID)
        return;
    placements.deref();
    container.upload(true);
}

} // namespace VT::Comp
