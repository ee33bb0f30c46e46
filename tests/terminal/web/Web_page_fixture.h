#ifndef TESTS_TERMINAL_WEB_WEB_PAGE_FIXTURE_H
#define TESTS_TERMINAL_WEB_WEB_PAGE_FIXTURE_H

#include "terminal/web/Web_page.h"
#include "tests/terminal/Session.h"
#include "tests/terminal/draw/Pool_builder.h"
#include "tests/terminal/web/Http_client.h"

#include <QImage>
#include <QUrl>

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

namespace terminal {

/// The time of a page, which stands still until a test lets it go on.
class Manual_clock
{
  public:
    using Duration = std::chrono::milliseconds;

    void advance(Duration by) { elapsed += by.count(); }

    /// A page that is asked for nothing looks at the clock whenever it looks for what has taken too long.
    Web_settings settings()
    {
        Web_settings settings;
        settings.now = [this] {
            ++n_looks;
            return std::chrono::steady_clock::time_point(Duration(elapsed));
        };
        settings.between_looks = Duration(5);
        return settings;
    }

    /// Returns when the page, asked for nothing, has looked for what has taken too long at the time that it is now.
    void wait_for_a_look() const
    {
        // The one that is under way may have seen the time before. Each look asks for the time twice at most.
        for (const int enough = n_looks + 4; n_looks < enough;)
            std::this_thread::sleep_for(Duration(1));
    }

  private:
    std::atomic<Duration::rep> elapsed{1'000'000};
    std::atomic<int> n_looks{0};
};

/// A terminal that shows one of two screens, a red and a blue one with different squares, and its page. The red screen
/// has an input number, a button, and a soft key, too.
class WebPage : public testing::Test
{
  protected:
    static constexpr std::uint16_t mask_size = 240;
    static constexpr const char* blue_name = "Blue <&> 50% \"\xC3\xBC/+\"";

    WebPage()
    {
        Pool_builder builder;
        const auto square = builder.rectangle(50, 40, builder.line_attributes(1, 3));
        Pool_builder::Number tenths;
        tenths.value = 105;
        tenths.offset = -100;
        tenths.scale = 0.1f;
        tenths.decimals = 1;
        tenths.maximum = 200;
        number = builder.input_number({20, 10, Pool_builder::none}, tenths);
        button = builder.button(20, 10, 0, 0, 0);
        soft_key = builder.key(3, {});
        red = builder.mask(12, {{square, 10, 20}, {number, 100, 100}, {button, 200, 230}},
                           builder.soft_key_mask(0, {soft_key}));
        blue = builder.mask(9, {{square, 100, 120}});
        working_set = builder.working_set(red);
        EXPECT_EQ(session.load(builder.bytes()), accepted);
    }

    static Hardware hardware()
    {
        Hardware small;
        small.mask_size = mask_size;
        return small;
    }

    Screen_choice choice()
    {
        return {{"Red", blue_name, "Broken"},
                [this] { return session.terminal.active_mask().id() == red ? "Red" : blue_name; },
                [this](std::size_t index) { show(index); }};
    }

    void show(std::size_t index)
    {
        if (index == 2)
            throw std::runtime_error("the terminal refused it");
        const Bytes command = message(0xAD, w(working_set), w(index == 0 ? red : blue));
        session.terminal.receive(command.data(), command.size());
    }

    void take()
    {
        ++times_told;
        if (!objection.empty())
            throw std::runtime_error(objection);
    }

    QImage drawn()
    {
        const auto locked = page.lock();
        return renderer.draw(session.terminal);
    }

    QImage sent()
    {
        const Answer answer = client.get("/screen.png");
        EXPECT_EQ(answer.status, 200);
        EXPECT_EQ(answer.header("Content-Type"), "image/png");
        return QImage::fromData(QByteArray::fromStdString(answer.body), "PNG");
    }

    std::string text(const char* path)
    {
        const Answer answer = client.get(path);
        EXPECT_EQ(answer.status, 200) << path;
        return answer.body;
    }

    /// What the application is told of a request, and by the page, that there is something to be told.
    std::vector<Bytes> told(const std::string& path, int expected_status = 204)
    {
        {
            const auto locked = page.lock();
            session.sent.clear();
            times_told = 0;
        }
        const Answer answer = client.post(path);
        EXPECT_EQ(answer.status, expected_status) << path;
        last_answer = answer.body;
        const auto locked = page.lock();
        EXPECT_LE(times_told, 1) << path;
        EXPECT_GE(times_told, session.sent.empty() ? 0 : 1) << path;
        return session.sent;
    }
    /// The same of a request of a press, which answers whether that goes on.
    std::vector<Bytes> told(const std::string& path, bool goes_on)
    {
        const auto messages = told(path, 200);
        EXPECT_EQ(last_answer, goes_on ? "true" : "false") << path;
        return messages;
    }

    std::string entry_of(const char* action) { return "/" + std::string(action) + "/" + std::to_string(number); }
    std::vector<Bytes> open_number()
    {
        const auto before = told("/press/100/100", true);
        EXPECT_TRUE(before.empty());
        return told("/release", false);
    }

    int choose(const std::string& name)
    {
        return client.post("/page/" + QUrl::toPercentEncoding(QString::fromStdString(name)).toStdString()).status;
    }

    Pool_builder::Id red, blue, working_set, number, button, soft_key;
    int times_told = 0;
    std::string last_answer; ///< by the page, to the last request of which something was told
    std::string objection;   ///< that the application has with what it is told
    Session session{hardware()};
    Renderer renderer;
    Manual_clock clock;
    Web_page page{session.terminal, renderer, choice(), [this] { take(); }, 0, clock.settings()};
    Http_client client{page.port()};
};

} // namespace terminal

#endif
