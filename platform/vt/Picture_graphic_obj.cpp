#include "vt/Picture_graphic_obj.h"

namespace VT {

std::uint16_t Picture_graphic_obj::_get_width() const { return width; }

void Picture_graphic_obj::visit(Attribute_visitor& visitor)
{
    visitor.attribute({"width", 1, Axis::x}, width);
    visitor.attribute({"actual_width"}, actual_width);
    visitor.attribute({"actual_height"}, actual_height);
    visitor.attribute(Attribute_info::ranged("format", 0, 2), format);
    visitor.attribute(Attribute_info::ranged("options", 2, 7), options);
    visitor.attribute({"transparency_colour", 3}, transparency_colour);
    visitor.count(raw_data_size);
    visitor.count(num_macros);
    visitor.raw(raw_data, raw_data_size);
    visitor.macros(macros, num_macros);
}

} // namespace VT
