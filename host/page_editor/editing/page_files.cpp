#include "page_editor/editing/page_files.h"

#include <filesystem>
#include <memory>
#include <stdexcept>
#include <utility>

#include "page/document/page_text.h"
#include "page/layout/fit_to_map.h"
#include "page/texts.h"
#include "page_editor/editing/missing_files.h"
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

/// Why files that the page names cannot be used, one line each.
std::vector<std::string> WhyNotUsable(const host::Page& page) {
    std::vector<std::string> reasons = host::WhyNotFilesAndFonts(page);
    try {
        host::CheckFontsOf(page);
    } catch (const std::runtime_error& error) {
        reasons.emplace_back(error.what());
    }
    return reasons;
}

host::OpenedPage Open(const std::string& path, const host::AllowedSources* allowed,
                      const host::Progress& reading) {
    host::Naming(path, [&] { TryPageFile(path, allowed != nullptr, reading); });
    return host::Naming(path, [&] {
        host::Page page = host::LoadPage(path, allowed);
        TryRastersOf(page.Items(), host::RasterStore(), reading,
                     allowed != nullptr ? path : "");
        auto rasters = std::make_unique<host::RasterStore>();
        std::vector<std::string> remarks = WhyNotUsable(page);
        OpenOrHatch(page, *rasters);
        const std::vector<std::string> untrue = host::FitToMap(page);
        remarks.insert(remarks.end(), untrue.begin(), untrue.end());
        remarks = host::AllRemarks(page, remarks);
        return host::OpenedPage{std::move(rasters), std::move(page), std::move(remarks)};
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
    design.language = &host::LanguageOfLocale();
    return host::LayOutRasters(paths, design);
}

}  // namespace page_editor
