#ifndef GALLERY_PAGE_H
#define GALLERY_PAGE_H

#include "apps/gallery/Caption.h"
#include "apps/gallery/Page_style.h"

#include "vt/Mask_obj.h"
#include "vtui/comp/objects/Dimension.h"
#include "vtui/comp/objects/Rectangle_obj.h"
#include "vtui/comp/widgets/Title_widget.h"

#include <deque>

namespace gallery {

/// What each screen of the gallery is made with: a data mask, measures that fit its size, captions and, if it is asked
/// for, a title bar. Lengths are in 96ths of the mask's side: 2.5 pixels on 240, 5 on 480.
class Page
{
  public:
    VT::Data_mask_obj& root() { return mask; }

  protected:
    Page(const char* name, std::uint8_t background, Page_style& page_style)
        : shared(page_style), style(shared.elements), pool(shared.pool), mask_size(shared.mask_size),
          mask(name, background), title_bar(style, &shared.title_font)
    {}
    ~Page() = default;

    std::int16_t at(int units) const { return static_cast<std::int16_t>(units * mask_size / 96); }
    std::uint16_t span(int units) const { return static_cast<std::uint16_t>(units * mask_size / 96); }
    VT::Comp::Dimension area(int width, int height) const { return {span(width), span(height)}; }

    /// 5 high, at the top.
    void add_title_bar(const char* title);

    /// A text that stays as it is, for a component to show.
    VT::String_variable_obj& words(const char* text) { return texts.emplace_back(text).variable; }

    /// One line of text in the first font of the style set, unless another is given.
    void add_caption(const char* words, int x, int y, int width,
                     VT::Field_obj::Horizontal justification = VT::Field_obj::left,
                     VT::Comp::Font_attributes_obj* font = nullptr);

    /// A text that the application changes.
    void add_text(VT::String_variable_obj& text, VT::Comp::Font_attributes_obj& font, int x, int y, int width);

    /// Gives a rectangle its looks and its size.
    static void set_looks(VT::Comp::Rectangle_obj& rectangle, VT::Comp::Dimension size,
                          VT::Comp::Fill_attributes_obj& fill, VT::Comp::Line_attributes_obj& line);

    Page_style& shared;
    VT::Comp::Connection_elements& style;
    VT::Pool& pool;
    const std::uint16_t mask_size;
    VT::Data_mask_obj mask;
    std::deque<Caption> captions;

  private:
    VT::Comp::Title_widget title_bar;
    std::deque<Words> texts;
    std::deque<VT::Comp::Output_string_obj> strings;
};

} // namespace gallery

#endif
