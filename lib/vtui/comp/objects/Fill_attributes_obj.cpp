#include "vtui/comp/objects/Fill_attributes_obj.h"

#include "util/Fatal.h"

#include <string>

namespace VT::Comp {

namespace {
constexpr std::uint8_t patterned = 3;
}

Fill_attributes_obj::~Fill_attributes_obj() = default;

bool Fill_attributes_obj::check_scale_area(std::uint16_t, std::uint16_t, std::uint16_t, std::uint16_t) { return true; }

bool Fill_attributes_obj::__set_by_spec(const VT::Client::Object_specification_interface& specification)
{
    const bool done = VT::Fill_attributes_obj::__set_by_spec(specification);
    if (type != patterned && fill_pattern == NULL_ID)
        return done;

    const std::string subject = std::string("Fill_attribute '") + get_name() + "'";
    if (type != patterned || fill_pattern == NULL_ID)
        Fatal::configuration(subject + " can only have fill type of '3' with a valid fill pattern");

    VT::VT_obj* const object = get_pool()->find_object(fill_pattern);
    if (!object || object->get_type() != Iso::Object_type::picture_graphic)
        Fatal::configuration(subject + " has a fill pattern which is not a picture");

    auto& picture = static_cast<VT::Picture_graphic_obj&>(*object);
    unlock(); // who holds one object does not wait for another
    picture.lock();
    const std::uint16_t width = picture.actual_width;
    picture.unlock();
    lock();
    if (width % 8 != 0)
        Fatal::configuration("The width of the fill pattern for " + subject + " is " + std::to_string(width) +
                             " which is not divisible by 8.\n\tThis is necessary for some VTs");
    return done;
}

} // namespace VT::Comp
