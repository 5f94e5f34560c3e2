#pragma once

#include <memory>
#include <string>
#include <vector>

class GDALDataset;

namespace host {

/// Gives back its share of a dataset, quietly; others may go on reading from it.
struct ReleaseDataset {
    void operator()(GDALDataset* dataset) const;
};

/// A dataset that reads from another, as gdal_translate makes one with these arguments:
/// {"-srcwin", "0", "0", "10", "10"} is a part. Throws std::runtime_error with the
/// reason.
std::shared_ptr<GDALDataset> Translated(GDALDataset& dataset,
                                        const std::vector<std::string>& arguments);

/// A dataset whose rows run from west to east and from north to south, with the nearest
/// pixels of one that is turned. Those beside it are masked: by its no-data value; where
/// it has none, by a band more, of alpha, for bytes, and by NaN for anything else, whose
/// values are doubles then. Throws std::runtime_error with the reason.
std::shared_ptr<GDALDataset> TurnedNorthUp(GDALDataset& dataset);

}  // namespace host
