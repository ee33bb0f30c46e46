#ifndef POOL_SPECIFICATION_H
#define POOL_SPECIFICATION_H

#include "iso11783/Export.h"
#include "pool/Result.h"
#include "vt/Object_pool_interface.h"

#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace VT {

/// The values that the application specifies for the objects of one name. It remembers which attributes were asked
/// for: a value that no object ever asks for is a mistake.
class Object_specification final : public Client::Object_specification_interface
{
  public:
    const Client::Specified_value* find(const char* attribute) const override;

    void set(const std::string& attribute, Client::Specified_value value)
    {
        values[attribute] = Entry{std::move(value), false};
    }

    void remove(const std::string& attribute) { values.erase(attribute); }
    bool is_empty() const { return values.empty(); }

    /// The attributes that nobody asked for.
    std::vector<std::string> never_asked() const;

  private:
    struct Entry
    {
        Client::Specified_value value;
        bool asked;
    };

    mutable std::map<std::string, Entry, std::less<>> values;
};

/// What the application specifies for the objects of its pool, by their names.
class Specification
{
  public:
    void set(const std::string& object, const std::string& attribute, Client::Specified_value value)
    {
        objects[object].values.set(attribute, std::move(value));
    }

    void remove(const std::string& object, const std::string& attribute)
    {
        const auto entry = objects.find(object);
        if (entry == objects.end())
            return;
        entry->second.values.remove(attribute);
        if (entry->second.values.is_empty())
            objects.erase(entry);
    }

    /// What is specified for `object`; nothing for an object without a name.
    const Object_specification& of(const VT_obj& object);

    /// What has not reached an object so far.
    void report_unused(std::vector<Problem>& problems) const;

  private:
    struct Entry
    {
        Object_specification values;
        bool has_object{false};
    };

    std::map<std::string, Entry, std::less<>> objects;
    Object_specification nothing;
};

} // namespace VT

#endif
