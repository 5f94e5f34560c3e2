#include "page_editor/editing/page_export.h"

#include <cstdint>
#include <vector>

#include "page/document/page_text.h"
#include "page/output/output_format.h"
#include "page/output/page_output.h"
#include "page_editor/editing/file_jobs.h"
#include "system/errors.h"
#include "system/helper_process.h"
#include "system/number_text.h"
#include "system/output_file.h"

namespace page_editor {

std::string ExportPage(const host::Page& page, const host::RasterStore& rasters,
                       const std::string& path, double dpi, const std::string& pageFile,
                       const host::Progress& progress, host::MapImages mapImages) {
    return host::Naming(path, [&] {
        const host::OutputFormat format = host::OutputFormatOf(path);
        host::CheckPageSize(page, dpi);
        host::CheckReplacesNoInput(path, page, rasters, {pageFile});
        host::OutputFile file(path);
        const std::string bytes =
            host::InHelper("drawing", kDrawPage,
                           Joined({path, std::to_string(static_cast<int>(format)),
                                   host::NumberText(dpi), host::WritePage(page, {}),
                                   std::to_string(static_cast<int>(mapImages))}),
                           progress);
        file.Write({bytes.begin(), bytes.end()});
        std::string remark = file.Remark();
        file.Commit();
        return remark;
    });
}

}  // namespace page_editor
