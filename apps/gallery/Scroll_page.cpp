#include "apps/gallery/Scroll_page.h"

namespace gallery {

using namespace VT::Comp;

namespace {

constexpr std::size_t most = 10, few = 3, jumped_to = 7; // rows, rows, columns

constexpr int left_edge = 2, bar = 4;
constexpr int list_top = 8, list_width = 70, list_height = 44, row_height = 12;
constexpr int strip_top = 60, strip_width = 92, strip_height = 30, column_width = 22;

constexpr Dimension key_arrow{30, 30}; // pixels

} // namespace

Scroll_page::Arrow_face::Arrow_face(Page_style& page_style, Arrow::Direction direction)
    : arrow(direction, key_arrow, page_style.elements.fill_17, page_style.elements.line_none),
      face(page_style, arrow.root())
{}

Scroll_page::Scroll_page(Page_style& page_style)
    : Page("scroll", silver, page_style), up(shared, Arrow::up), down(shared, Arrow::down), left(shared, Arrow::left),
      right(shared, Arrow::right), vertical(style, &list.container, &up.face.root(), &down.face.root()),
      horizontal(style, &strip.container, &left.face.root(), &right.face.root()), rows_caption("Rows", shared),
      jump_caption("Jump", shared), rows_key(shared, rows_caption.root(), [this] { switch_rows(); }),
      jump_key(shared, jump_caption.root(), [this] { jump(); })
{
    add_title_bar("Scrolling");
    build_rows();
    build_columns();
    for (Key_widget* key : {&vertical.up_key, &vertical.down_key, &horizontal.left_key, &horizontal.right_key})
        dress(*key);
    for (Object_pointer_obj* key :
         {vertical.get_up_key(), vertical.get_down_key(), horizontal.get_left_key(), horizontal.get_right_key()})
        keys.add(*key);
    keys.add(rows_key.root());
    keys.add(jump_key.root());
    mask.set_soft_key_mask(&keys);
    pool.route(vertical);
    pool.route(horizontal);
}

void Scroll_page::build_rows()
{
    constexpr Icon icons[] = {Icon::fill, Icon::drain, Icon::boom_up, Icon::boom_down, Icon::nozzle};
    constexpr const char* words[] = {"Fill",       "Drain",     "Raise",      "Lower",    "Spray",
                                     "Fill again", "Drain all", "Raise left", "Lower it", "Spray on"};
    const Dimension size = area(list_width - bar, row_height);
    for (std::size_t i = 0; i < most; ++i) {
        Caption& name = names.emplace_back(words[i], shared.title_font);
        Label_content_widget& row = rows.emplace_back(i % 2 == 0 ? style.rect_17_patterned : style.rect_bevel_dark,
                                                      Label_content_item{&shared.icons[icons[i % 5]], &name.root()});
        row.set_size(size);
        name.set_size(row.get_content_size());
        name.set_justification(VT::Field_obj::left, Caption::centre);
        row.refresh_layout();
        list.parts.placements[i] = {&row.root(), 0, static_cast<std::int16_t>(i * size.height)};
    }
    list.container.placements_ptr = &list.parts;
    resize(list.container, {size.width, static_cast<std::uint16_t>(most * size.height)});
    vertical.set_size(area(list_width, list_height), span(bar));
    vertical.update_content_size();
    mask.add(*vertical.root(), at(left_edge), at(list_top));
}

void Scroll_page::build_columns()
{
    const Dimension size = area(column_width, strip_height - bar);
    set_looks(column_frame, size, style.fill_white, style.line_black);
    for (std::size_t i = 0; i < most; ++i) {
        Column& column = columns.emplace_back();
        column.number.set_font(&style.font_4);
        column.number.set_variable(&style.number_strings[i + 1]);
        column.number.options = VT::Field_obj::transparent;
        column.number.justification = VT::Field_obj::middle;
        resize(column.number, {size.width, style.font_4.get_font_height()});
        column.parts.placements[0] = {&column_frame, 0, 0};
        column.parts.placements[1] = {&column.number, 0, centred(size.height, column.number.height)};
        column.container.placements_ptr = &column.parts;
        resize(column.container, size);
        strip.parts.placements[i] = {&column.container, static_cast<std::int16_t>(i * size.width), 0};
    }
    strip.container.placements_ptr = &strip.parts;
    resize(strip.container, {static_cast<std::uint16_t>(most * size.width), size.height});
    horizontal.set_size(area(strip_width, strip_height), span(bar));
    horizontal.update_content_size();
    mask.add(*horizontal.root(), at(left_edge), at(strip_top));
}

void Scroll_page::switch_rows()
{
    const std::uint16_t height = rows.front().container.height;
    const bool all = list.container.height == most * height;
    list.container.height = static_cast<std::uint16_t>((all ? few : most) * height);
    vertical.update_content_size();
    vertical.root()->upload(true); // with the sizes of content and bar
}

void Scroll_page::jump()
{
    const std::uint16_t width = columns.front().container.width;
    horizontal.scroll_to_show(static_cast<short>(jumped_to * width), width, true);
}

} // namespace gallery
