#ifndef GALLERY_SETTINGS_PAGE_H
#define GALLERY_SETTINGS_PAGE_H

#include "apps/gallery/Number_page.h"

#include "nv_store/NV_number.h"
#include "nv_store/Store.h"
#include "nv_store/waiter_descriptor.h"
#include "vtui/comp/widgets/Nv_number_widget.h"

#include <string>

namespace gallery {

/// What the operator has set, also before the last start: the numbers of a file.
struct Settings
{
    template <typename T>
    using Number = NV_store::NV_number<T, NV_store::Item_type<T>::value>;

    /// Throws what NV_store::Store throws.
    explicit Settings(const std::string& file) : store(file) {}

    NV_store::Store store;
    Number<double> boom_width{store, "boom_width", 24};
    Number<unsigned char> sections{store, "sections", 7};
    Number<unsigned short> wheel_impulses{store, "wheel_impulses", 130};
    Number<bool> automatic{store, "automatic", true};
};

/// The settings, shown as long as the page is seen. The soft keys step the boom width.
class Settings_page final : public Number_page
{
  public:
    Settings_page(Page_style& page_style, Settings& settings);

    /// The page has become the one that is shown, or is it no longer.
    void set_visible(bool visible);

    /// Readable when settings have changed that are seen; then call deliver(), which shows them.
    waiter_descriptor waiter;

  private:
    template <typename T>
    using Field = VT::Comp::Nv_number_widget<Settings::Number<T>>;

    template <typename T>
    void add(const char* name, Field<T>& field, int row);

    VT::Comp::Rectangle_obj frame;
    bool is_visible{false};
    Field<double> boom_width;
    Field<unsigned char> sections;
    Field<unsigned short> wheel_impulses;
    Field<bool> automatic;
};

} // namespace gallery

#endif
