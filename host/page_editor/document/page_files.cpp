#include "page_editor/document/page_files.h"

#include <filesystem>
#include <system_error>
#include <utility>

#include "page/document/page_text.h"
#include "page/layout.h"
#include "page/map_layers.h"
#include "page/output_file.h"
#include "page/text.h"
#include "page_editor/document/map_on_page.h"

namespace page_editor {
namespace {

void RemarkLeftOut(const host::MapLayers& map, std::vector<std::string>& remarks) {
    for (const host::LeftOutRaster& raster : map.LeftOut()) {
        remarks.push_back(raster.raster->Path() + ": left off the map: " + raster.why);
    }
}

std::wstring TitleFor(const std::string& path) {
    std::wstring title;
    host::Widen(std::filesystem::path(path).stem().string(), title);
    return title;
}

}  // namespace

OpenedPage OpenPageFile(const std::string& path) {
    return Naming(path, [&] {
        OpenedPage opened{
            std::make_unique<host::RasterStore>(), host::LoadPage(path), {}};
        host::CheckFilesAndFonts(opened.page);
        host::OpenRasters(opened.page, *opened.rasters);
        for (const host::PageItem& item : opened.page.Items()) {
            if (const host::MapLayers* const map = LayersOf(item)) {
                RemarkLeftOut(*map, opened.remarks);
            }
        }
        return opened;
    });
}

OpenedPage LayOutRasters(const std::vector<std::string>& paths) {
    auto rasters = std::make_unique<host::RasterStore>();
    const std::shared_ptr<host::MapLayers> map = rasters->Map(paths, std::nullopt);
    host::PageDesign design;
    design.title.text = TitleFor(paths.front());
    host::LaidOutPage laidOut = host::LayOut(design, DescribeMap(map, paths, *rasters));
    host::NameRasters(laidOut.page, paths);
    RemarkLeftOut(*map, laidOut.remarks);
    return {std::move(rasters), std::move(laidOut.page), std::move(laidOut.remarks)};
}

void SavePageFile(const host::Page& page, const std::string& path) {
    Naming(path, [&] {
        const std::string text = host::WritePage(page, host::FilePaths(path));
        host::OutputFile file(path);
        file.Write({text.begin(), text.end()});
        file.Commit();
    });
}

bool IsPageFile(const std::string& path) {
    return std::filesystem::path(path).extension() == ".json";
}

}  // namespace page_editor
