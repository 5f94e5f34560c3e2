#include "raster_data/raster_levels.h"

#include <gdal_priv.h>

#include <algorithm>
#include <optional>

namespace host {

namespace {

bool HasMask(GDALRasterBand* band) { return (band->GetMaskFlags() & GMF_ALL_VALID) == 0; }

bool SameSize(GDALRasterBand* a, GDALRasterBand* b) {
    return a->GetXSize() == b->GetXSize() && a->GetYSize() == b->GetYSize();
}

/// The mask of a band's overview: the same overview of the band's mask, or the overview's
/// own (its no-data value); null when there is neither.
GDALRasterBand* OverviewMask(GDALRasterBand* band, GDALRasterBand* overview) {
    GDALRasterBand* const mask = band->GetMaskBand();
    for (int i = 0; i < mask->GetOverviewCount(); ++i) {
        GDALRasterBand* const candidate = mask->GetOverview(i);
        if (candidate != nullptr && SameSize(candidate, overview)) {
            return candidate;
        }
    }
    return HasMask(overview) ? overview->GetMaskBand() : nullptr;
}

/// A mask that bands share is read only once.
void AddMask(Level& level, GDALRasterBand* mask) {
    if (std::find(level.masks.begin(), level.masks.end(), mask) == level.masks.end()) {
        level.masks.push_back(mask);
    }
}

std::optional<Level> OverviewLevel(const std::vector<GDALRasterBand*>& bands, int index) {
    Level level;
    for (GDALRasterBand* band : bands) {
        GDALRasterBand* const overview = band->GetOverview(index);
        if (overview == nullptr ||
            (!level.bands.empty() && !SameSize(overview, level.bands.front()))) {
            return std::nullopt;
        }
        level.bands.push_back(overview);
        if (HasMask(band)) {
            GDALRasterBand* const mask = OverviewMask(band, overview);
            if (mask == nullptr) {
                return std::nullopt;
            }
            AddMask(level, mask);
        }
    }
    return level;
}

}  // namespace

int Level::Width() const { return bands.front()->GetXSize(); }

int Level::Height() const { return bands.front()->GetYSize(); }

Level FullLevel(const std::vector<GDALRasterBand*>& bands) {
    Level level;
    level.bands = bands;
    for (GDALRasterBand* band : bands) {
        if (HasMask(band)) {
            AddMask(level, band->GetMaskBand());
        }
    }
    return level;
}

Level SmallestLevel(const std::vector<GDALRasterBand*>& bands, int width, int height) {
    Level smallest = FullLevel(bands);
    for (int i = 0; i < bands.front()->GetOverviewCount(); ++i) {
        std::optional<Level> level = OverviewLevel(bands, i);
        if (level && level->Width() >= width && level->Height() >= height &&
            level->Width() < smallest.Width()) {
            smallest = *std::move(level);
        }
    }
    return smallest;
}

}  // namespace host
