#include "recording/expect.h"

#include <algorithm>

namespace recording {

::testing::AssertionResult Equal(const std::vector<Named>& expected,
                                 const std::vector<std::string>& drawn) {
    for (std::size_t i = 0; i < std::max(expected.size(), drawn.size()); ++i) {
        if (i >= drawn.size()) {
            return ::testing::AssertionFailure()
                   << expected[i].name << ": expected " << expected[i].line
                   << ", but the drawing ends after " << drawn.size() << " calls";
        }
        if (i >= expected.size()) {
            return ::testing::AssertionFailure()
                   << "call " << i + 1 << " is one too many: " << drawn[i];
        }
        if (expected[i].line != drawn[i]) {
            return ::testing::AssertionFailure()
                   << expected[i].name << " (call " << i + 1 << "):\n  expected "
                   << expected[i].line << "\n  drawn    " << drawn[i];
        }
    }
    return ::testing::AssertionSuccess();
}

::testing::AssertionResult NothingAlive() {
    const std::vector<std::string> live = LiveObjects();
    if (live.empty()) {
        return ::testing::AssertionSuccess();
    }
    auto failure = ::testing::AssertionFailure() << live.size() << " alive:";
    for (const std::string& object : live) {
        failure << "\n  " << object;
    }
    return failure;
}

Surface::Surface(int width, int height)
    : m_bitmap(width, height, PixelFormat32bppARGB), m_graphics(&m_bitmap) {
    m_graphics.Clear(Gdiplus::Color(255, 255, 255, 255));
}

std::vector<float> Surface::WorldTransform() {
    Gdiplus::Matrix matrix;
    m_graphics.GetTransform(&matrix);
    std::vector<float> elements(6);
    matrix.GetElements(elements.data());
    return elements;
}

}  // namespace recording
