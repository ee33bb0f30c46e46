#include "Session.h"

#include "terminal/Pool_check.h"

using namespace records;
using terminal::Field;

namespace {

constexpr std::uint16_t absent = 999;

/// The complete pool, live. A good command changes it; a bad one is answered with its error and changes nothing.
class Commands : public ::testing::Test
{
  protected:
    void SetUp() override { ASSERT_EQ(session.load(complete_pool()), accepted); }

    void expect_done(const Bytes& command, const Bytes& answer)
    {
        const std::uint32_t revision = session.terminal.revision();
        EXPECT_EQ(session.ask(command), answer);
        EXPECT_NE(session.terminal.revision(), revision);
        EXPECT_FALSE(terminal::check_pool(session.terminal.pool()));
    }

    void expect_refused(const Bytes& command, const Bytes& answer)
    {
        const Bytes before = bytes_of(session.terminal.pool());
        const std::uint32_t revision = session.terminal.revision();
        EXPECT_EQ(session.ask(command), answer);
        EXPECT_EQ(bytes_of(session.terminal.pool()), before);
        EXPECT_EQ(session.terminal.revision(), revision);
    }

    std::uint32_t value(std::uint16_t id, Field field) { return session.terminal.pool().find(id).u32(field); }
    terminal::Child child(std::uint16_t id, std::size_t index)
    {
        return session.terminal.pool().find(id).children()[index];
    }

    Session session;
};

} // namespace

TEST_F(Commands, HideAndShowAContainer)
{
    expect_done(message(0xA0, w(container), 0), message(0xA0, w(container), 0, 0));
    EXPECT_EQ(value(container, Field::hidden), 1u);
    expect_done(message(0xA0, w(container), 1), message(0xA0, w(container), 1, 0));
    EXPECT_EQ(value(container, Field::hidden), 0u);
}

TEST_F(Commands, HideOnlyContainersAndOnlyByZeroOrOne)
{
    expect_refused(message(0xA0, w(absent), 0), message(0xA0, w(absent), 0, 2));
    expect_refused(message(0xA0, w(null_id), 0), message(0xA0, w(null_id), 0, 2));
    expect_refused(message(0xA0, w(button), 0), message(0xA0, w(button), 0, 2));
    expect_refused(message(0xA0, w(container), 2), message(0xA0, w(container), 2, 4));
}

TEST_F(Commands, EnableAndDisableEachControlByItsOwnBit)
{
    const struct
    {
        Id id;
        Field field;
        std::uint32_t disabled;
        std::uint32_t enabled;
    } controls[] = {
        {button, Field::options, 2 | 16, 2},  {input_boolean, Field::enabled, 0, 1},
        {input_string, Field::enabled, 0, 1}, {input_number, Field::options_2, 0, 1},
        {input_list, Field::options, 0, 1},
    };
    for (const auto& control : controls) {
        expect_done(message(0xA1, w(control.id), 0), message(0xA1, w(control.id), 0, 0));
        EXPECT_EQ(value(control.id, control.field), control.disabled);
        expect_done(message(0xA1, w(control.id), 1), message(0xA1, w(control.id), 1, 0));
        EXPECT_EQ(value(control.id, control.field), control.enabled);
    }
    EXPECT_EQ(session.terminal.pool().find(input_string).text(), "Hello") << "the byte behind the text is meant";
}

TEST_F(Commands, EnableOnlyControlsAndOnlyByZeroOrOne)
{
    expect_refused(message(0xA1, w(absent), 1), message(0xA1, w(absent), 1, 2));
    expect_refused(message(0xA1, w(key), 1), message(0xA1, w(key), 1, 2));
    expect_refused(message(0xA1, w(button), 2), message(0xA1, w(button), 2, 4));
}

TEST_F(Commands, MoveAChildByADistance)
{
    expect_done(message(0xA5, w(data_mask), w(button), 127 + 10, 127 - 20), message(0xA5, w(data_mask), w(button), 0));
    EXPECT_EQ(child(data_mask, 1).x, 9);
    EXPECT_EQ(child(data_mask, 1).y, -22);
    expect_done(message(0xA5, w(data_mask), w(button), 0, 255), message(0xA5, w(data_mask), w(button), 0));
    EXPECT_EQ(child(data_mask, 1).x, 9 - 127);
    EXPECT_EQ(child(data_mask, 1).y, -22 + 128);
}

TEST_F(Commands, MoveEveryPlaceOfTheSameChild)
{
    expect_done(message(0xA5, w(data_mask), w(container), 128, 129), message(0xA5, w(data_mask), w(container), 0));
    EXPECT_EQ(child(data_mask, 0).x, 6);
    EXPECT_EQ(child(data_mask, 0).y, 8);
    EXPECT_EQ(child(data_mask, 7).x, 301);
    EXPECT_EQ(child(data_mask, 7).y, -298);
    expect_done(join(0xB4, w(data_mask), w(container), w(0xFFFF), w(12)), message(0xB4, w(data_mask), w(container), 0));
    EXPECT_EQ(child(data_mask, 0).x, -1);
    EXPECT_EQ(child(data_mask, 0).y, 12);
    EXPECT_EQ(child(data_mask, 7).x, -1);
    EXPECT_EQ(child(data_mask, 7).y, 12);
}

TEST_F(Commands, PutAChildAnywhereInSixteenBits)
{
    expect_done(join(0xB4, w(key), w(output_string), w(0x8000), w(0x7FFF)), message(0xB4, w(key), w(output_string), 0));
    EXPECT_EQ(child(key, 0).x, -32768);
    EXPECT_EQ(child(key, 0).y, 32767);
    expect_refused(message(0xA5, w(key), w(output_string), 126, 127), message(0xA5, w(key), w(output_string), 16));
    expect_refused(message(0xA5, w(key), w(output_string), 127, 128), message(0xA5, w(key), w(output_string), 16));
}

TEST_F(Commands, MoveOnlyChildrenOfTheirParents)
{
    for (const int function : {0xA5, 0xB4}) {
        const auto refused = [&](std::uint16_t parent, std::uint16_t object, int error) {
            expect_refused(join(function, w(parent), w(object), repeat(4, 1)),
                           message(function, w(parent), w(object), error));
        };
        refused(absent, button, 1);
        refused(key, button, 1);
        refused(font, button, 1);
        refused(soft_key_mask, key, 1);
        refused(data_mask, absent, 2);
        refused(data_mask, null_id, 2);
    }
}

TEST_F(Commands, ChangeTheSizeOfEveryObjectThatHasOne)
{
    for (const Id id : {container, button, input_string, input_number, input_list, output_string, output_number, line,
                        rectangle, ellipse, polygon}) {
        expect_done(message(0xA6, w(id), w(0x1234), w(0xFFFE)), message(0xA6, w(id), 0));
        EXPECT_EQ(value(id, Field::width), 0x1234u);
        EXPECT_EQ(value(id, Field::height), 0xFFFEu);
    }
    for (const Id id : {input_boolean, picture}) {
        expect_done(message(0xA6, w(id), w(77), w(88)), message(0xA6, w(id), 0));
        EXPECT_EQ(value(id, Field::width), 77u) << "the height follows";
    }
    expect_refused(message(0xA6, w(absent), w(1), w(1)), message(0xA6, w(absent), 1));
    expect_refused(message(0xA6, w(line_attributes), w(1), w(1)), message(0xA6, w(line_attributes), 1));
}

TEST_F(Commands, ChangeTheBackgroundOfEveryObjectThatHasOne)
{
    for (const Id id : {working_set, data_mask, alarm_mask, soft_key_mask, key, button, input_boolean, input_string,
                        input_number, output_string, output_number}) {
        expect_done(message(0xA7, w(id), 201), message(0xA7, w(id), 201, 0));
        EXPECT_EQ(value(id, Field::background), 201u);
    }
    expect_refused(message(0xA7, w(absent), 5), message(0xA7, w(absent), 5, 1));
    expect_refused(message(0xA7, w(container), 5), message(0xA7, w(container), 5, 1));
}

TEST_F(Commands, ChangeNumericValues)
{
    for (const Id id : {number_variable, input_number, output_number}) {
        expect_done(message(0xA8, w(id), 0xFF, d(0xFEDCBA98)), message(0xA8, w(id), 0, d(0xFEDCBA98)));
        EXPECT_EQ(value(id, Field::value), 0xFEDCBA98u);
    }
    expect_done(message(0xA8, w(input_list), 0xFF, d(255)), message(0xA8, w(input_list), 0, d(255)));
    EXPECT_EQ(value(input_list, Field::value), 255u);
    expect_done(message(0xA8, w(input_boolean), 0xFF, d(0)), message(0xA8, w(input_boolean), 0, d(0)));
    EXPECT_EQ(value(input_boolean, Field::value), 0u);
}

TEST_F(Commands, RefuseNumericValuesThatDoNotFit)
{
    expect_refused(message(0xA8, w(absent), 0xFF, d(1)), message(0xA8, w(absent), 1, d(1)));
    expect_refused(message(0xA8, w(string_variable), 0xFF, d(1)), message(0xA8, w(string_variable), 1, d(1)));
    expect_refused(message(0xA8, w(input_list), 0xFF, d(256)), message(0xA8, w(input_list), 2, d(256)));
    expect_refused(message(0xA8, w(input_boolean), 0xFF, d(2)), message(0xA8, w(input_boolean), 2, d(2)));
    expect_refused(message(0xA8, w(input_boolean), 0xFF, d(256)), message(0xA8, w(input_boolean), 2, d(256)));
}

TEST_F(Commands, TurnAnObjectPointer)
{
    for (const std::uint16_t target : {std::uint16_t{container}, std::uint16_t{button}, null_id,
                                       std::uint16_t{output_string}, std::uint16_t{picture}}) {
        expect_done(message(0xA8, w(pointer), 0xFF, d(target)), message(0xA8, w(pointer), 0, d(target)));
        EXPECT_EQ(value(pointer, Field::value), target);
    }
    expect_done(message(0xA8, w(key_pointer), 0xFF, d(key)), message(0xA8, w(key_pointer), 0, d(key)));
    expect_done(message(0xAF, w(pointer), 1, d(polygon)), message(0xAF, w(pointer), 1, 0));
    EXPECT_EQ(value(pointer, Field::value), polygon);
}

TEST_F(Commands, TurnNoPointerToWhatMustNotStandThere)
{
    const auto refused = [this](std::uint16_t id, std::uint32_t target) {
        expect_refused(message(0xA8, w(id), 0xFF, d(target)), message(0xA8, w(id), 2, d(target)));
        expect_refused(message(0xAF, w(id), 1, d(target)), message(0xAF, w(id), 1, 4));
    };
    refused(pointer, absent);
    refused(pointer, 0x10000 + picture);
    refused(pointer, font);
    refused(pointer, data_mask);
    refused(pointer, key);         // stands in a data mask
    refused(pointer, key_pointer); // and so does what this one points at
    refused(key_pointer, picture); // stands in a soft key mask
    refused(key_pointer, button);
    refused(pointer, pointer);
}

TEST_F(Commands, CloseNoLoopByAPointer)
{
    ASSERT_EQ(session.load(join(pointer_to(70, null_id), pointer_to(71, null_id), container_of(72, {71}),
                                container_of(73, {72, 70}))),
              accepted);
    const auto turn = [](std::uint16_t id, std::uint16_t target) { return message(0xA8, w(id), 0xFF, d(target)); };
    const auto answer = [](std::uint16_t id, int error, std::uint16_t target) {
        return message(0xA8, w(id), error, d(target));
    };
    expect_refused(turn(71, 72), answer(71, 2, 72));
    expect_refused(turn(71, 73), answer(71, 2, 73));
    expect_done(turn(70, 72), answer(70, 0, 72));
    expect_refused(turn(71, 70), answer(71, 2, 70));
    expect_done(turn(70, null_id), answer(70, 0, null_id));
    expect_done(turn(71, 70), answer(71, 0, 70));
    expect_refused(turn(70, 72), answer(70, 2, 72));
    expect_refused(turn(70, 71), answer(70, 2, 71));
}

TEST_F(Commands, HideNoControlInAButtonByAPointer)
{
    const Bytes with_pointer = record(75, Type::button, w(9), w(9), 0, 0, 0, 0, 1, 0, at(74, 0, 0));
    ASSERT_EQ(session.load(join(pointer_to(74, picture), with_pointer, container_of(76, {input_number}))), accepted);
    expect_refused(message(0xA8, w(74), 0xFF, d(76)), message(0xA8, w(74), 2, d(76)));
    expect_done(message(0xA8, w(74), 0xFF, d(container)), message(0xA8, w(74), 0, d(container)));
}

TEST_F(Commands, NestNotTooDeepByAPointer)
{
    // Containers in one another, 60 deep with 160 outermost; a pointer with 4 levels above it, and one with 5.
    Bytes pool = container_of(101, {});
    for (std::uint16_t id = 102; id <= 160; ++id)
        append(pool, container_of(id, {static_cast<std::uint16_t>(id - 1)}));
    append(pool, join(pointer_to(80, null_id), container_of(81, {80}), container_of(82, {81}), container_of(83, {82})));
    append(pool, join(pointer_to(90, null_id), container_of(91, {90}), container_of(92, {91}), container_of(93, {92}),
                      container_of(94, {93})));
    append(pool, container_of(95, std::vector<std::uint16_t>(255, 101)));
    ASSERT_EQ(session.load(pool), accepted);
    const auto turn = [](std::uint16_t id, std::uint16_t target) { return message(0xA8, w(id), 0xFF, d(target)); };
    const auto answer = [](std::uint16_t id, int error, std::uint16_t target) {
        return message(0xA8, w(id), error, d(target));
    };
    expect_done(turn(80, 160), answer(80, 0, 160));
    expect_refused(turn(90, 160), answer(90, 2, 160));
    expect_done(turn(90, 95), answer(90, 0, 95));
    expect_refused(turn(90, 160), answer(90, 2, 160)); // fewer objects to draw than before, but deeper
    expect_done(turn(90, 159), answer(90, 0, 159));
}

TEST_F(Commands, DrawNotTooMuchByAPointer)
{
    // 255 × 255 times what the pointer shows: 15 objects fit into a million, 16 do not, not even if they are less deep.
    const auto many = [](std::uint16_t id) { return std::vector<std::uint16_t>(255, id); };
    Bytes pool = join(pointer_to(80, null_id), container_of(81, many(80)), container_of(82, many(81)),
                      container_of(100, {}), container_of(90, std::vector<std::uint16_t>(15, 100)));
    for (std::uint16_t id = 101; id <= 112; ++id)
        append(pool, container_of(id, {static_cast<std::uint16_t>(id - 1)}));
    ASSERT_EQ(session.load(pool), accepted);
    expect_done(message(0xA8, w(80), 0xFF, d(112)), message(0xA8, w(80), 0, d(112)));
    expect_refused(message(0xA8, w(80), 0xFF, d(90)), message(0xA8, w(80), 2, d(90)));
}

TEST_F(Commands, ChangeTheActiveMask)
{
    expect_done(message(0xAD, w(working_set), w(alarm_mask)), message(0xAD, w(alarm_mask), 0));
    EXPECT_EQ(session.terminal.active_mask().id(), alarm_mask);
    EXPECT_FALSE(session.terminal.active_soft_key_mask());
    expect_done(message(0xAD, w(working_set), w(data_mask)), message(0xAD, w(data_mask), 0));
    EXPECT_EQ(session.terminal.active_mask().id(), data_mask);
    expect_refused(message(0xAD, w(data_mask), w(data_mask)), message(0xAD, w(data_mask), 1));
    expect_refused(message(0xAD, w(absent), w(data_mask)), message(0xAD, w(data_mask), 1));
    expect_refused(message(0xAD, w(working_set), w(absent)), message(0xAD, w(absent), 2));
    expect_refused(message(0xAD, w(working_set), w(null_id)), message(0xAD, w(null_id), 2));
    expect_refused(message(0xAD, w(working_set), w(container)), message(0xAD, w(container), 2));
}

TEST_F(Commands, ChangeTheSoftKeyMaskOfAMask)
{
    expect_done(message(0xAE, 2, w(alarm_mask), w(soft_key_mask)), message(0xAE, w(alarm_mask), w(soft_key_mask), 0));
    EXPECT_EQ(value(alarm_mask, Field::soft_key_mask), soft_key_mask);
    expect_done(message(0xAE, 1, w(data_mask), w(null_id)), message(0xAE, w(data_mask), w(null_id), 0));
    EXPECT_FALSE(session.terminal.active_soft_key_mask());
    expect_refused(message(0xAE, 2, w(data_mask), w(soft_key_mask)), message(0xAE, w(data_mask), w(soft_key_mask), 1));
    expect_refused(message(0xAE, 1, w(alarm_mask), w(soft_key_mask)),
                   message(0xAE, w(alarm_mask), w(soft_key_mask), 1));
    expect_refused(message(0xAE, 3, w(data_mask), w(soft_key_mask)), message(0xAE, w(data_mask), w(soft_key_mask), 1));
    expect_refused(message(0xAE, 1, w(absent), w(soft_key_mask)), message(0xAE, w(absent), w(soft_key_mask), 1));
    expect_refused(message(0xAE, 1, w(data_mask), w(absent)), message(0xAE, w(data_mask), w(absent), 2));
    expect_refused(message(0xAE, 1, w(data_mask), w(key)), message(0xAE, w(data_mask), w(key), 2));
}

TEST_F(Commands, ChangeEveryAttributeByItsNumber)
{
    const struct
    {
        Id id;
        std::vector<Field> by_number; ///< from 1; none: not changeable
    } types[] = {
        {working_set, {Field::background, Field::selectable, Field::active_mask}},
        {data_mask, {Field::background, Field::soft_key_mask}},
        {alarm_mask, {Field::background, Field::soft_key_mask, Field::priority, Field::acoustic_signal}},
        {container, {Field::width, Field::height, Field::none}},
        {soft_key_mask, {Field::background}},
        {key, {Field::background, Field::key_code}},
        {button,
         {Field::width, Field::height, Field::background, Field::border_colour, Field::key_code, Field::options}},
        {input_boolean, {Field::background, Field::width, Field::font, Field::variable, Field::none, Field::none}},
        {input_string,
         {Field::width, Field::height, Field::background, Field::font, Field::input_attributes, Field::options,
          Field::variable, Field::justification, Field::none}},
        {input_number,
         {Field::width, Field::height, Field::background, Field::font, Field::options, Field::variable, Field::minimum,
          Field::maximum, Field::offset, Field::scale, Field::decimals, Field::format, Field::justification,
          Field::none, Field::options_2}},
        {input_list, {Field::width, Field::height, Field::variable, Field::none, Field::options}},
        {output_string,
         {Field::width, Field::height, Field::background, Field::font, Field::options, Field::variable,
          Field::justification}},
        {output_number,
         {Field::width, Field::height, Field::background, Field::font, Field::options, Field::variable, Field::offset,
          Field::scale, Field::decimals, Field::format, Field::justification, Field::none}},
        {line, {Field::line_attributes, Field::width, Field::height, Field::direction}},
        {rectangle, {Field::line_attributes, Field::width, Field::height, Field::suppression, Field::fill_attributes}},
        {ellipse,
         {Field::line_attributes, Field::width, Field::height, Field::ellipse_type, Field::start_angle,
          Field::end_angle, Field::fill_attributes}},
        {polygon, {Field::width, Field::height, Field::line_attributes, Field::fill_attributes, Field::polygon_type}},
        {picture, {Field::width, Field::options, Field::transparency_colour, Field::none, Field::none, Field::none}},
        {number_variable, {Field::none}},
        {string_variable, {Field::none}},
        {font, {Field::colour, Field::font_size, Field::font_type, Field::font_style}},
        {line_attributes, {Field::colour, Field::line_width, Field::line_art}},
        {fill_attributes, {Field::fill_type, Field::colour, Field::pattern}},
        {input_attributes, {Field::validation_type}},
        {pointer, {Field::value}},
        {macro, {Field::none}},
    };
    for (const auto& type : types) {
        for (unsigned number = 0; number < 256; ++number) {
            const Field field =
                number >= 1 && number <= type.by_number.size() ? type.by_number[number - 1] : Field::none;
            const int aid = static_cast<int>(number);
            SCOPED_TRACE("object " + std::to_string(type.id) + " attribute " + std::to_string(number));
            if (field == Field::none) {
                expect_refused(message(0xAF, w(type.id), aid, d(0)), message(0xAF, w(type.id), aid, 2));
                continue;
            }
            // Write the value that stands there, then, where any will do, its opposite. Neighbours stay as they are.
            const terminal::Object object = session.terminal.pool().find(type.id);
            const auto slot = object.layout().slots[static_cast<std::size_t>(field)];
            const std::uint32_t old = object.u32(field);
            expect_done(message(0xAF, w(type.id), aid, d(old)), message(0xAF, w(type.id), aid, 0));
            const std::uint32_t all = slot.size == 4 ? 0xFFFFFFFF : (1u << 8 * slot.size) - 1;
            const bool encoding = field == Field::options && type.id == picture;
            const std::uint32_t opposite = encoding ? old ^ 0xFB : old ^ all;
            Bytes wanted(object.data(), object.data() + object.size());
            const Bytes answer = session.ask(message(0xAF, w(type.id), aid, d(opposite)));
            if (answer[4] == 0) {
                for (std::size_t i = 0; i < slot.size; ++i)
                    wanted[slot.offset + i] = static_cast<std::uint8_t>(opposite >> 8 * i);
            } else {
                EXPECT_EQ(answer[4], 4);
            }
            EXPECT_EQ(Bytes(object.data(), object.data() + object.size()), wanted);
            if (all != 0xFFFFFFFF)
                expect_refused(message(0xAF, w(type.id), aid, d(all + 1)), message(0xAF, w(type.id), aid, 4));
            EXPECT_FALSE(terminal::check_pool(session.terminal.pool()));
            session.ask(message(0xAF, w(type.id), aid, d(old)));
        }
    }
    EXPECT_EQ(bytes_of(session.terminal.pool()), complete_pool());
}

TEST_F(Commands, RefuseAttributeValuesThatMustNotStandThere)
{
    const auto refused = [this](Id id, int aid, std::uint32_t wrong) {
        expect_refused(message(0xAF, w(id), aid, d(wrong)), message(0xAF, w(id), aid, 4));
    };
    expect_refused(message(0xAF, w(absent), 1, d(0)), message(0xAF, w(absent), 1, 1));
    refused(container, 1, 0x10000);
    refused(data_mask, 1, 256);
    refused(font, 2, 15);
    refused(font, 3, 3);
    refused(line, 4, 2);
    refused(output_string, 7, 3);
    refused(output_string, 4, absent);
    refused(output_string, 4, line_attributes);
    refused(output_string, 4, 0x10000 + font);
    refused(output_string, 6, number_variable);
    refused(fill_attributes, 3, fill_attributes);
    refused(working_set, 3, null_id);
    refused(working_set, 3, soft_key_mask);
    refused(picture, 2, 5); // run-length encoded, which the data are not
}

TEST_F(Commands, LetAnAttributeReferToNothing)
{
    expect_done(message(0xAF, w(output_string), 4, d(null_id)), message(0xAF, w(output_string), 4, 0));
    EXPECT_EQ(value(output_string, Field::font), null_id);
    expect_done(message(0xAF, w(data_mask), 2, d(null_id)), message(0xAF, w(data_mask), 2, 0));
}

TEST_F(Commands, ChangeATextAndFillItsRoomWithSpaces)
{
    const auto text_of = [this](Id id) { return session.terminal.pool().find(id).text(); };
    expect_done(message(0xB3, w(output_string), w(5), "Salve"), message(0xB3, 0xFF, 0xFF, w(output_string), 0));
    EXPECT_EQ(text_of(output_string), "Salve");
    expect_done(message(0xB3, w(output_string), w(2), "ab"), message(0xB3, 0xFF, 0xFF, w(output_string), 0));
    EXPECT_EQ(text_of(output_string), "ab   ");
    expect_done(message(0xB3, w(string_variable), w(0)), message(0xB3, 0xFF, 0xFF, w(string_variable), 0));
    EXPECT_EQ(text_of(string_variable), "        ");
    expect_done(message(0xB3, w(input_string), w(1), "x"), message(0xB3, 0xFF, 0xFF, w(input_string), 0));
    EXPECT_EQ(text_of(input_string), "x    ");
    EXPECT_EQ(value(input_string, Field::enabled), 1u);
    expect_done(message(0xB3, w(input_attributes), w(4), "9876"), message(0xB3, 0xFF, 0xFF, w(input_attributes), 0));
    EXPECT_EQ(text_of(input_attributes), "9876");
}

TEST_F(Commands, RefuseTextsThatDoNotFit)
{
    const auto refused = [this](std::uint16_t id, std::uint16_t length, const Bytes& bytes, int error) {
        expect_refused(message(0xB3, w(id), w(length), bytes), message(0xB3, 0xFF, 0xFF, w(id), error));
    };
    refused(absent, 1, {'x'}, 2);
    refused(font, 1, {'x'}, 2);
    refused(picture, 1, {'x'}, 2);
    refused(macro, 1, {'x'}, 2);
    refused(output_string, 6, repeat(6, 'x'), 4);
    refused(output_string, 5, repeat(4, 'x'), 8);
    refused(output_string, 0xFFFF, repeat(4, 'x'), 8);
}

TEST_F(Commands, AnswerAnUnknownObjectWhileThereIsNoPool)
{
    session.terminal.disconnect();
    EXPECT_EQ(session.ask(message(0xA0, w(container), 0)), message(0xA0, w(container), 0, 2));
    EXPECT_EQ(session.ask(message(0xA8, w(container), 0xFF, d(0))), message(0xA8, w(container), 1, d(0)));
    EXPECT_EQ(session.ask(message(0xAF, w(container), 1, d(0))), message(0xAF, w(container), 1, 1));
    EXPECT_EQ(session.ask(message(0xB3, w(container), w(0))), message(0xB3, 0xFF, 0xFF, w(container), 2));
}

TEST_F(Commands, IgnoreMessagesThatAreTooShort)
{
    const struct
    {
        int function;
        std::size_t needed;
    } sizes[] = {{0xA0, 4}, {0xA1, 4}, {0xA5, 7}, {0xA6, 7}, {0xA7, 4}, {0xA8, 8},
                 {0xAD, 5}, {0xAE, 6}, {0xAF, 8}, {0xB3, 5}, {0xB4, 9}};
    for (const auto& [function, needed] : sizes) {
        for (std::size_t length = 1; length <= needed; ++length) {
            Bytes command(length, 0);
            command[0] = static_cast<std::uint8_t>(function);
            EXPECT_EQ(session.ask(command).empty(), length < needed) << function << " of " << length << " bytes";
        }
    }
}
