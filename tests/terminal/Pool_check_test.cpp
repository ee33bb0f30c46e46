#include "Records.h"

#include "terminal/Pool_check.h"

#include <gtest/gtest.h>

using namespace records;
using terminal::Object_pool;
using terminal::Pool_fault;

namespace {

Pool_fault check(const Bytes& bytes)
{
    Object_pool pool;
    EXPECT_FALSE(pool.parse(bytes));
    return terminal::check_pool(pool);
}

/// Checks a record as part of an otherwise sound pool: the complete pool, where the record replaces one or is added.
Pool_fault check_in_pool(const Bytes& changed)
{
    Object_pool pool;
    Object_pool rest;
    EXPECT_FALSE(pool.parse(changed));
    EXPECT_FALSE(rest.parse(complete_pool()));
    pool.keep_others_of(rest);
    return terminal::check_pool(pool);
}

void expect(const Pool_fault& fault, std::uint16_t parent, std::uint16_t object, std::uint8_t code)
{
    EXPECT_EQ(fault.parent, parent);
    EXPECT_EQ(fault.object, object);
    EXPECT_EQ(fault.code, code);
}

Bytes string_with(std::uint16_t font_id, std::uint16_t variable, int justification)
{
    return record(60, Type::output_string, w(1), w(1), 0, w(font_id), 0, w(variable), justification, w(0), 0);
}

Bytes picture_with(std::uint16_t width, std::uint16_t height, int format, int options, const Bytes& data)
{
    return record(60, Type::picture_graphic, w(10), w(width), w(height), format, options, 0,
                  d(static_cast<std::uint32_t>(data.size())), 0, data);
}

Bytes macro_with(const Bytes& commands)
{
    return record(60, Type::macro, w(static_cast<std::uint16_t>(commands.size())), commands);
}

constexpr std::uint16_t absent = 999;

} // namespace

TEST(PoolCheck, WantsOneWorkingSet)
{
    expect(check(empty_mask(1)), null_id, null_id, Pool_fault::other);
    EXPECT_FALSE(check(join(empty_working_set(1), empty_mask(1))));
    expect(check_in_pool(record(60, Type::working_set, 0, 1, w(data_mask), 0, 0, 0)), null_id, 60, Pool_fault::other);
}

TEST(PoolCheck, WantsAnActiveMaskThatIsAMask)
{
    EXPECT_FALSE(check_in_pool(empty_working_set(alarm_mask)));
    expect(check_in_pool(empty_working_set(container)), working_set, container, Pool_fault::other);
    expect(check_in_pool(empty_working_set(absent)), working_set, absent, Pool_fault::missing_object);
    expect(check_in_pool(empty_working_set(null_id)), working_set, null_id, Pool_fault::missing_object);
}

TEST(PoolCheck, NamesAReferenceToAMissingObject)
{
    expect(check_in_pool(string_with(absent, null_id, 0)), 60, absent, Pool_fault::missing_object);
    expect(check_in_pool(string_with(font, absent, 0)), 60, absent, Pool_fault::missing_object);
    expect(check_in_pool(pointer_to(60, absent)), 60, absent, Pool_fault::missing_object);
}

TEST(PoolCheck, NamesAReferenceToAnObjectOfTheWrongType)
{
    expect(check_in_pool(string_with(line_attributes, null_id, 0)), 60, line_attributes, Pool_fault::other);
    expect(check_in_pool(string_with(font, number_variable, 0)), 60, number_variable, Pool_fault::other);
    expect(check_in_pool(pointer_to(60, data_mask)), 60, data_mask, Pool_fault::other);
    expect(check_in_pool(pointer_to(60, font)), 60, font, Pool_fault::other);
    expect(check_in_pool(pointer_to(60, number_variable)), 60, number_variable, Pool_fault::other);
}

TEST(PoolCheck, LetsANullReferenceStandForNothing)
{
    EXPECT_FALSE(check_in_pool(string_with(null_id, null_id, 0)));
    EXPECT_FALSE(check_in_pool(pointer_to(60, null_id)));
    EXPECT_FALSE(check_in_pool(record(60, Type::rectangle, w(null_id), w(1), w(1), 0, w(null_id), 0)));
    EXPECT_FALSE(check_in_pool(record(60, Type::fill_attributes, 3, 0, w(null_id), 0)));
    EXPECT_FALSE(check_in_pool(record(60, Type::data_mask, 0, w(null_id), 0, 0)));
}

TEST(PoolCheck, TakesEveryReferenceOfEveryTypeToItsOwnKindOnly)
{
    // Every reference of the complete pool, turned to an object that nothing may refer to in this way: the working set.
    Object_pool pool;
    ASSERT_FALSE(pool.parse(complete_pool()));
    int references = 0;
    pool.for_each([&](terminal::Object object) {
        const terminal::Record_layout& layout = object.layout();
        for (std::size_t i = 0; i < layout.n_constraints; ++i) {
            if (!layout.constraints[i].reference)
                continue;
            ++references;
            Bytes changed(object.data(), object.data() + object.size());
            Iso::write<std::uint16_t>(&changed[object.position(layout.constraints[i].slot)], working_set);
            expect(check_in_pool(changed), object.id(), working_set, Pool_fault::other);
        }
    });
    EXPECT_EQ(references, 25);
}

TEST(PoolCheck, KnowsTheCodesOfEachField)
{
    for (int code = 0; code < 256; ++code) {
        const auto known = [code](const Bytes& bytes, bool wanted) {
            EXPECT_EQ(!check_in_pool(bytes), wanted) << "code " << code << " of type " << int{bytes[2]};
        };
        const bool flag = code <= 1;
        const bool justification = (code & 3) != 3 && code >> 2 <= 2;
        known(record(working_set, Type::working_set, 0, code, w(data_mask), 0, 0, 0), flag);
        known(record(60, Type::alarm_mask, 0, w(null_id), code, 0, 0, 0), code <= 2);
        known(record(60, Type::alarm_mask, 0, w(null_id), 0, code, 0, 0), code <= 3);
        known(record(60, Type::container, w(1), w(1), code, 0, 0), flag);
        known(record(60, Type::input_boolean, 0, w(1), w(font), w(null_id), code, 0, 0), flag);
        known(record(60, Type::input_boolean, 0, w(1), w(font), w(null_id), 0, code, 0), flag);
        known(record(60, Type::input_string, w(1), w(1), 0, w(font), w(null_id), 0, w(null_id), code, 0, 0, 0),
              justification);
        known(record(60, Type::input_string, w(1), w(1), 0, w(font), w(null_id), 0, w(null_id), 0, 2, "ab", code, 0),
              flag);
        known(string_with(font, null_id, code), justification);
        const auto number = [](int decimals, int format, int place) {
            return record(60, Type::output_number, w(1), w(1), 0, w(font), 0, w(null_id), d(0), d(0), f(1), decimals,
                          format, place, 0);
        };
        known(number(code, 0, 0), code <= 7);
        known(number(0, code, 0), flag);
        known(number(0, 0, code), justification);
        known(record(60, Type::line, w(null_id), w(1), w(1), code, 0), flag);
        known(record(60, Type::ellipse, w(null_id), w(1), w(1), code, 0, 0, w(null_id), 0), code <= 3);
        known(record(60, Type::polygon, w(1), w(1), w(null_id), w(null_id), code, 0, 0), code <= 3);
        known(picture_with(0, 0, code, 0, {}), code <= 2);
        known(record(60, Type::font_attributes, 0, code, 0, 0, 0), code <= 14);
        known(record(60, Type::font_attributes, 0, 0, code, 0, 0), code <= 7 && code != 3 && code != 6);
        known(record(60, Type::fill_attributes, code, 0, w(null_id), 0), code <= 3);
        known(record(60, Type::input_attributes, code, 0, 0), flag);
        // Any colour, width and set of option bits will do.
        known(record(60, Type::line_attributes, code, code, w(0), 0), true);
        known(record(60, Type::button, w(1), w(1), code, code, code, code, 0, 0), true);
    }
    expect(check_in_pool(record(60, Type::line, w(null_id), w(1), w(1), 2, 0)), null_id, 60, Pool_fault::other);
}

TEST(PoolCheck, WantsThePixelsOfAPicture)
{
    EXPECT_FALSE(check_in_pool(picture_with(0, 0, 2, 0, {})));
    EXPECT_FALSE(check_in_pool(picture_with(9, 2, 0, 0, Bytes(4)))) << "nine bits a row take two bytes";
    expect(check_in_pool(picture_with(9, 2, 0, 0, Bytes(3))), null_id, 60, Pool_fault::other);
    EXPECT_FALSE(check_in_pool(picture_with(3, 2, 1, 0, Bytes(4)))) << "three half bytes a row take two bytes";
    expect(check_in_pool(picture_with(3, 2, 1, 0, Bytes(3))), null_id, 60, Pool_fault::other);
    EXPECT_FALSE(check_in_pool(picture_with(3, 2, 2, 0, Bytes(6))));
    expect(check_in_pool(picture_with(3, 2, 2, 0, Bytes(5))), null_id, 60, Pool_fault::other);
    EXPECT_FALSE(check_in_pool(picture_with(3, 2, 2, 0, Bytes(7)))) << "more than the pixels does no harm";
}

TEST(PoolCheck, CountsThePixelsOfTheLargestPicture)
{
    // 65535 × 65535 bytes are 4294836225: as 32 bits it would be a negative number, and with one more row none at all.
    expect(check_in_pool(picture_with(65535, 65535, 2, 0, Bytes(100))), null_id, 60, Pool_fault::other);
    expect(check_in_pool(picture_with(65535, 65535, 0, 0, Bytes(100))), null_id, 60, Pool_fault::other);
    EXPECT_FALSE(check_in_pool(picture_with(65535, 0, 2, 0, {})));
}

TEST(PoolCheck, LeavesRunLengthEncodedPicturesToTheirData)
{
    EXPECT_FALSE(check_in_pool(picture_with(65535, 65535, 2, 4, {1, 2})));
    EXPECT_FALSE(check_in_pool(picture_with(2, 2, 2, 4, {})));
}

TEST(PoolCheck, WantsMacrosThatExistAndAreMacros)
{
    expect(check_in_pool(record(60, Type::container, w(1), w(1), 0, 0, 1, 1, 200)), 60, 200,
           Pool_fault::missing_object);
    expect(check_in_pool(record(60, Type::container, w(1), w(1), 0, 0, 2, 1, macro, 1, font)), 60, font,
           Pool_fault::other);
}

TEST(PoolCheck, WantsWholeCommandsInAMacro)
{
    const Bytes hide = join(0xA0, w(container), 0, repeat(4, 0xFF));
    const Bytes long_text = join(0xB3, w(string_variable), w(8), "variable");
    const Bytes short_text = join(0xB3, w(string_variable), w(1), "v", 0xFF, 0xFF);
    EXPECT_FALSE(check_in_pool(macro_with({})));
    EXPECT_FALSE(check_in_pool(macro_with(join(hide, long_text, short_text, hide))));
    const auto cut = [](Bytes bytes, std::size_t n) {
        bytes.resize(bytes.size() - n);
        return bytes;
    };
    expect(check_in_pool(macro_with(cut(hide, 1))), null_id, 60, Pool_fault::other);
    expect(check_in_pool(macro_with(cut(long_text, 1))), null_id, 60, Pool_fault::other);
    expect(check_in_pool(macro_with(cut(short_text, 1))), null_id, 60, Pool_fault::other);
    expect(check_in_pool(macro_with(cut(short_text, 4))), null_id, 60, Pool_fault::other);
    expect(check_in_pool(macro_with(join(hide, 0xB4, repeat(7, 0)))), null_id, 60, Pool_fault::other);
}

TEST(PoolCheck, RefusesCommandsThatNoMacroMayHold)
{
    for (const int function : {0x00, 0x11, 0x12, 0xC0, 0xC7, 0xA2, 0xFF})
        expect(check_in_pool(macro_with(join(function, repeat(7, 0xFF)))), null_id, 60, Pool_fault::not_supported);
}
