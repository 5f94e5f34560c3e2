#include "true_pages/printed_page.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>

#include "pdf/pdf_check.h"

namespace true_pages {
namespace {

/// The mean of each colour in a square of pixels, in which the edges of shapes and
/// letters lie alike however they are smoothed.
std::array<double, 3> MeanOf(const Picture& picture, int left, int top, int side) {
    std::array<double, 3> mean{};
    for (int i = 0; i < side * side; ++i) {
        const Pixel pixel = picture.At(left + i % side, top + i / side);
        mean[0] += pixel.red;
        mean[1] += pixel.green;
        mean[2] += pixel.blue;
    }
    for (double& colour : mean) {
        colour /= side * side;
    }
    return mean;
}

}  // namespace

void CheckPrint(const std::string& file, double dpi, const Picture& picture) {
    EXPECT_THAT(host_tests::AgainstPdfUa(file), ::testing::IsEmpty());
    EXPECT_THAT(host_tests::ReadAloud(file),
                ::testing::Contains(::testing::StartsWith("Figure: Map, 1\u00A0:")));

    // Lines of a pixel are two wide where they are rendered between two.
    constexpr int kFiner = 3;
    const std::string command = "pdftoppm -singlefile -png -r " +
                                std::to_string(kFiner * dpi) + " '" + file + "' '" +
                                file + "'";
    ASSERT_EQ(std::system(command.c_str()), 0) << command;
    const Picture rendered(file + ".png");
    const int width = rendered.Width() / kFiner;
    const int height = rendered.Height() / kFiner;
    EXPECT_NEAR(width, picture.Width(), 1);
    EXPECT_NEAR(height, picture.Height(), 1);
    constexpr int kSide = 20;
    constexpr double kMost = 60.0;  // of 255, in one square: small type sits elsewhere
    constexpr double kMean = 1.0;
    double sum = 0.0;
    int count = 0;
    const int right = std::min(width, picture.Width()) - kSide;
    const int bottom = std::min(height, picture.Height()) - kSide;
    for (int top = 0; top <= bottom; top += kSide) {
        for (int left = 0; left <= right; left += kSide) {
            const std::array<double, 3> drawn = MeanOf(picture, left, top, kSide);
            const std::array<double, 3> printed =
                MeanOf(rendered, kFiner * left, kFiner * top, kFiner * kSide);
            for (std::size_t i = 0; i < drawn.size(); ++i) {
                const double difference = std::fabs(drawn[i] - printed[i]);
                EXPECT_LT(difference, kMost) << "at " << left << ", " << top;
                sum += difference;
                ++count;
            }
        }
    }
    EXPECT_LT(sum / count, kMean);
}

}  // namespace true_pages
