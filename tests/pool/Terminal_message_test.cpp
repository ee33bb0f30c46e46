#include "pool/Terminal_message.h"
#include "tests/Bytes.h"

#include <gtest/gtest.h>

namespace {

template <class T>
T decoded(const Bytes& message)
{
    const VT::Terminal_message result = VT::decode(message.data(), message.size());
    EXPECT_TRUE(std::holds_alternative<T>(result));
    return std::holds_alternative<T>(result) ? std::get<T>(result) : T{};
}

} // namespace

TEST(TerminalMessage, Activations)
{
    const auto key = decoded<VT::Soft_key_activation_event>(frame(0x00, 2, w(300), w(400), 5));
    EXPECT_EQ(key.activation_code, Iso::Activation::held);
    EXPECT_EQ(key.object_id, 300);
    EXPECT_EQ(key.mask_id, 400);
    EXPECT_EQ(key.key_code, 5);
    const auto button = decoded<VT::Button_activation_event>(frame(0x01, 0, w(301), w(401), 6));
    EXPECT_EQ(button.activation_code, Iso::Activation::released);
    EXPECT_EQ(button.object_id, 301);
    EXPECT_EQ(button.mask_id, 401);
    EXPECT_EQ(button.key_code, 6);
}

TEST(TerminalMessage, Input)
{
    const auto number = decoded<VT::VT_change_numeric_value_event>(frame(0x05, w(300), 0xFF, d(0x89ABCDEF)));
    EXPECT_EQ(number.object_id, 300);
    EXPECT_EQ(number.value, 0x89ABCDEF);
    const auto text = decoded<VT::VT_change_string_value_event>(frame(0x08, w(300), 2, "ab"));
    EXPECT_EQ(text.object_id, 300);
    EXPECT_EQ(text.value, "ab");
    const auto selected = decoded<VT::Select_input_object_event>(frame(0x03, w(300), 1, 0));
    EXPECT_EQ(selected.object_id, 300);
    EXPECT_TRUE(selected.selected);
    EXPECT_FALSE(selected.open_for_input);
    const auto esc = decoded<VT::Esc_event>(frame(0x04, w(300), 16));
    EXPECT_EQ(esc.object_id, 300);
    EXPECT_EQ(esc.error, 16);
}

TEST(TerminalMessage, Answers)
{
    const auto hardware = decoded<VT::VT_information>(frame(0xC7, 9, 1, 2, w(480), w(320)));
    EXPECT_EQ(hardware.boot_time, 9);
    EXPECT_EQ(hardware.code, 1U);
    EXPECT_EQ(hardware.options, 2);
    EXPECT_EQ(hardware.mask_width, 480);
    EXPECT_EQ(hardware.mask_height, 320);
    const auto memory = decoded<VT::Memory_response>(frame(0xC0, 4, 1));
    EXPECT_EQ(memory.terminal_version, 4);
    EXPECT_FALSE(memory.enough);
    const auto end = decoded<VT::End_of_object_pool_response>(frame(0x12, 1, w(300), w(301), 4));
    EXPECT_FALSE(end.accepted);
    EXPECT_EQ(end.faulty_parent, 300);
    EXPECT_EQ(end.faulty_object, 301);
    EXPECT_EQ(end.error, 4);
    const auto status = decoded<VT::Terminal_status>(frame(0xFE, 0x26, w(300), w(301), 1, 0x11));
    EXPECT_EQ(status.working_set_address, 0x26);
    EXPECT_EQ(status.active_mask, 300);
    EXPECT_EQ(status.active_soft_key_mask, 301);
    EXPECT_EQ(status.busy_codes, 1);
    EXPECT_EQ(status.function, 0x11);
}

TEST(TerminalMessage, ResponsesToEveryCommand)
{
    const Bytes responses[] = {
        frame(0xA0, w(300), 1, 4),    frame(0xA1, w(300), 1, 4),
        frame(0xA5, w(300), w(1), 4), frame(0xA6, w(300), 4),
        frame(0xA7, w(300), 9, 4),    frame(0xA8, w(300), 4, d(7)),
        frame(0xAD, w(300), 4),       frame(0xAE, w(300), w(1), 4),
        frame(0xAF, w(300), 1, 4),    frame(0xB3, w(0xFFFF), w(300), 4),
        frame(0xB4, w(300), w(1), 4),
    };
    for (const Bytes& response : responses) {
        const auto command = decoded<VT::Command_response>(response);
        EXPECT_EQ(static_cast<std::uint8_t>(command.function), response[0]);
        EXPECT_EQ(command.object_id, 300) << int{response[0]};
        EXPECT_EQ(command.error, 4) << int{response[0]};
    }
}

TEST(TerminalMessage, SaysWhichFunctionTheTerminalDoesNotKnow)
{
    EXPECT_EQ(decoded<VT::Unsupported_function_response>(frame(0xFD, 0xA0)).function, Iso::Function::hide_show);
}

TEST(TerminalMessage, IsNothingWhenItIsUnknownOrTooShort)
{
    for (const Bytes& message : {frame(0xC3), frame(0x77), Bytes(), Bytes(7, 0), frame(0x08, w(300), 5, "abcd")})
        EXPECT_TRUE(std::holds_alternative<std::monostate>(VT::decode(message.data(), message.size())));
}
