#include "recording/expect.h"

#include <algorithm>

#include "recording/session.h"

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

Surface::Surface(int width, int height) {
    Forward([&] {
        m_bitmap = std::make_unique<Gdiplus::Bitmap>(width, height, PixelFormat32bppARGB);
        m_graphics = std::make_unique<Gdiplus::Graphics>(m_bitmap.get());
        return m_graphics->Clear(Gdiplus::Color(255, 255, 255, 255));
    });
}

Surface::~Surface() {
    Forward([&] {
        m_graphics.reset();
        m_bitmap.reset();
        return Gdiplus::Ok;
    });
}

std::vector<float> Surface::WorldTransform() {
    std::vector<float> elements(6);
    Forward([&] {
        Gdiplus::Matrix matrix;
        m_graphics->GetTransform(&matrix);
        return matrix.GetElements(elements.data());
    });
    return elements;
}

}  // namespace recording
