#pragma once

#include <string>

#include "system/allowed_sources.h"

namespace host {

/// Paths in a page file are relative to its folder, those in memory to where the program
/// runs. What GDAL reads but is no path (`NETCDF:grid.nc:depth`, `/vsizip/a.zip/b.tif`)
/// stays as it is.
class FilePaths {
public:
    /// Leaves every path as it is: for items that stay in memory.
    FilePaths() = default;

    /// @param pageFile the page file's path; `maps/page.json`: the file's `a.tif` is
    /// `maps/a.tif` here, and `b.tif` here is `../b.tif` in the file
    /// @param allowed what may be read of what it names, as long as this lives; null: all
    explicit FilePaths(const std::string& pageFile,
                       const AllowedSources* allowed = nullptr);

    std::string FromFile(const std::string& path) const;
    std::string ToFile(const std::string& path) const;

    /// Why a file may not be read, here; empty when it may.
    std::string WhyNot(const std::string& path) const;

private:
    bool m_keeps = true;
    std::string m_folder;  // empty for the one where the program runs
    const AllowedSources* m_allowed = nullptr;
};

}  // namespace host
