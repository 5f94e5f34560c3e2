#include "page_editor/editing/page_files.h"

#include <filesystem>

#include "page_editor/editing/separate_reading.h"
#include "system/errors.h"
#include "system/utf8.h"

namespace page_editor {
namespace {

std::wstring TitleFor(const std::string& path) {
    std::wstring title;
    host::Widen(std::filesystem::path(path).stem().string(), title);
    return title;
}

}  // namespace

host::OpenedPage OpenPageFile(const std::string& path, const host::Progress& reading) {
    host::Naming(path, [&] { TryPageFile(path, reading); });
    return host::OpenPageFile(path, nullptr, {}, [&](const host::Page& page) {
        TryRastersOf(page.Items(), host::RasterStore(), reading);
    });
}

host::OpenedPage LayOutRasters(const std::vector<std::string>& paths,
                               const host::Progress& reading) {
    TryRasters(paths, host::RasterStore(), reading);
    host::PageDesign design;
    design.title.text = TitleFor(paths.front());
    return host::LayOutRasters(paths, design);
}

}  // namespace page_editor
