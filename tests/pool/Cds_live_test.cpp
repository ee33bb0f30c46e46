// Fields of the central data store in a live pool: from one terminal message to the next.

#include "tests/pool/Fake_terminal.h"
#include "tests/pool/Screen.h"
#include "vtui/comp/objects/Font_attributes_obj.h"
#include "vtui/comp/objects/Rectangle_obj.h"
#include "vtui/comp/widgets/Cds_number_widget.h"

#include <gtest/gtest.h>

#include <vector>

using Messages = std::vector<Bytes>;

namespace {

/// A screen that shows a rate twice: to be entered, and to be read.
struct Rate_screen : Screen
{
    Rate_screen()
    {
        mask.add(entered.root(), 0, 0);
        mask.add(shown.root(), 0, 40);
        pool.route(entered);
        pool.route(shown);
        for (C::Number_widget* const field :
             {static_cast<C::Number_widget*>(&entered), static_cast<C::Number_widget*>(&shown)}) {
            field->init(&pool, nullptr);
            field->set_size({100, 40});
        }
        loaded = bool(pool.load(terminal));
        news();
    }

    static Bytes value(const VT::VT_obj& number, int raw) { return frame(0xA8, w(number.get_id()), 0xFF, d(raw)); }
    Messages news() { return terminal.take_sent(); }
    /// The messages that bring both fields to a raw value, in the order in which they are concerned.
    Messages shown_as(int raw) const
    {
        return {value(entered.output_number, raw), value(entered.input_number, raw), value(shown.output_number, raw)};
    }

    short rate{200};
    CDS::Head head{rate};
    Fake_terminal terminal;
    C::Font_attributes_obj font;
    C::Rectangle_obj backdrop;
    C::Number_widget::Specification tenths{Units_man::none, 0, 500, 0.1, 1};
    C::Cds_number_widget<short> entered{head, rate, {&font, &font, &backdrop, 0, true}, tenths, nullptr};
    C::Cds_number_widget<short> shown{head, rate, {&font, &font, &backdrop, 0, false}, tenths, nullptr};
    bool loaded{false};
};

TEST(CdsLive, AnEntryGoesIntoTheStoreAndFromThereToAllThatShowIt)
{
    Rate_screen screen;
    ASSERT_TRUE(screen.loaded);
    EXPECT_EQ(screen.head.deliver(), 2U);
    EXPECT_EQ(screen.news(), screen.shown_as(2000)) << "what waited since the start";

    say(screen.pool, frame(0x05, w(screen.entered.input_number.get_id()), 0xFF, d(1236))); // 123.6
    EXPECT_EQ(screen.rate, 124);
    EXPECT_EQ(screen.news(), Messages{screen.value(screen.entered.output_number, 1236)});
    EXPECT_EQ(screen.head.deliver(), 2U);
    EXPECT_EQ(screen.news(), screen.shown_as(1240));
}

TEST(CdsLive, AChangeIsNotedWhileTheLinkIsGone)
{
    Rate_screen screen;
    ASSERT_TRUE(screen.loaded);
    screen.head.deliver();
    screen.news();
    screen.pool.disconnect();
    {
        CDS::Write write(screen.head);
        write.set(screen.rate, 90);
    }
    EXPECT_EQ(screen.head.deliver(), 2U);
    EXPECT_EQ(screen.news(), Messages{});
    EXPECT_EQ(screen.shown.output_number.value, 900U);
}

} // namespace
