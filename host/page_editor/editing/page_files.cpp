#include "page_editor/editing/page_files.h"

#include <filesystem>
#include <stdexcept>

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

host::OpenedPage Open(const std::string& path, const host::AllowedSources* allowed,
                      const host::Progress& reading) {
    host::Naming(path, [&] { TryPageFile(path, allowed != nullptr, reading); });
    return host::OpenPageFile(path, allowed, {}, [&](const host::Page& page) {
        TryRastersOf(page.Items(), host::RasterStore(), reading,
                     allowed != nullptr ? path : "");
    });
}

}  // namespace

host::OpenedPage OpenPageFile(const std::string& path, const MayRead& mayRead,
                              const host::Progress& reading) {
    const host::AllowedSources allowed(path);
    try {
        return Open(path, &allowed, reading);
    } catch (const std::runtime_error& error) {
        const bool isRefused =
            allowed.HasRefused() || dynamic_cast<const NotAllowed*>(&error) != nullptr;
        if (!isRefused || !mayRead(error.what())) {
            throw;
        }
    }
    return Open(path, nullptr, reading);
}

host::OpenedPage LayOutRasters(const std::vector<std::string>& paths,
                               const host::Progress& reading) {
    TryRasters(paths, host::RasterStore(), reading);
    host::PageDesign design;
    design.title.text = TitleFor(paths.front());
    return host::LayOutRasters(paths, design);
}

}  // namespace page_editor
