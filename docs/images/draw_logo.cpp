// Draws logo.png, the picture on the demo page: a compass rose on the graticule of a
// globe.
//
//   draw_logo FILE.png

#include <gdiplus.h>

#include <cmath>
#include <cstdio>
#include <string>
#include <vector>

namespace {

// The encoder that every GDI+ has for PNG.
constexpr CLSID kPngEncoder = {
    0x557CF406, 0x1A04, 0x11D3, {0x9A, 0x73, 0x00, 0x00, 0xF8, 0x1E, 0xF3, 0x2E}};

using Points = std::vector<Gdiplus::Point>;

constexpr int kPixels = 640;
constexpr int kUnitsPerPixel = 16;  // drawn in whole units, so this fine
constexpr double kMiddle = kPixels / 2.0;
constexpr double kRadians = 3.14159265358979323846 / 180.0;

constexpr double kGlobe = 268.0;    // radius of the globe
constexpr double kRing = 300.0;     // radius of the ring around it
constexpr double kTilt = 24.0;      // the globe's north pole leans to the viewer
constexpr double kLongTip = 262.0;  // how far the rose's points reach
constexpr double kShortTip = 156.0;
constexpr double kWaist = 54.0;  // where the points meet

constexpr Gdiplus::ARGB kInk = 0xFF173B4F;
constexpr Gdiplus::ARGB kSea = 0xFFE9F2F4;
constexpr Gdiplus::ARGB kGraticule = 0xFF7FB0BC;
constexpr Gdiplus::ARGB kPaper = 0xFFFDFEFE;
constexpr Gdiplus::ARGB kNorth = 0xFFC8472F;
constexpr Gdiplus::ARGB kNorthShade = 0xFF9C3220;
constexpr Gdiplus::ARGB kShort = 0xFF5C93A3;

Gdiplus::Point At(double right, double up) {
    return {static_cast<int>(std::lround((kMiddle + right) * kUnitsPerPixel)),
            static_cast<int>(std::lround((kMiddle - up) * kUnitsPerPixel))};
}

/// Clockwise from north, as a compass counts.
Gdiplus::Point Towards(double degrees, double distance) {
    return At(std::sin(degrees * kRadians) * distance,
              std::cos(degrees * kRadians) * distance);
}

Points Circle(double radius) {
    Points points;
    for (int degrees = 0; degrees < 360; ++degrees) {
        points.push_back(Towards(degrees, radius));
    }
    return points;
}

void Fill(Gdiplus::Graphics& graphics, const Points& points, Gdiplus::ARGB color) {
    const Gdiplus::SolidBrush brush{Gdiplus::Color(color)};
    graphics.FillPolygon(&brush, points.data(), static_cast<int>(points.size()));
}

void Line(Gdiplus::Graphics& graphics, const Points& points, const Gdiplus::Pen& pen) {
    if (points.size() < 2) {
        return;
    }
    Gdiplus::GraphicsPath path(Gdiplus::FillModeAlternate);
    path.AddLines(points.data(), static_cast<int>(points.size()));
    graphics.DrawPath(&pen, &path);
}

/// Draws a line of places on the globe, as far as it is on the side we see. The steps are
/// quarters of a degree, so that lines end close to the limb.
template <typename Place>
void GlobeLine(Gdiplus::Graphics& graphics, const Gdiplus::Pen& pen, int from, int to,
               Place place) {
    Points seen;
    for (int step = from; step <= to; ++step) {
        const auto [latitude, longitude] = place(step);
        const double x = std::cos(latitude) * std::sin(longitude);
        const double y = std::sin(latitude);
        const double z = std::cos(latitude) * std::cos(longitude);
        const double up = y * std::cos(kTilt * kRadians) - z * std::sin(kTilt * kRadians);
        const double depth =
            y * std::sin(kTilt * kRadians) + z * std::cos(kTilt * kRadians);
        if (depth < 0.0) {
            Line(graphics, seen, pen);
            seen.clear();
        } else {
            seen.push_back(At(x * kGlobe, up * kGlobe));
        }
    }
    Line(graphics, seen, pen);
}

struct Place {
    double latitude;
    double longitude;
};

void DrawGraticule(Gdiplus::Graphics& graphics) {
    const Gdiplus::Pen pen(Gdiplus::Color(kGraticule), 3.0f * kUnitsPerPixel);
    for (int meridian = -180; meridian < 180; meridian += 20) {
        GlobeLine(graphics, pen, -320, 320, [meridian](int step) {
            return Place{step * kRadians / 4.0, meridian * kRadians};
        });
    }
    for (int parallel = -80; parallel <= 80; parallel += 20) {
        GlobeLine(graphics, pen, -720, 720, [parallel](int step) {
            return Place{parallel * kRadians, step * kRadians / 4.0};
        });
    }
}

/// A point of the rose: its left half in one colour, its right half in another.
void DrawPoint(Gdiplus::Graphics& graphics, double degrees, double tip,
               Gdiplus::ARGB left, Gdiplus::ARGB right) {
    const Gdiplus::Point middle = At(0.0, 0.0);
    const Gdiplus::Point end = Towards(degrees, tip);
    Fill(graphics, {middle, Towards(degrees - 45.0, kWaist), end}, left);
    Fill(graphics, {middle, Towards(degrees + 45.0, kWaist), end}, right);
    Points outline = {Towards(degrees - 45.0, kWaist), end,
                      Towards(degrees + 45.0, kWaist)};
    const Gdiplus::Pen pen(Gdiplus::Color(kInk), 2.0f * kUnitsPerPixel);
    Line(graphics, outline, pen);
}

void DrawRose(Gdiplus::Graphics& graphics) {
    for (const double degrees : {45.0, 135.0, 225.0, 315.0}) {
        DrawPoint(graphics, degrees, kShortTip, kPaper, kShort);
    }
    for (const double degrees : {90.0, 180.0, 270.0}) {
        DrawPoint(graphics, degrees, kLongTip, kPaper, kInk);
    }
    DrawPoint(graphics, 0.0, kLongTip, kNorth, kNorthShade);
}

bool DrawLogo(const std::string& file) {
    Gdiplus::Bitmap bitmap(kPixels, kPixels, PixelFormat32bppARGB);
    {
        Gdiplus::Graphics graphics(&bitmap);
        graphics.Clear(Gdiplus::Color(0x00FFFFFF));
        graphics.SetSmoothingMode(Gdiplus::SmoothingModeAntiAlias);
        graphics.ScaleTransform(1.0f / kUnitsPerPixel, 1.0f / kUnitsPerPixel);
        Fill(graphics, Circle(kRing), kInk);
        Fill(graphics, Circle(kGlobe + 10.0), kPaper);
        Fill(graphics, Circle(kGlobe), kSea);
        DrawGraticule(graphics);
        DrawRose(graphics);
    }
    const std::wstring name(file.begin(), file.end());
    return bitmap.Save(name.c_str(), &kPngEncoder) == Gdiplus::Ok;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("usage: draw_logo FILE.png\n", stderr);
        return 2;
    }
    ULONG_PTR token = 0;
    const Gdiplus::GdiplusStartupInput input;
    if (Gdiplus::GdiplusStartup(&token, &input, nullptr) != Gdiplus::Ok) {
        return 1;
    }
    const bool drawn = DrawLogo(argv[1]);
    Gdiplus::GdiplusShutdown(token);
    if (!drawn) {
        std::fprintf(stderr, "draw_logo: %s: cannot be written\n", argv[1]);
    }
    return drawn ? 0 : 1;
}
