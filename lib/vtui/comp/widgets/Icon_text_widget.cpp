#include "vtui/comp/widgets/Icon_text_widget.h"

#include "vtui/comp/widgets/Caption.h"

namespace VT::Comp {

Icon_text_widget::Icon_text_widget(Connection_elements& elements, VT::Font_attributes_obj* font)
{
    construct_icon_and_caption(container, placements, caption, elements, font ? *font : elements.font_1);
}

void Icon_text_widget::set_size(Dimension size)
{
    resize(container, size);
    size_caption(caption, size.width);

    Child_placement& icon = placements.placements[0];
    Child_placement& text = placements.placements[1];
    const Dimension picture = size_of(icon);
    icon.x = centred(size.width, picture.width);
    // The sum has 16 bits, as sizes have.
    icon.y = centred(size.height, static_cast<std::uint16_t>(picture.height + caption.height));
    text.x = 0; // as wide as its parent
    text.y = position(icon.y + picture.height);
    placements.deref();
}

} // namespace VT::Comp
