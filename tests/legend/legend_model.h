#pragma once

#include <gdiplus.h>

#include <memory>
#include <string>
#include <vector>

#include "legend/fake_sources.h"
#include "legend/scripted_ink.h"
#include "map_surround/legend.h"
#include "recording/expect.h"

/// What a legend must measure and draw, worked out from plain descriptions of it: a
/// second legend that knows nothing of the library's.
namespace model {

enum class Kind { Unavailable, NotRaster, Unknown, Rgb, Gray, Classified };

struct Class {
    std::string label;
    Gdiplus::ARGB color;  ///< opaque
};

struct Source {
    Kind kind;
    std::string name;
    int bands[3] = {0, 1, 2};
    int low = 0;
    int high = 0;
    std::vector<Class> classes;
};

struct Text {
    std::string text;
    std::string family = "Arial";
    float emSize;
    int style;
    Gdiplus::ARGB color = 0xFF000000;
};

struct Legend {
    Text title{"", "Arial", 20, 1};
    Text fileName{"", "Arial", 15, 0};  ///< of no text by itself
    float factor = 1;
    std::vector<Source> sources;
};

/// What measuring leaves.
struct Natural {
    float titleEm;
    float fileNameEm;
    int height;
    float aspect;
    float rowRatio;
    float swatchHeightRatio;
    float swatchWidthRatio;
    float titleRatio;
    float gapRatio;
};

Natural Measured(const Legend& legend, const ink::Rule& ink);

std::vector<recording::Named> Drawn(const Legend& legend, const Natural& natural,
                                    CPoint centre, double scale, const ink::Rule& ink);

/// The library's legend of the same description, with its sources.
struct Built {
    CMapLegend legend;
    std::vector<std::unique_ptr<CGISDataSource>> sources;
};
Built Build(const Legend& legend);

}  // namespace model
