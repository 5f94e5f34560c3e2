#include "page_editor/document/page_export.h"

#include <stdexcept>

#include "page/output_file.h"
#include "page/page_output.h"
#include "page_editor/document/page_files.h"

namespace page_editor {

void ExportPage(const host::Page& page, const std::string& path, double dpi,
                const host::Progress& progress) {
    Naming(path, [&] {
        host::CheckPageOutput(path);
        const std::string tooLarge = host::WhyTooLarge(page, dpi);
        if (!tooLarge.empty()) {
            throw std::runtime_error(tooLarge);
        }
        host::OutputFile file(path);
        file.Write(host::EncodePage(page, path, dpi, progress));
        file.Commit();
    });
}

}  // namespace page_editor
