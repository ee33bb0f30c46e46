#ifndef GALLERY_PAGE_STYLE_H
#define GALLERY_PAGE_STYLE_H

#include "apps/gallery/Icons.h"
#include "apps/gallery/Unit_choice.h"

#include "pool/Pool.h"
#include "vt/Button_obj.h"
#include "vtui/comp/Connection_elements.h"

namespace gallery {

/// Of the standard's palette.
constexpr std::uint8_t white = 1, silver = 7, grey = 8;

/// Gives a button of the terminal's own a light face.
inline void lighten(VT::Button_obj& button)
{
    button.background_colour = white;
    button.border_colour = grey;
}

/// What the pages share: the style set, the pool that brings them their events, the icons, the choice of units, and the
/// looks of title bar and soft keys. It outlives them.
struct Page_style
{
    /// `side` is that of the data mask in pixels.
    Page_style(VT::Pool& objects, std::uint16_t side);

    VT::Pool& pool;
    const std::uint16_t mask_size;
    VT::Comp::Connection_elements elements;
    Icons icons;
    Unit_choice units;
    VT::Comp::Font_attributes_obj title_font; ///< white, as all that lies on dark faces
    VT::Comp::Font_attributes_obj large_font;
    VT::Comp::Font_attributes_obj key_font;
    VT::Comp::Rectangle_obj key_frame;
};

/// A soft key's cell, in pixels: the keys are drawn for the usual size whatever the mask's is.
constexpr VT::Comp::Dimension key_size{60, 60};

} // namespace gallery

#endif
