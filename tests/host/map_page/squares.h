#pragma once

#include <array>
#include <string>
#include <vector>

#include "true_pages/picture.h"

namespace host_tests {

/// The mean of each colour of an image file over squares of pixels, in which the edges of
/// shapes and letters lie alike however they are smoothed.
inline std::vector<double> SquaresOf(const std::string& path, int side) {
    const true_pages::Picture picture(path);
    std::vector<double> means;
    for (int top = 0; top + side <= picture.Height(); top += side) {
        for (int left = 0; left + side <= picture.Width(); left += side) {
            std::array<double, 3> sum{};
            for (int i = 0; i < side * side; ++i) {
                const true_pages::Pixel pixel =
                    picture.At(left + i % side, top + i / side);
                sum[0] += pixel.red;
                sum[1] += pixel.green;
                sum[2] += pixel.blue;
            }
            for (const double one : sum) {
                means.push_back(one / (side * side));
            }
        }
    }
    return means;
}

}  // namespace host_tests
