#ifndef GALLERY_LIMITS_PAGE_H
#define GALLERY_LIMITS_PAGE_H

#include "apps/gallery/Number_page.h"

namespace gallery {

/// How far numbers reach: inputs with and without limits, and what the application is told of an entry.
class Limits_page final : public Number_page
{
  public:
    explicit Limits_page(Page_style& page_style);

    /// The terminal said whether it has a touch screen.
    void handle_event(const VT::VT_information&) { lay_out(); }

  private:
    using Text = VT::Comp::String_variable_obj<36>;

    /// Writes what arrives from the operator into a text.
    class Field final : public VT::Comp::Number_widget
    {
      public:
        Field(const char* name, Text& log, const Style& style, const Specification& all)
            : Number_widget(style, all, nullptr), caption(name), last_entry(log)
        {}
        void handle_input_value(double v) override;

      private:
        const char* const caption;
        Text& last_entry;
    };

    void lay_out();

    VT::Comp::Rectangle_obj box;
    VT::Comp::Rectangle_obj log_box;
    std::deque<Field> fields;
    Text last_entry;
};

} // namespace gallery

#endif
