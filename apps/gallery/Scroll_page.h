#ifndef GALLERY_SCROLL_PAGE_H
#define GALLERY_SCROLL_PAGE_H

#include "apps/gallery/Arrow.h"
#include "apps/gallery/Framed_key.h"
#include "apps/gallery/Page.h"

#include "vtui/comp/widgets/Label_content_widget.h"
#include "vtui/comp/widgets/Scroll_horizontal_widget.h"
#include "vtui/comp/widgets/Scroll_widget.h"

#include <deque>

namespace gallery {

/// More than fits: rows in a window that scrolls up and down, as many as a soft key says, and columns in one that
/// scrolls to the left and right, and by a soft key to the last but two.
class Scroll_page final : public Page
{
  public:
    explicit Scroll_page(Page_style& page_style);

    /// Ten rows, which overflow, or three, which fit.
    void switch_rows();
    void jump();

  private:
    template <typename T>
    class Ten : public Array_array<T, 10>
    {};

    /// Parts in a line, of which an object as large as all of them is made.
    struct Content
    {
        VT::Comp::Container_obj container;
        VT::Comp::Child_placements_array<Ten> parts;
    };

    /// A number in a frame.
    struct Column
    {
        VT::Comp::Container_obj container;
        VT::Comp::Child_placements_array<Array_array_2> parts;
        VT::Comp::Output_string_obj number;
    };

    struct Arrow_face
    {
        Arrow_face(Page_style& page_style, Arrow::Direction direction);

        Arrow arrow;
        Key_face face;
    };

    void build_rows();
    void build_columns();

    std::deque<Caption> names;
    std::deque<VT::Comp::Label_content_widget> rows;
    VT::Comp::Rectangle_obj column_frame;
    std::deque<Column> columns;
    Content list, strip;

    Arrow_face up, down, left, right;
    VT::Comp::Scroll_widget vertical;
    VT::Comp::Scroll_horizontal_widget horizontal;
    Key_caption rows_caption, jump_caption;
    Framed_key rows_key, jump_key;
    VT::Soft_key_mask_obj keys;
};

} // namespace gallery

#endif
