#ifndef VT_ATTRIBUTE_SETTER_H
#define VT_ATTRIBUTE_SETTER_H

#include "vt/Attribute_visitor.h"
#include "vt/Object_pool_interface.h"

#include <cstdint>

namespace VT {

class VT_obj;

/// Sets attributes by their names from values that come from outside, and refuses what an attribute cannot hold.
class VTUI_EXPORT Attribute_setter : public Attribute_visitor
{
  public:
    void attribute(const Attribute_info&, Attribute_uint8&) final;
    void attribute(const Attribute_info&, Attribute_uint16&) final;
    void attribute(const Attribute_info&, Attribute_int16&) final;
    void attribute(const Attribute_info&, Attribute_uint32&) final;
    void attribute(const Attribute_info&, Attribute_int32&) final;
    void attribute(const Attribute_info&, Attribute_real&) final;
    void attribute(const Attribute_info&, Attribute_object_id_spec&) final;
    void attribute(const Attribute_info&, Attribute_colour&) final;
    void attribute(const Attribute_info&, Attribute_string&) final;

  protected:
    /// The value for an attribute, or null to leave it alone.
    virtual const Client::Specified_value* wanted(const Attribute_info&) = 0;
    /// The value is set; `raw` is how Change Attribute carries it. True if the terminal has been told.
    virtual bool done(const Attribute_info&, std::uint32_t raw) = 0;
    virtual void refused(const Attribute_info&, const char* why) = 0;

  private:
    template <typename T>
    void set_number(const Attribute_info&, Attribute<T>&);
};

/// Gives one object everything that a specification says about it and reports what it had to refuse.
class VTUI_EXPORT Attribute_specifier final : public Attribute_setter
{
  public:
    Attribute_specifier(VT_obj& owner, const Client::Object_specification_interface& given)
        : object(owner), specification(given)
    {}

    bool all_done() const { return !any_refused; }

  private:
    const Client::Specified_value* wanted(const Attribute_info& info) override { return specification.find(info.name); }
    bool done(const Attribute_info&, std::uint32_t) override { return false; }
    void refused(const Attribute_info&, const char* why) override;

    VT_obj& object;
    const Client::Object_specification_interface& specification;
    bool any_refused{false};
};

/// Sets the one attribute of a name, if Change Attribute can carry it, and sends that command if the pool is live.
class Attribute_changer final : public Attribute_setter
{
  public:
    Attribute_changer(VT_obj& owner, const char* attribute, double new_value)
        : object(owner), name(attribute), value(new_value)
    {}

    bool is_done() const { return any_done; }

  private:
    const Client::Specified_value* wanted(const Attribute_info&) override;
    bool done(const Attribute_info&, std::uint32_t) override;
    void refused(const Attribute_info&, const char*) override {}

    VT_obj& object;
    const char* name;
    Client::Specified_value value;
    bool any_done{false};
};

} // namespace VT

#endif
