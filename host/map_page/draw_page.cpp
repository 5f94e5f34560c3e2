#include "map_page/draw_page.h"

#include <algorithm>
#include <cstddef>

#include "map_page/error.h"
#include "map_page/write_page.h"
#include "page/document/map_on_page.h"
#include "page/document/opened_page.h"
#include "page/document/page_text.h"
#include "page/document/picture_file.h"
#include "page/document/raster_store.h"
#include "page/output/output_format.h"
#include "system/fonts.h"
#include "system/one_line.h"

namespace map_page {
namespace {

/// The picture element takes any file; so it is opened once before.
void CheckPicture(const std::string& path) {
    const std::string why = path.empty() ? "" : host::CheckImageFile(path);
    if (!why.empty()) {
        throw Error(why);
    }
}

void CheckFont(const std::string& option, const std::string& family) {
    if (!host::IsFontFamilyKnown(family)) {
        throw Error(option, "no font family \"" + family + "\" is installed");
    }
}

/// The page of the page file, or the automatic one around the rasters.
host::OpenedPage Open(const Options& options) {
    if (!options.pageFile.empty()) {
        return host::OpenPageFile(options.pageFile, nullptr, options.changes);
    }
    CheckFont("--title-font", options.titleFamily);
    CheckFont("--legend-font", options.legendFamily);
    CheckPicture(options.picture);
    return host::LayOutRasters(options.rasters, options.design);
}

std::string Save(const Options& options, const host::Page& page) {
    const std::size_t bytes = host::SavePageFile(page, options.save);
    return host::OneLine(options.save) + ": " + std::to_string(page.Items().size()) +
           " elements, " + std::to_string(bytes) + " bytes";
}

/// Before the work, which may take minutes.
void CheckOutput(const Options& options) {
    host::Naming(options.output, [&] { host::CheckCanBeMade(*options.format); });
}

}  // namespace

std::string DrawPage(const Options& options, host::OutputFile* output,
                     const Quiet& quiet) {
    if (output != nullptr) {
        CheckOutput(options);
    }
    const host::OpenedPage opened = Open(options);
    for (const std::string& remark : opened.remarks) {
        quiet.Warn(remark);
    }
    std::string summary;
    if (output != nullptr) {
        summary = WriteInto(options, opened.page, *output, quiet);
        // A map without data is known when it has been drawn.
        for (const std::string& remark : host::RemarksOfMaps(opened.page)) {
            if (std::find(opened.remarks.begin(), opened.remarks.end(), remark) ==
                opened.remarks.end()) {
                quiet.Warn(remark);
            }
        }
    }
    if (!options.save.empty()) {
        summary += (summary.empty() ? "" : "\n") + Save(options, opened.page);
    }
    return summary;
}

void CheckSeries(const Options& options, const std::vector<std::string>& columns) {
    CheckOutput(options);
    const host::Page page =
        host::Naming(options.pageFile, [&] { return host::LoadPage(options.pageFile); });
    for (const std::string& column : columns) {
        if (!host::HasText(page, column)) {
            throw Error(options.series,
                        "the column \"" + column + "\" is no element with a text in " +
                            options.pageFile + ", and not in the output's name");
        }
    }
}

}  // namespace map_page
