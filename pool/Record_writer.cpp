#include "pool/Record_writer.h"

#include <mutex>

namespace VT {

std::size_t Record_writer::write(VT_obj& object)
{
    const std::size_t before = out.size();
    out.u16(object.get_id());
    out.u8(static_cast<std::uint8_t>(object.get_type()));
    const std::lock_guard hold(object);
    object.visit(*this);
    return out.size() - before;
}

void Record_writer::attribute(const Attribute_info&, Attribute_string& a)
{
    const std::uint16_t size = told(a).num_chars();
    out.u16(a.item_count);
    out.bytes(a.text(), size);
    out.fill(std::size_t{a.item_count} - size, ' ');
}

void Record_writer::objects(Attribute_object_placement* list, std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i) {
        out.u16(told(list[i].object_id));
        out.s16(told(list[i].x));
        out.s16(told(list[i].y));
    }
}

void Record_writer::keys(Attribute_object_placement* list, std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i)
        out.u16(told(list[i].object_id));
}

void Record_writer::points(Attribute_point* list, std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i) {
        out.u16(told(list[i].x));
        out.u16(told(list[i].y));
    }
}

void Record_writer::macros(const Macro_reference* list, std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i) {
        out.u8(list[i].event);
        out.u8(list[i].macro);
    }
}

} // namespace VT
