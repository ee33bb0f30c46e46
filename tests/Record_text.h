#ifndef TESTS_RECORD_TEXT_H
#define TESTS_RECORD_TEXT_H

#include "vt/VT_obj.h"

#include <sstream>
#include <string>
#include <vector>

/// The record of an object in words, one line a part, in the order of its bytes: "u16 width 240". Behind the value of
/// an attribute that Change Attribute can carry stands its id: "u16 width 240 #1".
class Record_text final : public VT::Attribute_visitor
{
  public:
    using Lines = std::vector<std::string>;

    static Lines of(VT::VT_obj& object)
    {
        Record_text text;
        object.visit(text);
        return text.lines;
    }

    /// The same without the ids.
    static Lines values_of(VT::VT_obj& object)
    {
        Lines lines = of(object);
        for (std::string& line : lines)
            line.erase(std::min(line.find(" #"), line.size()));
        return lines;
    }

    void attribute(const VT::Attribute_info& info, VT::Attribute_uint8& a) override { number("u8", info, a); }
    void attribute(const VT::Attribute_info& info, VT::Attribute_uint16& a) override { number("u16", info, a); }
    void attribute(const VT::Attribute_info& info, VT::Attribute_int16& a) override { number("s16", info, a); }
    void attribute(const VT::Attribute_info& info, VT::Attribute_uint32& a) override { number("u32", info, a); }
    void attribute(const VT::Attribute_info& info, VT::Attribute_int32& a) override { number("s32", info, a); }
    void attribute(const VT::Attribute_info& info, VT::Attribute_real& a) override { number("f32", info, a); }
    void attribute(const VT::Attribute_info& info, VT::Attribute_colour& a) override { number("colour", info, a); }
    void attribute(const VT::Attribute_info& info, VT::Attribute_object_id_spec& a) override
    {
        a == Iso::null_id ? line("id", info, "null") : number("id", info, a);
    }
    void attribute(const VT::Attribute_info& info, VT::Attribute_string& a) override
    {
        line("text", info, std::to_string(a.item_count) + " '" + std::string(a.text(), a.num_chars()) + "'");
    }

    void count(std::uint8_t n) override { lines.push_back("count u8 " + std::to_string(n)); }
    void count(std::uint32_t n) override { lines.push_back("count u32 " + std::to_string(n)); }
    void objects(VT::Attribute_object_placement* list, std::size_t n) override { placements("child", list, n); }
    void keys(VT::Attribute_object_placement* list, std::size_t n) override { placements("key", list, n); }
    void points(VT::Attribute_point* list, std::size_t n) override
    {
        for (std::size_t i = 0; i < n; ++i)
            lines.push_back("point " + std::to_string(list[i].x) + "," + std::to_string(list[i].y));
    }
    void macros(const VT::Macro_reference* list, std::size_t n) override
    {
        for (std::size_t i = 0; i < n; ++i)
            lines.push_back("macro " + std::to_string(list[i].event) + ":" + std::to_string(list[i].macro));
    }
    void raw(const void* data, std::size_t n) override
    {
        lines.push_back("raw '" + std::string(static_cast<const char*>(data), n) + "'");
    }

  private:
    void line(const char* type, const VT::Attribute_info& info, const std::string& value)
    {
        lines.push_back(std::string(type) + " " + info.name + " " + value +
                        (info.id ? " #" + std::to_string(info.id) : ""));
    }

    template <typename A>
    void number(const char* type, const VT::Attribute_info& info, const A& attribute)
    {
        std::ostringstream value;
        value << +attribute;
        line(type, info, value.str());
    }

    void placements(const char* kind, const VT::Attribute_object_placement* list, std::size_t n)
    {
        for (std::size_t i = 0; i < n; ++i)
            lines.push_back(std::string(kind) + " " + std::to_string(list[i].object_id) + " at " +
                            std::to_string(list[i].x) + "," + std::to_string(list[i].y));
    }

    Lines lines;
};

#endif
