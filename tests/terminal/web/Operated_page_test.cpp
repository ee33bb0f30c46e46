#include "tests/terminal/web/Web_page_fixture.h"

namespace terminal {
namespace {

using OperatedPage = WebPage;

TEST_F(OperatedPage, TellsWhichNumberIsOpenAndWhatItTakes)
{
    EXPECT_EQ(text("/entry"), "null");
    const std::string before = text("/revision");
    EXPECT_EQ(open_number(), std::vector<Bytes>{message(0x03, w(number), 1, 1)});
    EXPECT_NE(text("/revision"), before);
    EXPECT_EQ(text("/entry"), "{\"id\":" + std::to_string(number) +
                                  R"(,"value":"0.5","lowest":"-10.0","highest":"10.0","decimals":1})");
    EXPECT_EQ(client.get("/entry").header("Content-Type"), "application/json");
}

TEST_F(OperatedPage, EntersTheNumberThatTheViewerWrites)
{
    open_number();
    const std::string before = text("/revision");
    EXPECT_EQ(told(entry_of("entry") + "?text=%2B2%2C5"),
              (std::vector<Bytes>{message(0x05, w(number), 0xFF, d(125)), message(0x03, w(number), 0, 0)}));
    EXPECT_NE(text("/revision"), before);
    EXPECT_EQ(text("/entry"), "null");
    EXPECT_TRUE(told(entry_of("entry") + "?text=2.5", 409).empty()) << "it is no longer open";
}

TEST_F(OperatedPage, SaysWhyANumberIsRefusedAndKeepsItOpen)
{
    open_number();
    const auto refusal = [this](const std::string& query) {
        const auto answer = client.post(entry_of("entry") + query);
        EXPECT_EQ(answer.status, 422) << query;
        return answer.body;
    };
    times_told = 0;
    EXPECT_EQ(refusal("?text=10.1"), "the entry is above the highest number, 10.0");
    EXPECT_EQ(refusal("?text=-10.1"), "the entry is below the lowest number, -10.0");
    for (const char* query : {"?text=abc", "?text=", "", "?text=%00", "?text=%FF", "?text=../..", "?other=1"})
        EXPECT_EQ(refusal(query), "the entry is not a number") << query;
    EXPECT_EQ(refusal("?text=" + std::string(5000, '1')), "the entry is above the highest number, 10.0");
    EXPECT_EQ(times_told, 0);
    EXPECT_EQ(told(entry_of("entry") + "?text=10").size(), 2u);
}

TEST_F(OperatedPage, LeavesTheNumberWhenTheViewerCancels)
{
    open_number();
    EXPECT_EQ(told(entry_of("escape")),
              (std::vector<Bytes>{message(0x04, w(number), 0), message(0x03, w(number), 0, 0)}));
    EXPECT_EQ(text("/entry"), "null");
    EXPECT_TRUE(told(entry_of("escape"), 409).empty());
}

TEST_F(OperatedPage, TakesAnEntryForTheOpenNumberOnly)
{
    EXPECT_TRUE(told("/entry/65535?text=1", 409).empty()) << "none is open";
    EXPECT_TRUE(told("/escape/65535", 409).empty());
    open_number();
    EXPECT_TRUE(told("/entry/" + std::to_string(button) + "?text=1", 409).empty());
    EXPECT_TRUE(told("/escape/" + std::to_string(65536 + number), 409).empty());
    for (const char* path : {"/entry/", "/entry/x?text=1", "/escape", "/escape/-1", "/entry/123456?text=1"})
        EXPECT_TRUE(told(path, 404).empty()) << path;
    EXPECT_NE(text("/entry"), "null");
}

TEST_F(OperatedPage, ShowsTheViewerThatTheTerminalClosedTheNumber)
{
    open_number();
    const std::string before = text("/revision");
    EXPECT_EQ(choose(blue_name), 204);
    EXPECT_NE(text("/revision"), before);
    EXPECT_EQ(text("/entry"), "null");
}

TEST_F(OperatedPage, TellsTheViewerWhatTheApplicationSaysToAnOperation)
{
    objection = "the pool refused it";
    const std::string opening = "/release";
    for (const std::string& path : {opening, entry_of("entry") + "?text=1", opening, entry_of("escape")}) {
        if (path == opening)
            client.post("/press/100/100");
        const auto answer = client.post(path);
        ASSERT_EQ(answer.status, 500) << path;
        EXPECT_EQ(answer.body, objection);
    }
    EXPECT_EQ(text("/entry"), "null") << "the terminal has taken all of it";
}

TEST_F(OperatedPage, IsOperatedByItselfOnly)
{
    const std::string port = ":" + std::to_string(page.port());
    const std::vector<std::string> paths{"/page/Red",       "/press/200/230",
                                         "/hold",           "/move/201/231",
                                         "/release",        "/press/" + std::to_string(button),
                                         "/abort",          "/press/100/100",
                                         "/release",        entry_of("entry") + "?text=1",
                                         "/press/100/100",  "/release",
                                         entry_of("escape")};
    const auto answered = [&](const char* header, const std::string& value) {
        std::vector<int> all;
        for (const std::string& path : paths) {
            const int code = client.post(path, std::string(header) + ": " + value + "\r\n").status;
            all.push_back(code == 200 ? 204 : code); // with or without something to say
        }
        return all;
    };
    const std::vector<int> taken(paths.size(), 204);
    const std::vector<int> refused(paths.size(), 403);
    EXPECT_EQ(answered("Origin", "http://127.0.0.1" + port), taken);
    EXPECT_EQ(answered("Origin", "http://localhost" + port), taken);
    for (const char* name : {"localhost", "127.0.0.1", "[::1]"})
        EXPECT_EQ(answered("Host", name + port), taken) << name;
    const std::string before = text("/revision");
    const std::string origins[] = {"null",
                                   "http://127.0.0.1",
                                   "https://127.0.0.1" + port,
                                   "http://127.0.0.1" + port + "0",
                                   "http://127.0.0.1" + port + "/",
                                   "http://example.com",
                                   "http://127.0.0.2" + port,
                                   "http://localhost" + port + ".example.com"};
    for (const std::string& origin : origins)
        EXPECT_EQ(answered("Origin", origin), refused) << origin;
    const std::string hosts[] = {"example.com", "localhost", "example.com" + port, "127.0.0.1" + port + ".example.com",
                                 "localhost" + port + "1"};
    for (const std::string& host : hosts)
        EXPECT_EQ(answered("Host", host), refused) << host;
    EXPECT_EQ(text("/revision"), before);
    const std::string own_and_other = "Origin: http://localhost" + port + "\r\nOrigin: http://example.com\r\n";
    EXPECT_EQ(client.post("/page/Red", own_and_other).status, 403);
}

TEST_F(OperatedPage, IsReadByWhoeverAsksForItByItsName)
{
    for (const char* path : {"/", "/screen.png", "/revision", "/page", "/controls", "/entry"})
        EXPECT_EQ(client.get(path, "Origin: http://example.com\r\n").status, 200) << path;
}

} // namespace
} // namespace terminal
