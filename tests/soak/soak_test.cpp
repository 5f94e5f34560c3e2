// Draws for a long time and watches the memory that the process holds.

#include <gdiplus.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <memory>
#include <vector>

#include "subjects/subjects.h"

namespace {

constexpr std::size_t kTenths = 10;

/// How many drawings to make in all.
std::size_t HowMany() {
    const char* const asked = std::getenv("SOAK_DRAWS");
    return asked == nullptr ? 50 * kTenths * subjects::Rows().size()
                            : std::strtoul(asked, nullptr, 10);
}

/// Resident memory of this process, in kB.
double Resident() {
    double size = 0.0;
    double resident = 0.0;
    std::ifstream("/proc/self/statm") >> size >> resident;
    return resident * static_cast<double>(sysconf(_SC_PAGESIZE)) / 1024.0;
}

/// Every subject once, made, measured, drawn and deleted, on a surface for all of them.
void DrawAll() {
    Gdiplus::Bitmap bitmap(120, 80);
    Gdiplus::Graphics graphics(&bitmap);
    for (const subjects::Row& row : subjects::Rows()) {
        const std::unique_ptr<subjects::Subject> subject = row.make();
        subject->Measure();
        subject->Draw(&graphics);
        graphics.ResetTransform();
    }
    const Gdiplus::SolidBrush brush(Gdiplus::Color(0xFF123456));
    graphics.FillRectangle(&brush, 3, 4, 5, 6);
    Gdiplus::Color pixel;
    bitmap.GetPixel(5, 6, &pixel);
    ASSERT_EQ(pixel.GetValue(), 0xFF123456) << "the surface draws no more";
}

TEST(Soak, HoldsNoMoreMemoryInTheEndThanEarlyOn) {
    const std::size_t rounds = HowMany() / kTenths / subjects::Rows().size() + 1;
    std::vector<double> held;  // on average, in each tenth
    for (std::size_t tenth = 0; tenth < kTenths; ++tenth) {
        double sum = 0.0;
        for (std::size_t round = 0; round < rounds; ++round) {
            ASSERT_NO_FATAL_FAILURE(DrawAll());
            sum += Resident();
        }
        held.push_back(sum / static_cast<double>(rounds));
        std::printf("%zu draws: %.0f kB resident\n",
                    (tenth + 1) * rounds * subjects::Rows().size(), held.back());
    }
    EXPECT_LE(held.back(), 1.01 * held[1]);
}

}  // namespace
