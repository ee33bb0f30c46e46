#include "tests/terminal/web/Web_page_fixture.h"

#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <chrono>
#include <future>
#include <memory>
#include <stdexcept>
#include <string>
#include <system_error>
#include <vector>

namespace terminal {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

/// Connects and sends the beginning of a request.
int begin(std::uint16_t port, const std::string& request)
{
    const int connection = socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    EXPECT_EQ(connect(connection, reinterpret_cast<const sockaddr*>(&address), sizeof(address)), 0);
    EXPECT_EQ(send(connection, request.data(), request.size(), 0), static_cast<ssize_t>(request.size()));
    return connection;
}

TEST_F(WebPage, IsOneHtmlFileThatNeedsNothingFromElsewhere)
{
    const auto answer = client.Get("/");
    ASSERT_EQ(status(answer), 200);
    EXPECT_EQ(answer->get_header_value("Content-Type"), "text/html; charset=utf-8");
    EXPECT_EQ(answer->body.rfind("<!doctype html>", 0), 0u);
    for (const char* elsewhere : {"://", "@import", "<link rel=\"stylesheet", "<script src"})
        EXPECT_EQ(answer->body.find(elsewhere), std::string::npos) << elsewhere;
}

TEST_F(WebPage, OffersTheScreensByTheirEscapedNames)
{
    const std::string html = text("/");
    EXPECT_NE(html.find("value=\"Red\"><span>Red</span>"), std::string::npos);
    const std::string escaped = "Blue &lt;&amp;&gt; 50% &quot;\xC3\xBC/+&quot;";
    EXPECT_NE(html.find("value=\"" + escaped + "\"><span>" + escaped + "</span>"), std::string::npos);
    EXPECT_EQ(html.find(blue_name), std::string::npos);
}

TEST_F(WebPage, SendsTheScreenExactlyAsItIsDrawn)
{
    const QImage picture = sent();
    EXPECT_EQ(picture.size(), QSize(mask_size + 2 * 60, mask_size)); // eight keys, four in a column
    EXPECT_EQ(picture.pixel(0, 0), qRgb(255, 0, 0));
    EXPECT_EQ(picture.pixel(10, 20), qRgb(255, 255, 255));
    EXPECT_EQ(picture, drawn());
}

TEST_F(WebPage, FollowsWhatTheApplicationShows)
{
    const std::string before = text("/revision");
    EXPECT_EQ(text("/revision"), before);
    EXPECT_EQ(text("/page"), "Red");
    {
        const auto locked = page.lock();
        show(1);
    }
    EXPECT_NE(text("/revision"), before);
    EXPECT_EQ(text("/page"), blue_name);
    EXPECT_EQ(sent().pixel(0, 0), qRgb(0, 0, 255));
    EXPECT_EQ(sent(), drawn());
}

TEST_F(WebPage, ShowsTheScreenThatTheViewerChooses)
{
    EXPECT_EQ(choose(blue_name), 204);
    EXPECT_EQ(sent().pixel(0, 0), qRgb(0, 0, 255));
    EXPECT_EQ(choose("Red"), 204);
    EXPECT_EQ(sent().pixel(0, 0), qRgb(255, 0, 0));
}

TEST_F(WebPage, TakesAChoiceThatSaysNothingOfItsLength)
{
    const int connection =
        begin(page.port(), "POST /page/Red HTTP/1.1\r\nHost: localhost:" + std::to_string(page.port()) + "\r\n\r\n");
    char answer[12] = {};
    EXPECT_EQ(recv(connection, answer, sizeof(answer), MSG_WAITALL), 12);
    EXPECT_EQ(std::string(answer, sizeof(answer)), "HTTP/1.1 204");
    close(connection);
}

TEST_F(WebPage, KnowsNoOtherScreensAndAddresses)
{
    const std::string before = text("/revision");
    EXPECT_EQ(choose("Green"), 404);
    EXPECT_EQ(choose("red"), 404);
    EXPECT_EQ(choose(std::string(8000, 'x')), 404);
    EXPECT_EQ(status(client.Post("/page/")), 404);
    EXPECT_EQ(status(client.Get("/page/Red")), 404);
    EXPECT_EQ(status(client.Get("/favicon.ico")), 404);
    EXPECT_EQ(status(client.Get("/../Web_page_test.cpp")), 404);
    EXPECT_EQ(status(client.Post("/")), 404);
    EXPECT_EQ(text("/revision"), before);
}

TEST_F(WebPage, TellsTheViewerWhyAScreenCannotBeShown)
{
    const auto answer = client.Post("/page/Broken");
    ASSERT_EQ(status(answer), 500);
    EXPECT_EQ(answer->body, "the terminal refused it");
    EXPECT_EQ(choose(blue_name), 204);
}

TEST_F(WebPage, IsNeverTakenFromACache)
{
    for (const char* path : {"/", "/screen.png", "/revision", "/page", "/controls", "/entry"}) {
        const auto answer = client.Get(path);
        ASSERT_EQ(status(answer), 200);
        EXPECT_EQ(answer->get_header_value("Cache-Control"), "no-store") << path;
    }
}

TEST_F(WebPage, TakesNoLongMessages) { EXPECT_EQ(status(client.Post("/", std::string(1025, 'x'), "text/plain")), 413); }

TEST_F(WebPage, KeepsAwayFromTheTerminalWhileItIsLocked)
{
    const auto expect_to_wait = [this](const char* path, int answered, auto ask) {
        auto locked = page.lock();
        auto answer = std::async(std::launch::async, [&] { return status(ask()); });
        EXPECT_EQ(answer.wait_for(50ms), std::future_status::timeout) << path;
        locked.unlock();
        EXPECT_EQ(answer.get(), answered) << path;
    };
    for (const char* path : {"/screen.png", "/revision", "/page", "/controls", "/entry"})
        expect_to_wait(path, 200, [&] { return client.Get(path); });
    expect_to_wait("/page/Red", 204, [&] { return client.Post("/page/Red"); });
    for (const char* path : {"/press/0/0", "/press/0", "/move/0/0", "/hold", "/release", "/abort"})
        expect_to_wait(path, 200, [&] { return client.Post(path); });
    for (const char* path : {"/entry/1?text=1", "/escape/1"})
        expect_to_wait(path, 409, [&] { return client.Post(path); });
}

TEST_F(WebPage, ServesManyViewersWhileTheApplicationGoesOn)
{
    std::vector<std::future<int>> viewers;
    for (int i = 0; i < 4; ++i) {
        viewers.push_back(std::async(std::launch::async, [this, i] {
            httplib::Client viewer("127.0.0.1", page.port());
            int pictures = 0;
            for (int turn = 0; turn < 10; ++turn) {
                viewer.Post((i + turn) % 2 ? "/page/Red" : "/page/Broken");
                pictures += status(viewer.Get("/screen.png")) == 200;
            }
            return pictures;
        }));
    }
    for (int turn = 0; turn < 200; ++turn) {
        const auto locked = page.lock();
        show(static_cast<std::size_t>(turn % 2));
    }
    for (auto& viewer : viewers)
        EXPECT_EQ(viewer.get(), 10);
}

TEST_F(WebPage, IsForThisMachineOnly)
{
    // Whoever listens on every address also answers on the other ones of the loopback.
    httplib::Client elsewhere("127.0.0.2", page.port());
    EXPECT_EQ(elsewhere.Get("/revision").error(), httplib::Error::Connection);
}

TEST_F(WebPage, ReportsAPortInUse)
{
    try {
        Web_page second(session.terminal, renderer, choice(), {}, page.port());
        FAIL() << "two pages on port " << page.port();
    } catch (const std::system_error& problem) {
        EXPECT_EQ(problem.code(), std::errc::address_in_use);
        EXPECT_EQ(problem.what(),
                  "cannot listen on 127.0.0.1:" + std::to_string(page.port()) + ": Address already in use");
    }
    EXPECT_EQ(status(client.Get("/")), 200);
}

TEST_F(WebPage, FreesItsPortAtTheEnd)
{
    std::uint16_t port;
    {
        const Web_page first(session.terminal, renderer, {}, {}, 0);
        port = first.port();
        EXPECT_EQ(status(httplib::Client("127.0.0.1", port).Get("/")), 200);
    }
    EXPECT_EQ(httplib::Client("127.0.0.1", port).Get("/").error(), httplib::Error::Connection);
    const Web_page second(session.terminal, renderer, {}, {}, port);
    EXPECT_EQ(second.port(), port);
}

TEST_F(WebPage, DoesNotWaitLongForASilentClient)
{
    auto first = std::make_unique<Web_page>(session.terminal, renderer, Screen_choice(), nullptr, 0);
    const int silent = begin(first->port(), "GET / HT");
    EXPECT_EQ(status(httplib::Client("127.0.0.1", first->port()).Get("/")), 200); // the silent one was taken in before

    const auto start = Clock::now();
    first.reset();
    EXPECT_LT(Clock::now() - start, 3s);
    close(silent);
}

TEST(WebPageWithoutAPool, ShowsABlackScreenAndNoChoice)
{
    Session session;
    Renderer renderer;
    const Web_page page(session.terminal, renderer, {{}, [] { return std::string(); }, {}}, {}, 0);
    httplib::Client client("127.0.0.1", page.port());
    const auto html = client.Get("/");
    ASSERT_TRUE(html);
    EXPECT_EQ(html->body.find("name=\"page\""), std::string::npos);
    const auto answer = client.Get("/screen.png");
    ASSERT_TRUE(answer);
    const QImage picture = QImage::fromData(QByteArray::fromStdString(answer->body), "PNG");
    EXPECT_EQ(picture, renderer.draw(session.terminal));
    EXPECT_EQ(picture.pixel(100, 100), qRgb(0, 0, 0));
}

} // namespace
} // namespace terminal
