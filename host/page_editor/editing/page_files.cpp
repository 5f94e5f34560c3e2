#include "page_editor/editing/page_files.h"

#include <filesystem>
#include <system_error>
#include <utility>

#include "page/document/map_on_page.h"
#include "page/document/page_text.h"
#include "page/layout/fit_to_map.h"
#include "page/layout/layout.h"
#include "page/map/map_layers.h"
#include "page_editor/editing/separate_reading.h"
#include "system/output_file.h"
#include "system/utf8.h"

namespace page_editor {
namespace {

std::wstring TitleFor(const std::string& path) {
    std::wstring title;
    host::Widen(std::filesystem::path(path).stem().string(), title);
    return title;
}

}  // namespace

OpenedPage OpenPageFile(const std::string& path, const host::Progress& reading) {
    return Naming(path, [&] {
        TryPageFile(path, reading);
        host::Page page = host::LoadPage(path);
        auto rasters = std::make_unique<host::RasterStore>();
        host::CheckFilesAndFonts(page);
        TryRastersOf(page.Items(), *rasters, reading);
        host::OpenRasters(page, *rasters);
        host::FitToMap(page);
        std::vector<std::string> remarks = host::RemarksOfLeftOut(page);
        return OpenedPage{std::move(rasters), std::move(page), std::move(remarks)};
    });
}

OpenedPage LayOutRasters(const std::vector<std::string>& paths,
                         const host::Progress& reading) {
    auto rasters = std::make_unique<host::RasterStore>();
    TryRasters(paths, *rasters, reading);
    const std::shared_ptr<host::MapLayers> map = rasters->Map(paths, std::nullopt);
    host::PageDesign design;
    design.title.text = TitleFor(paths.front());
    host::LaidOutPage laidOut =
        host::LayOut(design, host::DescribeMap(map, paths, *rasters));
    host::NameRasters(laidOut.page, paths);
    std::vector<std::string> remarks = host::RemarksOfLeftOut(laidOut.page);
    remarks.insert(remarks.begin(), laidOut.remarks.begin(), laidOut.remarks.end());
    return {std::move(rasters), std::move(laidOut.page), std::move(remarks)};
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
