#include "apps/Loopback_link.h"
#include "apps/gallery/Gallery.h"

#include "terminal/draw/Renderer.h"
#include "terminal/web/Web_page.h"

#include <QString>

#include <poll.h>
#include <sys/signalfd.h>

#include <cerrno>
#include <charconv>
#include <chrono>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

namespace {

using gallery::Gallery;
using gallery::Picture;

constexpr std::uint16_t mask_sizes[] = {240, 480};

/// Throws with the pool's own words unless all went well.
void expect(const VT::Result& result)
{
    for (const VT::Problem& warning : result.warnings)
        std::fprintf(stderr, "warning: %s\n", warning.text.c_str());
    if (!result)
        throw std::runtime_error(result.text());
}

/// Seconds that a pool of so many bytes takes on a 250 kbit/s bus: extended transport carries 7 bytes in a frame, and a
/// frame of 8 data bytes is up to 160 bits long with its stuffing.
double seconds_on_the_bus(std::size_t bytes)
{
    constexpr double bits_per_second = 250'000, bits_per_frame = 160, bytes_per_frame = 7;
    return static_cast<double>(bytes) / bytes_per_frame * bits_per_frame / bits_per_second;
}

void write_file(const std::filesystem::path& file, const std::vector<std::uint8_t>& bytes)
{
    std::ofstream out(file, std::ios::binary);
    out.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    if (!out.flush())
        throw std::runtime_error("cannot write " + file.string());
}

/// Loads the gallery into a terminal with a data mask of that size and draws every page.
void draw_pages(std::uint16_t mask_size, const std::filesystem::path& folder, terminal::Renderer& renderer)
{
    Gallery gallery(mask_size);
    std::vector<std::uint8_t> records;
    expect(gallery.pool().serialise(records));
    const bool large = mask_size >= 480;
    write_file(folder / (large ? "gallery.iop" : "gallery-" + std::to_string(mask_size) + ".iop"), records);

    terminal::Hardware hardware;
    hardware.mask_size = mask_size;
    apps::Loopback_link link(hardware);
    expect(gallery.pool().load(link));
    for (const Picture& picture : gallery.pictures()) {
        picture.show();
        const auto file = folder / (picture.name + "-" + std::to_string(mask_size) + ".png");
        if (!renderer.draw(link.terminal).save(QString::fromStdString(file.string())))
            throw std::runtime_error("cannot write " + file.string());
        std::printf("  %s\n", file.c_str());
    }
    std::printf("mask %u: %zu objects, %zu bytes, %.2f s on a 250 kbit/s bus\n", mask_size, gallery.pool().size(),
                records.size(), seconds_on_the_bus(records.size()));
}

/// Takes what the terminal has sent. Throws with the pool's own words if the terminal refused anything.
void take_answers(VT::Pool& pool, apps::Loopback_link& link)
{
    for (std::vector<std::uint8_t> message; link.receive(message, {});)
        pool.receive(message.data(), message.size());
    if (const std::vector<VT::Problem> problems = pool.take_problems(); !problems.empty())
        throw std::runtime_error(problems.front().text);
}

/// A descriptor that is readable once the process is to end. Blocks the signals that say so, which is to happen before
/// there is another thread, so that none of them takes one.
int open_endings()
{
    sigset_t endings;
    sigemptyset(&endings);
    sigaddset(&endings, SIGINT);
    sigaddset(&endings, SIGTERM);
    pthread_sigmask(SIG_BLOCK, &endings, nullptr);
    const int descriptor = signalfd(-1, &endings, SFD_CLOEXEC);
    if (descriptor < 0)
        throw std::system_error(errno, std::generic_category(), "signalfd");
    return descriptor;
}

/// True once the process is to end. Waits until then, for something to deliver, or for so long.
bool wait_for_news(const Gallery& gallery, int endings, std::chrono::milliseconds longest)
{
    const auto [machine, settings] = gallery.descriptors();
    pollfd waited_for[] = {{endings, POLLIN, 0}, {machine, POLLIN, 0}, {settings, POLLIN, 0}};
    poll(waited_for, std::size(waited_for), static_cast<int>(longest.count()));
    return waited_for[0].revents != 0;
}

/// Shows the gallery on a page for browsers until a signal ends it, with the machine at work and the settings in a
/// file.
void serve(std::uint16_t port, const std::filesystem::path& folder, terminal::Renderer& renderer)
{
    using namespace std::chrono_literals;
    const int endings = open_endings();

    apps::Loopback_link link;
    Gallery gallery(link.terminal.hardware().mask_size, (folder / "settings.db").string());
    VT::Pool& pool = gallery.pool();
    expect(pool.load(link));

    terminal::Screen_choice choice;
    for (const VT::Mask_obj* page : gallery.pages())
        choice.names.emplace_back(page->get_name());
    choice.shown = [&] {
        const terminal::Object mask = link.terminal.active_mask();
        return std::string(mask ? pool.find_object(mask.id())->get_name() : "");
    };
    choice.show = [&](std::size_t page) {
        gallery.show(*gallery.pages()[page]);
        take_answers(pool, link);
    };

    const auto operated = [&] { take_answers(pool, link); };
    terminal::Web_page page(link.terminal, renderer, std::move(choice), operated, port);
    NV_store::Store& settings = gallery.stored().store;
    if (!settings.put_aside().empty())
        std::printf("the settings were damaged: that file is %s now\n", settings.put_aside().c_str());
    for (const std::string& name : settings.lost())
        std::printf("the setting \"%s\" is lost\n", name.c_str());
    std::printf("the settings are kept in %s\n", settings.path().c_str());
    std::printf("the terminal is at http://127.0.0.1:%u/ until Ctrl-C\n", unsigned{page.port()});
    std::fflush(stdout);
    gallery.machine().start();
    // The machine has news fifty times a second, a screen on a bus has room for five.
    constexpr auto pause = 200ms, between_maintenances = 1000ms;
    auto maintained = std::chrono::steady_clock::now();
    while (!wait_for_news(gallery, endings, between_maintenances)) {
        {
            const auto locked = page.lock();
            gallery.deliver();
            if (const auto now = std::chrono::steady_clock::now(); now - maintained >= between_maintenances) {
                pool.maintain();
                maintained = now;
            }
            take_answers(pool, link);
        }
        if (const std::string problem = settings.take_problem(); !problem.empty())
            std::fprintf(stderr, "gallery: %s\n", problem.c_str());
        std::this_thread::sleep_for(pause);
    }
    gallery.machine().stop();
}

struct Options
{
    std::filesystem::path folder = "out";
    std::optional<std::uint16_t> port; ///< to serve on
};

std::uint16_t parse_port(std::string_view text)
{
    std::uint16_t port = 0;
    const auto [end, problem] = std::from_chars(text.data(), text.data() + text.size(), port);
    if (problem != std::errc() || end != text.data() + text.size())
        throw std::runtime_error("not a port: " + std::string(text));
    return port;
}

/// [folder] [--serve [port]]
Options parse(const std::vector<std::string_view>& arguments)
{
    Options options;
    auto argument = arguments.begin();
    if (argument != arguments.end() && argument->substr(0, 2) != "--")
        options.folder = *argument++;
    if (argument != arguments.end() && *argument == "--serve") {
        ++argument;
        options.port = argument != arguments.end() ? parse_port(*argument++) : 8080;
    }
    if (argument != arguments.end())
        throw std::runtime_error("cannot read " + std::string(*argument) +
                                 "; usage: gallery [folder] [--serve [port]]");
    return options;
}

} // namespace

int main(int count, char** arguments)
try {
    const Options options = parse({arguments + 1, arguments + count});
    std::filesystem::create_directories(options.folder);
    terminal::Renderer renderer;
    for (const std::uint16_t mask_size : mask_sizes)
        draw_pages(mask_size, options.folder, renderer);
    if (options.port)
        serve(*options.port, options.folder, renderer);
    return 0;
} catch (const std::exception& problem) {
    std::fprintf(stderr, "gallery: %s\n", problem.what());
    return 1;
}
