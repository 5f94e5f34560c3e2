#pragma once

// Opens and saves whole pages, for every program. Errors are std::runtime_error, on one
// line that begins with the file's name. GDI+ must be running.

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "page/document/page_changes.h"
#include "page/document/raster_store.h"
#include "page/layout/page_design.h"
#include "page/page.h"
#include "system/allowed_sources.h"

namespace host {

/// A page and the rasters that its maps and legends show.
struct OpenedPage {
    std::unique_ptr<RasterStore> rasters;
    Page page;
    /// What could not be done as asked, and what would trouble a reader (see RemarksOf),
    /// one line each.
    std::vector<std::string> remarks;
};

/// Opens a page file: makes the changes, checks its pictures and fonts, opens the rasters
/// and fits scale bars and north arrows to the maps.
/// @param allowed what may be read of the files that it names; null: everything. The
/// files that rasters refer to in turn are not checked here: see ConfineGdal.
OpenedPage OpenPageFile(const std::string& path, const AllowedSources* allowed,
                        const PageChanges& changes = {});

/// All remarks on an opened page: on its maps, on what was done with it, and on what can
/// be seen on it.
std::vector<std::string> AllRemarks(const Page& page,
                                    const std::vector<std::string>& ofWhatWasDone);

/// Lays out an automatic page around at least one raster.
OpenedPage LayOutRasters(const std::vector<std::string>& paths, const PageDesign& design);

/// The text of a page file in bytes. Throws NamedError with the file's name.
std::vector<std::uint8_t> PageFileBytes(const Page& page, const std::string& path);

/// Saves a page file; on failure an older file of that name is left alone.
/// @return what the user should know about that file (see OutputFile::Remark)
std::string SavePageFile(const Page& page, const std::string& path);

/// Whether a file name is a page file's rather than a raster's: it ends in .json, in any
/// case.
bool IsPageFile(const std::string& path);

}  // namespace host
