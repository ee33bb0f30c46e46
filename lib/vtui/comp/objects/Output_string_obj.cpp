#include "vtui/comp/objects/Output_string_obj.h"

#include "util/Fatal.h"
#include "vt/Attribute_setter.h"

#include <string>

namespace VT::Comp {

namespace {

/// The platform's own kind of string variable, beside the standard's.
constexpr auto platform_string_variable = static_cast<Iso::Object_type>(245);

bool is_string_variable(const VT::VT_obj* object)
{
    return object &&
           (object->get_type() == Iso::Object_type::string_variable || object->get_type() == platform_string_variable);
}

} // namespace

Output_string_obj::~Output_string_obj() = default;

bool Output_string_obj::__set_by_spec(const VT::Client::Object_specification_interface& specification)
{
    const bool done = VT::Output_string_obj::__set_by_spec(specification);

    VT::Attribute_uint16 wanted_length = length;
    VT::Attribute_specifier specifier(*this, specification);
    specifier.attribute({"length"}, wanted_length);
    if (wanted_length > length)
        grow(wanted_length);

    font_attributes.null_check(*this, "font_attributes");

    if (variable_reference != NULL_ID) {
        if (length != 0)
            Fatal::configuration(std::string("The Output_string '") + get_name() +
                                 "' has a non-NULL variable reference but specifies a non-zero length.");
        if (!is_string_variable(get_pool()->find_object(variable_reference)))
            Fatal::configuration(std::string("The variable referenced by '") + get_name() +
                                 "' is not a String Variable.");
    }
    return done && specifier.all_done();
}

} // namespace VT::Comp
