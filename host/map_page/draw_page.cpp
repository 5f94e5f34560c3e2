#include "map_page/draw_page.h"

#include <cstdint>
#include <memory>
#include <utility>
#include <variant>
#include <vector>

#include "map_page/error.h"
#include "map_page/write_page.h"
#include "page/document/map_on_page.h"
#include "page/document/page_text.h"
#include "page/document/raster_store.h"
#include "page/layout/layout.h"
#include "page/map/map_layers.h"
#include "system/fonts.h"

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

/// A page and what its items point to.
struct OpenedPage {
    host::RasterStore store;
    host::Page page{1.0, 1.0};
};

void WarnOfAll(const std::vector<std::string>& remarks, const Quiet& quiet) {
    for (const std::string& remark : remarks) {
        quiet.Warn(remark);
    }
}

/// The automatic page around the rasters.
void LayOut(const Options& options, const Quiet& quiet, OpenedPage& opened) {
    CheckFont("--title-font", options.titleFamily);
    CheckFont("--legend-font", options.legendFamily);
    CheckPicture(options.picture);
    const std::shared_ptr<host::MapLayers> map =
        opened.store.Map(options.rasters, std::nullopt);
    host::LaidOutPage laidOut = host::LayOut(
        options.design, host::DescribeMap(map, options.rasters, opened.store));
    WarnOfAll(host::RemarksOfLeftOut(laidOut.page), quiet);
    WarnOfAll(laidOut.remarks, quiet);
    host::NameRasters(laidOut.page, options.rasters);
    opened.page = std::move(laidOut.page);
}

/// The page of the page file.
void Load(const Options& options, const Quiet& quiet, OpenedPage& opened) {
    Naming(options.pageFile, [&] {
        opened.page = host::LoadPage(options.pageFile);
        host::CheckFilesAndFonts(opened.page);
        ChangeAndOpen(opened.page, options.changes, opened.store);
    });
    WarnOfAll(host::RemarksOfLeftOut(opened.page), quiet);
}

std::string Save(const Options& options, const host::Page& page) {
    return Naming(options.save, [&] {
        const std::string text = host::WritePage(page, host::FilePaths(options.save));
        host::OutputFile file(options.save);
        file.Write({text.begin(), text.end()});
        file.Commit();
        return options.save + ": " + std::to_string(page.Items().size()) + " elements, " +
               std::to_string(text.size()) + " bytes";
    });
}

}  // namespace

std::string DrawPage(const Options& options, host::OutputFile* output,
                     const Quiet& quiet) {
    if (output != nullptr) {
        CheckOutput(options.output);
    }
    OpenedPage opened;
    (options.pageFile.empty() ? LayOut : Load)(options, quiet, opened);
    std::string summary;
    if (output != nullptr) {
        summary = WriteInto(options, opened.page, *output, quiet);
    }
    if (!options.save.empty()) {
        summary += (summary.empty() ? "" : "\n") + Save(options, opened.page);
    }
    return summary;
}

void CheckSeries(const Options& options, const std::vector<std::string>& columns) {
    CheckOutput(options.output);
    const host::Page page =
        Naming(options.pageFile, [&] { return host::LoadPage(options.pageFile); });
    for (const std::string& column : columns) {
        if (!HasText(page, column)) {
            throw Error(options.series,
                        "the column \"" + column + "\" is no element with a text in " +
                            options.pageFile + ", and not in the output's name");
        }
    }
}

}  // namespace map_page
