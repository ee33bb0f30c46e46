#include "tests/terminal/draw/Golden.h"

#include <QTemporaryDir>

namespace {

class GoldenPicture : public testing::Test
{
  protected:
    GoldenPicture() : picture(4, 3, QImage::Format_RGB32) { picture.fill(Qt::blue); }

    testing::AssertionResult matches(bool update = false) const
    {
        return matches_golden(picture, "some", golden.path().toStdString(), output.path().toStdString(), update);
    }

    QTemporaryDir golden;
    QTemporaryDir output;
    QImage picture;
};

TEST_F(GoldenPicture, MatchesWhatWasWrittenByAnUpdate)
{
    EXPECT_TRUE(matches(true));
    EXPECT_TRUE(matches());
}

TEST_F(GoldenPicture, DoesNotMatchIfItIsMissing)
{
    const testing::AssertionResult result = matches();
    EXPECT_FALSE(result);
    EXPECT_NE(std::string(result.message()).find("some_actual.png"), std::string::npos);
    EXPECT_EQ(QImage(output.filePath("some_actual.png")).pixel(0, 0), qRgb(0, 0, 255));
}

TEST_F(GoldenPicture, DoesNotMatchIfOnePixelDiffersAndShowsWhich)
{
    ASSERT_TRUE(matches(true));
    picture.setPixel(2, 1, qRgb(0, 0, 254));
    const testing::AssertionResult result = matches();
    EXPECT_FALSE(result);
    EXPECT_NE(std::string(result.message()).find("some_difference.png"), std::string::npos);
    const QImage difference(output.filePath("some_difference.png"));
    EXPECT_EQ(difference.pixel(2, 1), qRgb(255, 0, 0));
    EXPECT_NE(difference.pixel(1, 1), qRgb(255, 0, 0));
}

TEST_F(GoldenPicture, DoesNotMatchIfItsSizeDiffers)
{
    ASSERT_TRUE(matches(true));
    picture = picture.copy(0, 0, 4, 2);
    EXPECT_FALSE(matches());
}

} // namespace
