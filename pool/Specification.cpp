#include "pool/Specification.h"

#include "vt/VT_obj.h"

namespace VT {

const Client::Specified_value* Object_specification::find(const char* attribute) const
{
    if (values.empty())
        return nullptr;
    const auto found = values.find(attribute);
    if (found == values.end())
        return nullptr;
    found->second.asked = true;
    return &found->second.value;
}

std::vector<std::string> Object_specification::never_asked() const
{
    std::vector<std::string> names;
    for (const auto& [name, entry] : values)
        if (!entry.asked)
            names.push_back(name);
    return names;
}

const Object_specification& Specification::of(const VT_obj& object)
{
    const char* const name = object.get_name();
    if (!*name || objects.empty())
        return nothing;
    const auto found = objects.find(name);
    if (found == objects.end())
        return nothing;
    found->second.has_object = true;
    return found->second.values;
}

void Specification::report_unused(std::vector<Problem>& problems) const
{
    for (const auto& [name, entry] : objects) {
        const auto report = [&, object = name](Error error, const std::string& text) {
            problems.push_back({error, Iso::null_id, object, text});
        };
        if (!entry.has_object)
            report(Error::unknown_object, "A value is specified for '" + name + "', but the pool has no such object");
        else
            for (const std::string& attribute : entry.values.never_asked())
                report(Error::unknown_attribute, "A value is specified for '" + attribute + "' of '" + name +
                                                     "', which has no such attribute or was prepared before");
    }
}

} // namespace VT
