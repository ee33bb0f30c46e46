#include "vt/Sized_obj.h"

#include "vt/Command.h"

namespace VT {

std::uint16_t Sized_obj::_get_width() const { return width; }
std::uint16_t Sized_obj::_get_height() const { return height; }

void Sized_obj::change_size(std::uint16_t new_width, std::uint16_t new_height)
{
    width = new_width;
    height = new_height;
    if (tell(Command(Iso::Function::change_size).u16(get_id()).u16(width).u16(height))) {
        width.set_told();
        height.set_told();
    }
}

} // namespace VT
