#pragma once

#include <memory>
#include <string>
#include <vector>

#include "map_surround/scale_bar.h"
#include "page/catalogue.h"
#include "recording/expect.h"
#include "recording/recording.h"

/// Scale bars as rows of a table, and what each must draw.
namespace scale_bar_test {

/// One of the catalogue's: host::StyleOf<CScaleLine2>().
using Style = const host::CatalogueEntry*;

std::vector<Style> Styles();

/// One bar and one drawing of it; as it stands, the defaults at scale 1 about (200, 150).
struct BarRow {
    Style style = host::StyleOf<CScaleLine>();
    double paperToData = 1.0;
    double paperToScreen = 25.0;
    int mainCount = 5;
    int subCount = 4;
    int unitPosition = 0;
    int size = 40;
    double scale = 1.0;
    float aspectRatio = 5.8f;
    CPoint centre{200, 150};
    Gdiplus::ARGB color = 0xFF000000;
};

std::string Describe(const BarRow& row);

std::unique_ptr<CScaleBarBase> NewBar(Style style);

void SetProperties(CScaleBarBase& bar, const BarRow& row);

/// A bar with the row's style and properties.
std::unique_ptr<CScaleBarBase> NewBar(const BarRow& row);

/// The visible operations of drawing the row with no GDI+ behind it.
std::vector<std::string> DrawingOf(const BarRow& row);

/// The same from the formulas, in plain arithmetic: for lengths that fit 32 bits.
std::vector<recording::Named> ExpectedDrawing(const BarRow& row);

/// What a bar of a style answers when asked for it.
ScaleBarType ExpectedType(Style style);

// The looks of a black bar at scale 1, as traces write them.
std::string BlackPen(float width = 1.0f);
std::string BlackBrush();
std::string Times(float emSize);
std::string BlackLabel(const std::string& text, float x, float y, float emSize = 10.0f);
recording::Named BlackLine(const char* name, int x1, int y1, int x2, int y2);

/// The unit name that a bar has from the start, of size 40 at scale 1.
std::string DefaultUnitName(float x, float y, float emSize = 40.0f / 3.0f);

}  // namespace scale_bar_test
