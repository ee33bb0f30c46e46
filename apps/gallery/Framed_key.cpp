#include "apps/gallery/Framed_key.h"

#include <utility>

namespace gallery {

using namespace VT::Comp;

Framed_key::Framed_key(Page_style& shared, VT::VT_obj& content, std::function<void()> action) : key(std::move(action))
{
    children.placements[0] = {&shared.key_frame, 0, 0};
    children.placements[1] = {&content, 0, 0};
    centre(children.placements[1], key_size);
    face.placements_ptr = &children;
    resize(face, key_size);
    key.set_content(&face);
    key.set_size(key_size);
    key.set_background_colour(silver);
    shared.pool.route(key);
}

} // namespace gallery
