#include "tests/terminal/web/Web_page_fixture.h"

#include <QCryptographicHash>

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

TEST_F(WebPage, IsOneHtmlFileThatNeedsNothingFromElsewhere)
{
    const auto answer = client.get("/");
    ASSERT_EQ(answer.status, 200);
    EXPECT_EQ(answer.header("Content-Type"), "text/html; charset=utf-8");
    EXPECT_EQ(answer.body.rfind("<!doctype html>", 0), 0u);
    for (const char* elsewhere : {"://", "@import", "<link rel=\"stylesheet", "<script src"})
        EXPECT_EQ(answer.body.find(elsewhere), std::string::npos) << elsewhere;
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

TEST_F(WebPage, DrawsTheScreenOnceForAllWhoAsk)
{
    const QImage first = sent();
    std::int64_t other_work;
    {
        const auto locked = page.lock();
        const std::int64_t work = renderer.work();
        renderer.draw_key(session.terminal.pool(), session.terminal.pool().find(soft_key), 10, 10);
        other_work = renderer.work();
        ASSERT_NE(other_work, work);
    }
    EXPECT_EQ(sent(), first);
    const auto locked = page.lock();
    EXPECT_EQ(renderer.work(), other_work);
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

TEST_F(WebPage, KnowsNoOtherScreensAndAddresses)
{
    const std::string before = text("/revision");
    EXPECT_EQ(choose("Green"), 404);
    EXPECT_EQ(choose("red"), 404);
    EXPECT_EQ(choose(std::string(8000, 'x')), 404);
    EXPECT_EQ(client.post("/page/").status, 404);
    EXPECT_EQ(client.get("/page/Red").status, 404);
    EXPECT_EQ(client.get("/favicon.ico").status, 404);
    EXPECT_EQ(client.get("/../Web_page_test.cpp").status, 404);
    EXPECT_EQ(client.post("/").status, 404);
    EXPECT_EQ(text("/revision"), before);
}

TEST_F(WebPage, TellsTheViewerWhyAScreenCannotBeShown)
{
    const auto answer = client.post("/page/Broken");
    ASSERT_EQ(answer.status, 500);
    EXPECT_EQ(answer.body, "the terminal refused it");
    EXPECT_EQ(choose(blue_name), 204);
}

TEST_F(WebPage, IsNeverTakenFromACacheNorShownByAnotherSite)
{
    for (const char* path : {"/", "/screen.png", "/revision", "/page", "/controls", "/entry", "/favicon.ico"}) {
        const Answer answer = client.get(path);
        EXPECT_EQ(answer.header("Cache-Control"), "no-store") << path;
        EXPECT_EQ(answer.header("X-Frame-Options"), "DENY") << path;
        EXPECT_EQ(answer.header("X-Content-Type-Options"), "nosniff") << path;
        EXPECT_EQ(answer.header("Cross-Origin-Resource-Policy"), "same-origin") << path;
    }
}

TEST_F(WebPage, AllowsBrowsersItsOwnScriptAndStyleAndNothingElse)
{
    const Answer answer = client.get("/");
    const auto hash_of = [&answer](const std::string& tag) {
        const std::size_t start = answer.body.find("<" + tag + ">") + tag.size() + 2;
        const std::string content = answer.body.substr(start, answer.body.find("</" + tag + ">") - start);
        const QByteArray bytes = QByteArray::fromStdString(content);
        return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toBase64().toStdString();
    };
    EXPECT_EQ(answer.header("Content-Security-Policy"),
              "default-src 'none'; script-src 'sha256-" + hash_of("script") + "'; style-src 'sha256-" +
                  hash_of("style") +
                  "'; img-src 'self' data:; connect-src 'self'; base-uri 'none'; form-action 'none'; "
                  "frame-ancestors 'none'");
    for (const char* refused : {" style=", " onclick=", "<script ", "<style ", "javascript:"})
        EXPECT_EQ(answer.body.find(refused), std::string::npos) << refused;
}

TEST_F(WebPage, AnswersHowMuchThereWouldBe)
{
    const Answer whole = client.get("/screen.png");
    const Answer head = client.ask("HEAD", "/screen.png");
    EXPECT_EQ(head.status, 200);
    EXPECT_EQ(head.header("Content-Length"), std::to_string(whole.body.size()));
    EXPECT_EQ(head.body, "");
    for (const char* method : {"PUT", "DELETE", "OPTIONS", "BREW"})
        EXPECT_EQ(client.ask(method, "/page/Red").status, 404) << method;
}

TEST_F(WebPage, AnswersOneRequestAfterTheOtherOnOneConnection)
{
    Raw_connection connection(page.port());
    const std::string first = client.beginning("GET", "/page") + "\r\n";
    const std::string second = client.beginning("POST", "/page/Red") + "\r\n";
    const std::string last = client.beginning("GET", "/entry") + "Connection: close\r\n\r\n";
    connection.send(first);
    EXPECT_EQ(parse_answer(connection.receive("Red")).body, "Red");
    connection.send(second + last); // without waiting for an answer
    const std::string all = connection.receive();
    const std::size_t changed = all.find("HTTP/1.1 204 "), entry = all.find("HTTP/1.1 200 ");
    EXPECT_LT(changed, entry);
    EXPECT_EQ(parse_answer(all.substr(entry)).body, "null");
}

TEST_F(WebPage, KeepsAwayFromTheTerminalWhileItIsLocked)
{
    const auto expect_to_wait = [this](const char* path, int answered, auto ask) {
        auto locked = page.lock();
        auto answer = std::async(std::launch::async, [&] { return ask().status; });
        EXPECT_EQ(answer.wait_for(50ms), std::future_status::timeout) << path;
        locked.unlock();
        EXPECT_EQ(answer.get(), answered) << path;
    };
    for (const char* path : {"/screen.png", "/revision", "/page", "/controls", "/entry"})
        expect_to_wait(path, 200, [&] { return client.get(path); });
    expect_to_wait("/page/Red", 204, [&] { return client.post("/page/Red"); });
    for (const char* path : {"/press/0/0", "/press/0", "/move/0/0", "/hold", "/release", "/abort"})
        expect_to_wait(path, 200, [&] { return client.post(path); });
    for (const char* path : {"/entry/1?text=1", "/escape/1"})
        expect_to_wait(path, 409, [&] { return client.post(path); });
}

TEST_F(WebPage, ServesManyViewersWhileTheApplicationGoesOn)
{
    std::vector<std::future<int>> viewers;
    for (int i = 0; i < 4; ++i) {
        viewers.push_back(std::async(std::launch::async, [this, i] {
            const Http_client viewer(page.port());
            int pictures = 0;
            for (int turn = 0; turn < 10; ++turn) {
                viewer.post((i + turn) % 2 ? "/page/Red" : "/page/Broken");
                pictures += viewer.get("/screen.png").status == 200;
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
    EXPECT_FALSE(Raw_connection(page.port(), 0x7F000002).is_connected());
    EXPECT_TRUE(Raw_connection(page.port()).is_connected());
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
    EXPECT_EQ(client.get("/").status, 200);
}

TEST_F(WebPage, FreesItsPortAtTheEnd)
{
    std::uint16_t port;
    {
        const Web_page first(session.terminal, renderer, {}, {}, 0);
        port = first.port();
        EXPECT_EQ(Http_client(port).get("/").status, 200);
    }
    EXPECT_FALSE(Raw_connection(port).is_connected());
    const Web_page second(session.terminal, renderer, {}, {}, port);
    EXPECT_EQ(second.port(), port);
}

TEST(WebPageWithoutAPool, ShowsABlackScreenAndNoChoice)
{
    Session session;
    Renderer renderer;
    const Web_page page(session.terminal, renderer, {{}, [] { return std::string(); }, {}}, {}, 0);
    const Http_client client(page.port());
    const auto html = client.get("/");
    ASSERT_EQ(html.status, 200);
    EXPECT_EQ(html.body.find("name=\"page\""), std::string::npos);
    const auto answer = client.get("/screen.png");
    ASSERT_EQ(answer.status, 200);
    const QImage picture = QImage::fromData(QByteArray::fromStdString(answer.body), "PNG");
    EXPECT_EQ(picture, renderer.draw(session.terminal));
    EXPECT_EQ(picture.pixel(100, 100), qRgb(0, 0, 0));
}

} // namespace
} // namespace terminal
