#pragma once

// A legend with entries of every kind, and its drawing worked out by hand.

#include <string>
#include <vector>

#include "legend/fake_sources.h"
#include "legend/scripted_ink.h"
#include "map_surround/legend.h"
#include "recording/expect.h"
#include "recording/lines.h"

namespace square {

using fakes::Raster;
using namespace recording;

inline const std::string kBlack = BrushLook(0xFF000000);
inline const std::string kFileNameCaption = "\u5F71\u50CF\u540D\uFF1A";
inline const std::string kBandCaption = "\u6CE2\u6BB5\u005F";
inline const std::string kHighCaption = "\u9AD8\u0020\u003A\u0020";
inline const std::string kLowCaption = "\u4F4E\u0020\u003A\u0020";

/// A legend whose natural size is 256 x 256, so that every ratio is a whole number of
/// 256ths and every length a float without error: title 12, rows 10, swatches 64 x 6.
///     12 + 24 + (10 + 3 * 6 + 36) + (10 + 4 * 6 + 12) + 10 + (10 + 3 * 6 + 36)
///     + 4 * 12 - 12 = 256, and 2 * 64 + 128 = 256 wide
struct Square {
    CMapLegend legend;
    Raster rgb{L"rgb.tif", DisplayRGB};
    Raster gray{L"高程.tif", DisplayGray};
    Raster unknown{L"unknown.tif", fakes::kUnknown};
    Raster classes{L"classes.tif", DisplayClassified};

    Square() {
        rgb.red = 3;
        rgb.green = 2;
        rgb.blue = 0;
        gray.band.lowest = -3.7;
        gray.band.highest = 255.9;
        classes.table.items = {
            {L"water", 1, 2, 3, 0}, {L"", 255, 254, 253, 255}, {L"forest", 0, 100, 0, 7}};
        legend.SetTitleValue(L"T");
        legend.SetTitle(L"Serif");
        legend.SetTitleColor(Gdiplus::Color(0xFF112233));
        legend.SetFileName(L"Mono");
        legend.SetFileNameStyle(Gdiplus::FontStyleUnderline);
        legend.SetFileColor(Gdiplus::Color(0x80445566));
        legend.SetDataSouce({&rgb, &gray, &unknown, &classes});
        Recording recording(Mode::RecordOnly);
        ink::Script(recording, Ink);
        legend.ResetAspectRatio();
    }

    static ink::Size Ink(const std::string& text, const std::string&, float emSize) {
        if (text == "T") {
            // Smaller in the font that it is drawn in, as ink is.
            return emSize == 20.0f ? ink::Size{50, 12} : ink::Size{40, 8};
        }
        return text == "Band_1"   ? ink::Size{64, 10}
               : text == "forest" ? ink::Size{128, 10}
                                  : ink::Size{0, 0};
    }

    std::vector<std::string> Draw(CPoint centre, double scale, bool everything = false) {
        Surface surface;
        Recording recording(Mode::RecordOnly);
        ink::Script(recording, Ink);
        legend.Draw(surface.Graphics(), centre, scale);
        return everything ? recording.Lines() : recording.Drawing();
    }
};

struct Scaled {
    double scale;
    float unit;  ///< pixels in a pixel of the measurement
    CPoint centre;
    float left, top;
};

/// The words of a legend that are no source's, and what it calls its sources.
struct Captions {
    std::string source = kFileNameCaption;
    std::string band = kBandCaption;
    std::string high = kHighCaption;
    std::string low = kLowCaption;
    std::string gray = "\u9AD8\u7A0B.tif";
};

/// The drawing of a Square. The title's own height, 8, is the only length that does not
/// scale.
inline std::vector<Named> SquareDrawing(const Scaled& s, const Captions& words = {}) {
    std::vector<Named> calls;
    const std::string entry = FontLook("Arial", 10 * s.unit, 4);
    const std::string fileName = FontLook("Mono", 10 * s.unit, 4);
    const float wide = 64 * s.unit;
    const float high = 6 * s.unit;
    const float valueX = s.left + 1.8f * wide;
    const float classX = s.left + 1.2f * wide;
    const auto y = [&](float down) { return s.top + 8 + down * s.unit; };
    const auto name = [&](const std::string& text, float down) {
        calls.push_back({"file " + text, DrawString(words.source + text, fileName, s.left,
                                                    y(down), BrushLook(0x80445566))});
    };
    const auto label = [&](const std::string& text, float x, float down,
                           const std::string& brush = kBlack) {
        calls.push_back({"label " + text, DrawString(text, entry, x, y(down), brush)});
    };
    const auto swatch = [&](Gdiplus::ARGB color, float down) {
        calls.push_back({"swatch " + Hex(color),
                         FillRectangle(BrushLook(color), s.left, y(down), wide, high)});
    };

    calls.push_back({"title", DrawString("T", FontLook("Serif", 12 * s.unit, 1), s.left,
                                         s.top, BrushLook(0xFF112233))});
    name("rgb.tif", 24);
    swatch(0xFFFF0000, 46);
    label(words.band + "4", valueX, 46);
    swatch(0xFF008000, 64);
    label(words.band + "3", valueX, 64);
    swatch(0xFF0000FF, 82);
    label(words.band + "1", valueX, 82);

    name(words.gray, 100);
    label(words.high + "255", valueX, 127);
    for (int k = 1; k <= 254; ++k) {
        const auto grey = static_cast<Gdiplus::ARGB>(255 - k);
        calls.push_back({"strip " + std::to_string(k),
                         FillRectangle(BrushLook(0xFF000000 + grey * 0x010101), s.left,
                                       y(122) + 24 * s.unit * static_cast<float>(k) / 254,
                                       wide, 38 * s.unit / 254)});
    }
    label(words.low + "-3", valueX, 126, BrushLook(0xFF010101));

    name("unknown.tif", 158);
    name("classes.tif", 180);
    swatch(0xFF010203, 202);
    label("water", classX, 202);
    swatch(0xFFFFFEFD, 220);
    label("", classX, 220);
    swatch(0xFF006400, 238);
    label("forest", classX, 238);
    return calls;
}

}  // namespace square
