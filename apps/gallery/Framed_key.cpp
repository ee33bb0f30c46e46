#include "apps/gallery/Framed_key.h"

#include <utility>

namespace gallery {

using namespace VT::Comp;

Key_face::Key_face(Page_style& shared, VT::VT_obj& content)
{
    children.placements[0] = {&shared.key_frame, 0, 0};
    children.placements[1] = {&content, 0, 0};
    centre(children.placements[1], key_size);
    container.placements_ptr = &children;
    resize(container, key_size);
}

void dress(Key_widget& key)
{
    key.set_size(key_size);
    key.set_background_colour(silver);
}

Framed_key::Framed_key(Page_style& shared, VT::VT_obj& content, std::function<void()> action)
    : face(shared, content), key(std::move(action))
{
    key.set_content(&face.root());
    dress(key);
    shared.pool.route(key);
}

} // namespace gallery
