#pragma once

#include <gdiplus.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "legend/fake_sources.h"
#include "map_surround/map_surround.h"

/// Every element, frame and style, for tests that put all of them to the same trial.
namespace subjects {

/// The rasters that a legend explains.
struct Sources {
    fakes::Raster bands{L"scene of the lower valley.tif", DisplayRGB};
    fakes::Raster ramp{L"heights above the sea.tif", DisplayGray};
    fakes::Raster classes{L"land cover.tif", DisplayClassified};
    fakes::Raster bare{L"shaded relief.tif", static_cast<DataDisplayType>(7)};
    fakes::Raster hidden{L"not available.tif", DisplayRGB};
    fakes::Vector vector;
};

/// An element or a frame with its properties set, as a host holds it.
class Subject {
public:
    /// Opens what there is to open and works the proportions out.
    void Measure();

    void Draw(Gdiplus::Graphics* graphics);

    std::unique_ptr<Sources> sources;       ///< a legend's
    std::wstring path;                      ///< a picture's, opened when it is measured
    std::unique_ptr<CMapSurround> element;  ///< by itself
    std::unique_ptr<CSurroundFrame> frame;  ///< or in a frame
};

/// One set of properties. Those of a family together reach every branch of its drawing.
struct Row {
    std::string family;
    std::string name;
    bool turns;  ///< its drawing resets the world transform, or else never touches it
    std::function<std::unique_ptr<Subject>()> make;
};

const std::vector<Row>& Rows();

/// The families, each once.
std::vector<std::string> Families();

/// A text that no string holds without memory of its own, and no conversion for GDI+.
extern const wchar_t kLongText[];

/// The path of an image file, which is there as long as the program runs.
const std::wstring& ImagePath();

}  // namespace subjects
