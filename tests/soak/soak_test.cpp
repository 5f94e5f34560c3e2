// Draws for a long time and watches the memory that the process holds.

#include <gdiplus.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "subjects/subjects.h"

namespace {

constexpr std::size_t kTenths = 10;

/// How many drawings to make in all.
std::size_t HowMany(std::size_t unlessTold) {
    const char* const asked = std::getenv("SOAK_DRAWS");
    return asked == nullptr ? unlessTold : std::strtoul(asked, nullptr, 10);
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

/// Draws again and again, so many drawings a time, and compares the memory held on
/// average in each tenth.
void ExpectNoMoreHeldInTheEnd(std::size_t drawings, std::size_t atATime,
                              const std::function<void()>& draw) {
    const std::size_t rounds = drawings / kTenths / atATime + 1;
    std::vector<double> held;
    for (std::size_t tenth = 0; tenth < kTenths; ++tenth) {
        double sum = 0.0;
        for (std::size_t round = 0; round < rounds; ++round) {
            ASSERT_NO_FATAL_FAILURE(draw());
            sum += Resident();
        }
        held.push_back(sum / static_cast<double>(rounds));
        std::printf("%zu drawings: %.0f kB resident\n", (tenth + 1) * rounds * atATime,
                    held.back());
    }
    EXPECT_LE(held.back(), 1.01 * held[1]);
}

TEST(Soak, HoldsNoMoreMemoryInTheEndThanEarlyOn) {
    const std::size_t all = subjects::Rows().size();
    ExpectNoMoreHeldInTheEnd(HowMany(50 * kTenths * all), all, DrawAll);
}

// Neither of the texts nor of their letters and sizes is more kept than there is room
// for.
TEST(Soak, OfNewTextsHoldsNoMoreEither) {
    constexpr std::size_t kAtATime = 1000;
    constexpr std::size_t kSizes = 150;
    constexpr std::size_t kIdeographs = 20000;
    Gdiplus::Bitmap bitmap(120, 80);
    Gdiplus::Graphics graphics(&bitmap);
    const Gdiplus::FontFamily family(L"Arial");
    const Gdiplus::SolidBrush brush(Gdiplus::Color(0xFF123456));
    std::size_t number = 0;
    const auto drawNew = [&] {
        for (std::size_t i = 0; i < kAtATime; ++i, ++number) {
            const auto size = 8.0f + static_cast<Gdiplus::REAL>(number % kSizes) / 8.0f;
            const Gdiplus::Font font(&family, size, Gdiplus::FontStyleRegular,
                                     Gdiplus::UnitPixel);
            const std::wstring text =
                static_cast<wchar_t>(0x4E00 + number % kIdeographs) +
                std::to_wstring(number);
            ASSERT_EQ(graphics.DrawString(text.c_str(), -1, &font,
                                          Gdiplus::PointF(5.0f, 5.0f), &brush),
                      Gdiplus::Ok);
        }
    };
    for (int i = 0; i < 25; ++i) {
        drawNew();  // Cairo keeps the glyphs of 16,384 letters
    }
    ExpectNoMoreHeldInTheEnd(HowMany(50'000), kAtATime, drawNew);
}

}  // namespace
