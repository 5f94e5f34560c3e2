#include "page_editor/editing/page_export.h"

#include "page/document/page_text.h"
#include "page/document/raster_store.h"
#include "page/output/page_output.h"
#include "system/errors.h"
#include "system/output_file.h"
#include "system/separate_process.h"

namespace page_editor {
namespace {

/// The same page with its files opened anew.
host::Page Reopened(const host::Page& page, host::RasterStore& rasters) {
    host::Page copy(page.Width(), page.Height());
    for (const host::PageItem& item : page.Items()) {
        copy.Items().push_back(host::ReadItem(host::WriteItem(item)));
    }
    host::OpenRasters(copy, rasters);
    return copy;
}

}  // namespace

void ExportPage(const host::Page& page, const std::string& path, double dpi,
                const host::Progress& progress) {
    host::Naming(path, [&] {
        const host::OutputFormat format = host::OutputFormatOf(path);
        host::CheckCanBeMade(format);
        host::CheckPageSize(page, dpi);
        host::OutputFile file(path);
        const auto draw = [&](const host::Progress& tell) {
            host::RasterStore rasters;
            const host::Page copy = Reopened(page, rasters);
            host::CheckReplacesNoInput(path, copy, rasters);
            file.Write(host::EncodePage(copy, format, dpi, tell));
            return std::string();
        };
        host::InSeparateProcess(
            "drawing",
            [&](const host::Progress& tell) {
                return host::Naming(path, [&] { return draw(tell); });
            },
            progress);
        host::FinishOutput(file, path, format, progress);
        file.Commit();
    });
}

}  // namespace page_editor
