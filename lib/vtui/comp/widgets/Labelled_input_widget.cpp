#include "vtui/comp/widgets/Labelled_input_widget.h"

#include <algorithm>

namespace VT::Comp {

template <class Input>
Dimension Labelled_input_widget<Input>::get_preferred_size() const
{
    const Dimension below = input.get_preferred_size();
    if (!label_variable || !label_font)
        return below;
    const auto text_width = static_cast<std::uint16_t>(label_font->get_font_width() * label_variable->get_length());
    return {std::max(below.width, text_width),
            static_cast<std::uint16_t>(label_font->get_font_height() + below.height)};
}

template <class Input>
void Labelled_input_widget<Input>::set_size(Dimension size, Dimension margin)
{
    const std::uint16_t line = label_font ? label_font->get_font_height() : std::uint8_t{0};
    container.width = size.width;
    container.height = size.height;
    label.height = line;
    label.width = size.width; // beyond the right edge by the margin, where the container cuts it

    const auto position = [](int pixels) { return static_cast<std::int16_t>(pixels); }; // wraps, as on the wire
    const std::uint16_t strip = input.get_preferred_size().height;
    input.set_size(size, {size.width, strip}, {position(margin.width), position(line + margin.height)});
    placements.placements[1].x = position(margin.width);
    placements.placements[1].y = position(margin.height);
    placements.deref();
}

template class Labelled_input_widget<Number_widget>;

} // namespace VT::Comp
