#pragma once

#include <memory>
#include <string>
#include <vector>

class GDALDataset;

namespace host {

/// Releases a share of a dataset without a message; others may go on reading from it.
struct ReleaseDataset {
    void operator()(GDALDataset* dataset) const;
};

/// A dataset that reads from another, as gdal_translate makes with these arguments:
/// {"-srcwin", "0", "0", "10", "10"} is a part. Throws std::runtime_error with the
/// reason.
std::shared_ptr<GDALDataset> Translated(GDALDataset& dataset,
                                        const std::vector<std::string>& arguments);

/// A rotated dataset resampled to rows that run from west to east and from north to
/// south, by nearest neighbour. Pixels outside the original are masked: by its no-data
/// value; without one, by an added alpha band for bytes, and by NaN for any other type,
/// with values as doubles. Throws std::runtime_error with the reason.
std::shared_ptr<GDALDataset> TurnedNorthUp(GDALDataset& dataset);

}  // namespace host
