#include "raster_data/gdal_raster.h"

#include <cpl_conv.h>
#include <cpl_string.h>
#include <cpl_vsi.h>
#include <gdal_priv.h>

#include <array>
#include <cstdint>
#include <filesystem>
#include <new>
#include <stdexcept>
#include <system_error>
#include <utility>

#include "raster_data/confined_gdal.h"
#include "raster_data/derived_dataset.h"
#include "raster_data/gdal_session.h"
#include "raster_data/raster_shading.h"
#include "raster_data/vrt_sources.h"

namespace host {

namespace {

// A picture of a gigabyte; no page is printed finer.
constexpr std::int64_t kMostPicturePixels = 1 << 28;

bool IsFile(const std::string& path) {
    VSIStatBufL status{};
    return VSIStatExL(path.c_str(), &status,
                      VSI_STAT_EXISTS_FLAG | VSI_STAT_NATURE_FLAG) == 0 &&
           !VSI_ISDIR(status.st_mode);
}

/// Why a raster should not be opened, judged before anything of it is read; of a VRT,
/// before its sources are.
std::string WhyNotRead(const std::string& path) {
    std::error_code ignored;
    const std::filesystem::file_status status = std::filesystem::status(path, ignored);
    if (std::filesystem::is_other(status)) {
        return "is not a plain file";  // reading a pipe may block for ever
    }
    const std::string why = WhyNotAllowed(path);
    return why.empty() ? WhyNotVrt(path) : why;
}

/// The file whose presence tells whether a dataset can be read; empty when there is none,
/// as for a service.
std::string MainFile(GDALDataset& dataset, const std::string& path) {
    if (IsFile(path)) {
        return path;
    }
    const CPLStringList files(dataset.GetFileList());
    return files.empty() ? std::string() : files[0];
}

std::vector<std::string> FilesOf(GDALDataset& dataset) {
    const CPLStringList files(dataset.GetFileList());
    return {files.List(), files.List() + files.size()};
}

/// Why a raster cannot be opened, in plain words.
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
        return IsGdalConfined() ? WhyNotOfThisKind() : "not a raster";
    }
    return reason;
}

/// Has GDAL look for the side files, which it otherwise does only when it needs them, so
/// that those that lead elsewhere are reported.
void LookForSideFiles(GDALDataset& dataset) {
    for (int i = 1; i <= dataset.GetRasterCount(); ++i) {
        dataset.GetRasterBand(i)->GetOverviewCount();
        dataset.GetRasterBand(i)->GetMaskFlags();
    }
}

/// The dataset with the style's no-data value instead of its own: what its own masked
/// shows again.
std::shared_ptr<GDALDataset> WithNoData(const std::shared_ptr<GDALDataset>& dataset,
                                        const RasterStyle& style) {
    const std::string noData = style.NoDataText();
    return noData.empty() ? dataset
                          : Translated(*dataset, {"-a_nodata", noData, "-mask", "none"});
}

}  // namespace

struct GdalRaster::State {
    State(std::string openedPath, std::string file, std::vector<std::string> all,
          std::shared_ptr<GDALDataset> opened, std::shared_ptr<RasterShading> shades)
        : path(std::move(openedPath)),
          mainFile(std::move(file)),
          files(std::move(all)),
          dataset(std::move(opened)),
          shading(std::move(shades)),
          projection(dataset->GetProjectionRef()) {
        hasGeoTransform = dataset->GetGeoTransform(geoTransform.data()) == CE_None;
    }

    std::string path;
    std::string mainFile;
    std::vector<std::string> files;
    std::shared_ptr<GDALDataset> dataset;
    std::shared_ptr<RasterShading> shading;  ///< of the whole raster
    std::string projection;
    std::array<double, 6> geoTransform{0.0, 1.0, 0.0, 0.0, 0.0, 1.0};
    bool hasGeoTransform = false;
};

std::unique_ptr<GdalRaster> GdalRaster::Open(const std::string& path, std::string& why,
                                             const RasterStyle& style) {
    StartGdal();
    why = WhyNotRead(path);
    if (!why.empty()) {
        return nullptr;
    }
    ForgetRefused();
    const QuietGdal quiet;
    std::shared_ptr<GDALDataset> dataset(
        GDALDataset::Open(path.c_str(), GDAL_OF_RASTER | GDAL_OF_VERBOSE_ERROR),
        ReleaseDataset());
    if (dataset == nullptr) {
        why = LastRefused().empty() ? WhyNotOpened(path, quiet) : LastRefused();
        return nullptr;
    }
    if (dataset->GetRasterCount() == 0) {
        why = "has no bands";
        return nullptr;
    }
    std::string mainFile = MainFile(*dataset, path);
    std::vector<std::string> files;
    try {
        LookForSideFiles(*dataset);
        if (LastRefused().empty()) {  // listing the files could overwrite it
            files = FilesOf(*dataset);
        }
        dataset = WithNoData(dataset, style);
        auto shading = std::make_shared<RasterShading>(dataset, style);
        if (!LastRefused().empty()) {
            throw std::runtime_error(LastRefused());
        }
        return std::unique_ptr<GdalRaster>(new GdalRaster(
            std::make_unique<State>(path, std::move(mainFile), std::move(files),
                                    std::move(dataset), std::move(shading))));
    } catch (const std::runtime_error& error) {
        why = error.what();
        return nullptr;
    }
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

DataDisplayType GdalRaster::GetDisplayType() { return m_state->shading->Type(); }
int GdalRaster::GetRedBandNum() { return m_state->shading->Shown().front(); }
int GdalRaster::GetBlueBandNum() { return m_state->shading->Shown().back(); }

int GdalRaster::GetGreenBandNum() {
    const std::vector<int>& shown = m_state->shading->Shown();
    return shown[shown.size() / 2];
}

CRasterBand* GdalRaster::GetRasterBand(int index) {
    return m_state->shading->Band(index);
}

CClassifyDisplayTable* GdalRaster::GetClassifyDisplayTable() {
    return &m_state->shading->Classes();
}

std::vector<ClassColour> GdalRaster::RampColours() {
    return m_state->shading->RampColours();
}

const std::string& GdalRaster::Path() const { return m_state->path; }
const std::vector<std::string>& GdalRaster::Files() const { return m_state->files; }
const RasterStyle& GdalRaster::Style() const { return m_state->shading->Style(); }
int GdalRaster::BandCount() const { return m_state->shading->BandCount(); }
int GdalRaster::Width() const { return m_state->dataset->GetRasterXSize(); }
int GdalRaster::Height() const { return m_state->dataset->GetRasterYSize(); }

const std::array<double, 6>& GdalRaster::GeoTransform() const {
    return m_state->geoTransform;
}

bool GdalRaster::HasGeoTransform() const { return m_state->hasGeoTransform; }

const std::string& GdalRaster::Projection() const { return m_state->projection; }

std::unique_ptr<GdalRaster> GdalRaster::Derived(
    std::shared_ptr<GDALDataset> dataset) const {
    return std::unique_ptr<GdalRaster>(new GdalRaster(
        std::make_unique<State>(m_state->path, m_state->mainFile, m_state->files,
                                std::move(dataset), m_state->shading)));
}

std::unique_ptr<GdalRaster> GdalRaster::Part(const Window& window) const {
    return Derived(
        Translated(*m_state->dataset,
                   {"-srcwin", std::to_string(window.x), std::to_string(window.y),
                    std::to_string(window.width), std::to_string(window.height)}));
}

std::unique_ptr<GdalRaster> GdalRaster::NorthUp() const {
    return Derived(TurnedNorthUp(*m_state->dataset));
}

PixelImage GdalRaster::Render(int width, int height, const Progress& progress) {
    if (width < 1 || height < 1) {
        throw std::runtime_error("no pixels to draw it on");
    }
    if (std::int64_t{width} * height > kMostPicturePixels) {
        throw std::runtime_error("picture too large");
    }
    const QuietGdal quiet;
    try {
        return m_state->shading->Draw(*m_state->dataset, width, height, progress);
    } catch (const std::bad_alloc&) {
        throw std::runtime_error("not enough memory");
    }
}

}  // namespace host
