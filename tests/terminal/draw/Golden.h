#ifndef TESTS_TERMINAL_DRAW_GOLDEN_H
#define TESTS_TERMINAL_DRAW_GOLDEN_H

#include <gtest/gtest.h>

#include <QImage>

#include <string>

/// Compares a picture, pixel by pixel, with tests/golden/<name>.png:
///
///     EXPECT_TRUE(matches_golden(renderer.draw(terminal), "start_screen"));
///
/// On a difference the picture and an image of the differences (what differs is red, the rest pale) are written to the
/// folder `golden` of the build folder, and the failure names both. With the environment variable VTUI_UPDATE_GOLDEN=1
/// the golden picture is written instead, and the test passes: look at it before you commit it.
testing::AssertionResult matches_golden(const QImage& picture, const std::string& name);

/// The same with folders of one's own, for golden pictures elsewhere.
testing::AssertionResult matches_golden(const QImage& picture, const std::string& name,
                                        const std::string& golden_folder, const std::string& output_folder,
                                        bool update);

#endif
