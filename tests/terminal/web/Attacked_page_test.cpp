#include "terminal/web/Http_server.h"
#include "tests/terminal/web/Web_page_fixture.h"

#include <sys/resource.h>
#include <unistd.h>

#include <chrono>
#include <future>
#include <memory>
#include <string>
#include <thread>
#include <vector>

namespace terminal {
namespace {

using namespace std::chrono_literals;

/// What a client may hand over that the page refuses to read: what lies in the system's own buffers between them, too.
constexpr std::size_t few_bytes = 8 * 1024 * 1024;
constexpr std::size_t many_bytes = 8 * few_bytes;

class AttackedPage : public WebPage
{
  protected:
    /// So many connections, accepted.
    std::vector<Raw_connection> connect(std::size_t count, const std::string& beginning)
    {
        std::vector<Raw_connection> all;
        for (std::size_t i = 0; i < count; ++i) {
            all.emplace_back(page.port());
            EXPECT_TRUE(all.back().is_connected()) << i;
            all.back().send(beginning);
            if (i % 64 == 63)
                settle();
        }
        settle();
        return all;
    }

    /// Returns when the page has taken what was sent.
    void settle()
    {
        EXPECT_EQ(client.get("/revision").status, 200);
        clock.wait_for_a_look();
    }

    std::string whole_request() { return client.beginning("GET", "/revision") + "\r\n"; }

    std::string one_after_the_other(const std::string& text, std::size_t bytes)
    {
        std::string all;
        while (all.size() < bytes)
            all += text;
        return all;
    }

    /// How much of what follows the beginning, again and again, the page takes until it closes the connection.
    std::size_t taken(const std::string& beginning, const std::string& then, int expected_status)
    {
        Raw_connection connection(page.port());
        std::size_t sent = connection.send(beginning);
        const std::string portion = one_after_the_other(then, 64 * 1024);
        while (sent < many_bytes) {
            const std::size_t more = connection.send(portion);
            sent += more;
            if (more < portion.size())
                break;
        }
        EXPECT_EQ(parse_answer(connection.receive()).status, expected_status) << beginning;
        return sent;
    }
};

TEST_F(AttackedPage, GivesARequestTwoSecondsHoweverBusilyItIsSent)
{
    std::vector<Raw_connection> slow = connect(16, "G");
    Raw_connection silent(page.port());
    settle();
    for (int i = 0; i < 4; ++i) {
        clock.advance(i < 3 ? 400ms : 799ms);
        for (Raw_connection& connection : slow)
            EXPECT_EQ(connection.send("E"), 1u);
        settle();
        for (Raw_connection& connection : slow)
            EXPECT_FALSE(connection.is_closed());
        EXPECT_FALSE(silent.is_closed());
    }
    clock.advance(1ms);
    EXPECT_TRUE(silent.waits_to_be_closed());
    for (Raw_connection& connection : slow)
        ASSERT_TRUE(connection.waits_to_be_closed());
}

TEST_F(AttackedPage, GivesAnAnswerTwoSecondsToBeTaken)
{
    Raw_connection greedy(page.port());
    // For much more than the system keeps for a client.
    greedy.send(one_after_the_other(client.beginning("GET", "/") + "\r\n", 32 * 1024));
    settle();
    clock.advance(1999ms);
    settle();
    EXPECT_FALSE(greedy.is_closed());
    for (int answers = 0; answers < 500 && !greedy.is_closed(); ++answers) {
        clock.advance(2s);
        settle();
    }
    EXPECT_TRUE(greedy.is_closed());
}

TEST_F(AttackedPage, LetsConnectionsWaitForTheNextRequest)
{
    std::vector<Raw_connection> idle = connect(Http_server::most_connections / 2, whole_request());
    clock.advance(1h);
    settle();
    for (Raw_connection& connection : idle) {
        connection.send(client.beginning("GET", "/revision") + "Connection: close\r\n\r\n");
        const std::string both = connection.receive();
        EXPECT_NE(both.find("HTTP/1.1 200 OK", 1), std::string::npos);
    }
}

TEST_F(AttackedPage, GivesUpWhatHasWaitedLongestWhenThereAreTooMany)
{
    const std::size_t some = 8;
    std::vector<Raw_connection> slow = connect(some, "G");
    // These do not take all that they have asked for, and yet it does not stay in the system for them.
    std::vector<Raw_connection> old = connect(some, one_after_the_other(client.beginning("GET", "/") + "\r\n", 400));
    clock.advance(1ms);
    std::vector<Raw_connection> young = connect(Http_server::most_connections - 2 * some, whole_request());
    std::vector<Raw_connection> new_ones = connect(some - 1, whole_request()); // and one that settles
    for (Raw_connection& connection : old)
        ASSERT_TRUE(connection.waits_to_be_closed());
    for (auto* kept : {&slow, &young, &new_ones}) {
        for (Raw_connection& connection : *kept)
            EXPECT_FALSE(connection.is_closed());
    }
}

TEST_F(AttackedPage, AnswersWhileAllItsConnectionsAreInTheMiddleOfARequest)
{
    std::vector<Raw_connection> old = connect(1, "G");
    clock.advance(1ms);
    const std::vector<Raw_connection> slow = connect(2 * Http_server::most_connections, "G");
    EXPECT_EQ(client.get("/revision").status, 200);
    EXPECT_TRUE(old[0].waits_to_be_closed());
}

TEST_F(AttackedPage, TakesNoBody)
{
    for (const char* target : {"/nowhere", "/hold"}) {
        const std::string request = client.beginning("POST", target);
        EXPECT_LT(taken(request + "Content-Length: 67108864\r\n\r\n", "x", 413), few_bytes);
        EXPECT_LT(taken(request + "Transfer-Encoding: chunked\r\n\r\n", "8\r\n12345678\r\n", 413), few_bytes);
        EXPECT_LT(taken(request + "Transfer-Encoding: chunked\r\n\r\n1;", "x", 431), few_bytes);
        EXPECT_LT(taken(request + "Transfer-Encoding: chunked\r\n\r\n0\r\n", "x: y\r\n", 431), few_bytes);
    }
}

TEST_F(AttackedPage, TakesNoLongHead)
{
    EXPECT_LT(taken("GET /", "x", 431), few_bytes);
    EXPECT_LT(taken(client.beginning("GET", "/"), "x: y\r\n", 431), few_bytes);
    EXPECT_LT(taken(client.beginning("GET", "/") + "x: ", "y", 431), few_bytes);
    const std::size_t much = Http_server::longest_head - 200;
    EXPECT_EQ(client.get("/", "x: " + std::string(much, 'y') + "\r\n").status, 200);
    EXPECT_EQ(client.get("/", "x: " + std::string(much + 200, 'y') + "\r\n").status, 431);
}

TEST_F(AttackedPage, ClosesTheConnectionThatItDoesNotUnderstand)
{
    const std::string host = "Host: 127.0.0.1:" + std::to_string(page.port()) + "\r\n";
    for (const std::string& request :
         {std::string("\x16\x03\x01\r\n\r\n"), std::string("GET\r\n\r\n"), "GET / HTTP/9\r\n" + host + "\r\n",
          "GET / HTTP/1.1\r\n" + host + "x\r\n\r\n", "GET / HTTP/1.1\r\n" + host + "Content-Length: x\r\n\r\n",
          "GET / HTTP/1.1\r\n" + host + host + "\r\n", std::string("GET / HTTP/1.1\r\n\r\n")}) {
        Raw_connection connection(page.port());
        connection.send(request);
        EXPECT_EQ(parse_answer(connection.receive()).status, 400) << request;
    }
}

TEST_F(AttackedPage, IsReadUnderItsOwnNameOnly)
{
    const std::string port = ":" + std::to_string(page.port());
    const auto status = [this](const std::string& host) {
        return client.get("/entry", "Host: " + host + "\r\n").status;
    };
    for (const std::string& own : {"localhost" + port, "127.0.0.1" + port, "[::1]" + port})
        EXPECT_EQ(status(own), 200) << own;
    for (const std::string& other :
         {std::string("example.com"), "example.com" + port, std::string("localhost"), "127.0.0.1" + port + "0",
          "localhost" + port + ".example.com", "localhost" + port + ", example.com", std::string()})
        EXPECT_EQ(status(other), 403) << other;
    const Answer refused = client.get("/screen.png", "Host: example.com\r\n");
    EXPECT_EQ(refused.body, "this is for the page that comes from here");
    EXPECT_EQ(refused.header("X-Frame-Options"), "DENY");
}

TEST_F(AttackedPage, HearsSixteenBrowsersThatHoldAKeyAtOnce)
{
    constexpr std::size_t tabs = 16, connections_of_a_browser = 6;
    EXPECT_EQ(client.post("/press/219/239").body, "true");
    std::vector<Raw_connection> all;
    {
        const auto locked = page.lock(); // by an application that is busy for a moment: nothing is accepted
        for (std::size_t i = 0; i < tabs * connections_of_a_browser; ++i) {
            all.emplace_back(page.port());
            ASSERT_TRUE(all.back().is_connected()) << i;
            all.back().send(client.beginning("POST", "/hold") + "Connection: close\r\n\r\n");
        }
        session.sent.clear();
    }
    for (Raw_connection& connection : all)
        EXPECT_EQ(parse_answer(connection.receive()).body, "true");
    const auto locked = page.lock();
    EXPECT_EQ(session.sent.size(), all.size());
}

TEST_F(AttackedPage, EndsAtOnceWhateverItsClientsDo)
{
    auto ending = std::make_unique<Web_page>(session.terminal, renderer, Screen_choice(), nullptr, 0);
    const Http_client viewer(ending->port());
    std::vector<Raw_connection> clients;
    for (const std::string& beginning : {std::string(), std::string("G"), viewer.beginning("GET", "/"),
                                         viewer.beginning("POST", "/hold") + "Content-Length: 1000\r\n\r\nx",
                                         one_after_the_other(viewer.beginning("GET", "/") + "\r\n", 128 * 1024)}) {
        for (int i = 0; i < 8; ++i) {
            clients.emplace_back(ending->port());
            clients.back().send(beginning);
        }
    }
    EXPECT_EQ(viewer.get("/").status, 200);
    auto ended = std::async(std::launch::async, [&] { ending.reset(); });
    EXPECT_EQ(ended.wait_for(2s), std::future_status::ready);
    for (Raw_connection& connection : clients)
        EXPECT_TRUE(connection.is_closed());
}

TEST_F(AttackedPage, GoesOnWhenThereAreDescriptorsAgain)
{
    rlimit before{};
    ASSERT_EQ(getrlimit(RLIMIT_NOFILE, &before), 0);
    settle();
    const int last_one = dup(STDERR_FILENO);
    ASSERT_EQ(close(last_one), 0);
    const rlimit tight{static_cast<rlim_t>(last_one) + 1, before.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &tight), 0);
    Raw_connection connection(page.port());
    clock.wait_for_a_look();
    ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &before), 0);
    EXPECT_TRUE(connection.is_connected());
    connection.send(client.beginning("GET", "/revision") + "Connection: close\r\n\r\n");
    EXPECT_EQ(parse_answer(connection.receive()).status, 200);
}

} // namespace
} // namespace terminal
