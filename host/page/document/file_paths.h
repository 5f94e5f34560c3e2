#pragma once

#include <string>

#include "system/allowed_sources.h"

namespace host {

/// Paths in a page file are relative to its folder, those in memory to the working
/// folder. Names that GDAL reads but that are not paths (`NETCDF:grid.nc:depth`,
/// `/vsizip/a.zip/b.tif`) stay as they are.
class FilePaths {
public:
    /// Leaves every path as it is: for items in memory.
    FilePaths() = default;

    /// @param pageFile the page file's path; with `maps/page.json`, the file's `a.tif` is
    /// `maps/a.tif` here, and `b.tif` here is `../b.tif` in the file
    /// @param allowed what the page file may have read; must outlive this; null:
    /// everything
    explicit FilePaths(const std::string& pageFile,
                       const AllowedSources* allowed = nullptr);

    std::string FromFile(const std::string& path) const;
    std::string ToFile(const std::string& path) const;

    /// Why a file, by its path here, may not be read; empty when it may.
    std::string WhyNot(const std::string& path) const;

private:
    bool m_keeps = true;
    std::string m_folder;  // empty for the working folder
    const AllowedSources* m_allowed = nullptr;
};

}  // namespace host
