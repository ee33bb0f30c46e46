#include "vt/VT_obj.h"

#include "vt/Attribute_setter.h"
#include "vt/Command.h"

#include <mutex>

namespace VT {

namespace {

/// Looks for anything the terminal has not been told.
class Change_finder final : public Attribute_visitor
{
  public:
    bool found{false};

    void attribute(const Attribute_info&, Attribute_uint8& a) override { found |= a.changed(); }
    void attribute(const Attribute_info&, Attribute_uint16& a) override { found |= a.changed(); }
    void attribute(const Attribute_info&, Attribute_int16& a) override { found |= a.changed(); }
    void attribute(const Attribute_info&, Attribute_uint32& a) override { found |= a.changed(); }
    void attribute(const Attribute_info&, Attribute_int32& a) override { found |= a.changed(); }
    void attribute(const Attribute_info&, Attribute_real& a) override { found |= a.changed(); }
    void attribute(const Attribute_info&, Attribute_object_id_spec& a) override { found |= a.changed(); }
    void attribute(const Attribute_info&, Attribute_colour& a) override { found |= a.changed(); }
    void attribute(const Attribute_info&, Attribute_string& a) override { found |= a.changed(); }
    void objects(Attribute_object_placement* list, std::size_t count) override { any(list, count); }
    void keys(Attribute_object_placement* list, std::size_t count) override { any(list, count); }
    void points(Attribute_point* list, std::size_t count) override { any(list, count); }

  private:
    template <typename T>
    void any(const T* list, std::size_t count)
    {
        for (std::size_t i = 0; i < count; ++i)
            found |= list[i].changed();
    }
};

/// Scales what lies along an axis; with `check` it only looks whether all of it would still fit.
class Scaler final : public Attribute_visitor
{
  public:
    Scaler(std::uint16_t a, std::uint16_t b, std::uint16_t c, std::uint16_t d, bool check)
        : to_x(a), to_y(b), from_x(c), from_y(d), only_check(check)
    {}

    bool fits{true};

    void attribute(const Attribute_info& info, Attribute_uint16& size) override
    {
        if (info.axis == Axis::x)
            scale(size, to_x, from_x);
        else if (info.axis == Axis::y)
            scale(size, to_y, from_y);
    }

    void objects(Attribute_object_placement* list, std::size_t count) override
    {
        for (std::size_t i = 0; i < count; ++i) {
            scale(list[i].x, to_x, from_x);
            scale(list[i].y, to_y, from_y);
        }
    }

    /// Only checked: whoever has points scales them.
    void points(Attribute_point* list, std::size_t count) override
    {
        for (std::size_t i = 0; i < count && only_check; ++i) {
            scale(list[i].x, to_x, from_x);
            scale(list[i].y, to_y, from_y);
        }
    }

  private:
    template <typename T>
    void scale(Attribute<T>& length, std::uint16_t to, std::uint16_t from)
    {
        const std::int64_t scaled = std::int64_t{length} * to / from;
        fits &= scaled >= std::numeric_limits<T>::min() && scaled <= std::numeric_limits<T>::max();
        if (!only_check)
            length = static_cast<T>(scaled);
    }

    std::uint16_t to_x, to_y, from_x, from_y;
    bool only_check;
};

} // namespace

VT_obj::~VT_obj()
{
    if (get_pool())
        get_pool()->forget(*this);
}

void VT_obj::upload(bool always)
{
    if (is_live() && (always || is_changed()))
        get_pool()->upload(*this);
}

bool VT_obj::is_changed()
{
    Change_finder change;
    visit(change);
    return change.found;
}

Iso::Object_id VT_obj::id_of(const VT_obj* target) const
{
    if (!target)
        return NULL_ID;
    if (is_live() && target->get_pool() != get_pool())
        report("a reference", "leads to an object that is not in the pool");
    return target->get_id();
}

bool VT_obj::change_attribute(const char* name, double value)
{
    Attribute_changer changer(*this, name, value);
    visit(changer);
    return changer.is_done();
}

bool VT_obj::tell(const Command& command) const
{
    if (!is_live())
        return false;
    command.send_to(*get_pool());
    return true;
}

void VT_obj::change_background_colour(Attribute_colour& attribute, std::uint8_t colour) const
{
    attribute = colour;
    if (tell(Command(Iso::Function::change_background_colour).u16(get_id()).u8(colour)))
        attribute.set_told();
}

bool VT_obj::tell_numeric_value(std::uint32_t value) const
{
    return tell(Command(Iso::Function::change_numeric_value).u16(get_id()).u8(0xFF).u32(value));
}

bool VT_obj::tell_attribute(std::uint8_t attribute_id, std::uint32_t value) const
{
    return tell(Command(Iso::Function::change_attribute).u16(get_id()).u8(attribute_id).u32(value));
}

std::uint8_t VT_obj::get_extended_type() const { return 0; }
std::uint16_t VT_obj::_get_width() const { return 0; }
std::uint16_t VT_obj::_get_height() const { return 0; }

bool VT_obj::check_scale_area(std::uint16_t a, std::uint16_t b, std::uint16_t c, std::uint16_t d)
{
    const std::lock_guard hold(*this);
    return __check_scale_area(a, b, c, d);
}

bool VT_obj::__check_scale_area(std::uint16_t a, std::uint16_t b, std::uint16_t c, std::uint16_t d)
{
    Scaler scaler(a, b, c, d, true);
    visit(scaler);
    return scaler.fits;
}

bool VT_obj::__set_by_spec(const Client::Object_specification_interface& specification)
{
    Attribute_specifier specifier(*this, specification);
    visit(specifier);
    return specifier.all_done();
}

void VT_obj::__set_scale(std::uint16_t a, std::uint16_t b, std::uint16_t c, std::uint16_t d)
{
    Scaler scaler(a, b, c, d, false);
    visit(scaler);
}

} // namespace VT
