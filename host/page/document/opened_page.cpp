#include "page/document/opened_page.h"

#include <utility>

#include "page/document/page_text.h"
#include "page/document/unused_changes.h"
#include "page/layout/layout.h"
#include "page/layout/map_on_page.h"
#include "page/layout/page_remarks.h"
#include "page/map/map_layers.h"
#include "page/texts.h"
#include "system/errors.h"
#include "system/file_ending.h"
#include "system/output_file.h"

namespace host {
namespace {

/// Has the page's map keep the style and extent of its design, and show them.
void ShowAsDesigned(const MapDesign& design, Page& page, RasterStore& rasters) {
    for (PageItem& item : page.Items()) {
        auto* const map = std::get_if<MapFrame>(&item);
        if (map == nullptr) {
            continue;
        }
        map->style = design.style;
        if (design.extent || design.scale) {
            map->extent = design.extent;
            map->scale = design.scale.value_or(map->scale);
            OpenRasters(item, rasters);
        }
    }
}

}  // namespace

std::vector<std::string> AllRemarks(const Page& page,
                                    const std::vector<std::string>& ofWhatWasDone) {
    std::vector<std::string> remarks = RemarksOfMaps(page);
    for (const std::vector<std::string>& more :
         {ofWhatWasDone, RemarksOfTexts(page), RemarksOf(page)}) {
        remarks.insert(remarks.end(), more.begin(), more.end());
    }
    return remarks;
}

OpenedPage OpenPageFile(const std::string& path, const AllowedSources* allowed,
                        const PageChanges& changes) {
    return Naming(path, [&] {
        Page page = LoadPage(path, allowed);
        std::vector<std::string> told = Change(page, changes);
        CheckFilesAndFonts(page);
        CheckFontsOf(page);
        auto rasters = std::make_unique<RasterStore>();
        for (const std::vector<std::string>& more :
             {RemarksOfUnused(changes, page), OpenChanged(page, changes, *rasters)}) {
            told.insert(told.end(), more.begin(), more.end());
        }
        std::vector<std::string> remarks = AllRemarks(page, told);
        return OpenedPage{std::move(rasters), std::move(page), std::move(remarks)};
    });
}

OpenedPage LayOutRasters(const std::vector<std::string>& paths,
                         const PageDesign& design) {
    auto rasters = std::make_unique<RasterStore>();
    const std::shared_ptr<MapLayers> map =
        rasters->Map(paths, design.map.extent, design.map.style);
    LaidOutPage laidOut = LayOut(design, DescribeMap(map));
    laidOut.page.About().language = design.language->code;
    CheckFontsOf(laidOut.page);
    NameRasters(laidOut.page, paths);
    ShowAsDesigned(design.map, laidOut.page, *rasters);
    std::vector<std::string> remarks = AllRemarks(laidOut.page, laidOut.remarks);
    return {std::move(rasters), std::move(laidOut.page), std::move(remarks)};
}

std::vector<std::uint8_t> PageFileBytes(const Page& page, const std::string& path) {
    return Naming(path, [&]() -> std::vector<std::uint8_t> {
        const std::string text = WritePage(page, FilePaths(path));
        return {text.begin(), text.end()};
    });
}

std::string SavePageFile(const Page& page, const std::string& path) {
    return Naming(path, [&] {
        OutputFile file(path);
        file.Write(PageFileBytes(page, path));
        std::string remark = file.Remark();
        file.Commit();
        return remark;
    });
}

bool IsPageFile(const std::string& path) { return HasEnding(path, ".json"); }

}  // namespace host
