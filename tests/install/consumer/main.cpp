#include "vtui/comp/Connection_elements.h"
#include "vtui/comp/widgets/Placement_widget.h"

#include <cstdio>

#ifndef NDEBUG
#error "this program shows what is left of the library's checks when assertions are compiled out"
#endif

int main(int argc, char**)
{
    VT::Comp::Connection_elements style;
    style.set_sizes(480);

    VT::Comp::Placement_widget placement{VT::Comp::Placement_widget::Justification::centre};
    const bool misuse = argc > 1;
    if (!misuse)
        placement.set_content(&style.cover_64);
    placement.set_size({200, 100});

    const VT::Comp::Child_placement& cover = placement.content.placements[0];
    std::printf("%d x %d, cover at %d, %d\n", placement.get_width(), placement.get_height(), cover.x, cover.y);
    return placement.get_width() == 200 && cover.x == (200 - 64) / 2 && cover.y == (100 - 64) / 2 ? 0 : 1;
}
