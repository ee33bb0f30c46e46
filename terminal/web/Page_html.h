#ifndef TERMINAL_WEB_PAGE_HTML_H
#define TERMINAL_WEB_PAGE_HTML_H

#include <string_view>

namespace terminal {

/// The file page.html.
extern const std::string_view page_html;

/// Where in page_html the choice of screens goes.
inline constexpr std::string_view choices_mark = "<!-- choices -->";

} // namespace terminal

#endif
