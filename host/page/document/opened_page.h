#pragma once

// Pages from files and into files, for every program. What is wrong is a
// std::runtime_error, in one line that begins with the file's name. GDI+ must have been
// started.

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "page/document/page_changes.h"
#include "page/document/raster_store.h"
#include "page/layout/page_design.h"
#include "page/page.h"

namespace host {

/// A page and the rasters that its maps and legends show.
struct OpenedPage {
    std::unique_ptr<RasterStore> rasters;
    Page page;
    std::vector<std::string> remarks;  ///< what is not as it was asked for, one line each
};

/// The page of a page file: changed, if it is to be, with its pictures and fonts looked
/// for, its rasters open, and scale bars and north arrows true to its maps.
/// @param beforeRasters is shown the page before its rasters are opened, and may throw
OpenedPage OpenPageFile(const std::string& path, const PageChanges& changes = {},
                        const std::function<void(const Page&)>& beforeRasters = {});

/// The page that is laid out by itself around rasters, at least one.
OpenedPage LayOutRasters(const std::vector<std::string>& paths, const PageDesign& design);

/// Writes a page file; what stood there stays when that fails.
/// @return its bytes
std::size_t SavePageFile(const Page& page, const std::string& path);

/// Whether a file's name is that of a page file and not of a raster: it ends in .json, in
/// any case.
bool IsPageFile(const std::string& path);

}  // namespace host
