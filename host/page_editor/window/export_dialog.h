#pragma once

#include <QWidget>
#include <optional>

#include "page/output/map_images.h"
#include "page/output/output_format.h"

namespace page_editor {

/// How a page is exported.
struct ExportChoices {
    double dpi = 300.0;
    host::MapImages mapImages = host::MapImages::Lossless;
};

/// Asks for the resolution, and for a file for print how its maps are stored.
/// @return nothing when cancelled
std::optional<ExportChoices> AskHowToExport(QWidget& window, host::OutputFormat format);

}  // namespace page_editor
