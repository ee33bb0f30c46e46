#ifndef VT_VT_OBJ_H
#define VT_VT_OBJ_H

#include "vt/Attribute_visitor.h"
#include "vt/Iso_object_base.h"
#include "vt/Object_pool_interface.h"

#include <cstdint>

namespace VT {

class Command;

/// An object of an ISO 11783-6 pool. Values are set before the pool exists and reach the terminal with it. Once the
/// pool is live a value reaches the terminal by a change command (the operations that say so) or with the object's
/// whole record (upload()). All sizes and positions are pixels.
class VTUI_EXPORT VT_obj : public Iso::Iso_object_base
{
  public:
    ~VT_obj() override;

    std::uint16_t get_width() const { return _get_width(); }
    std::uint16_t get_height() const { return _get_height(); }

    /// Sends the object's whole record if the pool is live: always, or only if something in it has changed. With it go
    /// the records, as far as they have changed, of all that the object can show; the terminal takes in all at once.
    void upload(bool always);
    /// True if something in the record differs from what the terminal was told last.
    bool is_changed();

    /// Sets an attribute by its name and, if the pool is live, sends Change Attribute. False, and nothing changed, when
    /// the class has no such attribute, the standard gives it no id, or the value is out of its range.
    bool change_attribute(const char* name, double value);

    // The operations that a class of object replaces, in the order of their slots.

    /// Tells the extensions of the type code apart; 0 for the plain types of the standard.
    virtual std::uint8_t get_extended_type() const;
    /// The area the object takes; 0 for objects that have none.
    virtual std::uint16_t _get_width() const;
    virtual std::uint16_t _get_height() const;
    /// True if the object stays within 16-bit sizes and positions when it is scaled by a ÷ c across and b ÷ d down.
    virtual bool check_scale_area(std::uint16_t a, std::uint16_t b, std::uint16_t c, std::uint16_t d);
    /// Applies what the application specifies for this object and checks the result; called once, with the lock held,
    /// when all ids and references are in place. False if a value was refused (and reported to the pool).
    virtual bool __set_by_spec(const Client::Object_specification_interface& specification);
    /// Scales sizes and positions by a ÷ c across and b ÷ d down; c and d are not 0.
    virtual void __set_scale(std::uint16_t a, std::uint16_t b, std::uint16_t c, std::uint16_t d);
    /// Shows every attribute to `visitor` in the order of the object's record.
    virtual void visit(Attribute_visitor& visitor) = 0;

    /// What a reference of this object to `target` says: its id, or the null id for null. In a live pool a target that
    /// the pool does not have is reported to it: the terminal will not show it before the pool is loaded again.
    Iso::Object_id id_of(const VT_obj* target) const;

  protected:
    using Iso_object_base::Iso_object_base;
    VT_obj(const VT_obj&) = default;

    /// check_scale_area() without the lock.
    bool __check_scale_area(std::uint16_t a, std::uint16_t b, std::uint16_t c, std::uint16_t d);

    bool is_live() const { return get_pool() && get_pool()->is_live(); }

    /// Sends a command if the pool is live. True if so: the terminal has been told what the command says.
    bool tell(const Command& command) const;

    /// Each sets an attribute and, if the pool is live, sends Change Background Colour or Change Numeric Value.
    void change_background_colour(Attribute_colour& attribute, std::uint8_t colour) const;
    template <typename T>
    void change_numeric_value(Attribute<T>& attribute, T value) const
    {
        attribute = value;
        if (tell_numeric_value(value))
            attribute.set_told();
    }

    /// Sets an attribute that has an id and sends Change Attribute if the pool is live and the terminal has another
    /// value.
    template <typename T>
    void change(const Attribute_info& info, Attribute<T>& attribute, T value)
    {
        attribute = value;
        if (attribute.changed() && tell_attribute(info.id, attribute.bits()))
            attribute.set_told();
    }

  private:
    friend class Attribute_changer;

    bool tell_numeric_value(std::uint32_t value) const;
    bool tell_attribute(std::uint8_t attribute_id, std::uint32_t value) const;
};

} // namespace VT

#endif
