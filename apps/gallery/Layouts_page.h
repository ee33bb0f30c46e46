#ifndef GALLERY_LAYOUTS_PAGE_H
#define GALLERY_LAYOUTS_PAGE_H

#include "apps/gallery/Number_page.h"

namespace gallery {

/// The four ways in which number and units share a field, with units and without. A frame outside each field shows
/// where it ends.
class Layouts_page final : public Number_page
{
  public:
    explicit Layouts_page(Page_style& page_style);

  private:
    /// Fields of one size below each other.
    struct Column
    {
        VT::Comp::Rectangle_obj frame;
        std::deque<VT::Comp::Number_widget> fields;
    };

    void add_column(Column& column, int x, int width, VT::String_variable_obj* units_text);

    Column with_units;
    Column without_units;
};

} // namespace gallery

#endif
