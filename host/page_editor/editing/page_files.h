#pragma once

// Pages from files and into files. Errors are std::runtime_error in one line that begins
// with the file's name. What is told of reading may give it up.

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "page/document/raster_store.h"
#include "page/page.h"
#include "system/error_line.h"

namespace page_editor {

/// A page and what its items point to.
struct OpenedPage {
    std::unique_ptr<host::RasterStore> rasters;
    host::Page page;
    std::vector<std::string> remarks;  ///< what is not as it was asked for
};

/// The page of a page file, with its rasters, pictures and fonts looked for.
OpenedPage OpenPageFile(const std::string& path, const host::Progress& reading = {});

/// An A4 page laid out by itself around rasters, at least one.
OpenedPage LayOutRasters(const std::vector<std::string>& paths,
                         const host::Progress& reading = {});

/// Writes a page file; what stood there stays when that fails.
void SavePageFile(const host::Page& page, const std::string& path);

/// Whether a file's name is that of a page file and not of a raster.
bool IsPageFile(const std::string& path);

/// Runs a step whose exception has the reason but not the thing.
template <typename Step>
auto Naming(const std::string& thing, Step step) {
    try {
        return step();
    } catch (const std::exception& error) {
        throw std::runtime_error(thing + ": " + host::LineFor(error));
    }
}

}  // namespace page_editor
