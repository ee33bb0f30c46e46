#ifndef TESTS_COMP_SCROLL_H
#define TESTS_COMP_SCROLL_H

#include "tests/comp/Parts.h"
#include "vt/Event.h"
#include "vtui/comp/Connection_elements.h"
#include "vtui/comp/widgets/Scroll_parts.h"

#include <array>
#include <cstddef>

namespace scroll {

using namespace VT::Comp;
using namespace parts;
using Iso::Activation;
using Lines = Record_text::Lines;

constexpr Iso::Object_id container_id = 0x1001;
constexpr Iso::Object_id track_id = 0x1002;
constexpr Iso::Object_id indicator_id = 0x1003;
constexpr Iso::Object_id back_pointer_id = 0x1004;
constexpr Iso::Object_id on_pointer_id = 0x1005;
constexpr Iso::Object_id back_key_id = 0x1006;
constexpr Iso::Object_id on_key_id = 0x1007;
constexpr Iso::Object_id content_id = 0x2001;
constexpr Iso::Object_id other_id = 0x2002;

/// What both scroll widgets borrow, a pool for them, and what is said of both.
class Scroll : public ::testing::Test
{
  protected:
    /// As the widget's constructor leaves it, with this content.
    void expect_new_scroll(const Scroll_parts& w, const VT::VT_obj& shown)
    {
        expect_new(w.container, w.placements);
        ASSERT_EQ(w.placements.size(), 3U);
        expect_child(w.placements, 0, shown, {0, 0});
        expect_child(w.placements, 1, w.track, {0, 0});
        expect_child(w.placements, 2, w.indicator, {0, 0});

        const auto rectangle = [](const char* suppression) {
            return Lines{"id line_attributes null", suppression, "id fill_attributes null"};
        };
        EXPECT_EQ(but_sizes(w.track), rectangle("u8 line_suppression 9"));
        EXPECT_EQ(w.track.fill, &style.fill_17_patterned);
        EXPECT_EQ(w.track.line, &style.line_black_c);
        EXPECT_EQ(but_sizes(w.indicator), rectangle("u8 line_suppression 0"));
        EXPECT_EQ(w.indicator.fill, &w.indicator_fill);
        EXPECT_EQ(w.indicator.line, &style.line_black_c);
        EXPECT_EQ(w.indicator_fill.type, 2);
        EXPECT_EQ(w.indicator_fill.fill_pattern, VT::VT_obj::NULL_ID);
        EXPECT_EQ(w.indicator_fill.pattern, nullptr);

        expect_keys(w, false);
        for (const Object_pointer_obj* const pointer : {&w.back_pointer, &w.on_pointer}) {
            EXPECT_EQ(pointer->get_id(), VT::VT_obj::NULL_ID);
            EXPECT_EQ(pointer->value, VT::VT_obj::NULL_ID);
        }
        expect_child(w.back_key.placements, 0, back_face, {0, 0});
        expect_child(w.on_key.placements, 0, on_face, {0, 0});
        EXPECT_EQ(w.placements.detached(0), &w.back_key.key);
        EXPECT_EQ(w.placements.detached(1), &w.on_key.key);
        EXPECT_EQ(w.placements.detached(2), nullptr);
    }

    static void expect_keys(const Scroll_parts& w, bool shown)
    {
        EXPECT_EQ(w.back_pointer.target, shown ? &w.back_key.key : nullptr);
        EXPECT_EQ(w.on_pointer.target, shown ? &w.on_key.key : nullptr);
    }

    /// Where content, track and indicator lie, and that it is written out so.
    static void expect_places(const Scroll_parts& w, Point of_content, Point of_track, Point of_indicator)
    {
        const Point places[] = {of_content, of_track, of_indicator};
        for (std::size_t i = 0; i < 3; ++i) {
            EXPECT_EQ(placed(w.placements, i), places[i]) << "child " << i;
            EXPECT_EQ(written(w.placements, i), places[i]) << "child " << i;
            EXPECT_EQ(w.placements.get()[i].object_id, w.placements.placement(i).ref->get_id());
        }
    }

    static void expect_no_bar(const Scroll_parts& w, std::uint16_t track_width)
    {
        EXPECT_EQ(size_of(w.track), Dimension(track_width, 0)) << "its width stays";
        EXPECT_EQ(size_of(w.indicator), Dimension(0, 0));
    }

    /// Numbers everything; the terminal is told. The pool is not live yet.
    void take(const Scroll_parts& w)
    {
        pool.take(w.track, track_id);
        pool.take(w.indicator, indicator_id);
        pool.take(w.back_pointer, back_pointer_id);
        pool.take(w.on_pointer, on_pointer_id);
        pool.take(w.back_key.key, back_key_id);
        pool.take(w.on_key.key, on_key_id);
        pool.take(content, content_id);
        pool.take(other, other_id);
        pool.upload(w.track);
        pool.upload(w.indicator);
        take_parent(pool, w.container, container_id);
    }

    void go_live(const Scroll_parts& w)
    {
        take(w);
        pool.live = true;
    }

    template <class Widget>
    static void activate(Widget& widget, Activation code, Iso::Object_id key)
    {
        VT::Soft_key_activation_event event{code, key, 0x3001, 1};
        widget.handle_event(event);
    }

    static Messages keys_shown()
    {
        return {numeric_value(back_pointer_id, back_key_id), numeric_value(on_pointer_id, on_key_id)};
    }
    static Messages keys_gone()
    {
        return {numeric_value(back_pointer_id, VT::VT_obj::NULL_ID), numeric_value(on_pointer_id, VT::VT_obj::NULL_ID)};
    }

    Journal pool; // outlives what is in it
    Connection_elements style;
    Rectangle_obj content;
    Rectangle_obj other;
    Rectangle_obj back_face;
    Rectangle_obj on_face;

  private:
    static Lines but_sizes(VT::VT_obj& rectangle)
    {
        const Lines all = Record_text::values_of(rectangle);
        return {all.at(0), all.at(3), all.at(4)};
    }
};

inline Messages operator+(Messages first, const Messages& more)
{
    first.insert(first.end(), more.begin(), more.end());
    return first;
}

} // namespace scroll

#endif
