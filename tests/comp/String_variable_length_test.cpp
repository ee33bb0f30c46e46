// The length that a live text is set with, on a platform that writes down what it is asked for. The platform's class
// has another name here than in the libraries that this program is linked with.

#define VT_STRING_VARIABLE_OBJ_H
#define String_variable_obj Asked_variable_obj

#include "vt/VT_obj.h"

#include <cstdint>
#include <string>
#include <vector>

namespace VT {

class Asked_variable_obj : public VT_obj
{
  public:
    struct Request
    {
        std::uint16_t offset;
        std::string text;
        unsigned length;
    };

    Asked_variable_obj(Iso::Object_id id, const char* name, std::uint16_t length, char* text)
        : VT_obj(id, name, Iso::Object_type::string_variable), value(text, length)
    {}

    void set_string(std::uint16_t offset, const char* text, unsigned length)
    {
        requests.push_back({offset, text, length});
    }

    void visit(Attribute_visitor&) override {}

    Attribute_string value;
    std::vector<Request> requests;
};

} // namespace VT

#include "vtui/comp/objects/String_variable_obj.h"

#include <gtest/gtest.h>

namespace {

using Text = VT::Comp::Asked_variable_obj<3>;

TEST(StringVariable, IsSetWithTheLengthThatItsWholeTextWouldHave)
{
    Text text;
    text.format("%s", "abcdefgh");
    EXPECT_TRUE(text.requests.empty()) << "without an id it goes into the buffer";
    text.set_pool(nullptr, 9);
    text.format("%s", "abcdefgh");
    text.format("%d", 42);
    ASSERT_EQ(text.requests.size(), 2U);
    EXPECT_EQ(text.requests[0].offset, 0);
    EXPECT_EQ(text.requests[0].text, "abc") << "of which only as much as fits is there";
    EXPECT_EQ(text.requests[0].length, 8U);
    EXPECT_EQ(text.requests[1].text, "42");
    EXPECT_EQ(text.requests[1].length, 2U);
}

} // namespace
