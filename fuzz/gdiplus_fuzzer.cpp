// The same elements and frames, drawn by the system's GDI+ on a small surface, which must
// go on drawing afterwards.

#include <gdiplus.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "input.h"
#include "scene.h"

namespace {

constexpr int kMostDivisions = 6;
constexpr Gdiplus::ARGB kMark = 0xFF123456;

void Check(bool held, const char* what) {
    if (!held) {
        std::fprintf(stderr, "does not hold: %s\n", what);
        std::abort();
    }
}

bool StartGdiplus() {
    const Gdiplus::GdiplusStartupInput input;
    ULONG_PTR token = 0;
    return Gdiplus::GdiplusStartup(&token, &input, nullptr) == Gdiplus::Ok;
}

std::wstring Wide(const std::string& ascii) { return {ascii.begin(), ascii.end()}; }

/// Whether shapes and text still reach the pixels.
void CheckSurface(Gdiplus::Bitmap& bitmap, Gdiplus::Graphics& graphics) {
    Gdiplus::Matrix transform;
    graphics.GetTransform(&transform);
    Check(transform.IsIdentity() != 0, "the world transform is the identity again");

    graphics.Clear(Gdiplus::Color(0xFFFFFFFF));
    const Gdiplus::SolidBrush brush{Gdiplus::Color(kMark)};
    graphics.FillRectangle(&brush, 4, 4, 8, 8);
    Gdiplus::Color color;
    bitmap.GetPixel(8, 8, &color);
    Check(color.GetValue() == kMark, "shapes are drawn");

    graphics.Clear(Gdiplus::Color(0xFFFFFFFF));
    for (const wchar_t* family : {L"Arial", L"Times New Roman"}) {
        const Gdiplus::Font font(family, 60.0f, Gdiplus::FontStyleRegular,
                                 Gdiplus::UnitPixel);
        graphics.DrawString(L"HH", -1, &font, Gdiplus::PointF(0.0f, 0.0f), &brush);
        bool inked = false;
        for (int x = 0; x < 100 && !inked; ++x) {
            bitmap.GetPixel(x, 40, &color);
            inked = color.GetValue() != 0xFFFFFFFF;
        }
        Check(inked, "text is drawn");
        graphics.Clear(Gdiplus::Color(0xFFFFFFFF));
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const bool started = StartGdiplus();
    Check(started, "GDI+ starts");
    static Gdiplus::Bitmap bitmap(100, 80);
    static Gdiplus::Graphics graphics(&bitmap);
    static const fuzz::Means means{&graphics, {Wide(FUZZ_PICTURE), L""}, kMostDivisions};

    fuzz::Input input(data, size);
    fuzz::Scene(input, means).Play();
    CheckSurface(bitmap, graphics);
    return 0;
}
