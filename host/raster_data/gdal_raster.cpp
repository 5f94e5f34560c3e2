#include "raster_data/gdal_raster.h"

#include <cpl_conv.h>
#include <cpl_string.h>
#include <cpl_vsi.h>
#include <gdal_priv.h>
#include <gdal_utils.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <new>
#include <optional>
#include <stdexcept>
#include <utility>

#include "raster_data/gdal_session.h"
#include "raster_data/raster_classes.h"
#include "raster_data/raster_picture.h"

namespace host {

namespace {

// Up to this many pixels an estimate is not worth its error: GDAL reads them in a moment.
constexpr std::int64_t kExactPixels = 1 << 24;

// A picture of a gigabyte; no page is printed finer.
constexpr std::int64_t kMostPicturePixels = 1 << 28;

class GdalBand : public CRasterBand {
public:
    explicit GdalBand(GDALRasterBand* band) : m_band(band) {}

    bool ComputeMinMax(double* min, double* max, bool approximate) override {
        const std::int64_t pixels = std::int64_t{m_band->GetXSize()} * m_band->GetYSize();
        const bool estimate = approximate && pixels > kExactPixels;
        std::optional<Extremes>& known = estimate ? m_estimate : m_exact;
        if (!known) {
            known = Compute(estimate);
        }
        if (!known->found) {
            return false;
        }
        *min = known->min;
        *max = known->max;
        return true;
    }

private:
    struct Extremes {
        double min = 0.0;
        double max = 0.0;
        bool found = false;
    };

    Extremes Compute(bool estimate) {
        const QuietGdal quiet;
        double range[2] = {0.0, 0.0};
        bool found =
            m_band->ComputeRasterMinMax(estimate ? TRUE : FALSE, range) == CE_None;
        if (!found && estimate) {
            // The sample may have met nothing but no-data.
            found = m_band->ComputeRasterMinMax(FALSE, range) == CE_None;
        }
        found = found && !std::isnan(range[0]) && !std::isnan(range[1]);
        return {range[0], range[1], found};
    }

    GDALRasterBand* m_band;
    std::optional<Extremes> m_exact;
    std::optional<Extremes> m_estimate;
};

/// The zero-based bands shown as red, green and blue: those whose colours say so, else
/// the first three that are not the alpha band.
std::array<int, 3> ColourBands(GDALDataset& dataset) {
    constexpr std::array kColours{GCI_RedBand, GCI_GreenBand, GCI_BlueBand};
    std::array<int, 3> byColour{-1, -1, -1};
    std::vector<int> others;
    for (int i = 0; i < dataset.GetRasterCount(); ++i) {
        const GDALColorInterp colour =
            dataset.GetRasterBand(i + 1)->GetColorInterpretation();
        for (std::size_t c = 0; c < kColours.size(); ++c) {
            if (colour == kColours[c] && byColour[c] < 0) {
                byColour[c] = i;
            }
        }
        if (colour != GCI_AlphaBand) {
            others.push_back(i);
        }
    }
    if (std::find(byColour.begin(), byColour.end(), -1) == byColour.end()) {
        return byColour;
    }
    if (others.size() < kColours.size()) {
        return {0, 1, 2};
    }
    return {others[0], others[1], others[2]};
}

std::array<int, 3> ShownBands(GDALDataset& dataset) {
    return dataset.GetRasterCount() < 3 ? std::array<int, 3>{0, 0, 0}
                                        : ColourBands(dataset);
}

bool IsFile(const std::string& path) {
    VSIStatBufL status{};
    return VSIStatExL(path.c_str(), &status,
                      VSI_STAT_EXISTS_FLAG | VSI_STAT_NATURE_FLAG) == 0 &&
           !VSI_ISDIR(status.st_mode);
}

/// The file whose presence tells whether a dataset can be read; empty for one that is no
/// file, such as a service's.
std::string MainFile(GDALDataset& dataset, const std::string& path) {
    if (IsFile(path)) {
        return path;
    }
    const CPLStringList files(dataset.GetFileList());
    return files.empty() ? std::string() : files[0];
}

/// What stands in the way of opening, as a person would say it.
std::string WhyNotOpened(const std::string& path, const QuietGdal& quiet) {
    VSIStatBufL status{};
    if (VSIStatExL(path.c_str(), &status, VSI_STAT_EXISTS_FLAG | VSI_STAT_NATURE_FLAG) !=
        0) {
        return "no such file";
    }
    if (VSI_ISDIR(status.st_mode)) {
        return "is a folder";
    }
    VSILFILE* const file = VSIFOpenL(path.c_str(), "rb");
    if (file == nullptr) {
        return "may not be read";
    }
    char byte = 0;
    const bool empty = VSIFReadL(&byte, 1, 1, file) == 0;
    VSIFCloseL(file);
    if (empty) {
        return "is empty";
    }
    std::string reason = quiet.Reason(path);
    if (reason.empty() || reason.find("not recognized") != std::string::npos) {
        return "not a raster";
    }
    return reason;
}

struct CloseDataset {
    void operator()(GDALDataset* dataset) const {
        const QuietGdal quiet;
        dataset->ReleaseRef();  // a part of it may go on reading from it
    }
};

using Dataset = std::unique_ptr<GDALDataset, CloseDataset>;

}  // namespace

struct GdalRaster::State {
    State(std::string openedPath, Dataset opened)
        : path(std::move(openedPath)),
          dataset(std::move(opened)),
          mainFile(MainFile(*dataset, path)),
          shown(ShownBands(*dataset)),
          projection(dataset->GetProjectionRef()) {
        hasGeoTransform = dataset->GetGeoTransform(geoTransform.data()) == CE_None;
        for (int i = 1; i <= dataset->GetRasterCount(); ++i) {
            bands.emplace_back(dataset->GetRasterBand(i));
        }
        if (bands.size() == 1) {
            RasterClasses found(*dataset->GetRasterBand(1));
            if (found.Any()) {
                classes = std::move(found);
            }
        }
    }

    std::string path;
    Dataset dataset;
    std::string mainFile;
    std::array<int, 3> shown;
    std::string projection;
    std::array<double, 6> geoTransform{0.0, 1.0, 0.0, 0.0, 0.0, 1.0};
    bool hasGeoTransform = false;
    std::vector<GdalBand> bands;
    std::optional<RasterClasses> classes;         ///< only of a classified raster
    std::unique_ptr<ClassificationTable> listed;  ///< once asked for
};

std::unique_ptr<GdalRaster> GdalRaster::Open(const std::string& path, std::string& why) {
    StartGdal();
    const QuietGdal quiet;
    Dataset dataset(
        GDALDataset::Open(path.c_str(), GDAL_OF_RASTER | GDAL_OF_VERBOSE_ERROR));
    if (dataset == nullptr) {
        why = WhyNotOpened(path, quiet);
        return nullptr;
    }
    if (dataset->GetRasterCount() == 0) {
        why = "has no bands";
        return nullptr;
    }
    auto state = std::make_unique<State>(path, std::move(dataset));
    return std::unique_ptr<GdalRaster>(new GdalRaster(std::move(state)));
}

GdalRaster::GdalRaster(std::unique_ptr<State> state) : m_state(std::move(state)) {}

GdalRaster::~GdalRaster() = default;

bool GdalRaster::IsAvailable() {
    if (m_state->mainFile.empty()) {
        return true;
    }
    const QuietGdal quiet;
    VSILFILE* const file = VSIFOpenL(m_state->mainFile.c_str(), "rb");
    if (file == nullptr) {
        return false;
    }
    char byte = 0;
    const bool readable = VSIFReadL(&byte, 1, 1, file) == 1;
    VSIFCloseL(file);
    return readable;
}

GISDataSourceType GdalRaster::GetDataSourceType() { return DataSourceRaster; }

std::wstring GdalRaster::GetFileName() {
    return WideText(CPLGetFilename(m_state->path.c_str()));
}

DataDisplayType GdalRaster::GetDisplayType() {
    if (m_state->bands.size() >= 3) {
        return DisplayRGB;
    }
    return m_state->classes ? DisplayClassified : DisplayGray;
}

int GdalRaster::GetRedBandNum() { return m_state->shown[0]; }
int GdalRaster::GetGreenBandNum() { return m_state->shown[1]; }
int GdalRaster::GetBlueBandNum() { return m_state->shown[2]; }

CRasterBand* GdalRaster::GetRasterBand(int index) {
    if (index < 0 || index >= static_cast<int>(m_state->bands.size())) {
        return nullptr;
    }
    return &m_state->bands[static_cast<std::size_t>(index)];
}

CClassifyDisplayTable* GdalRaster::GetClassifyDisplayTable() {
    if (!m_state->listed) {
        const QuietGdal quiet;
        m_state->listed = std::make_unique<ClassificationTable>();
        if (m_state->classes) {
            try {
                m_state->listed = OccurringClasses(m_state->dataset->GetRasterBand(1),
                                                   *m_state->classes);
            } catch (const std::runtime_error&) {
                // A raster that cannot be read shows no class; drawing it gives the
                // reason.
            }
        }
    }
    return m_state->listed.get();
}

const std::string& GdalRaster::Path() const { return m_state->path; }
int GdalRaster::Width() const { return m_state->dataset->GetRasterXSize(); }
int GdalRaster::Height() const { return m_state->dataset->GetRasterYSize(); }

const std::array<double, 6>& GdalRaster::GeoTransform() const {
    return m_state->geoTransform;
}

bool GdalRaster::HasGeoTransform() const { return m_state->hasGeoTransform; }

const std::string& GdalRaster::Projection() const { return m_state->projection; }

std::unique_ptr<GdalRaster> GdalRaster::Part(const Window& window) const {
    const QuietGdal quiet;
    CPLStringList arguments;
    for (const std::string& argument :
         {std::string("-of"), std::string("VRT"), std::string("-srcwin"),
          std::to_string(window.x), std::to_string(window.y),
          std::to_string(window.width), std::to_string(window.height)}) {
        arguments.AddString(argument.c_str());
    }
    const std::unique_ptr<GDALTranslateOptions, decltype(&GDALTranslateOptionsFree)>
        options(GDALTranslateOptionsNew(arguments.List(), nullptr),
                GDALTranslateOptionsFree);
    Dataset part(GDALDataset::FromHandle(GDALTranslate(
        "", GDALDataset::ToHandle(m_state->dataset.get()), options.get(), nullptr)));
    if (part == nullptr) {
        throw std::runtime_error(m_state->path + ": no part of it can be had");
    }
    return std::unique_ptr<GdalRaster>(
        new GdalRaster(std::make_unique<State>(m_state->path, std::move(part))));
}

PixelImage GdalRaster::Render(int width, int height, const Progress& progress) {
    if (width < 1 || height < 1) {
        throw std::runtime_error("no pixels to draw it on");
    }
    if (std::int64_t{width} * height > kMostPicturePixels) {
        throw std::runtime_error("picture too large");
    }
    // What is finer than the raster is drawn at the raster's own size and enlarged.
    const int readWidth = std::min(width, Width());
    const int readHeight = std::min(height, Height());
    GDALDataset& dataset = *m_state->dataset;
    const QuietGdal quiet;
    try {
        if (m_state->classes) {
            return Enlarge(DrawClasses(dataset.GetRasterBand(1), *m_state->classes,
                                       readWidth, readHeight, progress),
                           width, height);
        }
        std::vector<GDALRasterBand*> bands;
        for (const int band : m_state->shown) {
            bands.push_back(dataset.GetRasterBand(band + 1));
        }
        if (GetDisplayType() == DisplayGray) {
            bands.resize(1);
        }
        return Enlarge(DrawStretched(bands, readWidth, readHeight, progress), width,
                       height);
    } catch (const std::bad_alloc&) {
        throw std::runtime_error("not enough memory");
    }
}

}  // namespace host
