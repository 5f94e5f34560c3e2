#include "raster_data/raster_shading.h"

#include <gdal_priv.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <utility>

#include "raster_data/gdal_session.h"

namespace host {
namespace {

constexpr std::array kColours{GCI_RedBand, GCI_GreenBand, GCI_BlueBand};

/// The indices of the bands shown by default, from 0: those whose colours are red, green
/// and blue, else the first three that are not alpha; with fewer than three, the first.
std::vector<int> BandsByColour(GDALDataset& dataset) {
    std::vector<int> byColour(kColours.size(), -1);
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
        return {others.empty() ? 0 : others.front()};
    }
    others.resize(kColours.size());
    return others;
}

std::vector<int> ShownBands(GDALDataset& dataset, const std::vector<int>& chosen) {
    const int count = dataset.GetRasterCount();
    if (chosen.empty() || count == 1) {
        return BandsByColour(dataset);
    }
    std::vector<int> shown;
    for (const int number : chosen) {
        if (number < 1 || number > count) {
            throw std::runtime_error("has no band " + std::to_string(number) +
                                     " (it has " + std::to_string(count) + ")");
        }
        shown.push_back(number - 1);
    }
    return shown;
}

/// Whether the bands are bytes whose colours are declared: ready to be drawn as they are.
bool AreFinished(const std::vector<GDALRasterBand*>& bands) {
    return bands.size() == kColours.size() &&
           std::all_of(bands.begin(), bands.end(), [](GDALRasterBand* band) {
               return band->GetRasterDataType() == GDT_Byte &&
                      std::find(kColours.begin(), kColours.end(),
                                band->GetColorInterpretation()) != kColours.end();
           });
}

/// Reports part of the work as a share of all of it.
Progress ShareOf(const Progress& progress, double from, double to) {
    return [&progress, from, to](double done) {
        return !progress || progress(from + done * (to - from));
    };
}

}  // namespace

RasterShading::RasterShading(std::shared_ptr<GDALDataset> whole, RasterStyle style)
    : m_whole(std::move(whole)),
      m_style(std::move(style)),
      m_shown(ShownBands(*m_whole, m_style.bands)) {
    for (int i = 0; i < m_whole->GetRasterCount(); ++i) {
        m_bands.emplace_back(*this, i);
    }
    if (m_shown.size() == 1) {
        RasterClasses found(*ShownOf(*m_whole).front());
        if (found.Any()) {
            m_classes = std::move(found);
        }
    }
}

DataDisplayType RasterShading::Type() const {
    if (m_shown.size() > 1) {
        return DisplayRGB;
    }
    return m_classes ? DisplayClassified : DisplayGray;
}

CRasterBand* RasterShading::Band(int index) {
    if (index < 0 || index >= static_cast<int>(m_bands.size())) {
        return nullptr;
    }
    const int at = index == 0 && m_shown.size() == 1 ? m_shown.front() : index;
    return &m_bands[static_cast<std::size_t>(at)];
}

bool RasterShading::ShownBand::ComputeMinMax(double* min, double* max,
                                             bool /*approximate*/) {
    const QuietGdal quiet;
    try {
        const std::optional<ShadeRange> range = m_shading.RangeOf(m_index);
        if (range) {
            *min = range->black;
            *max = range->white;
        }
        return range.has_value();
    } catch (const std::runtime_error&) {
        return false;  // drawing it gives the reason
    }
}

std::vector<GDALRasterBand*> RasterShading::ShownOf(GDALDataset& dataset) const {
    std::vector<GDALRasterBand*> bands;
    for (const int band : m_shown) {
        bands.push_back(dataset.GetRasterBand(band + 1));
    }
    return bands;
}

Stretch RasterShading::StretchOf(const std::vector<GDALRasterBand*>& bands) const {
    Stretch stretch = m_style.stretch;
    if (m_classes) {
        stretch.kind = Stretch::Kind::MinMax;  // their colours are not stretched
    } else if (stretch.kind == Stretch::Kind::Automatic) {
        stretch.kind = AreFinished(bands)  ? Stretch::Kind::None
                       : bands.size() == 1 ? Stretch::Kind::MinMax
                                           : Stretch::Kind::Percent;
    }
    return stretch;
}

std::optional<ShadeRange> RasterShading::RangeOf(int band, const Progress& progress) {
    const auto known = m_ranges.find(band);
    if (known != m_ranges.end()) {
        return known->second;
    }
    // Bands that are shown together are read together.
    const bool isShown = std::find(m_shown.begin(), m_shown.end(), band) != m_shown.end();
    const std::vector<GDALRasterBand*> bands =
        isShown ? ShownOf(*m_whole)
                : std::vector<GDALRasterBand*>{m_whole->GetRasterBand(band + 1)};
    const auto ranges = RangesOf(bands, StretchOf(bands), progress);
    for (std::size_t i = 0; i < bands.size(); ++i) {
        m_ranges[isShown ? m_shown[i] : band] = ranges[i];
    }
    return m_ranges[band];
}

ClassificationTable& RasterShading::Classes() {
    if (!m_listed) {
        const QuietGdal quiet;
        m_listed = std::make_unique<ClassificationTable>();
        if (m_classes) {
            try {
                m_listed = OccurringClasses(ShownOf(*m_whole).front(), *m_classes);
            } catch (const std::runtime_error&) {
                // A raster that cannot be read shows no class; drawing it gives the
                // reason.
            }
        }
    }
    return *m_listed;
}

std::vector<ClassColour> RasterShading::RampColours() {
    double lowest = 0.0;
    double highest = 0.0;
    const bool isKnown = m_classes && !m_classes->HasNames() &&
                         Band(0)->ComputeMinMax(&lowest, &highest, true);
    return isKnown ? m_classes->Ramp(lowest, highest) : std::vector<ClassColour>();
}

PixelImage RasterShading::Draw(GDALDataset& dataset, int width, int height,
                               const Progress& progress) {
    // Beyond the raster's own resolution, it is drawn at its own size and enlarged.
    const int readWidth = std::min(width, dataset.GetRasterXSize());
    const int readHeight = std::min(height, dataset.GetRasterYSize());
    const std::vector<GDALRasterBand*> bands = ShownOf(dataset);
    if (m_classes) {
        return Enlarge(
            DrawClasses(bands.front(), *m_classes, readWidth, readHeight, progress),
            width, height);
    }
    const double read = m_ranges.count(m_shown.front()) > 0 ? 0.0 : 0.5;
    std::vector<ShadeRange> ranges;
    for (const int band : m_shown) {
        ranges.push_back(
            RangeOf(band, ShareOf(progress, 0.0, read)).value_or(ShadeRange{}));
    }
    return Enlarge(
        DrawShades(bands, ranges, readWidth, readHeight, ShareOf(progress, read, 1.0)),
        width, height);
}

}  // namespace host
