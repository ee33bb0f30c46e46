#ifndef TESTS_PLATFORM_OBJECTS_H
#define TESTS_PLATFORM_OBJECTS_H

#include "vt/Button_obj.h"
#include "vt/Container_obj.h"
#include "vt/Fill_attributes_obj.h"
#include "vt/Font_attributes_obj.h"
#include "vt/Input_number_obj.h"
#include "vt/Key_obj.h"
#include "vt/Line_attributes_obj.h"
#include "vt/Line_obj.h"
#include "vt/Mask_obj.h"
#include "vt/Object_pointer_obj.h"
#include "vt/Output_number_obj.h"
#include "vt/Output_string_obj.h"
#include "vt/Picture_graphic_obj.h"
#include "vt/Polygon_obj.h"
#include "vt/Rectangle_obj.h"
#include "vt/String_variable_obj.h"
#include "vt/Working_set_obj.h"

/// One object of each class, outside any pool, with values that differ from each other where that tells them apart.
namespace objects {

constexpr Iso::Object_id none = VT::VT_obj::NULL_ID;

inline const std::uint8_t pixels[] = {'a', 'b', 'c', 'd'};

inline VT::Container_obj container(VT::Attribute_object_placement* children = nullptr, std::uint8_t count = 0)
{
    return {none, nullptr, 240, 120, 0, count, 0, children, nullptr};
}
inline VT::Button_obj button() { return {none, nullptr, 60, 30, 7, 8, 9, 4, 0, 0, nullptr, nullptr}; }
inline VT::Key_obj key() { return {none, nullptr, 5, 6, 0, 0, nullptr, nullptr}; }
inline VT::Output_number_obj output_number()
{
    return {none, nullptr, 100, 16, 3, 21, 8, 22, 1234, -5, 0.5F, 2, 1, 6, 0};
}
inline VT::Input_number_obj input_number()
{
    return {none, nullptr, 100, 16, 3, 21, 8, 22, 1234, 10, 2000, -5, 0.5F, 2, 1, 6, 1, 0};
}
inline VT::Output_string_obj output_string(char* text = nullptr, std::uint16_t length = 0)
{
    return {none, nullptr, 80, 24, 3, 21, 2, 22, 5, length, text, 0};
}
inline VT::Rectangle_obj rectangle() { return {none, nullptr, 31, 70, 50, 9, 32, 0}; }
inline VT::Line_obj line() { return {none, nullptr, 31, 70, 50, 1, 0}; }
inline VT::Polygon_obj polygon(VT::Attribute_point* points = nullptr, std::uint8_t count = 0)
{
    return {none, nullptr, 70, 50, 31, 32, 2, count, 0, points, nullptr};
}
inline VT::Picture_graphic_obj picture() { return {none, nullptr, 64, 2, 2, 2, 1, 13, sizeof pixels, 0, pixels}; }
inline VT::Object_pointer_obj object_pointer() { return {none, nullptr, 40}; }
inline VT::String_variable_obj string_variable(char* text, std::uint16_t length)
{
    return {none, nullptr, length, text};
}
inline VT::Font_attributes_obj font(std::uint8_t size = 6) { return {none, nullptr, 9, size, 1, 5, 0}; }
inline VT::Line_attributes_obj line_attributes() { return {none, nullptr, 9, 2, 0xF0F0, 0}; }
inline VT::Fill_attributes_obj fill() { return {none, nullptr, 3, 12, 33, 0}; }

} // namespace objects

#endif
