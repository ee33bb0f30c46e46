// Made by draw_icons; not to be edited.
// clang-format off
#ifndef GALLERY_ICON_H
#define GALLERY_ICON_H

namespace gallery {

enum class Icon {
    boom_down,
    boom_up,
    box_checked,
    box_empty,
    drain,
    drop,
    drop_grey,
    fill,
    lamp_off,
    lamp_on,
    nozzle,
    stop
};

constexpr int number_of_icons = 12;

} // namespace gallery

#endif
