#include "terminal/web/Web_page.h"

#include "terminal/Touch.h"
#include "terminal/web/Http_server.h"
#include "terminal/web/Page_html.h"

#include <QBuffer>
#include <QCryptographicHash>
#include <QString>
#include <QThread>
#include <QUrlQuery>

#include <algorithm>
#include <charconv>
#include <exception>
#include <stdexcept>
#include <utility>

namespace terminal {

namespace {

constexpr const char* plain_text = "text/plain; charset=utf-8";
constexpr const char* json = "application/json";

constexpr std::chrono::seconds longest_silence{1}; ///< of a browser in which something is pressed

std::string escaped(const std::string& text) { return QString::fromStdString(text).toHtmlEscaped().toStdString(); }

std::string html_with(const std::vector<std::string>& names)
{
    std::string choices;
    for (const std::string& name : names)
        choices += "<label><input type=\"radio\" name=\"page\" value=\"" + escaped(name) + "\"><span>" + escaped(name) +
                   "</span></label>\n";
    std::string page(page_html);
    return page.replace(page.find(choices_mark), choices_mark.size(), choices);
}

/// Names what stands between the page's tags of that name, as browsers want it that are to run nothing else.
std::string hash_of(const std::string& tag)
{
    const std::size_t start = page_html.find("<" + tag + ">") + tag.size() + 2;
    const std::string_view content = page_html.substr(start, page_html.find("</" + tag + ">", start) - start);
    const QByteArray bytes(content.data(), static_cast<int>(content.size()));
    return "'sha256-" + QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toBase64().toStdString() + "'";
}

std::vector<std::pair<std::string, std::string>> headers()
{
    return {{"Cache-Control", "no-store"},
            {"Content-Security-Policy", "default-src 'none'; script-src " + hash_of("script") + "; style-src " +
                                            hash_of("style") +
                                            "; img-src 'self' data:; connect-src 'self'; base-uri 'none'; "
                                            "form-action 'none'; frame-ancestors 'none'"},
            {"Cross-Origin-Resource-Policy", "same-origin"},
            {"X-Content-Type-Options", "nosniff"},
            {"X-Frame-Options", "DENY"}};
}

std::string png(const QImage& image)
{
    QByteArray bytes;
    QBuffer file(&bytes);
    if (!file.open(QIODevice::WriteOnly) || !image.save(&file, "PNG"))
        throw std::runtime_error("cannot write the picture");
    return bytes.toStdString();
}

/// What stands between the slashes of a path.
std::vector<std::string> parts_of(const std::string& path)
{
    std::vector<std::string> parts;
    for (std::size_t slash = 0; slash < path.size();) {
        const std::size_t next = std::min(path.find('/', slash + 1), path.size());
        const QByteArray encoded = QByteArray::fromStdString(path.substr(slash + 1, next - slash - 1));
        parts.push_back(QByteArray::fromPercentEncoding(encoded).toStdString());
        slash = next;
    }
    return parts;
}

/// Of all parts but the first; nothing if one of them is no number of at most five digits.
std::optional<std::vector<int>> numbers_of(const std::vector<std::string>& parts)
{
    constexpr std::size_t most_digits = 5;
    std::vector<int> numbers;
    for (std::size_t i = 1; i < parts.size(); ++i) {
        const std::string& part = parts[i];
        unsigned number = 0;
        const auto [end, problem] = std::from_chars(part.data(), part.data() + part.size(), number);
        if (part.size() > most_digits || problem != std::errc() || end != part.data() + part.size())
            return {};
        numbers.push_back(static_cast<int>(number));
    }
    return numbers;
}

const char* kind(Object target)
{
    switch (target.type()) {
    case Iso::Object_type::key:
        return "soft key";
    case Iso::Object_type::button:
        return "button";
    case Iso::Object_type::input_boolean:
        return "check box";
    default:
        return "number";
    }
}

Http_answer refusal(unsigned status, const std::string& reason = {}) { return {status, plain_text, reason}; }

/// Of a number that may have closed, or made room for another one, since the viewer has seen it.
Http_answer no_longer_open() { return refusal(409, "this field is no longer open"); }

Http_answer said(bool yes) { return {200, json, yes ? "true" : "false"}; }

} // namespace

Web_page::Web_page(Terminal& shown_terminal, Renderer& its_renderer, Screen_choice screens,
                   std::function<void()> operator_did_something, std::uint16_t port, Web_settings settings)
    : terminal(shown_terminal), renderer(its_renderer), choice(std::move(screens)),
      operated(std::move(operator_did_something)), now(std::move(settings.now)), html(html_with(choice.names))
{
    // Qt takes the first thread that it meets for the main thread: let that not be the server's.
    QThread::currentThread();
    Http_service service;
    service.answer = [this](const Http_request& request) { return answer(request); };
    service.in_spare_time = [this] { end_lost_press(); };
    service.interval = settings.between_looks;
    service.now = now;
    service.headers = headers();
    server = std::make_unique<Http_server>(port, std::move(service));
}

Web_page::~Web_page()
{
    server.reset();
    const auto locked = lock();
    if (heard)
        terminal.abort();
}

std::uint16_t Web_page::port() const { return server->port(); }

Http_answer Web_page::answer(const Http_request& request)
try {
    end_lost_press();
    if (request.method == "POST")
        return operate(request);
    if (request.method == "GET")
        return read(request.path);
    return refusal(404);
} catch (const std::exception& problem) {
    return refusal(500, problem.what());
} catch (...) {
    return refusal(500, "unknown problem");
}

Http_answer Web_page::read(const std::string& path)
{
    if (path == "/")
        return {200, "text/html; charset=utf-8", html};
    if (path == "/screen.png")
        return {200, "image/png", picture()};
    const auto locked = lock();
    if (path == "/revision")
        return {200, plain_text, std::to_string(terminal.revision())};
    if (path == "/page")
        return {200, plain_text, choice.shown()};
    if (path == "/controls")
        return {200, json, controls()};
    if (path == "/entry")
        return {200, json, entry()};
    return refusal(404);
}

Http_answer Web_page::operate(const Http_request& request)
{
    const std::vector<std::string> parts = parts_of(request.path);
    const std::string what = parts.empty() ? "" : parts[0];
    const auto locked = lock();
    if (what == "page" && parts.size() == 2)
        return show(parts[1]);
    const auto numbers = numbers_of(parts);
    if (!numbers)
        return refusal(404);
    switch (numbers->size()) {
    case 0:
        if (what == "hold")
            return follow_press(terminal.hold());
        if (what == "release")
            return follow_press(terminal.release());
        if (what == "abort")
            return follow_press(terminal.abort());
        break;
    case 1: {
        const int id = numbers->front();
        if (what == "press")
            return press(id < Iso::null_id && terminal.press(static_cast<Iso::Object_id>(id)));
        if (what == "entry")
            return enter(id, request.query);
        if (what == "escape")
            return escape(id);
        break;
    }
    case 2: {
        const Position place{numbers->front(), numbers->back()};
        if (what == "press")
            return press(terminal.press(place));
        if (what == "move")
            return follow_press(terminal.move(place));
        break;
    }
    default:
        break;
    }
    return refusal(404);
}

/// Drawn once for all who want to see it.
const std::string& Web_page::picture()
{
    QImage image;
    std::uint32_t revision;
    {
        const auto locked = lock();
        revision = terminal.revision();
        if (revision == pictured)
            return last_picture;
        image = renderer.draw(terminal);
    }
    last_picture = png(image);
    pictured = revision;
    return last_picture;
}

std::string Web_page::entry()
{
    const auto open = terminal.entry();
    if (!open)
        return "null";
    return "{\"id\":" + std::to_string(terminal.open_number()) + ",\"value\":\"" + open->value() + "\",\"lowest\":\"" +
           open->lowest() + "\",\"highest\":\"" + open->highest() +
           "\",\"decimals\":" + std::to_string(open->decimals()) + "}";
}

std::string Web_page::controls()
{
    std::string list;
    for (const Target& target : usable_targets(terminal)) {
        const auto add = [&list](const char* name, int value) {
            list += std::string(",\"") + name + "\":" + std::to_string(value);
        };
        list += std::string(list.empty() ? "" : ",") + "{\"kind\":\"" + kind(target.object) + '"';
        add("id", target.object.id());
        add("left", target.area.left);
        add("top", target.area.top);
        add("width", target.area.width());
        add("height", target.area.height());
        list += '}';
    }
    return '[' + list + ']';
}

Http_answer Web_page::show(const std::string& name)
{
    const auto found = std::find(choice.names.begin(), choice.names.end(), name);
    if (found == choice.names.end())
        return refusal(404);
    choice.show(static_cast<std::size_t>(found - choice.names.begin()));
    return {};
}

Http_answer Web_page::press(bool begun)
{
    // Perhaps something else is pressed, in another browser; that is not for this one to hold and release.
    return begun ? follow_press(true) : said(false);
}

Http_answer Web_page::follow_press(bool something_done)
{
    heard = now();
    if (something_done)
        tell_application();
    const bool goes_on = terminal.pressed() != Iso::null_id;
    if (!goes_on)
        heard.reset();
    return said(goes_on);
}

void Web_page::end_lost_press()
try {
    const auto locked = lock();
    if (!heard || now() - *heard < longest_silence)
        return;
    heard.reset();
    if (terminal.abort())
        tell_application();
} catch (...) {
    // There is nobody left to whom it could be shown.
}

Http_answer Web_page::enter(int id, const std::string& query)
{
    if (!is_open(id))
        return no_longer_open();
    const QString text = QUrlQuery(QString::fromStdString(query)).queryItemValue("text", QUrl::FullyDecoded);
    const std::string problem = terminal.enter(text.toStdString());
    if (!problem.empty())
        return refusal(422, problem);
    tell_application();
    return {};
}

Http_answer Web_page::escape(int id)
{
    if (!is_open(id))
        return no_longer_open();
    if (terminal.cancel())
        tell_application();
    return {};
}

bool Web_page::is_open(int id) const { return terminal.entry() && terminal.open_number() == id; }

void Web_page::tell_application() const
{
    if (operated)
        operated();
}

} // namespace terminal
